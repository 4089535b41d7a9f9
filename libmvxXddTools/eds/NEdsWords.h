#ifndef MVXXDDTOOLS_NEDSWORDS_H
#define MVXXDDTOOLS_NEDSWORDS_H

#include <QLatin1String>

#include <array>

/** The sections, keys and words of the INI form of a description (CiA 306). */
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
const QLatin1String SUB("sub"); // Between index and sub-index

// Keys of [FileInfo].
const QLatin1String FILE_NAME("FileName");
const QLatin1String FILE_VERSION("FileVersion");
const QLatin1String FILE_REVISION("FileRevision");
const QLatin1String EDS_VERSION("EDSVersion");
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

// The bit rates that have a key, in kbit/s.
constexpr std::array<int, 8> BAUD_RATES = {10, 20, 50, 125, 250, 500, 800, 1000};

// Keys of other sections.
const QLatin1String DUMMY("Dummy000"); // Followed by the data type
const QLatin1String LINES("Lines");
const QLatin1String SUPPORTED_OBJECTS("SupportedObjects");

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

// Words of AccessType beside those of an XDD.
const QLatin1String READ_WRITE_TRANSMIT("rwr");
const QLatin1String READ_WRITE_RECEIVE("rww");

// The kind of what is lost because an entry is left out.
const QLatin1String LEFT_OUT("left-out");
} // namespace NEdsWords

#endif
