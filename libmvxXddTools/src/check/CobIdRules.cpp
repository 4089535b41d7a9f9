#include "canopen/CobIds.h"
#include "check/CCheckRules.h"
#include "check/Walks.h"

#include <QHash>

#include <algorithm>

namespace
{
constexpr unsigned int SYNC = 0x1005;
constexpr unsigned int TIME = 0x1012;
constexpr unsigned int EMCY = 0x1014;
constexpr unsigned int FIRST_SDO_SERVER = 0x1200;
constexpr unsigned int LAST_SDO_SERVER = 0x127F;
constexpr unsigned int LAST_SDO = 0x12FF;

bool isSdo(const SEntry& entry)
{
    return isBetween(entry.index.value_or(0), FIRST_SDO_SERVER, LAST_SDO)
           && isBetween(entry.subIndex.value_or(0), 1, 2);
}

bool isPdo(const SEntry& entry)
{
    return entry.subIndex == 1U && communicationDirection(entry.index.value_or(0));
}

bool isSingle(const SEntry& entry)
{
    const unsigned int index = entry.index.value_or(0);
    return !entry.isSubObject && (index == SYNC || index == TIME || index == EMCY);
}

bool isValid(const CValue& value)
{
    return (value.bits() & COB_ID_NOT_VALID) == 0;
}

// True for a predefined CAN-ID that lacks the node-ID.
bool lacksNodeId(const SEntry& entry, const CValue& value)
{
    if (value.usesNodeId()) {
        return false;
    }
    const quint64 step = value.bits() % PDO_CAN_ID_STEP;
    const bool isPdoBase = value.bits() >= FIRST_TRANSMIT_CAN_ID && value.bits() < SDO_TO_CLIENT
                           && (step == FIRST_TRANSMIT_CAN_ID % PDO_CAN_ID_STEP || step == 0);
    const bool isSdoBase = value.bits() == SDO_TO_CLIENT || value.bits() == SDO_TO_SERVER;
    return (isPdo(entry) && isPdoBase) || (isSdo(entry) && isSdoBase);
}

// True when one of the CAN-IDs that a value stands for is restricted.
bool isRestricted(const CValue& value)
{
    const quint64 base = value.bits() & CAN_ID_11;
    const quint64 first = value.usesNodeId() ? base + MIN_NODE_ID : base;
    const quint64 last = value.usesNodeId() ? base + MAX_NODE_ID : base;
    return hasRestrictedCanId(first, last);
}

// What is wrong with a COB-ID; nothing when it can be used. SDOs are at CAN-IDs that others must not use.
SWords faultOf(const SEntry& entry, const CValue& value)
{
    const bool isCanId11 = isValid(value) && (value.bits() & COB_ID_EXTENDED) == 0;
    if (isSdo(entry)) {
        return lacksNodeId(entry, value) ? CRemarks::say("COB-ID %1 lacks $NODEID") : SWords();
    }
    if (isCanId11 && (value.bits() & CAN_ID_29 & ~CAN_ID_11) != 0) {
        return CRemarks::say("COB-ID %1 has more than 11 bits, but bit 29 is not set");
    }
    if (!isCanId11 || !isRestricted(value)) {
        return {};
    }
    return lacksNodeId(entry, value) ? CRemarks::say("COB-ID %1 lacks $NODEID")
                                     : CRemarks::say("COB-ID %1 is restricted");
}

void badCobId(const CDescription& description, CRemarks& findings)
{
    for (const SEntry& entry : description.dictionary().entries()) {
        const std::optional<CValue>& value = entry.defaultValue.value;
        if (!value || !value->isInteger() || !(isSingle(entry) || isSdo(entry) || isPdo(entry))) {
            continue;
        }
        const SWords fault = faultOf(entry, *value);
        if (!fault.isEmpty()) {
            findings.add(entry, fault, {quoted(entry.defaultValue, entry)});
        }
    }
}

// What a device sends with, and whether that moves with the node-ID; nothing for an entry that states none.
std::optional<quint64> producedWith(const SEntry& entry)
{
    const std::optional<CValue>& value = entry.defaultValue.value;
    if (!value || !value->isInteger() || !isValid(*value)) {
        return std::nullopt;
    }
    const quint64 canId = canIdOf(value->bits());
    if (canId == 0) {
        return std::nullopt;
    }
    return canId | (value->bits() & COB_ID_EXTENDED) | (value->usesNodeId() ? COB_ID_NOT_VALID : 0);
}

// The COB-ID entries of all that a device sends with, in document order: SDO servers, the emergency message, and TPDOs
// that map something.
std::vector<const SEntry*> producersOf(const CDescription& description)
{
    QHash<const SEntry*, bool> isUsed; // By the communication parameters of a TPDO
    for (const SPdo& pdo : description.pdos()) {
        const bool mapsSomething = std::any_of(pdo.fields.begin(), pdo.fields.end(), [](const SPdoField& field) {
            return field.isNumber && !field.mapsNothing();
        });
        isUsed.insert(pdo.communication, pdo.direction == EPdoDirection::Transmit && mapsSomething);
    }
    std::vector<const SEntry*> producers;
    for (const SEntry& entry : description.dictionary().entries()) {
        const unsigned int index = entry.index.value_or(0);
        const bool isServer = isBetween(index, FIRST_SDO_SERVER, LAST_SDO_SERVER) && entry.subIndex == 2U;
        const bool isSender = isPdo(entry) && isUsed.value(&description.dictionary().objectOf(entry));
        if (isServer || isSender || (index == EMCY && !entry.isSubObject)) {
            producers.push_back(&entry);
        }
    }
    return producers;
}

void cobIdClash(const CDescription& description, CRemarks& findings)
{
    QHash<quint64, const SEntry*> first;
    const SEntry* const sync = description.dictionary().variable(SYNC, 0);
    const std::optional<quint64> syncId = sync == nullptr ? std::nullopt : producedWith(*sync);
    if (syncId && !sync->defaultValue.value->usesNodeId()) {
        first.insert(*syncId, sync);
    }
    for (const SEntry* const entry : producersOf(description)) {
        const std::optional<quint64> id = producedWith(*entry);
        const SEntry* const other = id ? first.value(*id) : nullptr;
        if (other != nullptr) {
            findings.add(
                *entry, CRemarks::say("COB-ID %1 is also that of %2 (line %3)"),
                {quoted(entry->defaultValue, *entry), other->place().entry(), SArgument::line(other->element.line())});
        } else if (id) {
            first.insert(*id, entry);
        }
    }
}
} // namespace

const CheckRules& CCheckRules::cobId()
{
    static const CheckRules rules = {
        {"cob-id", WARNING, QT_TR_NOOP("A COB-ID is restricted, has too many bits or lacks $NODEID"),
         QT_TR_NOOP(
             "It collides with other services of the network or with a second device of the same type. Use the predefined one, such as $NODEID+0x180."),
         badCobId},
        {"cob-id-clash", WARNING, QT_TR_NOOP("Two producers of the device send with the same CAN-ID"),
         QT_TR_NOOP(
             "Receivers cannot tell them apart. Give one of them another CAN-ID, or set bit 31 of the unused one."),
         cobIdClash},
    };
    return rules;
}
