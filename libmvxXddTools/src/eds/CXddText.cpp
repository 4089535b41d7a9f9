#include "eds/CXddText.h"

#include "canopen/CValue.h"
#include "names/Hexadecimal.h"
#include "text/XmlText.h"

namespace
{
constexpr int INDENT = 2; // Of each element, in spaces
} // namespace

CXddText::CXddText()
    : mText(QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"))
{}

void CXddText::beginLine()
{
    mText += QLatin1Char('\n');
    mText.resize(mText.size() + INDENT * int(mOpen.size()), QLatin1Char(' '));
}

void CXddText::begin(QLatin1String element, int line)
{
    if (mIsInTag) {
        mText += QLatin1Char('>');
    }
    beginLine();
    mText += QLatin1Char('<');
    mText += element;
    mLines.push_back(line);
    mOpen.push_back(element);
    mIsInTag = true;
}

void CXddText::attribute(QLatin1String name, const QString& value, int line)
{
    if (!value.isNull()) {
        declaration(name, value);
        mAttributeLines.push_back(line);
    }
}

void CXddText::declaration(QLatin1String name, const QString& value)
{
    mText += QLatin1Char(' ');
    mText += name;
    mText += QLatin1String("=\"");
    mText += escapedXml(allowedInXml(value));
    mText += QLatin1Char('"');
}

void CXddText::attribute(QLatin1String name, QLatin1String value, int line)
{
    attribute(name, value.isNull() ? QString() : QString(value), line);
}

void CXddText::hexadecimal(QLatin1String name, unsigned int number, int digits)
{
    attribute(name, hexadecimalText(number, digits).mid(HEXADECIMAL_PREFIX.size()));
}

void CXddText::end(int count)
{
    for (int element = 0; element < count; ++element) {
        const QLatin1String name = mOpen.back();
        mOpen.pop_back();
        if (mIsInTag) {
            mText += QLatin1String("/>");
        } else {
            beginLine();
            mText += QLatin1String("</") + name + QLatin1Char('>');
        }
        mIsInTag = false;
    }
    if (mOpen.empty()) {
        mText += QLatin1Char('\n');
    }
}

void CXddText::element(
    QLatin1String name, int line, const QString& text, QLatin1String attributeName, const QString& attributeValue)
{
    begin(name, line);
    if (!attributeName.isEmpty()) {
        attribute(attributeName, attributeValue);
    }
    if (text.isEmpty()) {
        end();
        return;
    }
    mText += QLatin1Char('>') + escapedXml(allowedInXml(text)) + QLatin1String("</") + name + QLatin1Char('>');
    mOpen.pop_back();
    mIsInTag = false;
}
