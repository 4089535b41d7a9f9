#include "CCopyCommandLine.h"
#include "Descriptions.h"
#include "Files.h"
#include "Messages.h"

#include <CXddEdsWriter.h>

#include <QCoreApplication>

namespace
{
// One line for each kind of loss, with its first place.
void reportLosses(const SCopyRequest& request, const QString& fileName, const CXddEds& eds)
{
    reportRemarks(fileName, request.verbose ? eds.mLosses : summedUp(eds.mLosses, 1));
    const QString entries =
        QCoreApplication::translate("xdd2eds", "%1: %n entry(s)", nullptr, eds.mEntries).arg(fileName);
    reportLine(
        eds.mIncomplete == 0
            ? entries
            : QCoreApplication::translate("xdd2eds", "%1, %n of them not fully represented", nullptr, eds.mIncomplete)
                  .arg(entries));
}

ECopied convertFile(const SCopyRequest& request, const QString& fileName)
{
    const CXddDocument document = openDescription(fileName);
    if (!document.isOpen()) {
        return ECopied::No;
    }
    const CXddEds eds = CXddEdsWriter::write(document);
    if (!request.quiet) {
        reportLosses(request, fileName, eds);
    }
    return request.dryRun || writeFile(request.destination.of(fileName), eds.mText) ? ECopied::Yes : ECopied::No;
}

int run(const QStringList& arguments)
{
    CCopyCommandLine line(
        QCoreApplication::translate("xdd2eds", "Writes CANopen device descriptions in the INI form (EDS, CiA 306)."),
        QCoreApplication::translate(
            "xdd2eds",
            "A description; - is standard input. The EDS of one goes to standard output unless it is named."),
        QStringLiteral(".eds"));
    line.addCopyOptions(
        QCoreApplication::translate("xdd2eds", "Write the EDS of the one FILE to OUT; - is standard output."),
        QCoreApplication::translate("xdd2eds", "Write the EDS files to DIR, named as the files with .eds."),
        QCoreApplication::translate("xdd2eds", "Report every loss separately."),
        QCoreApplication::translate("xdd2eds", "Report nothing."));
    if (const std::optional<int> status = line.parse(arguments)) {
        return *status;
    }
    return line.writeCopies(convertFile);
}
} // namespace

int main(int argc, char* argv[])
{
    return runTool(argc, argv, QStringLiteral("xdd2eds"), run);
}
