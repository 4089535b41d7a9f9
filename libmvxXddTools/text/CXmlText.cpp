#include "text/CXmlText.h"

#include "CXmlLimits.h"
#include "text/CTagScanner.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace
{
// The character of a reference without "&" and ";", or nothing for an entity that is not predefined.
QString referenced(QStringView name)
{
    if (name.startsWith(QLatin1Char('#'))) {
        const bool hexadecimal = name.mid(1).startsWith(QLatin1Char('x'));
        const char32_t code = name.mid(hexadecimal ? 2 : 1).toString().toUInt(nullptr, hexadecimal ? 16 : 10);
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

// A raw piece of text with references to characters and to the five predefined entities replaced.
QString unescaped(QStringView raw)
{
    QString value;
    while (!raw.isEmpty()) {
        const auto begin = raw.indexOf(QLatin1Char('&'));
        const auto end = begin < 0 ? begin : raw.indexOf(QLatin1Char(';'), begin);
        if (end < 0) {
            break;
        }
        value += raw.left(begin).toString() + referenced(raw.mid(begin + 1, end - begin - 1));
        raw = raw.mid(end + 1);
    }
    return value + raw.toString();
}

// The part of a piece that begins with "<" up to behind the text that ends it.
QStringView markup(QStringView raw, QLatin1String end)
{
    const auto found = raw.indexOf(end);
    return found < 0 ? raw : raw.left(found + end.size());
}

// The characters of a piece with tags, comments and processing instructions left out.
QString charactersOf(QStringView raw)
{
    const QLatin1String cdata("<![CDATA[");
    QString text;
    while (!raw.isEmpty()) {
        const auto begin = raw.indexOf(QLatin1Char('<'));
        if (begin < 0) {
            return text + unescaped(raw);
        }
        text += unescaped(raw.left(begin));
        raw = raw.mid(begin);
        QStringView skipped = markup(raw, QLatin1String(">"));
        if (raw.startsWith(QLatin1String("<!--"))) {
            skipped = markup(raw, QLatin1String("-->"));
        } else if (raw.startsWith(QLatin1String("<?"))) {
            skipped = markup(raw, QLatin1String("?>"));
        } else if (raw.startsWith(cdata)) {
            skipped = markup(raw, QLatin1String("]]>"));
            text += skipped.mid(cdata.size()).chopped(3).toString();
        }
        raw = raw.mid(skipped.size());
    }
    return text;
}
} // namespace

CXmlElement::CXmlElement(const CXmlText* text, int node)
    : mText(text)
    , mNode(node)
{}

CXmlElement CXmlElement::at(int node) const
{
    return node < 0 ? CXmlElement() : CXmlElement(mText, node);
}

bool CXmlElement::isNull() const
{
    return mText == nullptr;
}

QString CXmlElement::name() const
{
    return isNull() ? QString() : mText->raw(mText->node(mNode).name);
}

bool CXmlElement::is(QLatin1String name) const
{
    return !isNull() && mText->view(mText->node(mNode).name) == name;
}

QString CXmlElement::prefix() const
{
    return isNull() ? QString() : mText->raw({mText->node(mNode).begin + 1, mText->node(mNode).name.begin});
}

int CXmlElement::line() const
{
    return isNull() ? 0 : mText->node(mNode).line;
}

CXmlElement CXmlElement::parent() const
{
    return isNull() ? CXmlElement() : at(mText->node(mNode).parent);
}

CXmlElement CXmlElement::firstChild() const
{
    return isNull() ? CXmlElement() : at(mText->node(mNode).firstChild);
}

CXmlElement CXmlElement::lastChild() const
{
    return isNull() ? CXmlElement() : at(mText->node(mNode).lastChild);
}

CXmlElement CXmlElement::nextSibling() const
{
    return isNull() ? CXmlElement() : at(mText->node(mNode).nextSibling);
}

CXmlElement CXmlElement::child(QLatin1String name) const
{
    CXmlElement found = firstChild();
    while (!found.isNull() && !found.is(name)) {
        found = found.nextSibling();
    }
    return found;
}

std::vector<CXmlElement> CXmlElement::children(QLatin1String name) const
{
    std::vector<CXmlElement> found;
    for (CXmlElement element = firstChild(); !element.isNull(); element = element.nextSibling()) {
        if (element.is(name)) {
            found.push_back(element);
        }
    }
    return found;
}

bool CXmlElement::has(QLatin1String attribute) const
{
    return !isNull() && mText->attribute(mNode, attribute) != nullptr;
}

QString CXmlElement::attribute(QLatin1String name) const
{
    const CXmlText::SAttribute* const found = isNull() ? nullptr : mText->attribute(mNode, name);
    if (found == nullptr) {
        return QString();
    }
    const QString value = unescaped(mText->view(found->value));
    return value.isNull() ? QStringLiteral("") : value;
}

QString CXmlElement::text() const
{
    return isNull() ? QString() : charactersOf(mText->view(content()));
}

bool CXmlElement::isPlain() const
{
    return isNull() || !mText->view(content()).contains(QLatin1Char('<'));
}

SRange CXmlElement::range() const
{
    return isNull() ? SRange() : SRange{mText->node(mNode).begin, mText->node(mNode).end};
}

SRange CXmlElement::content() const
{
    return isNull() ? SRange() : SRange{mText->node(mNode).contentBegin, mText->node(mNode).contentEnd};
}

SRange CXmlElement::valueRange(QLatin1String attribute) const
{
    const CXmlText::SAttribute* const found = isNull() ? nullptr : mText->attribute(mNode, attribute);
    return found == nullptr ? SRange() : found->value;
}

int CXmlElement::attributesEnd() const
{
    return isNull() ? 0 : mText->node(mNode).attributesEnd;
}

bool CXmlElement::isEmptyTag() const
{
    return !isNull() && mText->node(mNode).isEmptyTag;
}

bool CXmlElement::operator==(const CXmlElement& other) const
{
    return mText == other.mText && mNode == other.mNode;
}

bool CXmlText::read(const QString& text, SError& error)
{
    mText = text;
    mNodes.clear();
    mAttributes.clear();
    return CTagScanner(*this).scan(error) && readStructure(error);
}

// Has Qt's reader check that the text is well-formed, and links the elements to each other on the way.
bool CXmlText::readStructure(SError& error)
{
    QXmlStreamReader reader(mText);
    int open = -1;
    int next = 0;
    int depth = 0;
    int namespaces = 0;
    QString refusal;
    while (!reader.atEnd() && refusal.isEmpty()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement && next < int(mNodes.size())) {
            SNode& opened = mNodes[std::size_t(next)];
            namespaces += opened.namespaces;
            refusal = ++depth > CXmlLimits::MAX_DEPTH           ? CXmlLimits::tooDeep()
                      : namespaces > CXmlLimits::MAX_NAMESPACES ? CXmlLimits::tooManyNamespaces()
                                                                : QString();
            opened.parent = open;
            if (open >= 0) {
                SNode& parent = mNodes[std::size_t(open)];
                (parent.firstChild < 0 ? parent.firstChild : mNodes[std::size_t(parent.lastChild)].nextSibling) = next;
                parent.lastChild = next;
            }
            open = next++;
        } else if (token == QXmlStreamReader::EndElement && open >= 0) {
            --depth;
            namespaces -= node(open).namespaces;
            close(open, int(reader.characterOffset()));
            open = node(open).parent;
        }
    }
    if (refusal.isEmpty() && !reader.hasError()) {
        return true;
    }
    error = {refusal.isEmpty() ? reader.errorString() : refusal, int(reader.lineNumber()), int(reader.columnNumber())};
    return false;
}

void CXmlText::close(int element, int end)
{
    SNode& closed = mNodes[std::size_t(element)];
    closed.end = end;
    closed.contentEnd = closed.isEmptyTag ? end : int(mText.lastIndexOf(QLatin1Char('<'), end - 1));
}

const QString& CXmlText::text() const
{
    return mText;
}

QString CXmlText::raw(SRange range) const
{
    return mText.mid(range.begin, range.end - range.begin);
}

QStringView CXmlText::view(SRange range) const
{
    return QStringView(mText).mid(range.begin, range.end - range.begin);
}

CXmlElement CXmlText::root() const
{
    return mNodes.empty() ? CXmlElement() : CXmlElement(this, 0);
}

std::vector<CXmlElement> CXmlText::all() const
{
    std::vector<CXmlElement> elements;
    elements.reserve(mNodes.size());
    for (int element = 0; element < int(mNodes.size()); ++element) {
        elements.push_back({this, element});
    }
    return elements;
}

const CXmlText::SNode& CXmlText::node(int element) const
{
    return mNodes[std::size_t(element)];
}

const CXmlText::SAttribute* CXmlText::attribute(int element, QLatin1String name) const
{
    const auto begin = mAttributes.begin() + node(element).firstAttribute;
    const auto end = begin + node(element).attributes;
    const auto found =
        std::find_if(begin, end, [&](const SAttribute& attribute) { return view(attribute.name) == name; });
    return found == end ? nullptr : &*found;
}
