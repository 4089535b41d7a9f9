#include "Copies.h"

#include "CCommandLine.h"
#include "Files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace
{
// True for two names of one existing file.
bool isSameFile(const QString& left, const QString& right)
{
    const QString path = QFileInfo(left).canonicalFilePath();
    return !path.isEmpty() && path == QFileInfo(right).canonicalFilePath();
}
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
    return QDir(outputDir).filePath(suffix.isEmpty() ? info.fileName() : info.completeBaseName() + suffix);
}

QString SDestination::refusal(const QStringList& fileNames) const
{
    if (!outputDir.isEmpty() && !QFileInfo(outputDir).isDir()) {
        return QCoreApplication::translate("tools", "There is no folder %1.").arg(outputDir);
    }
    if (fileNames.size() > 1 && outputDir.isEmpty() && !inPlace) {
        return QCoreApplication::translate("tools", "Several files need --output-dir.");
    }
    QHash<QString, QString> sources;
    for (const QString& fileName : fileNames) {
        const bool isStream = fileName == standardStream();
        if (isStream && inPlace) {
            return QCoreApplication::translate("tools", "Standard input cannot be changed in place.");
        }
        if (isStream && !outputDir.isEmpty()) {
            return QCoreApplication::translate("tools", "Standard input has no name to be written under.");
        }
        const QString copy = of(fileName);
        if (!inPlace && isSameFile(fileName, copy)) {
            return QCoreApplication::translate("tools", "%1 would be overwritten.").arg(fileName);
        }
        if (sources.contains(copy)) {
            return QCoreApplication::translate("tools", "%1 and %2 would both be written to %3.")
                .arg(sources.value(copy), fileName, copy);
        }
        sources.insert(copy, fileName);
    }
    return QString();
}

int writeCopies(
    const SCopyRequest& request, const QStringList& fileNames,
    bool (*copy)(const SCopyRequest& request, const QString& fileName))
{
    const QString refusal = request.dryRun ? QString() : request.destination.refusal(fileNames);
    if (!refusal.isEmpty()) {
        return CCommandLine::refuse(refusal);
    }
    bool ok = true;
    for (const QString& fileName : fileNames) {
        ok = copy(request, fileName) && ok;
    }
    return ok ? EXIT_ALL_DONE : EXIT_NOT_ALL_DONE;
}
