#include "CCanOpenNames.h"
#include "NIso15745Tags.h"
#include "diff/CChanges.h"
#include "diff/TextChanges.h"
#include "names/DataTypes.h"
#include "names/Objects.h"

#include <map>
#include <tuple>

using namespace NIso15745Tags;

namespace
{
constexpr unsigned int HIGHEST_SUB_INDEX = 0;

// An entry of both descriptions.
struct SPair
{
    const SEntry& old;
    const SEntry& now;

    bool isAt(unsigned int index, unsigned int subIndex) const
    {
        return old.index == index && old.subIndex.value_or(0) == subIndex;
    }
};

class CEntryChanges
{
public:
    CEntryChanges(const SSides& sides, CChanges& changes)
        : mSides(sides)
        , mChanges(changes)
    {}

    void compare()
    {
        const QMap<unsigned int, std::size_t>& olds = mSides.old.dictionary.byIndex();
        const QMap<unsigned int, std::size_t>& news = mSides.now.dictionary.byIndex();
        for (auto old = olds.cbegin(); old != olds.cend(); ++old) {
            const SEntry* const now = mSides.now.dictionary.object(old.key());
            const SEntry& object = mSides.old.dictionary.entries()[*old];
            now == nullptr ? void(mGone.push_back(&object)) : compareObjects({object, *now});
        }
        for (auto now = news.cbegin(); now != news.cend(); ++now) {
            if (!olds.contains(now.key())) {
                mNew.push_back(&mSides.now.dictionary.entries()[*now]);
            }
        }
        addMoved();
    }

private:
    static bool hasSubObjects(const SEntry& object)
    {
        return object.objectCode ? objectCodeOf(*object.objectCode).hasSubObjects : object.subObjects > 0;
    }

    void compareObjects(const SPair& pair)
    {
        if (hasSubObjects(pair.old) != hasSubObjects(pair.now)) {
            const auto name = [](const SEntry& entry) {
                return CCanOpenNames::objectCode(entry.objectCode.value_or(CODE_VAR));
            };
            add("object-code", pair, CRemarks::say("object code %1 -> %2"), {name(pair.old), name(pair.now)},
                ATTR_OBJECT_TYPE);
            return;
        }
        if (!mSides.areXdd() && mSides.areOfOneForm()
            && mSides.old.lists.value(*pair.old.index) != mSides.now.lists.value(*pair.now.index)) {
            add("list-changed", pair, CRemarks::say("is in another list of objects"), {});
        }
        compareEntries(pair);
        for (const SEntry* const old : mSides.old.dictionary.subObjects(pair.old)) {
            const SEntry* const now =
                old->subIndex ? mSides.now.dictionary.subObject(*old->index, *old->subIndex) : nullptr;
            if (!isFirst(*old, mSides.old)) {
                continue;
            }
            now == nullptr ? void(mGone.push_back(old)) : compareEntries({*old, *now});
        }
        for (const SEntry* const now : mSides.now.dictionary.subObjects(pair.now)) {
            if (isFirst(*now, mSides.now) && mSides.old.dictionary.subObject(*now->index, *now->subIndex) == nullptr) {
                mNew.push_back(now);
            }
        }
    }

    // Of two with one sub-index the second counts for nothing, as one without a readable one.
    static bool isFirst(const SEntry& subObject, const SSide& side)
    {
        return subObject.subIndex && side.dictionary.subObject(*subObject.index, *subObject.subIndex) == &subObject;
    }

    void compareEntries(const SPair& pair)
    {
        if (pair.old.isVariable() && pair.now.isVariable()) {
            compareTypes(pair);
            compareAccess(pair);
            compareMapping(pair);
            compareLimits(pair);
            compareValues(pair);
        }
        compareFlags(pair);
        compareTexts(pair);
    }

    void compareTypes(const SPair& pair)
    {
        const unsigned int old = pair.old.dataType.value;
        const unsigned int now = pair.now.dataType.value;
        if (old == now || old == 0 || now == 0) {
            return;
        }
        const EValueKind kind = valueKind(old);
        const bool isNumber = kind == EValueKind::Unsigned || kind == EValueKind::Signed || kind == EValueKind::Real;
        const bool isResized = isNumber && kind == valueKind(now) && bitSize(old) != bitSize(now);
        const char* const rule = !isResized                    ? "type-changed"
                                 : bitSize(old) < bitSize(now) ? "type-widened"
                                                               : "type-narrowed";
        add(rule, pair, CRemarks::say("data type %1 -> %2"),
            {CCanOpenNames::dataType(old), CCanOpenNames::dataType(now)}, ATTR_DATA_TYPE);
    }

    // An EDS cannot say that there is no access.
    bool isKnown(EAccess access) const
    {
        return access != EAccess::NotStated && access != EAccess::Unknown
               && (access != EAccess::None || mSides.areXdd());
    }

    static QString accessWord(EAccess access)
    {
        return access == EAccess::None ? QStringLiteral("noAccess") : QString(accessText(access));
    }

    void compareAccess(const SPair& pair)
    {
        const EAccess old = pair.old.access.value;
        const EAccess now = pair.now.access.value;
        if (old == now || !isKnown(old) || !isKnown(now)) {
            return;
        }
        const bool isLost = (isReadable(old) && !isReadable(now)) || (isWritable(old) && !isWritable(now));
        const bool isGained = (!isReadable(old) && isReadable(now)) || (!isWritable(old) && isWritable(now));
        const char* const rule = isLost ? "access-narrowed" : isGained ? "access-widened" : "access-constant";
        add(rule, pair, CRemarks::say("access %1 -> %2"), {accessWord(old), accessWord(now)}, ATTR_ACCESS_TYPE);
    }

    // The directions in which an entry can be mapped. A form that does not say which goes by the access.
    static unsigned int directions(const SEntry& entry)
    {
        constexpr unsigned int TRANSMIT = 1;
        constexpr unsigned int RECEIVE = 2;
        if (!isMappable(entry.mapping)) {
            return 0;
        }
        if (const std::optional<EPdoDirection> only = onlyDirection(entry.mapping)) {
            return *only == EPdoDirection::Transmit ? TRANSMIT : RECEIVE;
        }
        return (forbidsDirection(entry.access.value, EPdoDirection::Transmit) ? 0 : TRANSMIT)
               | (forbidsDirection(entry.access.value, EPdoDirection::Receive) ? 0 : RECEIVE);
    }

    void compareMapping(const SPair& pair)
    {
        if (pair.old.mapping == pair.now.mapping) {
            return;
        }
        const unsigned int old = directions(pair.old);
        const unsigned int now = directions(pair.now);
        if (old != now) {
            add((old & ~now) != 0 ? "pdo-mapping-lost" : "pdo-mapping-gained", pair,
                CRemarks::say("PDO mapping %1 -> %2"), {mappingText(pair.old.mapping), mappingText(pair.now.mapping)},
                ATTR_PDO_MAPPING);
        }
    }

    // A limit as it counts: none for the end of the type, and none for what is no value.
    static std::optional<CValue> limit(const SEntry& entry, const SValueProperty& property, bool isHigh)
    {
        const unsigned int type = entry.dataType.value;
        const EValueKind kind = valueKind(type);
        if (!property.value || kind == EValueKind::Text) {
            return std::nullopt;
        }
        const bool isWhole = kind == EValueKind::Unsigned || kind == EValueKind::Signed || kind == EValueKind::Boolean;
        const std::optional<CInteger> number = property.value->plain();
        const auto isEnd = [type, isHigh](const CInteger& value) {
            return isHigh ? !(value < CValue::highest(type)) : !(CValue::lowest(type) < value);
        };
        return isWhole && number && isEnd(*number) ? std::nullopt : property.value;
    }

    // What a limit of the new description excludes of the old one's range: below 0 nothing more, and less.
    struct SMoved
    {
        bool excludes = false;
        bool admits = false;
    };

    static SMoved moved(const std::optional<CValue>& old, const std::optional<CValue>& now, bool isHigh)
    {
        SMoved moved;
        if (!old || !now) {
            moved.excludes = now && !old;
            moved.admits = old && !now;
            return moved;
        }
        moved.excludes = isHigh ? now->isBelow(*old) : old->isBelow(*now);
        moved.admits = isHigh ? old->isBelow(*now) : now->isBelow(*old);
        return moved;
    }

    // "0..100", each end as it is written.
    static QString rangeText(const SEntry& entry)
    {
        return entry.lowLimit.isGiven() || entry.highLimit.isGiven()
                   ? entry.lowLimit.text + QLatin1String("..") + entry.highLimit.text
                   : QString();
    }

    void compareLimits(const SPair& pair)
    {
        const bool isOfOneType = pair.old.dataType.value == pair.now.dataType.value;
        const auto isCompared = [isOfOneType](const SValueProperty& old, const SValueProperty& now) {
            return isOfOneType || (old.isGiven() && now.isGiven() && old.text != now.text);
        };
        SMoved low;
        SMoved high;
        if (isCompared(pair.old.lowLimit, pair.now.lowLimit)) {
            low = moved(limit(pair.old, pair.old.lowLimit, false), limit(pair.now, pair.now.lowLimit, false), false);
        }
        if (isCompared(pair.old.highLimit, pair.now.highLimit)) {
            high = moved(limit(pair.old, pair.old.highLimit, true), limit(pair.now, pair.now.highLimit, true), true);
        }
        const bool excludes = low.excludes || high.excludes;
        if (!excludes && !low.admits && !high.admits) {
            return;
        }
        const char* const rule = !isWritable(pair.now.access.value) ? "limits-changed"
                                 : excludes                         ? "limits-narrowed"
                                                                    : "limits-widened";
        add(rule, pair, CRemarks::say("limits %1 -> %2"), {rangeText(pair.old), rangeText(pair.now)},
            low.excludes || low.admits ? ATTR_LOW_LIMIT : ATTR_HIGH_LIMIT);
    }

    // Of what is configured on both sides values in force are compared, where they show on the bus.
    void compareValues(const SPair& pair)
    {
        if (isSaidOfPdo(pair.old, mSides, mChanges)) {
            return;
        }
        if (mSides.areConfigured() && isNetworkObject(pair)) {
            compareValue(pair, pair.old.inForce(), pair.now.inForce(), CRemarks::say("value in force %1 -> %2"));
            return;
        }
        compareValue(pair, pair.old.defaultValue, pair.now.defaultValue, CRemarks::say("default value %1 -> %2"));
        compareActualValues(pair);
    }

    static bool isNetworkObject(const SPair& pair) { return isCobId(pair) || pair.isAt(HEARTBEAT_TIME, 0); }

    static bool isCobId(const SPair& pair)
    {
        const unsigned int index = *pair.old.index;
        const unsigned int subIndex = pair.old.subIndex.value_or(0);
        const bool isOfServer =
            index >= FIRST_SDO_SERVER && index <= LAST_SDO_SERVER && (subIndex == 1 || subIndex == 2);
        return isOfServer || pair.isAt(SYNC_COB_ID, 0) || pair.isAt(TIME_COB_ID, 0) || pair.isAt(EMCY_COB_ID, 0);
    }

    void compareValue(const SPair& pair, const SValueProperty& old, const SValueProperty& now, const SWords& words)
    {
        if (!areSame(old, now)) {
            const char* const rule = old.isGiven() && now.isGiven() ? ruleOfValue(pair, now) : "default-changed";
            const bool isDefault = &now == &pair.now.defaultValue;
            add(rule, pair, words, {old.text, now.text}, isDefault ? ATTR_DEFAULT_VALUE : ATTR_ACTUAL_VALUE);
        }
    }

    static const char* ruleOfValue(const SPair& pair, const SValueProperty& now)
    {
        if (isCobId(pair)) {
            return "cob-id-changed";
        }
        if (pair.isAt(HEARTBEAT_TIME, 0)) {
            const std::optional<CInteger> time = now.value ? now.value->plain() : std::nullopt;
            return time && *time == CInteger() ? "heartbeat-off" : "default-changed";
        }
        if (pair.isAt(DEVICE_TYPE, 0)) {
            return "device-type";
        }
        if (pair.isAt(IDENTITY, 1) || pair.isAt(IDENTITY, 2)) {
            return "identity-changed";
        }
        if (pair.isAt(IDENTITY, 3)) {
            return "revision-changed";
        }
        const bool isCount = pair.old.subIndex == HIGHEST_SUB_INDEX && !isWritable(pair.now.access.value);
        return isCount ? "sub-count" : "default-changed";
    }

    // One that equals the default configures nothing.
    static SValueProperty configured(const SEntry& entry)
    {
        return areSame(entry.actualValue, entry.defaultValue) ? SValueProperty() : entry.actualValue;
    }

    void compareActualValues(const SPair& pair)
    {
        const SEntry* const old = written(mSides.old, pair.old);
        const SEntry* const now = written(mSides.now, pair.now);
        const SValueProperty before = configured(*old);
        const SValueProperty after = configured(*now);
        if (!areSame(before, after)) {
            add("actual-value", pair, CRemarks::say("actual value %1 -> %2"), {before.text, after.text},
                ATTR_ACTUAL_VALUE);
        }
    }

    // The same entry with what is configured.
    static const SEntry* written(const SSide& side, const SEntry& entry)
    {
        return &side.description.dictionary().entries()[std::size_t(&entry - side.dictionary.entries().data())];
    }

    void compareFlags(const SPair& pair)
    {
        const auto flags = [](const SEntry& entry) {
            return readInteger(entry.element.attribute(ATTR_OBJ_FLAGS)).value_or(CInteger()).text();
        };
        const QString old = flags(pair.old);
        const QString now = flags(pair.now);
        if (old != now) {
            add("flags-changed", pair, CRemarks::say("object flags %1 -> %2"), {old, now}, ATTR_OBJ_FLAGS);
        }
    }

    void compareTexts(const SPair& pair)
    {
        if (pair.old.name != pair.now.name) {
            add("name-changed", pair, CRemarks::say("name \"%1\" -> \"%2\""), {pair.old.name, pair.now.name},
                ATTR_NAME);
        }
        const auto denotation = [](const SEntry& entry) {
            return entry.element.attribute(ATTR_DENOTATION);
        };
        if (mSides.areConfigured() && denotation(pair.old) != denotation(pair.now)) {
            add("text-changed", pair, CRemarks::say("denotation \"%1\" -> \"%2\""),
                {denotation(pair.old), denotation(pair.now)}, ATTR_DENOTATION);
        }
        if (mSides.areXdd()) {
            compareLabels(pair);
        }
    }

    // Many entries can refer to one parameter, whose texts are compared once.
    void compareLabels(const SPair& pair)
    {
        const auto ownTexts = [](const SEntry& entry) {
            return entry.subObjects == 0 && !entry.element.firstChild().isNull();
        };
        const auto compared = [this, &pair] {
            return textChanges(pair.old, mSides.old.texts.of(pair.old), pair.now, mSides.now.texts.of(pair.now));
        };
        if (ownTexts(pair.old) || ownTexts(pair.now) || pair.old.parameter.isNull() || pair.now.parameter.isNull()) {
            add(pair, compared());
            return;
        }
        const ParameterKey key = {
            pair.old.parameter.range().begin, pair.now.parameter.range().begin, pair.old.dataType.value,
            pair.now.dataType.value, isWritable(pair.now.access.value)};
        auto found = mOfParameters.find(key);
        if (found == mOfParameters.end()) {
            found = mOfParameters.emplace(key, compared()).first;
        }
        add(pair, found->second);
    }

    void add(const SPair& pair, const std::vector<STextChange>& changes)
    {
        for (const STextChange& change : changes) {
            add(change.rule, pair, change.words, change.difference);
        }
    }

    // What is gone is probably what is new where name, type, access and code are once on both sides.
    void addMoved()
    {
        const auto keyOf = [](const SEntry& entry) {
            return QStringLiteral("%1 %2 %3 %4")
                .arg(entry.dataType.value)
                .arg(int(entry.access.value))
                .arg(entry.objectCode.value_or(CODE_VAR))
                .arg(entry.name);
        };
        QHash<QString, QVector<const SEntry*>> gone;
        QHash<QString, QVector<const SEntry*>> added;
        for (const SEntry* const entry : mGone) {
            gone[keyOf(*entry)] << entry;
        }
        for (const SEntry* const entry : mNew) {
            added[keyOf(*entry)] << entry;
        }
        const auto only = [&](const SEntry& entry,
                              const QHash<QString, QVector<const SEntry*>>& others) -> const SEntry* {
            const QString key = keyOf(entry);
            const bool isOne = !entry.name.isEmpty() && gone.value(key).size() == 1 && added.value(key).size() == 1;
            return isOne ? others.value(key).first() : nullptr;
        };
        for (const SEntry* const entry : mGone) {
            mChanges.addGone(*entry, only(*entry, added));
        }
        for (const SEntry* const entry : mNew) {
            mChanges.addNew(*entry, only(*entry, gone));
        }
    }

    void add(
        const char* rule, const SPair& pair, const SWords& words, const SDifference& difference,
        QLatin1String attribute = {})
    {
        mChanges.add(QLatin1String(rule), &pair.old, &pair.now, words, difference, attribute);
    }

    const SSides& mSides;
    CChanges& mChanges;
    // Where the parameters of both begin, the data types, and whether the entry can be written.
    using ParameterKey = std::tuple<int, int, unsigned int, unsigned int, bool>;

    std::map<ParameterKey, std::vector<STextChange>> mOfParameters;
    std::vector<const SEntry*> mGone;
    std::vector<const SEntry*> mNew;
};
} // namespace

void compareDictionaries(const SSides& sides, CChanges& changes)
{
    CEntryChanges(sides, changes).compare();
}

bool areSame(const SValueProperty& old, const SValueProperty& now)
{
    if (old.isGiven() != now.isGiven()) {
        return false;
    }
    return (old.value && now.value && *old.value == *now.value) || old.text == now.text;
}
