#include "text/CXmlTree.h"

#include "CMarkupScanner.h"
#include "remarks/CRemarks.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <array>

namespace
{
// An element with more children has an index of them by their names.
constexpr int MAX_CHILDREN_TO_SEARCH = 32;

// An entity that XML predefines.
struct SEntity
{
    QLatin1String name;
    char character;
};
const std::array ENTITIES = {
    SEntity{QLatin1String("lt"), '<'},   SEntity{QLatin1String("gt"), '>'},    SEntity{QLatin1String("amp"), '&'},
    SEntity{QLatin1String("quot"), '"'}, SEntity{QLatin1String("apos"), '\''},
};

// The character of a reference without "&" and ";", or nothing for an entity that is not predefined.
QString referenced(QStringView name)
{
    if (name.startsWith(QLatin1Char('#'))) {
        const bool hexadecimal = name.mid(1).startsWith(QLatin1Char('x'));
        const char32_t code = name.mid(hexadecimal ? 2 : 1).toString().toUInt(nullptr, hexadecimal ? 16 : 10);
        return QString::fromUcs4(&code, 1);
    }
    const auto* const found =
        std::find_if(ENTITIES.begin(), ENTITIES.end(), [name](const SEntity& entity) { return name == entity.name; });
    return found == ENTITIES.end() ? QString() : QString(QLatin1Char(found->character));
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

CXmlElement::CXmlElement(const CXmlTree* text, int node)
    : mTree(text)
    , mNode(node)
{}

QString CXmlElement::name() const
{
    return isNull() ? QString() : mTree->raw(mTree->node(mNode).name);
}

bool CXmlElement::is(QLatin1String name) const
{
    return !isNull() && mTree->view(mTree->node(mNode).name) == name;
}

QString CXmlElement::prefix() const
{
    return isNull() ? QString() : mTree->raw({mTree->node(mNode).begin + 1, mTree->node(mNode).name.begin});
}

SPlace CXmlElement::place() const
{
    return isNull() ? SPlace() : SPlace{mTree->node(mNode).line, mTree->node(mNode).column};
}

SPlace CXmlElement::placeOf(QLatin1String attribute) const
{
    const CXmlTree::SAttribute* const found = isNull() ? nullptr : mTree->attribute(mNode, attribute);
    return found == nullptr || found->line == 0 ? place() : SPlace{found->line};
}

CXmlElement CXmlElement::parent() const
{
    return isNull() ? CXmlElement() : at(mTree->node(mNode).parent);
}

CXmlElement CXmlElement::firstChild() const
{
    return isNull() ? CXmlElement() : at(mTree->node(mNode).firstChild);
}

CXmlElement CXmlElement::lastChild() const
{
    return isNull() ? CXmlElement() : at(mTree->node(mNode).lastChild);
}

CXmlElement CXmlElement::nextSibling() const
{
    return isNull() ? CXmlElement() : at(mTree->node(mNode).nextSibling);
}

CXmlElement CXmlElement::child(QLatin1String name) const
{
    return isNull() ? CXmlElement() : at(mTree->namedChild(mNode, name).node);
}

CXmlElement CXmlElement::onlyChild(QLatin1String name) const
{
    const CXmlTree::SNamedChild found = isNull() ? CXmlTree::SNamedChild() : mTree->namedChild(mNode, name);
    return found.isOnly ? at(found.node) : CXmlElement();
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
    return !isNull() && mTree->attribute(mNode, attribute) != nullptr;
}

QStringList CXmlElement::attributeNames() const
{
    QStringList names;
    const CXmlTree::SNode none;
    const CXmlTree::SNode& node = isNull() ? none : mTree->node(mNode);
    for (int i = node.firstAttribute; i < node.firstAttribute + node.attributes; ++i) {
        names << mTree->raw(mTree->mAttributes[std::size_t(i)].name);
    }
    return names;
}

QString CXmlElement::attribute(QLatin1String name) const
{
    const CXmlTree::SAttribute* const found = isNull() ? nullptr : mTree->attribute(mNode, name);
    if (found == nullptr) {
        return QString();
    }
    const QString value = unescaped(mTree->view(found->value));
    return value.isNull() ? QStringLiteral("") : value;
}

QString CXmlElement::text() const
{
    return isNull() ? QString() : charactersOf(mTree->view(content()));
}

bool CXmlElement::isPlain() const
{
    return isNull() || !mTree->view(content()).contains(QLatin1Char('<'));
}

SRange CXmlElement::range() const
{
    return isNull() ? SRange() : SRange{mTree->node(mNode).begin, mTree->node(mNode).end};
}

SRange CXmlElement::content() const
{
    return isNull() ? SRange() : SRange{mTree->node(mNode).contentBegin, mTree->node(mNode).contentEnd};
}

SRange CXmlElement::valueRange(QLatin1String attribute) const
{
    const CXmlTree::SAttribute* const found = isNull() ? nullptr : mTree->attribute(mNode, attribute);
    return found == nullptr ? SRange() : found->value;
}

int CXmlElement::attributesEnd() const
{
    return isNull() ? 0 : mTree->node(mNode).attributesEnd;
}

bool CXmlElement::isEmptyTag() const
{
    return !isNull() && mTree->node(mNode).isEmptyTag;
}

// Links the elements of a text to each other while its markup is scanned.
class CXmlTree::CBuilder
{
public:
    using CScanner = CMarkupScanner<char16_t, CBuilder>;

    static constexpr bool WANTS_ATTRIBUTES = true;

    explicit CBuilder(CXmlTree& tree)
        : mTree(tree)
        , mCounted(tree.mText.constData())
        , mLineBegin(mCounted)
    {}

    CScanner scanner()
    {
        const auto* const begin = reinterpret_cast<const char16_t*>(mTree.mText.utf16());
        return {begin, begin + mTree.mText.size(), *this};
    }

    void startTag(qsizetype begin, SMarkupRange name)
    {
        const int number = int(mTree.mNodes.size());
        if (mOpen >= 0) {
            SNode& parent = mTree.mNodes[std::size_t(mOpen)];
            (parent.firstChild < 0 ? parent.firstChild : mTree.mNodes[std::size_t(parent.lastChild)].nextSibling) =
                number;
            parent.lastChild = number;
            ++parent.children;
        }
        mTree.mNodes.emplace_back();
        SNode& node = mTree.mNodes.back();
        countLines(begin);
        node.name = localName(name);
        node.begin = int(begin);
        node.line = mLine;
        node.column = columnHere();
        node.firstAttribute = int(mTree.mAttributes.size());
        node.parent = mOpen;
        mOpen = number;
    }

    void attribute(SMarkupRange name, SMarkupRange value)
    {
        mTree.mAttributes.push_back({localName(name), {int(value.begin), int(value.end)}, 0});
    }

    void startTagEnd(qsizetype attributesEnd, qsizetype end, bool isEmptyTag)
    {
        SNode& node = mTree.mNodes.back();
        node.attributes = int(mTree.mAttributes.size()) - node.firstAttribute;
        node.attributesEnd = int(attributesEnd);
        node.contentBegin = int(end);
        node.isEmptyTag = isEmptyTag;
        if (isEmptyTag) {
            close(int(end), int(end));
        }
    }

    void endTag(SMarkupRange tag)
    {
        if (mOpen >= 0) {
            const QStringView name =
                mTree.view({int(tag.begin) + 2, std::max(int(tag.end) - 1, int(tag.begin) + 2)}).trimmed();
            const SNode& open = mTree.node(mOpen);
            if (mMismatch.mSentence.isEmpty() && name != mTree.view({open.begin + 1, open.name.end})) {
                countLines(tag.begin);
                mMismatchEnd = tag.end;
                mMismatch.mLine = mLine;
                mMismatch.mColumn = columnHere();
                mMismatch.mSentence = CRemarks::filled(
                    CRemarks::say("</%1> does not match <%2> in line %3"),
                    {name.toString(), mTree.raw({open.begin + 1, open.name.end}), SArgument::line(open.line)});
            }
            close(int(tag.begin), int(tag.end));
        }
    }

    void comment(SMarkupRange comment)
    {
        constexpr int closing = 3; // "-->"
        const QStringView text = mTree.view({int(comment.begin), int(comment.end) - closing});
        const auto mark = suppressionsIn(text);
        if (mark >= 0) {
            countLines(comment.begin + mark);
            const int line = mLine;
            countLines(comment.end);
            addSuppressions(text.mid(mark), line, mLine + 1, mTree.mSuppressions);
        }
    }

    /** The first end tag of another element than the open one, if it ends up to that place. */
    bool hasMismatch(qsizetype end, CXddRemark& failure) const
    {
        const bool has = !mMismatch.mSentence.isEmpty() && mMismatchEnd <= end;
        if (has) {
            failure.mSentence = mMismatch.mSentence;
            failure.mLine = mMismatch.mLine;
            failure.mColumn = mMismatch.mColumn;
        }
        return has;
    }

private:
    void close(int contentEnd, int end)
    {
        SNode& node = mTree.mNodes[std::size_t(mOpen)];
        node.contentEnd = contentEnd;
        node.end = end;
        mOpen = node.parent;
    }

    SRange localName(SMarkupRange name) const
    {
        const SRange whole = {int(name.begin), int(name.end)};
        return {whole.begin + int(mTree.view(whole).indexOf(QLatin1Char(':'))) + 1, whole.end};
    }

    void countLines(qsizetype end)
    {
        const QChar* const last = mTree.mText.constData() + end;
        for (; mCounted != last; ++mCounted) {
            if (*mCounted == QLatin1Char('\n')) {
                ++mLine;
                mLineBegin = mCounted + 1;
            }
        }
    }

    int columnHere() const { return int(mCounted - mLineBegin) + 1; }

    CXmlTree& mTree;
    int mOpen = -1;          // The element that is open
    int mLine = 1;           // Of the place up to which lines are counted
    const QChar* mCounted;   // That place
    const QChar* mLineBegin; // The beginning of its line
    CXddRemark mMismatch;
    qsizetype mMismatchEnd = 0;
};

namespace
{
// Has Qt's reader check that a text is well-formed.
bool isWellFormed(QXmlStreamReader& reader)
{
    while (!reader.atEnd()) {
        reader.readNext();
    }
    return !reader.hasError();
}
} // namespace

bool CXmlTree::read(const QString& text, CXddRemark& failure)
{
    mText = text;
    CBuilder builder(*this);
    CBuilder::CScanner scanner = builder.scanner();
    const bool isInLimits = scanner.scan();
    // An error in front of a limit wins; the end that is then missing is where the text is refused.
    QXmlStreamReader reader(isInLimits ? mText : mText.left(int(scanner.sizeInFront())));
    const bool isWhole = isWellFormed(reader);
    if (isWhole && isInLimits) {
        indexChildren();
        return true;
    }
    if (isWhole || (!isInLimits && reader.error() == QXmlStreamReader::PrematureEndOfDocumentError)) {
        failure.mSentence = CXddSentence(scanner.refusal());
        failure.mLine = scanner.line();
        failure.mColumn = scanner.column();
    } else if (!builder.hasMismatch(reader.characterOffset(), failure)) {
        failure.mSentence = CXddSentence(reader.errorString());
        failure.mLine = int(reader.lineNumber());
        failure.mColumn = int(reader.columnNumber());
    }
    return false;
}

bool CXmlTree::readWritten(
    const QString& text, const std::vector<int>& lines, const std::vector<int>& attributeLines, CXddRemark& failure)
{
    mText = text;
    CBuilder builder(*this);
    CBuilder::CScanner scanner = builder.scanner();
    if (!scanner.scan()) {
        failure.mSentence = CXddSentence(scanner.refusal());
        return false;
    }
    for (std::size_t element = 0; element < mNodes.size(); ++element) {
        mNodes[element].line = lines.at(element);
        mNodes[element].column = 0;
    }
    for (std::size_t attribute = 0; attribute < mAttributes.size(); ++attribute) {
        mAttributes[attribute].line = attributeLines.at(attribute);
    }
    indexChildren();
    return true;
}

// Every entry may ask one element for its children by their names.
void CXmlTree::indexChildren()
{
    for (int element = 0; element < int(mNodes.size()); ++element) {
        if (node(element).children <= MAX_CHILDREN_TO_SEARCH) {
            continue;
        }
        QHash<QString, SNamedChild>& named = mNamedChildren[element];
        for (int child = node(element).firstChild; child >= 0; child = node(child).nextSibling) {
            SNamedChild& found = named[raw(node(child).name)];
            found.isOnly = found.node < 0;
            found.node = found.isOnly ? child : found.node;
        }
    }
}

CXmlTree::SNamedChild CXmlTree::namedChild(int element, QLatin1String name) const
{
    const auto indexed = mNamedChildren.constFind(element);
    if (indexed != mNamedChildren.constEnd()) {
        return indexed->value(name);
    }
    SNamedChild found;
    for (int child = node(element).firstChild; child >= 0; child = node(child).nextSibling) {
        if (view(node(child).name) == name) {
            found.isOnly = found.node < 0;
            found.node = found.isOnly ? child : found.node;
            if (!found.isOnly) {
                break;
            }
        }
    }
    return found;
}

std::vector<CXmlElement> CXmlTree::all() const
{
    std::vector<CXmlElement> elements;
    elements.reserve(mNodes.size());
    for (int element = 0; element < int(mNodes.size()); ++element) {
        elements.push_back({this, element});
    }
    return elements;
}

const CXmlTree::SNode& CXmlTree::node(int element) const
{
    return mNodes[std::size_t(element)];
}

const CXmlTree::SAttribute* CXmlTree::attribute(int element, QLatin1String name) const
{
    const auto begin = mAttributes.begin() + node(element).firstAttribute;
    const auto end = begin + node(element).attributes;
    const auto found =
        std::find_if(begin, end, [&](const SAttribute& attribute) { return view(attribute.name) == name; });
    return found == end ? nullptr : &*found;
}
