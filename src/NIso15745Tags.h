#ifndef MVXISO15745XML_NISO15745TAGS_H
#define MVXISO15745XML_NISO15745TAGS_H

#include <QLatin1String>

/**
 * Every name and value text that the reader looks for in a description. They are part of the file format, including
 * those that are written in an unusual way, and are compared exactly, names without their namespace prefix.
 */
namespace NIso15745Tags
{
/** A text with its length, which the compiler knows. */
template <int SIZE> constexpr QLatin1String text(const char (&literal)[SIZE])
{
    return QLatin1String(literal, SIZE - 1);
}

// Elements, from the container down.
constexpr QLatin1String TAG_PROFILE_CONTAINER = text("ISO15745ProfileContainer");
constexpr QLatin1String TAG_PROFILE = text("ISO15745Profile");
constexpr QLatin1String TAG_PROFILE_HEADER = text("ProfileHeader");
constexpr QLatin1String TAG_PROFILE_IDENTIFICATION = text("ProfileIdentification");
constexpr QLatin1String TAG_PROFILE_REVISION = text("ProfileRevision");
constexpr QLatin1String TAG_PROFILE_NAME = text("ProfileName");
constexpr QLatin1String TAG_PROFILE_SOURCE = text("ProfileSource");
constexpr QLatin1String TAG_PROFILE_CLASS_ID = text("ProfileClassID");
constexpr QLatin1String TAG_PROFILE_DATE = text("ProfileDate");
constexpr QLatin1String TAG_PROFILE_ADD_INFOS = text("AdditionalInformation");
constexpr QLatin1String TAG_ISO15745_REFERENCE = text("ISO15745Reference");
constexpr QLatin1String TAG_ISO15745_PART = text("ISO15745Part");
constexpr QLatin1String TAG_ISO15745_EDITION = text("ISO15745Edition");
constexpr QLatin1String TAG_ISO15745_TECHNOLOGY = text("ProfileTechnology");
constexpr QLatin1String TAG_IAS_INTERFACE_TYPE = text("IASInterfaceType");
constexpr QLatin1String TAG_PROFILE_BODY = text("ProfileBody");
constexpr QLatin1String TAG_DEVICE_IDENTITY = text("DeviceIdentity");
constexpr QLatin1String TAG_VENDOR_NAME = text("vendorName");
constexpr QLatin1String TAG_VENDOR_ID = text("vendorID");
constexpr QLatin1String TAG_VENDOR_TEXT = text("vendorText");
constexpr QLatin1String TAG_DEVICE_FAMILY = text("deviceFamily");
constexpr QLatin1String TAG_PRODUCT_FAMILY = text("productFamily");
constexpr QLatin1String TAG_PRODUCT_NAME = text("productName");
constexpr QLatin1String TAG_PRODUCT_ID = text("productID");
constexpr QLatin1String TAG_PRODUCT_TEXT = text("productText");
constexpr QLatin1String TAG_ORDER_NUMBER = text("orderNumber");
constexpr QLatin1String TAG_VERSION = text("version");
constexpr QLatin1String TAG_BUILD_DATE = text("buildDate");
constexpr QLatin1String TAG_SPEC_REVISION = text("specificationRevision");
constexpr QLatin1String TAG_INSTANCE_NAME = text("instanceName");
constexpr QLatin1String TAG_DEVICE_MANAGER = text("DeviceManager");
constexpr QLatin1String TAG_DEVICE_FUNCTION = text("DeviceFunction");
constexpr QLatin1String TAG_CAPABILITIES = text("capabilities");
constexpr QLatin1String TAG_PICTURE_LIST = text("picturesList");
constexpr QLatin1String TAG_DICTIONARY_LIST = text("dictionaryList");
constexpr QLatin1String TAG_CHARACTERISTICS_LIST = text("characteristicsList");
constexpr QLatin1String TAG_STANDARD_COMLIANCE_LIST = text("standardComplianceList");
constexpr QLatin1String TAG_CATEGORY = text("category");
constexpr QLatin1String TAG_CHARACTERISTIC = text("characteristic");
constexpr QLatin1String TAG_CHARACTERISTIC_NAME = text("characteristicName");
constexpr QLatin1String TAG_CHARACTERISTIC_CONTENT = text("characteristicContent");
constexpr QLatin1String TAG_APPL_PROCESS = text("ApplicationProcess");
constexpr QLatin1String TAG_APPLICATION_LAYERS = text("ApplicationLayers");
constexpr QLatin1String TAG_IDENTITY = text("identity");
constexpr QLatin1String TAG_CAN_OPEN_OBJECT_LIST = text("CANopenObjectList");
constexpr QLatin1String TAG_DUMMY_USAGE = text("dummyUsage");
constexpr QLatin1String TAG_DYNAMIC_CHANNELS = text("dynamicChannels");
constexpr QLatin1String TAG_TRANSPORT_LAYERS = text("TransportLayers");
constexpr QLatin1String TAG_NETWORK_MANAGEMENT = text("NetworkManagement");
constexpr QLatin1String TAG_CAN_OPEN_OBJECT = text("CANopenObject");
constexpr QLatin1String TAG_CAN_OPEN_SUB_OBJECT = text("CANopenSubObject");
constexpr QLatin1String TAG_PHYSICAL_LAYER = text("PhysicalLayer");
constexpr QLatin1String TAG_BAUD_RATE = text("baudRate");
constexpr QLatin1String TAG_SUPPORTED_BAUD_RATE = text("supportedBaudRate");

// Attributes.
constexpr QLatin1String ATTR_SCHEMA_LOCATION = text("schemaLocation");
constexpr QLatin1String ATTR_FILE_CREATION_DATE = text("fileCreationDate");
constexpr QLatin1String ATTR_FILE_CREATION_TIME = text("fileCreationTime");
constexpr QLatin1String ATTR_FILE_CREATOR = text("fileCreator");
constexpr QLatin1String ATTR_FILE_MODIFICATION_DATE = text("fileModificationDate");
constexpr QLatin1String ATTR_FILE_MODIFICATION_TIME = text("fileModificationTime");
constexpr QLatin1String ATTR_FILE_MODIFIED_BY = text("fileModifiedBy");
constexpr QLatin1String ATTR_FILE_NAME = text("fileName");
constexpr QLatin1String ATTR_FILE_VERSION = text("fileVersion");
constexpr QLatin1String ATTR_TYPE = text("type");
constexpr QLatin1String ATTR_READ_ONLY = text("readOnly");
constexpr QLatin1String ATTR_VERSION_TYPE = text("versionType");
constexpr QLatin1String ATTR_LANG = text("lang");
constexpr QLatin1String ATTR_URI = text("URI");
constexpr QLatin1String ATTR_DICT_ID = text("dictID");
constexpr QLatin1String ATTR_TEXT_ID = text("textID");
constexpr QLatin1String ATTR_MANDATORY_OBJECTS = text("mandatoryObjects");
constexpr QLatin1String ATTR_OPTIONAL_OBJECTS = text("optionalObjects");
constexpr QLatin1String ATTR_MANUFACTURER_OBJECTS = text("manufacturerObjects");
constexpr QLatin1String ATTR_INDEX = text("index");
constexpr QLatin1String ATTR_NAME = text("name");
constexpr QLatin1String ATTR_OBJECT_TYPE = text("objectType");
constexpr QLatin1String ATTR_DATA_TYPE = text("dataType");
constexpr QLatin1String ATTR_LOW_LIMIT = text("lowLimit");
constexpr QLatin1String ATTR_HIGH_LIMIT = text("highLimit");
constexpr QLatin1String ATTR_ACCESS_TYPE = text("accessType");
constexpr QLatin1String ATTR_DEFAULT_VALUE = text("defaultValue");
constexpr QLatin1String ATTR_ACTUAL_VALUE = text("actualValue");
constexpr QLatin1String ATTR_DENOTATION = text("denotation");
constexpr QLatin1String ATTR_PDO_MAPPING = text("PDOmapping");
constexpr QLatin1String ATTR_OBJ_FLAGS = text("objFlags");
constexpr QLatin1String ATTR_UNIQUE_ID_REF = text("uniqueIDRef");
constexpr QLatin1String ATTR_SUB_NUMBER = text("subNumber");
constexpr QLatin1String ATTR_SUB_INDEX = text("subIndex");
constexpr QLatin1String ATTR_VALUE = text("value");

// Values, by the enumeration that they belong to.
constexpr QLatin1String VAL_CAN_OPEN = text("CANopen");
constexpr QLatin1String VAL_OBJ_E_MAP_NO = text("no");
constexpr QLatin1String VAL_OBJ_MAP_DEFAULT = text("default");
constexpr QLatin1String VAL_OBJ_MAP_OPTINAL = text("optional");
constexpr QLatin1String VAL_OBJ_MAP_TPDO = text("TPDO");
constexpr QLatin1String VAL_OBJ_MAP_RPDO = text("RPDO");
constexpr QLatin1String VAL_OBJ_ACCESS_RO = text("ro");
constexpr QLatin1String VAL_OBJ_ACCESS_WO = text("wo");
constexpr QLatin1String VAL_OBJ_ACCESS_RW = text("rw");
constexpr QLatin1String VAL_OBJ_ACCESS_CONST = text("const");
constexpr QLatin1String VAL_VTYPE_SW = text("SW");
constexpr QLatin1String VAL_VTYPE_FW = text("FW");
constexpr QLatin1String VAL_VTYPE_HW = text("HW");
constexpr QLatin1String VAL_GLABTYP_LABEL = text("label");
constexpr QLatin1String VAL_GLABTYP_DESCRIPTION = text("description");
constexpr QLatin1String VAL_GLABTYP_LABEL_REF = text("labelRef");
constexpr QLatin1String VAL_GLABTYP_DESCRIPTION_REF = text("descriptionRef");
constexpr QLatin1String VAL_CID_AIP = text("AIP");
constexpr QLatin1String VAL_CID_PROCESS = text("Process");
constexpr QLatin1String VAL_CID_INFO_EXCHANGE = text("InformationExchange");
constexpr QLatin1String VAL_CID_RESOURCE = text("Resource");
constexpr QLatin1String VAL_CID_DEVICE = text("Device");
constexpr QLatin1String VAL_CID_COMM_NET = text("CommunicationNetwork");
constexpr QLatin1String VAL_CID_EQUIPMENT = text("Equipment");
constexpr QLatin1String VAL_CID_HUMAN = text("Human");
constexpr QLatin1String VAL_CID_MATERIAL = text("Material");
constexpr QLatin1String VAL_IFT_CSI = text("CSI");
constexpr QLatin1String VAL_IFT_HCI = text("HCI");
constexpr QLatin1String VAL_IFT_ISI = text("ISI");
constexpr QLatin1String VAL_IFT_API = text("API");
constexpr QLatin1String VAL_IFT_CMI = text("CMI");
constexpr QLatin1String VAL_IFT_ESI = text("ESI");
constexpr QLatin1String VAL_IFT_FSI = text("FSI");
constexpr QLatin1String VAL_IFT_MTI = text("MTI");
constexpr QLatin1String VAL_IFT_SEI = text("SEI");
constexpr QLatin1String VAL_IFT_USI = text("USI");
constexpr QLatin1String VAL_BAUD_AUTO = text("auto-baudRate");
constexpr QLatin1String VAL_BAUD_10_KBPS = text("10 Kbps");
constexpr QLatin1String VAL_BAUD_20_KBPS = text("20 Kbps");
constexpr QLatin1String VAL_BAUD_50_KBPS = text("50 Kbps");
constexpr QLatin1String VAL_BAUD_100_KBPS = text("100 Kbps");
constexpr QLatin1String VAL_BAUD_125_KBPS = text("125 Kbps");
constexpr QLatin1String VAL_BAUD_250_KBPS = text("250 Kbps");
constexpr QLatin1String VAL_BAUD_500_KBPS = text("500 Kbps");
constexpr QLatin1String VAL_BAUD_800_KBPS = text("800 Kbps");
constexpr QLatin1String VAL_BAUD_1000_KBPS = text("1000 Kbps");
} // namespace NIso15745Tags

#endif
