#ifndef MVXXDDTOOLS_CDICTIONARY_H
#define MVXXDDTOOLS_CDICTIONARY_H

#include "CXddEntry.h"
#include "canopen/CReferences.h"
#include "canopen/CValue.h"
#include "canopen/Writings.h"
#include "names/ObjectCodes.h"

#include <QHash>
#include <QMap>

#include <array>
#include <optional>
#include <vector>

/** A property of an entry and where it comes from. */
template <typename Value> struct SProperty
{
    Value value{};
    QString text;       ///< As an attribute states it; null when none does
    CXmlElement source; ///< The element that it comes from; null when it comes from none
    CXddValue::EOrigin origin = CXddValue::ORIGIN_NONE; ///< Whether that is the entry, its parameter or its array

    /** True when a text states it; an empty one gives nothing. */
    bool isGiven() const { return !text.isEmpty(); }
    /** True when the entry itself states it. */
    bool isOwn() const { return isGiven() && origin == CXddValue::ORIGIN_ENTRY; }
};

/** A value or limit: nothing where it is not given, or is no value of the data type. */
using SValueProperty = SProperty<std::optional<CValue>>;

/** What an entry and its parameter can both state. */
struct SProperties
{
    SProperty<unsigned int> dataType; ///< 0 when there is none
    SProperty<EAccess> access{EAccess::NotStated, {}, {}};
    SValueProperty lowLimit;
    SValueProperty highLimit;
    SValueProperty defaultValue;
    SValueProperty actualValue;
};

/** An object or sub-object with what holds for it: what it states itself, else what its parameter states. An element of
 * an array has the data type of the array where there is none otherwise. */
struct SEntry : SProperties
{
    CXmlElement element;
    CXmlElement parameter;          ///< What its "uniqueIDRef" names, if that is a parameter
    unsigned int parameterType = 0; ///< The data type of the parameter; 0 when it has no simple one
    std::size_t object = 0;         ///< Number of the object in the dictionary; its own for an object
    int subObjects = 0;             ///< How many sub-objects follow an object
    bool isSubObject = false;
    std::optional<unsigned int> index;
    std::optional<unsigned int> subIndex; ///< Of a sub-object
    std::optional<unsigned int> objectCode;
    QString name;
    EMapping mapping = EMapping::NotStated;

    /** What remarks about it name. */
    SPlace place() const;
    operator SPlace() const { return place(); }
    /** The same where it is about an attribute of it. */
    SPlace placeOf(QLatin1String attribute) const;
    /** True for what has a value: a sub-object, or an object without sub-objects. */
    bool isVariable() const { return isSubObject || subObjects == 0; }
    /** True for an object of the code ARRAY or RECORD. */
    bool isArrayOrRecord() const { return !isSubObject && (objectCode == CODE_ARRAY || objectCode == CODE_RECORD); }
    /** The default value as a whole number that does not depend on the node-ID. */
    std::optional<CInteger> plainDefault() const;

    /** The value in force: the actual one where that is a value of its type, else the default value. */
    const SValueProperty& inForce() const { return actualValue.value ? actualValue : defaultValue; }
    /** The attribute that states it. */
    QLatin1String inForceName() const;
    /** The value in force as a whole number, which may depend on the node-ID. Without a data type it is read as an
     * unsigned number. */
    std::optional<CValue> current() const;
    /** The same for a node-ID, where it is a number of 32 bits. */
    std::optional<unsigned int> number(unsigned int nodeId = 0) const;
    /** What its limits allow, read with its data type; both ends are nothing where they limit none or contradict each
     * other. An end that is not stated is that of the type. */
    std::pair<QString, QString> range() const;
};

/** The object dictionary of a description. */
class CDictionary
{
public:
    /** The dictionary of the objects in lists. */
    CDictionary(const std::vector<CXmlElement>& lists, CReferences& references);

    /** Every object in document order, each followed by its sub-objects. */
    const std::vector<SEntry>& entries() const { return mEntries; }
    /** Every object with its number among the entries. */
    const std::vector<std::size_t>& objects() const { return mObjects; }

    /** The first object with that index, or null. */
    const SEntry* object(unsigned int index) const;
    /** The first sub-object, or null. */
    const SEntry* subObject(unsigned int index, unsigned int subIndex) const;
    /** A variable: the sub-object, or for sub-index 0 the object without sub-objects; null when there is none. */
    const SEntry* variable(unsigned int index, unsigned int subIndex) const;
    /** The sub-objects of an object. */
    std::vector<const SEntry*> subObjects(const SEntry& object) const;
    /** The object that an entry belongs to; an object itself. */
    const SEntry& objectOf(const SEntry& entry) const { return mEntries[entry.object]; }
    /** The objects in ascending order, each once: of two with one index the first. */
    const QMap<unsigned int, std::size_t>& byIndex() const { return mByIndex; }
    /** The first object with that index, or its first such sub-object; null where there is none. */
    const SEntry* entry(unsigned int index, std::optional<unsigned int> subIndex) const;
    /** What a variable holds for a node-ID, as a number of 32 bits. */
    std::optional<unsigned int> number(unsigned int index, unsigned int subIndex, unsigned int nodeId = 0) const;
    /** How many objects of each kind (CCanOpenNames::EObjectKind) a list has, by where the list begins. */
    QHash<int, std::array<unsigned int, 3>> countsOfLists() const;
    /** The entry that stands in an element of the file, or null. */
    const SEntry* entryIn(const CXmlElement& element) const;

    /** Data type, access and default value in the parameter of an entry, whether or not the entry states them itself.
     */
    static SProperties fromParameter(const SEntry& entry);

    /** The same without what is configured. */
    CDictionary withoutActualValues() const;

private:
    void add(SEntry entry);

    std::vector<SEntry> mEntries;
    std::vector<std::size_t> mObjects;
    QMap<unsigned int, std::size_t> mByIndex;
    QHash<quint64, std::size_t> mBySubIndex; // Index in the upper, sub-index in the lower half
};

/** An entry for programs. */
CXddEntry shownEntry(const SEntry& entry, const CDictionary& dictionary);

/** All entries for programs: the objects in ascending order, each followed by its sub-objects. What has no readable
 * index is left out, and of two objects with one index the second. */
QList<CXddEntry> shownEntries(const CDictionary& dictionary);

/** What is left out there or not understood, and why. */
QList<CXddRemark> leftOutOf(const CDictionary& dictionary);

#endif
