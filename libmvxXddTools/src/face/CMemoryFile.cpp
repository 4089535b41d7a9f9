#include "face/CMemoryFile.h"

#include <sys/mman.h>

CMemoryFile::CMemoryFile(const QByteArray& bytes)
{
    const int handle = memfd_create("description", MFD_CLOEXEC);
    const QString inMemory = QStringLiteral("/proc/self/fd/%1").arg(handle);
    if (handle >= 0 && mMemory.open(handle, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)
        && mMemory.write(bytes) == bytes.size() && mMemory.flush() && QFile::exists(inMemory)) {
        mName = inMemory;
    } else if (mFile.open() && mFile.write(bytes) == bytes.size() && mFile.flush()) {
        mName = mFile.fileName();
    }
}
