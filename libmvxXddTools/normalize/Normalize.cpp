#include "normalize/Normalize.h"

#include "canopen/CDescription.h"
#include "normalize/NormalizeRules.h"
#include "text/CEncodedText.h"
#include "text/CXmlText.h"

#include <QCoreApplication>

namespace
{
std::vector<const NormalizeRules*> normalizeRuleGroups()
{
    return {&headerRules(), &deviceRules(), &dictionaryRules(), &bitRateRules()};
}

QString translated(const char* text)
{
    return QCoreApplication::translate("mvxXddTools", text);
}
} // namespace

ENormalized normalizeText(
    CXmlEdits::ELayout layout, const QByteArray& description, QByteArray& normalized, QList<CXddChange>& changes,
    QString& errorText)
{
    CEncodedText encoded;
    CXmlText text;
    CXmlText::SError error;
    if (!encoded.decode(description, errorText)) {
        return ENormalized::Unreadable;
    }
    if (!text.read(encoded.text(), error)) {
        errorText = QCoreApplication::translate("mvxXddTools", "Parse error at line %1, column %2: %3")
                        .arg(QString::number(error.line), QString::number(error.column), error.message);
        return ENormalized::Unreadable;
    }
    const CDescription read(text);
    if (!read.isCanOpen(errorText)) {
        return ENormalized::Foreign;
    }
    CXmlEdits edits(text, layout);
    for (const NormalizeRules* const group : normalizeRuleGroups()) {
        for (const SNormalizeRule& rule : *group) {
            edits.setCause(QString::fromLatin1(rule.id), translated(rule.reason), rule.matters);
            rule.apply(read, edits);
        }
    }
    changes = edits.changes();
    normalized = edits.isEmpty() ? description : encoded.encode(edits.result());
    return ENormalized::Description;
}

QList<CXddRule> normalizeRules()
{
    QList<CXddRule> rules;
    for (const NormalizeRules* const group : normalizeRuleGroups()) {
        for (const SNormalizeRule& row : *group) {
            CXddRule rule;
            rule.mId = QString::fromLatin1(row.id);
            rule.mSummary = translated(row.summary);
            rule.mReason = translated(row.reason);
            rules << rule;
        }
    }
    return rules;
}
