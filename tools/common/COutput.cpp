#include "COutput.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace
{
bool drivesTerminal(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}
} // namespace

QString printable(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar character : text) {
        if (drivesTerminal(character)) {
            result += QStringLiteral("\\u%1").arg(uint(character.unicode()), 4, 16, QLatin1Char('0'));
        } else {
            result += character;
        }
    }
    return result;
}

void complain(const QString& text)
{
    std::fprintf(
        stderr, "%s: %s\n", qUtf8Printable(QCoreApplication::applicationName()), qUtf8Printable(printable(text)));
}

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

void COutput::finish()
{
    if (!failed()) {
        check(std::fflush(stdout) == 0);
    }
}

bool COutput::failed() const
{
    return mError != 0;
}

QString COutput::errorText() const
{
    return mError == 0 || mError == EPIPE ? QString() : QString::fromLocal8Bit(std::strerror(mError));
}

void COutput::check(bool ok)
{
    if (!ok) {
        mError = errno;
    }
}
