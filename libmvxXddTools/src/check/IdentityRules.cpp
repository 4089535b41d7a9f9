#include "NIso15745Tags.h"
#include "check/CCheckRules.h"
#include "names/Hexadecimal.h"

using namespace NIso15745Tags;

namespace
{
// The two readings of a number: by its prefix, and as hexadecimal whatever it looks like.
struct SReadings
{
    std::optional<CInteger> byPrefix;
    std::optional<CInteger> hexadecimal;

    bool isNumber() const { return byPrefix || hexadecimal; }
    bool isZero() const { return hexadecimal == CInteger(); }
};

SReadings readingsOf(const QString& text)
{
    const QString trimmed = text.trimmed();
    const bool hasPrefix = hasHexadecimalPrefix(trimmed);
    return {readInteger(trimmed), readInteger(hasPrefix ? trimmed : HEXADECIMAL_PREFIX + trimmed)};
}

void compareWithObject(const CDescription& description, QLatin1String name, unsigned int subIndex, CRemarks& findings)
{
    const SEntry* const entry = description.dictionary().subObject(0x1018, subIndex);
    const std::optional<CInteger> value = entry == nullptr ? std::nullopt : entry->plainDefault();
    if (!value || *value == CInteger()) {
        return;
    }
    for (const CXmlElement& identity : description.identities()) {
        const CXmlElement element = identity.child(name);
        const SReadings readings = readingsOf(element.text());
        if (readings.isNumber() && !readings.isZero() && readings.byPrefix != value && readings.hexadecimal != value) {
            findings.add(
                element, CRemarks::say("%1 \"%2\" is not the default %3 of %4 (line %5)"),
                {description.word(name), element.text().trimmed(), entry->defaultValue.text, entry->place().entry(),
                 SArgument::line(entry->defaultValue.source.line())});
        }
    }
}

void identityMismatch(const CDescription& description, CRemarks& findings)
{
    compareWithObject(description, TAG_VENDOR_ID, 1, findings);
    compareWithObject(description, TAG_PRODUCT_ID, 2, findings);
}

void identityNumber(const CDescription& description, CRemarks& findings)
{
    for (const CXmlElement& identity : description.identities()) {
        const CXmlElement element = identity.child(TAG_VENDOR_ID);
        const QString text = element.text().trimmed();
        if (!text.isEmpty() && !readingsOf(text).isNumber()) {
            findings.add(element, CRemarks::say("%1 \"%2\" is not a number"), {description.word(TAG_VENDOR_ID), text});
        }
    }
}

void emptyIdentity(const CDescription& description, CRemarks& findings)
{
    for (const CXmlElement& identity : description.identities()) {
        for (const QLatin1String name : {TAG_VENDOR_NAME, TAG_VENDOR_ID, TAG_PRODUCT_NAME, TAG_PRODUCT_ID}) {
            const CXmlElement element = identity.child(name);
            const QString text = element.text().trimmed();
            if (!element.isNull() && text.isEmpty()) {
                findings.add(element, CRemarks::say("%1 is empty"), {description.word(name)});
            } else if (element.is(TAG_VENDOR_ID) && readingsOf(text).isZero()) {
                findings.add(element, CRemarks::say("%1 is 0"), {description.word(name)});
            }
        }
    }
}
} // namespace

const CheckRules& CCheckRules::identity()
{
    static const CheckRules rules = {
        {"identity-mismatch", WARNING, QT_TR_NOOP("vendorID or productID is not the default value of object 0x1018"),
         QT_TR_NOOP(
             "A tool that looks a device up by its identity does not find this description. Write the same number at both places."),
         identityMismatch, "<vendorID>0x2A</vendorID>, and 0x2B by default in 0x1018:01",
         "<vendorID>0x2A</vendorID>, and 0x2A by default in 0x1018:01"},
        {"identity-number", WARNING, QT_TR_NOOP("vendorID is not a number"),
         QT_TR_NOOP("Tools cannot compare it with a device. Write the number that CiA assigned."), identityNumber,
         "<vendorID>Works</vendorID>", "<vendorID>0x0000002A</vendorID>"},
        {"empty-identity", NOTE,
         QT_TR_NOOP("vendorName, vendorID, productName or productID is empty, or vendorID is 0"),
         QT_TR_NOOP("Catalogues cannot list the device. Fill it in if it is known."), emptyIdentity, "<vendorID/>",
         "<vendorID>0x0000002A</vendorID>"},
    };
    return rules;
}
