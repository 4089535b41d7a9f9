#include "CCopyCommandLine.h"

#include "Descriptions.h"
#include "Files.h"
#include "Messages.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace
{
const QString OUTPUT = QStringLiteral("output");
const QString OUTPUT_DIR = QStringLiteral("output-dir");
const QString IN_PLACE = QStringLiteral("in-place");
const QString DRY_RUN = QStringLiteral("dry-run");
} // namespace

QString SDestination::of(const QString& fileName) const
{
    if (inPlace) {
        return fileName;
    }
    if (outputDir.isEmpty()) {
        return output;
    }
    const QFileInfo info(fileName);
    const QString ending = suffix.isEmpty() && !isXmlFile(fileName) ? QStringLiteral(".xdd") : suffix;
    return QDir(outputDir).filePath(ending.isEmpty() ? info.fileName() : info.completeBaseName() + ending);
}

CCopyCommandLine::CCopyCommandLine(const QString& description, const QString& files, const QString& suffix)
    : CCommandLine(description, files, QStringLiteral("FILE..."))
    , mSuffix(suffix)
    , mOnlyOne(QCoreApplication::translate("tools", "Only one of --output and --output-dir is allowed."))
{}

void CCopyCommandLine::addOutputOptions(const QString& output, const QString& outputDir)
{
    add({QStringLiteral("o"), OUTPUT}, output, QStringLiteral("OUT"));
    add({OUTPUT_DIR}, outputDir, QStringLiteral("DIR"));
}

void CCopyCommandLine::addCopyOptions(
    const QString& output, const QString& outputDir, const QString& verbose, const QString& quiet)
{
    addOutputOptions(output, outputDir);
    add({DRY_RUN}, QCoreApplication::translate("tools", "Write nothing, only report."));
    addReportOptions(verbose, quiet);
}

void CCopyCommandLine::addInPlace(const QString& description)
{
    add({IN_PLACE}, description);
    mOnlyOne = QCoreApplication::translate("tools", "Only one of --output, --output-dir and --in-place is allowed.");
}

SCopyRequest CCopyCommandLine::request() const
{
    SCopyRequest request;
    request.destination.output = isSet(OUTPUT) ? value(OUTPUT) : standardStream();
    request.destination.outputDir = value(OUTPUT_DIR);
    request.destination.suffix = mSuffix;
    request.destination.inPlace = isSet(IN_PLACE);
    request.dryRun = isSet(DRY_RUN);
    request.verbose = isVerbose();
    request.quiet = isQuiet();
    return request;
}

// Why the files cannot be written where they should be, found before anything is written: no file is written over, and
// no copy twice.
QString CCopyCommandLine::refusal(const SCopyRequest& request) const
{
    const SDestination& destination = request.destination;
    if (files().isEmpty()) {
        return QCoreApplication::translate("tools", "No file is named.");
    }
    if (int(isSet(OUTPUT)) + int(isSet(OUTPUT_DIR)) + int(destination.inPlace) > 1) {
        return mOnlyOne;
    }
    if (request.dryRun) {
        return QString();
    }
    if (files().size() > 1 && destination.outputDir.isEmpty() && !destination.inPlace) {
        return QCoreApplication::translate("tools", "Several files need --output-dir.");
    }
    QHash<QString, QString> sources;
    for (const QString& fileName : files()) {
        const bool isStream = fileName == standardStream();
        if (isStream && destination.inPlace) {
            return QCoreApplication::translate("tools", "Standard input cannot be changed in place.");
        }
        if (isStream && !destination.outputDir.isEmpty()) {
            return QCoreApplication::translate("tools", "Standard input has no name to be written under.");
        }
        const QString copy = destination.of(fileName);
        if (!destination.inPlace && isSameFile(fileName, copy)) {
            return QCoreApplication::translate("tools", "%1 would be overwritten.").arg(fileName);
        }
        if (!mKeptFree.isEmpty() && !destination.outputDir.isEmpty() && QFileInfo(copy).fileName() == mKeptFree) {
            return QCoreApplication::translate("tools", "%1 would be written to %2, which leads to the others.")
                .arg(fileName, copy);
        }
        if (sources.contains(copy)) {
            return QCoreApplication::translate("tools", "%1 and %2 would both be written to %3.")
                .arg(sources.value(copy), fileName, copy);
        }
        sources.insert(copy, fileName);
    }
    return QString();
}

int CCopyCommandLine::writeCopies(
    const std::function<ECopied(const SCopyRequest& request, const QString& fileName)>& copy) const
{
    const SCopyRequest asked = request();
    const QString reason = refusal(asked);
    if (!reason.isEmpty()) {
        return refuse(reason);
    }
    const QString folder = asked.destination.outputDir;
    if (!asked.dryRun && !folder.isEmpty() && !QFileInfo(folder).isDir()) {
        complain(QCoreApplication::translate("tools", "There is no folder %1.").arg(folder));
        return EXIT_NOT_ALL_DONE;
    }
    QStringList written;
    QStringList missing;
    bool isFaultless = true;
    for (const QString& fileName : files()) {
        const ECopied copied = copy(asked, fileName);
        (copied == ECopied::No ? missing : written) << asked.destination.of(fileName);
        isFaultless = isFaultless && copied == ECopied::Yes;
    }
    if (!asked.dryRun && !written.isEmpty() && !missing.isEmpty()) {
        complain(QCoreApplication::translate("tools", "Written: %1. Not written: %2.")
                     .arg(written.join(QLatin1String(", ")), missing.join(QLatin1String(", "))));
    }
    return isFaultless ? EXIT_ALL_DONE : EXIT_NOT_ALL_DONE;
}
