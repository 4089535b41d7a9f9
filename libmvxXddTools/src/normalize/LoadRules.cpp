#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "XmlValues.h"
#include "normalize/CNormalizeRules.h"

#include <algorithm>

using namespace NIso15745Tags;

namespace
{
// What the library demands of a profile before it reads it.
void profiles(const CDescription& description, CXmlEdits& edits)
{
    for (const CXmlElement& profile : description.root().children(TAG_PROFILE)) {
        const CXmlElement body = profile.child(TAG_PROFILE_BODY);
        const CXmlElement header = profile.child(TAG_PROFILE_HEADER);
        if (body.isNull() || header.isNull()) {
            edits.takeOut(profile, CRemarks::say("the profile has no header or no body"));
        }
    }
    for (const CXmlElement& body : description.bodies(EProfile::Network)) {
        const auto& entries = description.dictionary().entries();
        const bool hasObjects = std::any_of(entries.begin(), entries.end(), [&](const SEntry& entry) {
            return entry.element.parent().parent().parent() == body && entry.index;
        });
        if (!hasObjects) {
            edits.takeOut(body.parent(), CRemarks::say("the network profile has no objects"));
        }
    }
}

void headerNumbers(const CDescription& description, CXmlEdits& edits)
{
    for (const SProfile& profile : description.profiles()) {
        const CXmlElement reference = profile.header.child(TAG_ISO15745_REFERENCE);
        for (const QLatin1String name : {TAG_ISO15745_PART, TAG_ISO15745_EDITION}) {
            const CXmlElement number = reference.child(name);
            const QString text = number.text();
            if (!text.trimmed().isEmpty() && !CXmlValue::toNumber(text, BY_PREFIX)) {
                edits.takeOut(number, CRemarks::say("%1 is \"%2\""), {name, text});
                edits.supplyChildren(reference, {{name, QString(), QStringLiteral("1")}});
            }
        }
    }
}

void creationDates(const CDescription& description, CXmlEdits& edits)
{
    for (const SProfile& profile : description.profiles()) {
        const QString text = profile.body.attribute(ATTR_FILE_CREATION_DATE);
        if (profile.kind != EProfile::Other && !text.trimmed().isEmpty() && !CXmlValue::toDate(text) && !dateOf(text)) {
            edits.replaceUnknown(profile.body, ATTR_FILE_CREATION_DATE, QStringLiteral("1970-01-01"));
        }
    }
}

void requiredNames(const CDescription& description, CXmlEdits& edits)
{
    for (const CXmlElement& body : description.bodies(EProfile::Device)) {
        for (const QLatin1String name : {TAG_VENDOR_NAME, TAG_PRODUCT_NAME}) {
            const CXmlElement text = body.child(TAG_DEVICE_IDENTITY).child(name);
            if (text.has(ATTR_READ_ONLY) && !flagOf(text.attribute(ATTR_READ_ONLY))) {
                edits.replaceUnknown(text, ATTR_READ_ONLY, name == TAG_VENDOR_NAME ? VALUE_TRUE : VALUE_FALSE);
            }
        }
    }
}

void labels(const CXmlElement& list, CXmlEdits& edits)
{
    for (CXmlElement label = list.firstChild(); !label.isNull(); label = label.nextSibling()) {
        const bool isText = label.is(VAL_GLABTYP_LABEL) || label.is(VAL_GLABTYP_DESCRIPTION);
        const bool isReference = label.is(VAL_GLABTYP_LABEL_REF) || label.is(VAL_GLABTYP_DESCRIPTION_REF);
        std::vector<CXmlEdits::Attribute> missing;
        for (const QLatin1String name : {ATTR_LANG, ATTR_DICT_ID, ATTR_TEXT_ID}) {
            if (!label.has(name) && (name == ATTR_LANG ? isText : isReference)) {
                missing.emplace_back(name, QString());
            }
        }
        edits.supply(label, missing);
        if (!isText && !isReference) {
            edits.takeOut(label, CRemarks::say("<%1> is not a label"), {label.name()});
            edits.supplyChildren(
                list, {{VAL_GLABTYP_LABEL, QStringLiteral("lang=\"en\""), QString()}}, label.nextSibling());
        }
    }
}

void characteristics(const CDescription& description, CXmlEdits& edits)
{
    for (const CXmlElement& body : description.bodies(EProfile::Device)) {
        const CXmlElement list =
            body.child(TAG_DEVICE_FUNCTION).child(TAG_CAPABILITIES).child(TAG_CHARACTERISTICS_LIST);
        const CXmlElement category = list.child(TAG_CATEGORY);
        if (!category.isNull() && category.firstChild().isNull()) {
            edits.takeOut(category, CRemarks::say("<%1> is empty"), {TAG_CATEGORY});
        }
        labels(category, edits);
        labels(list.child(TAG_CHARACTERISTIC).child(TAG_CHARACTERISTIC_NAME), edits);
        labels(list.child(TAG_CHARACTERISTIC).child(TAG_CHARACTERISTIC_CONTENT), edits);
    }
}

// Of two objects with one index the first counts.
void dictionaryEntries(const CDescription& description, CXmlEdits& edits)
{
    for (const SEntry& entry : description.dictionary().entries()) {
        const auto& number = entry.isSubObject ? entry.subIndex : entry.index;
        const SEntry* const first =
            entry.index && !entry.isSubObject ? description.dictionary().object(*entry.index) : &entry;
        if (!number) {
            edits.takeOut(entry, CRemarks::say("the index is not readable"));
        } else if (first != &entry) {
            edits.takeOut(
                entry, CRemarks::say("the object duplicates line %1"), {SArgument::line(first->element.line())});
        } else if (!entry.objectCode) {
            edits.replaceUnknown(entry, ATTR_OBJECT_TYPE, QStringLiteral("0"));
        }
    }
}

void supportedRates(const CDescription& description, CXmlEdits& edits)
{
    const auto isUnknown = [](const CXmlElement& element, QLatin1String attribute) {
        return bitRateOf(element.attribute(attribute)) == CNetworkCanOpenProfile::BAUD_INVALID;
    };
    for (const CXmlElement& baudRate : description.bitRates()) {
        bool isNoneKnown = true;
        for (const CXmlElement& rate : baudRate.children(TAG_SUPPORTED_BAUD_RATE)) {
            if (isUnknown(rate, ATTR_VALUE)) {
                edits.takeOutUnknown(rate, ATTR_VALUE);
            } else {
                isNoneKnown = false;
            }
        }
        const bool isSupplied = baudRate.child(TAG_SUPPORTED_BAUD_RATE).isNull()
                                && !(baudRate.has(ATTR_DEFAULT_VALUE) && isUnknown(baudRate, ATTR_DEFAULT_VALUE));
        if (isNoneKnown && !isSupplied) {
            edits.supplyChildren(
                baudRate,
                {{TAG_SUPPORTED_BAUD_RATE, QStringLiteral("value=\"%1\"").arg(VAL_BAUD_250_KBPS), QString()}});
        }
    }
}
} // namespace

const NormalizeRules& CNormalizeRules::load()
{
    const auto rule = [](void (*apply)(const CDescription&, CXmlEdits&)) {
        return SNormalizeRule{"unreadable", WARNING, "", "", apply};
    };
    static const NormalizeRules rules = {rule(profiles),      rule(headerNumbers),   rule(creationDates),
                                         rule(requiredNames), rule(characteristics), rule(dictionaryEntries),
                                         rule(supportedRates)};
    return rules;
}
