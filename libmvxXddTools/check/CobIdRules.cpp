#include "CCanOpenNames.h"
#include "canopen/Pdos.h"
#include "check/CFindings.h"
#include "check/CheckRules.h"
#include "check/Walks.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>

namespace
{
// The bits of a COB-ID, CiA 301.
constexpr quint64 NOT_VALID = quint64(1) << 31U;
constexpr quint64 EXTENDED = quint64(1) << 29U;
constexpr quint64 CAN_ID_11 = 0x7FF;
constexpr quint64 CAN_ID_29 = 0x1FFFFFFF;

constexpr unsigned int SYNC = 0x1005;
constexpr unsigned int TIME = 0x1012;
constexpr unsigned int EMCY = 0x1014;
constexpr unsigned int FIRST_SDO_SERVER = 0x1200;
constexpr unsigned int LAST_SDO_SERVER = 0x127F;

// CAN-IDs that CiA 301 keeps for other uses.
struct SRange11
{
    quint64 first;
    quint64 last;
};
constexpr std::array<SRange11, 5> RESTRICTED = {
    {{0x000, 0x07F}, {0x101, 0x180}, {0x581, 0x5FF}, {0x601, 0x67F}, {0x6E0, 0x7FF}}};

bool isCobIdOfPdo(const SDictionaryEntry& entry)
{
    return entry.subIndex == 1U && communicationDirection(entry.index.value_or(0));
}

bool isValid(const CValue& value)
{
    return (value.bits() & NOT_VALID) == 0;
}

// True when one of the CAN-IDs that a value stands for is restricted.
bool isRestricted(const CValue& value)
{
    const quint64 base = value.bits() & CAN_ID_11;
    const quint64 first = value.usesNodeId() ? base + MIN_NODE_ID : base;
    const quint64 last = value.usesNodeId() ? base + MAX_NODE_ID : base;
    return std::any_of(RESTRICTED.begin(), RESTRICTED.end(), [&](const SRange11& range) {
        return first <= range.last && last >= range.first;
    });
}

void cobId(const SChecked& checked, CFindings& findings)
{
    for (const SDictionaryEntry& entry : checked.dictionary.entries()) {
        const unsigned int index = entry.index.value_or(0);
        const unsigned int subIndex = entry.subIndex.value_or(0);
        const bool isSingle = !entry.isSubObject && (index == SYNC || index == TIME || index == EMCY);
        const bool isDefaultServer = index == FIRST_SDO_SERVER && (subIndex == 1 || subIndex == 2);
        if (!entry.value || !entry.value->isInteger() || !(isSingle || isDefaultServer || isCobIdOfPdo(entry))) {
            continue;
        }
        const CValue& value = *entry.value;
        const QString text = CFindings::quoted(entry.defaultValue, entry.element);
        if (isDefaultServer) {
            const quint64 base = subIndex == 1 ? 0x600 : 0x580;
            if (!value.usesNodeId() && value.bits() == base) {
                findings.add(entry, CFindings::tr("COB-ID %1 lacks $NODEID").arg(text));
            }
            continue;
        }
        if (!isValid(value) || (value.bits() & EXTENDED) != 0) {
            continue;
        }
        if ((value.bits() & CAN_ID_29 & ~CAN_ID_11) != 0) {
            findings.add(entry, CFindings::tr("COB-ID %1 has more than 11 bits, but not bit 29").arg(text));
        } else if (isRestricted(value)) {
            findings.add(entry, CFindings::tr("COB-ID %1 is restricted").arg(text));
        }
    }
}

// What a device sends with: a CAN-ID, and whether it moves with the node-ID.
struct SProducer
{
    const SDictionaryEntry* entry;
    quint64 key;
};

std::optional<SProducer> producer(const SDictionaryEntry* entry)
{
    if (entry == nullptr || !entry->value || !entry->value->isInteger() || !isValid(*entry->value)) {
        return std::nullopt;
    }
    const quint64 bits = entry->value->bits();
    const quint64 canId = bits & ((bits & EXTENDED) != 0 ? CAN_ID_29 : CAN_ID_11);
    if (canId == 0) {
        return std::nullopt;
    }
    return SProducer{entry, canId | (bits & EXTENDED) | (entry->value->usesNodeId() ? NOT_VALID : 0)};
}

// The TPDOs that map something.
QSet<unsigned int> usedTransmitPdos(const SChecked& checked)
{
    QSet<unsigned int> used;
    for (const SPdoMapping& mapping : checked.mappings) {
        const bool mapsSomething =
            std::any_of(mapping.mapped.begin(), mapping.mapped.end(), [](const SMappedObject& mapped) {
                return !mapped.mapsNothing();
            });
        if (mapping.direction == EPdoDirection::Transmit && mapsSomething) {
            used.insert(*mapping.object->index - MAPPING_OFFSET);
        }
    }
    return used;
}

void cobIdClash(const SChecked& checked, CFindings& findings)
{
    const QSet<unsigned int> used = usedTransmitPdos(checked);
    const SDictionaryEntry* const sync = checked.dictionary.variable(SYNC, 0);
    QHash<quint64, const SDictionaryEntry*> first;
    const std::optional<SProducer> syncProducer = producer(sync);
    if (syncProducer && !sync->value->usesNodeId()) {
        first.insert(syncProducer->key, sync);
    }
    for (const SDictionaryEntry& entry : checked.dictionary.entries()) {
        const unsigned int index = entry.index.value_or(0);
        const bool isServer = isBetween(index, FIRST_SDO_SERVER, LAST_SDO_SERVER) && entry.subIndex == 2U;
        const bool isPdo = entry.subIndex == 1U && used.contains(index);
        const bool isEmergency = index == EMCY && !entry.isSubObject;
        const std::optional<SProducer> sender = isServer || isPdo || isEmergency ? producer(&entry) : std::nullopt;
        if (!sender) {
            continue;
        }
        if (const SDictionaryEntry* const other = first.value(sender->key)) {
            findings.add(
                entry, CFindings::tr("COB-ID %1 is also that of %2 (line %3)")
                           .arg(CFindings::quoted(entry.defaultValue, entry.element), other->name(), lineOf(*other)));
        } else {
            first.insert(sender->key, &entry);
        }
    }
}
} // namespace

const CheckRules& cobIdRules()
{
    static const CheckRules rules = {
        {"cob-id", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "A COB-ID is restricted, too long for its kind, or lacks $NODEID"),
         QT_TRANSLATE_NOOP(
             "CFindings", "It collides with other services of the network, or with the same device a second time. Use "
                          "the predefined "
                          "one, such as $NODEID+0x180."),
         cobId},
        {"cob-id-clash", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "Two producers of the device send with the same CAN-ID"),
         QT_TRANSLATE_NOOP(
             "CFindings",
             "Receivers cannot tell them apart. Give one another CAN-ID, or set bit 31 where it is not used."),
         cobIdClash},
    };
    return rules;
}
