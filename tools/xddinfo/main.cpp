#include "CCommandLine.h"
#include "CJsonReport.h"
#include "COutput.h"
#include "CTextReport.h"
#include "Descriptions.h"
#include "Messages.h"
#include "ObjectSelection.h"

#include <CXddNormalizer.h>

#include <QCoreApplication>

#include <algorithm>
#include <memory>

#include <sys/ioctl.h>
#include <unistd.h>

namespace
{
const QString JSON = QStringLiteral("json");
const QString OBJECT = QStringLiteral("object");
const QString SAMPLE = QStringLiteral("sample");
const QString STRICT = QStringLiteral("strict");

// What the command line asks for.
struct SRequest
{
    QStringList fileNames;
    bool isSample = false;
    bool json = false;
    bool strict = false;
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

// The entries of a selection; none when there is no such object or sub-object.
QVector<SSelectedEntry> entriesOf(const SObjectSelection& selection, const QMap<unsigned int, CCanOpenObject>& objects)
{
    QVector<SSelectedEntry> entries;
    for (auto object = objects.lowerBound(selection.first); object != objects.end() && object.key() <= selection.last;
         ++object) {
        if (!selection.subIndex) {
            entries << SSelectedEntry{*object, std::nullopt};
            continue;
        }
        for (const CCanOpenSubObject& subObject : object->mSubObjects) {
            if (subObject.mIndex == *selection.subIndex) {
                entries << SSelectedEntry{*object, subObject};
            }
        }
    }
    return entries;
}

// Shows the selected entries. Returns false when there are none for one of the selections.
bool showSelections(const SRequest& request, const SShownDescription& description, COutput& output)
{
    bool ok = true;
    QVector<SSelectedEntry> entries;
    for (const SObjectSelection& selection : request.selections) {
        const QVector<SSelectedEntry> selected = entriesOf(selection, description.reader->getObjList());
        if (selected.isEmpty()) {
            complain(QCoreApplication::translate("xddinfo", "%1: There is no object %2.")
                         .arg(description.fileName, selection.text()));
            ok = false;
        }
        entries += selected;
    }
    if (!entries.isEmpty()) {
        request.json ? CJsonReport(output).showEntries(description, entries)
                     : CTextReport(output, terminalWidth()).showEntries(description, entries);
    }
    return ok;
}

bool show(const SRequest& request, const SShownDescription& description, COutput& output)
{
    if (!request.selections.isEmpty()) {
        return showSelections(request, description, output);
    }
    request.json ? CJsonReport(output).showDescription(description)
                 : CTextReport(output, terminalWidth()).showDescription(description);
    return true;
}

// Says what of a description is not shown, or shown in another way than a strict reader would.
void reportRead(const QString& fileName, const QList<CXddRemark>& remarks)
{
    QList<CXddRemark> left;
    int interpreted = 0;
    for (const CXddRemark& remark : remarks) {
        if (remark.mKind != CXddRemark::KIND_CHANGE) {
            left << remark;
        } else if (remark.mSeverity >= CXddRemark::SEVERITY_WARNING) {
            ++interpreted;
        }
    }
    reportRemarks(fileName, summedUp(left));
    if (interpreted > 0) {
        complain(QCoreApplication::translate(
                     "xddinfo",
                     "%1: %n place(s) not written as the format does, read as meant; 'xddnormalize --dry-run' lists "
                     "them.",
                     nullptr, interpreted)
                     .arg(fileName));
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

bool loadNormalized(const CXddDocument& document, ICIso15745& reader)
{
    QList<CXddRemark> remarks;
    CXddRemark failure;
    if (!CXddNormalizer::load(document, reader, remarks, failure)) {
        complainAbout(document.name(), failure);
        return false;
    }
    reportRead(document.name(), remarks);
    return true;
}

bool showFile(const SRequest& request, const QString& fileName, COutput& output)
{
    const CXddDocument document = readDescription(fileName);
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    if (!(request.strict ? loadStrict(document, *reader) : loadNormalized(document, *reader))) {
        return false;
    }
    const QList<CXddPdo> pdos = request.strict ? CXddPdos::of(reader->getObjList()) : CXddPdos::of(document);
    return show(request, {fileName, request.isSample, document, reader.get(), pdos}, output);
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
