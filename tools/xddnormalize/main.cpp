#include "CCommandLine.h"
#include "Copies.h"
#include "Files.h"
#include "Messages.h"

#include <CXddNormalizer.h>
#include <ICIso15745.h>

#include <QCoreApplication>
#include <QTemporaryFile>

#include <algorithm>
#include <memory>

namespace
{
void reportChanges(const SCopyRequest& request, const QString& fileName, const QList<CXddChange>& changes)
{
    QVector<SReportLine> report;
    for (const CXddChange& change : changes) {
        report << SReportLine{
            change.mLine, change.mChanged ? change.mRule : QString(), change.mWhat,
            QLatin1String(", ") + change.mReason};
    }
    for (const SReportLine& line : request.verbose ? report : summedUp(report)) {
        reportLine(place(fileName, line.line) + line.text + line.ending);
    }
    const auto made =
        std::count_if(changes.begin(), changes.end(), [](const CXddChange& change) { return change.mChanged; });
    reportLine((made == 1 ? QCoreApplication::translate("xddnormalize", "%1: %2 change")
                          : QCoreApplication::translate("xddnormalize", "%1: %2 changes"))
                   .arg(fileName, QString::number(made)));
}

// Tests that the library reads the description in its form. The original takes the way that other programs open it in,
// so that the library's message names the lines of the original, not those of the copy.
bool isReadable(const QString& fileName, const QByteArray& original)
{
    QTemporaryFile file;
    QString errorText;
    if (!file.open() || file.write(original) != original.size() || !file.flush()) {
        complainAbout(fileName, file.errorString());
        return false;
    }
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QList<CXddChange> changes;
    if (!CXddNormalizer::load(*reader, file.fileName(), changes, errorText)) {
        complainAbout(
            fileName, QCoreApplication::translate("xddnormalize", "It still does not load: %1")
                          .arg(errorText.replace(file.fileName(), fileName)));
        return false;
    }
    return true;
}

bool normalizeFile(const SCopyRequest& request, const QString& fileName)
{
    QByteArray bytes;
    QByteArray normalized;
    QList<CXddChange> changes;
    QString errorText;
    if (!readFile(fileName, bytes, errorText) || !CXddNormalizer::normalize(bytes, normalized, changes, errorText)) {
        complainAbout(fileName, errorText);
        return false;
    }
    if (!request.quiet) {
        reportChanges(request, fileName, changes);
    }
    const bool needed = !request.dryRun && (!request.destination.inPlace || normalized != bytes);
    if (needed && !writeFile(request.destination.of(fileName), normalized)) {
        return false;
    }
    return isReadable(fileName, bytes);
}

int listRules()
{
    QStringList lines;
    for (const CXddRule& rule : CXddNormalizer::rules()) {
        lines << QStringLiteral("%1\n    %2,\n    %3").arg(rule.mId, rule.mSummary, rule.mReason);
    }
    return print(lines.join(QLatin1Char('\n')));
}

int run(const QStringList& arguments)
{
    CCommandLine line(
        QCoreApplication::translate(
            "xddnormalize", "Writes copies of CANopen device descriptions in the form that the library reads."),
        QCoreApplication::translate(
            "xddnormalize", "A description; - is standard input. The copy of one goes to standard output by itself."),
        QStringLiteral("FILE..."));
    const auto output = line.add(
        {QStringLiteral("o"), QStringLiteral("output")},
        QCoreApplication::translate("xddnormalize", "Write the copy of the one FILE to OUT; - is standard output."),
        QStringLiteral("OUT"));
    const auto outputDir = line.add(
        {QStringLiteral("output-dir")},
        QCoreApplication::translate("xddnormalize", "Write the copies under the names of the files to DIR."),
        QStringLiteral("DIR"));
    const auto inPlace = line.add(
        {QStringLiteral("in-place")}, QCoreApplication::translate("xddnormalize", "Change the files themselves."));
    const auto dryRun = line.add(
        {QStringLiteral("dry-run")}, QCoreApplication::translate("xddnormalize", "Write nothing, only report."));
    const auto verbose = line.add(
        {QStringLiteral("verbose")}, QCoreApplication::translate("xddnormalize", "Report every change by itself."));
    const auto quiet = line.add(
        {QStringLiteral("q"), QStringLiteral("quiet")},
        QCoreApplication::translate("xddnormalize", "Report no changes."));
    const auto rules = line.add(
        {QStringLiteral("list-rules")},
        QCoreApplication::translate("xddnormalize", "Print what is changed in a description, and why."));
    if (const std::optional<int> status = line.parse(arguments)) {
        return *status;
    }
    if (line.isSet(rules)) {
        return listRules();
    }
    SCopyRequest request;
    request.destination.output = line.isSet(output) ? line.value(output) : standardStream();
    request.destination.outputDir = line.value(outputDir);
    request.destination.inPlace = line.isSet(inPlace);
    request.dryRun = line.isSet(dryRun);
    request.verbose = line.isSet(verbose);
    request.quiet = line.isSet(quiet);
    if (line.files().isEmpty()) {
        return CCommandLine::refuse(QCoreApplication::translate("tools", "No file is named."));
    }
    if (int(line.isSet(output)) + int(line.isSet(outputDir)) + int(line.isSet(inPlace)) > 1) {
        return CCommandLine::refuse(QCoreApplication::translate(
            "xddnormalize", "Only one of --output, --output-dir and --in-place can be meant."));
    }
    return writeCopies(request, line.files(), normalizeFile);
}
} // namespace

int main(int argc, char* argv[])
{
    return runTool(argc, argv, QStringLiteral("xddnormalize"), run);
}
