#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "check/CCheckRules.h"
#include "check/Walks.h"
#include "names/Hexadecimal.h"
#include "names/NFormatWords.h"

#include <algorithm>
#include <climits>

using namespace NIso15745Tags;
using namespace NFormatWords;

namespace
{
// What an element has to have.
struct SRequired
{
    QLatin1String element;
    std::vector<QLatin1String> children;
    std::vector<QLatin1String> attributes;
};

const std::vector<SRequired>& requiredItems()
{
    static const std::vector<SRequired> required = {
        {TAG_PROFILE, {TAG_PROFILE_HEADER, TAG_PROFILE_BODY}, {}},
        {TAG_PROFILE_HEADER,
         {TAG_PROFILE_IDENTIFICATION, TAG_PROFILE_REVISION, TAG_PROFILE_NAME, TAG_PROFILE_SOURCE, TAG_PROFILE_CLASS_ID,
          TAG_ISO15745_REFERENCE},
         {}},
        {TAG_ISO15745_REFERENCE, {TAG_ISO15745_PART, TAG_ISO15745_EDITION, TAG_ISO15745_TECHNOLOGY}, {}},
        {TAG_PROFILE_BODY, {}, {ATTR_FILE_NAME, ATTR_FILE_CREATOR, ATTR_FILE_CREATION_DATE, ATTR_FILE_VERSION}},
        {TAG_DEVICE_IDENTITY, {TAG_VENDOR_NAME, TAG_PRODUCT_NAME}, {}},
        {TAG_SUPPORTED_BAUD_RATE, {}, {ATTR_VALUE}},
        {TAG_DUMMY, {}, {ATTR_ENTRY}},
        {TAG_PARAMETER, {}, {ATTR_UNIQUE_ID}},
        {TAG_GENERAL_FEATURES, {}, {ATTR_GRANULARITY}},
        {TAG_VERSION, {}, {ATTR_VERSION_TYPE}},
        {VAL_GLABTYP_LABEL, {}, {ATTR_LANG}},
    };
    return required;
}

void missingBodies(const CDescription& description, CRemarks& findings)
{
    const SPlace root = description.root().place();
    for (const QLatin1String type : {VAL_DEVICE_BODY, VAL_NETWORK_BODY}) {
        const auto count = description.bodiesOfType(type).size();
        if (count != 1) {
            findings.add(root, CRemarks::say("%1 bodies of the type %2 instead of one"), {int(count), type});
        }
    }
    if (description.objectLists().empty()) {
        findings.add(root, CRemarks::say("<%1> is missing"), {TAG_CAN_OPEN_OBJECT_LIST});
    }
}

void missingAttributes(
    const SPlace& place, const CXmlElement& element, QLatin1String name, const std::vector<QLatin1String>& attributes,
    CRemarks& findings)
{
    for (const QLatin1String attribute : attributes) {
        if (!element.has(attribute)) {
            findings.add(place, CRemarks::say("%1 is missing in <%2>"), {attribute, name});
        }
    }
}

void missingItem(const CDescription& description, CRemarks& findings)
{
    missingBodies(description, findings);
    for (const CXmlElement& element : description.tree().all()) {
        for (const SRequired& required : requiredItems()) {
            if (!element.is(required.element)) {
                continue;
            }
            for (const QLatin1String child : required.children) {
                if (element.child(child).isNull()) {
                    findings.add(element, CRemarks::say("<%1> is missing in <%2>"), {child, required.element});
                }
            }
            missingAttributes(element.place(), element, required.element, required.attributes, findings);
        }
    }
    for (const SEntry& entry : description.dictionary().entries()) {
        missingAttributes(
            entry.place(), entry.element, entry.isSubObject ? TAG_CAN_OPEN_SUB_OBJECT : TAG_CAN_OPEN_OBJECT,
            {entry.isSubObject ? ATTR_SUB_INDEX : ATTR_INDEX, ATTR_NAME, ATTR_OBJECT_TYPE}, findings);
    }
}

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

void badNumber(const CDescription& description, CRemarks& findings)
{
    for (const SEntry& entry : description.dictionary().entries()) {
        const auto demand = [&](QLatin1String attribute, bool (*isGood)(const QString&), const SWords& words) {
            const QString text = entry.element.attribute(attribute);
            if (isGood(text)) {
                return;
            }
            if (hasHexadecimalPrefix(text)) {
                findings.add(entry, CRemarks::say("%1 \"%2\" has the prefix 0x"), {attribute, text});
            } else {
                findings.add(entry, words, {attribute, text});
            }
        };
        demand(ATTR_INDEX, isIndex, CRemarks::say("%1 \"%2\" is not four hexadecimal digits"));
        demand(ATTR_SUB_INDEX, isSubIndex, CRemarks::say("%1 \"%2\" is not a hexadecimal number up to FF"));
        for (const QLatin1String attribute : {ATTR_DATA_TYPE, ATTR_OBJ_FLAGS}) {
            demand(attribute, isOctets, CRemarks::say("%1 \"%2\" is not an even number of hexadecimal digits"));
        }
        for (const QLatin1String attribute : {ATTR_OBJECT_TYPE, ATTR_SUB_NUMBER}) {
            demand(attribute, isDecimalByte, CRemarks::say("%1 \"%2\" is not a decimal number up to 255"));
        }
    }
}

void numberWidth(const CDescription& description, CRemarks& findings)
{
    for (const SEntry& entry : description.dictionary().entries()) {
        const QString text = entry.element.attribute(ATTR_SUB_INDEX);
        if (!text.isNull() && isSubIndex(text) && text.size() != 2) {
            findings.add(entry, CRemarks::say("subIndex \"%1\" does not have two digits"), {text});
        }
    }
}

// An attribute and the words that the format has for it.
struct SKnownWords
{
    QLatin1String element;
    QLatin1String attribute;
    QStringList words;
};

// The words of one of the reader's tables, without its invalid one.
template <typename Table> QStringList wordsOf(const Table& table)
{
    QStringList words = table.values();
    words.removeAll(CCanOpenSubObject::mInvalidStr);
    return words;
}

QStringList dummyWords()
{
    QStringList words;
    for (int type = 1; type <= 7; ++type) {
        words << QStringLiteral("Dummy000%1=0").arg(type) << QStringLiteral("Dummy000%1=1").arg(type);
    }
    return words;
}

const std::vector<SKnownWords>& knownWords()
{
    static const QStringList accessTypes = wordsOf(CCanOpenSubObject::mAccessTypeTexts);
    static const QStringList mappings = wordsOf(CCanOpenSubObject::mPdoMappingTexts);
    static const QStringList bitRates = wordsOf(CNetworkCanOpenProfile::mBaudrateTexts);
    static const std::vector<SKnownWords> words = {
        {TAG_CAN_OPEN_OBJECT, ATTR_ACCESS_TYPE, accessTypes},
        {TAG_CAN_OPEN_OBJECT, ATTR_PDO_MAPPING, mappings},
        {TAG_CAN_OPEN_SUB_OBJECT, ATTR_ACCESS_TYPE, accessTypes},
        {TAG_CAN_OPEN_SUB_OBJECT, ATTR_PDO_MAPPING, mappings},
        {TAG_PARAMETER, ATTR_ACCESS, accessWordsOfParameters()},
        {TAG_VERSION, ATTR_VERSION_TYPE, {VAL_VTYPE_SW, VAL_VTYPE_FW, VAL_VTYPE_HW}},
        {TAG_SUPPORTED_BAUD_RATE, ATTR_VALUE, bitRates},
        {TAG_BAUD_RATE, ATTR_DEFAULT_VALUE, bitRates},
        {TAG_DUMMY, ATTR_ENTRY, dummyWords()},
    };
    return words;
}

// An attribute that is empty gives nothing.
void unknownWord(const CDescription& description, CRemarks& findings)
{
    for (const CXmlElement& element : description.tree().all()) {
        for (const SKnownWords& known : knownWords()) {
            const QString text = element.is(known.element) ? element.attribute(known.attribute) : QString();
            if (!text.isEmpty() && !known.words.contains(text)) {
                findings.add(
                    description.placeOf(element), CRemarks::say("%1 \"%2\" of <%3> is not one of: %4"),
                    {known.attribute, text, known.element, SArgument::word(known.words.join(QLatin1String(", ")))});
            }
        }
    }
}

void badDate(const CDescription& description, CRemarks& findings)
{
    for (const SProfile& profile : description.profiles()) {
        const auto demand = [&](QLatin1String attribute, bool isGood, QLatin1String form) {
            const QString text = profile.body.attribute(attribute);
            if (!text.isEmpty() && !isGood) {
                findings.add(profile.body, CRemarks::say("%1 \"%2\" is not %3"), {attribute, text, form});
            }
        };
        for (const QLatin1String date : {ATTR_FILE_CREATION_DATE, ATTR_FILE_MODIFICATION_DATE}) {
            demand(date, CXmlValue::toDate(profile.body.attribute(date)).has_value(), QLatin1String("yyyy-MM-dd"));
        }
        for (const QLatin1String time : {ATTR_FILE_CREATION_TIME, ATTR_FILE_MODIFICATION_TIME}) {
            demand(time, CXmlValue::toTime(profile.body.attribute(time)).has_value(), QLatin1String("hh:mm:ss"));
        }
    }
}

void duplicateId(const CDescription& description, CRemarks& findings)
{
    for (const CXmlElement& element : description.tree().all()) {
        const QString id = element.attribute(ATTR_UNIQUE_ID);
        const CXmlElement first = id.isEmpty() ? element : description.references().byId(id);
        if (!(first == element)) {
            findings.add(
                element, CRemarks::say("uniqueID \"%1\" duplicates line %2"), {id, SArgument::line(first.line())});
        }
    }
}

void danglingReference(const CDescription& description, CRemarks& findings)
{
    for (const CXmlElement& element : description.tree().all()) {
        const QString id = element.attribute(ATTR_UNIQUE_ID_REF);
        if (id.isEmpty()) {
            continue;
        }
        const CXmlElement referred = description.references().byId(id);
        const SPlace place = description.placeOf(element);
        if (referred.isNull()) {
            findings.add(place, CRemarks::say("uniqueIDRef \"%1\" of <%2> refers to nothing"), {id, element.name()});
        } else if (place.isEntry && !referred.is(TAG_PARAMETER)) {
            findings.add(
                place, CRemarks::say("uniqueIDRef \"%1\" of <%2> refers to <%3> in line %4, which is not a parameter"),
                {id, element.name(), referred.name(), SArgument::line(referred.line())});
        }
    }
}
} // namespace

const CheckRules& CCheckRules::form()
{
    static const CheckRules rules = {
        {"not-well-formed", ERROR,
         QT_TR_NOOP("The file is not well-formed XML or exceeds the limits for hostile files"),
         QT_TR_NOOP("No tool can read it. Fix the place that the message names."), nullptr, "<label lang=\"en\">Speed",
         "<label lang=\"en\">Speed</label>"},
        {"not-a-description", ERROR, QT_TR_NOOP("The root, the technology or the bodies are not those of CANopen"),
         QT_TR_NOOP("No CANopen tool can use it. Check that it is the right file, and the xsi:type of its bodies."),
         nullptr, "<ProfileTechnology>DeviceNet</ProfileTechnology>", "<ProfileTechnology>CANopen</ProfileTechnology>"},
        {"missing-item", ERROR, QT_TR_NOOP("A required element or attribute is missing"),
         QT_TR_NOOP("Strict readers refuse the file. Add it; where there is nothing to say, an empty one."),
         missingItem, "<ProfileBody fileName=\"drive.xdd\">",
         "<ProfileBody fileName=\"drive.xdd\" fileCreator=\"Works\" fileCreationDate=\"2024-02-29\" fileVersion=\"1\">"},
        {"bad-number", ERROR,
         QT_TR_NOOP(
             "index, subIndex, dataType, objFlags, objectType or subNumber is not written as the format demands"),
         QT_TR_NOOP(
             "Tools read another number or none. Write index as four, subIndex as two and dataType as four hexadecimal digits without 0x, and the others in decimal."),
         badNumber, "<CANopenObject index=\"0x1000\" dataType=\"7\">",
         "<CANopenObject index=\"1000\" dataType=\"0007\">"},
        {"number-width", WARNING, QT_TR_NOOP("subIndex does not have two digits"),
         QT_TR_NOOP("Tools that expect one byte skip the sub-object. Write two digits."), numberWidth, "subIndex=\"1\"",
         "subIndex=\"01\""},
        {"unknown-word", ERROR,
         QT_TR_NOOP(
             "accessType, PDOmapping, access, versionType, a bit rate or a dummy entry is not a word of the format"),
         QT_TR_NOOP("Tools ignore it or refuse the file. Write one of the listed words, with its capitals."),
         unknownWord, "accessType=\"RW\"", "accessType=\"rw\""},
        {"bad-date", WARNING, QT_TR_NOOP("A file date is not yyyy-MM-dd, or a file time not hh:mm:ss"),
         QT_TR_NOOP("Tools lose it or refuse the file. Write it in that form."), badDate,
         "fileCreationDate=\"29.02.2024\"", "fileCreationDate=\"2024-02-29\""},
        {"duplicate-id", ERROR, QT_TR_NOOP("A uniqueID is used twice"),
         QT_TR_NOOP("A reference to it means one element in one tool and the other in the next. Rename one."),
         duplicateId, "<parameter uniqueID=\"P1\"/> <parameter uniqueID=\"P1\"/>",
         "<parameter uniqueID=\"P1\"/> <parameter uniqueID=\"P2\"/>"},
        {"dangling-reference", ERROR,
         QT_TR_NOOP(
             "A uniqueIDRef refers to nothing. That of an object or sub-object also has to refer to a parameter"),
         QT_TR_NOOP("What the reference should bring, such as the data type, is lost. Fix the ID or remove it."),
         danglingReference, "<CANopenObject uniqueIDRef=\"P9\"/> without <parameter uniqueID=\"P9\">",
         "<CANopenObject uniqueIDRef=\"P1\"/> with <parameter uniqueID=\"P1\">"},
        {"unused-suppression", NOTE, QT_TR_NOOP("A comment with xddcheck-disable-next-line hides no finding"),
         QT_TR_NOOP("It may hide a later one unseen. Remove the comment, or correct the name of the rule."), nullptr,
         "<!-- xddcheck-disable-next-line bad-nummber -->", "<!-- xddcheck-disable-next-line bad-number -->"},
    };
    return rules;
}
