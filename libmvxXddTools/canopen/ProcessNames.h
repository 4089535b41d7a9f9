#ifndef MVXXDDTOOLS_PROCESSNAMES_H
#define MVXXDDTOOLS_PROCESSNAMES_H

#include <QLatin1String>

/**
 * Names of the application process and of other parts of a description that the library does not read, beside those of
 * NIso15745Tags.
 */
namespace NProcessNames
{
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
const QLatin1String TAG_DUMMY("dummy");
const QLatin1String TAG_GENERAL_FEATURES("CANopenGeneralFeatures");
const QLatin1String TAG_MASTER_FEATURES("CANopenMasterFeatures");
const QLatin1String TAG_COMMISSIONING("deviceCommissioning");

const QLatin1String ATTR_UNIQUE_ID("uniqueID");
const QLatin1String ATTR_ACCESS("access");
const QLatin1String ATTR_ENTRY("entry");
const QLatin1String ATTR_GRANULARITY("granularity");
const QLatin1String ATTR_NR_OF_RX_PDO("nrOfRxPDO");
const QLatin1String ATTR_NR_OF_TX_PDO("nrOfTxPDO");

const QLatin1String VAL_DEVICE_BODY("ProfileBody_Device_CANopen");
const QLatin1String VAL_NETWORK_BODY("ProfileBody_CommunicationNetwork_CANopen");
const QLatin1String VAL_NO_ACCESS("noAccess");
} // namespace NProcessNames

#endif
