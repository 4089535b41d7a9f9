#include "Files.h"

#include "CCommandLine.h"
#include "COutput.h"
#include "Messages.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
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

bool writeDevice(const QString& fileName, const QByteArray& bytes, QString& errorText)
{
    QFile device(fileName);
    const bool ok = device.open(QIODevice::WriteOnly) && device.write(bytes) == bytes.size() && device.flush();
    errorText = device.errorString();
    return ok;
}

bool replaceFile(const QString& fileName, const QByteArray& bytes, QString& errorText)
{
    QSaveFile file(fileName);
    bool ok = file.open(QIODevice::WriteOnly);
    if (ok) {
        keepOwnerAndMode(fileName, file);
        ok = file.write(bytes) == bytes.size() && file.commit();
    }
    errorText = file.errorString();
    return ok;
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

bool writeFile(const QString& fileName, const QByteArray& bytes)
{
    if (fileName == standardStream()) {
        COutput output;
        output.write(bytes);
        return output.finish();
    }
    QString errorText;
    const QFileInfo info(fileName);
    const bool isDevice = info.exists() && !info.isFile(); // Or a pipe: written to, not replaced by a file
    const bool ok = isDevice ? writeDevice(fileName, bytes, errorText) : replaceFile(fileName, bytes, errorText);
    if (!ok) {
        complain(QCoreApplication::translate("tools", "%1: Cannot write: %2").arg(fileName, errorText));
    }
    return ok;
}
