#ifndef MVXXDDTOOLS_CXMLEDITS_H
#define MVXXDDTOOLS_CXMLEDITS_H

#include "canopen/CDictionary.h"
#include "remarks/SRule.h"
#include "text/CXmlTree.h"

#include <QPair>
#include <QSet>

#include <optional>
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

/** An element that is changed, and what remarks about it name. */
struct SEdited
{
    SEdited(const CXmlElement& edited); // NOLINT(google-explicit-constructor)
    SEdited(const SEntry& entry);       // NOLINT(google-explicit-constructor)

    CXmlElement element;
    SPlace place;
};

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

    CXmlEdits(const CXmlTree& tree, ELayout layout);

    /** Makes only the changes that findings ask for: of their rules, in their lines. */
    void limitTo(const QList<CXddRemark>& findings);
    /** False for a place at which the changes of the present rule are not to be made. */
    bool isWanted(const SPlace& place) const;

    /** The rule whose changes follow. */
    template <typename Rule> void setCause(const Rule& rule)
    {
        CXddRemark cause = rule.cause(CXddRemark::KIND_CHANGE);
        cause.mReason = CRemarks::filled({rule.help});
        mRemarks.setCause(cause);
    }

    /** Adds an attribute that is absent; the record says which element it belongs to. */
    void supply(const CXmlElement& element, QLatin1String attribute, const QString& value);
    /** Adds attributes that are absent or empty, as one change. */
    void supply(const SEdited& edited, const std::vector<Attribute>& attributes);
    /** Gives an element without content its text. */
    void supplyText(const CXmlElement& element, const QString& text);
    /** Adds children at the end of an element, or in front of one of its children. */
    void supplyChildren(
        const CXmlElement& parent, const std::vector<SNewElement>& children, const CXmlElement& before = CXmlElement());
    /** Adds those of the children that an element lacks, each in front of the next one that is there. */
    void supplyMissing(const CXmlElement& parent, const std::vector<SNewElement>& required);

    /** Writes the same value of an attribute in another form. */
    void rewrite(const SEdited& edited, QLatin1String attribute, const QString& value);
    /** Writes the same text of an element in another form. */
    void rewriteText(const CXmlElement& element, const QString& text);
    /** Turns an element into a comment. */
    void turnIntoComment(const CXmlElement& element);

    /** Records that an attribute is neither understood nor changed. */
    void leave(const SEdited& edited, QLatin1String attribute);

    /** From now on changes are recorded, but not made. */
    void onlyRecord();
    /** Takes an element out, as a comment, because of what the sentence says of it. */
    void takeOut(const SEdited& edited, const SWords& words, CRemarks::Arguments arguments = {});
    /** Takes an element out because an attribute of it has no meaning. */
    void takeOutUnknown(const SEdited& edited, QLatin1String attribute);
    /** Writes something readable in place of an attribute that has no meaning. */
    void replaceUnknown(const SEdited& edited, QLatin1String attribute, const QString& value);

    /** True as long as nothing is changed. */
    bool isEmpty() const { return mEdits.empty(); }
    /** True when everything was recorded and made, or there was nothing to make since onlyRecord(). */
    bool isComplete() const { return mIsComplete; }

    /** The changed text; equal to the original when there was nothing to do. */
    QString result() const;

    /** What was done and what was left, in the order of the text. */
    QList<CXddRemark> remarks() const { return mRemarks.inOrder(); }

private:
    struct SEdit
    {
        SRange range;
        QString text;
    };

    SWords unreadableReason() const;
    void remarkUnknown(const SEdited& edited, QLatin1String attribute);
    void remarkLeft(const SEdited& edited, const SWords& reason, const SWords& words, CRemarks::Arguments arguments);
    void replace(SRange range, const QString& text);
    void setAttribute(const CXmlElement& element, QLatin1String name, const QString& value);
    void comment(const CXmlElement& element);
    QString indentOf(const CXmlElement& element) const;
    QString xml(const SNewElement& element, const QString& prefix, const QString& lineStart, const QString& unit) const;

    const CXmlTree& mTree;
    ELayout mLayout;
    QString mNewline;
    std::optional<QSet<QPair<QString, int>>> mWanted; // Rules and lines; nothing for all of them
    bool mIsOnlyRecorded = false;
    bool mIsComplete = true;
    std::vector<SEdit> mEdits;
    QSet<int> mLeft; // Where attributes stand that were left
    CRemarks mRemarks;
};

#endif
