#include "diff/CChanges.h"

#include "CCanOpenNames.h"

#include <algorithm>
#include <tuple>

namespace
{
bool canBeMapped(const SEntry* entry)
{
    return entry != nullptr && isMappable(entry->mapping);
}
} // namespace

CChanges::CChanges()
{
    for (const DiffRules* const table : CDiffRules::tables()) {
        for (const SDiffRule& rule : *table) {
            mRules.insert(QLatin1String(rule.id), &rule);
        }
    }
}

void CChanges::add(
    QLatin1String rule, const SEntry* old, const SEntry* now, const SWords& words, const SDifference& difference,
    QLatin1String attribute)
{
    const auto shown = [](const QString& text) {
        return text.isEmpty() ? SArgument(CRemarks::filled(CRemarks::say("not stated"))) : SArgument(text);
    };
    add(rule, old, now, words, difference, {shown(difference.old), shown(difference.now)}, attribute);
}

void CChanges::add(
    QLatin1String rule, const SEntry* old, const SEntry* now, const SWords& words, const SDifference& difference,
    Arguments arguments, QLatin1String attribute)
{
    CXddChange added = change(rule, old, now);
    added.mSentence = CRemarks::filled(words, arguments);
    added.mOld = CRemarks::cut(difference.old);
    added.mNew = CRemarks::cut(difference.now);
    if (now != nullptr && attribute.size() > 0) {
        const SPlace place = now->placeOf(attribute);
        added.mLine = place.line;
        added.mColumn = place.column;
    }
    mChanges << added;
    mEntries << added.entry();
}

void CChanges::addGone(const SEntry& old, const SEntry* now)
{
    CXddChange gone = change(QLatin1String("entry-removed"), &old, nullptr);
    gone.mSentence = CRemarks::filled(CRemarks::say("is gone"));
    gone.mOld = old.name;
    if (now != nullptr) {
        gone.mOtherIndex = now->index;
        gone.mOtherSubIndex = now->subIndex;
        gone.mSentence = CRemarks::filled(CRemarks::say("is gone, probably now %1"), {now->place().entry()});
    }
    mChanges << gone;
}

void CChanges::addNew(const SEntry& now, const SEntry* old)
{
    CXddChange added = change(QLatin1String("entry-added"), nullptr, &now);
    added.mSentence = CRemarks::filled(CRemarks::say("is new: %1"), {now.name});
    added.mNew = now.name;
    if (old != nullptr) {
        added.mOtherIndex = old->index;
        added.mOtherSubIndex = old->subIndex;
        added.mSentence =
            CRemarks::filled(CRemarks::say("is new: %1, probably before %2"), {now.name, old->place().entry()});
    }
    mChanges << added;
}

CXddChange CChanges::change(QLatin1String rule, const SEntry* old, const SEntry* now) const
{
    const SDiffRule& row = *mRules.value(rule);
    CXddChange change;
    change.mSeverity = row.severity;
    change.mRule = rule;
    change.mConcerns = row.concerns | (row.concernsMapped && canBeMapped(old) ? CXddChange::CONCERN_PDO : 0U);
    const SEntry* const entry = now != nullptr ? now : old;
    if (entry == nullptr) {
        return change;
    }
    const SPlace place = entry->place();
    change.mIsOld = now == nullptr;
    change.mLine = place.line;
    change.mColumn = place.column;
    change.mIsEntry = true;
    change.mIsSubObject = entry->isSubObject;
    change.mIndex = entry->index;
    change.mSubIndex = entry->subIndex;
    change.mOtherLine = old != nullptr && now != nullptr ? old->place().line : 0;
    return change;
}

QList<CXddChange> CChanges::inOrder()
{
    const auto key = [](const CXddChange& change) {
        return std::make_tuple(-int(change.mSeverity), change.mIsEntry, change.mIndex, change.mSubIndex);
    };
    std::stable_sort(mChanges.begin(), mChanges.end(), [&key](const CXddChange& left, const CXddChange& right) {
        return key(left) < key(right);
    });
    return mChanges;
}

bool CChanges::has(unsigned int index, std::optional<unsigned int> subIndex) const
{
    return mEntries.contains(CCanOpenNames::entry(index, subIndex));
}

bool CChanges::has(CXddRemark::ESeverity severity) const
{
    return std::any_of(mChanges.begin(), mChanges.end(), [severity](const CXddChange& change) {
        return change.mSeverity == severity;
    });
}
