#include "CCanOpenNames.h"
#include "NIso15745Tags.h"
#include "canopen/DataTypes.h"
#include "canopen/Pdos.h"
#include "check/CFindings.h"
#include "check/CheckRules.h"
#include "check/Walks.h"

#include <algorithm>

using namespace NIso15745Tags;

namespace
{
// Most bits of a PDO: the data of one CAN frame.
constexpr unsigned int MAX_PDO_BITS = 64;
constexpr unsigned int MAX_MAPPED = 64;

// The name of a mapped object for a message.
QString nameOf(const SMappedObject& mapped)
{
    return CFindings::tr("%1 sub-index %2").arg(CCanOpenNames::index(mapped.index), QString::number(mapped.subIndex));
}

// What a mapping entry maps; null when it is not there, or a dummy.
const SDictionaryEntry* target(const SChecked& checked, const SMappedObject& mapped)
{
    return mapped.isDummy() ? nullptr : checked.dictionary.variable(mapped.index, mapped.subIndex);
}

// Calls for every mapping entry that maps something.
template <typename Look> void forMapped(const SChecked& checked, Look look)
{
    for (const SPdoMapping& mapping : checked.mappings) {
        for (const SMappedObject& mapped : mapping.mapped) {
            if (!mapped.mapsNothing()) {
                look(mapping, mapped);
            }
        }
    }
}

void pdoWithoutPartner(const SChecked& checked, CFindings& findings)
{
    forObjects(checked, [&](const SDictionaryEntry& object) {
        const unsigned int index = object.index.value_or(0);
        const bool isMapping = mappingDirection(index).has_value();
        if (!isMapping && !communicationDirection(index)) {
            return;
        }
        const unsigned int partner = isMapping ? index - MAPPING_OFFSET : index + MAPPING_OFFSET;
        if (checked.dictionary.object(partner) == nullptr) {
            findings.add(
                object, (isMapping ? CFindings::tr("the PDO has no communication parameters %1")
                                   : CFindings::tr("the PDO has no mapping %1"))
                            .arg(CCanOpenNames::index(partner)));
        }
    });
}

void mappedObjectMissing(const SChecked& checked, CFindings& findings)
{
    forMapped(checked, [&](const SPdoMapping& mapping, const SMappedObject& mapped) {
        if (mapped.isDummy() && mapping.direction == EPdoDirection::Transmit) {
            findings.add(
                *mapped.entry, CFindings::tr("it maps a dummy (%1), which only an RPDO can").arg(nameOf(mapped)));
        } else if (!mapped.isDummy() && target(checked, mapped) == nullptr) {
            findings.add(*mapped.entry, CFindings::tr("it maps %1, which is not there").arg(nameOf(mapped)));
        }
    });
}

void mappedLength(const SChecked& checked, CFindings& findings)
{
    forMapped(checked, [&](const SPdoMapping&, const SMappedObject& mapped) {
        const SDictionaryEntry* const object = target(checked, mapped);
        const unsigned int type = mapped.isDummy() ? mapped.index : object == nullptr ? 0 : object->dataType;
        const int bits = bitSize(type);
        if (bits != 0 && unsigned(bits) != mapped.bits) {
            findings.add(
                *mapped.entry, CFindings::tr("it maps %1 bits of %2, which is %3 with %4 bits")
                                   .arg(
                                       QString::number(mapped.bits), nameOf(mapped), CCanOpenNames::dataType(type),
                                       QString::number(bits)));
        }
    });
}

void mappedObjectNotMappable(const SChecked& checked, CFindings& findings)
{
    forMapped(checked, [&](const SPdoMapping&, const SMappedObject& mapped) {
        const SDictionaryEntry* const object = target(checked, mapped);
        if (object != nullptr && object->mapping == VAL_OBJ_E_MAP_NO) {
            findings.add(
                *mapped.entry,
                CFindings::tr("it maps %1 (line %2), whose PDOmapping is \"no\"").arg(nameOf(mapped), lineOf(*object)));
        }
    });
}

void pdoTooLong(const SChecked& checked, CFindings& findings)
{
    for (const SPdoMapping& mapping : checked.mappings) {
        unsigned int bits = 0;
        for (const SMappedObject& mapped : mapping.mapped) {
            const bool isActive = !mapping.active || *mapped.entry->subIndex <= *mapping.active;
            bits += isActive ? mapped.bits : 0;
        }
        if (bits > MAX_PDO_BITS && !mapping.isMultiplexed()) {
            findings.add(
                *mapping.object, CFindings::tr("its entries have %1 bits together, more than %2")
                                     .arg(QString::number(bits), QString::number(MAX_PDO_BITS)));
        }
    }
}

void mappingCount(const SChecked& checked, CFindings& findings)
{
    for (const SPdoMapping& mapping : checked.mappings) {
        if (!mapping.active || mapping.isMultiplexed()) {
            continue;
        }
        const unsigned int highest = mapping.highestSubIndex();
        if (*mapping.active > MAX_MAPPED || *mapping.active > highest) {
            findings.add(
                *mapping.count, CFindings::tr("%1 entries are active, but %2 is the highest sub-index")
                                    .arg(QString::number(*mapping.active), QString::number(highest)));
        }
        for (const SMappedObject& mapped : mapping.mapped) {
            if (*mapped.entry->subIndex <= *mapping.active && mapped.mapsNothing()) {
                findings.add(
                    *mapped.entry,
                    CFindings::tr("it maps nothing, but is one of %1 active entries").arg(*mapping.active));
            }
        }
    }
}

void mappingGap(const SChecked& checked, CFindings& findings)
{
    for (const SPdoMapping& mapping : checked.mappings) {
        std::vector<bool> isThere(mapping.highestSubIndex() + 1, false);
        for (const SDictionaryEntry* const entry : mapping.entries) {
            isThere[*entry->subIndex] = true;
        }
        const auto gap = std::find(isThere.begin() + 1, isThere.end(), false);
        if (gap != isThere.end()) {
            findings.add(
                *mapping.object,
                CFindings::tr("sub-index %1 is missing below %2")
                    .arg(QString::number(gap - isThere.begin()), QString::number(mapping.highestSubIndex())));
        }
    }
}

// Why an object cannot be in a PDO of a direction; nothing when it can.
QString obstacle(EPdoDirection direction, const SDictionaryEntry& object)
{
    if (forbidsDirection(object, direction)) {
        return CFindings::tr("access \"%1\"").arg(object.access.text);
    }
    const bool isOther = onlyDirection(object).value_or(direction) != direction;
    return isOther ? CFindings::tr("PDOmapping \"%1\"").arg(object.mapping) : QString();
}

void pdoDirection(const SChecked& checked, CFindings& findings)
{
    forVariables(checked, [&](const SDictionaryEntry& entry) {
        const std::optional<EPdoDirection> direction = onlyDirection(entry);
        const QString reason = direction ? obstacle(*direction, entry) : QString();
        if (!reason.isEmpty()) {
            findings.add(entry, CFindings::tr("PDOmapping \"%1\" does not go with %2").arg(entry.mapping, reason));
        }
    });
    forMapped(checked, [&](const SPdoMapping& mapping, const SMappedObject& mapped) {
        const SDictionaryEntry* const object = target(checked, mapped);
        const QString reason = object == nullptr ? QString() : obstacle(mapping.direction, *object);
        if (!reason.isEmpty()) {
            findings.add(
                *mapped.entry,
                (mapping.direction == EPdoDirection::Receive ? CFindings::tr("an RPDO maps %1 (line %2) with %3")
                                                             : CFindings::tr("a TPDO maps %1 (line %2) with %3"))
                    .arg(nameOf(mapped), lineOf(*object), reason));
        }
    });
}

void transmissionType(const SChecked& checked, CFindings& findings)
{
    for (const SDictionaryEntry& entry : checked.dictionary.entries()) {
        const auto direction = communicationDirection(entry.index.value_or(0));
        const std::optional<CInteger> value = entry.plainDefault();
        if (!direction || entry.subIndex != 2U || !value || value->isNegative()) {
            continue;
        }
        const unsigned int last = direction == EPdoDirection::Receive ? 253 : 251;
        if (value->magnitude() >= 241 && value->magnitude() <= last) {
            findings.add(
                entry, CFindings::tr("transmission type %1 is reserved (241 to %2)")
                           .arg(value->text(), QString::number(last)));
        }
    }
}

void heartbeatConsumer(const SChecked& checked, CFindings& findings)
{
    for (const SDictionaryEntry& entry : checked.dictionary.entries()) {
        const std::optional<CInteger> value = entry.plainDefault();
        if (entry.index != 0x1016U || entry.subIndex.value_or(0) == 0 || !value) {
            continue;
        }
        const quint64 bits = value->magnitude();
        if (value->isNegative() || bits >> 24U != 0 || ((bits >> 16U) & 0xFFU) > MAX_NODE_ID) {
            findings.add(
                entry, CFindings::tr("%1 names no node-ID from 1 to 127 in bits 16 to 23, or has bits above these")
                           .arg(CFindings::quoted(entry.defaultValue, entry.element)));
        }
    }
}
} // namespace

const CheckRules& pdoRules()
{
    static const CheckRules rules = {
        {"pdo-without-partner", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP("CFindings", "A PDO has communication parameters without a mapping, or the reverse"),
         QT_TRANSLATE_NOOP("CFindings", "Tools cannot set the PDO up and skip it. Add the other object, 0x200 apart."),
         pdoWithoutPartner},
        {"mapped-object-missing", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP("CFindings", "A PDO maps an object that is not there, or a TPDO a dummy"),
         QT_TRANSLATE_NOOP("CFindings", "Tools refuse the mapping. Mend its entry, or add the object."),
         mappedObjectMissing},
        {"mapped-length", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP("CFindings", "A PDO maps another length than that of the object"),
         QT_TRANSLATE_NOOP(
             "CFindings",
             "All data behind it move. Write the length of the object's type in bits into the last two digits."),
         mappedLength},
        {"mapped-object-not-mappable", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "A PDO maps an object whose PDOmapping is \"no\""),
         QT_TRANSLATE_NOOP("CFindings", "Tools refuse the mapping. Mend the PDOmapping of the object, or the mapping."),
         mappedObjectNotMappable},
        {"pdo-too-long", CXddFinding::SEVERITY_ERROR, QT_TRANSLATE_NOOP("CFindings", "A PDO maps more than 64 bits"),
         QT_TRANSLATE_NOOP("CFindings", "A CAN frame has 8 bytes. Map less, or use another PDO."), pdoTooLong},
        {"mapping-count", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP("CFindings", "Sub-index 0 of a mapping counts entries that are not there or map nothing"),
         QT_TRANSLATE_NOOP("CFindings", "Tools refuse the mapping. State how many entries are in use."), mappingCount},
        {"mapping-gap", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP("CFindings", "The sub-indexes of a mapping have a gap"),
         QT_TRANSLATE_NOOP("CFindings", "Tools stop at the gap. Number the entries without one."), mappingGap},
        {"pdo-direction", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP(
             "CFindings", "An object is mapped, or can be mapped, in a direction that its access forbids"),
         QT_TRANSLATE_NOOP(
             "CFindings", "An RPDO writes objects and a TPDO reads them. Mend the access type, PDOmapping or mapping."),
         pdoDirection},
        {"transmission-type", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "The transmission type of a PDO is reserved"),
         QT_TRANSLATE_NOOP(
             "CFindings", "Devices refuse it. Use 0 to 240, 254 or 255, and 252 or 253 for a TPDO on request."),
         transmissionType},
        {"heartbeat-consumer", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "An entry of 0x1016 has a node-ID above 127, or bits above it"),
         QT_TRANSLATE_NOOP(
             "CFindings", "The heartbeat of no node can be meant. Write 0x00NNTTTT: node-ID and milliseconds."),
         heartbeatConsumer},
    };
    return rules;
}
