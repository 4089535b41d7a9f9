#include "COutput.h"

#include "Messages.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstdio>
#include <cstring>

void COutput::write(const QByteArray& bytes)
{
    if (!failed()) {
        const auto size = static_cast<std::size_t>(bytes.size());
        check(std::fwrite(bytes.constData(), 1, size, stdout) == size);
    }
}

void COutput::writeLine(const QString& line)
{
    write(line.toUtf8() + '\n');
}

void COutput::flush()
{
    if (!failed()) {
        check(std::fflush(stdout) == 0);
    }
}

bool COutput::finish()
{
    flush();
    if (mError == 0 || mError == EPIPE) {
        return true;
    }
    complain(
        QCoreApplication::translate("tools", "Cannot write: %1").arg(QString::fromLocal8Bit(std::strerror(mError))));
    return false;
}

void COutput::check(bool ok)
{
    if (!ok) {
        mError = errno;
    }
}
