#ifndef MVXISO15745XML_NISO15745TAGS_H
#define MVXISO15745XML_NISO15745TAGS_H

#include <QLatin1String>

/**
 * Every name and value text of a description that the reader knows. They are part of the file format, including those
 * that are written in an unusual way, and are compared exactly, names without their namespace prefix.
 */
namespace NIso15745Tags
{
// Elements, from the container down.
const QLatin1String TAG_PROFILE_CONTAINER("ISO15745ProfileContainer");
const QLatin1String TAG_PROFILE("ISO15745Profile");
const QLatin1String TAG_PROFILE_HEADER("ProfileHeader");
const QLatin1String TAG_PROFILE_IDENTIFICATION("ProfileIdentification");
const QLatin1String TAG_PROFILE_REVISION("ProfileRevision");
const QLatin1String TAG_PROFILE_NAME("ProfileName");
const QLatin1String TAG_PROFILE_SOURCE("ProfileSource");
const QLatin1String TAG_PROFILE_CLASS_ID("ProfileClassID");
const QLatin1String TAG_PROFILE_DATE("ProfileDate");
const QLatin1String TAG_PROFILE_ADD_INFOS("AdditionalInformation");
const QLatin1String TAG_ISO15745_REFERENCE("ISO15745Reference");
const QLatin1String TAG_ISO15745_PART("ISO15745Part");
const QLatin1String TAG_ISO15745_EDITION("ISO15745Edition");
const QLatin1String TAG_ISO15745_TECHNOLOGY("ProfileTechnology");
const QLatin1String TAG_IAS_INTERFACE_TYPE("IASInterfaceType");
const QLatin1String TAG_PROFILE_BODY("ProfileBody");
const QLatin1String TAG_DEVICE_IDENTITY("DeviceIdentity");
const QLatin1String TAG_VENDOR_NAME("vendorName");
const QLatin1String TAG_VENDOR_ID("vendorID");
const QLatin1String TAG_VENDOR_TEXT("vendorText");
const QLatin1String TAG_DEVICE_FAMILY("deviceFamily");
const QLatin1String TAG_PRODUCT_FAMILY("productFamily");
const QLatin1String TAG_PRODUCT_NAME("productName");
const QLatin1String TAG_PRODUCT_ID("productID");
const QLatin1String TAG_PRODUCT_TEXT("productText");
const QLatin1String TAG_ORDER_NUMBER("orderNumber");
const QLatin1String TAG_VERSION("version");
const QLatin1String TAG_BUILD_DATE("buildDate");
const QLatin1String TAG_SPEC_REVISION("specificationRevision");
const QLatin1String TAG_INSTANCE_NAME("instanceName");
const QLatin1String TAG_DEVICE_MANAGER("DeviceManager");
const QLatin1String TAG_DEVICE_FUNCTION("DeviceFunction");
const QLatin1String TAG_CAPABILITIES("capabilities");
const QLatin1String TAG_PICTURE_LIST("picturesList");
const QLatin1String TAG_DICTIONARY_LIST("dictionaryList");
const QLatin1String TAG_CHARACTERISTICS_LIST("characteristicsList");
const QLatin1String TAG_STANDARD_COMLIANCE_LIST("standardComplianceList");
const QLatin1String TAG_CATEGORY("category");
const QLatin1String TAG_CHARACTERISTIC("characteristic");
const QLatin1String TAG_CHARACTERISTIC_NAME("characteristicName");
const QLatin1String TAG_CHARACTERISTIC_CONTENT("characteristicContent");
const QLatin1String TAG_APPL_PROCESS("ApplicationProcess");
const QLatin1String TAG_APPLICATION_LAYERS("ApplicationLayers");
const QLatin1String TAG_IDENTITY("identity");
const QLatin1String TAG_CAN_OPEN_OBJECT_LIST("CANopenObjectList");
const QLatin1String TAG_DUMMY_USAGE("dummyUsage");
const QLatin1String TAG_DYNAMIC_CHANNELS("dynamicChannels");
const QLatin1String TAG_TRANSPORT_LAYERS("TransportLayers");
const QLatin1String TAG_NETWORK_MANAGEMENT("NetworkManagement");
const QLatin1String TAG_CAN_OPEN_OBJECT("CANopenObject");
const QLatin1String TAG_CAN_OPEN_SUB_OBJECT("CANopenSubObject");
const QLatin1String TAG_PHYSICAL_LAYER("PhysicalLayer");
const QLatin1String TAG_BAUD_RATE("baudRate");
const QLatin1String TAG_SUPPORTED_BAUD_RATE("supportedBaudRate");

// Attributes.
const QLatin1String ATTR_SCHEMA_LOCATION("schemaLocation");
const QLatin1String ATTR_FILE_CREATION_DATE("fileCreationDate");
const QLatin1String ATTR_FILE_CREATION_TIME("fileCreationTime");
const QLatin1String ATTR_FILE_CREATOR("fileCreator");
const QLatin1String ATTR_FILE_MODIFICATION_DATE("fileModificationDate");
const QLatin1String ATTR_FILE_MODIFICATION_TIME("fileModificationTime");
const QLatin1String ATTR_FILE_MODIFIED_BY("fileModifiedBy");
const QLatin1String ATTR_FILE_NAME("fileName");
const QLatin1String ATTR_FILE_VERSION("fileVersion");
const QLatin1String ATTR_TYPE("type");
const QLatin1String ATTR_READ_ONLY("readOnly");
const QLatin1String ATTR_VERSION_TYPE("versionType");
const QLatin1String ATTR_LANG("lang");
const QLatin1String ATTR_URI("URI");
const QLatin1String ATTR_DICT_ID("dictID");
const QLatin1String ATTR_TEXT_ID("textID");
const QLatin1String ATTR_MANDATORY_OBJECTS("mandatoryObjects");
const QLatin1String ATTR_OPTIONAL_OBJECTS("optionalObjects");
const QLatin1String ATTR_MANUFACTURER_OBJECTS("manufacturerObjects");
const QLatin1String ATTR_INDEX("index");
const QLatin1String ATTR_NAME("name");
const QLatin1String ATTR_OBJECT_TYPE("objectType");
const QLatin1String ATTR_DATA_TYPE("dataType");
const QLatin1String ATTR_LOW_LIMIT("lowLimit");
const QLatin1String ATTR_HIGH_LIMIT("highLimit");
const QLatin1String ATTR_ACCESS_TYPE("accessType");
const QLatin1String ATTR_DEFAULT_VALUE("defaultValue");
const QLatin1String ATTR_ACTUAL_VALUE("actualValue");
const QLatin1String ATTR_DENOTATION("denotation");
const QLatin1String ATTR_PDO_MAPPING("PDOmapping");
const QLatin1String ATTR_OBJ_FLAGS("objFlags");
const QLatin1String ATTR_UNIQUE_ID_REF("uniqueIDRef");
const QLatin1String ATTR_SUB_NUMBER("subNumber");
const QLatin1String ATTR_SUB_INDEX("subIndex");
const QLatin1String ATTR_VALUE("value");

// Values, by the enumeration that they belong to.
const QLatin1String VAL_CAN_OPEN("CANopen");
const QLatin1String VAL_OBJ_E_MAP_NO("no");
const QLatin1String VAL_OBJ_MAP_DEFAULT("default");
const QLatin1String VAL_OBJ_MAP_OPTINAL("optional");
const QLatin1String VAL_OBJ_MAP_TPDO("TPDO");
const QLatin1String VAL_OBJ_MAP_RPDO("RPDO");
const QLatin1String VAL_OBJ_ACCESS_RO("ro");
const QLatin1String VAL_OBJ_ACCESS_WO("wo");
const QLatin1String VAL_OBJ_ACCESS_RW("rw");
const QLatin1String VAL_OBJ_ACCESS_CONST("const");
const QLatin1String VAL_VTYPE_SW("SW");
const QLatin1String VAL_VTYPE_FW("FW");
const QLatin1String VAL_VTYPE_HW("HW");
const QLatin1String VAL_GLABTYP_LABEL("label");
const QLatin1String VAL_GLABTYP_DESCRIPTION("description");
const QLatin1String VAL_GLABTYP_LABEL_REF("labelRef");
const QLatin1String VAL_GLABTYP_DESCRIPTION_REF("descriptionRef");
const QLatin1String VAL_CID_AIP("AIP");
const QLatin1String VAL_CID_PROCESS("Process");
const QLatin1String VAL_CID_INFO_EXCHANGE("InformationExchange");
const QLatin1String VAL_CID_RESOURCE("Resource");
const QLatin1String VAL_CID_DEVICE("Device");
const QLatin1String VAL_CID_COMM_NET("CommunicationNetwork");
const QLatin1String VAL_CID_EQUIPMENT("Equipment");
const QLatin1String VAL_CID_HUMAN("Human");
const QLatin1String VAL_CID_MATERIAL("Material");
const QLatin1String VAL_IFT_CSI("CSI");
const QLatin1String VAL_IFT_HCI("HCI");
const QLatin1String VAL_IFT_ISI("ISI");
const QLatin1String VAL_IFT_API("API");
const QLatin1String VAL_IFT_CMI("CMI");
const QLatin1String VAL_IFT_ESI("ESI");
const QLatin1String VAL_IFT_FSI("FSI");
const QLatin1String VAL_IFT_MTI("MTI");
const QLatin1String VAL_IFT_SEI("SEI");
const QLatin1String VAL_IFT_USI("USI");
const QLatin1String VAL_BAUD_AUTO("auto-baudRate");
const QLatin1String VAL_BAUD_10_KBPS("10 Kbps");
const QLatin1String VAL_BAUD_20_KBPS("20 Kbps");
const QLatin1String VAL_BAUD_50_KBPS("50 Kbps");
const QLatin1String VAL_BAUD_100_KBPS("100 Kbps");
const QLatin1String VAL_BAUD_125_KBPS("125 Kbps");
const QLatin1String VAL_BAUD_250_KBPS("250 Kbps");
const QLatin1String VAL_BAUD_500_KBPS("500 Kbps");
const QLatin1String VAL_BAUD_800_KBPS("800 Kbps");
const QLatin1String VAL_BAUD_1000_KBPS("1000 Kbps");
} // namespace NIso15745Tags

#endif
