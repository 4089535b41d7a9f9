#include "CRuleChoice.h"

#include <CXddChecker.h>

#include <algorithm>

CRuleChoice::CRuleChoice()
    : mRules(CXddChecker::rules())
{
    for (const CXddRule& rule : qAsConst(mRules)) {
        mSeverities.insert(rule.mId, rule.mSeverity);
    }
}

bool CRuleChoice::isKnown(const QString& pattern) const
{
    return std::any_of(mRules.begin(), mRules.end(), [&pattern](const CXddRule& rule) {
        return CXddRule::isNamed(rule.mId, pattern);
    });
}

void CRuleChoice::only(const QStringList& patterns)
{
    for (const CXddRule& rule : qAsConst(mRules)) {
        const bool isNamed = std::any_of(patterns.begin(), patterns.end(), [&rule](const QString& pattern) {
            return CXddRule::isNamed(rule.mId, pattern);
        });
        if (!isNamed) {
            mSeverities.remove(rule.mId);
        }
    }
}

void CRuleChoice::disable(const QString& pattern)
{
    for (const CXddRule& rule : qAsConst(mRules)) {
        if (CXddRule::isNamed(rule.mId, pattern)) {
            mSeverities.remove(rule.mId);
        }
    }
}

bool CRuleChoice::setSeverity(const QString& pattern, const QString& severity)
{
    for (const CXddRemark::ESeverity known :
         {CXddRemark::SEVERITY_NOTE, CXddRemark::SEVERITY_WARNING, CXddRemark::SEVERITY_ERROR}) {
        if (CXddRemark::severityAsStr(known) != severity) {
            continue;
        }
        for (const CXddRule& rule : qAsConst(mRules)) {
            if (CXddRule::isNamed(rule.mId, pattern) && mSeverities.contains(rule.mId)) {
                mSeverities.insert(rule.mId, known);
            }
        }
        return true;
    }
    return false;
}

void CRuleChoice::raiseWarnings()
{
    for (CXddRemark::ESeverity& severity : mSeverities) {
        severity = severity == CXddRemark::SEVERITY_WARNING ? CXddRemark::SEVERITY_ERROR : severity;
    }
}

std::optional<CXddRemark::ESeverity> CRuleChoice::severity(const QString& rule) const
{
    const auto found = mSeverities.constFind(rule);
    return found == mSeverities.constEnd() ? std::nullopt : std::make_optional(*found);
}

QList<CXddRemark> CRuleChoice::chosen(const QList<CXddRemark>& findings) const
{
    QList<CXddRemark> chosen;
    for (CXddRemark finding : findings) {
        const std::optional<CXddRemark::ESeverity> severityOfRule = severity(finding.mRule);
        if (severityOfRule) {
            finding.mSeverity = *severityOfRule;
            chosen << finding;
        }
    }
    return chosen;
}
