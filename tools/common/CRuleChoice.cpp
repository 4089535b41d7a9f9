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
    mDisabled.clear();
    for (const CXddRule& rule : qAsConst(mRules)) {
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
    for (const CXddRule& rule : qAsConst(mRules)) {
        if (CXddRule::isNamed(rule.mId, pattern)) {
            mDisabled << rule.mId;
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
            if (CXddRule::isNamed(rule.mId, pattern)) {
                mSeverities.insert(rule.mId, known);
                mDisabled.remove(rule.mId);
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
    return mDisabled.contains(rule) ? std::nullopt : std::make_optional(mSeverities.value(rule));
}

QList<CXddRemark> CRuleChoice::chosen(QList<CXddRemark> findings) const
{
    for (CXddRemark& finding : findings) {
        finding.mSeverity = mSeverities.value(finding.mRule);
    }
    return findings;
}
