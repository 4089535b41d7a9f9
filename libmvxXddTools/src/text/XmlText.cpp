#include "text/XmlText.h"

#include <algorithm>

namespace
{
bool isForbidden(QChar character)
{
    const ushort code = character.unicode();
    return (code < 0x20 && code != '\t' && code != '\n' && code != '\r') || code >= 0xFFFE || character.isSurrogate();
}

bool isEscaped(QChar character)
{
    return character < QLatin1Char(' ') || character == QLatin1Char('&') || character == QLatin1Char('<')
           || character == QLatin1Char('>') || character == QLatin1Char('"');
}
} // namespace

QString escapedXml(const QString& text)
{
    if (std::none_of(text.begin(), text.end(), isEscaped)) {
        return text;
    }
    QString result;
    for (const QChar character : text) {
        if (character == QLatin1Char('&')) {
            result += QLatin1String("&amp;");
        } else if (character == QLatin1Char('<')) {
            result += QLatin1String("&lt;");
        } else if (character == QLatin1Char('>')) {
            result += QLatin1String("&gt;");
        } else if (character == QLatin1Char('"')) {
            result += QLatin1String("&quot;");
        } else if (character < QLatin1Char(' ')) {
            result += QStringLiteral("&#%1;").arg(character.unicode());
        } else {
            result += character;
        }
    }
    return result;
}

// Characters beyond the first 65,536 are a pair of Qt's.
QString allowedInXml(const QString& text)
{
    if (std::none_of(text.begin(), text.end(), isForbidden)) {
        return text;
    }
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (character.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            result += character;
            result += text.at(++i);
        } else if (!isForbidden(character)) {
            result += character;
        }
    }
    return result;
}
