#ifndef TOOLS_CRULECHOICE_H
#define TOOLS_CRULECHOICE_H

#include <CXddRule.h>

#include <QHash>
#include <QList>
#include <QSet>
#include <QStringList>

#include <optional>

/** The rules of a tool, and what it calls them. */
struct SRules
{
    QList<CXddRule> rules;
    QStringList severities; ///< The words for the values of CXddRemark::ESeverity
    QString wrong;          ///< What stands in front of the example of what a rule finds
    QString right;          ///< And in front of that of what it does not
};

/** Which rules are applied to a file, and how severe their findings are. What is said later holds. */
class CRuleChoice
{
public:
    /** All rules as they are. */
    explicit CRuleChoice(const SRules& rules);

    /** True when a pattern names a rule. */
    bool isKnown(const QString& pattern) const;

    /** Applies only the rules that patterns name. */
    void only(const QStringList& patterns);
    /** Does not apply the rules that a pattern names. */
    void disable(const QString& pattern);
    /** Applies the rules that a pattern names, their findings with a severity, such as "warning". Returns false
     * for a word that is none. */
    bool setSeverity(const QString& pattern, const QString& severity);
    /** Makes every warning an error. */
    void raiseWarnings();

    /** The severity of the findings of a rule; nothing where it is not applied. */
    std::optional<CXddRemark::ESeverity> severity(const QString& rule) const;

    /** The rules that are not applied. */
    QStringList disabled() const { return mDisabled.values(); }

    /** What was found with rules that are applied, with the severities that were chosen. */
    template <typename Remark> QList<Remark> chosen(const QList<Remark>& findings) const
    {
        QList<Remark> chosen;
        for (Remark finding : findings) {
            if (!mDisabled.contains(finding.mRule)) {
                finding.mSeverity = mSeverities.value(finding.mRule);
                chosen << finding;
            }
        }
        return chosen;
    }

    /** All rules, as the tool has them. */
    const SRules& rules() const { return mRules; }

private:
    SRules mRules;
    QHash<QString, CXddRemark::ESeverity> mSeverities;
    QSet<QString> mDisabled;
};

#endif
