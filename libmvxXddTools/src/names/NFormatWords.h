#ifndef MVXXDDTOOLS_NFORMATWORDS_H
#define MVXXDDTOOLS_NFORMATWORDS_H

#include <QLatin1String>

/** The words of the format that the reader does not know, beside those of NIso15745Tags. */
namespace NFormatWords
{
// Elements of the application process.
const QLatin1String TAG_PARAMETER("parameter");
const QLatin1String TAG_DATA_TYPE_ID_REF("dataTypeIDRef");
const QLatin1String TAG_ARRAY("array");
const QLatin1String TAG_STRUCT("struct");
const QLatin1String TAG_VAR_DECLARATION("varDeclaration");
const QLatin1String TAG_BITSTRING("BITSTRING");
const QLatin1String TAG_ALLOWED_VALUES("allowedValues");
const QLatin1String TAG_RANGE("range");
const QLatin1String TAG_MIN_VALUE("minValue");
const QLatin1String TAG_MAX_VALUE("maxValue");
const QLatin1String TAG_VALUE("value");
const QLatin1String TAG_ENUM("enum");
const QLatin1String TAG_ENUM_VALUE("enumValue");
const QLatin1String TAG_UNIT("unit");

// A text dictionary of the capabilities.
const QLatin1String TAG_DICTIONARY("dictionary");

// Elements of the application layers and the network management.
const QLatin1String TAG_DUMMY("dummy");
const QLatin1String TAG_GENERAL_FEATURES("CANopenGeneralFeatures");
const QLatin1String TAG_MASTER_FEATURES("CANopenMasterFeatures");
const QLatin1String TAG_COMMISSIONING("deviceCommissioning");

const QLatin1String ATTR_UNIQUE_ID("uniqueID");
const QLatin1String ATTR_ACCESS("access");
const QLatin1String ATTR_ENTRY("entry");
const QLatin1String ATTR_MULTIPLIER("multiplier");
const QLatin1String ATTR_OFFSET("offset");
const QLatin1String ATTR_UNIT_URI("unitURI");
const QLatin1String ATTR_GRANULARITY("granularity");
const QLatin1String ATTR_NR_OF_RX_PDO("nrOfRxPDO");
const QLatin1String ATTR_NR_OF_TX_PDO("nrOfTxPDO");
const QLatin1String ATTR_BOOT_UP_MASTER("bootUpMaster");
const QLatin1String ATTR_BOOT_UP_SLAVE("bootUpSlave");
const QLatin1String ATTR_DYNAMIC_CHANNELS("dynamicChannels");
const QLatin1String ATTR_GROUP_MESSAGING("groupMessaging");
const QLatin1String ATTR_LSS_SLAVE("layerSettingServiceSlave");
const QLatin1String ATTR_NODE_NAME("nodeName");
const QLatin1String ATTR_ACTUAL_BAUD_RATE("actualBaudRate");
const QLatin1String ATTR_NETWORK_NUMBER("networkNumber");
const QLatin1String ATTR_NETWORK_NAME("networkName");
const QLatin1String ATTR_CANOPEN_MANAGER("CANopenManager");
const QLatin1String ATTR_NODE_ID("nodeID");
const QLatin1String ATTR_NODE_ID_CAPITAL("NodeID"); // As some editors write it

const QLatin1String VAL_NAMESPACE("http://www.canopen.org/xml/1.0");
const QLatin1String VAL_SCHEMA_INSTANCE("http://www.w3.org/2001/XMLSchema-instance");
const QLatin1String VAL_SCHEMA("CANopen.xsd");
const QLatin1String VAL_DEVICE_BODY("ProfileBody_Device_CANopen");
const QLatin1String VAL_NETWORK_BODY("ProfileBody_CommunicationNetwork_CANopen");

// Values of "access" of a parameter. That for const is the one of an object.
const QLatin1String VAL_ACCESS_READ("read");
const QLatin1String VAL_ACCESS_WRITE("write");
const QLatin1String VAL_ACCESS_READ_WRITE("readWrite");
const QLatin1String VAL_ACCESS_READ_WRITE_INPUT("readWriteInput");
const QLatin1String VAL_ACCESS_READ_WRITE_OUTPUT("readWriteOutput");
const QLatin1String VAL_NO_ACCESS("noAccess");
} // namespace NFormatWords

#endif
