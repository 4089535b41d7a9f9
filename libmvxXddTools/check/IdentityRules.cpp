#include "NIso15745Tags.h"
#include "check/CFindings.h"
#include "check/CheckRules.h"

using namespace NIso15745Tags;

namespace
{
// The identity elements of both profiles.
std::vector<CXmlElement> identities(const CDescription& description)
{
    std::vector<CXmlElement> found;
    for (const CXmlElement& body : description.bodies(EProfile::Device)) {
        found.push_back(body.child(TAG_DEVICE_IDENTITY));
    }
    for (const CXmlElement& body : description.bodies(EProfile::Network)) {
        found.push_back(body.child(TAG_APPLICATION_LAYERS).child(TAG_IDENTITY));
    }
    return found;
}

// The two readings of a number: by its prefix, and as hexadecimal whatever it looks like.
struct SReadings
{
    std::optional<CInteger> byPrefix;
    std::optional<CInteger> hexadecimal;
};

SReadings readingsOf(const QString& text)
{
    const QString trimmed = text.trimmed();
    const bool hasPrefix = hasHexadecimalPrefix(trimmed);
    return {readInteger(trimmed), readInteger(hasPrefix ? trimmed : HEXADECIMAL_PREFIX + trimmed)};
}

void compareWithObject(const SChecked& checked, QLatin1String name, unsigned int subIndex, CFindings& findings)
{
    const SDictionaryEntry* const entry = checked.dictionary.subObject(0x1018, subIndex);
    const std::optional<CInteger> value = entry == nullptr ? std::nullopt : entry->plainDefault();
    if (!value || *value == CInteger()) {
        return;
    }
    for (const CXmlElement& identity : identities(checked.description)) {
        const CXmlElement element = identity.child(name);
        const SReadings readings = readingsOf(element.text());
        const bool isNumber = readings.byPrefix || readings.hexadecimal;
        const bool isZero = readings.hexadecimal == CInteger();
        if (isNumber && !isZero && readings.byPrefix != value && readings.hexadecimal != value) {
            findings.add(
                element, CFindings::tr("%1 \"%2\" is not the default %3 of %4 (line %5)")
                             .arg(
                                 name, element.text().trimmed(), entry->defaultValue.text, entry->name(),
                                 QString::number(entry->defaultValue.where.line())));
        }
    }
}

void identityMismatch(const SChecked& checked, CFindings& findings)
{
    compareWithObject(checked, TAG_VENDOR_ID, 1, findings);
    compareWithObject(checked, TAG_PRODUCT_ID, 2, findings);
}

void identityNumber(const SChecked& checked, CFindings& findings)
{
    for (const CXmlElement& identity : identities(checked.description)) {
        const CXmlElement element = identity.child(TAG_VENDOR_ID);
        const QString text = element.text().trimmed();
        const SReadings readings = readingsOf(text);
        if (!text.isEmpty() && !readings.byPrefix && !readings.hexadecimal) {
            findings.add(element, CFindings::tr("vendorID \"%1\" is no number").arg(text));
        }
    }
}

void emptyIdentity(const SChecked& checked, CFindings& findings)
{
    for (const CXmlElement& identity : identities(checked.description)) {
        for (const QLatin1String name : {TAG_VENDOR_NAME, TAG_VENDOR_ID, TAG_PRODUCT_NAME, TAG_PRODUCT_ID}) {
            const CXmlElement element = identity.child(name);
            const QString text = element.text().trimmed();
            if (!element.isNull() && text.isEmpty()) {
                findings.add(element, CFindings::tr("%1 is empty").arg(name));
            } else if (element.is(TAG_VENDOR_ID) && readingsOf(text).hexadecimal == CInteger()) {
                findings.add(element, CFindings::tr("vendorID is 0"));
            }
        }
    }
}
} // namespace

const CheckRules& identityRules()
{
    static const CheckRules rules = {
        {"identity-mismatch", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "vendorID or productID is not the default of object 0x1018"),
         QT_TRANSLATE_NOOP(
             "CFindings", "A tool that looks a device up by its identity does not find this description. Write the "
                          "same number at both "
                          "places."),
         identityMismatch},
        {"identity-number", CXddFinding::SEVERITY_WARNING, QT_TRANSLATE_NOOP("CFindings", "vendorID is no number"),
         QT_TRANSLATE_NOOP("CFindings", "Tools cannot compare it with a device. Write the number that CiA assigned."),
         identityNumber},
        {"empty-identity", CXddFinding::SEVERITY_NOTE,
         QT_TRANSLATE_NOOP("CFindings", "vendorName, vendorID, productName or productID is empty, or vendorID 0"),
         QT_TRANSLATE_NOOP("CFindings", "Catalogues cannot list the device. Fill it in, if it is known."),
         emptyIdentity},
    };
    return rules;
}
