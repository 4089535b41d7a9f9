#include "NIso15745Tags.h"
#include "canopen/Pdos.h"
#include "diff/CChanges.h"

#include <QSet>

#include <algorithm>

namespace
{
// Sub-indexes of the communication parameters.
constexpr unsigned int COB_ID = 1;
constexpr unsigned int TRANSMISSION_TYPE = 2;
constexpr unsigned int INHIBIT_TIME = 3;
constexpr unsigned int EVENT_TIMER = 5;
constexpr unsigned int SYNC_START = 6;

// By what a PDO is caused: the SYNC, a remote request or an event.
enum class ECause
{
    None,
    Sync,
    Request,
    Event
};

ECause causeOf(const CXddPdo& pdo)
{
    switch (pdo.mTransmission) {
    case CXddPdo::TRANSMISSION_ACYCLIC:
    case CXddPdo::TRANSMISSION_CYCLIC:
        return ECause::Sync;
    case CXddPdo::TRANSMISSION_REQUEST_SYNC:
    case CXddPdo::TRANSMISSION_REQUEST:
        return ECause::Request;
    case CXddPdo::TRANSMISSION_EVENT_MANUFACTURER:
    case CXddPdo::TRANSMISSION_EVENT_PROFILE:
        return ECause::Event;
    case CXddPdo::TRANSMISSION_NOT_STATED:
    case CXddPdo::TRANSMISSION_RESERVED:
        break;
    }
    return ECause::None;
}

bool isActive(const CXddPdo& pdo)
{
    return pdo.mIsEnabled && (pdo.mCanId != 0 || pdo.mUsesNodeId);
}

QString bitsText(const CXddPdoField& field)
{
    return field.mBits == 1 ? QString::number(field.mOffset)
                            : QStringLiteral("%1-%2").arg(field.mOffset).arg(field.mOffset + field.mBits - 1);
}

QList<CXddPdoField> allFields(const CXddPdo& pdo)
{
    return pdo.mFields + pdo.mBeyond;
}

bool isSameEntry(const CXddPdoField& left, const CXddPdoField& right)
{
    return left.mIndex == right.mIndex && left.mSubIndex == right.mSubIndex;
}

bool isSamePlace(const CXddPdoField& left, const CXddPdoField& right)
{
    return left.mOffset == right.mOffset && left.mBits == right.mBits;
}

QString layoutText(const CXddPdo& pdo)
{
    QStringList parts;
    for (const CXddPdoField& field : allFields(pdo)) {
        parts << field.entry() + QLatin1Char(' ') + bitsText(field);
    }
    return parts.join(QLatin1String(", "));
}

class CPdoChanges
{
public:
    CPdoChanges(const CXddPdo& old, const CXddPdo& now, const SSides& sides, CChanges& changes)
        : mOld(old)
        , mNow(now)
        , mSides(sides)
        , mChanges(changes)
    {}

    void compare()
    {
        compareCobIds();
        compareTransmission();
        compareTime(
            INHIBIT_TIME, mOld.mInhibitTime, mNow.mInhibitTime,
            CRemarks::say("%3: inhibit time %1 -> %2 microseconds"));
        compareTime(
            EVENT_TIMER, mOld.mEventTimer, mNow.mEventTimer, CRemarks::say("%3: event timer %1 -> %2 milliseconds"));
        compareTime(SYNC_START, mOld.mSyncStart, mNow.mSyncStart, CRemarks::say("%3: SYNC start value %1 -> %2"));
        compareLayouts();
    }

private:
    // Of a PDO that was switched off nothing breaks.
    QLatin1String ruleOr(const char* rule) const { return QLatin1String(isActive(mOld) ? rule : "pdo-inactive"); }

    void addParameter(QLatin1String rule, unsigned int subIndex, const SWords& words, const SDifference& difference)
    {
        const unsigned int index = mOld.communicationIndex();
        const SEntry* const old = mSides.old.dictionary.subObject(index, subIndex);
        const SEntry* const now = mSides.now.dictionary.subObject(index, subIndex);
        if (old != nullptr && now != nullptr) { // Else that is said of the entry
            mChanges.add(
                rule, old, now, words, difference, {difference.old, difference.now, mOld.name()},
                NIso15745Tags::ATTR_DEFAULT_VALUE);
        }
    }

    void compareCobIds()
    {
        const SDifference canIds = {mOld.canIdText(), mNow.canIdText()};
        if (isActive(mOld) != isActive(mNow)) {
            isActive(mOld)
                ? addParameter(QLatin1String("pdo-disabled"), COB_ID, CRemarks::say("%3 is switched off"), canIds)
                : addParameter(QLatin1String("pdo-enabled"), COB_ID, CRemarks::say("%3 is switched on"), canIds);
            return;
        }
        if (mOld.mCanId != mNow.mCanId || mOld.mIsExtended != mNow.mIsExtended
            || mOld.mUsesNodeId != mNow.mUsesNodeId) {
            addParameter(ruleOr("pdo-cob-id"), COB_ID, CRemarks::say("%3: CAN-ID %1 -> %2"), canIds);
        } else if (mOld.mAllowsRtr != mNow.mAllowsRtr) {
            const auto word = [](const CXddPdo& pdo) {
                return pdo.mAllowsRtr ? QStringLiteral("1") : QStringLiteral("0");
            };
            addParameter(
                ruleOr("pdo-timing"), COB_ID, CRemarks::say("%3: allows remote requests %1 -> %2"),
                {word(mOld), word(mNow)});
        }
    }

    void compareTransmission()
    {
        if (mOld.mTransmissionType == mNow.mTransmissionType) {
            return;
        }
        const auto number = [](const CXddPdo& pdo) {
            return pdo.mTransmissionType ? QString::number(*pdo.mTransmissionType) : QStringLiteral("?");
        };
        const bool isOtherCause = causeOf(mOld) != causeOf(mNow) && causeOf(mOld) != ECause::None;
        addParameter(
            ruleOr(isOtherCause ? "pdo-transmission" : "pdo-timing"), TRANSMISSION_TYPE,
            CRemarks::say("%3: transmission type %1 -> %2"), {number(mOld), number(mNow)});
    }

    void compareTime(unsigned int subIndex, quint64 old, quint64 now, const SWords& words)
    {
        if (old != now) {
            addParameter(ruleOr("pdo-timing"), subIndex, words, {QString::number(old), QString::number(now)});
        }
    }

    // One change for a mapping: what tells most is named, and how many places differ beside it.
    void compareLayouts()
    {
        const QList<CXddPdoField> olds = allFields(mOld);
        const QList<CXddPdoField> news = allFields(mNow);
        const auto isSame = [](const CXddPdoField& left, const CXddPdoField& right) {
            return isSameEntry(left, right) && isSamePlace(left, right);
        };
        const bool isKept = olds.size() <= news.size() && std::equal(olds.begin(), olds.end(), news.begin(), isSame);
        const SEntry* const old = mSides.old.dictionary.object(mOld.mappingIndex());
        const SEntry* const now = mSides.now.dictionary.object(mNow.mappingIndex());
        const bool isSameKind = mOld.mIsMultiplexed == mNow.mIsMultiplexed;
        if (old == nullptr || now == nullptr || (isKept && olds.size() == news.size() && isSameKind)) {
            return;
        }
        const SDifference layouts = {layoutText(mOld), layoutText(mNow)};
        if (!isSameKind) {
            mChanges.add(
                ruleOr("pdo-layout"), old, now, CRemarks::say("%1: is a multiplexed PDO, or no longer is"), layouts,
                {mOld.name()});
            return;
        }
        const bool isExtended = isKept && mOld.mIsTransmit;
        addLayout(ruleOr(isExtended ? "pdo-extended" : "pdo-layout"), old, now, layouts);
    }

    void addLayout(QLatin1String rule, const SEntry* old, const SEntry* now, const SDifference& layouts)
    {
        QList<QPair<CXddPdoField, CXddPdoField>> moved;
        QList<CXddPdoField> gone;
        QList<CXddPdoField> added = allFields(mNow);
        for (const CXddPdoField& field : allFields(mOld)) {
            const auto same = std::find_if(
                added.begin(), added.end(), [&field](const CXddPdoField& other) { return isSameEntry(field, other); });
            if (same == added.end()) {
                gone << field;
                continue;
            }
            if (!isSamePlace(field, *same)) {
                moved << qMakePair(field, *same);
            }
            added.erase(same);
        }
        const int more = int(moved.size() + gone.size() + added.size()) - 1;
        const SArgument also = more > 0
                                   ? SArgument(CRemarks::filled(CRemarks::say(", and %n more field(s)", nullptr, more)))
                                   : SArgument(QLatin1String(""));
        if (!moved.isEmpty()) {
            // One that starts elsewhere tells more than one that got longer.
            const auto elsewhere = std::find_if(moved.begin(), moved.end(), [](const auto& fields) {
                return fields.first.mOffset != fields.second.mOffset;
            });
            const auto& [before, after] = elsewhere == moved.end() ? moved.first() : *elsewhere;
            mChanges.add(
                rule, old, now, CRemarks::say("%1: %2 moves from bits %3 to %4%5"), layouts,
                {mOld.name(), nameOf(after), bitsText(before), bitsText(after), also});
        } else if (!gone.isEmpty()) {
            mChanges.add(
                rule, old, now, CRemarks::say("%1: %2 is no longer in bits %3%4"), layouts,
                {mOld.name(), nameOf(gone.first()), bitsText(gone.first()), also});
        } else {
            mChanges.add(
                rule, old, now, CRemarks::say("%1: %2 is new in bits %3%4"), layouts,
                {mOld.name(), nameOf(added.first()), bitsText(added.first()), also});
        }
    }

    static QString nameOf(const CXddPdoField& field) { return field.mName.isEmpty() ? field.entry() : field.mName; }

    const CXddPdo& mOld;
    const CXddPdo& mNow;
    const SSides& mSides;
    CChanges& mChanges;
};

const CXddPdo* samePdo(const CXddPdo& pdo, const QList<CXddPdo>& others)
{
    const auto found =
        std::lower_bound(others.begin(), others.end(), pdo, [](const CXddPdo& left, const CXddPdo& right) {
            return left.communicationIndex() < right.communicationIndex();
        });
    const bool isThere = found != others.end() && found->communicationIndex() == pdo.communicationIndex();
    return isThere ? &*found : nullptr;
}
} // namespace

void comparePdos(const SSides& sides, CChanges& changes)
{
    for (const CXddPdo& old : sides.old.pdos) {
        if (const CXddPdo* const now = samePdo(old, sides.now.pdos)) {
            CPdoChanges(old, *now, sides, changes).compare();
        }
    }
}

bool isSaidOfPdo(const SEntry& entry, const SSides& sides, const CChanges& changes)
{
    if (!entry.index || !entry.subIndex) {
        return false;
    }
    const unsigned int index = *entry.index;
    if (communicationDirection(index)) {
        return changes.has(index, entry.subIndex);
    }
    const auto isActiveIn = [&entry, index](const SSide& side) {
        return *entry.subIndex <= side.dictionary.number(index, 0).value_or(MAX_MAPPED);
    };
    return mappingDirection(index) && changes.has(index, std::nullopt)
           && (isActiveIn(sides.old) || isActiveIn(sides.now));
}
