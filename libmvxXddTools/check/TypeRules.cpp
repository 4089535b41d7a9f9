#include "CCanOpenNames.h"
#include "NIso15745Tags.h"
#include "canopen/DataTypes.h"
#include "canopen/ObjectCodes.h"
#include "canopen/Pdos.h"
#include "canopen/ProcessNames.h"
#include "check/CFindings.h"
#include "check/CheckRules.h"
#include "check/Walks.h"

#include <array>

using namespace NIso15745Tags;
using namespace NProcessNames;

namespace
{
void subIndex0Type(const SChecked& checked, CFindings& findings)
{
    for (const SDictionaryEntry& entry : checked.dictionary.entries()) {
        const bool isFirst =
            entry.isSubObject && entry.subIndex == 0U && checked.dictionary.objectOf(entry).isArrayOrRecord();
        if (isFirst && entry.dataType != 0 && entry.dataType != TYPE_UNSIGNED8) {
            findings.add(
                entry,
                CFindings::tr("the data type is %1, not UNSIGNED8").arg(CCanOpenNames::dataType(entry.dataType)));
        }
    }
}

void missingDataType(const SChecked& checked, CFindings& findings)
{
    forVariables(checked, [&](const SDictionaryEntry& entry) {
        const bool refersToType = !entry.parameter.element().child(TAG_DATA_TYPE_ID_REF).isNull();
        if (entry.objectType == CODE_VAR && entry.dataType == 0 && !refersToType) {
            findings.add(entry, CFindings::tr("a VAR without a data type"));
        }
    });
}

void unknownDataType(const SChecked& checked, CFindings& findings)
{
    forVariables(checked, [&](const SDictionaryEntry& entry) {
        const bool isKnown = entry.dataType == 0 || valueKind(entry.dataType) != EValueKind::None
                             || isBetween(entry.dataType, 0x40, 0x25F);
        if (!isKnown) {
            findings.add(
                entry,
                isBetween(entry.dataType, 0x20, 0x26)
                    ? CFindings::tr("the data type %1 is that of a record").arg(CCanOpenNames::dataType(entry.dataType))
                    : CFindings::tr("the data type %1 is not known").arg(CCanOpenNames::index(entry.dataType)));
        }
    });
}

void missingAccessType(const SChecked& checked, CFindings& findings)
{
    forVariables(checked, [&](const SDictionaryEntry& entry) {
        if (entry.access.text.isNull()) {
            findings.add(entry, CFindings::tr("no access type is stated"));
        }
    });
}

void noAccess(const SChecked& checked, CFindings& findings)
{
    forVariables(checked, [&](const SDictionaryEntry& entry) {
        const bool isOnlyMapped = entry.isMappable() && entry.index.value_or(0) >= 0x2000;
        if (entry.access.text == VAL_NO_ACCESS && !isOnlyMapped) {
            findings.add(
                entry, CFindings::tr("it can be neither read nor written: access is %1")
                           .arg(CFindings::quoted(entry.access, entry.element)));
        }
    });
}

// An entry and its parameter disagree about an attribute.
void conflict(
    const SDictionaryEntry& entry, QLatin1String attribute, const QString& own, const SStated& other,
    CFindings& findings)
{
    findings.add(
        entry, CFindings::tr("%1 \"%2\" differs from %3 of its parameter")
                   .arg(attribute, own, CFindings::quoted(other, entry.element)));
}

void referenceConflict(const SChecked& checked, CFindings& findings)
{
    forVariables(checked, [&](const SDictionaryEntry& entry) {
        const CParameter& parameter = entry.parameter;
        const CXmlElement& element = entry.element;
        if (parameter.isNull()) {
            return;
        }
        const QString type = parameter.dataType(element.attribute(ATTR_OBJECT_TYPE));
        if (entry.ownsDataType && entry.dataType != TYPE_DOMAIN && !type.isEmpty()
            && type.toUInt(nullptr, 16) != entry.dataType) {
            const SStated other = {CCanOpenNames::dataType(type.toUInt(nullptr, 16)), parameter.element()};
            conflict(entry, ATTR_DATA_TYPE, element.attribute(ATTR_DATA_TYPE), other, findings);
        }
        const QString access = element.attribute(ATTR_ACCESS_TYPE);
        const QString stated = parameter.element().attribute(ATTR_ACCESS);
        const QString accessOfParameter = stated.isNull() ? QString(VAL_OBJ_ACCESS_RO) : parameter.accessType();
        if (!access.isEmpty() && access != accessOfParameter) {
            const SStated other = {stated.isNull() ? QStringLiteral("read") : stated, parameter.element()};
            conflict(entry, ATTR_ACCESS_TYPE, access, other, findings);
        }
        const QString own = element.attribute(ATTR_DEFAULT_VALUE);
        const SStated other = {parameter.defaultValue().attribute(ATTR_VALUE), parameter.defaultValue()};
        if (!own.isEmpty() && other.isGiven() && own != other.text
            && !(entry.value && CValue::read(other.text, entry.dataType) == entry.value)) {
            conflict(entry, ATTR_DEFAULT_VALUE, own, other, findings);
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

// Finds out whether a declared type is another one than that of a sub-object. A block of data may have any.
bool isOtherType(unsigned int declared, const SDictionaryEntry& entry)
{
    return declared != 0 && entry.dataType != 0 && entry.dataType != TYPE_DOMAIN && entry.dataType != declared;
}

void otherType(const CXmlElement& declared, unsigned int type, const SDictionaryEntry& entry, CFindings& findings)
{
    findings.add(
        declared,
        CFindings::tr("the type is %1, but that of %2 (line %3) is %4")
            .arg(CCanOpenNames::dataType(type), entry.name(), lineOf(entry), CCanOpenNames::dataType(entry.dataType)));
}

void typeListConflict(const SChecked& checked, CFindings& findings)
{
    forObjects(checked, [&](const SDictionaryEntry& object) {
        const CXmlElement declared = object.parameter.referredType();
        const auto subObjects = checked.dictionary.subObjects(object);
        if (subObjects.empty()) {
            return;
        }
        if (declared.is(TAG_ARRAY)) {
            const unsigned int type = typeOf(declared);
            for (const SDictionaryEntry* const entry : subObjects) {
                if (entry->subIndex != 0U && isOtherType(type, *entry)) {
                    otherType(declared, type, *entry, findings);
                    return;
                }
            }
        } else if (declared.is(TAG_STRUCT)) {
            const std::vector<CXmlElement> members = declared.children(TAG_VAR_DECLARATION);
            if (members.size() != subObjects.size()) {
                findings.add(
                    declared, CFindings::tr("the structure has %1 members, but %2 (line %3) has %4 sub-objects")
                                  .arg(
                                      QString::number(members.size()), object.name(), lineOf(object),
                                      QString::number(subObjects.size())));
                return;
            }
            for (std::size_t member = 0; member < members.size(); ++member) {
                const unsigned int type = typeOf(members[member]);
                if (isOtherType(type, *subObjects[member])) {
                    otherType(members[member], type, *subObjects[member], findings);
                }
            }
        }
    });
}

// The data type that CiA 301 gives to an object or sub-object; 0 where it gives none.
unsigned int standardType(unsigned int index, unsigned int subIndex)
{
    constexpr std::array variables32 = {0x1000U, 0x1002U, 0x1005U, 0x1006U, 0x1007U, 0x1012U, 0x1013U, 0x1014U};
    constexpr std::array variables16 = {0x100CU, 0x1015U, 0x1017U};
    constexpr std::array variables8 = {0x1001U, 0x100DU, 0x1019U};
    constexpr std::array texts = {0x1008U, 0x1009U, 0x100AU};
    constexpr std::array elements32 = {0x1003U, 0x1010U, 0x1011U, 0x1016U, 0x1018U, 0x1020U, 0x1028U};
    constexpr std::array pdoParameters = {
        0U, TYPE_UNSIGNED32, TYPE_UNSIGNED8, TYPE_UNSIGNED16, TYPE_UNSIGNED8, TYPE_UNSIGNED16, TYPE_UNSIGNED8};
    if (subIndex == 0) {
        return contains(variables32, index)   ? TYPE_UNSIGNED32
               : contains(variables16, index) ? TYPE_UNSIGNED16
               : contains(variables8, index)  ? TYPE_UNSIGNED8
               : contains(texts, index)       ? TYPE_VISIBLE_STRING
                                              : 0;
    }
    if (contains(elements32, index) || mappingDirection(index)) {
        return TYPE_UNSIGNED32;
    }
    if (index == 0x1029) {
        return TYPE_UNSIGNED8;
    }
    if (communicationDirection(index)) {
        return subIndex < pdoParameters.size() ? pdoParameters[subIndex] : 0;
    }
    if (isBetween(index, 0x1200, 0x12FF)) {
        return subIndex <= 2 ? TYPE_UNSIGNED32 : subIndex == 3 ? TYPE_UNSIGNED8 : 0;
    }
    return 0;
}

void standardObjectType(const SChecked& checked, CFindings& findings)
{
    forVariables(checked, [&](const SDictionaryEntry& entry) {
        if (!entry.index || entry.dataType == 0 || (entry.isSubObject && !entry.subIndex)
            || (entry.isSubObject && entry.subIndex == 0U)) {
            return;
        }
        const unsigned int type = standardType(*entry.index, entry.subIndex.value_or(0));
        if (type != 0 && entry.dataType != type) {
            findings.add(
                entry, CFindings::tr("the data type is %1, but CiA 301 gives it %2")
                           .arg(CCanOpenNames::dataType(entry.dataType), CCanOpenNames::dataType(type)));
        }
    });
}
} // namespace

const CheckRules& typeRules()
{
    static const CheckRules rules = {
        {"subindex-0-type", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "Sub-index 0 of an array or record is not UNSIGNED8"),
         QT_TRANSLATE_NOOP("CFindings", "CiA 301 demands that type, and a tool writes that length. Use 0005."),
         subIndex0Type},
        {"missing-data-type", CXddFinding::SEVERITY_ERROR, QT_TRANSLATE_NOOP("CFindings", "A VAR has no data type"),
         QT_TRANSLATE_NOOP(
             "CFindings", "Tools do not know its length and refuse it. Add dataType or a parameter with one."),
         missingDataType},
        {"unknown-data-type", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "The data type of a variable is that of a record, or not known"),
         QT_TRANSLATE_NOOP("CFindings", "Tools do not know its length. Use a type of CiA 301 such as 0007."),
         unknownDataType},
        {"missing-access-type", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP("CFindings", "A variable has no access type"),
         QT_TRANSLATE_NOOP("CFindings", "Tools refuse it or take it for read only. Add ro, wo, rw or const."),
         missingAccessType},
        {"no-access", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "A variable can be neither read nor written"),
         QT_TRANSLATE_NOOP("CFindings", "Nobody can use it. State the access of its parameter, or remove it."),
         noAccess},
        {"reference-conflict", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "dataType, accessType or defaultValue of an entry differs from its parameter"),
         QT_TRANSLATE_NOOP("CFindings", "Tools go by one or the other. State it at one place, or the same at both."),
         referenceConflict},
        {"type-list-conflict", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "An array or structure of the type list does not describe its object"),
         QT_TRANSLATE_NOOP(
             "CFindings", "Tools go by one or the other. Write the same types and members at both places."),
         typeListConflict},
        {"standard-object-type", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "An object of CiA 301 has another data type"),
         QT_TRANSLATE_NOOP(
             "CFindings", "Masters access these objects with the standard's length. Use the standard's type."),
         standardObjectType},
    };
    return rules;
}
