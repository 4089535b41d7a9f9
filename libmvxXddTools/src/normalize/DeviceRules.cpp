#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "XmlValues.h"
#include "normalize/CNormalizeRules.h"

#include <algorithm>

using namespace NIso15745Tags;

namespace
{
void identityNames(const CDescription& description, CXmlEdits& edits)
{
    for (const CXmlElement& body : description.bodies(EProfile::Device)) {
        const CXmlElement identity = body.child(TAG_DEVICE_IDENTITY);
        if (!identity.isNull()) {
            edits.supplyMissing(
                identity, {{TAG_VENDOR_NAME, QStringLiteral("readOnly=\"true\""), QString()},
                           {TAG_PRODUCT_NAME, QStringLiteral("readOnly=\"false\""), QString()}});
        }
    }
}

// The elements of both identities that carry a flag.
std::vector<CXmlElement> protectedTexts(const CDescription& description)
{
    std::vector<CXmlElement> texts;
    const auto add = [&texts](const CXmlElement& identity, std::initializer_list<QLatin1String> names) {
        for (const QLatin1String name : names) {
            const CXmlElement text = identity.child(name);
            if (!text.isNull()) {
                texts.push_back(text);
            }
        }
    };
    for (const CXmlElement& body : description.bodies(EProfile::Network)) {
        add(body.child(TAG_APPLICATION_LAYERS).child(TAG_IDENTITY),
            {TAG_VENDOR_ID, TAG_DEVICE_FAMILY, TAG_PRODUCT_ID, TAG_SPEC_REVISION});
    }
    for (const CXmlElement& body : description.bodies(EProfile::Device)) {
        add(body.child(TAG_DEVICE_IDENTITY),
            {TAG_VENDOR_NAME, TAG_VENDOR_ID, TAG_VENDOR_TEXT, TAG_DEVICE_FAMILY, TAG_PRODUCT_FAMILY, TAG_PRODUCT_NAME,
             TAG_PRODUCT_ID, TAG_PRODUCT_TEXT, TAG_ORDER_NUMBER, TAG_SPEC_REVISION, TAG_INSTANCE_NAME});
    }
    return texts;
}

void readOnlyFlags(const CDescription& description, CXmlEdits& edits)
{
    for (const CXmlElement& text : protectedTexts(description)) {
        if (!text.has(ATTR_READ_ONLY)) {
            const bool writable = text.is(TAG_PRODUCT_NAME) || text.is(TAG_INSTANCE_NAME);
            edits.supply(text, ATTR_READ_ONLY, writable ? VALUE_FALSE : VALUE_TRUE);
        }
    }
}

void readOnlyWritings(const CDescription& description, CXmlEdits& edits)
{
    for (const CXmlElement& text : protectedTexts(description)) {
        const QString flag = text.attribute(ATTR_READ_ONLY);
        if (flag.isNull() || CXmlValue::toBool(flag, VALUE_TRUE, VALUE_FALSE)) {
            continue;
        }
        const std::optional<bool> meaning = flagOf(flag);
        meaning ? edits.rewrite(text, ATTR_READ_ONLY, *meaning ? VALUE_TRUE : VALUE_FALSE)
                : edits.leave(text, ATTR_READ_ONLY);
    }
}

// What the embedded samples carry where a device has no function to state.
SNewElement emptyLabel()
{
    return {VAL_GLABTYP_LABEL, QStringLiteral("lang=\"en\""), QString()};
}

std::vector<SNewElement> emptyNameAndContent()
{
    return {around(TAG_CHARACTERISTIC_NAME, emptyLabel()), around(TAG_CHARACTERISTIC_CONTENT, emptyLabel())};
}

SNewElement emptyCharacteristic()
{
    return {TAG_CHARACTERISTIC, QString(), QString(), emptyNameAndContent()};
}

SNewElement emptyCapabilities()
{
    return around(TAG_CAPABILITIES, around(TAG_CHARACTERISTICS_LIST, emptyCharacteristic()));
}

void firstCharacteristic(const CXmlElement& list, CXmlEdits& edits)
{
    const CXmlElement first = list.child(TAG_CHARACTERISTIC);
    if (first.isNull()) {
        edits.supplyChildren(list, {emptyCharacteristic()});
        return;
    }
    edits.supplyMissing(first, emptyNameAndContent());
    for (const QLatin1String name : {TAG_CHARACTERISTIC_NAME, TAG_CHARACTERISTIC_CONTENT}) {
        const CXmlElement labels = first.child(name);
        if (!labels.isNull() && labels.firstChild().isNull()) {
            edits.supplyChildren(labels, {emptyLabel()});
        }
    }
}

// Adds what is missing on the way from the body to the labels of the first characteristic.
void deviceFunction(const CDescription& description, CXmlEdits& edits)
{
    for (const CXmlElement& body : description.bodies(EProfile::Device)) {
        const CXmlElement function = body.child(TAG_DEVICE_FUNCTION);
        const CXmlElement capabilities = function.child(TAG_CAPABILITIES);
        const CXmlElement list = capabilities.child(TAG_CHARACTERISTICS_LIST);
        if (function.isNull()) {
            edits.supplyChildren(
                body, {around(TAG_DEVICE_FUNCTION, emptyCapabilities())}, body.child(TAG_APPL_PROCESS));
        } else if (capabilities.isNull()) {
            edits.supplyChildren(function, {emptyCapabilities()});
        } else if (list.isNull()) {
            edits.supplyChildren(
                capabilities, emptyCapabilities().children, capabilities.child(TAG_STANDARD_COMLIANCE_LIST));
        } else {
            firstCharacteristic(list, edits);
        }
    }
}

void complianceList(const CDescription& description, CXmlEdits& edits)
{
    for (const CXmlElement& body : description.bodies(EProfile::Device)) {
        const CXmlElement capabilities = body.child(TAG_DEVICE_FUNCTION).child(TAG_CAPABILITIES);
        const CXmlElement list = capabilities.child(TAG_STANDARD_COMLIANCE_LIST);
        if (!list.isNull()) {
            edits.turnIntoComment(list);
        }
    }
}
} // namespace

const NormalizeRules& CNormalizeRules::device()
{
    static const NormalizeRules rules = {
        {"identity-name", NOTE, QT_TR_NOOP("A DeviceIdentity lacks vendorName or productName: it gets an empty one"),
         QT_TR_NOOP("a required element that states nothing is empty"), identityNames},
        {"read-only", NOTE,
         QT_TR_NOOP(
             "An element of an identity has no readOnly: false for productName and instanceName, true for all others"),
         QT_TR_NOOP("the default of the format where the attribute is absent"), readOnlyFlags},
        {"read-only-writing", NOTE, QT_TR_NOOP("readOnly is 1, 0 or has other capitals: true or false"),
         QT_TR_NOOP("the format writes the same value in this way"), readOnlyWritings},
        {"device-function", NOTE,
         QT_TR_NOOP(
             "DeviceFunction, its capabilities, or the name, content or entry of its first characteristic is missing: it gets an empty one"),
         QT_TR_NOOP("a device that states no function has an empty one"), deviceFunction},
        {"compliance", NOTE,
         QT_TR_NOOP(
             "The capabilities have a standardComplianceList: it becomes a comment, with a space inside every \"--\""),
         QT_TR_NOOP("the library refuses this list"), complianceList},
    };
    return rules;
}
