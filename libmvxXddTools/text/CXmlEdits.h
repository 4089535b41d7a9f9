#ifndef MVXXDDTOOLS_CXMLEDITS_H
#define MVXXDDTOOLS_CXMLEDITS_H

#include "CXddChange.h"
#include "text/CXmlText.h"

#include <QList>

#include <utility>
#include <vector>

/** An element that is to be added. */
struct SNewElement
{
    QString name;
    QString attribute; ///< Its only attribute as written, or nothing
    QString content;   ///< Its text, where it has no children
    std::vector<SNewElement> children = {};
};

/** An element with nothing but one child. */
SNewElement around(const QString& name, const SNewElement& child);

/**
 * Changes of a text. Every call changes the text and records the change, or records that a place was left, so that the
 * two cannot come apart. All calls see the text as it was; what one has supplied is not there for the next.
 */
class CXmlEdits
{
public:
    /** How added elements are laid out. */
    enum class ELayout
    {
        Indented, ///< On lines of their own, as their surroundings are
        InLine    ///< Without a line end, so that every element stays on its line
    };

    /** An attribute and its value. */
    using Attribute = std::pair<QLatin1String, QString>;

    CXmlEdits(const CXmlText& text, ELayout layout);

    /** What the changes that follow have in common: their rule, its reason, and whether they matter to a reader. */
    void setCause(const QString& rule, const QString& reason, bool matters);

    /** Adds an attribute that is absent; with @p named the record says which element it belongs to. */
    void supply(const CXmlElement& element, QLatin1String attribute, const QString& value, bool named = false);
    /** Adds attributes that are absent, as one change. */
    void supply(const CXmlElement& element, const std::vector<Attribute>& attributes);
    /** Gives an element without content its text. */
    void supplyText(const CXmlElement& element, const QString& text);
    /** Adds children at the end of an element, or in front of one of its children. */
    void supplyChildren(
        const CXmlElement& parent, const std::vector<SNewElement>& children, const CXmlElement& before = CXmlElement());
    /** Adds those of the children that an element lacks, each in front of the next one that is there. */
    void supplyMissing(const CXmlElement& parent, const std::vector<SNewElement>& required);

    /** Writes the same value of an attribute in another form. */
    void rewrite(const CXmlElement& element, QLatin1String attribute, const QString& value);
    /** Writes the same text of an element in another form. */
    void rewriteText(const CXmlElement& element, const QString& text);
    /** Turns an element into a comment. */
    void turnIntoComment(const CXmlElement& element);

    /** Records that an attribute is neither understood nor changed. */
    void leave(const CXmlElement& element, QLatin1String attribute);

    /** True as long as nothing is changed. */
    bool isEmpty() const;

    /** The changed text; equal to the original when there was nothing to do. */
    QString result() const;

    /** What was done and what was left, in the order of the text. */
    QList<CXddChange> changes() const;

private:
    struct SEdit
    {
        SRange range;
        QString text;
    };

    void record(const CXmlElement& element, const QString& what);
    void replace(SRange range, const QString& text);
    void setAttribute(const CXmlElement& element, QLatin1String name, const QString& value);
    QString indentOf(const CXmlElement& element) const;
    QString xml(const SNewElement& element, const QString& prefix, const QString& lineStart, const QString& unit) const;

    const CXmlText& mText;
    ELayout mLayout;
    QString mNewline;
    CXddChange mCause; // What changes have in common
    std::vector<SEdit> mEdits;
    QList<CXddChange> mChanges;
};

#endif
