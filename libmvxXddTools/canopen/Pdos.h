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

/** The direction of the PDO whose communication parameters have that index. */
std::optional<EPdoDirection> communicationDirection(unsigned int index);

/** The direction of the PDO whose mapping has that index. */
std::optional<EPdoDirection> mappingDirection(unsigned int index);

/** The one direction in which an entry can be mapped by its "PDOmapping"; nothing when that names none or both. */
std::optional<EPdoDirection> onlyDirection(const SDictionaryEntry& entry);

/** True when the access of an entry forbids a direction: an RPDO writes an entry, a TPDO reads it. */
bool forbidsDirection(const SDictionaryEntry& entry, EPdoDirection direction);

/** An entry of a mapping. */
struct SMappedObject
{
    const SDictionaryEntry* entry = nullptr; ///< The sub-object of the mapping
    unsigned int index = 0;
    unsigned int subIndex = 0;
    unsigned int bits = 0; ///< Length that it states

    bool mapsNothing() const;
    /** True for a place holder: the index of a data type. */
    bool isDummy() const;
};

/** The mapping of one PDO. */
struct SPdoMapping
{
    const SDictionaryEntry* object = nullptr;
    EPdoDirection direction = EPdoDirection::Receive;
    const SDictionaryEntry* count = nullptr;      ///< Sub-index 0, or null
    std::optional<unsigned int> active;           ///< How many entries are active, where that is known
    std::vector<const SDictionaryEntry*> entries; ///< The sub-objects from 1 to 254
    std::vector<SMappedObject> mapped;            ///< Those of them whose default is a plain number

    bool isMultiplexed() const;
    unsigned int highestSubIndex() const;
};

/** Every mapping of a dictionary, in document order. */
std::vector<SPdoMapping> pdoMappings(const CDictionary& dictionary);

#endif
