#include "CXddChecker.h"

#include "canopen/CDescription.h"
#include "canopen/CDictionary.h"
#include "canopen/Pdos.h"
#include "check/CFindings.h"
#include "check/CheckRules.h"
#include "text/CEncodedText.h"
#include "text/CXmlText.h"

namespace
{
std::vector<const CheckRules*> checkRuleGroups()
{
    return {&formRules(),  &identityRules(), &objectRules(), &typeRules(),
            &valueRules(), &pdoRules(),      &cobIdRules(),  &networkRules()};
}
} // namespace

QList<CXddFinding> CXddChecker::check(const QByteArray& description)
{
    CFindings findings;
    CEncodedText encoded;
    CXmlText text;
    CXmlText::SError error;
    error.line = 1;
    // The first two rules of the form are found here: there is nothing yet that the others could look at.
    findings.setRule(formRules()[0]);
    if (!encoded.decode(description, error.message) || !text.read(encoded.text(), error)) {
        findings.addAt(error.line, error.message);
        return findings.inOrder();
    }
    const CDescription read(text);
    findings.setRule(formRules()[1]);
    if (!read.isCanOpen(error.message) || !read.hasTypedBody(error.message)) {
        findings.add(read.root(), error.message);
        return findings.inOrder();
    }
    const CDictionary dictionary(read);
    const std::vector<SPdoMapping> mappings = pdoMappings(dictionary);
    for (const CheckRules* const group : checkRuleGroups()) {
        for (const SCheckRule& rule : *group) {
            if (rule.find != nullptr) {
                findings.setRule(rule);
                rule.find({read, dictionary, mappings}, findings);
            }
        }
    }
    return findings.inOrder();
}

QList<CXddCheckRule> CXddChecker::rules()
{
    QList<CXddCheckRule> rules;
    for (const CheckRules* const group : checkRuleGroups()) {
        for (const SCheckRule& row : *group) {
            CXddCheckRule rule;
            rule.mId = QString::fromLatin1(row.id);
            rule.mSeverity = row.severity;
            rule.mSummary = CFindings::tr(row.summary);
            rule.mReason = CFindings::tr(row.help);
            rules << rule;
        }
    }
    return rules;
}
