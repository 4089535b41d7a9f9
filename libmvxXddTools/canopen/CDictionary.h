#ifndef MVXXDDTOOLS_CDICTIONARY_H
#define MVXXDDTOOLS_CDICTIONARY_H

#include "canopen/CDescription.h"
#include "canopen/CValue.h"

#include <QHash>

#include <optional>
#include <vector>

/** A text that an entry or its parameter states, and where it stands. */
struct SStated
{
    QString text; ///< Null when it is not stated, empty when nothing is given
    CXmlElement where;

    bool isGiven() const;
};

/** An object or sub-object with what holds for it: what it states itself, or what its parameter states. */
struct SDictionaryEntry
{
    CXmlElement element;
    CParameter parameter;
    std::size_t object = 0; ///< Number of the object in the dictionary; its own for an object
    int subObjects = 0;     ///< How many sub-objects follow an object
    std::optional<unsigned int> index;
    std::optional<unsigned int> subIndex; ///< Of a sub-object
    unsigned int objectType = 0;          ///< 0 when it is not readable
    unsigned int dataType = 0;            ///< 0 when there is none
    bool ownsDataType = false;            ///< Its own attribute states it
    SStated access;                       ///< In the words of an object; "noAccess" as it is
    SStated lowLimit;
    SStated highLimit;
    SStated defaultValue;
    SStated actualValue;
    std::optional<CValue> value; ///< The default value, where it is given and readable
    QString mapping;             ///< "PDOmapping"
    bool isSubObject = false;

    /** True for what has a value: a sub-object, or an object without sub-objects. */
    bool isVariable() const;
    /** True for an object of the code ARRAY or RECORD. */
    bool isArrayOrRecord() const;
    /** True for what a PDO can map. */
    bool isMappable() const;
    bool isReadable() const; ///< ro, rw or const
    bool isWritable() const; ///< wo or rw
    /** "0x1018" or "0x1018 sub-index 1". */
    QString name() const;
    /** The default value as a whole number that does not depend on the node-ID. */
    std::optional<CInteger> plainDefault() const;
};

/** The object dictionary of a description. */
class CDictionary
{
public:
    explicit CDictionary(const CDescription& description);

    /** Every object in document order, each followed by its sub-objects. */
    const std::vector<SDictionaryEntry>& entries() const;
    /** Every object with its number among the entries. */
    const std::vector<std::size_t>& objects() const;

    /** The first object with that index, or null. */
    const SDictionaryEntry* object(unsigned int index) const;
    /** The first sub-object, or null. */
    const SDictionaryEntry* subObject(unsigned int index, unsigned int subIndex) const;
    /** A variable: the sub-object, or for sub-index 0 the object without sub-objects; null when there is none. */
    const SDictionaryEntry* variable(unsigned int index, unsigned int subIndex) const;
    /** The sub-objects of an object. */
    std::vector<const SDictionaryEntry*> subObjects(const SDictionaryEntry& object) const;
    /** The object that an entry belongs to; an object itself. */
    const SDictionaryEntry& objectOf(const SDictionaryEntry& entry) const;

private:
    std::vector<SDictionaryEntry> mEntries;
    std::vector<std::size_t> mObjects;
    QHash<unsigned int, std::size_t> mByIndex;
    QHash<quint64, std::size_t> mBySubIndex; // Index in the upper, sub-index in the lower half
};

#endif
