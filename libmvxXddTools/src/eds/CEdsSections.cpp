#include "eds/CEdsSections.h"

namespace
{
// Longest line of a file, in characters.
constexpr int LINE_LENGTH = 255;

const QLatin1String NEWLINE("\r\n");
} // namespace

void CEdsSections::begin(const QString& name)
{
    if (!mText.isEmpty()) {
        mText += NEWLINE;
    }
    mText += QLatin1Char('[') + name + QLatin1Char(']') + NEWLINE;
}

void CEdsSections::key(const QString& name, const QString& value)
{
    if (!value.isEmpty()) {
        line(name, value);
    }
}

void CEdsSections::line(const QString& name, const QString& value)
{
    mText += name + QLatin1Char('=') + value + NEWLINE;
}

SEdsText CEdsSections::text(const QString& name, const QString& value)
{
    SEdsText text = edsText(value, LINE_LENGTH - int(name.size()) - 1);
    line(name, text.text);
    return text;
}
