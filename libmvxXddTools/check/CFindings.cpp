#include "check/CFindings.h"

#include "check/CheckRules.h"

#include <algorithm>

namespace
{
// Longest text of a file that a finding repeats, in characters: a value of a megabyte must not become a line of one.
constexpr int MAX_QUOTED_LENGTH = 200;
} // namespace

void CFindings::setRule(const SCheckRule& rule)
{
    mCause.mRule = QString::fromLatin1(rule.id);
    mCause.mSeverity = rule.severity;
}

void CFindings::add(const CXmlElement& element, const QString& text)
{
    addAt(element.line(), text);
}

void CFindings::add(const SDictionaryEntry& entry, const QString& text)
{
    add(entry.element, QStringLiteral("%1: %2").arg(entry.name(), text));
    mFindings.last().mIndex = entry.index;
    mFindings.last().mSubIndex = entry.subIndex;
}

void CFindings::addAt(int line, const QString& text)
{
    mFindings << mCause;
    mFindings.last().mLine = line;
    mFindings.last().mText = text;
}

QList<CXddFinding> CFindings::inOrder() const
{
    QList<CXddFinding> findings = mFindings;
    std::stable_sort(findings.begin(), findings.end(), [](const CXddFinding& left, const CXddFinding& right) {
        return left.mLine < right.mLine;
    });
    return findings;
}

QString CFindings::quoted(const SStated& stated, const CXmlElement& element)
{
    const QString text = stated.text.size() > MAX_QUOTED_LENGTH
                             ? stated.text.left(MAX_QUOTED_LENGTH) + QLatin1String("...")
                             : stated.text;
    return stated.where == element || stated.where.isNull()
               ? QStringLiteral("\"%1\"").arg(text)
               : tr("\"%1\" (line %2)").arg(text, QString::number(stated.where.line()));
}
