#include "CCanOpenNames.h"
#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "canopen/ObjectCodes.h"
#include "canopen/Pdos.h"
#include "check/CFindings.h"
#include "check/CheckRules.h"
#include "check/Walks.h"

#include <QHash>

#include <algorithm>
#include <array>

using namespace NIso15745Tags;

namespace
{
// True for the code of an object without sub-objects.
bool isSimple(const SDictionaryEntry& object)
{
    return contains(std::array{CODE_DOMAIN, CODE_DEFTYPE, CODE_VAR}, object.objectType);
}

// True for the code of an object with sub-objects.
bool isComposed(const SDictionaryEntry& object)
{
    return contains(std::array{CODE_DEFSTRUCT, CODE_ARRAY, CODE_RECORD}, object.objectType);
}

void duplicateIndex(const SChecked& checked, CFindings& findings)
{
    forObjects(checked, [&](const SDictionaryEntry& object) {
        const SDictionaryEntry* const first = object.index ? checked.dictionary.object(*object.index) : &object;
        if (first != &object) {
            findings.add(object, CFindings::tr("the object stands in line %1 already").arg(lineOf(*first)));
        }
    });
}

void duplicateSubIndex(const SChecked& checked, CFindings& findings)
{
    forObjects(checked, [&](const SDictionaryEntry& object) {
        QHash<unsigned int, const SDictionaryEntry*> first;
        for (const SDictionaryEntry* const entry : checked.dictionary.subObjects(object)) {
            if (!entry->subIndex) {
                continue;
            }
            if (first.contains(*entry->subIndex)) {
                findings.add(
                    *entry, CFindings::tr("the sub-object stands in line %1 already")
                                .arg(lineOf(*first.value(*entry->subIndex))));
            } else {
                first.insert(*entry->subIndex, entry);
            }
        }
    });
}

void indexRange(const SChecked& checked, CFindings& findings)
{
    forObjects(checked, [&](const SDictionaryEntry& object) {
        if (object.index && !isBetween(*object.index, 0x0001, 0x025F) && !isBetween(*object.index, 0x1000, 0xBFFF)) {
            findings.add(object, CFindings::tr("the index is reserved"));
        }
    });
}

void objectType(const SChecked& checked, CFindings& findings)
{
    for (const SDictionaryEntry& entry : checked.dictionary.entries()) {
        const QString text = entry.element.attribute(ATTR_OBJECT_TYPE);
        const bool isReadable = CXmlValue::toNumber(text, 10, 255).has_value();
        const bool isSingle = entry.objectType == CODE_DOMAIN || entry.objectType == CODE_VAR;
        const bool isKnown = entry.isSubObject ? isSingle : isSimple(entry) || isComposed(entry);
        if (isReadable && !isKnown) {
            findings.add(
                entry, entry.isSubObject ? CFindings::tr("objectType %1 is none of a sub-object (2, 7)").arg(text)
                                         : CFindings::tr("objectType %1 is none of an object (2, 5 to 9)").arg(text));
        }
    }
}

void missingSubObjects(const SChecked& checked, CFindings& findings)
{
    forObjects(checked, [&](const SDictionaryEntry& object) {
        if (isComposed(object) && object.subObjects == 0) {
            findings.add(
                object, CFindings::tr("%1 without sub-objects").arg(CCanOpenNames::objectCode(object.objectType)));
        }
    });
}

void subObjectsOfVariable(const SChecked& checked, CFindings& findings)
{
    forObjects(checked, [&](const SDictionaryEntry& object) {
        if (isSimple(object) && object.subObjects > 0) {
            findings.add(
                object, CFindings::tr("%1 with %2 sub-objects")
                            .arg(CCanOpenNames::objectCode(object.objectType), QString::number(object.subObjects)));
        }
    });
}

void missingSubIndex0(const SChecked& checked, CFindings& findings)
{
    forObjects(checked, [&](const SDictionaryEntry& object) {
        const auto subObjects = checked.dictionary.subObjects(object);
        const bool hasFirst = std::any_of(
            subObjects.begin(), subObjects.end(), [](const SDictionaryEntry* entry) { return entry->subIndex == 0U; });
        if (isComposed(object) && object.subObjects > 0 && !hasFirst) {
            findings.add(
                object, CFindings::tr("%1 without sub-index 0").arg(CCanOpenNames::objectCode(object.objectType)));
        }
    });
}

void missingMandatoryObject(const SChecked& checked, CFindings& findings)
{
    const std::vector<CXmlElement> lists = checked.description.objectLists();
    for (const unsigned int index : {0x1000U, 0x1001U, 0x1018U}) {
        if (!lists.empty() && checked.dictionary.object(index) == nullptr) {
            findings.add(lists.front(), CFindings::tr("there is no object %1").arg(CCanOpenNames::index(index)));
        }
    }
}

void missingErrorControl(const SChecked& checked, CFindings& findings)
{
    const std::vector<CXmlElement> lists = checked.description.objectLists();
    const auto has = [&](unsigned int index) {
        return checked.dictionary.object(index) != nullptr;
    };
    if (!lists.empty() && !has(0x1017) && !(has(0x100C) && has(0x100D))) {
        findings.add(
            lists.front(), CFindings::tr("neither a heartbeat (0x1017) nor node guarding (0x100C and 0x100D)"));
    }
}

void highestSubIndex(const SChecked& checked, CFindings& findings)
{
    forObjects(checked, [&](const SDictionaryEntry& object) {
        const bool countsOthers = object.index && (*object.index == 0x1003 || mappingDirection(*object.index));
        if (!object.isArrayOrRecord() || countsOthers) {
            return;
        }
        const SDictionaryEntry* first = nullptr;
        unsigned int highest = 0;
        for (const SDictionaryEntry* const entry : checked.dictionary.subObjects(object)) {
            const unsigned int subIndex = entry->subIndex.value_or(0);
            highest = subIndex < STRUCTURE_SUB_INDEX ? std::max(highest, subIndex) : highest;
            first = entry->subIndex == 0U && first == nullptr ? entry : first;
        }
        const std::optional<CInteger> stated = first == nullptr ? std::nullopt : first->plainDefault();
        // A device may write how many elements of its own arrays are in use.
        const bool isFixed = first != nullptr && (!first->isWritable() || object.index.value_or(0) < 0x2000);
        if (stated && isFixed && *stated != CInteger(false, highest)) {
            findings.add(
                *first, CFindings::tr("the default %1 is not the highest sub-index %2")
                            .arg(CFindings::quoted(first->defaultValue, first->element), QString::number(highest)));
        }
    });
}

void subNumber(const SChecked& checked, CFindings& findings)
{
    forObjects(checked, [&](const SDictionaryEntry& object) {
        const QString text = object.element.attribute(ATTR_SUB_NUMBER);
        const auto stated = CXmlValue::toNumber(text, 10);
        if (object.subObjects > 0 && stated && *stated != unsigned(object.subObjects)) {
            findings.add(
                object, CFindings::tr("subNumber %1 is not the number of sub-objects %2")
                            .arg(text, QString::number(object.subObjects)));
        }
    });
}

void objectCount(const SChecked& checked, CFindings& findings)
{
    using Kind = CCanOpenNames::EObjectKind;
    QHash<int, std::array<unsigned int, 3>> foundIn; // By where the list begins
    forObjects(checked, [&](const SDictionaryEntry& object) {
        if (object.index) {
            auto& counts = foundIn[object.element.parent().range().begin];
            ++counts[std::size_t(CCanOpenNames::objectKind(*object.index))];
        }
    });
    for (const CXmlElement& list : checked.description.objectLists()) {
        const std::array<unsigned int, 3> found = foundIn.value(list.range().begin);
        const auto compare = [&](QLatin1String attribute, Kind kind) {
            const auto stated = CXmlValue::toNumber(list.attribute(attribute), 10);
            const unsigned int count = found[std::size_t(kind)];
            if (stated && *stated != count) {
                findings.add(
                    list, CFindings::tr("%1 is %2, but there are %3")
                              .arg(attribute, list.attribute(attribute), QString::number(count)));
            }
        };
        compare(ATTR_MANDATORY_OBJECTS, Kind::Mandatory);
        compare(ATTR_OPTIONAL_OBJECTS, Kind::Optional);
        compare(ATTR_MANUFACTURER_OBJECTS, Kind::Manufacturer);
    }
}
} // namespace

const CheckRules& objectRules()
{
    static const CheckRules rules = {
        {"duplicate-index", CXddFinding::SEVERITY_ERROR, QT_TRANSLATE_NOOP("CFindings", "An object stands twice"),
         QT_TRANSLATE_NOOP("CFindings", "Tools refuse the file or keep either one. Remove or renumber one."),
         duplicateIndex},
        {"duplicate-subindex", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP("CFindings", "A sub-object stands twice in its object"),
         QT_TRANSLATE_NOOP("CFindings", "Tools keep either one. Remove or renumber one."), duplicateSubIndex},
        {"index-range", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP("CFindings", "An index is below 0x1000 and no data type, or from 0xC000"),
         QT_TRANSLATE_NOOP("CFindings", "These indexes are reserved, and tools refuse them. Use another one."),
         indexRange},
        {"object-type", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP("CFindings", "objectType is no object code of CiA 301"),
         QT_TRANSLATE_NOOP(
             "CFindings", "Tools do not know what to do with the entry. 7 is VAR, 8 ARRAY, 9 RECORD, 2 DOMAIN."),
         objectType},
        {"missing-subobjects", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP("CFindings", "An array or record has no sub-objects"),
         QT_TRANSLATE_NOOP("CFindings", "Tools cannot access anything of it. Add them, or make it a VAR (7)."),
         missingSubObjects},
        {"subobjects-of-variable", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP("CFindings", "A variable has sub-objects"),
         QT_TRANSLATE_NOOP("CFindings", "Tools drop them or refuse the file. Make it an ARRAY (8) or RECORD (9)."),
         subObjectsOfVariable},
        {"missing-subindex-0", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP("CFindings", "An array or record has no sub-index 0"),
         QT_TRANSLATE_NOOP("CFindings", "Tools read from it how far to go. Add it, as UNSIGNED8."), missingSubIndex0},
        {"missing-mandatory-object", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "0x1000, 0x1001 or 0x1018 is missing"),
         QT_TRANSLATE_NOOP("CFindings", "Every device has these objects, and masters read them at start. Add it."),
         missingMandatoryObject},
        {"missing-error-control", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "There is neither a heartbeat nor node guarding"),
         QT_TRANSLATE_NOOP(
             "CFindings", "A master cannot see whether the device is alive. Add 0x1017, or 0x100C and 0x100D."),
         missingErrorControl},
        {"highest-subindex", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "The default of a fixed sub-index 0 is not the highest sub-index"),
         QT_TRANSLATE_NOOP(
             "CFindings",
             "Tools that go by it stop too early or ask for what is not there. State the highest sub-index below 255."),
         highestSubIndex},
        {"sub-number", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "subNumber is not the number of sub-objects"),
         QT_TRANSLATE_NOOP("CFindings", "Something was added or removed by hand. Count sub-index 0, too."), subNumber},
        {"object-count", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "A stated count of objects is not the number found"),
         QT_TRANSLATE_NOOP("CFindings", "Something was added or removed by hand. Count again, or remove the count."),
         objectCount},
    };
    return rules;
}
