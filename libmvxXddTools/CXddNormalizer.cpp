#include "CXddNormalizer.h"

#include "canopen/CDescription.h"
#include "normalize/NormalizeRules.h"
#include "text/CEncodedText.h"
#include "text/CXmlEdits.h"
#include "text/CXmlText.h"

#include <ICIso15745.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryFile>

namespace
{
enum class EOutcome
{
    Unreadable, // No text in a known encoding, or not well-formed
    Foreign,    // Something else than a CANopen description
    Normalized
};

std::vector<const NormalizeRules*> ruleGroups()
{
    return {&headerRules(), &deviceRules(), &dictionaryRules(), &bitRateRules()};
}

QString translated(const char* text)
{
    return QCoreApplication::translate("mvxXddTools", text);
}

EOutcome normalizeAs(
    CXmlEdits::ELayout layout, const QByteArray& description, QByteArray& normalized, QList<CXddChange>& changes,
    QString& errorText)
{
    CEncodedText encoded;
    CXmlText text;
    CXmlText::SError error;
    if (!encoded.decode(description, errorText)) {
        return EOutcome::Unreadable;
    }
    if (!text.read(encoded.text(), error)) {
        errorText = QCoreApplication::translate("mvxXddTools", "Parse error at line %1, column %2: %3")
                        .arg(QString::number(error.line), QString::number(error.column), error.message);
        return EOutcome::Unreadable;
    }
    const CDescription read(text);
    if (!read.isCanOpen(errorText)) {
        return EOutcome::Foreign;
    }
    CXmlEdits edits(text, layout);
    for (const NormalizeRules* const group : ruleGroups()) {
        for (const SNormalizeRule& rule : *group) {
            edits.setCause(QString::fromLatin1(rule.id), translated(rule.reason), rule.matters);
            rule.apply(read, edits);
        }
    }
    changes = edits.changes();
    normalized = edits.isEmpty() ? description : encoded.encode(edits.result());
    return EOutcome::Normalized;
}

bool loadCopy(ICIso15745& reader, const QString& fileName, const QByteArray& copy, QString& errorText)
{
    QTemporaryFile file;
    if (!file.open() || file.write(copy) != copy.size() || !file.flush()) {
        errorText = QCoreApplication::translate("mvxXddTools", "Cannot write the temporary file %1: %2")
                        .arg(file.fileName(), file.errorString());
        return false;
    }
    const bool loaded = reader.load(file.fileName(), errorText);
    errorText.replace(file.fileName(), fileName);
    return loaded;
}
} // namespace

bool CXddNormalizer::normalize(
    const QByteArray& description, QByteArray& normalized, QList<CXddChange>& changes, QString& errorText)
{
    return normalizeAs(CXmlEdits::ELayout::Indented, description, normalized, changes, errorText)
           == EOutcome::Normalized;
}

bool CXddNormalizer::load(ICIso15745& reader, const QString& fileName, QList<CXddChange>& changes, QString& errorText)
{
    changes.clear();
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return reader.load(fileName, errorText); // Which says why
    }
    const QByteArray description = file.readAll();
    QByteArray normalized;
    switch (normalizeAs(CXmlEdits::ELayout::InLine, description, normalized, changes, errorText)) {
    case EOutcome::Foreign:
        return false;
    case EOutcome::Unreadable:
        return reader.load(fileName, errorText);
    case EOutcome::Normalized:
        break;
    }
    return normalized == description ? reader.load(fileName, errorText)
                                     : loadCopy(reader, fileName, normalized, errorText);
}

QList<CXddRule> CXddNormalizer::rules()
{
    QList<CXddRule> rules;
    for (const NormalizeRules* const group : ruleGroups()) {
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
