#ifndef MVXXDDTOOLS_PDOS_H
#define MVXXDDTOOLS_PDOS_H

#include "canopen/CDictionary.h"

#include <optional>
#include <vector>

/** @file
 * Process data objects: where CiA 301 keeps their parameters, and what they map.
 */

/** The two directions of a PDO, as seen from the device. */
enum class EPdoDirection
{
    Receive,
    Transmit
};

/** The communication parameters of a direction are at these indexes, their mappings 0x200 above. */
constexpr unsigned int FIRST_RECEIVE_PDO = 0x1400;
constexpr unsigned int FIRST_TRANSMIT_PDO = 0x1800;
constexpr unsigned int PDO_COUNT = 0x200;
constexpr unsigned int MAPPING_OFFSET = 0x200;

/** A sub-index 0 of a mapping from here on says that the PDO is a multiplexed one. */
constexpr unsigned int MULTIPLEXED = 254;

/** Most entries of a mapping, and most bits: the data of one CAN frame. */
constexpr unsigned int MAX_MAPPED = 64;
constexpr unsigned int MAX_PDO_BITS = 64;
constexpr int MAX_PDO_BYTES = 8;
constexpr int BITS_OF_BYTE = 8;

/** Transmission types from here on are reserved, up to 251, or up to 253 for an RPDO, which nobody can request. */
constexpr unsigned int FIRST_RESERVED_TYPE = 241;

/** The last of them. */
constexpr unsigned int lastReservedType(EPdoDirection direction)
{
    return direction == EPdoDirection::Receive ? 253 : 251;
}

/** The direction of the PDO whose communication parameters have that index. */
std::optional<EPdoDirection> communicationDirection(unsigned int index);

/** The direction of the PDO whose mapping has that index. */
std::optional<EPdoDirection> mappingDirection(unsigned int index);

/** The one direction in which a mapping allows an entry; nothing when it allows none or both. */
std::optional<EPdoDirection> onlyDirection(EMapping mapping);

/** True when an access forbids a direction: an RPDO writes an entry, a TPDO reads it. */
bool forbidsDirection(EAccess access, EPdoDirection direction);

/** A sub-object of a mapping, with what it maps. */
struct SPdoField
{
    const SEntry* entry = nullptr; ///< The sub-object
    bool isNumber = false;         ///< It holds a number, which says the rest
    unsigned int index = 0;
    unsigned int subIndex = 0;
    unsigned int bits = 0;          ///< Length that it states
    const SEntry* target = nullptr; ///< The entry of the dictionary; null when it is not there, or a dummy is mapped
    bool isActive = false;          ///< The PDO carries it

    /** True for an entry that is 0: an empty place. */
    bool mapsNothing() const { return index == 0 && subIndex == 0 && bits == 0; }
    /** True for one that takes no room. */
    bool carriesNothing() const { return index == 0 || bits == 0; }
    /** True when it maps a sub-object; where the entry is not there, by its sub-index. */
    bool isSubObject() const { return target == nullptr ? subIndex != 0 : target->isSubObject; }
    /** What it maps, such as "0x6041" or "0x6200:01". */
    QString name() const;
    /** True for a place holder: the index of a data type. */
    bool isDummy() const { return index < 0x20 && subIndex == 0; }
};

/** A PDO as the dictionary describes it. */
struct SPdo
{
    EPdoDirection direction = EPdoDirection::Receive;
    unsigned int number = 0;               ///< From 1
    const SEntry* communication = nullptr; ///< The object with its communication parameters, or null
    const SEntry* mapping = nullptr;       ///< The object with its mapping, or null
    const SEntry* count = nullptr;         ///< Sub-index 0 of the mapping, or null
    std::optional<unsigned int> active;    ///< How many fields sub-index 0 says are active
    std::vector<SPdoField> fields;         ///< The sub-objects of the mapping from 1 to 254

    /** Where remarks about it as a whole belong. */
    SPlace place() const { return (communication != nullptr ? communication : mapping)->place(); }
    bool isTransmit() const { return direction == EPdoDirection::Transmit; }
    bool isMultiplexed() const { return active == MULTIPLEXED || active == MULTIPLEXED + 1; }
    unsigned int highestSubIndex() const { return fields.empty() ? 0 : *fields.back().entry->subIndex; }
};

/** Every PDO of a dictionary: the receive PDOs, then the transmit PDOs, each by its number. */
std::vector<SPdo> pdosOf(const CDictionary& dictionary);

/** How many of the PDOs are of a direction and have communication parameters. */
unsigned int countOf(const std::vector<SPdo>& pdos, EPdoDirection direction);

#endif
