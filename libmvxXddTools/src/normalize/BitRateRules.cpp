#include "NIso15745Tags.h"
#include "normalize/CNormalizeRules.h"

using namespace NIso15745Tags;

namespace
{
SNewElement supportedRate(const QString& rate)
{
    return {TAG_SUPPORTED_BAUD_RATE, QStringLiteral("value=\"%1\"").arg(rate), QString()};
}

// An EDS has no default bit rate.
SNewElement defaultPhysicalLayer(bool hasDefault)
{
    const QString attribute = QStringLiteral("defaultValue=\"%1\"").arg(VAL_BAUD_250_KBPS);
    return around(
        TAG_PHYSICAL_LAYER,
        {TAG_BAUD_RATE, hasDefault ? attribute : QString(), QString(), {supportedRate(VAL_BAUD_250_KBPS)}});
}

// The format's text of a bit rate; nothing when a text means none.
QString rateText(const QString& text)
{
    const CNetworkCanOpenProfile::EBaudrate rate = bitRateOf(text);
    return rate == CNetworkCanOpenProfile::BAUD_INVALID ? QString() : CNetworkCanOpenProfile::baudrateAsStr(rate);
}

void missingRates(const CDescription& description, CXmlEdits& edits)
{
    const bool hasDefault = description.isXdd();
    for (const CXmlElement& body : description.bodies(EProfile::Network)) {
        const CXmlElement layers = body.child(TAG_TRANSPORT_LAYERS);
        const CXmlElement physicalLayer = layers.child(TAG_PHYSICAL_LAYER);
        const CXmlElement baudRate = physicalLayer.child(TAG_BAUD_RATE);
        if (layers.isNull()) {
            edits.supplyChildren(
                body, {around(TAG_TRANSPORT_LAYERS, defaultPhysicalLayer(hasDefault))},
                body.child(TAG_NETWORK_MANAGEMENT));
        } else if (physicalLayer.isNull()) {
            edits.supplyChildren(layers, {defaultPhysicalLayer(hasDefault)});
        } else if (baudRate.isNull()) {
            edits.supplyChildren(physicalLayer, defaultPhysicalLayer(hasDefault).children);
        } else {
            const bool stated = baudRate.has(ATTR_DEFAULT_VALUE);
            const QString rate = stated ? rateText(baudRate.attribute(ATTR_DEFAULT_VALUE)) : VAL_BAUD_250_KBPS;
            if (baudRate.child(TAG_SUPPORTED_BAUD_RATE).isNull() && !rate.isEmpty()) {
                edits.supplyChildren(baudRate, {supportedRate(rate)});
            }
        }
    }
}

void rateWriting(const CXmlElement& element, QLatin1String attribute, CXmlEdits& edits)
{
    const QString text = element.attribute(attribute);
    const QString rate = rateText(text);
    if (text.isNull() || rate == text) {
        return;
    }
    rate.isEmpty() ? edits.leave(element, attribute) : edits.rewrite(element, attribute, rate);
}

void rateWritings(const CDescription& description, CXmlEdits& edits)
{
    for (const CXmlElement& baudRate : description.bitRates()) {
        rateWriting(baudRate, ATTR_DEFAULT_VALUE, edits);
        for (const CXmlElement& supported : baudRate.children(TAG_SUPPORTED_BAUD_RATE)) {
            rateWriting(supported, ATTR_VALUE, edits);
        }
    }
}
} // namespace

const NormalizeRules& CNormalizeRules::bitRate()
{
    static const NormalizeRules rules = {
        {"bit-rate-writing", WARNING,
         QT_TR_NOOP(
             "A bit rate is written otherwise, such as 250, 250kBit/s or 1 Mbit/s: it gets the writing of the format"),
         QT_TR_NOOP("the format writes the same rate in this way"), rateWritings},
        {"bit-rate", NOTE,
         QT_TR_NOOP(
             "TransportLayers, PhysicalLayer, baudRate or every supportedBaudRate is missing: 250 Kbps, or the default rate as the supported one"),
         QT_TR_NOOP("the default of the format is 250 Kbps"), missingRates},
    };
    return rules;
}
