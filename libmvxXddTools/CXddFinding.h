#ifndef MVXXDDTOOLS_CXDDFINDING_H
#define MVXXDDTOOLS_CXDDFINDING_H

#include "CXddRule.h"
#include "mvxXddTools_export.h"

#include <QString>

#include <optional>

/** One thing that is wrong with a description. */
class MVXXDDTOOLS_EXPORT CXddFinding
{
public:
    /** How bad it is. */
    enum ESeverity : int
    {
        SEVERITY_NOTE = 0,    ///< worth knowing
        SEVERITY_WARNING = 1, ///< probably not what was meant
        SEVERITY_ERROR = 2    ///< a tool will misread or refuse the description
    };

    CXddFinding();

    /** "note", "warning" or "error", the same in every language. */
    static QString severityAsStr(ESeverity severity);

    int mLine = 0;                         ///< line of the text, from 1
    ESeverity mSeverity = SEVERITY_NOTE;   ///< the severity of the rule
    QString mRule;                         ///< ID of the rule, such as "limits-reversed"
    std::optional<unsigned int> mIndex;    ///< index of the object that it is about
    std::optional<unsigned int> mSubIndex; ///< sub-index, where it is about a sub-object
    QString mText;                         ///< what is wrong, in the language of the program
};

/** A rule by which a description is checked. mReason says why it matters and what to do. */
class MVXXDDTOOLS_EXPORT CXddCheckRule : public CXddRule
{
public:
    CXddCheckRule();

    CXddFinding::ESeverity mSeverity = CXddFinding::SEVERITY_NOTE; ///< of its findings
};

#endif
