#include "CRuleChoice.h"

#include <algorithm>

CRuleChoice::CRuleChoice(const SRules& rules)
    : mRules(rules)
{
    for (const CXddRule& rule : qAsConst(mRules.rules)) {
        mSeverities.insert(rule.mId, rule.mSeverity);
    }
}

bool CRuleChoice::isKnown(const QString& pattern) const
{
    return std::any_of(mRules.rules.begin(), mRules.rules.end(), [&pattern](const CXddRule& rule) {
        return CXddRule::isNamed(rule.mId, pattern);
    });
}

void CRuleChoice::only(const QStringList& patterns)
{
    mDisabled.clear();
    for (const CXddRule& rule : qAsConst(mRules.rules)) {
        const bool isNamed = std::any_of(patterns.begin(), patterns.end(), [&rule](const QString& pattern) {
            return CXddRule::isNamed(rule.mId, pattern);
        });
        if (!isNamed) {
            mDisabled << rule.mId;
        }
    }
}

void CRuleChoice::disable(const QString& pattern)
{
    for (const CXddRule& rule : qAsConst(mRules.rules)) {
        if (CXddRule::isNamed(rule.mId, pattern)) {
            mDisabled << rule.mId;
        }
    }
}

bool CRuleChoice::setSeverity(const QString& pattern, const QString& severity)
{
    const int known = int(mRules.severities.indexOf(severity));
    for (const CXddRule& rule : known < 0 ? QList<CXddRule>() : mRules.rules) {
        if (CXddRule::isNamed(rule.mId, pattern)) {
            mSeverities.insert(rule.mId, static_cast<CXddRemark::ESeverity>(known));
            mDisabled.remove(rule.mId);
        }
    }
    return known >= 0;
}

void CRuleChoice::raiseWarnings()
{
    for (CXddRemark::ESeverity& severity : mSeverities) {
        severity = severity == CXddRemark::SEVERITY_WARNING ? CXddRemark::SEVERITY_ERROR : severity;
    }
}

std::optional<CXddRemark::ESeverity> CRuleChoice::severity(const QString& rule) const
{
    return mDisabled.contains(rule) ? std::nullopt : std::make_optional(mSeverities.value(rule));
}
