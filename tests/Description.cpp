#include "Description.h"

#include <QTemporaryFile>
#include <QtTest>

QByteArray description()
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<ISO15745ProfileContainer xmlns="urn:profile">
<ISO15745Profile>
<ProfileHeader>
<ProfileIdentification>device</ProfileIdentification>
<ProfileRevision>2</ProfileRevision>
<ProfileName/>
<ProfileSource></ProfileSource>
<ProfileClassID>Device</ProfileClassID>
<ProfileDate>2010-02-03</ProfileDate>
<AdditionalInformation>more</AdditionalInformation>
<ISO15745Reference>
<ISO15745Part>4</ISO15745Part>
<ISO15745Edition>0x10</ISO15745Edition>
<ProfileTechnology>any</ProfileTechnology>
</ISO15745Reference>
<IASInterfaceType>CMI</IASInterfaceType>
</ProfileHeader>
<ProfileBody fileName="d.xdd" fileCreator="me" fileCreationDate="2011-10-05" fileCreationTime="09:08:07" fileModificationDate="2012-01-02" fileModificationTime="10:11:12" fileModifiedBy="you" fileVersion="1.5">
<DeviceIdentity>
<vendorName readOnly="true">Vendor</vendorName>
<vendorID readOnly="false">0x1</vendorID>
<vendorText readOnly="false"><!-- no entry -->
<label lang="en">text</label>
<description lang="de" URI="http://u">Beschreibung</description>
<labelRef dictID="d1" textID="t1">ref</labelRef>
<descriptionRef dictID="d2" textID="t2"/></vendorText>
<deviceFamily readOnly="true"><label lang="en" URI="ignored"></label></deviceFamily>
<productFamily readOnly="true">family</productFamily>
<productName readOnly="true">Product</productName>
<productID readOnly="true">0x2</productID>
<productText readOnly="true"><label lang="fr">texte</label></productText>
<orderNumber readOnly="true">first</orderNumber>
<orderNumber readOnly="true">second</orderNumber>
<version versionType="SW" readOnly="true">1</version>
<other/>
<version versionType="sw">2</version>
<buildDate>2013-04-05</buildDate>
<specificationRevision readOnly="true">rev</specificationRevision>
<instanceName readOnly="true">inst</instanceName>
</DeviceIdentity>
<DeviceFunction>
<picturesList/>
<capabilities>
<characteristicsList>
<category><label lang="en">cat</label></category>
<characteristic>
<characteristicName><label lang="en">name</label></characteristicName>
<characteristicContent>
<label lang="en">content</label>
</characteristicContent>
</characteristic>
<characteristic/>
</characteristicsList>
</capabilities>
</DeviceFunction>
</ProfileBody>
</ISO15745Profile>
<Comment/>
<ISO15745Profile>
<ProfileHeader>
<ProfileIdentification>network</ProfileIdentification>
<ProfileRevision/>
<ProfileName/>
<ProfileSource/>
<ProfileClassID>CommunicationNetwork</ProfileClassID>
<ISO15745Reference>
<ISO15745Part>1</ISO15745Part>
<ISO15745Edition>1</ISO15745Edition>
<ProfileTechnology>CANopen</ProfileTechnology>
</ISO15745Reference>
</ProfileHeader>
<ProfileBody fileCreationDate="2011-10-06" fileCreator="net" fileName="n.xdd" fileVersion="2">
<ApplicationLayers>
<identity>
<vendorID readOnly="true">0x3</vendorID>
<deviceFamily readOnly="false"><label lang="en">fam</label></deviceFamily>
<productID readOnly="true">0x4</productID>
<version versionType="HW">3</version>
<buildDate>2014-05-06Z</buildDate>
<specificationRevision readOnly="false">spec</specificationRevision>
</identity>
<CANopenObjectList mandatoryObjects="3" optionalObjects="0x12" manufacturerObjects="20">
<CANopenObject index="2000" name="last" objectType="7" dataType="0009" objFlags="1F"/>
<CANopenObject index="1018" name="identity" objectType="9" subNumber="5">
<CANopenSubObject subIndex="0A" name="a" objectType="7" dataType="0007" lowLimit="9" highLimit="1" accessType="rw" defaultValue="dv" actualValue="av" denotation="dn" PDOmapping="TPDO" objFlags="2" uniqueIDRef="UID_1" subNumber="9"/>
<nothing><CANopenSubObject/></nothing>
<CANopenSubObject subIndex="00" name="b" objectType="7" accessType="RO" PDOmapping="tpdo"/>
</CANopenObject>
</CANopenObjectList>
</ApplicationLayers>
<TransportLayers>
<PhysicalLayer>
<baudRate defaultValue="125 Kbps">
<supportedBaudRate value="1000 Kbps"/>
<supportedBaudRate value="auto-baudRate"/>
<supportedBaudRate value="1000 Kbps"/>
</baudRate>
</PhysicalLayer>
</TransportLayers>
</ProfileBody>
</ISO15745Profile>
</ISO15745ProfileContainer>
)";
}

QByteArray changed(const QByteArray& text, const QByteArray& before, const QByteArray& after)
{
    if (text.count(before) != 1) {
        qFatal("The description has %d times: %s", text.count(before), before.constData());
    }
    return QByteArray(text).replace(before, after);
}

bool loadText(ICIso15745& reader, const QByteArray& text, QString& errorText)
{
    QTemporaryFile file;
    if (!file.open() || file.write(text) != text.size() || !file.flush()) {
        qFatal("No temporary file");
    }
    return reader.load(file.fileName(), errorText);
}
