#include "html/CHtml.h"

#include "canopen/CValue.h"
#include "names/Hexadecimal.h"
#include "remarks/CRemarks.h"

namespace
{
// True for a character of which nothing would be seen, or which would change what is seen around it.
bool isShownByNumber(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
        return character != '\n' && character != '\t';
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return QChar::isNonCharacter(character);
    }
}

// The character at a place, and how many units of the text it takes.
std::pair<uint, int> characterAt(const QString& text, int at)
{
    const bool isPair = text.at(at).isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
    return isPair ? std::make_pair(uint(QChar::surrogateToUcs4(text.at(at), text.at(at + 1))), 2)
                  : std::make_pair(uint(text.at(at).unicode()), 1);
}
} // namespace

CHtml::CHtml()
{
    mBuffer.open(QIODevice::WriteOnly);
    mWriter.setDevice(&mBuffer);
    mWriter.writeDTD(QStringLiteral("<!DOCTYPE html>"));
}

CHtml& CHtml::open(const char* tag, Attributes attributes)
{
    mWriter.writeStartElement(QString::fromLatin1(tag));
    write(attributes);
    mWriter.writeCharacters(QString()); // An empty element is not "<td/>" in HTML
    return *this;
}

CHtml& CHtml::close()
{
    mWriter.writeEndElement();
    return *this;
}

CHtml& CHtml::empty(const char* tag, Attributes attributes)
{
    mWriter.writeEmptyElement(QString::fromLatin1(tag));
    write(attributes);
    return *this;
}

void CHtml::write(Attributes attributes)
{
    for (const auto& [name, value] : attributes) {
        if (!value.isNull()) {
            mWriter.writeAttribute(QString::fromLatin1(name), value);
        }
    }
}

CHtml& CHtml::text(const QString& text)
{
    int begin = 0;
    int at = 0;
    while (at < text.size()) {
        const auto [character, length] = characterAt(text, at);
        if (isShownByNumber(character)) {
            mWriter.writeCharacters(text.mid(begin, at - begin));
            element("span", QLatin1String("U+") + hexadecimalDigits(character, 4), {{"class", QStringLiteral("c")}});
            begin = at + length;
        }
        at += length;
    }
    mWriter.writeCharacters(text.mid(begin));
    return *this;
}

CHtml& CHtml::element(const char* tag, const QString& text, Attributes attributes)
{
    open(tag, attributes);
    this->text(text);
    return close();
}

CHtml& CHtml::link(const QString& id, const QString& text)
{
    return element("a", text, {{"href", QLatin1Char('#') + id}});
}

CHtml& CHtml::line()
{
    mWriter.writeCharacters(QStringLiteral("\n"));
    return *this;
}

CHtml& CHtml::raw(const char* tag, const QByteArray& content)
{
    open(tag);
    mBuffer.write(content);
    return close();
}

QString noValue()
{
    return QLatin1String("");
}

QString cutForPage(const QString& text)
{
    return CRemarks::cut(text);
}

QString visibleText(const QString& text)
{
    QString visible;
    for (int at = 0; at < text.size();) {
        const auto [character, length] = characterAt(text, at);
        visible += isShownByNumber(character) ? QString() : text.mid(at, length);
        at += length;
    }
    return visible;
}
