#include "CXddChecker.h"

#include "SOpened.h"
#include "canopen/NFormatWords.h"
#include "check/CCheckRules.h"

using namespace NFormatWords;

namespace
{
std::vector<const CheckRules*> checkRuleTables()
{
    return {&CCheckRules::form(),  &CCheckRules::identity(), &CCheckRules::object(), &CCheckRules::type(),
            &CCheckRules::value(), &CCheckRules::pdo(),      &CCheckRules::cobId(),  &CCheckRules::network()};
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
    failure.mText =
        CRemarks::filled(CRemarks::tr("No ProfileBody is of the type %1 or %2."), {VAL_DEVICE_BODY, VAL_NETWORK_BODY});
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
    CRemarks findings;
    for (const CheckRules* const table : checkRuleTables()) {
        for (const SCheckRule& rule : *table) {
            if (rule.apply != nullptr) {
                findings.setCause(rule.cause(CXddRemark::KIND_FINDING));
                rule.apply(openedOf(document).description, findings);
            }
        }
    }
    return findings.inOrder();
}

QList<CXddRule> CXddChecker::rules()
{
    return shownRules(checkRuleTables());
}
