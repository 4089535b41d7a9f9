#include "CXddChecker.h"

#include "canopen/PdoDoubts.h"
#include "check/CCheckRules.h"
#include "face/SOpened.h"
#include "names/NFormatWords.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>

using namespace NFormatWords;

namespace
{
std::vector<const CheckRules*> checkRuleTables()
{
    return {&CCheckRules::form(),   &CCheckRules::eds(),   &CCheckRules::identity(),
            &CCheckRules::object(), &CCheckRules::type(),  &CCheckRules::value(),
            &CCheckRules::pdo(),    &CCheckRules::cobId(), &CCheckRules::network()};
}

// What follows from a key of an EDS that was not taken, which is said already.
struct SConsequence
{
    QLatin1String cause;
    QLatin1String rule;
};
const std::array CONSEQUENCES = {
    SConsequence{QLatin1String("access-word"), QLatin1String("missing-access-type")},
    SConsequence{QLatin1String("eds-number"), QLatin1String("missing-data-type")},
};

// Takes out what only follows from something else that is reported.
void takeOutConsequences(const QList<CXddRemark>& read, const QSet<QString>& disabled, QList<CXddRemark>& findings)
{
    QSet<QString> said; // Rules and entries
    for (const CXddRemark& remark : read) {
        for (const SConsequence& row : CONSEQUENCES) {
            if (remark.mRule == row.cause && remark.mKind == CXddRemark::KIND_LEFT && !disabled.contains(row.cause)) {
                said << row.rule + remark.entry();
            }
        }
    }
    const auto isSaid = [&said](const CXddRemark& finding) {
        return said.contains(finding.mRule + finding.entry());
    };
    if (!said.isEmpty()) {
        findings.erase(std::remove_if(findings.begin(), findings.end(), isSaid), findings.end());
    }
}

// Takes out the findings that comments hide. A comment that hides none is a finding itself.
QList<CXddRemark> withoutHidden(
    const QList<CXddRemark>& findings, const std::vector<SSuppression>& suppressions, const QSet<QString>& disabled)
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
        const bool isOfDisabled = std::any_of(disabled.begin(), disabled.end(), [&suppression](const QString& rule) {
            return CXddRule::isNamed(rule, suppression.rule);
        });
        if (!used.contains(&suppression) && !isOfDisabled) {
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

QList<CXddRemark> CXddChecker::check(const CXddDocument& document, const QStringList& disabledRules)
{
    CXddRemark failure = document.failure();
    const SOpened* const found = openedOf(document);
    if (found == nullptr || !hasTypedBody(found->description, failure)) {
        failure.mKind = CXddRemark::KIND_FINDING;
        return {failure};
    }
    const SOpened& opened = *found;
    const CDescription& description = opened.description;
    const QSet<QString> disabled(disabledRules.begin(), disabledRules.end());
    // What was found elsewhere: while the file was read, and with its PDOs.
    CRemarks others;
    for (const SPdo& pdo : description.pdos()) {
        addDoubts(pdo, description.dictionary(), description.commissioning().mNodeId, others);
    }
    QHash<QString, QList<CXddRemark>> ofRules;
    for (const CXddRemark& remark : opened.remarks + others.inOrder()) {
        ofRules[remark.mRule] << remark;
    }
    CRemarks findings;
    for (const CheckRules* const table : checkRuleTables()) {
        for (const SCheckRule& rule : *table) {
            if (disabled.contains(QLatin1String(rule.id))) {
                continue;
            }
            const CXddRemark cause = rule.cause(CXddRemark::KIND_FINDING);
            findings.setCause(cause);
            for (CXddRemark& remark : ofRules[cause.mRule]) {
                remark.mKind = cause.mKind;
                remark.mSeverity = cause.mSeverity;
                findings.add(remark);
            }
            const bool isAboutXml = table == &CCheckRules::form();
            if (rule.apply != nullptr && (description.isXdd() || !isAboutXml)) {
                rule.apply(description, findings);
            }
        }
    }
    QList<CXddRemark> all = findings.inOrder();
    takeOutConsequences(opened.remarks, disabled, all);
    return opened.suppressions.empty() ? all : withoutHidden(all, opened.suppressions, disabled);
}

QList<CXddRule> CXddChecker::rules()
{
    return shownRules(checkRuleTables());
}
