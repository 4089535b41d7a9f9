#include "Files.h"

#include "CCommandLine.h"
#include "COutput.h"
#include "Messages.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <cstring>

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

// Writes bytes up to the disk, as far as the file system can do that. Qt's own writing goes through a buffer and does
// not say why that could not be emptied.
bool writeToDisk(int handle, const QByteArray& bytes)
{
    const char* next = bytes.constData();
    const char* const end = next + bytes.size();
    while (next != end) {
        const ssize_t written = write(handle, next, static_cast<std::size_t>(end - next));
        if (written < 0 && errno != EINTR) {
            return false;
        }
        next += std::max<ssize_t>(written, 0);
    }
    return fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool replaceFile(const QString& fileName, const QByteArray& bytes, QString& errorText)
{
    QSaveFile file(fileName);
    if (file.open(QIODevice::WriteOnly)) {
        keepOwnerAndMode(fileName, file);
        if (!writeToDisk(file.handle(), bytes)) {
            errorText = QString::fromLocal8Bit(std::strerror(errno));
            return false;
        }
        if (file.commit()) {
            return true;
        }
    }
    errorText = file.errorString();
    return false;
}
} // namespace

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

bool isSameFile(const QString& left, const QString& right)
{
    const QString path = QFileInfo(left).canonicalFilePath();
    return !path.isEmpty() && path == QFileInfo(right).canonicalFilePath();
}
