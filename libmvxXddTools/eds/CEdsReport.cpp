#include "eds/CEdsReport.h"

#include <algorithm>

void CEdsReport::add(const SDictionaryEntry& entry, const char* kind, const QString& text)
{
    add(entry.element, kind, QStringLiteral("%1: %2").arg(entry.name(), text));
    mIncomplete << entry.element.range().begin;
}

void CEdsReport::add(const CXmlElement& element, const char* kind, const QString& text)
{
    CXddLoss loss;
    loss.mLine = element.line();
    loss.mKind = QString::fromLatin1(kind);
    loss.mText = text;
    mLosses << loss;
}

QList<CXddLoss> CEdsReport::losses() const
{
    QList<CXddLoss> losses = mLosses;
    std::stable_sort(losses.begin(), losses.end(), [](const CXddLoss& left, const CXddLoss& right) {
        return left.mLine < right.mLine;
    });
    return losses;
}

int CEdsReport::incompleteEntries() const
{
    return int(mIncomplete.size());
}
