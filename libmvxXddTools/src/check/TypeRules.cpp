#include "NIso15745Tags.h"
#include "check/CCheckRules.h"
#include "check/Walks.h"
#include "names/DataTypes.h"
#include "names/NFormatWords.h"
#include "names/ObjectCodes.h"

#include <algorithm>
#include <array>

using namespace NIso15745Tags;
using namespace NFormatWords;

namespace
{
void subIndex0Type(const CDescription& description, CRemarks& findings)
{
    for (const SEntry& entry : description.dictionary().entries()) {
        const unsigned int type = entry.dataType.value;
        const bool isFirst =
            entry.isSubObject && entry.subIndex == 0U && description.dictionary().objectOf(entry).isArrayOrRecord();
        if (isFirst && type != 0 && type != TYPE_UNSIGNED8) {
            findings.add(
                entry.placeOf(ATTR_DATA_TYPE), CRemarks::say("the data type is %1 instead of UNSIGNED8"),
                {CCanOpenNames::dataType(type)});
        }
    }
}

void missingDataType(const CDescription& description, CRemarks& findings)
{
    forVariables(description, [&](const SEntry& entry) {
        const bool refersToType = !entry.parameter.child(TAG_DATA_TYPE_ID_REF).isNull();
        if (entry.objectCode != CODE_VAR || entry.dataType.value != 0 || refersToType) {
            return;
        }
        if (entry.dataType.isGiven()) {
            findings.add(
                entry.placeOf(ATTR_DATA_TYPE), CRemarks::say("%1 \"%2\" is not a data type"),
                {description.word(ATTR_DATA_TYPE), entry.dataType.text});
        } else {
            findings.add(entry, CRemarks::say("VAR without a data type"));
        }
    });
}

void unknownDataType(const CDescription& description, CRemarks& findings)
{
    forVariables(description, [&](const SEntry& entry) {
        const unsigned int type = entry.dataType.value;
        const EValueKind kind = valueKind(type);
        if (kind == EValueKind::Record) {
            findings.add(
                entry.placeOf(ATTR_DATA_TYPE), CRemarks::say("the data type %1 is that of a record"),
                {CCanOpenNames::dataType(type)});
        } else if (type != 0 && kind == EValueKind::None && !isBetween(type, FIRST_OWN_TYPE, LAST_TYPE)) {
            findings.add(
                entry.placeOf(ATTR_DATA_TYPE), CRemarks::say("the data type %1 is unknown"),
                {CCanOpenNames::dataType(type)});
        }
    });
}

void missingAccessType(const CDescription& description, CRemarks& findings)
{
    forVariables(description, [&](const SEntry& entry) {
        if (entry.access.value == EAccess::NotStated) {
            findings.add(entry, CRemarks::say("no access type is stated"));
        }
    });
}

void noAccess(const CDescription& description, CRemarks& findings)
{
    forVariables(description, [&](const SEntry& entry) {
        const bool isOnlyMapped = isMappable(entry.mapping) && entry.index.value_or(0) >= 0x2000;
        if (entry.access.value == EAccess::None && !isOnlyMapped) {
            findings.add(
                entry, CRemarks::say("it can be neither read nor written: access is %1"),
                {quoted(entry.access.text, entry.access.source, entry.element)});
        }
    });
}

// An entry and its parameter disagree about an attribute.
void conflict(
    const SEntry& entry, QLatin1String attribute, const QString& stated, const CXmlElement& source, CRemarks& findings)
{
    findings.add(
        entry, CRemarks::say("%1 \"%2\" differs from %3 of its parameter"),
        {attribute, entry.element.attribute(attribute), quoted(stated, source, entry.element)});
}

void referenceConflict(const CDescription& description, CRemarks& findings)
{
    forVariables(description, [&](const SEntry& entry) {
        if (entry.parameter.isNull()) {
            return;
        }
        const SProperties other = CDictionary::fromParameter(entry);
        const unsigned int type = other.dataType.value;
        if (entry.dataType.isOwn() && type != 0 && entry.dataType.value != TYPE_DOMAIN
            && entry.dataType.value != type) {
            conflict(entry, ATTR_DATA_TYPE, CCanOpenNames::dataType(type), entry.parameter, findings);
        }
        if (entry.access.isOwn() && entry.access.value != other.access.value) {
            const QString stated = other.access.isGiven() ? other.access.text : QString(VAL_ACCESS_READ);
            conflict(entry, ATTR_ACCESS_TYPE, stated, entry.parameter, findings);
        }
        const bool isSameText = entry.defaultValue.text == other.defaultValue.text;
        const bool isSameValue = entry.defaultValue.value && other.defaultValue.value == entry.defaultValue.value;
        if (entry.defaultValue.isOwn() && other.defaultValue.isGiven() && !isSameText && !isSameValue) {
            conflict(entry, ATTR_DEFAULT_VALUE, other.defaultValue.text, other.defaultValue.source, findings);
        }
    });
}

// The data type of an element of a type list, 0 when it is no simple one.
unsigned int typeOf(const CXmlElement& declared)
{
    for (CXmlElement child = declared.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (const unsigned int type = simpleType(child.name())) {
            return type;
        }
    }
    return 0;
}

// What a type list declares: the type of the elements of an array, or those of the members of a structure.
struct SDeclared
{
    CXmlElement element;
    unsigned int type;
};
using Declared = std::vector<SDeclared>;

// Finds out whether a declared type is another one than that of a sub-object. A block of data may have any.
bool isOtherType(const SDeclared& declared, const SEntry& entry)
{
    const unsigned int type = entry.dataType.value;
    return declared.type != 0 && type != 0 && type != TYPE_DOMAIN && type != declared.type;
}

void otherType(const SDeclared& declared, const SEntry& entry, CRemarks& findings)
{
    findings.add(
        declared.element, CRemarks::say("<%1> \"%2\" has the type %3, but %4 (line %5) has %6"),
        {SArgument::word(declared.element.name()), declared.element.attribute(ATTR_NAME),
         CCanOpenNames::dataType(declared.type), entry.place().entry(), SArgument::line(entry.element.line()),
         CCanOpenNames::dataType(entry.dataType.value)});
}

void arrayConflict(const SDeclared& declared, const std::vector<const SEntry*>& subObjects, CRemarks& findings)
{
    const auto other = std::find_if(subObjects.begin(), subObjects.end(), [&](const SEntry* entry) {
        return entry->subIndex != 0U && isOtherType(declared, *entry);
    });
    if (other != subObjects.end()) {
        otherType(declared, **other, findings);
    }
}

void structConflict(
    const CXmlElement& structure, const Declared& members, const SEntry& object,
    const std::vector<const SEntry*>& subObjects, CRemarks& findings)
{
    if (members.size() != subObjects.size()) {
        findings.add(
            structure.place(),
            CRemarks::say(
                "the structure has %n member(s), but %1 (line %2) has another number of sub-objects: %3", nullptr,
                int(members.size())),
            {object.place().entry(), SArgument::line(object.element.line()), int(subObjects.size())});
        return;
    }
    for (std::size_t member = 0; member < members.size(); ++member) {
        if (isOtherType(members[member], *subObjects[member])) {
            otherType(members[member], *subObjects[member], findings);
        }
    }
}

Declared declaredIn(const CXmlElement& list)
{
    if (list.is(TAG_ARRAY)) {
        return {{list, typeOf(list)}};
    }
    Declared members;
    for (const CXmlElement& member : list.children(TAG_VAR_DECLARATION)) {
        members.push_back({member, typeOf(member)});
    }
    return members;
}

// Many objects can refer to one list.
void typeListConflict(const CDescription& description, CRemarks& findings)
{
    QHash<int, Declared> known; // By where a list begins
    forObjects(description, [&](const SEntry& object) {
        const CXmlElement list = description.references().referredType(object.parameter);
        const auto subObjects = description.dictionary().subObjects(object);
        if (subObjects.empty() || !(list.is(TAG_ARRAY) || list.is(TAG_STRUCT))) {
            return;
        }
        const int place = list.range().begin;
        if (!known.contains(place)) {
            known.insert(place, declaredIn(list));
        }
        const Declared& declared = known[place];
        list.is(TAG_ARRAY) ? arrayConflict(declared.front(), subObjects, findings)
                           : structConflict(list, declared, object, subObjects, findings);
    });
}

// The data type that CiA 301 gives to a range of entries.
struct SStandardType
{
    unsigned int firstIndex;
    unsigned int lastIndex;
    unsigned int firstSubIndex; // 0 for an object without sub-objects
    unsigned int lastSubIndex;
    unsigned int dataType;
};
constexpr unsigned int ANY = 254; // The last element
constexpr std::array STANDARD_TYPES = {
    SStandardType{0x1000, 0x1000, 0, 0, TYPE_UNSIGNED32},   SStandardType{0x1001, 0x1001, 0, 0, TYPE_UNSIGNED8},
    SStandardType{0x1002, 0x1002, 0, 0, TYPE_UNSIGNED32},   SStandardType{0x1003, 0x1003, 1, ANY, TYPE_UNSIGNED32},
    SStandardType{0x1005, 0x1007, 0, 0, TYPE_UNSIGNED32},   SStandardType{0x1008, 0x100A, 0, 0, TYPE_VISIBLE_STRING},
    SStandardType{0x100C, 0x100C, 0, 0, TYPE_UNSIGNED16},   SStandardType{0x100D, 0x100D, 0, 0, TYPE_UNSIGNED8},
    SStandardType{0x1010, 0x1011, 1, ANY, TYPE_UNSIGNED32}, SStandardType{0x1012, 0x1014, 0, 0, TYPE_UNSIGNED32},
    SStandardType{0x1015, 0x1015, 0, 0, TYPE_UNSIGNED16},   SStandardType{0x1016, 0x1016, 1, ANY, TYPE_UNSIGNED32},
    SStandardType{0x1017, 0x1017, 0, 0, TYPE_UNSIGNED16},   SStandardType{0x1018, 0x1018, 1, ANY, TYPE_UNSIGNED32},
    SStandardType{0x1019, 0x1019, 0, 0, TYPE_UNSIGNED8},    SStandardType{0x1020, 0x1020, 1, ANY, TYPE_UNSIGNED32},
    SStandardType{0x1028, 0x1028, 1, ANY, TYPE_UNSIGNED32}, SStandardType{0x1029, 0x1029, 1, ANY, TYPE_UNSIGNED8},
    SStandardType{0x1200, 0x12FF, 1, 2, TYPE_UNSIGNED32},   SStandardType{0x1200, 0x12FF, 3, 3, TYPE_UNSIGNED8},
    SStandardType{0x1400, 0x15FF, 1, 1, TYPE_UNSIGNED32},   SStandardType{0x1400, 0x15FF, 2, 2, TYPE_UNSIGNED8},
    SStandardType{0x1400, 0x15FF, 3, 3, TYPE_UNSIGNED16},   SStandardType{0x1400, 0x15FF, 4, 4, TYPE_UNSIGNED8},
    SStandardType{0x1400, 0x15FF, 5, 5, TYPE_UNSIGNED16},   SStandardType{0x1400, 0x15FF, 6, 6, TYPE_UNSIGNED8},
    SStandardType{0x1600, 0x17FF, 1, ANY, TYPE_UNSIGNED32}, SStandardType{0x1800, 0x19FF, 1, 1, TYPE_UNSIGNED32},
    SStandardType{0x1800, 0x19FF, 2, 2, TYPE_UNSIGNED8},    SStandardType{0x1800, 0x19FF, 3, 3, TYPE_UNSIGNED16},
    SStandardType{0x1800, 0x19FF, 4, 4, TYPE_UNSIGNED8},    SStandardType{0x1800, 0x19FF, 5, 5, TYPE_UNSIGNED16},
    SStandardType{0x1800, 0x19FF, 6, 6, TYPE_UNSIGNED8},    SStandardType{0x1A00, 0x1BFF, 1, ANY, TYPE_UNSIGNED32},
};

// 0 where CiA 301 gives none.
unsigned int standardType(unsigned int index, unsigned int subIndex)
{
    const auto* const found = std::find_if(STANDARD_TYPES.begin(), STANDARD_TYPES.end(), [&](const SStandardType& row) {
        return isBetween(index, row.firstIndex, row.lastIndex)
               && isBetween(subIndex, row.firstSubIndex, row.lastSubIndex);
    });
    return found == STANDARD_TYPES.end() ? 0 : found->dataType;
}

// Sub-index 0 of a sub-object has a rule of its own.
void standardObjectType(const CDescription& description, CRemarks& findings)
{
    forVariables(description, [&](const SEntry& entry) {
        if (!entry.index || entry.dataType.value == 0 || (entry.isSubObject && entry.subIndex.value_or(0) == 0)) {
            return;
        }
        const unsigned int type = standardType(*entry.index, entry.subIndex.value_or(0));
        if (type != 0 && entry.dataType.value != type) {
            findings.add(
                entry.placeOf(ATTR_DATA_TYPE), CRemarks::say("the data type is %1, but CiA 301 specifies %2"),
                {CCanOpenNames::dataType(entry.dataType.value), CCanOpenNames::dataType(type)});
        }
    });
}
} // namespace

const CheckRules& CCheckRules::type()
{
    static const CheckRules rules = {
        {"subindex-0-type", WARNING, QT_TR_NOOP("Sub-index 0 of an array or record is not UNSIGNED8"),
         QT_TR_NOOP("CiA 301 specifies that type, and tools access that length. Use 0005."), subIndex0Type,
         "subIndex=\"00\" dataType=\"0007\"", "subIndex=\"00\" dataType=\"0005\""},
        {"missing-data-type", ERROR, QT_TR_NOOP("A VAR has no data type"),
         QT_TR_NOOP("Tools do not know its length and refuse it. Add dataType or a parameter with one."),
         missingDataType, "<CANopenObject objectType=\"7\" accessType=\"rw\"/>",
         "<CANopenObject objectType=\"7\" dataType=\"0007\" accessType=\"rw\"/>"},
        {"unknown-data-type", WARNING, QT_TR_NOOP("The data type of a variable is that of a record, or unknown"),
         QT_TR_NOOP("Tools do not know its length. Use a type of CiA 301 such as 0007."), unknownDataType,
         "dataType=\"001C\"", "dataType=\"001B\""},
        {"missing-access-type", ERROR, QT_TR_NOOP("A variable has no access type"),
         QT_TR_NOOP("Tools refuse it or take it as read-only. Add ro, wo, rw or const."), missingAccessType,
         "<CANopenObject objectType=\"7\" dataType=\"0007\"/>",
         "<CANopenObject objectType=\"7\" dataType=\"0007\" accessType=\"rw\"/>"},
        {"no-access", WARNING, QT_TR_NOOP("A variable can be neither read nor written"),
         QT_TR_NOOP("Nobody can use it. State the access of its parameter, or remove it."), noAccess,
         "<parameter access=\"noAccess\">", "<parameter access=\"read\">"},
        {"reference-conflict", WARNING,
         QT_TR_NOOP("dataType, accessType or defaultValue of an entry differs from its parameter"),
         QT_TR_NOOP("Tools go by one or the other. State it once, or the same at both places."), referenceConflict,
         "dataType=\"0006\" with <parameter><UDINT/></parameter>",
         "dataType=\"0007\" with <parameter><UDINT/></parameter>"},
        {"type-list-conflict", WARNING, QT_TR_NOOP("An array or structure of the type list does not match its object"),
         QT_TR_NOOP("Tools go by one or the other. State the same types and members at both places."), typeListConflict,
         "three sub-objects with an <array> of two", "three sub-objects with an <array> of three"},
        {"standard-object-type", WARNING,
         QT_TR_NOOP("An object of CiA 301 has another data type than the standard specifies"),
         QT_TR_NOOP("Masters access these objects with the length of the standard. Use its data type."),
         standardObjectType, "<CANopenObject index=\"1000\" dataType=\"0006\">",
         "<CANopenObject index=\"1000\" dataType=\"0007\">"},
    };
    return rules;
}
