#include "NIso15745Tags.h"
#include "canopen/BitRates.h"
#include "canopen/CDescription.h"
#include "normalize/NormalizeRules.h"
#include "text/CXmlEdits.h"

#include <QCoreApplication>

using namespace NIso15745Tags;

namespace
{
SNewElement supportedRate(const QString& rate)
{
    return {TAG_SUPPORTED_BAUD_RATE, QStringLiteral("value=\"%1\"").arg(rate), QString()};
}

SNewElement defaultPhysicalLayer()
{
    const SNewElement baudRate = {
        TAG_BAUD_RATE,
        QStringLiteral("defaultValue=\"%1\"").arg(VAL_BAUD_250_KBPS),
        QString(),
        {supportedRate(VAL_BAUD_250_KBPS)}};
    return around(TAG_PHYSICAL_LAYER, baudRate);
}

void missingRates(const CDescription& description, CXmlEdits& edits)
{
    for (const CXmlElement& body : description.bodies(EProfile::Network)) {
        const CXmlElement layers = body.child(TAG_TRANSPORT_LAYERS);
        const CXmlElement physicalLayer = layers.child(TAG_PHYSICAL_LAYER);
        const CXmlElement baudRate = physicalLayer.child(TAG_BAUD_RATE);
        if (layers.isNull()) {
            edits.supplyChildren(
                body, {around(TAG_TRANSPORT_LAYERS, defaultPhysicalLayer())}, body.child(TAG_NETWORK_MANAGEMENT));
        } else if (physicalLayer.isNull()) {
            edits.supplyChildren(layers, {defaultPhysicalLayer()});
        } else if (baudRate.isNull()) {
            edits.supplyChildren(physicalLayer, defaultPhysicalLayer().children);
        } else {
            const bool stated = baudRate.has(ATTR_DEFAULT_VALUE);
            if (!stated) {
                edits.supply(baudRate, ATTR_DEFAULT_VALUE, VAL_BAUD_250_KBPS, true);
            }
            const QString rate = stated ? bitRateText(baudRate.attribute(ATTR_DEFAULT_VALUE)) : VAL_BAUD_250_KBPS;
            if (baudRate.child(TAG_SUPPORTED_BAUD_RATE).isNull() && !rate.isEmpty()) {
                edits.supplyChildren(baudRate, {supportedRate(rate)});
            }
        }
    }
}

void rateWriting(const CXmlElement& element, QLatin1String attribute, CXmlEdits& edits)
{
    const QString text = element.attribute(attribute);
    const QString rate = bitRateText(text);
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

const NormalizeRules& bitRateRules()
{
    static const NormalizeRules rules = {
        {"bit-rate-writing",
         QT_TRANSLATE_NOOP(
             "mvxXddTools", "A bit rate is written in another way, such as 250, 250kBit/s or 1 Mbit/s: the format's"),
         QT_TRANSLATE_NOOP("mvxXddTools", "the format's writing of the same rate, such as \"250 Kbps\""), true,
         rateWritings},
        {"bit-rate",
         QT_TRANSLATE_NOOP(
             "mvxXddTools", "TransportLayers, PhysicalLayer, baudRate, its defaultValue or every supportedBaudRate is "
                            "missing: 250 Kbps; "
                            "the default rate as the supported one"),
         QT_TRANSLATE_NOOP("mvxXddTools", "the format's default is 250 Kbps"), false, missingRates},
    };
    return rules;
}
