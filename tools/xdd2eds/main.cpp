#include "CCommandLine.h"
#include "Copies.h"
#include "Files.h"
#include "Messages.h"

#include <CXddEdsWriter.h>

#include <QCoreApplication>

namespace
{
// One line for each kind of loss, with its first place.
void reportLosses(const SCopyRequest& request, const QString& fileName, const CXddEds& eds)
{
    QVector<SReportLine> report;
    for (const CXddLoss& loss : eds.mLosses) {
        report << SReportLine{loss.mLine, loss.mKind, loss.mText, QString()};
    }
    for (const SReportLine& line : request.verbose ? report : summedUp(report, 1)) {
        reportLine(place(fileName, line.line) + line.text);
    }
    reportLine(
        eds.mIncomplete == 0
            ? QCoreApplication::translate("xdd2eds", "%1: %2 entries").arg(fileName, QString::number(eds.mEntries))
            : QCoreApplication::translate("xdd2eds", "%1: %2 entries, %3 of them not wholly said in an EDS")
                  .arg(fileName, QString::number(eds.mEntries), QString::number(eds.mIncomplete)));
}

bool convertFile(const SCopyRequest& request, const QString& fileName)
{
    QByteArray bytes;
    CXddEds eds;
    QString errorText;
    if (!readFile(fileName, bytes, errorText) || !CXddEdsWriter::write(bytes, eds, errorText)) {
        complainAbout(fileName, errorText);
        return false;
    }
    if (!request.quiet) {
        reportLosses(request, fileName, eds);
    }
    return request.dryRun || writeFile(request.destination.of(fileName), eds.mText);
}

int run(const QStringList& arguments)
{
    CCommandLine line(
        QCoreApplication::translate("xdd2eds", "Writes CANopen device descriptions in the INI form (EDS, CiA 306)."),
        QCoreApplication::translate(
            "xdd2eds", "A description; - is standard input. The EDS of one goes to standard output by itself."),
        QStringLiteral("FILE..."));
    const auto output = line.add(
        {QStringLiteral("o"), QStringLiteral("output")},
        QCoreApplication::translate("xdd2eds", "Write the EDS of the one FILE to OUT; - is standard output."),
        QStringLiteral("OUT"));
    const auto outputDir = line.add(
        {QStringLiteral("output-dir")},
        QCoreApplication::translate("xdd2eds", "Write the EDS files to DIR, under the names of the files with .eds."),
        QStringLiteral("DIR"));
    const auto dryRun =
        line.add({QStringLiteral("dry-run")}, QCoreApplication::translate("xdd2eds", "Write nothing, only report."));
    const auto verbose = line.add(
        {QStringLiteral("verbose")},
        QCoreApplication::translate("xdd2eds", "Report everything by itself that an EDS cannot say."));
    const auto quiet = line.add(
        {QStringLiteral("q"), QStringLiteral("quiet")}, QCoreApplication::translate("xdd2eds", "Report nothing."));
    if (const std::optional<int> status = line.parse(arguments)) {
        return *status;
    }
    SCopyRequest request;
    request.destination.output = line.isSet(output) ? line.value(output) : standardStream();
    request.destination.outputDir = line.value(outputDir);
    request.destination.suffix = QStringLiteral(".eds");
    request.dryRun = line.isSet(dryRun);
    request.verbose = line.isSet(verbose);
    request.quiet = line.isSet(quiet);
    if (line.files().isEmpty()) {
        return CCommandLine::refuse(QCoreApplication::translate("tools", "No file is named."));
    }
    if (line.isSet(output) && line.isSet(outputDir)) {
        return CCommandLine::refuse(
            QCoreApplication::translate("xdd2eds", "Only one of --output and --output-dir can be meant."));
    }
    return writeCopies(request, line.files(), convertFile);
}
} // namespace

int main(int argc, char* argv[])
{
    return runTool(argc, argv, QStringLiteral("xdd2eds"), run);
}
