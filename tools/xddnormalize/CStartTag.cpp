#include "CStartTag.h"

namespace
{
bool isSpace(QChar character)
{
    return character == QLatin1Char(' ') || character == QLatin1Char('\t') || character == QLatin1Char('\n')
           || character == QLatin1Char('\r');
}

bool endsName(QChar character)
{
    return isSpace(character) || character == QLatin1Char('=') || character == QLatin1Char('/')
           || character == QLatin1Char('>');
}

int skipSpace(const QString& text, int position)
{
    while (position < text.size() && isSpace(text.at(position))) {
        ++position;
    }
    return position;
}

int skipName(const QString& text, int position)
{
    while (position < text.size() && !endsName(text.at(position))) {
        ++position;
    }
    return position;
}

QStringView viewOf(const QString& text, SRange range)
{
    return QStringView(text).mid(range.begin, range.end - range.begin);
}

// The character of a reference without "&" and ";", or nothing for an entity that is not predefined.
QString referenced(QStringView name)
{
    if (name.startsWith(QLatin1Char('#'))) {
        const bool hexadecimal = name.mid(1).startsWith(QLatin1Char('x'));
        const uint code = name.mid(hexadecimal ? 2 : 1).toString().toUInt(nullptr, hexadecimal ? 16 : 10);
        return QString::fromUcs4(&code, 1);
    }
    if (name == QLatin1String("lt")) {
        return QStringLiteral("<");
    }
    if (name == QLatin1String("gt")) {
        return QStringLiteral(">");
    }
    if (name == QLatin1String("amp")) {
        return QStringLiteral("&");
    }
    if (name == QLatin1String("quot")) {
        return QStringLiteral("\"");
    }
    if (name == QLatin1String("apos")) {
        return QStringLiteral("'");
    }
    return QString();
}
} // namespace

CStartTag::CStartTag(const QString& text, int begin)
    : mText(text)
    , mAttributesEnd(skipName(text, begin + 1))
{
    int position = skipSpace(text, mAttributesEnd);
    while (position < text.size() && !endsName(text.at(position))) {
        SAttribute attribute;
        attribute.name = {position, skipName(text, position)};
        const int colon = int(viewOf(text, attribute.name).indexOf(QLatin1Char(':')));
        attribute.name.begin += colon + 1;
        const int quote = skipSpace(text, text.indexOf(QLatin1Char('='), attribute.name.end) + 1);
        attribute.value = {quote + 1, text.indexOf(text.at(quote), quote + 1)};
        mAttributesEnd = attribute.value.end + 1;
        mAttributes.append(attribute);
        position = skipSpace(text, mAttributesEnd);
    }
}

int CStartTag::attributesEnd() const
{
    return mAttributesEnd;
}

const SAttribute* CStartTag::attribute(const QString& name) const
{
    for (const SAttribute& attribute : mAttributes) {
        if (viewOf(mText, attribute.name) == name) {
            return &attribute;
        }
    }
    return nullptr;
}

QString unescaped(QStringView raw)
{
    QString value;
    int position = 0;
    while (position < raw.size()) {
        const int reference = int(raw.mid(position).indexOf(QLatin1Char('&')));
        if (reference < 0) {
            break;
        }
        const int begin = position + reference;
        const int end = begin + int(raw.mid(begin).indexOf(QLatin1Char(';')));
        value += raw.mid(position, reference);
        value += referenced(raw.mid(begin + 1, end - begin - 1));
        position = end + 1;
    }
    value += raw.mid(position);
    return value;
}

QString escaped(const QString& value)
{
    QString result;
    for (const QChar character : value) {
        if (character == QLatin1Char('&')) {
            result += QLatin1String("&amp;");
        } else if (character == QLatin1Char('<')) {
            result += QLatin1String("&lt;");
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
