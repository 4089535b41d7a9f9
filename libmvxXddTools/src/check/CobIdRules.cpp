#include "canopen/CobIds.h"
#include "check/CCheckRules.h"
#include "check/Walks.h"
#include "names/Objects.h"

#include <QHash>

#include <algorithm>

namespace
{
// What the COB-ID of an entry is used for; nothing for an entry that has none, or that of a PDO, which is looked at
// there.
std::optional<ECobIdUse> useOf(const SEntry& entry)
{
    const unsigned int index = entry.index.value_or(0);
    if (entry.isSubObject) {
        const bool isSdo =
            isBetween(index, FIRST_SDO_SERVER, LAST_SDO_CLIENT) && isBetween(entry.subIndex.value_or(0), 1, 2);
        return isSdo ? std::optional<ECobIdUse>(ECobIdUse::Sdo) : std::nullopt;
    }
    return index == EMCY_COB_ID                           ? std::optional<ECobIdUse>(ECobIdUse::Emergency)
           : index == SYNC_COB_ID || index == TIME_COB_ID ? std::optional<ECobIdUse>(ECobIdUse::Other)
                                                          : std::nullopt;
}

void badCobId(const CDescription& description, CRemarks& findings)
{
    for (const SEntry& entry : description.dictionary().entries()) {
        const std::optional<ECobIdUse> use = useOf(entry);
        const std::optional<CValue> value = use ? entry.current() : std::nullopt;
        const SWords fault = value ? cobIdFault(*value, *use) : SWords();
        if (!fault.isEmpty()) {
            findings.add(entry.placeOf(entry.inForceName()), fault, {quoted(entry.inForce(), entry)});
        }
    }
}

// What a device sends with, and whether that moves with the node-ID; nothing for an entry that states none.
std::optional<quint64> producedWith(const SEntry& entry)
{
    const std::optional<CValue> value = entry.current();
    if (!value || !isValidCobId(*value)) {
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
        const bool isSender = entry.subIndex == 1U && isUsed.value(&description.dictionary().objectOf(entry));
        if (isServer || isSender || (index == EMCY_COB_ID && !entry.isSubObject)) {
            producers.push_back(&entry);
        }
    }
    return producers;
}

void cobIdClash(const CDescription& description, CRemarks& findings)
{
    QHash<quint64, const SEntry*> first;
    const SEntry* const sync = description.dictionary().variable(SYNC_COB_ID, 0);
    const std::optional<quint64> syncId = sync == nullptr ? std::nullopt : producedWith(*sync);
    if (syncId && !sync->current()->usesNodeId()) {
        first.insert(*syncId, sync);
    }
    for (const SEntry* const entry : producersOf(description)) {
        const std::optional<quint64> id = producedWith(*entry);
        const SEntry* const other = id ? first.value(*id) : nullptr;
        if (other != nullptr) {
            findings.add(
                entry->placeOf(entry->inForceName()), CRemarks::say("COB-ID %1 is also that of %2 (line %3)"),
                {quoted(entry->inForce(), *entry), other->place().entry(), SArgument::line(other->element.line())});
        } else if (id) {
            first.insert(*id, entry);
        }
    }
}
} // namespace

const CheckRules& CCheckRules::cobId()
{
    static const CheckRules rules = {
        {COB_ID.id, COB_ID.severity, QT_TR_NOOP("A COB-ID is restricted, has too many bits or lacks $NODEID"),
         QT_TR_NOOP(
             "It collides with other services of the network or with a second device of the same type. Use the predefined one, such as $NODEID+0x180."),
         badCobId, "0x1800:01 defaultValue=\"$NODEID+0x580\"", "0x1800:01 defaultValue=\"$NODEID+0x180\""},
        {COB_ID_MISSING.id, COB_ID_MISSING.severity, QT_TR_NOOP("A PDO states no COB-ID"),
         QT_TR_NOOP("Tools take the predefined one, or none. State it as the default value of sub-index 1."), nullptr,
         "0x1800:01 without defaultValue", "0x1800:01 defaultValue=\"$NODEID+0x180\""},
        {"cob-id-clash", WARNING, QT_TR_NOOP("Two producers of the device send with the same CAN-ID"),
         QT_TR_NOOP(
             "Receivers cannot tell them apart. Give one of them another CAN-ID, or set bit 31 of the unused one."),
         cobIdClash, "0x1800:01 and 0x1801:01 are both $NODEID+0x180", "0x1801:01 is $NODEID+0x280"},
    };
    return rules;
}
