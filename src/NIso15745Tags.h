#ifndef MVXISO15745XML_NISO15745TAGS_H
#define MVXISO15745XML_NISO15745TAGS_H

#include <QLatin1String>
#include <QString>

/**
 * Every name and value text that the reader looks for in a description. They are part of the file format, including
 * those that are written in an unusual way, and are compared exactly, names without their namespace prefix.
 */
namespace NIso15745Tags
{
/**
 * The name of an element or attribute.
 *
 * Some fifty names are looked up for each object, and every look-up takes a QString. As temporaries made from Latin-1
 * these were a quarter of what reading costs beyond parsing, so a name carries its UTF-16 text with it, in the form of
 * a string literal of Qt, and becomes a QString without a copy.
 */
template <int SIZE> class CName
{
public:
    constexpr explicit CName(const char (&text)[SIZE])
        : mUtf16{Q_STATIC_STRING_DATA_HEADER_INITIALIZER(SIZE - 1), {}}
    {
        for (int i = 0; i < SIZE; ++i) {
            mUtf16.data[i] = static_cast<qunicodechar>(text[i]);
        }
    }

    operator QString() const
    {
        return QString(QStringDataPtr{mUtf16.data_ptr()});
    }

private:
    QStaticStringData<SIZE - 1> mUtf16;
};

/** A value text. These only fill the tables that translate enumerations, once. */
template <int SIZE> constexpr QLatin1String value(const char (&text)[SIZE])
{
    return QLatin1String(text, SIZE - 1);
}

// Elements, from the container down.
constexpr CName TAG_PROFILE_CONTAINER("ISO15745ProfileContainer");
constexpr CName TAG_PROFILE("ISO15745Profile");
constexpr CName TAG_PROFILE_HEADER("ProfileHeader");
constexpr CName TAG_PROFILE_IDENTIFICATION("ProfileIdentification");
constexpr CName TAG_PROFILE_REVISION("ProfileRevision");
constexpr CName TAG_PROFILE_NAME("ProfileName");
constexpr CName TAG_PROFILE_SOURCE("ProfileSource");
constexpr CName TAG_PROFILE_CLASS_ID("ProfileClassID");
constexpr CName TAG_PROFILE_DATE("ProfileDate");
constexpr CName TAG_PROFILE_ADD_INFOS("AdditionalInformation");
constexpr CName TAG_ISO15745_REFERENCE("ISO15745Reference");
constexpr CName TAG_ISO15745_PART("ISO15745Part");
constexpr CName TAG_ISO15745_EDITION("ISO15745Edition");
constexpr CName TAG_ISO15745_TECHNOLOGY("ProfileTechnology");
constexpr CName TAG_IAS_INTERFACE_TYPE("IASInterfaceType");
constexpr CName TAG_PROFILE_BODY("ProfileBody");
constexpr CName TAG_DEVICE_IDENTITY("DeviceIdentity");
constexpr CName TAG_VENDOR_NAME("vendorName");
constexpr CName TAG_VENDOR_ID("vendorID");
constexpr CName TAG_VENDOR_TEXT("vendorText");
constexpr CName TAG_DEVICE_FAMILY("deviceFamily");
constexpr CName TAG_PRODUCT_FAMILY("productFamily");
constexpr CName TAG_PRODUCT_NAME("productName");
constexpr CName TAG_PRODUCT_ID("productID");
constexpr CName TAG_PRODUCT_TEXT("productText");
constexpr CName TAG_ORDER_NUMBER("orderNumber");
constexpr CName TAG_VERSION("version");
constexpr CName TAG_BUILD_DATE("buildDate");
constexpr CName TAG_SPEC_REVISION("specificationRevision");
constexpr CName TAG_INSTANCE_NAME("instanceName");
constexpr CName TAG_DEVICE_MANAGER("DeviceManager");
constexpr CName TAG_DEVICE_FUNCTION("DeviceFunction");
constexpr CName TAG_CAPABILITIES("capabilities");
constexpr CName TAG_PICTURE_LIST("picturesList");
constexpr CName TAG_DICTIONARY_LIST("dictionaryList");
constexpr CName TAG_CHARACTERISTICS_LIST("characteristicsList");
constexpr CName TAG_STANDARD_COMLIANCE_LIST("standardComplianceList");
constexpr CName TAG_CATEGORY("category");
constexpr CName TAG_CHARACTERISTIC("characteristic");
constexpr CName TAG_CHARACTERISTIC_NAME("characteristicName");
constexpr CName TAG_CHARACTERISTIC_CONTENT("characteristicContent");
constexpr CName TAG_APPL_PROCESS("ApplicationProcess");
constexpr CName TAG_APPLICATION_LAYERS("ApplicationLayers");
constexpr CName TAG_IDENTITY("identity");
constexpr CName TAG_CAN_OPEN_OBJECT_LIST("CANopenObjectList");
constexpr CName TAG_DUMMY_USAGE("dummyUsage");
constexpr CName TAG_DYNAMIC_CHANNELS("dynamicChannels");
constexpr CName TAG_TRANSPORT_LAYERS("TransportLayers");
constexpr CName TAG_NETWORK_MANAGEMENT("NetworkManagement");
constexpr CName TAG_CAN_OPEN_OBJECT("CANopenObject");
constexpr CName TAG_CAN_OPEN_SUB_OBJECT("CANopenSubObject");
constexpr CName TAG_PHYSICAL_LAYER("PhysicalLayer");
constexpr CName TAG_BAUD_RATE("baudRate");
constexpr CName TAG_SUPPORTED_BAUD_RATE("supportedBaudRate");

// Attributes.
constexpr CName ATTR_SCHEMA_LOCATION("schemaLocation");
constexpr CName ATTR_FILE_CREATION_DATE("fileCreationDate");
constexpr CName ATTR_FILE_CREATION_TIME("fileCreationTime");
constexpr CName ATTR_FILE_CREATOR("fileCreator");
constexpr CName ATTR_FILE_MODIFICATION_DATE("fileModificationDate");
constexpr CName ATTR_FILE_MODIFICATION_TIME("fileModificationTime");
constexpr CName ATTR_FILE_MODIFIED_BY("fileModifiedBy");
constexpr CName ATTR_FILE_NAME("fileName");
constexpr CName ATTR_FILE_VERSION("fileVersion");
constexpr CName ATTR_TYPE("type");
constexpr CName ATTR_READ_ONLY("readOnly");
constexpr CName ATTR_VERSION_TYPE("versionType");
constexpr CName ATTR_LANG("lang");
constexpr CName ATTR_URI("URI");
constexpr CName ATTR_DICT_ID("dictID");
constexpr CName ATTR_TEXT_ID("textID");
constexpr CName ATTR_MANDATORY_OBJECTS("mandatoryObjects");
constexpr CName ATTR_OPTIONAL_OBJECTS("optionalObjects");
constexpr CName ATTR_MANUFACTURER_OBJECTS("manufacturerObjects");
constexpr CName ATTR_INDEX("index");
constexpr CName ATTR_NAME("name");
constexpr CName ATTR_OBJECT_TYPE("objectType");
constexpr CName ATTR_DATA_TYPE("dataType");
constexpr CName ATTR_LOW_LIMIT("lowLimit");
constexpr CName ATTR_HIGH_LIMIT("highLimit");
constexpr CName ATTR_ACCESS_TYPE("accessType");
constexpr CName ATTR_DEFAULT_VALUE("defaultValue");
constexpr CName ATTR_ACTUAL_VALUE("actualValue");
constexpr CName ATTR_DENOTATION("denotation");
constexpr CName ATTR_PDO_MAPPING("PDOmapping");
constexpr CName ATTR_OBJ_FLAGS("objFlags");
constexpr CName ATTR_UNIQUE_ID_REF("uniqueIDRef");
constexpr CName ATTR_SUB_NUMBER("subNumber");
constexpr CName ATTR_SUB_INDEX("subIndex");
constexpr CName ATTR_VALUE("value");

// Values, by the enumeration that they belong to.
constexpr QLatin1String VAL_CAN_OPEN = value("CANopen");
constexpr QLatin1String VAL_OBJ_E_MAP_NO = value("no");
constexpr QLatin1String VAL_OBJ_MAP_DEFAULT = value("default");
constexpr QLatin1String VAL_OBJ_MAP_OPTINAL = value("optional");
constexpr QLatin1String VAL_OBJ_MAP_TPDO = value("TPDO");
constexpr QLatin1String VAL_OBJ_MAP_RPDO = value("RPDO");
constexpr QLatin1String VAL_OBJ_ACCESS_RO = value("ro");
constexpr QLatin1String VAL_OBJ_ACCESS_WO = value("wo");
constexpr QLatin1String VAL_OBJ_ACCESS_RW = value("rw");
constexpr QLatin1String VAL_OBJ_ACCESS_CONST = value("const");
constexpr QLatin1String VAL_VTYPE_SW = value("SW");
constexpr QLatin1String VAL_VTYPE_FW = value("FW");
constexpr QLatin1String VAL_VTYPE_HW = value("HW");
constexpr QLatin1String VAL_GLABTYP_LABEL = value("label");
constexpr QLatin1String VAL_GLABTYP_DESCRIPTION = value("description");
constexpr QLatin1String VAL_GLABTYP_LABEL_REF = value("labelRef");
constexpr QLatin1String VAL_GLABTYP_DESCRIPTION_REF = value("descriptionRef");
constexpr QLatin1String VAL_CID_AIP = value("AIP");
constexpr QLatin1String VAL_CID_PROCESS = value("Process");
constexpr QLatin1String VAL_CID_INFO_EXCHANGE = value("InformationExchange");
constexpr QLatin1String VAL_CID_RESOURCE = value("Resource");
constexpr QLatin1String VAL_CID_DEVICE = value("Device");
constexpr QLatin1String VAL_CID_COMM_NET = value("CommunicationNetwork");
constexpr QLatin1String VAL_CID_EQUIPMENT = value("Equipment");
constexpr QLatin1String VAL_CID_HUMAN = value("Human");
constexpr QLatin1String VAL_CID_MATERIAL = value("Material");
constexpr QLatin1String VAL_IFT_CSI = value("CSI");
constexpr QLatin1String VAL_IFT_HCI = value("HCI");
constexpr QLatin1String VAL_IFT_ISI = value("ISI");
constexpr QLatin1String VAL_IFT_API = value("API");
constexpr QLatin1String VAL_IFT_CMI = value("CMI");
constexpr QLatin1String VAL_IFT_ESI = value("ESI");
constexpr QLatin1String VAL_IFT_FSI = value("FSI");
constexpr QLatin1String VAL_IFT_MTI = value("MTI");
constexpr QLatin1String VAL_IFT_SEI = value("SEI");
constexpr QLatin1String VAL_IFT_USI = value("USI");
constexpr QLatin1String VAL_BAUD_AUTO = value("auto-baudRate");
constexpr QLatin1String VAL_BAUD_10_KBPS = value("10 Kbps");
constexpr QLatin1String VAL_BAUD_20_KBPS = value("20 Kbps");
constexpr QLatin1String VAL_BAUD_50_KBPS = value("50 Kbps");
constexpr QLatin1String VAL_BAUD_100_KBPS = value("100 Kbps");
constexpr QLatin1String VAL_BAUD_125_KBPS = value("125 Kbps");
constexpr QLatin1String VAL_BAUD_250_KBPS = value("250 Kbps");
constexpr QLatin1String VAL_BAUD_500_KBPS = value("500 Kbps");
constexpr QLatin1String VAL_BAUD_800_KBPS = value("800 Kbps");
constexpr QLatin1String VAL_BAUD_1000_KBPS = value("1000 Kbps");
} // namespace NIso15745Tags

#endif
