#include "CCommandLine.h"
#include "CJsonReport.h"
#include "COutput.h"
#include "CPdoReport.h"
#include "CTextReport.h"
#include "Descriptions.h"
#include "Messages.h"
#include "ObjectSelection.h"

#include <CXddNormalizer.h>
#include <ICIso15745.h>

#include <QCoreApplication>

#include <algorithm>
#include <memory>

#include <sys/ioctl.h>
#include <unistd.h>

namespace
{
const QString FIND = QStringLiteral("find");
const QString JSON = QStringLiteral("json");
const QString OBJECT = QStringLiteral("object");
const QString PDOS = QStringLiteral("pdos");
const QString SAMPLE = QStringLiteral("sample");
const QString STRICT = QStringLiteral("strict");

// What the command line asks for.
struct SRequest
{
    QStringList fileNames;
    bool isSample = false;
    bool json = false;
    bool strict = false;
    bool pdos = false;
    unsigned int nodeId = 0;   // 0 where none is given
    QVector<QString> searched; // Texts that are looked for
    QVector<SObjectSelection> selections;
};

QString embeddedSample()
{
    return QStringLiteral(":/mvxIso15745Xml/xml/NLV7315602_v.xdd");
}

// The width of the terminal that standard output goes to, in columns; 0 where it goes to something else.
int terminalWidth()
{
    winsize size = {};
    return isatty(STDOUT_FILENO) != 0 && ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

// The entries of a selection, by their numbers; none when there is no such object or sub-object.
QVector<int> entriesOf(const SObjectSelection& selection, const QList<CXddEntry>& entries)
{
    QVector<int> numbers;
    for (int number = 0; number < entries.size(); ++number) {
        const CXddEntry& entry = entries[number];
        if (entry.mIndex >= selection.first && entry.mIndex <= selection.last
            && entry.mSubIndex == selection.subIndex) {
            numbers << number;
        }
    }
    return numbers;
}

bool isIn(const QList<CXddLabel>& labels, const QString& text)
{
    return std::any_of(labels.begin(), labels.end(), [&text](const CXddLabel& label) {
        return label.mText.contains(text, Qt::CaseInsensitive);
    });
}

// The objects whose name, label, description or unit has a text, and the sub-objects of others.
QVector<int> entriesWith(const QString& text, const SShownDescription& description)
{
    QVector<int> numbers;
    for (int number = 0; number < description.entries.size(); ++number) {
        const CXddEntry& entry = description.entries[number];
        const CXddEntryTexts texts = description.document.texts(entry.mIndex, entry.mSubIndex);
        if (entry.mName.contains(text, Qt::CaseInsensitive) || isIn(texts.mLabels, text)
            || isIn(texts.mDescriptions, text) || isIn(texts.mUnits, text)) {
            numbers << number;
            number = entry.mSubIndex ? number : description.endOf(number) - 1;
        }
    }
    return numbers;
}

// Shows the selected entries. Returns false when there are none for one of the selections.
bool showSelections(const SRequest& request, const SShownDescription& description, COutput& output)
{
    bool ok = true;
    QVector<int> entries;
    for (const SObjectSelection& selection : request.selections) {
        const QVector<int> selected = entriesOf(selection, description.entries);
        if (selected.isEmpty()) {
            complain(QCoreApplication::translate("xddinfo", "%1: There is no object %2.")
                         .arg(description.fileName, selection.text()));
            ok = false;
        }
        entries += selected;
    }
    for (const QString& text : request.searched) {
        const QVector<int> found = entriesWith(text, description);
        if (found.isEmpty()) {
            complain(QCoreApplication::translate("xddinfo", "%1: No entry has \"%2\" in its texts.")
                         .arg(description.fileName, text));
            ok = false;
        }
        entries += found;
    }
    if (!entries.isEmpty()) {
        request.json ? CJsonReport(output).showEntries(description, entries)
                     : CTextReport(output, terminalWidth()).showEntries(description, entries);
    }
    return ok;
}

// Shows the PDOs, and says what is wrong with them.
void showPdos(const SRequest& request, const SShownDescription& description, COutput& output)
{
    const QList<CXddPdo> pdos = description.document.pdos(request.nodeId);
    const unsigned int nodeId = request.nodeId != 0 ? request.nodeId : description.device.mCommissioning.mNodeId;
    request.json ? CJsonReport(output).showPdos(description, pdos, nodeId)
                 : CPdoReport(output, terminalWidth()).show(description, pdos);
    QList<CXddRemark> doubts;
    for (const CXddPdo& pdo : pdos) {
        doubts += pdo.mDoubts;
    }
    output.flush();
    reportRemarks(description.fileName, doubts);
}

bool show(const SRequest& request, SShownDescription description, COutput& output)
{
    description.isSample = request.isSample;
    if (!request.selections.isEmpty() || !request.searched.isEmpty()) {
        return showSelections(request, description, output);
    }
    if (request.pdos) {
        showPdos(request, description, output);
        return true;
    }
    request.json ? CJsonReport(output).showDescription(description)
                 : CTextReport(output, terminalWidth()).showDescription(description);
    return true;
}

// Says what of a description is not shown, or shown in another way than it is written.
void reportRead(const CXddDocument& document)
{
    QList<CXddRemark> left = document.leftOut();
    int interpreted = 0;
    for (const CXddRemark& remark : document.remarks()) {
        remark.mKind == CXddRemark::KIND_LEFT ? left.append(remark) : void(++interpreted);
    }
    reportRemarks(document.name(), left);
    if (interpreted > 0) {
        complain(QCoreApplication::translate(
                     "xddinfo", "%1: %n place(s) not written as the format does, read as meant; xddcheck lists them.",
                     nullptr, interpreted)
                     .arg(document.name()));
    }
}

bool loadStrict(const CXddDocument& document, ICIso15745& reader)
{
    QString errorText;
    if (CXddNormalizer::loadAsItIs(document, reader, errorText)) {
        return true;
    }
    complain(errorText.contains(document.name()) ? errorText : document.name() + QLatin1String(": ") + errorText);
    if (document.isOpen()) {
        complain(QCoreApplication::translate(
            "xddinfo", "Without --strict it is shown; xddnormalize writes a copy that loads."));
    }
    return false;
}

bool showFile(const SRequest& request, const QString& fileName, COutput& output)
{
    const CXddDocument document = readDescription(fileName);
    if (request.strict) {
        const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
        return loadStrict(document, *reader) && show(request, {fileName, document, *reader}, output);
    }
    if (!document.isOpen()) {
        complainAbout(fileName, document.failure());
        return false;
    }
    reportRead(document);
    return show(request, {fileName, document}, output);
}

int showAll(const SRequest& request)
{
    COutput output;
    bool ok = true;
    for (int i = 0; i < request.fileNames.size() && !output.failed(); ++i) {
        if (!request.json && i > 0) {
            output.writeLine();
        }
        ok = showFile(request, request.fileNames.at(i), output) && ok;
    }
    return output.finish() && ok ? EXIT_ALL_DONE : EXIT_NOT_ALL_DONE;
}

// What the command line asks for; else the reason why it is refused.
QString readRequest(const CCommandLine& line, SRequest& request)
{
    request.fileNames = line.files();
    request.isSample = line.isSet(SAMPLE);
    request.json = line.isSet(JSON);
    request.strict = line.isSet(STRICT);
    request.pdos = line.isSet(PDOS);
    request.nodeId = line.nodeId();
    if (request.pdos && (line.isSet(OBJECT) || line.isSet(FIND))) {
        return QCoreApplication::translate("xddinfo", "Only one of --pdos and --object or --find is allowed.");
    }
    if (request.nodeId != 0 && !request.pdos) {
        return QCoreApplication::translate("xddinfo", "--node-id needs --pdos.");
    }
    for (const QString& text : line.texts(FIND)) {
        if (text.isEmpty()) {
            return QCoreApplication::translate("xddinfo", "--find needs a text.");
        }
        request.searched << text;
    }
    for (const QString& text : line.values(OBJECT)) {
        const std::optional<SObjectSelection> selection = objectSelection(text);
        if (!selection) {
            return QCoreApplication::translate("xddinfo", "'%1' is not an index.").arg(text);
        }
        request.selections << *selection;
    }
    if (request.isSample) {
        request.fileNames.prepend(embeddedSample());
    }
    return request.fileNames.isEmpty()
               ? QCoreApplication::translate("xddinfo", "No file is named; --sample shows the embedded sample.")
               : QString();
}

int run(const QStringList& arguments)
{
    CCommandLine line(
        QCoreApplication::translate("xddinfo", "Shows what is in CANopen device descriptions (ISO 15745 XML, xdd)."),
        QCoreApplication::translate("xddinfo", "A description; - is standard input."), QStringLiteral("FILE..."));
    line.add({JSON}, QCoreApplication::translate("xddinfo", "Print the whole model as JSON, one line for each file."));
    line.add(
        {OBJECT},
        QCoreApplication::translate(
            "xddinfo",
            "Show objects in full, in hexadecimal: 0x1018, 1018h, 0x1018:01, 0x1018sub1 or 0x1800-0x1803. May be given "
            "several times."),
        QCoreApplication::translate("xddinfo", "index"));
    line.add(
        {FIND},
        QCoreApplication::translate(
            "xddinfo",
            "Show the entries that have TEXT in their name, label, description or unit. May be given several times."),
        QStringLiteral("TEXT"));
    line.add({PDOS}, QCoreApplication::translate("xddinfo", "Show what each PDO carries, bit by bit."));
    line.addNodeId(QCoreApplication::translate(
        "xddinfo", "With --pdos: the node-ID of the CAN-IDs; without it the one that the description states."));
    line.add({SAMPLE}, QCoreApplication::translate("xddinfo", "Show the sample that the library carries."));
    line.add(
        {STRICT}, QCoreApplication::translate(
                      "xddinfo", "Read the files exactly as the library does, not as xddnormalize would write them."));
    if (const std::optional<int> status = line.parse(arguments)) {
        return *status;
    }
    SRequest request;
    const QString refusal = readRequest(line, request);
    return refusal.isEmpty() ? showAll(request) : CCommandLine::refuse(refusal);
}
} // namespace

int main(int argc, char* argv[])
{
    return runTool(argc, argv, QStringLiteral("xddinfo"), run);
}
