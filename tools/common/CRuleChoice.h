#ifndef XDDCHECK_CRULECHOICE_H
#define XDDCHECK_CRULECHOICE_H

#include <CXddRule.h>

#include <QHash>
#include <QList>
#include <QSet>
#include <QStringList>

#include <optional>

/** Which rules are applied to a file, and how severe their findings are. What is said later holds. */
class CRuleChoice
{
public:
    /** All rules as they are. */
    CRuleChoice();

    /** True when a pattern names a rule. */
    bool isKnown(const QString& pattern) const;

    /** Applies only the rules that patterns name. */
    void only(const QStringList& patterns);
    /** Does not apply the rules that a pattern names. */
    void disable(const QString& pattern);
    /** Applies the rules that a pattern names, their findings with a severity: "error", "warning" or "note". Returns
     * false for another word. */
    bool setSeverity(const QString& pattern, const QString& severity);
    /** Makes every warning an error. */
    void raiseWarnings();

    /** The severity of the findings of a rule; nothing where it is not applied. */
    std::optional<CXddRemark::ESeverity> severity(const QString& rule) const;

    /** The rules that are not applied. */
    QStringList disabled() const { return mDisabled.values(); }

    /** What a check without the disabled rules found, with the severities that were chosen. */
    QList<CXddRemark> chosen(QList<CXddRemark> findings) const;

    /** All rules, as the checker has them. */
    const QList<CXddRule>& rules() const { return mRules; }

private:
    QList<CXddRule> mRules;
    QHash<QString, CXddRemark::ESeverity> mSeverities;
    QSet<QString> mDisabled;
};

#endif
