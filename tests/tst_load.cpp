#include "Description.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#include <unistd.h>

// Descriptions that go in, and the records and messages that come out.
class TestLoad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void files_data();
    void files();
    void everythingIsRead();
    void absentOptions();
    void variations_data();
    void variations();
    void failures_data();
    void failures();
    void storedBeforeAFailure();
    void repeatedLoads();
    void registry();
};

namespace
{
QString latin1(const char* text)
{
    return QString::fromLatin1(text);
}

// The start of a message about an element that a line of description() starts with.
QString inTag(const char* tag, int line)
{
    return latin1("Error while parsing TAG <%1> in line %2 : ").arg(latin1(tag), QString::number(line));
}

// The number of the line of @p text that starts with @p start, the last one if there are several.
int lineOf(const QByteArray& text, const QByteArray& start)
{
    return text.left(text.lastIndexOf('\n' + start) + 1).count('\n') + 1;
}

// The fields of a record in the order of their declaration.

QString textsOf(const CProfileHeader& header)
{
    return QStringList{
        header.mProfileIdentification,
        header.mProfileRevision,
        header.mProfileName,
        header.mProfileSource,
        CProfileHeader::classIdAsStr(header.mProfileClassId),
        header.mProfileDate.toString(Qt::ISODate),
        header.mAdditionalInformation,
        QString::number(header.mIso15745Part),
        QString::number(header.mIso15745Edition),
        header.mProfileTechnology,
        CProfileHeader::iasIfTypAsStr(header.mIasInterfaceType)}
        .join(QLatin1Char(','));
}

template <typename Profile> QString fileTextsOf(const Profile& profile)
{
    return QStringList{
        profile.mFileCreationDate.toString(Qt::ISODate),
        profile.mFileCreationTime.toString(Qt::ISODate),
        profile.mFileCreator,
        profile.mFileModificationDate.toString(Qt::ISODate),
        profile.mFileModificationTime.toString(Qt::ISODate),
        profile.mFileModifiedBy,
        profile.mFileName,
        profile.mFileVersion}
        .join(QLatin1Char(','));
}

QString textsOf(const QList<CWriteProtectString>& values)
{
    QStringList texts;
    for (const CWriteProtectString& value : values) {
        texts << value.mValue + QLatin1Char(' ') + QString::number(value.mReadOnly);
    }
    return texts.join(QLatin1Char(','));
}

QString textsOf(const CGLabels& labels)
{
    QStringList texts;
    for (const CGLabel& label : labels) {
        texts << QStringList{CGLabel::gLabelTypeAsStr(label.mType), label.mText, label.mLang, label.mUri, label.mRefText, label.mDictId, label.mTextId}.join(QLatin1Char('/'));
    }
    return texts.join(QLatin1Char(','));
}

QString textsOf(const QList<CVersion>& versions)
{
    QStringList texts;
    for (const CVersion& version : versions) {
        texts
            << QStringList{CVersion::versionTypeAsStr(version.mVersionType), version.mValue, QString::number(version.mReadOnly)}
                   .join(QLatin1Char(' '));
    }
    return texts.join(QLatin1Char(','));
}

QString textsOf(const CCanOpenSubObject& entry)
{
    return QStringList{
        QString::number(entry.mIndex),
        entry.mName,
        QString::number(entry.mObjectType),
        QString::number(entry.mDataType),
        entry.mLowLimit,
        entry.mHighLimit,
        CCanOpenSubObject::accessTypeAsStr(entry.mAccessType),
        entry.mDefaultValue,
        entry.mActualValue,
        entry.mDenotation,
        CCanOpenSubObject::pdoMappingAsStr(entry.mPdoMapping),
        QString::number(entry.mObjFlags),
        entry.mUniqueIdRef,
        QString::number(entry.mSubNumber)}
        .join(QLatin1Char(','));
}

std::unique_ptr<ICIso15745> reader()
{
    return std::unique_ptr<ICIso15745>(ICIso15745::create());
}
} // namespace

void TestLoad::files_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QByteArray>("content"); // Null for no file
    QTest::addColumn<QString>("message");    // %1 stands for the file name

    const auto parseError = [](const char* place) {
        return latin1("Read file \"%1\": Parse error at ") + latin1(place);
    };
    QTest::newRow("absent") << latin1("no%2.xdd") << QByteArray()
                            << latin1("Cannot open file \"%1\": File does not exist.");
    QTest::newRow("empty") << latin1("a") << QByteArray("") << parseError("line 1, column 1: unexpected end of file");
    QTest::newRow("cut off") << latin1("%1 %2") << QByteArray("<a>\n<b")
                             << parseError("line 2, column 3: unexpected end of file");
    QTest::newRow("no name") << QString() << QByteArray() << latin1("Cannot open file \"\": File does not exist.");
    QTest::newRow("other root")
        << latin1("r") << QByteArray("<ISO15745Profile/>")
        << latin1("This is not an ISO15745 xdd file. RootTagName is \"ISO15745Profile\", but should be "
                  "\"ISO15745ProfileContainer\".");
    QTest::newRow("no profile") << latin1("p") << QByteArray("<x:ISO15745ProfileContainer xmlns:x='u'/>")
                                << inTag("ISO15745ProfileContainer", 1)
                                       + latin1("Element <ISO15745Profile> is missing.");
}

void TestLoad::files()
{
    QFETCH(QString, fileName);
    QFETCH(QByteArray, content);
    QFETCH(QString, message);
    const QTemporaryDir folder;
    const QString path = fileName.isEmpty() ? fileName : folder.filePath(fileName);
    if (!content.isNull()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    QString error = latin1("an earlier message");
    QVERIFY(!reader()->load(path, error));
    QCOMPARE(error, message.replace(latin1("%1"), path));

    QVERIFY(!reader()->load(folder.path(), error));
    QVERIFY2(error.startsWith(latin1("Cannot open file ") + folder.path() + latin1(": ")), qPrintable(error));
    if (!content.isNull() && geteuid() != 0) { // For root every file is readable.
        QVERIFY(QFile::setPermissions(path, QFileDevice::WriteOwner));
        QVERIFY(!reader()->load(path, error));
        QVERIFY2(error.startsWith(latin1("Cannot open file ") + path + latin1(": ")), qPrintable(error));
    }
}

void TestLoad::everythingIsRead()
{
    const auto iso = reader();
    QString error = latin1("untouched");
    QVERIFY2(loadText(*iso, description(), error), qPrintable(error));

    const CDeviceProfile& device = iso->deviceProfile();
    const CNetworkCanOpenProfile& network = iso->networkProfile();
    QCOMPARE(textsOf(device.mHeader), latin1("device,2,,,Device,2010-02-03,more,4,16,any,CMI"));
    QCOMPARE(fileTextsOf(device), latin1("2011-10-05,09:08:07,me,2012-01-02,10:11:12,you,d.xdd,1.5"));
    QCOMPARE(
        textsOf(
            {device.mVendorName, device.mVendorId, device.mProductFamily, device.mProductName, device.mProductId,
             device.mOrderNumber, device.mSpecificationRevision, device.mInstanceName}),
        latin1("Vendor 1,0x1 0,family 1,Product 1,0x2 1,first 1,rev 1,inst 1"));
    QCOMPARE(
        textsOf(device.mVendorText.mLabels), latin1("label/text/en////,description/Beschreibung/de/http://u///"
                                                    ",labelRef////ref/d1/t1,descriptionRef/////d2/t2"));
    QCOMPARE(textsOf(device.mDeviceFamily.mLabels), latin1("label//en////"));
    QCOMPARE(textsOf(device.mProductText.mLabels), latin1("label/texte/fr////"));
    QVERIFY(!device.mVendorText.mReadOnly && device.mDeviceFamily.mReadOnly && device.mProductText.mReadOnly);
    QCOMPARE(textsOf(device.mVersions), latin1("SW 1 1,_invalid_ 2 0"));
    QCOMPARE(device.mBuildDate, QDate(2013, 4, 5));
    QCOMPARE(textsOf(device.mCategory), latin1("label/cat/en////"));
    QCOMPARE(textsOf(device.mCharacteristic.mCharacteristicName), latin1("label/name/en////"));
    QCOMPARE(textsOf(device.mCharacteristic.mCharacteristicContent), latin1("label/content/en////"));

    QCOMPARE(textsOf(network.mHeader), latin1("network,,,,CommunicationNetwork,,,1,1,CANopen,_invalid_"));
    // The creation time is null, not the time at which the reader was made.
    QCOMPARE(fileTextsOf(network), latin1("2011-10-06,,net,,,,n.xdd,2"));
    QCOMPARE(
        textsOf({network.mVendorId, network.mProductId, network.mSpecificationRevision}), latin1("0x3 1,0x4 1,spec 0"));
    QCOMPARE(textsOf(network.mDeviceFamily.mLabels), latin1("label/fam/en////"));
    QCOMPARE(textsOf(network.mVersions), latin1("HW 3 0"));
    QCOMPARE(network.mBuildDate, QDate(2014, 5, 6));
    QCOMPARE(
        (QList<uint>{network.mMandatoryObjects, network.mOptionalObjects, network.mManufacturerObjects}),
        (QList<uint>{3, 18, 20}));
    QCOMPARE(network.mBaudRate, CNetworkCanOpenProfile::BAUD_125_KBPS);
    const QList<CNetworkCanOpenProfile::EBaudrate> rates = {
        CNetworkCanOpenProfile::BAUD_1000_KBPS, CNetworkCanOpenProfile::BAUD_AUTO,
        CNetworkCanOpenProfile::BAUD_1000_KBPS};
    QCOMPARE(network.mSupportedBaudRates, rates);

    QCOMPARE(iso->getObjList().keys(), (QList<unsigned int>{0x1018, 0x2000}));
    // "0009" is no octal number.
    QCOMPARE(textsOf(iso->getObj(0x2000)), latin1("8192,last,7,0,,,_invalid_,,,,_invalid_,31,,0"));
    const CCanOpenObject identity = iso->getObj(0x1018);
    QCOMPARE(textsOf(identity), latin1("4120,identity,9,0,,,_invalid_,,,,_invalid_,0,,5"));
    QCOMPARE(identity.mSubObjects.size(), 2);
    QCOMPARE(textsOf(identity.mSubObjects[0]), latin1("10,a,7,7,9,1,rw,dv,av,dn,TPDO,2,UID_1,0"));
    QCOMPARE(textsOf(identity.mSubObjects[1]), latin1("0,b,7,0,,,_invalid_,,,,_invalid_,0,,0"));
}

// What an optional element leaves when it is absent: the default of the record, or what an earlier load stored.
void TestLoad::absentOptions()
{
    QByteArray text = description();
    const auto cut = [&text](const QByteArray& from, const QByteArray& to) {
        const int start = text.indexOf(from);
        text.remove(start, text.indexOf(to, start) + to.size() - start);
    };
    cut("<ProfileDate>", "</AdditionalInformation>\n");
    cut("<IASInterfaceType>", "</IASInterfaceType>\n");
    cut("fileCreationTime", "fileModifiedBy=\"you\" ");
    cut("<vendorID", "</productFamily>\n");
    cut("<productID", "</instanceName>\n");
    cut("<category>", "</category>\n");
    cut("<identity>", "</identity>\n");
    text.replace(" defaultValue=\"125 Kbps\"", "");
    text.replace(" mandatoryObjects=\"3\"", "");

    const auto iso = reader();
    QString error;
    QVERIFY2(loadText(*iso, text, error), qPrintable(error));
    const CDeviceProfile& device = iso->deviceProfile();
    QVERIFY(device.mHeader.mProfileDate.isNull() && device.mHeader.mAdditionalInformation.isEmpty());
    QCOMPARE(device.mHeader.mIasInterfaceType, CProfileHeader::IFT_INVALID);
    QVERIFY(
        device.mFileCreationTime.isNull() && device.mFileModificationDate.isNull() && device.mFileModifiedBy.isEmpty());
    QVERIFY(device.mVendorId.mReadOnly && !device.mVendorText.valid() && device.mVersions.isEmpty());
    QCOMPARE(device.mProductText.mLabels.first().mLang, latin1("en"));
    QVERIFY(device.mCategory.isEmpty());
    QVERIFY(iso->networkProfile().mVendorId.mValue.isEmpty() && !iso->networkProfile().mDeviceFamily.valid());
    QCOMPARE(iso->networkProfile().mBaudRate, CNetworkCanOpenProfile::BAUD_INVALID);
    QCOMPARE(iso->networkProfile().mMandatoryObjects, 0U);

    const auto full = reader();
    QVERIFY(loadText(*full, description(), error));
    full->networkProfile().mObjects.clear();
    QVERIFY(loadText(*full, text, error));
    QCOMPARE(full->deviceProfile().mVendorId.mValue, latin1("0x1"));
    QCOMPARE(full->deviceProfile().mCategory.first().mText, latin1("cat"));
    QCOMPARE(full->networkProfile().mVersions.size(), 1);
    QVERIFY(full->deviceProfile().mVersions.isEmpty() && full->deviceProfile().mBuildDate.isNull());
}

// Changes that a description survives.
void TestLoad::variations_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char* name, const QByteArray& before, const QByteArray& after) {
        QTest::newRow(name) << before << after;
    };
    row("prefix", "<ISO15745ProfileContainer xmlns=\"urn:profile\">",
        "<ISO15745ProfileContainer xmlns=\"u\" xmlns:q=\"v\">");
    row("prefixed elements", "<capabilities>\n<characteristicsList>",
        "<q:capabilities xmlns:q='u'><characteristicsList>");
    row("skipped class", "<Comment/>",
        "<ISO15745Profile><ProfileHeader><ProfileIdentification/><ProfileRevision/><ProfileName/><ProfileSource/>"
        "<ProfileClassID>device</ProfileClassID><ISO15745Reference><ISO15745Part>1</ISO15745Part>"
        "<ISO15745Edition>1</ISO15745Edition><ProfileTechnology/></ISO15745Reference></ProfileHeader><ProfileBody/>"
        "</ISO15745Profile>");
    row("unknown default rate", "\"125 Kbps\"", "\"125 kbps\"");
    row("wide index", "index=\"2000\"", "index=\"FFFFFFFF\"");
    row("empty name", "name=\"last\"", "name=\"\"");
    row("identity of nothing", "<vendorID readOnly=\"true\">0x3</vendorID>\n<deviceFamily readOnly=\"false\">",
        "<deviceFamily>");
    row("network management", "</TransportLayers>", "</TransportLayers><NetworkManagement><any/></NetworkManagement>");
    row("schema location", "xmlns=\"urn:profile\"", "xmlns:xsi=\"x\" xsi:schemaLocation=\"a b\"");
}

void TestLoad::variations()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QByteArray text = changed(description(), before, after);
    if (after.startsWith("<q:capabilities")) {
        text = changed(text, "</capabilities>", "</q:capabilities>");
    }
    QString error;
    QVERIFY2(loadText(*reader(), text, error), qPrintable(error));
}

// One change for every reason to refuse a description, and the message that it gives.
void TestLoad::failures_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("message");

    const QByteArray base = description();
    const auto row = [](const char* name, const QByteArray& before, const QByteArray& after, const QString& message) {
        QTest::newRow(name) << before << after << message;
    };
    const auto missing = [&](const char* parent, const char* element, const QByteArray& text) {
        row(element, text, "",
            inTag(parent, lineOf(base, QByteArray("<") + parent))
                + latin1("Element <%1> is missing.").arg(latin1(element)));
    };
    const QString header = inTag("ProfileHeader", 4);
    row("ProfileName", "<ProfileRevision>2</ProfileRevision>\n<ProfileName/>", "<ProfileRevision/>",
        header + latin1("Element <ProfileName> is missing."));
    row("ProfileClassID", "<ProfileClassID>Device</ProfileClassID>", "",
        header + latin1("Element <ProfileClassID> is missing."));
    row("ISO15745Part", "<ISO15745Part>4<", "<ISO15745Part>IV<",
        inTag("ISO15745Reference", 12)
            + latin1("Element <ISO15745Part> is \"IV\", but should be an unsigned 32-bit number in base 0 (hexadecimal "
                     "after 0x, octal after 0, otherwise decimal)."));
    row("ProfileTechnology", "<ProfileTechnology>any</ProfileTechnology>", "",
        inTag("ISO15745Reference", 12) + latin1("Element <ProfileTechnology> is missing."));
    const QString body = inTag("ProfileBody", 19);
    row("fileCreationDate", "2011-10-05", "05.10.2011",
        body
            + latin1(
                "Attribute \"fileCreationDate\" is \"05.10.2011\", but should be a date year-month-day (yyyy-MM-dd)."));
    row("fileCreator", "fileCreator=\"me\" ", "", body + latin1("Attribute \"fileCreator\" is missing."));
    row("fileName", "fileName=\"d.xdd\" ", "", body + latin1("Attribute \"fileName\" is missing."));
    row("fileVersion", " fileVersion=\"1.5\"", "", body + latin1("Attribute \"fileVersion\" is missing."));
    row("DeviceFunction", "<picturesList/>\n<capabilities>", "</DeviceFunction><DeviceFunction><capabilities>",
        inTag("DeviceFunction", lineOf(base, "<DeviceFunction>")) + latin1("Element <capabilities> is missing."));
    row("characteristic", "<category><label lang=\"en\">cat</label></category>", "<category/>",
        inTag("category", lineOf(base, "<category>")) + latin1("There is no g_lables entry."));
    row("standardComplianceList", "</capabilities>", "<standardComplianceList\n/></capabilities>",
        inTag("standardComplianceList", lineOf(base, "</capabilities>") + 1) + latin1("Not implemented now !"));
    row("first entry", "<characteristicName><label lang=\"en\">name</label>",
        "<characteristicName><Label/><label lang=\"en\"/>",
        inTag("characteristicName", lineOf(base, "<characteristicName>")) + latin1("There is no g_lables entry."));
    row("second entry", "<label lang=\"en\">content</label>", "<label lang=\"en\"/>\n<text/>",
        latin1("Error in line %1 : Tag <text> is not a valid g_labels type.")
            .arg(lineOf(base, "<characteristicContent>") + 2));
    row("lang", "<label lang=\"en\">cat", "<label lang=\"en\"/><label>cat",
        inTag("label", lineOf(base, "<category>")) + latin1("Attribute \"lang\" is missing."));
    row("textID", "<label lang=\"en\">cat</label>", "<label lang=\"en\"/><labelRef dictID=\"d\"/>",
        inTag("labelRef", lineOf(base, "<category>")) + latin1("Attribute \"textID\" is missing."));
    missing("DeviceIdentity", "vendorName", "<vendorName readOnly=\"true\">Vendor</vendorName>\n");
    missing("DeviceIdentity", "productName", "<productName readOnly=\"true\">Product</productName>\n");
    row("readOnly", "<vendorName readOnly=\"true\">", "<vendorName>",
        inTag("vendorName", 21) + latin1("Attribute \"readOnly\" is missing."));
    row("readOnly 1", "<productName readOnly=\"true\">", "<productName readOnly=\"1\">",
        inTag("productName", 30) + latin1("Attribute \"readOnly\" is \"1\", but should be \"true\" or \"false\"."));

    const int list = lineOf(base, "<CANopenObjectList");
    const QString object = inTag("CANopenObject", list + 2);
    row("index", "index=\"1018\" ", "", object + latin1("Attribute \"index\" is missing."));
    row("index text", "index=\"1018\"", "index=\"10G8\"",
        object + latin1("Attribute \"index\" is \"10G8\", but should be an unsigned 32-bit number in base 16."));
    row("objectType", "objectType=\"9\"", "objectType=\"256\"",
        object
            + latin1("Attribute \"objectType\" is \"256\", but should be an unsigned 8-bit number in base 0 "
                     "(hexadecimal after "
                     "0x, octal after 0, otherwise decimal)."));
    row("sub-object name", "name=\"b\" ", "",
        inTag("CANopenSubObject", list + 5) + latin1("Attribute \"name\" is missing."));
    row("subIndex", "subIndex=\"00\"", "index=\"00\"",
        inTag("CANopenSubObject", list + 5) + latin1("Attribute \"subIndex\" is missing."));
    row("duplicate", "index=\"1018\"", "index=\"0x2000\"",
        object + latin1("There is alrady a can open object with index 8192 !"));
    const int rates = lineOf(base, "<baudRate");
    row("rate", "\"auto-baudRate\"", "\"%1 250 kbps\"",
        inTag("supportedBaudRate", rates + 2) + latin1("\"%1 250 kbps\" is not an valid baudrate !"));
    row("rate value", "<supportedBaudRate value=\"auto-baudRate\"", "<supportedBaudRate",
        inTag("supportedBaudRate", rates + 2) + latin1("Attribute \"value\" is missing."));
    row("PhysicalLayer", "<PhysicalLayer>\n<baudRate defaultValue=\"125 Kbps\">",
        "<PhysicalLayer/><PhysicalLayer><baudRate>",
        inTag("PhysicalLayer", rates - 1) + latin1("Element <baudRate> is missing."));
}

void TestLoad::failures()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, message);
    QString error = latin1("an earlier message");
    QVERIFY(!loadText(*reader(), changed(description(), before, after), error));
    QCOMPARE(error, message);
}

void TestLoad::storedBeforeAFailure()
{
    QString error;
    {
        const auto iso = reader();
        QVERIFY(!loadText(*iso, changed(description(), " fileVersion=\"1.5\"", ""), error));
        QCOMPARE(iso->deviceProfile().mFileName, latin1("d.xdd"));
        QCOMPARE(iso->deviceProfile().mFileModifiedBy, latin1("you")); // The optional ones are read all the same.
        QVERIFY(iso->deviceProfile().mVendorName.mValue.isEmpty());
    }
    {
        const auto iso = reader();
        QVERIFY(!loadText(*iso, changed(description(), "<vendorName readOnly=\"true\">", "<vendorName>"), error));
        QCOMPARE(iso->deviceProfile().mVendorName.mValue, latin1("Vendor"));
        QVERIFY(iso->deviceProfile().mProductName.mValue.isEmpty());
        QCOMPARE(iso->deviceProfile().mOrderNumber.mValue, latin1("first"));
        QCOMPARE(iso->deviceProfile().mVersions.size(), 2);
    }
    {
        const auto iso = reader();
        QVERIFY(loadText(*iso, changed(description(), "<vendorID readOnly=\"false\">0x1", "<vendorID>0x9"), error));
        QCOMPARE(iso->deviceProfile().mVendorId.mValue, latin1("0x9"));
        QVERIFY(iso->deviceProfile().mVendorId.mReadOnly);
    }
    {
        const auto iso = reader();
        QVERIFY(!loadText(*iso, changed(description(), "name=\"b\" ", ""), error));
        QCOMPARE(iso->getObjList().keys(), QList<unsigned int>{0x2000}); // The failing object is not stored.
        QCOMPARE(iso->networkProfile().mManufacturerObjects, 20U);       // The counts are.
        QVERIFY(iso->networkProfile().mVendorId.mValue.isEmpty());
    }
    {
        const auto iso = reader();
        QVERIFY(!loadText(*iso, changed(description(), "\"auto-baudRate\"", "\"1 Kbps\""), error));
        QCOMPARE(iso->networkProfile().mSupportedBaudRates, {CNetworkCanOpenProfile::BAUD_1000_KBPS});
        QCOMPARE(iso->networkProfile().mProductId.mValue, latin1("0x4"));
    }
}

void TestLoad::repeatedLoads()
{
    const auto iso = reader();
    const CNetworkCanOpenProfile* const profile = &iso->networkProfile();
    QString error;
    QVERIFY(loadText(*iso, description(), error));
    QVERIFY(!loadText(
        *iso, changed(description(), "<vendorName readOnly=\"true\">Vendor", "<vendorName readOnly=\"true\">New"),
        error));
    QCOMPARE(
        error, inTag("CANopenObject", lineOf(description(), "<CANopenObjectList") + 1)
                   + latin1("There is alrady a can open object with index 8192 !"));
    QCOMPARE(iso->deviceProfile().mVendorName.mValue, latin1("New"));
    QCOMPARE(iso->getObjList().size(), 2);
    // A file that cannot be read changes nothing.
    QVERIFY(!loadText(*iso, "<a>", error));
    QVERIFY(!iso->load(latin1("absent"), error));
    QCOMPARE(iso->deviceProfile().mVendorName.mValue, latin1("New"));
    QCOMPARE(iso->getObjList().size(), 2);
    QCOMPARE(&iso->networkProfile(), profile);
    QVERIFY(reader()->getObjList().isEmpty());
}

void TestLoad::registry()
{
    const auto iso = reader();
    QString error = latin1("untouched");
    QVERIFY(iso->addObject(CCanOpenObject(0x1018, latin1("one"), 7), error));
    const auto before = iso->getObjList();
    QVERIFY(iso->addObject(CCanOpenObject(0x1000, QString(), 7), error));
    QVERIFY(iso->addObject(CCanOpenObject(0, latin1("zero"), 7), error));
    QCOMPARE(error, latin1("untouched"));
    QCOMPARE(before.keys(), QList<unsigned int>{0x1018});
    QCOMPARE(iso->getObjList().keys(), (QList<unsigned int>{0, 0x1000, 0x1018}));
    QCOMPARE(iso->getObj(0).mName, latin1("zero"));
    QVERIFY(!iso->getObj(0x1000).isValid());

    QVERIFY(!iso->addObject(CCanOpenObject(0x1000, latin1("other"), 9), error));
    QCOMPARE(error, latin1("ERROR : There is alrady an Object with index 4096 !"));
    QCOMPARE(iso->getObj(0x1000).mObjectType, static_cast<unsigned char>(7));

    QVERIFY(!iso->getObj(0x2000).isValid());
    QCOMPARE(iso->getObj(0x2000).mAccessType, CCanOpenSubObject::OBJ_ACCESS_INVALID);
    QCOMPARE(iso->getObjList().size(), 3);

    error = latin1("untouched");
    QVERIFY(!iso->save(latin1("new.xdd"), error));
    QCOMPARE(error, latin1("untouched"));
    QVERIFY(!QFile::exists(latin1("new.xdd")));
}

QTEST_GUILESS_MAIN(TestLoad)
#include "tst_load.moc"
