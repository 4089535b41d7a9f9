#include "CXddChecker.h"

#include "check/CCheckRules.h"
#include "check/Examples.h"
#include "face/SOpened.h"
#include "names/NFormatWords.h"

#include <QHash>
#include <QSet>

#include <algorithm>

using namespace NFormatWords;

namespace
{
std::vector<const CheckRules*> checkRuleTables()
{
    return {&CCheckRules::form(),   &CCheckRules::eds(),   &CCheckRules::identity(),
            &CCheckRules::object(), &CCheckRules::type(),  &CCheckRules::value(),
            &CCheckRules::pdo(),    &CCheckRules::cobId(), &CCheckRules::network()};
}

// What another rule finds in an entry because a key of it was not taken, which is said already.
QString consequenceOf(const CXddRemark& remark)
{
    const QString rule = remark.mRule == QLatin1String("access-word")  ? QStringLiteral("missing-access-type ")
                         : remark.mRule == QLatin1String("eds-number") ? QStringLiteral("missing-data-type ")
                                                                       : QString();
    return rule.isEmpty() || remark.mKind != CXddRemark::KIND_LEFT ? QString() : rule + remark.entry();
}

// What was found while a file was read is a finding where a rule of the table has its ID.
QSet<QString> addRead(const QList<CXddRemark>& remarks, CRemarks& findings)
{
    QHash<QString, CXddRemark::ESeverity> severities;
    for (const CheckRules* const table : checkRuleTables()) {
        for (const SCheckRule& rule : *table) {
            severities.insert(QLatin1String(rule.id), rule.severity);
        }
    }
    QSet<QString> consequences;
    for (CXddRemark remark : remarks) {
        consequences << consequenceOf(remark);
        if (severities.contains(remark.mRule)) {
            remark.mKind = CXddRemark::KIND_FINDING;
            remark.mSeverity = severities.value(remark.mRule);
            findings.add(remark);
        }
    }
    return consequences;
}

// Takes out the findings that comments hide. A comment that hides none is a finding itself.
QList<CXddRemark> withoutHidden(const QList<CXddRemark>& findings, const std::vector<SSuppression>& suppressions)
{
    QHash<int, std::vector<const SSuppression*>> byLine;
    for (const SSuppression& suppression : suppressions) {
        byLine[suppression.hidden].push_back(&suppression);
    }
    QSet<const SSuppression*> used;
    // A line can have many of both, so those of a rule are looked for once.
    QHash<QPair<int, QString>, bool> hidden;
    const auto isHidden = [&](const CXddRemark& finding) {
        const QPair<int, QString> key(finding.mLine, finding.mRule);
        if (!hidden.contains(key)) {
            bool isNamed = false;
            for (const SSuppression* const suppression : byLine.value(finding.mLine)) {
                if (CXddRule::isNamed(finding.mRule, suppression->rule)) {
                    isNamed = true;
                    used.insert(suppression);
                }
            }
            hidden.insert(key, isNamed);
        }
        return hidden.value(key);
    };
    CRemarks shown;
    for (const CXddRemark& finding : findings) {
        if (!isHidden(finding)) {
            shown.add(finding);
        }
    }
    for (const SSuppression& suppression : suppressions) {
        if (!used.contains(&suppression)) {
            CXddRemark cause;
            cause.mKind = CXddRemark::KIND_FINDING;
            cause.mSeverity = CXddRemark::SEVERITY_NOTE;
            cause.mRule = QStringLiteral("unused-suppression");
            shown.setCause(cause);
            shown.add(
                SPlace{suppression.line}, CRemarks::say("the comment hides nothing of the rule %1 in line %2"),
                {suppression.rule, suppression.hidden});
        }
    }
    return shown.inOrder();
}

// Other tools take a description without a typed body; those that follow the schema find nothing in it.
bool hasTypedBody(const CDescription& description, CXddRemark& failure)
{
    if (!description.bodiesOfType(VAL_DEVICE_BODY).empty() || !description.bodiesOfType(VAL_NETWORK_BODY).empty()) {
        return true;
    }
    failure.mRule = QStringLiteral("not-a-description");
    failure.mLine = description.root().line();
    failure.mColumn = description.root().place().column;
    failure.mSentence =
        CRemarks::filled(CRemarks::say("No ProfileBody is of the type %1 or %2."), {VAL_DEVICE_BODY, VAL_NETWORK_BODY});
    return false;
}
} // namespace

QList<CXddRemark> CXddChecker::check(const CXddDocument& document)
{
    CXddRemark failure = document.failure();
    if (!document.isOpen() || !hasTypedBody(openedOf(document).description, failure)) {
        failure.mKind = CXddRemark::KIND_FINDING;
        return {failure};
    }
    const SOpened& opened = openedOf(document);
    CRemarks findings;
    const QSet<QString> said = opened.remarks.isEmpty() ? QSet<QString>() : addRead(opened.remarks, findings);
    const bool isXml = opened.description.form() == EForm::Xdd;
    for (const CheckRules* const table : checkRuleTables()) {
        for (const SCheckRule& rule : *table) {
            const bool isAboutXml = table == &CCheckRules::form();
            if (rule.apply != nullptr && (isXml || !isAboutXml)) {
                findings.setCause(rule.cause(CXddRemark::KIND_FINDING));
                rule.apply(opened.description, findings);
            }
        }
    }
    QList<CXddRemark> found = findings.inOrder();
    if (!said.isEmpty()) {
        const auto isSaid = [&said](const CXddRemark& finding) {
            return said.contains(finding.mRule + QLatin1Char(' ') + finding.entry());
        };
        found.erase(std::remove_if(found.begin(), found.end(), isSaid), found.end());
    }
    return opened.suppressions.empty() ? found : withoutHidden(found, opened.suppressions);
}

QList<CXddRule> CXddChecker::rules()
{
    QList<CXddRule> rules = shownRules(checkRuleTables());
    for (CXddRule& rule : rules) {
        const SExample& example = exampleOf(rule.mId);
        rule.mWrong = QString::fromUtf8(example.wrong);
        rule.mRight = QString::fromUtf8(example.right);
    }
    return rules;
}
