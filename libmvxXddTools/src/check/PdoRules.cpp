#include "NIso15745Tags.h"
#include "check/CCheckRules.h"
#include "check/Walks.h"
#include "names/DataTypes.h"

#include <algorithm>

using namespace NIso15745Tags;

namespace
{
// Calls for every field that maps something.
template <typename Look> void forMapped(const CDescription& description, Look look)
{
    for (const SPdo& pdo : description.pdos()) {
        for (const SPdoField& field : pdo.fields) {
            if (field.isNumber && !field.mapsNothing()) {
                look(pdo, field);
            }
        }
    }
}

void pdoWithoutPartner(const CDescription& description, CRemarks& findings)
{
    forObjects(description, [&](const SEntry& object) {
        const unsigned int index = object.index.value_or(0);
        const bool isMapping = mappingDirection(index).has_value();
        if (!isMapping && !communicationDirection(index)) {
            return;
        }
        const unsigned int partner = isMapping ? index - MAPPING_OFFSET : index + MAPPING_OFFSET;
        if (description.dictionary().object(partner) == nullptr) {
            findings.add(
                object.place(),
                isMapping ? CRemarks::say("the PDO has no communication parameters %1")
                          : CRemarks::say("the PDO has no mapping %1"),
                {CCanOpenNames::entry(partner)});
        }
    });
}

void mappedObjectMissing(const CDescription& description, CRemarks& findings)
{
    forMapped(description, [&](const SPdo& pdo, const SPdoField& field) {
        if (field.isDummy() && pdo.direction == EPdoDirection::Transmit) {
            findings.add(
                *field.entry, CRemarks::say("a TPDO maps a dummy (%1), which only an RPDO can"), {field.name()});
        } else if (!field.isDummy() && field.target == nullptr) {
            findings.add(*field.entry, CRemarks::say("it maps %1, which does not exist"), {field.name()});
        }
    });
}

void mappedLength(const CDescription& description, CRemarks& findings)
{
    forMapped(description, [&](const SPdo&, const SPdoField& field) {
        const unsigned int type = field.isDummy()           ? field.index
                                  : field.target == nullptr ? 0
                                                            : field.target->dataType.value;
        const int bits = bitSize(type);
        if (bits != 0 && unsigned(bits) != field.bits) {
            findings.add(
                *field.entry, CRemarks::say("it maps %1 bits of %2, which is %3 with %4 bits"),
                {field.bits, field.name(), CCanOpenNames::dataType(type), bits});
        }
    });
}

void mappedObjectNotMappable(const CDescription& description, CRemarks& findings)
{
    forMapped(description, [&](const SPdo&, const SPdoField& field) {
        if (field.target != nullptr && field.target->mapping == EMapping::No) {
            findings.add(
                *field.entry, CRemarks::say("it maps %1 (line %2), which must not be mapped"),
                {field.name(), SArgument::line(field.target->element.line())});
        }
    });
}

void pdoTooLong(const CDescription& description, CRemarks& findings)
{
    for (const SPdo& pdo : description.pdos()) {
        unsigned int bits = 0;
        for (const SPdoField& field : pdo.fields) {
            bits += field.isActive ? field.bits : 0;
        }
        if (bits > MAX_PDO_BITS) {
            findings.add(
                *pdo.mapping, CRemarks::say("the active entries have %1 bits in total, more than %2"),
                {bits, MAX_PDO_BITS});
        }
    }
}

void mappingCount(const CDescription& description, CRemarks& findings)
{
    for (const SPdo& pdo : description.pdos()) {
        if (!pdo.active || pdo.isMultiplexed()) {
            continue;
        }
        if (*pdo.active > MAX_MAPPED || *pdo.active > pdo.highestSubIndex()) {
            findings.add(
                *pdo.count, CRemarks::say("%1 entries are active, but %2 is the highest sub-index"),
                {*pdo.active, pdo.highestSubIndex()});
        }
        for (const SPdoField& field : pdo.fields) {
            if (field.isActive && field.isNumber && field.mapsNothing()) {
                findings.add(
                    *field.entry, CRemarks::say("it maps nothing, but is one of %1 active entries"), {*pdo.active});
            }
        }
    }
}

void mappingGap(const CDescription& description, CRemarks& findings)
{
    for (const SPdo& pdo : description.pdos()) {
        unsigned int expected = 1;
        for (const SPdoField& field : pdo.fields) {
            if (*field.entry->subIndex > expected) {
                findings.add(
                    *pdo.mapping, CRemarks::say("sub-index %1 is missing below %2"), {expected, pdo.highestSubIndex()});
                break;
            }
            expected = *field.entry->subIndex + 1;
        }
    }
}

// What an entry says of its access, as a text for a message.
CXddSentence accessOf(const SEntry& entry)
{
    const SProperty<EAccess>& access = entry.access;
    return access.isGiven()
               ? CRemarks::filled(CRemarks::say("access %1"), {quoted(access.text, access.source, entry.element)})
               : CRemarks::filled(
                   CRemarks::say("access \"read\", which is the default of its parameter (line %1)"),
                   {SArgument::line(access.source.line())});
}

// Why an object cannot be in a PDO of a direction; nothing when it can.
CXddSentence obstacle(EPdoDirection direction, const SEntry& object)
{
    if (forbidsDirection(object.access.value, direction)) {
        return accessOf(object);
    }
    const bool isOther = onlyDirection(object.mapping).value_or(direction) != direction;
    return isOther ? CRemarks::filled(CRemarks::say("PDOmapping \"%1\""), {mappingText(object.mapping)})
                   : CXddSentence();
}

void pdoDirection(const CDescription& description, CRemarks& findings)
{
    forVariables(description, [&](const SEntry& entry) {
        const std::optional<EPdoDirection> direction = onlyDirection(entry.mapping);
        if (direction && forbidsDirection(entry.access.value, *direction)) {
            findings.add(
                entry, CRemarks::say("PDOmapping \"%1\" contradicts %2"),
                {mappingText(entry.mapping), accessOf(entry)});
        }
    });
    forMapped(description, [&](const SPdo& pdo, const SPdoField& field) {
        const CXddSentence reason = field.target == nullptr ? CXddSentence() : obstacle(pdo.direction, *field.target);
        if (!reason.isEmpty()) {
            findings.add(
                field.entry->place(),
                pdo.direction == EPdoDirection::Receive ? CRemarks::say("an RPDO maps %1 (line %2), which has %3")
                                                        : CRemarks::say("a TPDO maps %1 (line %2), which has %3"),
                {field.name(), SArgument::line(field.target->element.line()), reason});
        }
    });
}

void transmissionType(const CDescription& description, CRemarks& findings)
{
    for (const SEntry& entry : description.dictionary().entries()) {
        const auto direction = communicationDirection(entry.index.value_or(0));
        const std::optional<CInteger> value = entry.plainDefault();
        if (!direction || entry.subIndex != 2U || !value || value->isNegative()) {
            continue;
        }
        const unsigned int last = direction == EPdoDirection::Receive ? 253 : 251;
        if (value->magnitude() >= 241 && value->magnitude() <= last) {
            findings.add(entry, CRemarks::say("transmission type %1 is reserved (241 to %2)"), {value->text(), last});
        }
    }
}

void heartbeatConsumer(const CDescription& description, CRemarks& findings)
{
    for (const SEntry& entry : description.dictionary().entries()) {
        const std::optional<CInteger> value = entry.plainDefault();
        if (entry.index != 0x1016U || entry.subIndex.value_or(0) == 0 || !value) {
            continue;
        }
        const quint64 bits = value->magnitude();
        if (value->isNegative() || bits >> 24U != 0 || ((bits >> 16U) & 0xFFU) > MAX_NODE_ID) {
            findings.add(
                entry.place(),
                CRemarks::say("%1 has no node-ID from 1 to 127 in bits 16 to 23, or has bits above these"),
                {quoted(entry.defaultValue, entry)});
        }
    }
}
} // namespace

const CheckRules& CCheckRules::pdo()
{
    static const CheckRules rules = {
        {"pdo-without-partner", ERROR,
         QT_TR_NOOP("A PDO has communication parameters without a mapping, or the reverse"),
         QT_TR_NOOP("Tools cannot set the PDO up and skip it. Add the other object, 0x200 apart."), pdoWithoutPartner},
        {"mapped-object-missing", ERROR, QT_TR_NOOP("A PDO maps an object that does not exist, or a TPDO a dummy"),
         QT_TR_NOOP("Tools refuse the mapping. Correct its entry, or add the object."), mappedObjectMissing},
        {"mapped-length", ERROR, QT_TR_NOOP("A PDO maps an object with a length other than that of its data type"),
         QT_TR_NOOP(
             "All data behind it are shifted. Write the length of the data type in bits into the last two digits."),
         mappedLength},
        {"mapped-object-not-mappable", WARNING, QT_TR_NOOP("A PDO maps an object that must not be mapped"),
         QT_TR_NOOP("Tools refuse the mapping. Correct the PDO mapping of the object, or the mapping."),
         mappedObjectNotMappable},
        {"pdo-too-long", ERROR, QT_TR_NOOP("A PDO maps more than 64 bits"),
         QT_TR_NOOP("A CAN frame has 8 bytes. Map less, or use another PDO."), pdoTooLong},
        {"mapping-count", ERROR, QT_TR_NOOP("Sub-index 0 of a mapping counts entries that do not exist or map nothing"),
         QT_TR_NOOP("Tools refuse the mapping. State how many entries are in use."), mappingCount},
        {"mapping-gap", ERROR, QT_TR_NOOP("The sub-indexes of a mapping have a gap"),
         QT_TR_NOOP("Tools stop at the gap. Number the entries without one."), mappingGap},
        {"pdo-direction", WARNING,
         QT_TR_NOOP("An object is mapped, or can be mapped, in a direction that its access does not allow"),
         QT_TR_NOOP("An RPDO writes objects and a TPDO reads them. Correct the access, PDOmapping or mapping."),
         pdoDirection},
        {"transmission-type", WARNING, QT_TR_NOOP("The transmission type of a PDO is reserved"),
         QT_TR_NOOP("Devices refuse it. Use 0 to 240, 254 or 255, and 252 or 253 for a TPDO on request."),
         transmissionType},
        {"heartbeat-consumer", WARNING,
         QT_TR_NOOP("An entry of 0x1016 has a node-ID above 127, or bits above the node-ID"),
         QT_TR_NOOP("It does not stand for the heartbeat of any node. Write 0x00NNTTTT: node-ID and milliseconds."),
         heartbeatConsumer},
    };
    return rules;
}
