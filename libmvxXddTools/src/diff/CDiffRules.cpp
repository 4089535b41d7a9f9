#include "diff/CDiffRules.h"

namespace
{
constexpr unsigned int SDO = CXddChange::CONCERN_SDO;
constexpr unsigned int PDO = CXddChange::CONCERN_PDO;
constexpr unsigned int CONFIGURATION = CXddChange::CONCERN_CONFIGURATION;
constexpr unsigned int PEOPLE = CXddChange::CONCERN_PEOPLE;
constexpr CXddRemark::ESeverity BREAKING = CXddRemark::SEVERITY_ERROR;
constexpr CXddRemark::ESeverity COMPATIBLE = CXddRemark::SEVERITY_WARNING;
constexpr CXddRemark::ESeverity EDITORIAL = CXddRemark::SEVERITY_NOTE;
} // namespace

const DiffRules& CDiffRules::entries()
{
    static const DiffRules rules = {
        {"entry-removed", BREAKING, SDO, true, QT_TR_NOOP("An object or sub-object is gone"),
         QT_TR_NOOP("Access to it is aborted with 06020000 or 06090011. Keep it, or say where its value is now."),
         "[2003]", "[2010]"},
        {"entry-added", COMPATIBLE, SDO, false, QT_TR_NOOP("An object or sub-object is new"),
         QT_TR_NOOP("Nothing has to be done."), "", "[2010]"},
        {"object-code", BREAKING, SDO, false,
         QT_TR_NOOP("An object with sub-objects has become one without, or the other way round"),
         QT_TR_NOOP("Sub-index 0 means something else. Give the new object another index."), "ObjectType=7",
         "ObjectType=8"},
        {"type-widened", BREAKING, SDO, true, QT_TR_NOOP("A number has become longer"),
         QT_TR_NOOP(
             "Downloads of the old length are refused, uploads have another one. Give the new value another index."),
         "DataType=0x0006", "DataType=0x0007"},
        {"type-narrowed", BREAKING, SDO, true, QT_TR_NOOP("A number has become shorter"),
         QT_TR_NOOP(
             "Downloads of the old length are refused, uploads have another one. Give the new value another index."),
         "DataType=0x0007", "DataType=0x0006"},
        {"type-changed", BREAKING, SDO, true, QT_TR_NOOP("A value has become one of another kind"),
         QT_TR_NOOP("The same bytes mean something else. Give the new value another index."), "DataType=0x0006",
         "DataType=0x0003"},
        {"access-narrowed", BREAKING, SDO, false, QT_TR_NOOP("An entry can no longer be read, or no longer be written"),
         QT_TR_NOOP("Access is aborted with 06010001 or 06010002. Keep the access."), "AccessType=rw", "AccessType=ro"},
        {"access-widened", COMPATIBLE, SDO, false, QT_TR_NOOP("An entry can be read or written, too"),
         QT_TR_NOOP("Nothing has to be done."), "AccessType=ro", "AccessType=rw"},
        {"access-constant", COMPATIBLE, SDO, false,
         QT_TR_NOOP("A value that can be read has become constant, or no longer is"),
         QT_TR_NOOP("Tools that keep constant values have to read it again."), "AccessType=const", "AccessType=ro"},
        {"sub-count", COMPATIBLE, SDO, false, QT_TR_NOOP("The highest sub-index (sub-index 0) is another"),
         QT_TR_NOOP("Programs that read all elements read more or fewer."), "DefaultValue=3", "DefaultValue=4"},
        {"flags-changed", COMPATIBLE, CONFIGURATION, false, QT_TR_NOOP("The object flags are others"),
         QT_TR_NOOP("Tools leave the entry out at download or scan, or no longer do."), "ObjFlags=0", "ObjFlags=1"},
    };
    return rules;
}

const DiffRules& CDiffRules::values()
{
    static const DiffRules rules = {
        {"limits-narrowed", BREAKING, SDO | CONFIGURATION, false,
         QT_TR_NOOP("The limits of an entry that can be written exclude values that they allowed"),
         QT_TR_NOOP(
             "Values that are stored for the device are refused with 06090031 or 06090032. Check what is stored."),
         "HighLimit=100", "HighLimit=50"},
        {"limits-widened", COMPATIBLE, SDO, false, QT_TR_NOOP("Limits allow more values"),
         QT_TR_NOOP("Nothing has to be done."), "HighLimit=50", "HighLimit=100"},
        {"limits-changed", COMPATIBLE, SDO, false,
         QT_TR_NOOP("Limits of an entry that cannot be written, or of one that is no plain number, are others"),
         QT_TR_NOOP("Tools that scale by limits show the value otherwise."), "HighLimit=50", "HighLimit=40"},
        {"values-narrowed", BREAKING, SDO, false,
         QT_TR_NOOP("An entry that can be written no longer allows a value that it listed"),
         QT_TR_NOOP("Writing that value is refused. Check what is stored for the device."), "<value value=\"2\"/>", ""},
        {"values-widened", COMPATIBLE, SDO, false,
         QT_TR_NOOP("The list of allowed values is another, and excludes none that can be written"),
         QT_TR_NOOP("Programs may meet a value that they do not know."), "", "<value value=\"3\"/>"},
        {"unit-changed", BREAKING, SDO, true, QT_TR_NOOP("Unit, multiplier or offset of a value are others"),
         QT_TR_NOOP("The same number means another quantity. Give the new value another index."),
         "<label lang=\"en\">mm</label>", "<label lang=\"en\">m</label>"},
        {"default-changed", COMPATIBLE, CONFIGURATION, false,
         QT_TR_NOOP("A default value is another, is stated now, or no longer is"),
         QT_TR_NOOP("A device without a configuration behaves differently. Check what relies on the default."),
         "DefaultValue=50", "DefaultValue=100"},
        {"actual-value", COMPATIBLE, CONFIGURATION, false, QT_TR_NOOP("A configured value is another"),
         QT_TR_NOOP("The device is the same. Download the configuration again."), "ParameterValue=5",
         "ParameterValue=6"},
    };
    return rules;
}

const DiffRules& CDiffRules::pdos()
{
    static const DiffRules rules = {
        {"pdo-mapping-lost", BREAKING, PDO, false,
         QT_TR_NOOP("An entry can no longer be mapped, or not in one direction"),
         QT_TR_NOOP("Masters that map it are refused. Keep the mapping."), "PDOMapping=1", "PDOMapping=0"},
        {"pdo-mapping-gained", COMPATIBLE, PDO, false, QT_TR_NOOP("An entry can be mapped, or in one direction more"),
         QT_TR_NOOP("Nothing has to be done."), "PDOMapping=0", "PDOMapping=1"},
        {"pdo-layout", BREAKING, PDO, false,
         QT_TR_NOOP("What an active PDO carries has another order, length or place"),
         QT_TR_NOOP(
             "Others read wrong values, or the device refuses shorter frames (EMCY 0x8210). Keep the mapping, and add behind it."),
         "1=0x20010010 2=0x20020008", "1=0x20020008 2=0x20010010"},
        {"pdo-extended", COMPATIBLE, PDO, false, QT_TR_NOOP("An active TPDO carries more behind what it carried"),
         QT_TR_NOOP("Consumers that check the length have to accept the longer frame."), "1=0x20010010",
         "1=0x20010010 2=0x20020008"},
        {"pdo-cob-id", BREAKING, PDO, false, QT_TR_NOOP("An active PDO has another CAN-ID"),
         QT_TR_NOOP("Others wait for a frame that does not come. Keep the COB-ID."), "DefaultValue=$NODEID+0x180",
         "DefaultValue=$NODEID+0x280"},
        {"pdo-disabled", BREAKING, PDO, false, QT_TR_NOOP("A PDO was active and is switched off"),
         QT_TR_NOOP("Others wait for a frame that does not come. Switch it on, or tell the master to."),
         "DefaultValue=$NODEID+0x180", "DefaultValue=$NODEID+0x80000180"},
        {"pdo-enabled", COMPATIBLE, PDO, false, QT_TR_NOOP("A PDO was switched off and is active"),
         QT_TR_NOOP("Check that its CAN-ID is free in the network."), "DefaultValue=$NODEID+0x80000180",
         "DefaultValue=$NODEID+0x180"},
        {"pdo-transmission", BREAKING, PDO, false,
         QT_TR_NOOP("An active PDO is sent by another cause: SYNC, remote request or event"),
         QT_TR_NOOP("It comes at another time, or never. Keep the transmission type."), "DefaultValue=1",
         "DefaultValue=255"},
        {"pdo-timing", COMPATIBLE, PDO, false,
         QT_TR_NOOP(
             "Transmission type within one cause, inhibit time, event timer, SYNC start or RTR bit of an active PDO are others"),
         QT_TR_NOOP("Check the load of the bus and the deadlines of consumers."), "DefaultValue=100",
         "DefaultValue=50"},
        {"pdo-inactive", COMPATIBLE, PDO, false, QT_TR_NOOP("Something changed in a PDO that is switched off"),
         QT_TR_NOOP("Masters that switch it on have to look at it again."), "1=0x20010010", "1=0x20020008"},
    };
    return rules;
}

const DiffRules& CDiffRules::network()
{
    static const DiffRules rules = {
        {"cob-id-changed", BREAKING, PDO, false,
         QT_TR_NOOP("The COB-ID of SYNC (0x1005), TIME (0x1012), EMCY (0x1014) or an SDO server is another"),
         QT_TR_NOOP("Others wait for a frame that does not come. Keep the COB-ID."), "DefaultValue=0x80",
         "DefaultValue=0x81"},
        {"heartbeat-off", BREAKING, PDO, false, QT_TR_NOOP("The heartbeat (0x1017) is switched off"),
         QT_TR_NOOP("Consumers report the node as lost. Keep a time."), "DefaultValue=1000", "DefaultValue=0"},
        {"device-type", BREAKING, SDO, false, QT_TR_NOOP("The device type (0x1000) is another"),
         QT_TR_NOOP("Masters compare it at boot-up (0x1F84). A device of another type has a description of its own."),
         "DefaultValue=0x00020192", "DefaultValue=0x00020191"},
        {"identity-changed", BREAKING, SDO, false, QT_TR_NOOP("Vendor-ID or product code is another"),
         QT_TR_NOOP(
             "Masters compare it at boot-up (0x1F85, 0x1F86), tools look descriptions up by it. Another product has a description of its own."),
         "ProductNumber=0x44", "ProductNumber=0x45"},
        {"bit-rate-removed", BREAKING, CONFIGURATION, false, QT_TR_NOOP("A bit rate is no longer supported"),
         QT_TR_NOOP("Networks with that rate cannot take the device."), "BaudRate_50=1", "BaudRate_50=0"},
        {"bit-rate-default", BREAKING, CONFIGURATION, false, QT_TR_NOOP("The default bit rate is another"),
         QT_TR_NOOP("A new device disturbs the bus until its rate is set."), "defaultValue=\"250 Kbps\"",
         "defaultValue=\"500 Kbps\""},
        {"bit-rate-added", COMPATIBLE, CONFIGURATION, false, QT_TR_NOOP("A bit rate more is supported"),
         QT_TR_NOOP("Nothing has to be done."), "BaudRate_800=0", "BaudRate_800=1"},
        {"feature-lost", BREAKING, CONFIGURATION, false,
         QT_TR_NOOP("The device can do less: a feature, a dummy type or PDOs are gone, or the granularity is coarser"),
         QT_TR_NOOP("Configurations that use it are refused."), "LSS_Supported=1", "LSS_Supported=0"},
        {"feature-gained", COMPATIBLE, CONFIGURATION, false, QT_TR_NOOP("The device can do more"),
         QT_TR_NOOP("Nothing has to be done."), "LSS_Supported=0", "LSS_Supported=1"},
        {"commissioning-changed", COMPATIBLE, CONFIGURATION, false,
         QT_TR_NOOP("Node-ID, bit rate, names or network number of a configured device are others"),
         QT_TR_NOOP("The device is the same. Configure it again."), "NodeID=5", "NodeID=6"},
        {"revision-changed", COMPATIBLE, CONFIGURATION, false, QT_TR_NOOP("The revision number (0x1018:03) is another"),
         QT_TR_NOOP("Masters that compare it (0x1F87) need the new one."), "DefaultValue=0x00010003",
         "DefaultValue=0x00010004"},
    };
    return rules;
}

const DiffRules& CDiffRules::people()
{
    static const DiffRules rules = {
        {"revision-not-raised", BREAKING, PEOPLE, false,
         QT_TR_NOOP("Something breaks, but no revision or version is higher than it was"),
         QT_TR_NOOP(
             "Masters and tools tell versions apart by it. Raise the revision number (0x1018:03) or the version of the file."),
         "RevisionNumber=0x00010003", "RevisionNumber=0x00010003"},
        {"name-changed", EDITORIAL, PEOPLE, false, QT_TR_NOOP("The name of an entry is another"),
         QT_TR_NOOP("Generated code may use it."), "ParameterName=Dose", "ParameterName=Dose per stroke"},
        {"text-changed", EDITORIAL, PEOPLE, false,
         QT_TR_NOOP(
             "Labels, descriptions, denotation, or names of vendor and product are others, or a unit is first stated"),
         QT_TR_NOOP("Nothing has to be done."), "VendorName=Example Works", "VendorName=Example Works Ltd."},
        {"list-changed", EDITORIAL, PEOPLE, false, QT_TR_NOOP("An object of an EDS is in another list of objects"),
         QT_TR_NOOP("Tools that go by the lists treat it as something else."), "1=0x2000 in [ManufacturerObjects]",
         "1=0x2000 in [OptionalObjects]"},
        {"file-changed", EDITORIAL, PEOPLE, false, QT_TR_NOOP("Name, author, date or version of the file are others"),
         QT_TR_NOOP("Nothing has to be done."), "FileRevision=0", "FileRevision=1"},
    };
    return rules;
}

const std::vector<const DiffRules*>& CDiffRules::tables()
{
    static const std::vector<const DiffRules*> tables = {&entries(), &values(), &pdos(), &network(), &people()};
    return tables;
}
