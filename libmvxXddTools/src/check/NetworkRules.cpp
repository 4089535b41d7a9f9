#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "check/CCheckRules.h"
#include "names/NFormatWords.h"

#include <algorithm>

using namespace NIso15745Tags;
using namespace NFormatWords;

namespace
{
void pdoCount(const CDescription& description, CRemarks& findings)
{
    for (const CXmlElement& features : description.managementElements(TAG_GENERAL_FEATURES)) {
        const auto compare = [&](QLatin1String attribute, EPdoDirection direction) {
            const auto stated = CXmlValue::toNumber(features.attribute(attribute), 10);
            const unsigned int count = countOf(description.pdos(), direction);
            if (stated && *stated != count) {
                findings.add(
                    features.placeOf(attribute), CRemarks::say("%1 is %2, but the number of PDOs is %3"),
                    {description.word(attribute), features.attribute(attribute), count});
            }
        };
        compare(ATTR_NR_OF_RX_PDO, EPdoDirection::Receive);
        compare(ATTR_NR_OF_TX_PDO, EPdoDirection::Transmit);
    }
}

void granularity(const CDescription& description, CRemarks& findings)
{
    int writable = 0;
    int fixed = 0;
    for (const SPdo& pdo : description.pdos()) {
        if (pdo.count != nullptr) {
            ++(isWritable(pdo.count->access.value) ? writable : fixed);
        }
    }
    for (const CXmlElement& features : description.managementElements(TAG_GENERAL_FEATURES)) {
        const auto stated = CXmlValue::toNumber(features.attribute(ATTR_GRANULARITY), 10);
        if (stated == 0U && writable > 0 && fixed == 0) {
            findings.add(
                features.placeOf(ATTR_GRANULARITY),
                CRemarks::say("%1 is 0 (fixed mappings), but every mapping can be written"),
                {description.word(ATTR_GRANULARITY)});
        } else if (stated.value_or(0) != 0 && writable == 0 && fixed > 0) {
            findings.add(
                features.placeOf(ATTR_GRANULARITY), CRemarks::say("%1 is %2, but no mapping can be written"),
                {description.word(ATTR_GRANULARITY), *stated});
        }
    }
}

void missingBitRate(const CDescription& description, CRemarks& findings)
{
    for (const CXmlElement& baudRate : description.bitRates()) {
        if (baudRate.child(TAG_SUPPORTED_BAUD_RATE).isNull()) {
            findings.add(baudRate, CRemarks::say("<%1> is missing in <%2>"), {TAG_SUPPORTED_BAUD_RATE, TAG_BAUD_RATE});
        }
    }
    // An EDS that states none has no element for it.
    if (!description.isXdd() && description.bitRates().empty()) {
        for (const CXmlElement& features : description.managementElements(TAG_GENERAL_FEATURES)) {
            findings.add(features, CRemarks::say("no bit rate is supported"));
        }
    }
}

void defaultBitRate(const CDescription& description, CRemarks& findings)
{
    for (const CXmlElement& baudRate : description.bitRates()) {
        const QString stated = baudRate.attribute(ATTR_DEFAULT_VALUE);
        QStringList supported;
        for (const CXmlElement& rate : baudRate.children(TAG_SUPPORTED_BAUD_RATE)) {
            supported << rate.attribute(ATTR_VALUE);
        }
        if (!stated.isEmpty() && !supported.isEmpty() && !supported.contains(stated)) {
            findings.add(
                baudRate, CRemarks::say("the default bit rate \"%1\" is not one of the supported: %2"),
                {stated, supported.join(QLatin1String(", "))});
        }
    }
}

// The commissioning of an EDS has a rule of its own.
void nodeId(const CDescription& description, CRemarks& findings)
{
    if (!description.isXdd()) {
        return;
    }
    for (const CXmlElement& commissioning : description.managementElements(TAG_COMMISSIONING)) {
        for (const QLatin1String name : {ATTR_NODE_ID, ATTR_NODE_ID_CAPITAL}) {
            const QString text = commissioning.attribute(name);
            const std::optional<CInteger> number = readInteger(text);
            const bool isNodeId = number && number->unsigned32().value_or(MAX_NODE_ID + 1) <= MAX_NODE_ID;
            if (!text.isEmpty() && !isNodeId) {
                findings.add(commissioning, CRemarks::say("%1 \"%2\" is not a number up to 127"), {name, text});
            }
        }
    }
}
} // namespace

const CheckRules& CCheckRules::network()
{
    static const CheckRules rules = {
        {"pdo-count", WARNING, QT_TR_NOOP("nrOfRxPDO or nrOfTxPDO is not the number of PDOs in the dictionary"),
         QT_TR_NOOP("Tools set up too many or too few PDOs. Count the objects from 0x1400 and 0x1800."), pdoCount,
         "nrOfTxPDO=\"4\" with two of them", "nrOfTxPDO=\"2\""},
        {"granularity", WARNING, QT_TR_NOOP("granularity contradicts the access to the mappings"),
         QT_TR_NOOP("Tools offer a mapping that the device refuses, or none. 0 means fixed mappings, 8 whole bytes."),
         granularity, "granularity=\"0\" with mapped entries", "granularity=\"8\""},
        {"missing-bit-rate", WARNING, QT_TR_NOOP("No bit rate is supported"),
         QT_TR_NOOP("Tools cannot offer a bit rate, or refuse the file. List the supported ones."), missingBitRate,
         "<baudRate/>", "<baudRate><supportedBaudRate value=\"125 Kbps\"/></baudRate>"},
        {"default-bit-rate", WARNING, QT_TR_NOOP("The default bit rate is not one of the supported bit rates"),
         QT_TR_NOOP("A tool that picks it cannot reach the device. Correct one of them."), defaultBitRate,
         "<baudRate defaultValue=\"50 Kbps\"> that is not among the supported ones",
         "<baudRate defaultValue=\"125 Kbps\"> that is"},
        {"node-id", WARNING, QT_TR_NOOP("The node-ID of the commissioning is not a number up to 127"),
         QT_TR_NOOP("Node-IDs of CANopen are 1 to 127. Write one of them, or 0 for none."), nodeId,
         "<deviceCommissioning nodeID=\"200\"/>", "<deviceCommissioning nodeID=\"20\"/>"},
    };
    return rules;
}
