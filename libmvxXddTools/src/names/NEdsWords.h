#ifndef MVXXDDTOOLS_NEDSWORDS_H
#define MVXXDDTOOLS_NEDSWORDS_H

#include <QLatin1String>

#include <array>

/** The sections, keys and words of the INI forms of a description, EDS and DCF (CiA 306). Case does not matter when
 * they are read. */
namespace NEdsWords
{
// Sections.
const QLatin1String FILE_INFO("FileInfo");
const QLatin1String DEVICE_INFO("DeviceInfo");
const QLatin1String DUMMY_USAGE("DummyUsage");
const QLatin1String COMMENTS("Comments");
const QLatin1String MANDATORY_OBJECTS("MandatoryObjects");
const QLatin1String OPTIONAL_OBJECTS("OptionalObjects");
const QLatin1String MANUFACTURER_OBJECTS("ManufacturerObjects");
const QLatin1String COMMISSIONING("DeviceComissioning");        // As the standard writes it
const QLatin1String COMMISSIONING_TWO_M("DeviceCommissioning"); // As others do
const QLatin1String SUB("sub");                                 // Between index and sub-index

// What follows the index in the name of a list section: sub-indexes with their names, actual values and denotations.
const QLatin1String LIST_NAME("Name");
const QLatin1String LIST_VALUE("Value");
const QLatin1String LIST_DENOTATION("Denotation");

// Keys of [FileInfo].
const QLatin1String FILE_NAME("FileName");
const QLatin1String FILE_VERSION("FileVersion");
const QLatin1String FILE_REVISION("FileRevision");
const QLatin1String EDS_VERSION("EDSVersion");
const QLatin1String LAST_EDS("LastEDS");
const QLatin1String DESCRIPTION("Description");
const QLatin1String CREATION_TIME("CreationTime");
const QLatin1String CREATION_DATE("CreationDate");
const QLatin1String CREATED_BY("CreatedBy");
const QLatin1String MODIFICATION_TIME("ModificationTime");
const QLatin1String MODIFICATION_DATE("ModificationDate");
const QLatin1String MODIFIED_BY("ModifiedBy");

// Keys of [DeviceInfo].
const QLatin1String VENDOR_NAME("VendorName");
const QLatin1String VENDOR_NUMBER("VendorNumber");
const QLatin1String PRODUCT_NAME("ProductName");
const QLatin1String PRODUCT_NUMBER("ProductNumber");
const QLatin1String REVISION_NUMBER("RevisionNumber");
const QLatin1String ORDER_CODE("OrderCode");
const QLatin1String BAUD_RATE("BaudRate_"); // Followed by the rate in kbit/s
const QLatin1String SIMPLE_BOOT_UP_MASTER("SimpleBootUpMaster");
const QLatin1String SIMPLE_BOOT_UP_SLAVE("SimpleBootUpSlave");
const QLatin1String GRANULARITY("Granularity");
const QLatin1String DYNAMIC_CHANNELS("DynamicChannelsSupported");
const QLatin1String GROUP_MESSAGING("GroupMessaging");
const QLatin1String NR_OF_RX_PDO("NrOfRXPDO");
const QLatin1String NR_OF_TX_PDO("NrOfTXPDO");
const QLatin1String LSS_SUPPORTED("LSS_Supported");
const QLatin1String COMPACT_PDO("CompactPDO");
const QLatin1String NG_SLAVE("NG_Slave");

// Keys of [DeviceComissioning].
const QLatin1String NODE_ID_KEY("NodeID");
const QLatin1String NODE_NAME("NodeName");
const QLatin1String NODE_BAUD_RATE("Baudrate");
const QLatin1String NET_NUMBER("NetNumber");
const QLatin1String NETWORK_NAME("NetworkName");
const QLatin1String CANOPEN_MANAGER("CANopenManager");

// The bit rates that have a key, in kbit/s.
constexpr std::array<int, 8> BAUD_RATES = {10, 20, 50, 125, 250, 500, 800, 1000};

// Keys of other sections.
const QLatin1String DUMMY("Dummy000"); // Followed by the data type
constexpr unsigned int MAX_DUMMY = 7;
const QLatin1String LINES("Lines");
const QLatin1String SUPPORTED_OBJECTS("SupportedObjects");
const QLatin1String NR_OF_ENTRIES("NrOfEntries");
const QLatin1String NR_OF_OBJECTS("NrOfObjects"); // The name of sub-index 0 of a compact object

// Keys of an object or sub-object.
const QLatin1String PARAMETER_NAME("ParameterName");
const QLatin1String OBJECT_TYPE("ObjectType");
const QLatin1String DATA_TYPE("DataType");
const QLatin1String ACCESS_TYPE("AccessType");
const QLatin1String PDO_MAPPING("PDOMapping");
const QLatin1String DEFAULT_VALUE("DefaultValue");
const QLatin1String LOW_LIMIT("LowLimit");
const QLatin1String HIGH_LIMIT("HighLimit");
const QLatin1String OBJ_FLAGS("ObjFlags");
const QLatin1String SUB_NUMBER("SubNumber");
const QLatin1String COMPACT_SUB_OBJ("CompactSubObj");
const QLatin1String PARAMETER_VALUE("ParameterValue");
const QLatin1String DENOTATION("Denotation");

// Words of AccessType beside those of an XDD.
const QLatin1String READ_WRITE_TRANSMIT("rwr");
const QLatin1String READ_WRITE_RECEIVE("rww");

// The kind of what is lost because an entry is left out.
const QLatin1String LEFT_OUT("left-out");
} // namespace NEdsWords

#endif
