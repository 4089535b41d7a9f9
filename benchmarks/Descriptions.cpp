#include "Descriptions.h"

namespace
{
QByteArray header(const char* classId, const char* type)
{
    return QByteArray("  <ISO15745Profile>\n    <ProfileHeader>\n"
                      "      <ProfileIdentification>benchmark</ProfileIdentification>\n"
                      "      <ProfileRevision>1</ProfileRevision>\n      <ProfileName/>\n      <ProfileSource/>\n"
                      "      <ProfileClassID>")
           + classId
           + "</ProfileClassID>\n      <ISO15745Reference>\n        <ISO15745Part>1</ISO15745Part>\n"
             "        <ISO15745Edition>1</ISO15745Edition>\n"
             "        <ProfileTechnology>CANopen</ProfileTechnology>\n      </ISO15745Reference>\n    "
             "</ProfileHeader>\n"
             "    <ProfileBody xsi:type=\""
           + type
           + "\" fileName=\"benchmark.xdd\" fileCreator=\"\" fileCreationDate=\"2011-10-05\" "
             "fileVersion=\"1\">\n";
}

QByteArray object(int number)
{
    const QByteArray hex = QByteArray::number(0x2000 + number, 16).toUpper();
    const QByteArray name = QByteArray::number(number);
    QByteArray text = "          <CANopenObject index=\"" + hex + "\" name=\"Parameter block " + name
                      + "\" objectType=\"9\" accessType=\"rw\" PDOmapping=\"no\" subNumber=\"3\">\n"
                        "            <CANopenSubObject subIndex=\"00\" name=\"Number of entries\" objectType=\"7\" "
                        "dataType=\"0005\" lowLimit=\"0\" highLimit=\"255\" accessType=\"ro\" defaultValue=\"2\" "
                        "PDOmapping=\"no\"/>\n";
    for (const char* const sub : {"01", "02"}) {
        text += QByteArray("            <CANopenSubObject subIndex=\"") + sub + "\" name=\"Value of block " + name
                + "\" objectType=\"7\" dataType=\"0007\" lowLimit=\"0x00000000\" highLimit=\"0x0000FFFF\" "
                  "accessType=\"rw\" defaultValue=\"0x"
                + hex + "\" PDOmapping=\"TPDO\"/>\n";
    }
    return text + "          </CANopenObject>\n";
}
} // namespace

QByteArray descriptionWith(int objects)
{
    QByteArray text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ISO15745ProfileContainer "
                      "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">\n"
                      + header("Device", "ProfileBody_Device_CANopen")
                      + "      <DeviceFunction><capabilities><characteristicsList><characteristic><characteristicName>"
                        "<label lang=\"en\"/></characteristicName><characteristicContent><label lang=\"en\"/>"
                        "</characteristicContent></characteristic></characteristicsList></capabilities>"
                        "</DeviceFunction>\n    </ProfileBody>\n  </ISO15745Profile>\n"
                      + header("CommunicationNetwork", "ProfileBody_CommunicationNetwork_CANopen")
                      + "      <ApplicationLayers>\n        <CANopenObjectList>\n";
    for (int number = 0; number < objects; ++number) {
        text += object(number);
    }
    return text
           + "        </CANopenObjectList>\n      </ApplicationLayers>\n      <TransportLayers><PhysicalLayer>"
             "<baudRate defaultValue=\"250 Kbps\"><supportedBaudRate value=\"250 Kbps\"/></baudRate></PhysicalLayer>"
             "</TransportLayers>\n    </ProfileBody>\n  </ISO15745Profile>\n</ISO15745ProfileContainer>\n";
}
