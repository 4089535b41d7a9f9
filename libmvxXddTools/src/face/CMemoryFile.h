#ifndef MVXXDDTOOLS_CMEMORYFILE_H
#define MVXXDDTOOLS_CMEMORYFILE_H

#include <QByteArray>
#include <QString>
#include <QTemporaryFile>

/** Bytes that can be opened by a file name, because a reader takes nothing but names. They are in memory; where the
 * system cannot do that, in a temporary file. */
class CMemoryFile
{
public:
    explicit CMemoryFile(const QByteArray& bytes);
    CMemoryFile(const CMemoryFile&) = delete;
    CMemoryFile(CMemoryFile&&) = delete;
    CMemoryFile& operator=(const CMemoryFile&) = delete;
    CMemoryFile& operator=(CMemoryFile&&) = delete;
    ~CMemoryFile() = default;

    /** The name; nothing when there is no place for the bytes. */
    QString name() const { return mName; }
    /** Why there is no place. */
    QString errorText() const { return mFile.errorString(); }

private:
    QFile mMemory;
    QTemporaryFile mFile;
    QString mName;
};

#endif
