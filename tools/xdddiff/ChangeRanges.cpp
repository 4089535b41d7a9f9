#include "ChangeRanges.h"

#include <CCanOpenNames.h>

#include <QHash>

#include <functional>

namespace
{
// What changes have in common that are told as one. Entries that came or went have names of their own.
QString keyOf(const CXddChange& change)
{
    const bool isMoved = change.mOtherIndex.has_value();
    const bool isEntry = change.mOld.isEmpty() != change.mNew.isEmpty() && change.mOtherLine == 0;
    const QString values = isEntry ? QString() : change.mOld + QChar(0) + change.mNew;
    return change.mRule + QChar(0) + (isMoved ? change.entry() : values) + QChar(0) + QString::number(change.mConcerns);
}

// Makes one of each range and those that follow it.
QList<SChangeRange> joined(
    const QList<SChangeRange>& ranges, const std::function<bool(const SChangeRange&, const SChangeRange&)>& follows)
{
    QList<SChangeRange> result;
    QHash<QString, int> open; // The last range of what it has in common with others
    for (const SChangeRange& range : ranges) {
        const QString key = keyOf(range.first);
        const int last = open.value(key, -1);
        if (range.first.mIndex && last >= 0 && follows(result[last], range)) {
            result[last].lastIndex = range.lastIndex;
            result[last].lastSubIndex = range.lastSubIndex;
            result[last].entries += range.entries;
        } else {
            open[key] = int(result.size());
            result << range;
        }
    }
    return result;
}
} // namespace

QString SChangeRange::address() const
{
    QString start = first.entry();
    if (entries == 1 || !first.mIndex) {
        return start;
    }
    QString objects = lastIndex == *first.mIndex
                          ? CCanOpenNames::index(lastIndex)
                          : CCanOpenNames::index(*first.mIndex) + QLatin1Char('-') + CCanOpenNames::index(lastIndex);
    if (!first.mSubIndex) {
        return objects;
    }
    const auto subIndex = [](unsigned int number) {
        return QStringLiteral("%1").arg(number, 2, 16, QLatin1Char('0')).toUpper();
    };
    return objects + QLatin1Char(':') + subIndex(*first.mSubIndex)
           + (lastSubIndex == *first.mSubIndex ? QString() : QLatin1Char('-') + subIndex(lastSubIndex));
}

QList<SChangeRange> rangesOf(const QList<CXddChange>& changes)
{
    QList<SChangeRange> single;
    for (const CXddChange& change : changes) {
        single << SChangeRange{change, change.mIndex.value_or(0), change.mSubIndex.value_or(0), 1};
    }
    const QList<SChangeRange> overSubIndexes = joined(single, [](const SChangeRange& left, const SChangeRange& right) {
        return left.first.mSubIndex && right.first.mSubIndex && left.lastIndex == *right.first.mIndex
               && left.lastSubIndex + 1 == *right.first.mSubIndex;
    });
    return joined(overSubIndexes, [](const SChangeRange& left, const SChangeRange& right) {
        return left.lastIndex + 1 == *right.first.mIndex && left.first.mSubIndex == right.first.mSubIndex
               && left.lastSubIndex == right.lastSubIndex;
    });
}
