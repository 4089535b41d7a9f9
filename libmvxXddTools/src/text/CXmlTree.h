#ifndef MVXXDDTOOLS_CXMLTREE_H
#define MVXXDDTOOLS_CXMLTREE_H

#include "remarks/CRemarks.h"
#include "text/Suppressions.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <vector>

class CXmlTree;

/** A range of characters in a text. */
struct SRange
{
    int begin = 0;
    int end = 0; ///< Behind the last character
};

/**
 * One element of a text, with its places in it. A small value that refers to the text, which has to outlive it.
 *
 * Names are local names, without their prefix. An element that is not there is a null element, which has no children,
 * no attributes and no text, so that a path of elements can be followed without a question at every step.
 */
class CXmlElement
{
public:
    /** A null element. */
    CXmlElement() = default;

    bool isNull() const { return mTree == nullptr; }
    QString name() const;
    bool is(QLatin1String name) const;
    /** The prefix with its colon, or nothing. */
    QString prefix() const;
    /** Where its start tag begins; no place for a null element. */
    SPlace place() const;
    operator SPlace() const { return place(); }
    /** Line of the start tag, from 1; 0 for a null element. */
    int line() const { return place().line; }
    /** Where an attribute comes from: in a text that was made from another one its own line there, else the start tag.
     */
    SPlace placeOf(QLatin1String attribute) const;

    CXmlElement parent() const;
    CXmlElement firstChild() const;
    CXmlElement lastChild() const;
    CXmlElement nextSibling() const;
    /** The first child with that name. */
    CXmlElement child(QLatin1String name) const;
    /** The child with that name, where it is the only one; else a null element. */
    CXmlElement onlyChild(QLatin1String name) const;
    /** Every child with that name. */
    std::vector<CXmlElement> children(QLatin1String name) const;

    bool has(QLatin1String attribute) const;
    /** The names of its attributes, in their order. */
    QStringList attributeNames() const;
    /** The value of an attribute with its references replaced; a null text when it is absent. */
    QString attribute(QLatin1String name) const;
    /** The characters between the tags with their references replaced, those of children included. */
    QString text() const;
    /** True when nothing but characters and references stands between the tags. */
    bool isPlain() const;

    /** The whole element, from the "<" of its start tag to behind its end tag. */
    SRange range() const;
    /** What stands between the tags. */
    SRange content() const;
    /** The value of an attribute that is there, without its quotes. */
    SRange valueRange(QLatin1String attribute) const;
    /** Behind the last attribute, or behind the name when there is none. */
    int attributesEnd() const;
    /** True for one tag that ends with "/>". */
    bool isEmptyTag() const;

    bool operator==(const CXmlElement& other) const { return mTree == other.mTree && mNode == other.mNode; }

private:
    friend class CXmlTree;
    CXmlElement(const CXmlTree* text, int node);
    CXmlElement at(int node) const { return node < 0 ? CXmlElement() : CXmlElement(mTree, node); }

    const CXmlTree* mTree = nullptr;
    int mNode = -1;
};

/** The elements of an XML text, found once. Does not change the text and knows nothing of its meaning. */
class CXmlTree
{
public:
    /**
     * Finds all elements of a text, up to the limits of CXmlLimits.
     *
     * @return false, with the reason and its place, when the text is not well-formed or goes beyond a limit
     */
    bool read(const QString& text, CXddRemark& failure);

    /** Finds all elements of a text that a writer of XML has made, each element and each attribute, in document order,
     * from that line of another text. Columns are not known then. Returns false, with the reason, beyond a limit. */
    bool readWritten(
        const QString& text, const std::vector<int>& lines, const std::vector<int>& attributeLines,
        CXddRemark& failure);

    /** The text itself. */
    const QString& text() const { return mText; }

    /** A piece of the text. */
    QString raw(SRange range) const { return mText.mid(range.begin, range.end - range.begin); }

    /** The root element. */
    CXmlElement root() const { return mNodes.empty() ? CXmlElement() : CXmlElement(this, 0); }

    /** Every element in document order. */
    std::vector<CXmlElement> all() const;

    /** The rules of the checker that comments switch off, in document order. */
    const std::vector<SSuppression>& suppressions() const { return mSuppressions; }

private:
    friend class CXmlElement;
    class CBuilder;

    struct SAttribute
    {
        SRange name;  // Without its prefix
        SRange value; // Without its quotes
        int line = 0; // In another text; 0 where it is that of the element
    };

    struct SNode
    {
        SRange name; // Without its prefix
        int begin = 0;
        int attributesEnd = 0;
        int contentBegin = 0;
        int contentEnd = 0;
        int end = 0;
        int line = 0;
        int column = 0;
        bool isEmptyTag = false;
        int firstAttribute = 0;
        int attributes = 0;
        int parent = -1;
        int children = 0;
        int firstChild = -1;
        int lastChild = -1;
        int nextSibling = -1;
    };

    // The first child with a name, and whether there is another.
    struct SNamedChild
    {
        int node = -1;
        bool isOnly = true;
    };

    void indexChildren();
    SNamedChild namedChild(int element, QLatin1String name) const;

    QStringView view(SRange range) const { return QStringView(mText).mid(range.begin, range.end - range.begin); }
    const SNode& node(int element) const;
    const SAttribute* attribute(int element, QLatin1String name) const;

    QString mText;
    std::vector<SNode> mNodes;
    std::vector<SAttribute> mAttributes;
    std::vector<SSuppression> mSuppressions;
    QHash<int, QHash<QString, SNamedChild>> mNamedChildren; // Of elements with many children
};

#endif
