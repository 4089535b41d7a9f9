#include "text/CTagScanner.h"

#include "CXmlLimits.h"

#include <algorithm>

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
} // namespace

CTagScanner::CTagScanner(CXmlText& text)
    : mXml(text)
    , mText(text.mText)
{}

bool CTagScanner::scan(CXmlText::SError& error)
{
    QString refusal;
    while (refusal.isEmpty()) {
        mPosition = int(mText.indexOf(QLatin1Char('<'), mPosition));
        if (mPosition < 0) {
            return true;
        }
        if (startsWith(QLatin1String("<!--"))) {
            mPosition += 4;
            skipBehind(QLatin1String("-->"));
        } else if (startsWith(QLatin1String("<![CDATA["))) {
            skipBehind(QLatin1String("]]>"));
        } else if (startsWith(QLatin1String("<?"))) {
            skipBehind(QLatin1String("?>"));
        } else if (startsWith(QLatin1String("</"))) {
            skipBehind(QLatin1String(">"));
        } else if (startsWith(QLatin1String("<!"))) {
            scanDeclaration(refusal);
        } else {
            scanTag(refusal);
        }
    }
    countLines(mPosition);
    error = {refusal, mLine, mPosition - int(mText.lastIndexOf(QLatin1Char('\n'), mPosition - 1)) - 1};
    return false;
}

void CTagScanner::scanTag(QString& refusal)
{
    mXml.mNodes.emplace_back();
    CXmlText::SNode& node = mXml.mNodes.back();
    countLines(mPosition);
    node.line = mLine;
    node.begin = mPosition++;
    node.name.begin = mPosition;
    skipName();
    node.name.end = mPosition;
    const int colon = int(mXml.view(node.name).indexOf(QLatin1Char(':')));
    node.name.begin += colon + 1;
    node.attributesEnd = mPosition;
    node.firstAttribute = int(mXml.mAttributes.size());
    skipSpace();
    while (!atEnd() && !endsName(current())) {
        scanAttribute(node);
        if (node.attributes > CXmlLimits::MAX_ATTRIBUTES) {
            refusal = CXmlLimits::tooManyAttributes();
            return;
        }
        if (node.namespaces > CXmlLimits::MAX_NAMESPACES) {
            refusal = CXmlLimits::tooManyNamespaces();
            return;
        }
        skipSpace();
    }
    node.isEmptyTag = !atEnd() && current() == QLatin1Char('/');
    skipBehind(QLatin1String(">"));
    node.contentBegin = mPosition;
}

// Namespace declarations are counted, but are no attributes: the name that they declare would be taken for one.
void CTagScanner::scanAttribute(CXmlText::SNode& node)
{
    CXmlText::SAttribute attribute;
    attribute.name.begin = mPosition;
    skipName();
    attribute.name.end = mPosition;
    const QStringView name = mXml.view(attribute.name);
    const int colon = int(name.indexOf(QLatin1Char(':')));
    const QStringView space = colon < 0 ? name : name.left(colon);
    attribute.name.begin += colon + 1;
    skipSpace();
    mPosition += !atEnd() && current() == QLatin1Char('=') ? 1 : 0;
    skipSpace();
    const int quote = mPosition;
    const int end = atEnd() ? -1 : int(mText.indexOf(current(), quote + 1));
    attribute.value = {std::min(quote + 1, int(mText.size())), end < 0 ? int(mText.size()) : end};
    mPosition = std::min(attribute.value.end + 1, int(mText.size()));
    node.attributesEnd = mPosition;
    if (space == QLatin1String("xmlns")) {
        ++node.namespaces;
    } else {
        mXml.mAttributes.push_back(attribute);
        ++node.attributes;
    }
}

// A document type declaration; an identifier in quotes may hold any character.
void CTagScanner::scanDeclaration(QString& refusal)
{
    QChar quote;
    for (; !atEnd(); ++mPosition) {
        if (!quote.isNull()) {
            quote = current() == quote ? QChar() : quote;
        } else if (current() == QLatin1Char('"') || current() == QLatin1Char('\'')) {
            quote = current();
        } else if (current() == QLatin1Char('[')) {
            refusal = CXmlLimits::internalSubset();
            return;
        } else if (current() == QLatin1Char('>')) {
            break;
        }
    }
}

void CTagScanner::skipBehind(QLatin1String end)
{
    const auto found = mText.indexOf(end, mPosition);
    mPosition = int(found < 0 ? mText.size() : found + end.size());
}

void CTagScanner::skipSpace()
{
    while (!atEnd() && isSpace(current())) {
        ++mPosition;
    }
}

void CTagScanner::skipName()
{
    while (!atEnd() && !endsName(current())) {
        ++mPosition;
    }
}

void CTagScanner::countLines(int end)
{
    mLine += int(std::count(mText.begin() + mCounted, mText.begin() + end, QLatin1Char('\n')));
    mCounted = end;
}

bool CTagScanner::startsWith(QLatin1String start) const
{
    return QStringView(mText).mid(mPosition).startsWith(start);
}

QChar CTagScanner::current() const
{
    return mText.at(mPosition);
}

bool CTagScanner::atEnd() const
{
    return mPosition >= mText.size();
}
