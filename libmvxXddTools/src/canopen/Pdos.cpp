#include "canopen/Pdos.h"

#include "CCanOpenNames.h"
#include "names/ObjectCodes.h"

#include <algorithm>
#include <map>

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

// The value in force, where it does not depend on the node-ID.
std::optional<unsigned int> plainNumber(const SEntry& entry)
{
    const std::optional<CValue> value = entry.current();
    return value && !value->usesNodeId() ? value->base().unsigned32() : std::nullopt;
}

// 16 bits index, 8 bits sub-index, 8 bits length.
SPdoField fieldOf(const SEntry& entry, const CDictionary& dictionary)
{
    SPdoField field;
    field.entry = &entry;
    const std::optional<unsigned int> mapped = plainNumber(entry);
    field.isNumber = mapped.has_value();
    field.index = mapped.value_or(0) >> 16U;
    field.subIndex = (mapped.value_or(0) >> 8U) & 0xFFU;
    field.bits = mapped.value_or(0) & 0xFFU;
    field.target = field.isDummy() ? nullptr : dictionary.variable(field.index, field.subIndex);
    return field;
}

// As many as sub-index 0 says; where it says nothing, those in front of the first that maps nothing.
void activate(SPdo& pdo)
{
    const unsigned int active = std::min(pdo.active.value_or(MAX_MAPPED), MAX_MAPPED);
    for (SPdoField& field : pdo.fields) {
        if (pdo.isMultiplexed() || (!pdo.active && field.mapsNothing())) {
            return;
        }
        field.isActive = *field.entry->subIndex <= active;
    }
}

void readMapping(SPdo& pdo, const CDictionary& dictionary)
{
    for (const SEntry* const entry : dictionary.subObjects(*pdo.mapping)) {
        if (entry->subIndex == 0U && pdo.count == nullptr) {
            pdo.count = entry;
            pdo.active = plainNumber(*entry);
        } else if (entry->subIndex && *entry->subIndex > 0 && *entry->subIndex < STRUCTURE_SUB_INDEX) {
            pdo.fields.push_back(fieldOf(*entry, dictionary));
        }
    }
    std::stable_sort(pdo.fields.begin(), pdo.fields.end(), [](const SPdoField& left, const SPdoField& right) {
        return *left.entry->subIndex < *right.entry->subIndex;
    });
    activate(pdo);
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

std::optional<EPdoDirection> onlyDirection(EMapping mapping)
{
    if (mapping == EMapping::Receive) {
        return EPdoDirection::Receive;
    }
    return mapping == EMapping::Transmit ? std::optional<EPdoDirection>(EPdoDirection::Transmit) : std::nullopt;
}

bool forbidsDirection(EAccess access, EPdoDirection direction)
{
    return direction == EPdoDirection::Receive ? isReadable(access) && !isWritable(access)
                                               : isWritable(access) && !isReadable(access);
}

QString SPdoField::name() const
{
    return CCanOpenNames::entry(index, isSubObject() ? std::optional<unsigned int>(subIndex) : std::nullopt);
}

std::vector<SPdo> pdosOf(const CDictionary& dictionary)
{
    std::map<std::pair<EPdoDirection, unsigned int>, SPdo> pdos;
    const QMap<unsigned int, std::size_t>& objects = dictionary.byIndex();
    for (auto object = objects.lowerBound(FIRST_RECEIVE_PDO);
         object != objects.cend() && object.key() < FIRST_TRANSMIT_PDO + MAPPING_OFFSET + PDO_COUNT; ++object) {
        const std::optional<EPdoDirection> communicates = communicationDirection(object.key());
        const std::optional<EPdoDirection> maps = mappingDirection(object.key());
        if (!communicates && !maps) {
            continue;
        }
        const EPdoDirection direction = communicates ? *communicates : *maps;
        const unsigned int number = object.key() % PDO_COUNT + 1;
        SPdo& pdo = pdos[{direction, number}];
        pdo.direction = direction;
        pdo.number = number;
        (communicates ? pdo.communication : pdo.mapping) = &dictionary.entries()[*object];
        if (maps) {
            readMapping(pdo, dictionary);
        }
    }
    std::vector<SPdo> inOrder;
    inOrder.reserve(pdos.size());
    for (auto& row : pdos) {
        inOrder.push_back(std::move(row.second));
    }
    return inOrder;
}

unsigned int countOf(const std::vector<SPdo>& pdos, EPdoDirection direction)
{
    return unsigned(std::count_if(pdos.begin(), pdos.end(), [direction](const SPdo& pdo) {
        return pdo.direction == direction && pdo.communication != nullptr;
    }));
}
