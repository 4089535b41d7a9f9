#ifndef MVXXDDTOOLS_CXDDREMARK_H
#define MVXXDDTOOLS_CXDDREMARK_H

#include "CXddSentence.h"
#include "mvxXddTools_export.h"

#include <QString>

#include <optional>

/**
 * Something that is said about one place of a description: why it cannot be opened, what is wrong with it, what was
 * changed or left in a copy, or what another form of it cannot say.
 */
class MVXXDDTOOLS_EXPORT CXddRemark
{
public:
    /** What a remark says. */
    enum EKind : int
    {
        KIND_FAILURE = 0,   ///< The description cannot be opened or loaded
        KIND_FINDING = 1,   ///< Something is wrong with it
        KIND_CHANGE = 2,    ///< Something was supplied or is written in another way
        KIND_LEFT = 3,      ///< Something is unknown or ambiguous, and was left as it is or not taken
        KIND_LOSS = 4,      ///< What was written does not say something, or not all of it
        KIND_DIFFERENCE = 5 ///< Another description of the device says otherwise
    };

    /** How bad it is. */
    enum ESeverity : int
    {
        SEVERITY_NOTE = 0, ///< Worth knowing; for a change: what the format itself supplies or leaves open
        /** Probably not what was meant; for a change: the format writes it otherwise, and a meaning was found for it.
         */
        SEVERITY_WARNING = 1,
        SEVERITY_ERROR = 2 ///< A tool will misread or refuse the description
    };

    /** A failure at no place without a text. */
    CXddRemark();

    /** "note", "warning" or "error", the same in every language. */
    static QString severityAsStr(ESeverity severity);

    /** The object or sub-object that it is about, such as "0x1018" or "0x2001:0A"; nothing when it is about none or its
     * index is unreadable. */
    QString entry() const;

    /** What is said, behind the entry that it is about: "0x2001:0A: no access type is stated". In the language of the
     * program. */
    QString text() const;

    /** The same in English and without numbers of lines, which move; the same whatever catalogues are installed. */
    QString comparable() const;

    /** What remarks that are alike but for their entries and values have in common; the same in every language. */
    QString group() const;

    EKind mKind = KIND_FAILURE;            ///< What it says
    ESeverity mSeverity = SEVERITY_ERROR;  ///< How bad it is
    int mLine = 0;                         ///< Line of the file, from 1; 0 where it is about none
    int mColumn = 0;                       ///< Column in that line, from 1; 0 where none is known
    QString mRule;                         ///< ID of the rule, such as "limits-reversed"
    bool mIsEntry = false;                 ///< It is about an object or sub-object
    bool mIsSubObject = false;             ///< It is about a sub-object
    std::optional<unsigned int> mIndex;    ///< Index of the object that it is about, where that is readable
    std::optional<unsigned int> mSubIndex; ///< Sub-index of the sub-object that it is about, likewise
    CXddSentence mSentence;                ///< What is said, without the entry
    CXddSentence mReason;                  ///< Why, where that is not the same for the whole rule

private:
    QString address() const;
};

#endif
