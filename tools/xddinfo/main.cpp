#include "CCommandLine.h"
#include "CJsonReport.h"
#include "COutput.h"
#include "CTextReport.h"
#include "Files.h"
#include "Messages.h"
#include "ObjectSelection.h"

#include <CXddNormalizer.h>

#include <QCoreApplication>
#include <QTemporaryFile>

#include <algorithm>
#include <memory>

#include <sys/ioctl.h>
#include <unistd.h>

namespace
{
// What the command line asks for.
struct SRequest
{
    QStringList fileNames;
    bool isSample = false; // No file was named: the embedded sample is shown
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
QVector<SShownEntry> entriesOf(const SObjectSelection& selection, const QMap<unsigned int, CCanOpenObject>& objects)
{
    QVector<SShownEntry> entries;
    for (auto object = objects.lowerBound(selection.first); object != objects.end() && object.key() <= selection.last;
         ++object) {
        if (!selection.subIndex) {
            entries << SShownEntry{*object, std::nullopt};
            continue;
        }
        for (const CCanOpenSubObject& subObject : object->mSubObjects) {
            if (subObject.mIndex == *selection.subIndex) {
                entries << SShownEntry{*object, subObject};
            }
        }
    }
    return entries;
}

// Shows the selected entries. Returns false when there are none for one of the selections.
bool showSelections(const SRequest& request, const SShownDescription& description, COutput& output)
{
    bool ok = true;
    QVector<SShownEntry> entries;
    for (const SObjectSelection& selection : request.selections) {
        const QVector<SShownEntry> selected = entriesOf(selection, description.reader->getObjList());
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
void reportChanges(const QString& fileName, const QList<CXddChange>& changes)
{
    QVector<SReportLine> left;
    for (const CXddChange& change : changes) {
        if (!change.mChanged) {
            left << SReportLine{change.mLine, QString(), change.mWhat, QLatin1String(", ") + change.mReason};
        }
    }
    for (const SReportLine& line : summedUp(left)) {
        reportLine(place(fileName, line.line) + line.text + line.ending);
    }
    const auto mattering = std::count_if(
        changes.begin(), changes.end(), [](const CXddChange& change) { return change.mChanged && change.mMatters; });
    if (mattering > 0) {
        complain((mattering == 1 ? QCoreApplication::translate(
                      "xddinfo", "%1: %2 place is not written as the format does and is read as it is "
                                 "meant; 'xddnormalize --dry-run' shows it.")
                                 : QCoreApplication::translate(
                                     "xddinfo", "%1: %2 places are not written as the format does and are read as they "
                                                "are meant; 'xddnormalize --dry-run' lists them."))
                     .arg(fileName, QString::number(mattering)));
    }
}

// Loads a description from `path`, which is a copy of what the user calls `fileName`.
bool load(const SRequest& request, const QString& path, const QString& fileName, ICIso15745& reader)
{
    QList<CXddChange> changes;
    QString errorText;
    const bool loaded =
        request.strict ? reader.load(path, errorText) : CXddNormalizer::load(reader, path, changes, errorText);
    if (loaded) {
        reportChanges(fileName, changes);
        return true;
    }
    complainAbout(fileName, errorText.replace(path, fileName));
    if (request.strict) {
        const std::unique_ptr<ICIso15745> lenient(ICIso15745::create());
        if (CXddNormalizer::load(*lenient, path, changes, errorText)) {
            complain(QCoreApplication::translate(
                "xddinfo", "Without --strict it is shown; xddnormalize writes a copy that loads."));
        }
    }
    return false;
}

bool showFile(const SRequest& request, const QString& fileName, COutput& output)
{
    QByteArray bytes;
    QString errorText;
    QString path = fileName;
    QTemporaryFile copy;
    const bool read = readFile(fileName, bytes, errorText);
    if (fileName == standardStream()) {
        if (!read || !copy.open() || copy.write(bytes) != bytes.size() || !copy.flush()) {
            complainAbout(fileName, read ? copy.errorString() : errorText);
            return false;
        }
        path = copy.fileName();
    }
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    if (!load(request, path, fileName, *reader)) {
        return false;
    }
    return show(request, {fileName, request.isSample, reader.get(), CXddStated::in(bytes)}, output);
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

int run(const QStringList& arguments)
{
    CCommandLine line(
        QCoreApplication::translate("xddinfo", "Shows what is in CANopen device descriptions (ISO 15745 XML, xdd)."),
        QCoreApplication::translate(
            "xddinfo", "A description; - is standard input. Without one the embedded sample is shown."),
        QStringLiteral("[FILE...]"));
    const auto json = line.add(
        {QStringLiteral("json")},
        QCoreApplication::translate("xddinfo", "Print the whole model as JSON, one line for each file."));
    const auto object = line.add(
        {QStringLiteral("object")},
        QCoreApplication::translate(
            "xddinfo", "Show objects in full, in hexadecimal: 0x1018, 1018h, 0x1018:1, 0x1018sub1 or 0x1800-0x1803. "
                       "May be given several times."),
        QCoreApplication::translate("xddinfo", "index"));
    const auto strict = line.add(
        {QStringLiteral("strict")},
        QCoreApplication::translate(
            "xddinfo", "Read the files exactly as the library does, not as xddnormalize would write them."));
    if (const std::optional<int> status = line.parse(arguments)) {
        return *status;
    }
    SRequest request;
    request.fileNames = line.files();
    request.isSample = request.fileNames.isEmpty();
    if (request.isSample) {
        request.fileNames << embeddedSample();
    }
    request.json = line.isSet(json);
    request.strict = line.isSet(strict);
    for (const QString& text : line.values(object)) {
        for (const QString& part : text.split(QLatin1Char(','))) {
            const std::optional<SObjectSelection> selection = objectSelection(part);
            if (!selection) {
                return CCommandLine::refuse(QCoreApplication::translate("xddinfo", "'%1' is not an index.").arg(part));
            }
            request.selections << *selection;
        }
    }
    return showAll(request);
}
} // namespace

int main(int argc, char* argv[])
{
    return runTool(argc, argv, QStringLiteral("xddinfo"), run);
}
