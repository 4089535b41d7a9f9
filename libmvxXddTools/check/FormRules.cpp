#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "canopen/ProcessNames.h"
#include "check/CFindings.h"
#include "check/CheckRules.h"

#include <CCanOpenObject.h>
#include <CNetworkCanOpenProfile.h>

#include <algorithm>
#include <climits>

using namespace NIso15745Tags;
using namespace NProcessNames;

namespace
{
// The writings of numbers. An absent attribute is a null text, and no fault here.

bool areHexadecimalDigits(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar character) {
        const ushort code = character.unicode();
        return (code >= '0' && code <= '9') || (code >= 'A' && code <= 'F') || (code >= 'a' && code <= 'f');
    });
}

bool isIndex(const QString& text)
{
    return text.isNull() || (text.size() == 4 && areHexadecimalDigits(text));
}

bool isSubIndex(const QString& text)
{
    return text.isNull() || (areHexadecimalDigits(text) && CXmlValue::toNumber(text, 16, UCHAR_MAX));
}

bool isOctets(const QString& text)
{
    return text.size() % 2 == 0 && areHexadecimalDigits(text);
}

bool isDecimalByte(const QString& text)
{
    const auto isDigit = [](QChar character) {
        return character >= QLatin1Char('0') && character <= QLatin1Char('9');
    };
    return text.isNull()
           || (std::all_of(text.begin(), text.end(), isDigit) && CXmlValue::toNumber(text, 10, UCHAR_MAX));
}

void missingChildren(const CXmlElement& parent, std::initializer_list<QLatin1String> names, CFindings& findings)
{
    for (const QLatin1String name : names) {
        if (!parent.isNull() && parent.child(name).isNull()) {
            findings.add(parent, CFindings::tr("<%1> lacks <%2>").arg(parent.name(), name));
        }
    }
}

void missingAttributes(const CXmlElement& element, std::initializer_list<QLatin1String> names, CFindings& findings)
{
    for (const QLatin1String name : names) {
        if (!element.has(name)) {
            findings.add(element, CFindings::tr("<%1> lacks %2").arg(element.name(), name));
        }
    }
}

void missingBodies(const SChecked& checked, CFindings& findings)
{
    const CXmlElement root = checked.description.root();
    for (const QLatin1String type : {VAL_DEVICE_BODY, VAL_NETWORK_BODY}) {
        const int count = int(checked.description.bodiesOfType(type).size());
        if (count != 1) {
            findings.add(
                root, CFindings::tr("%1 bodies of the type %2 instead of one").arg(QString::number(count), type));
        }
    }
    if (checked.description.objectLists().empty()) {
        findings.add(root, CFindings::tr("there is no <%1>").arg(TAG_CAN_OPEN_OBJECT_LIST));
    }
}

void missingItem(const SChecked& checked, CFindings& findings)
{
    missingBodies(checked, findings);
    for (const CXmlElement& profile : checked.description.root().children(TAG_PROFILE)) {
        missingChildren(profile, {TAG_PROFILE_HEADER, TAG_PROFILE_BODY}, findings);
        const CXmlElement header = profile.child(TAG_PROFILE_HEADER);
        missingChildren(
            header,
            {TAG_PROFILE_IDENTIFICATION, TAG_PROFILE_REVISION, TAG_PROFILE_NAME, TAG_PROFILE_SOURCE,
             TAG_PROFILE_CLASS_ID, TAG_ISO15745_REFERENCE},
            findings);
        missingChildren(
            header.child(TAG_ISO15745_REFERENCE), {TAG_ISO15745_PART, TAG_ISO15745_EDITION, TAG_ISO15745_TECHNOLOGY},
            findings);
    }
    for (const CXmlElement& element : checked.description.elements()) {
        if (element.is(TAG_CAN_OPEN_OBJECT)) {
            missingAttributes(element, {ATTR_INDEX, ATTR_NAME, ATTR_OBJECT_TYPE}, findings);
        } else if (element.is(TAG_CAN_OPEN_SUB_OBJECT)) {
            missingAttributes(element, {ATTR_SUB_INDEX, ATTR_NAME, ATTR_OBJECT_TYPE}, findings);
        } else if (element.is(TAG_PROFILE_BODY)) {
            missingAttributes(
                element, {ATTR_FILE_NAME, ATTR_FILE_CREATOR, ATTR_FILE_CREATION_DATE, ATTR_FILE_VERSION}, findings);
        } else if (element.is(TAG_DEVICE_IDENTITY)) {
            missingChildren(element, {TAG_VENDOR_NAME, TAG_PRODUCT_NAME}, findings);
        } else if (element.is(TAG_SUPPORTED_BAUD_RATE)) {
            missingAttributes(element, {ATTR_VALUE}, findings);
        } else if (element.is(TAG_DUMMY)) {
            missingAttributes(element, {ATTR_ENTRY}, findings);
        } else if (element.is(TAG_PARAMETER)) {
            missingAttributes(element, {ATTR_UNIQUE_ID}, findings);
        } else if (element.is(TAG_GENERAL_FEATURES)) {
            missingAttributes(element, {ATTR_GRANULARITY}, findings);
        } else if (element.is(TAG_VERSION)) {
            missingAttributes(element, {ATTR_VERSION_TYPE}, findings);
        } else if (element.is(VAL_GLABTYP_LABEL)) {
            missingAttributes(element, {ATTR_LANG}, findings);
        }
    }
}

void badNumber(const SChecked& checked, CFindings& findings)
{
    for (const SDictionaryEntry& entry : checked.dictionary.entries()) {
        const auto demand = [&](QLatin1String attribute, bool isGood, const QString& form) {
            if (!isGood) {
                findings.add(
                    entry,
                    CFindings::tr("%1 \"%2\" is not %3").arg(attribute, entry.element.attribute(attribute), form));
            }
        };
        const auto text = [&](QLatin1String attribute) {
            return entry.element.attribute(attribute);
        };
        demand(ATTR_INDEX, isIndex(text(ATTR_INDEX)), CFindings::tr("four hexadecimal digits"));
        demand(ATTR_SUB_INDEX, isSubIndex(text(ATTR_SUB_INDEX)), CFindings::tr("a hexadecimal number up to FF"));
        for (const QLatin1String attribute : {ATTR_DATA_TYPE, ATTR_OBJ_FLAGS}) {
            demand(attribute, isOctets(text(attribute)), CFindings::tr("an even number of hexadecimal digits"));
        }
        for (const QLatin1String attribute : {ATTR_OBJECT_TYPE, ATTR_SUB_NUMBER}) {
            demand(attribute, isDecimalByte(text(attribute)), CFindings::tr("a decimal number up to 255"));
        }
    }
}

void numberWidth(const SChecked& checked, CFindings& findings)
{
    for (const SDictionaryEntry& entry : checked.dictionary.entries()) {
        const QString text = entry.element.attribute(ATTR_SUB_INDEX);
        if (!text.isNull() && isSubIndex(text) && text.size() != 2) {
            findings.add(entry, CFindings::tr("subIndex \"%1\" does not have two digits").arg(text));
        }
    }
}

// An attribute whose text is none of the format's; an empty one gives nothing.
void unknownWordAt(const CXmlElement& element, QLatin1String attribute, const QStringList& words, CFindings& findings)
{
    const QString text = element.attribute(attribute);
    if (!text.isEmpty() && !words.contains(text)) {
        findings.add(
            element, CFindings::tr("%1 \"%2\" of <%3> is none of: %4")
                         .arg(attribute, text, element.name(), words.join(QLatin1String(", "))));
    }
}

// The words of one of the library's tables, without its invalid one.
template <typename Table> QStringList wordsOf(const Table& table, const QString& invalid)
{
    QStringList words = table.values();
    words.removeAll(invalid);
    return words;
}

void unknownWord(const SChecked& checked, CFindings& findings)
{
    const QString invalid = CCanOpenSubObject::mInvalidStr;
    const QStringList accessTypes = wordsOf(CCanOpenSubObject::mAccessTypeTexts, invalid);
    const QStringList mappings = wordsOf(CCanOpenSubObject::mPdoMappingTexts, invalid);
    const QStringList rates = wordsOf(CNetworkCanOpenProfile::mBaudrateTexts, invalid);
    const QStringList versionTypes = {VAL_VTYPE_SW, VAL_VTYPE_FW, VAL_VTYPE_HW};
    const QStringList accesses = {
        QStringLiteral("const"),
        QStringLiteral("read"),
        QStringLiteral("write"),
        QStringLiteral("readWrite"),
        QStringLiteral("readWriteInput"),
        QStringLiteral("readWriteOutput"),
        VAL_NO_ACCESS};
    QStringList dummies;
    for (int type = 1; type <= 7; ++type) {
        dummies << QStringLiteral("Dummy000%1=0").arg(type) << QStringLiteral("Dummy000%1=1").arg(type);
    }
    for (const CXmlElement& element : checked.description.elements()) {
        if (element.is(TAG_CAN_OPEN_OBJECT) || element.is(TAG_CAN_OPEN_SUB_OBJECT)) {
            unknownWordAt(element, ATTR_ACCESS_TYPE, accessTypes, findings);
            unknownWordAt(element, ATTR_PDO_MAPPING, mappings, findings);
        } else if (element.is(TAG_PARAMETER)) {
            unknownWordAt(element, ATTR_ACCESS, accesses, findings);
        } else if (element.is(TAG_VERSION)) {
            unknownWordAt(element, ATTR_VERSION_TYPE, versionTypes, findings);
        } else if (element.is(TAG_SUPPORTED_BAUD_RATE)) {
            unknownWordAt(element, ATTR_VALUE, rates, findings);
        } else if (element.is(TAG_BAUD_RATE)) {
            unknownWordAt(element, ATTR_DEFAULT_VALUE, rates, findings);
        } else if (element.is(TAG_DUMMY)) {
            unknownWordAt(element, ATTR_ENTRY, dummies, findings);
        }
    }
}

void badDate(const SChecked& checked, CFindings& findings)
{
    for (const SProfile& profile : checked.description.profiles()) {
        const auto demand = [&](QLatin1String attribute, bool isGood, const char* form) {
            const QString text = profile.body.attribute(attribute);
            if (!text.isEmpty() && !isGood) {
                findings.add(
                    profile.body, CFindings::tr("%1 \"%2\" is not %3").arg(attribute, text, QString::fromLatin1(form)));
            }
        };
        for (const QLatin1String date : {ATTR_FILE_CREATION_DATE, ATTR_FILE_MODIFICATION_DATE}) {
            demand(date, CXmlValue::toDate(profile.body.attribute(date)).has_value(), "yyyy-MM-dd");
        }
        for (const QLatin1String time : {ATTR_FILE_CREATION_TIME, ATTR_FILE_MODIFICATION_TIME}) {
            demand(time, CXmlValue::toTime(profile.body.attribute(time)).has_value(), "hh:mm:ss");
        }
    }
}

void duplicateId(const SChecked& checked, CFindings& findings)
{
    for (const CXmlElement& element : checked.description.elements()) {
        const QString id = element.attribute(ATTR_UNIQUE_ID);
        const CXmlElement first = id.isEmpty() ? element : checked.description.byUniqueId(id);
        if (!(first == element)) {
            findings.add(
                element,
                CFindings::tr("uniqueID \"%1\" stands in line %2 already").arg(id, QString::number(first.line())));
        }
    }
}

void danglingReference(const SChecked& checked, CFindings& findings)
{
    for (const CXmlElement& element : checked.description.elements()) {
        const QString id = element.attribute(ATTR_UNIQUE_ID_REF);
        if (id.isEmpty()) {
            continue;
        }
        const CXmlElement referred = checked.description.byUniqueId(id);
        const bool isEntry = element.is(TAG_CAN_OPEN_OBJECT) || element.is(TAG_CAN_OPEN_SUB_OBJECT);
        if (referred.isNull()) {
            findings.add(element, CFindings::tr("uniqueIDRef \"%1\" of <%2> names nothing").arg(id, element.name()));
        } else if (isEntry && !referred.is(TAG_PARAMETER)) {
            findings.add(
                element, CFindings::tr("uniqueIDRef \"%1\" of <%2> names <%3> in line %4, which is no parameter")
                             .arg(id, element.name(), referred.name(), QString::number(referred.line())));
        }
    }
}
} // namespace

const CheckRules& formRules()
{
    static const CheckRules rules = {
        {"not-well-formed", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP("CFindings", "The file is no well-formed XML, or goes beyond the limits for hostile files"),
         QT_TRANSLATE_NOOP("CFindings", "No tool can read it. Mend the place that the message names."), nullptr},
        {"not-a-description", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP("CFindings", "The root, the technology or every body is another one than CANopen's"),
         QT_TRANSLATE_NOOP(
             "CFindings",
             "No CANopen tool can use it. Check that it is the right file, and the xsi:type of its bodies."),
         nullptr},
        {"missing-item", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP("CFindings", "A required element or attribute is missing"),
         QT_TRANSLATE_NOOP(
             "CFindings", "Strict readers refuse the file. Add it; an empty one says nothing, but is there."),
         missingItem},
        {"bad-number", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP(
             "CFindings", "index, subIndex, dataType, objFlags, objectType or subNumber is written in another way"),
         QT_TRANSLATE_NOOP(
             "CFindings",
             "Tools read another number or none. Write index as four, subIndex as two and dataType as four hexadecimal "
             "digits without 0x, the others in decimal."),
         badNumber},
        {"number-width", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "subIndex does not have two digits"),
         QT_TRANSLATE_NOOP("CFindings", "Tools that want one byte skip the sub-object. Write two digits."),
         numberWidth},
        {"unknown-word", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP(
             "CFindings",
             "accessType, PDOmapping, access, versionType, a bit rate or a dummy entry is none of the format's"),
         QT_TRANSLATE_NOOP(
             "CFindings", "Tools ignore it or refuse the file. Write one of the listed texts, capitals included."),
         unknownWord},
        {"bad-date", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "A file date is not yyyy-MM-dd, or a file time not hh:mm:ss"),
         QT_TRANSLATE_NOOP("CFindings", "Tools lose it or refuse the file. Write it in that form."), badDate},
        {"duplicate-id", CXddFinding::SEVERITY_ERROR, QT_TRANSLATE_NOOP("CFindings", "A uniqueID stands twice"),
         QT_TRANSLATE_NOOP(
             "CFindings", "A reference to it means one element in one tool and the other in the next. Rename one."),
         duplicateId},
        {"dangling-reference", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP("CFindings", "A uniqueIDRef names nothing, or that of an object no parameter"),
         QT_TRANSLATE_NOOP(
             "CFindings", "What the reference should bring, such as the data type, is lost. Mend the ID or remove it."),
         danglingReference},
    };
    return rules;
}
