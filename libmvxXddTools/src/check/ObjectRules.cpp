#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "check/CCheckRules.h"
#include "check/Walks.h"
#include "names/ObjectCodes.h"
#include "names/Objects.h"

#include <QHash>

#include <algorithm>
#include <array>

using namespace NIso15745Tags;

namespace
{
const SObjectCode& codeOf(const SEntry& entry)
{
    return objectCodeOf(entry.objectCode.value_or(0));
}

void duplicateIndex(const CDescription& description, CRemarks& findings)
{
    forObjects(description, [&](const SEntry& object) {
        const SEntry* const first = object.index ? description.dictionary().object(*object.index) : &object;
        if (first != &object) {
            findings.add(
                object, CRemarks::say("the object duplicates line %1"), {SArgument::line(first->element.line())});
        }
    });
}

void duplicateSubIndex(const CDescription& description, CRemarks& findings)
{
    forObjects(description, [&](const SEntry& object) {
        QHash<unsigned int, const SEntry*> first;
        for (const SEntry* const entry : description.dictionary().subObjects(object)) {
            if (!entry->subIndex) {
                continue;
            }
            if (first.contains(*entry->subIndex)) {
                findings.add(
                    *entry, CRemarks::say("the sub-object duplicates line %1"),
                    {SArgument::line(first.value(*entry->subIndex)->element.line())});
            } else {
                first.insert(*entry->subIndex, entry);
            }
        }
    });
}

void indexRange(const CDescription& description, CRemarks& findings)
{
    forObjects(description, [&](const SEntry& object) {
        if (object.index && !isBetween(*object.index, 0x0001, LAST_DATA_TYPE)
            && !isBetween(*object.index, 0x1000, 0xBFFF)) {
            findings.add(object, CRemarks::say("the index is reserved"));
        }
    });
}

void objectType(const CDescription& description, CRemarks& findings)
{
    for (const SEntry& entry : description.dictionary().entries()) {
        const bool isKnown = entry.isSubObject ? codeOf(entry).isOfSubObject : codeOf(entry).isOfObject;
        if (entry.objectCode && !isKnown) {
            findings.add(
                entry.placeOf(ATTR_OBJECT_TYPE),
                entry.isSubObject ? CRemarks::say("the object code %1 is not allowed for a sub-object (2 or 7 is)")
                                  : CRemarks::say("the object code %1 is not allowed for an object (2 and 5 to 9 are)"),
                {entry.element.attribute(ATTR_OBJECT_TYPE)});
        }
    }
}

void missingSubObjects(const CDescription& description, CRemarks& findings)
{
    forObjects(description, [&](const SEntry& object) {
        if (codeOf(object).hasSubObjects && object.subObjects == 0) {
            findings.add(object, CRemarks::say("%1 without sub-objects"), {codeOf(object).name});
        }
    });
}

void subObjectsOfVariable(const CDescription& description, CRemarks& findings)
{
    forObjects(description, [&](const SEntry& object) {
        if (codeOf(object).isOfObject && !codeOf(object).hasSubObjects && object.subObjects > 0) {
            findings.add(
                object, CRemarks::say("%1 with %n sub-object(s)", nullptr, object.subObjects), {codeOf(object).name});
        }
    });
}

void missingSubIndex0(const CDescription& description, CRemarks& findings)
{
    forObjects(description, [&](const SEntry& object) {
        const auto subObjects = description.dictionary().subObjects(object);
        const bool hasFirst = std::any_of(
            subObjects.begin(), subObjects.end(), [](const SEntry* entry) { return entry->subIndex == 0U; });
        if (codeOf(object).hasSubObjects && object.subObjects > 0 && !hasFirst) {
            findings.add(object, CRemarks::say("%1 without sub-index 0"), {codeOf(object).name});
        }
    });
}

// A part of a description, such as the objects of a profile, is no device and has not all of a device's objects.
bool isDevice(const CDescription& description)
{
    return !description.body(EProfile::Device).child(TAG_DEVICE_IDENTITY).isNull()
           || description.dictionary().object(0x1000) != nullptr || description.dictionary().object(0x1018) != nullptr;
}

void missingMandatoryObject(const CDescription& description, CRemarks& findings)
{
    const std::vector<CXmlElement> lists = description.objectLists();
    for (const unsigned int index : {0x1000U, 0x1001U, 0x1018U}) {
        if (!lists.empty() && isDevice(description) && description.dictionary().object(index) == nullptr) {
            findings.add(
                lists.front().place(), CRemarks::say("object %1 is missing"),
                {SArgument::word(CCanOpenNames::entry(index))});
        }
    }
}

void missingErrorControl(const CDescription& description, CRemarks& findings)
{
    const std::vector<CXmlElement> lists = description.objectLists();
    const auto has = [&](unsigned int index) {
        return description.dictionary().object(index) != nullptr;
    };
    if (!lists.empty() && isDevice(description) && !has(0x1017) && !(has(0x100C) && has(0x100D))) {
        findings.add(
            lists.front().place(),
            CRemarks::say("there is neither a heartbeat (0x1017) nor node guarding (0x100C and 0x100D)"));
    }
}

// Sub-index 0 of some objects is the number of entries in use.
bool countsEntriesInUse(const SEntry& object)
{
    return object.index && (*object.index == 0x1003 || mappingDirection(*object.index));
}

void highestSubIndex(const CDescription& description, CRemarks& findings)
{
    forObjects(description, [&](const SEntry& object) {
        if (!object.isArrayOrRecord() || countsEntriesInUse(object)) {
            return;
        }
        const SEntry* first = nullptr;
        unsigned int highest = 0;
        for (const SEntry* const entry : description.dictionary().subObjects(object)) {
            const unsigned int subIndex = entry->subIndex.value_or(0);
            highest = subIndex < STRUCTURE_SUB_INDEX ? std::max(highest, subIndex) : highest;
            first = entry->subIndex == 0U && first == nullptr ? entry : first;
        }
        const std::optional<CInteger> stated = first == nullptr ? std::nullopt : first->plainDefault();
        // A device may write how many elements of its own arrays are in use.
        const bool isFixed =
            first != nullptr && (!isWritable(first->access.value) || object.index.value_or(0) < 0x2000);
        if (stated && isFixed && *stated != CInteger(false, highest)) {
            findings.add(
                first->placeOf(ATTR_DEFAULT_VALUE), CRemarks::say("the default %1 is not the highest sub-index %2"),
                {quoted(first->defaultValue, *first), highest});
        }
    });
}

void subNumber(const CDescription& description, CRemarks& findings)
{
    forObjects(description, [&](const SEntry& object) {
        const QString text = object.element.attribute(ATTR_SUB_NUMBER);
        const auto stated = CXmlValue::toNumber(text, 10);
        if (object.subObjects > 0 && stated && *stated != unsigned(object.subObjects)) {
            findings.add(
                object.placeOf(ATTR_SUB_NUMBER), CRemarks::say("%1 is %2, but the number of sub-objects is %3"),
                {description.word(ATTR_SUB_NUMBER), text, object.subObjects});
        }
    });
}

void objectCount(const CDescription& description, CRemarks& findings)
{
    using Kind = CCanOpenNames::EObjectKind;
    const QHash<int, std::array<unsigned int, 3>> foundIn = description.dictionary().countsOfLists();
    for (const CXmlElement& list : description.objectLists()) {
        const std::array<unsigned int, 3> found = foundIn.value(list.range().begin);
        const auto compare = [&](QLatin1String attribute, Kind kind) {
            const auto stated = CXmlValue::toNumber(list.attribute(attribute), 10);
            const unsigned int count = found[std::size_t(kind)];
            if (stated && *stated != count) {
                findings.add(
                    list, CRemarks::say("%1 is %2, but the number of such objects is %3"),
                    {attribute, list.attribute(attribute), count});
            }
        };
        compare(ATTR_MANDATORY_OBJECTS, Kind::Mandatory);
        compare(ATTR_OPTIONAL_OBJECTS, Kind::Optional);
        compare(ATTR_MANUFACTURER_OBJECTS, Kind::Manufacturer);
    }
}
} // namespace

const CheckRules& CCheckRules::object()
{
    static const CheckRules rules = {
        {"duplicate-index", ERROR, QT_TR_NOOP("An object is there twice"),
         QT_TR_NOOP("Tools refuse the file or keep either one. Remove or renumber one."), duplicateIndex,
         "<CANopenObject index=\"2000\"/> <CANopenObject index=\"2000\"/>",
         "<CANopenObject index=\"2000\"/> <CANopenObject index=\"2001\"/>"},
        {"duplicate-subindex", ERROR, QT_TR_NOOP("A sub-object is there twice"),
         QT_TR_NOOP("Tools keep either one. Remove or renumber one."), duplicateSubIndex,
         "subIndex=\"01\" ... subIndex=\"01\"", "subIndex=\"01\" ... subIndex=\"02\""},
        {"index-range", ERROR, QT_TR_NOOP("An index is above 0xBFFF, or below 0x1000 and not that of a data type"),
         QT_TR_NOOP("These indexes are reserved, and tools refuse them. Use another one."), indexRange,
         "index=\"0000\"", "index=\"2000\""},
        {"object-type", ERROR, QT_TR_NOOP("objectType is not an object code that CiA 301 allows there"),
         QT_TR_NOOP("Tools do not know what to do with the entry. 7 is VAR, 8 ARRAY, 9 RECORD, 2 DOMAIN."), objectType,
         "objectType=\"4\"", "objectType=\"7\""},
        {"missing-subobjects", ERROR, QT_TR_NOOP("An array or record has no sub-objects"),
         QT_TR_NOOP("Tools cannot access anything of it. Add them, or make it a VAR (7)."), missingSubObjects,
         "<CANopenObject objectType=\"9\"/>",
         "<CANopenObject objectType=\"9\"><CANopenSubObject subIndex=\"00\"/></CANopenObject>"},
        {"subobjects-of-variable", ERROR, QT_TR_NOOP("A variable has sub-objects"),
         QT_TR_NOOP("Tools drop them or refuse the file. Make it an ARRAY (8) or RECORD (9)."), subObjectsOfVariable,
         "<CANopenObject objectType=\"7\"><CANopenSubObject/></CANopenObject>",
         "<CANopenObject objectType=\"9\"><CANopenSubObject/></CANopenObject>"},
        {"missing-subindex-0", ERROR, QT_TR_NOOP("An array or record has no sub-index 0"),
         QT_TR_NOOP("Tools read the number of elements from it. Add it as UNSIGNED8."), missingSubIndex0,
         "<CANopenObject objectType=\"8\"> with sub-index 01 only",
         "<CANopenObject objectType=\"8\"> with sub-index 00 and 01"},
        {"missing-mandatory-object", WARNING, QT_TR_NOOP("0x1000, 0x1001 or 0x1018 is missing"),
         QT_TR_NOOP("Every device has these objects, and masters read them at start-up. Add it."),
         missingMandatoryObject, "a dictionary without 0x1018",
         "<CANopenObject index=\"1018\" name=\"Identity\" objectType=\"9\">"},
        {"missing-error-control", WARNING, QT_TR_NOOP("There is neither a heartbeat nor node guarding"),
         QT_TR_NOOP("A master cannot see whether the device is alive. Add 0x1017, or 0x100C and 0x100D."),
         missingErrorControl, "neither 0x1017 nor 0x100C and 0x100D",
         "<CANopenObject index=\"1017\" name=\"Producer heartbeat time\">"},
        {"highest-subindex", WARNING,
         QT_TR_NOOP("The default value of a fixed sub-index 0 is not the highest sub-index"),
         QT_TR_NOOP("Tools stop too early or ask for what is not there. State the highest sub-index below 255."),
         highestSubIndex, "subIndex=\"00\" defaultValue=\"5\" where 04 is the last",
         "subIndex=\"00\" defaultValue=\"4\""},
        {"sub-number", WARNING, QT_TR_NOOP("subNumber is not the number of sub-objects"),
         QT_TR_NOOP("Something was added or removed by hand. Count again, with sub-index 0."), subNumber,
         "subNumber=\"4\" with five sub-objects", "subNumber=\"5\""},
        {"object-count", WARNING, QT_TR_NOOP("A stated number of objects is not the number in the dictionary"),
         QT_TR_NOOP("Something was added or removed by hand. Count again, or remove the number."), objectCount,
         "mandatoryObjects=\"2\" with three of them", "mandatoryObjects=\"3\""},
    };
    return rules;
}
