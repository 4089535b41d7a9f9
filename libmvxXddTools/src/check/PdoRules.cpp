#include "NIso15745Tags.h"
#include "check/CCheckRules.h"
#include "check/Walks.h"
#include "names/DataTypes.h"
#include "names/Objects.h"

#include <algorithm>

using namespace NIso15745Tags;

namespace
{
// What an entry says of itself; what a PDO maps is found with the PDO.
void pdoDirection(const CDescription& description, CRemarks& findings)
{
    forVariables(description, [&](const SEntry& entry) {
        const std::optional<EPdoDirection> direction = onlyDirection(entry.mapping);
        if (direction && forbidsDirection(entry.access.value, *direction)) {
            findings.add(
                entry.placeOf(ATTR_PDO_MAPPING), CRemarks::say("PDOmapping \"%1\" contradicts %2"),
                {mappingText(entry.mapping), accessSaid(entry)});
        }
    });
}

void heartbeatConsumer(const CDescription& description, CRemarks& findings)
{
    for (const SEntry& entry : description.dictionary().entries()) {
        const std::optional<CValue> value = entry.current();
        if (entry.index != HEARTBEAT_CONSUMERS || entry.subIndex.value_or(0) == 0 || !value || value->usesNodeId()) {
            continue;
        }
        const quint64 bits = value->bits();
        if (value->base().isNegative() || bits >> 24U != 0 || ((bits >> 16U) & 0xFFU) > MAX_NODE_ID) {
            findings.add(
                entry.placeOf(entry.inForceName()),
                CRemarks::say("%1 has no node-ID from 1 to 127 in bits 16 to 23, or has bits above these"),
                {quoted(entry.inForce(), entry)});
        }
    }
}
} // namespace

// What is wrong with a PDO is found with the PDO, for whoever shows it (PdoDoubts.h).
const CheckRules& CCheckRules::pdo()
{
    static const CheckRules rules = {
        {PDO_WITHOUT_PARTNER.id, PDO_WITHOUT_PARTNER.severity,
         QT_TR_NOOP("A PDO has communication parameters without a mapping, or the reverse"),
         QT_TR_NOOP("Tools cannot set the PDO up and skip it. Add the other object, 0x200 apart."), nullptr,
         "0x1800 without 0x1A00", "0x1800 with 0x1A00"},
        {MAPPED_OBJECT_MISSING.id, MAPPED_OBJECT_MISSING.severity,
         QT_TR_NOOP("A PDO maps an object that does not exist, or a TPDO a dummy"),
         QT_TR_NOOP("Tools refuse the mapping. Correct its entry, or add the object."), nullptr,
         "0x1A00:01 defaultValue=\"0x20000010\" without 0x2000", "0x1A00:01 defaultValue=\"0x20010010\" with 0x2001"},
        {MAPPED_LENGTH.id, MAPPED_LENGTH.severity,
         QT_TR_NOOP("A PDO maps an object with a length other than that of its data type"),
         QT_TR_NOOP(
             "All data behind it are shifted. Write the length of the data type in bits into the last two digits."),
         nullptr, "0x20010020, where 0x2001 is INTEGER16", "0x20010010, where 0x2001 is INTEGER16"},
        {MAPPED_OBJECT_NOT_MAPPABLE.id, MAPPED_OBJECT_NOT_MAPPABLE.severity,
         QT_TR_NOOP("A PDO maps an object that must not be mapped"),
         QT_TR_NOOP("Tools refuse the mapping. Correct the PDO mapping of the object, or the mapping."), nullptr,
         "0x20010010, where 0x2001 has PDOmapping=\"no\"", "0x20010010, where 0x2001 has PDOmapping=\"optional\""},
        {PDO_TOO_LONG.id, PDO_TOO_LONG.severity, QT_TR_NOOP("A PDO maps more than 64 bits"),
         QT_TR_NOOP("A CAN frame has 8 bytes. Map less, or use another PDO."), nullptr, "three entries of 32 bits",
         "two entries of 32 bits"},
        {MAPPING_COUNT.id, MAPPING_COUNT.severity,
         QT_TR_NOOP("Sub-index 0 of a mapping counts entries that do not exist or map nothing"),
         QT_TR_NOOP("Tools refuse the mapping. State how many entries are in use."), nullptr,
         "0x1A00:00 defaultValue=\"3\" with two entries", "0x1A00:00 defaultValue=\"2\" with two entries"},
        {MAPPING_NOT_STATED.id, MAPPING_NOT_STATED.severity,
         QT_TR_NOOP("A mapping does not state how many entries are active, or what an active one maps"),
         QT_TR_NOOP("Tools map all entries, the first ones or none. State a default value."), nullptr,
         "0x1A00:00 without defaultValue", "0x1A00:00 defaultValue=\"2\""},
        {INACTIVE_MAPPING.id, INACTIVE_MAPPING.severity,
         QT_TR_NOOP("An entry of a mapping that is not active maps something that cannot be mapped so"),
         QT_TR_NOOP("Nothing is wrong on the bus until somebody activates it. Correct the entry, or set it to 0."),
         nullptr, "0x1A00:00 defaultValue=\"1\", and 0x1A00:02 maps 0x2000, which is missing",
         "0x1A00:02 defaultValue=\"0\""},
        {MAPPING_GAP.id, MAPPING_GAP.severity, QT_TR_NOOP("The sub-indexes of a mapping have a gap"),
         QT_TR_NOOP("Tools stop at the gap. Number the entries without one."), nullptr,
         "0x1A00:01 and 0x1A00:03 are set, 0x1A00:02 is 0", "0x1A00:01 and 0x1A00:02 are set"},
        {PDO_DIRECTION.id, PDO_DIRECTION.severity,
         QT_TR_NOOP("An object is mapped, or can be mapped, in a direction that its access does not allow"),
         QT_TR_NOOP("An RPDO writes objects and a TPDO reads them. Correct the access, PDOmapping or mapping."),
         pdoDirection, "accessType=\"wo\" PDOmapping=\"TPDO\"", "accessType=\"wo\" PDOmapping=\"RPDO\""},
        {TRANSMISSION_TYPE.id, TRANSMISSION_TYPE.severity, QT_TR_NOOP("The transmission type of a PDO is reserved"),
         QT_TR_NOOP("Devices refuse it. Use 0 to 240, 254 or 255, and 252 or 253 for a TPDO on request."), nullptr,
         "0x1800:02 defaultValue=\"250\"", "0x1800:02 defaultValue=\"255\""},
        {"heartbeat-consumer", WARNING,
         QT_TR_NOOP("An entry of 0x1016 has a node-ID above 127, or bits above the node-ID"),
         QT_TR_NOOP("It does not stand for the heartbeat of any node. Write 0x00NNTTTT: node-ID and milliseconds."),
         heartbeatConsumer, "0x1016:01 defaultValue=\"0x008003E8\"", "0x1016:01 defaultValue=\"0x000103E8\""},
    };
    return rules;
}
