#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "canopen/Pdos.h"
#include "canopen/ProcessNames.h"
#include "check/CFindings.h"
#include "check/CheckRules.h"

#include <algorithm>

using namespace NIso15745Tags;
using namespace NProcessNames;

namespace
{
// The elements with that name in the network management.
std::vector<CXmlElement> managementElements(const SChecked& checked, QLatin1String name)
{
    std::vector<CXmlElement> found;
    for (const CXmlElement& body : checked.description.bodies(EProfile::Network)) {
        for (const CXmlElement& element : body.child(TAG_NETWORK_MANAGEMENT).children(name)) {
            found.push_back(element);
        }
    }
    return found;
}

unsigned int pdoCountOf(const CDictionary& dictionary, EPdoDirection direction)
{
    const auto& objects = dictionary.objects();
    return unsigned(std::count_if(objects.begin(), objects.end(), [&](std::size_t number) {
        return communicationDirection(dictionary.entries()[number].index.value_or(0)) == direction;
    }));
}

void pdoCount(const SChecked& checked, CFindings& findings)
{
    for (const CXmlElement& features : managementElements(checked, TAG_GENERAL_FEATURES)) {
        const auto compare = [&](QLatin1String attribute, EPdoDirection direction) {
            const auto stated = CXmlValue::toNumber(features.attribute(attribute), 10);
            const unsigned int count = pdoCountOf(checked.dictionary, direction);
            if (stated && *stated != count) {
                findings.add(
                    features, CFindings::tr("%1 is %2, but there are %3")
                                  .arg(attribute, features.attribute(attribute), QString::number(count)));
            }
        };
        compare(ATTR_NR_OF_RX_PDO, EPdoDirection::Receive);
        compare(ATTR_NR_OF_TX_PDO, EPdoDirection::Transmit);
    }
}

void granularity(const SChecked& checked, CFindings& findings)
{
    int writable = 0;
    int fixed = 0;
    for (const SPdoMapping& mapping : checked.mappings) {
        if (mapping.count != nullptr) {
            ++(mapping.count->isWritable() ? writable : fixed);
        }
    }
    for (const CXmlElement& features : managementElements(checked, TAG_GENERAL_FEATURES)) {
        const auto stated = CXmlValue::toNumber(features.attribute(ATTR_GRANULARITY), 10);
        if (stated == 0U && writable > 0 && fixed == 0) {
            findings.add(features, CFindings::tr("granularity is 0 (no mapping), but every mapping can be written"));
        } else if (stated.value_or(0) != 0 && writable == 0 && fixed > 0) {
            findings.add(features, CFindings::tr("granularity is %1, but no mapping can be written").arg(*stated));
        }
    }
}

void missingBitRate(const SChecked& checked, CFindings& findings)
{
    for (const CXmlElement& baudRate : checked.description.bitRates()) {
        if (baudRate.child(TAG_SUPPORTED_BAUD_RATE).isNull()) {
            findings.add(baudRate, CFindings::tr("there is no <%1>").arg(TAG_SUPPORTED_BAUD_RATE));
        }
    }
}

void defaultBitRate(const SChecked& checked, CFindings& findings)
{
    for (const CXmlElement& baudRate : checked.description.bitRates()) {
        const QString stated = baudRate.attribute(ATTR_DEFAULT_VALUE);
        QStringList supported;
        for (const CXmlElement& rate : baudRate.children(TAG_SUPPORTED_BAUD_RATE)) {
            supported << rate.attribute(ATTR_VALUE);
        }
        if (!stated.isEmpty() && !supported.isEmpty() && !supported.contains(stated)) {
            findings.add(
                baudRate, CFindings::tr("the default \"%1\" is not supported: %2")
                              .arg(stated, supported.join(QLatin1String(", "))));
        }
    }
}

void nodeId(const SChecked& checked, CFindings& findings)
{
    for (const CXmlElement& commissioning : managementElements(checked, TAG_COMMISSIONING)) {
        for (const QLatin1String name : {QLatin1String("nodeID"), QLatin1String("NodeID")}) {
            const QString text = commissioning.attribute(name);
            const std::optional<CInteger> number = readInteger(text);
            const bool isNodeId = number && !number->isNegative() && number->magnitude() <= MAX_NODE_ID;
            if (!text.isEmpty() && !isNodeId) {
                findings.add(commissioning, CFindings::tr("%1 \"%2\" is no number up to 127").arg(name, text));
            }
        }
    }
}
} // namespace

const CheckRules& networkRules()
{
    static const CheckRules rules = {
        {"pdo-count", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "nrOfRxPDO or nrOfTxPDO is not the number of PDOs found"),
         QT_TRANSLATE_NOOP(
             "CFindings", "Tools set up too many or too few PDOs. Count the objects from 0x1400 and 0x1800."),
         pdoCount},
        {"granularity", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "granularity contradicts whether mappings can be written"),
         QT_TRANSLATE_NOOP(
             "CFindings",
             "Tools offer a mapping that the device refuses, or none. 0 means fixed mappings, 8 whole bytes."),
         granularity},
        {"missing-bit-rate", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "baudRate has no supportedBaudRate"),
         QT_TRANSLATE_NOOP("CFindings", "Tools cannot offer a bit rate, or refuse the file. List the supported ones."),
         missingBitRate},
        {"default-bit-rate", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "The default bit rate is not among the supported ones"),
         QT_TRANSLATE_NOOP("CFindings", "A tool that picks it cannot reach the device. Mend one of them."),
         defaultBitRate},
        {"node-id", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "The nodeID of deviceCommissioning is no number up to 127"),
         QT_TRANSLATE_NOOP("CFindings", "Node-IDs of CANopen are 1 to 127. Write one of them, or 0 for none."), nodeId},
    };
    return rules;
}
