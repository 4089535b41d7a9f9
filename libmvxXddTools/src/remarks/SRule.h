#ifndef MVXXDDTOOLS_SRULE_H
#define MVXXDDTOOLS_SRULE_H

#include "CXddRule.h"
#include "remarks/CRemarks.h"

#include <QList>

#include <vector>

constexpr CXddRemark::ESeverity ERROR = CXddRemark::SEVERITY_ERROR;
constexpr CXddRemark::ESeverity WARNING = CXddRemark::SEVERITY_WARNING;
constexpr CXddRemark::ESeverity NOTE = CXddRemark::SEVERITY_NOTE;

/** A row of a table of rules: what a rule is called, what is said of it, and the function that applies it. Its texts
 * are in English, to be translated in the context "mvxXddTools". */
template <typename... Arguments> struct SRule
{
    const char* id; ///< Such as "limits-reversed"
    CXddRemark::ESeverity severity;
    const char* summary;         ///< When it applies, and what becomes of that
    const char* help;            ///< Why, and what to do
    void (*apply)(Arguments...); ///< Null for a rule that is applied elsewhere, while a file is read or with a PDO
    const char* wrong = ""; ///< Of a rule of the checker: a piece of a file that it finds; the same in every language
    const char* right = ""; ///< The same as it should be

    /** What the remarks of the rule have in common. */
    CXddRemark cause(CXddRemark::EKind kind) const
    {
        CXddRemark cause;
        cause.mKind = kind;
        cause.mSeverity = severity;
        cause.mRule = QString::fromLatin1(id);
        return cause;
    }
};

/** The rows of several tables, as they are shown. */
template <typename Rule> QList<CXddRule> shownRules(const std::vector<const std::vector<Rule>*>& tables)
{
    QList<CXddRule> rules;
    for (const std::vector<Rule>* const table : tables) {
        for (const Rule& row : *table) {
            CXddRule rule;
            rule.mId = QString::fromLatin1(row.id);
            rule.mSeverity = row.severity;
            rule.mSummary = CRemarks::tr(row.summary);
            rule.mReason = CRemarks::tr(row.help);
            rule.mWrong = QString::fromUtf8(row.wrong);
            rule.mRight = QString::fromUtf8(row.right);
            rules << rule;
        }
    }
    return rules;
}

#endif
