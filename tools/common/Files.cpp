#include "Files.h"

#include "CCommandLine.h"
#include "COutput.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSaveFile>

#include <cstdio>

#include <sys/stat.h>
#include <unistd.h>

namespace
{
// What replaces a file belongs to whom the file belonged to, as far as the system allows that. Owner first: a change of
// it takes special bits of the mode away.
void keepOwnerAndMode(const QString& fileName, const QSaveFile& replacement)
{
    struct stat before = {};
    if (stat(QFile::encodeName(fileName).constData(), &before) == 0) {
        const int handle = replacement.handle();
        if (fchown(handle, before.st_uid, before.st_gid) != 0 && fchown(handle, uid_t(-1), before.st_gid) != 0) {
            // It then belongs to who runs the tool, as any new file does.
        }
        fchmod(handle, before.st_mode & 07777U);
    }
}
} // namespace

bool readFile(const QString& fileName, QByteArray& bytes, QString& errorText)
{
    QFile file(fileName);
    const bool open =
        fileName == standardStream() ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (open) {
        bytes = file.readAll();
    }
    errorText = file.errorString();
    return open && file.error() == QFileDevice::NoError;
}

bool writeFile(const QString& fileName, const QByteArray& bytes, QString& errorText)
{
    if (fileName == standardStream()) {
        errorText.clear();
        COutput output;
        output.write(bytes);
        return output.finish();
    }
    const QFileInfo info(fileName);
    if (info.exists() && !info.isFile()) { // A device or a pipe is written to, not replaced by a file.
        QFile device(fileName);
        const bool ok = device.open(QIODevice::WriteOnly) && device.write(bytes) == bytes.size() && device.flush();
        errorText = device.errorString();
        return ok;
    }
    QSaveFile file(fileName);
    bool ok = file.open(QIODevice::WriteOnly);
    if (ok) {
        keepOwnerAndMode(fileName, file);
        ok = file.write(bytes) == bytes.size() && file.commit();
    }
    errorText = file.errorString();
    return ok;
}

bool isSameFile(const QString& left, const QString& right)
{
    const QString path = QFileInfo(left).canonicalFilePath();
    return !path.isEmpty() && path == QFileInfo(right).canonicalFilePath();
}

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
