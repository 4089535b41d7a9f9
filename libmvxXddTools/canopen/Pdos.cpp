#include "canopen/Pdos.h"

#include "NIso15745Tags.h"
#include "canopen/ObjectCodes.h"

#include <algorithm>

using namespace NIso15745Tags;

namespace
{
std::optional<EPdoDirection> directionFrom(unsigned int index, unsigned int offset)
{
    if (index >= FIRST_RECEIVE_PDO + offset && index < FIRST_RECEIVE_PDO + offset + PDO_COUNT) {
        return EPdoDirection::Receive;
    }
    if (index >= FIRST_TRANSMIT_PDO + offset && index < FIRST_TRANSMIT_PDO + offset + PDO_COUNT) {
        return EPdoDirection::Transmit;
    }
    return std::nullopt;
}

// 16 bits index, 8 bits sub-index, 8 bits length.
std::optional<SMappedObject> mappedBy(const SDictionaryEntry& entry)
{
    const std::optional<CInteger> value = entry.plainDefault();
    if (!value || value->isNegative() || value->magnitude() > 0xFFFFFFFF) {
        return std::nullopt;
    }
    const auto bits = static_cast<unsigned int>(value->magnitude());
    return SMappedObject{&entry, bits >> 16U, (bits >> 8U) & 0xFFU, bits & 0xFFU};
}
} // namespace

std::optional<EPdoDirection> communicationDirection(unsigned int index)
{
    return directionFrom(index, 0);
}

std::optional<EPdoDirection> mappingDirection(unsigned int index)
{
    return directionFrom(index, MAPPING_OFFSET);
}

std::optional<EPdoDirection> onlyDirection(const SDictionaryEntry& entry)
{
    if (entry.mapping == VAL_OBJ_MAP_RPDO) {
        return EPdoDirection::Receive;
    }
    return entry.mapping == VAL_OBJ_MAP_TPDO ? std::optional<EPdoDirection>(EPdoDirection::Transmit) : std::nullopt;
}

bool forbidsDirection(const SDictionaryEntry& entry, EPdoDirection direction)
{
    return direction == EPdoDirection::Receive ? entry.isReadable() && !entry.isWritable()
                                               : entry.isWritable() && !entry.isReadable();
}

bool SMappedObject::mapsNothing() const
{
    return index == 0 && subIndex == 0 && bits == 0;
}

bool SMappedObject::isDummy() const
{
    return index < 0x20 && subIndex == 0;
}

bool SPdoMapping::isMultiplexed() const
{
    return active.value_or(0) >= MULTIPLEXED;
}

unsigned int SPdoMapping::highestSubIndex() const
{
    unsigned int highest = 0;
    for (const SDictionaryEntry* const entry : entries) {
        highest = std::max(highest, *entry->subIndex);
    }
    return highest;
}

std::vector<SPdoMapping> pdoMappings(const CDictionary& dictionary)
{
    std::vector<SPdoMapping> mappings;
    for (const std::size_t number : dictionary.objects()) {
        const SDictionaryEntry& object = dictionary.entries()[number];
        const auto direction = mappingDirection(object.index.value_or(0));
        if (!direction) {
            continue;
        }
        SPdoMapping mapping;
        mapping.object = &object;
        mapping.direction = *direction;
        for (const SDictionaryEntry* const entry : dictionary.subObjects(object)) {
            if (entry->subIndex == 0U && mapping.count == nullptr) {
                mapping.count = entry;
                const std::optional<CInteger> count = entry->plainDefault();
                if (count && !count->isNegative() && count->magnitude() <= 255) {
                    mapping.active = static_cast<unsigned int>(count->magnitude());
                }
            } else if (entry->subIndex && *entry->subIndex > 0 && *entry->subIndex < STRUCTURE_SUB_INDEX) {
                mapping.entries.push_back(entry);
                if (const std::optional<SMappedObject> mapped = mappedBy(*entry)) {
                    mapping.mapped.push_back(*mapped);
                }
            }
        }
        mappings.push_back(std::move(mapping));
    }
    return mappings;
}
