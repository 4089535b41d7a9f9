#include <ICIso15745.h>

#include <QtTest>

// The records by themselves: what they hold before anything is read, and the texts of their enumerations.
class TestRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enumerationTexts_data();
    void enumerationTexts();
    void enumerators();
    void headerDefaults();
    void tablesAreCopies();
    void labelsAreValidByTheirFirstEntry();
    void deviceProfileDefaults();
    void networkProfileDefaults();
    void objects();
};

namespace
{
// One conversion in both directions, behind plain integers, so that all enumerations can share the rows.
struct SConversion
{
    std::function<QString(int)> asStr;
    std::function<int(QString)> fromStr;
};

template <typename Enum> SConversion conversion(QString (*asStr)(Enum), Enum (*fromStr)(QString const&))
{
    return {
        [=](int value) { return asStr(static_cast<Enum>(value)); },
        [=](const QString& text) {
            return fromStr(text);
        }};
}

const SConversion CLASS_ID = conversion(&CProfileHeader::classIdAsStr, &CProfileHeader::classIdFromStr);
const SConversion INTERFACE = conversion(&CProfileHeader::iasIfTypAsStr, &CProfileHeader::iasIfTypFromStr);
const SConversion VERSION = conversion(&CVersion::versionTypeAsStr, &CVersion::versionTypeFromStr);
const SConversion LABEL = conversion(&CGLabel::gLabelTypeAsStr, &CGLabel::gLabelTypeFromStr);
const SConversion ACCESS = conversion(&CCanOpenSubObject::accessTypeAsStr, &CCanOpenSubObject::accessTypeFromStr);
const SConversion MAPPING = conversion(&CCanOpenSubObject::pdoMappingAsStr, &CCanOpenSubObject::pdoMappingFromStr);
const SConversion RATE = conversion(&CNetworkCanOpenProfile::baudrateAsStr, &CNetworkCanOpenProfile::baudrateFromStr);
} // namespace

Q_DECLARE_METATYPE(SConversion)

void TestRecords::enumerationTexts_data()
{
    QTest::addColumn<SConversion>("conversion");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");

    const auto table = [](const char* name, const SConversion& conversion, const QMap<int, QString>& texts) {
        for (auto row = texts.cbegin(); row != texts.cend(); ++row) {
            QTest::addRow("%s %d", name, row.key()) << conversion << row.key() << row.value();
        }
    };
    const auto list = [&](const char* name, const SConversion& conversion, const char* words) {
        QMap<int, QString> texts;
        for (const QString& word : QString::fromLatin1(words).split(QLatin1Char(' '))) {
            texts.insert(int(texts.size()), word);
        }
        table(name, conversion, texts);
    };
    list(
        "class", CLASS_ID,
        "AIP Process InformationExchange Resource Device CommunicationNetwork Equipment Human Material _invalid_");
    list("interface", INTERFACE, "CSI HCI ISI API CMI ESI FSI MTI SEI USI _invalid_");
    list("version", VERSION, "SW FW HW _invalid_");
    list("label", LABEL, "label description labelRef descriptionRef _invalid_");
    list("access", ACCESS, "ro wo rw const");
    list("mapping", MAPPING, "no default optional TPDO RPDO");
    const QString invalid = QStringLiteral("_invalid_");
    table("access", ACCESS, {{255, invalid}});
    table("mapping", MAPPING, {{255, invalid}});
    table("rate", RATE, {{-1, invalid}, {0, QStringLiteral("auto-baudRate")}});
    for (const int rate : {10, 20, 50, 100, 125, 250, 500, 800, 1000}) {
        table("rate", RATE, {{rate, QStringLiteral("%1 Kbps").arg(rate)}});
    }
}

void TestRecords::enumerationTexts()
{
    QFETCH(SConversion, conversion);
    QFETCH(int, value);
    QFETCH(QString, text);
    QCOMPARE(conversion.asStr(value), text);
    QCOMPARE(conversion.fromStr(text), value);
    // Any other writing is another text, and no neighbour's.
    const int invalid = conversion.fromStr(QString());
    QCOMPARE(conversion.asStr(invalid), QStringLiteral("_invalid_"));
    QCOMPARE(conversion.fromStr(text + QLatin1Char(' ')), invalid);
    for (const int outside : {-2, 11, 254, 256}) {
        QCOMPARE(conversion.asStr(outside), QStringLiteral("_invalid_"));
    }
    QCOMPARE(conversion.fromStr(text == text.toUpper() ? text.toLower() : text.toUpper()), invalid);
}

// The values by name: the lists above would not see an enumerator that has become another number.
void TestRecords::enumerators()
{
    const QVector<int> numbered = {
        CProfileHeader::CID_AIP,
        CProfileHeader::CID_PROCESS,
        CProfileHeader::CID_INFO_EXCHANGE,
        CProfileHeader::CID_RESOURCE,
        CProfileHeader::CID_DEVICE,
        CProfileHeader::CID_COMM_NET,
        CProfileHeader::CID_EQUIPMENT,
        CProfileHeader::CID_HUMAN,
        CProfileHeader::CID_MATERIAL,
        CProfileHeader::CID_INVALID,
        CProfileHeader::IFT_CSI,
        CProfileHeader::IFT_HCI,
        CProfileHeader::IFT_ISI,
        CProfileHeader::IFT_API,
        CProfileHeader::IFT_CMI,
        CProfileHeader::IFT_ESI,
        CProfileHeader::IFT_FSI,
        CProfileHeader::IFT_MTI,
        CProfileHeader::IFT_SEI,
        CProfileHeader::IFT_USI,
        CProfileHeader::IFT_INVALID,
        CVersion::VTYPE_SW,
        CVersion::VTYPE_FW,
        CVersion::VTYPE_HW,
        CVersion::VTYPE_INVALID,
        CGLabel::GLABTYP_LABEL,
        CGLabel::GLABTYP_DESCRIPTION,
        CGLabel::GLABTYP_LABEL_REF,
        CGLabel::GLABTYP_DESCRIPTION_REF,
        CGLabel::GLABTYP_INVALID};
    QCOMPARE(numbered, (QVector<int>{0, 1, 2, 3, 4, 5,  6, 7, 8, 9, 0, 1, 2, 3, 4,
                                     5, 6, 7, 8, 9, 10, 0, 1, 2, 3, 0, 1, 2, 3, 4}));
    using Entry = CCanOpenSubObject;
    const QVector<int> access = {
        Entry::OBJ_ACCESS_RO, Entry::OBJ_ACCESS_WO, Entry::OBJ_ACCESS_RW, Entry::OBJ_ACCESS_CONST};
    QCOMPARE(access, (QVector<int>{0, 1, 2, 3}));
    const QVector<int> mapping = {
        Entry::OBJ_MAP_NO, Entry::OBJ_MAP_DEFAULT, Entry::OBJ_MAP_OPTIONAL, Entry::OBJ_MAP_TPDO, Entry::OBJ_MAP_RPDO};
    QCOMPARE(mapping, (QVector<int>{0, 1, 2, 3, 4}));
    QCOMPARE(int(Entry::OBJ_ACCESS_INVALID) + int(Entry::OBJ_MAP_INVALID), 510);
    using Rate = CNetworkCanOpenProfile;
    const QVector<int> rates = {Rate::BAUD_INVALID,  Rate::BAUD_AUTO,     Rate::BAUD_10_KBPS,  Rate::BAUD_20_KBPS,
                                Rate::BAUD_50_KBPS,  Rate::BAUD_100_KBPS, Rate::BAUD_125_KBPS, Rate::BAUD_250_KBPS,
                                Rate::BAUD_500_KBPS, Rate::BAUD_800_KBPS, Rate::BAUD_1000_KBPS};
    QCOMPARE(rates, (QVector<int>{-1, 0, 10, 20, 50, 100, 125, 250, 500, 800, 1000}));
}

void TestRecords::headerDefaults()
{
    const CProfileHeader header;
    QCOMPARE(header.mIso15745Part, 1U);
    QCOMPARE(header.mIso15745Edition, 1U);
    QCOMPARE(header.mProfileClassId, CProfileHeader::CID_INVALID);
    QCOMPARE(header.mIasInterfaceType, CProfileHeader::IFT_INVALID);
    QVERIFY(header.mProfileDate.isNull() && header.mProfileTechnology.isEmpty() && header.mProfileName.isEmpty());
}

void TestRecords::tablesAreCopies()
{
    auto access = CCanOpenSubObject::createAccessMap();
    QCOMPARE(access, CCanOpenSubObject::mAccessTypeTexts);
    access.clear();
    QCOMPARE(CCanOpenSubObject::mAccessTypeTexts.size(), 5);
    QCOMPARE(CCanOpenSubObject::createMappingMap(), CCanOpenSubObject::mPdoMappingTexts);
    QCOMPARE(CCanOpenSubObject::mPdoMappingTexts.size(), 6);
    QCOMPARE(CNetworkCanOpenProfile::createBaudrateMap(), CNetworkCanOpenProfile::mBaudrateTexts);
    QCOMPARE(CNetworkCanOpenProfile::mBaudrateTexts.firstKey(), CNetworkCanOpenProfile::BAUD_INVALID);
    QCOMPARE(CNetworkCanOpenProfile::mBaudrateTexts.size(), 11);
    QCOMPARE(CProfileHeader::mClassIdTexts.size(), 10);
    QCOMPARE(CProfileHeader::mIASInterfaceTypeTexts.size(), 11);
    QCOMPARE(CVersion::mVersionTypeTexts.size(), 4);
    QCOMPARE(CGLabel::mGLabTypeTexts.size(), 5);
}

void TestRecords::labelsAreValidByTheirFirstEntry()
{
    const CGLabel valid(CGLabel::GLABTYP_LABEL_REF);
    QCOMPARE(CGLabel().mType, CGLabel::GLABTYP_INVALID);
    QVERIFY(!CGLabels().valid());
    QVERIFY(!CGLabels(CGLabel::GLABTYP_INVALID).valid());
    CGLabels labels(CGLabel::GLABTYP_LABEL);
    labels.append(CGLabel());
    QVERIFY(labels.valid());
    labels.prepend(CGLabel());
    QVERIFY(!labels.valid());

    CWriteProtectGLabels text(true, CGLabel::GLABTYP_INVALID);
    QVERIFY(!text.valid());
    text.mLabels.clear();
    text.mLabels.append(valid);
    QVERIFY(text.valid());

    QVERIFY(CCharacteristic(CGLabel::GLABTYP_LABEL, CGLabel::GLABTYP_LABEL).valid());
    QVERIFY(!CCharacteristic(CGLabel::GLABTYP_LABEL, CGLabel::GLABTYP_INVALID).valid());
    QVERIFY(!CCharacteristic(CGLabel::GLABTYP_INVALID, CGLabel::GLABTYP_LABEL).valid());
}

void TestRecords::deviceProfileDefaults()
{
    CProfileHeader header;
    header.mProfileName = QStringLiteral("name");
    const QDateTime before = QDateTime::currentDateTime();
    const CDeviceProfile profile(header);
    const QDateTime created(profile.mFileCreationDate, profile.mFileCreationTime);
    QVERIFY(before <= created && created <= QDateTime::currentDateTime());
    QCOMPARE(profile.mHeader.mProfileName, header.mProfileName);
    QVERIFY(
        profile.mFileModificationDate.isNull() && profile.mFileModificationTime.isNull()
        && profile.mBuildDate.isNull());
    QVERIFY(profile.mVendorName.mReadOnly && profile.mVendorId.mReadOnly && profile.mProductFamily.mReadOnly);
    QVERIFY(profile.mProductId.mReadOnly && profile.mOrderNumber.mReadOnly && profile.mSpecificationRevision.mReadOnly);
    QVERIFY(!profile.mProductName.mReadOnly && !profile.mInstanceName.mReadOnly);
    QVERIFY(profile.mVendorText.mReadOnly && profile.mDeviceFamily.mReadOnly && profile.mProductText.mReadOnly);
    QVERIFY(!profile.mVendorText.valid() && !profile.mDeviceFamily.valid());
    QCOMPARE(profile.mDeviceFamily.mLabels.size(), 1);
    QVERIFY(profile.mProductText.valid() && profile.mCharacteristic.valid());
    QCOMPARE(profile.mProductText.mLabels.first().mLang, QStringLiteral("en"));
    QCOMPARE(profile.mCharacteristic.mCharacteristicName.first().mLang, QStringLiteral("en"));
    QCOMPARE(profile.mCharacteristic.mCharacteristicContent.first().mLang, QStringLiteral("en"));
    QVERIFY(profile.mVersions.isEmpty() && profile.mCategory.isEmpty());
}

void TestRecords::networkProfileDefaults()
{
    const CNetworkCanOpenProfile profile;
    QCOMPARE(profile.mFileCreationDate, CNetworkCanOpenProfile(CProfileHeader()).mFileCreationDate);
    QCOMPARE(profile.mBaudRate, CNetworkCanOpenProfile::BAUD_250_KBPS);
    QVERIFY(profile.mSupportedBaudRates.isEmpty() && profile.mObjects.isEmpty());
    QCOMPARE(profile.mMandatoryObjects + profile.mOptionalObjects + profile.mManufacturerObjects, 0U);
    QVERIFY(!profile.mDeviceFamily.valid() && profile.mDeviceFamily.mReadOnly);
    QVERIFY(profile.mVendorId.mReadOnly && profile.mProductId.mReadOnly && profile.mSpecificationRevision.mReadOnly);
    QVERIFY(!CVersion(false).mReadOnly);
    QCOMPARE(CVersion(true).mVersionType, CVersion::VTYPE_INVALID);
}

void TestRecords::objects()
{
    const CCanOpenSubObject none;
    QCOMPARE(none.mAccessType, CCanOpenSubObject::OBJ_ACCESS_INVALID);
    QCOMPARE(none.mPdoMapping, CCanOpenSubObject::OBJ_MAP_INVALID);
    QCOMPARE(none.mIndex + none.mObjectType + none.mDataType + none.mObjFlags + none.mSubNumber, 0U);
    QVERIFY(!none.isValid());
    QVERIFY(CCanOpenSubObject(1, QStringLiteral(" "), 7).isValid());

    const CCanOpenObject object(0x1000, QStringLiteral("device type"), 7);
    CCanOpenObject copy = object;
    copy.mSubObjects.append(none);
    QVERIFY(object.mSubObjects.isEmpty());
    QCOMPARE(copy.mIndex, 0x1000U);
    QCOMPARE(copy.mObjectType, static_cast<unsigned char>(7));
}

QTEST_GUILESS_MAIN(TestRecords)
#include "tst_records.moc"
