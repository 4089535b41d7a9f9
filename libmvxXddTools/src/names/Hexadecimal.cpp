#include "names/Hexadecimal.h"

bool hasHexadecimalPrefix(const QString& text)
{
    return text.startsWith(HEXADECIMAL_PREFIX, Qt::CaseInsensitive);
}

QString hexadecimalDigits(quint64 number, int digits)
{
    return QString::number(number, 16).toUpper().rightJustified(digits, QLatin1Char('0'));
}

QString hexadecimalText(quint64 number, int digits)
{
    return HEXADECIMAL_PREFIX + hexadecimalDigits(number, digits);
}
