#include "Description.h"

#include <CXddChecker.h>
#include <CXddEdsWriter.h>
#include <CXddNormalizer.h>

#include <QProcess>
#include <QtTest>

#include <memory>

// The library as a file: what it exports, what it needs, and the descriptions that it carries.
class TestLibrary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void symbols_data();
    void symbols();
    void layouts();
    void soNames();
    void samples_data();
    void samples();
    void samplesCanBeTakenOut();
    void germanMessages();
};

namespace
{
QString output(const char* program, const QStringList& arguments)
{
    QProcess process;
    process.start(QString::fromLocal8Bit(program), arguments);
    if (!process.waitForFinished() || process.exitCode() != 0) {
        qFatal("%s failed", program);
    }
    return QString::fromUtf8(process.readAllStandardOutput());
}

// Compares lines with those of a file in the folder "symbols". MVX_RENEW=1 writes that file.
void compareWithRecord(const QString& name, const QStringList& found)
{
    QFile file(QStringLiteral(SYMBOL_FOLDER "/%1.txt").arg(name));
    if (qEnvironmentVariableIsSet("MVX_RENEW")) {
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(found.join(QLatin1Char('\n')).toUtf8() + '\n');
        file.close();
    }
    QVERIFY2(file.open(QIODevice::ReadOnly | QIODevice::Text), qPrintable(file.fileName()));
    const QStringList recorded = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const QStringList wrong = differences(recorded, found);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1Char('\n'))));
}

// The size of a record and the offsets of its fields.
template <typename Record, typename... Field> QString layoutOf(const char* name, Field Record::*... fields)
{
    alignas(Record) static const char place[sizeof(Record)] = {};
    const Record& record = *reinterpret_cast<const Record*>(place); // Nothing of it is read
    [[maybe_unused]] const auto offset = [&record](const auto& field) {
        return QString::number(reinterpret_cast<const char*>(&field) - reinterpret_cast<const char*>(&record));
    };
    const QStringList offsets = {offset(record.*fields)...};
    return QStringLiteral("%1: %2 bytes, fields at %3")
        .arg(QString::fromLatin1(name), QString::number(sizeof(Record)), offsets.join(QLatin1Char(' ')));
}

QString sample(const char* name)
{
    return QStringLiteral(":/mvxIso15745Xml/xml/") + QString::fromLatin1(name);
}
} // namespace

void TestLibrary::symbols_data()
{
    QTest::addColumn<QString>("library");
    QTest::newRow("mvxIso15745Xml") << QStringLiteral(LIBRARY_FILE);
    QTest::newRow("mvxXml") << QStringLiteral(XML_LIBRARY_FILE);
    QTest::newRow("mvxXddTools") << QStringLiteral(TOOLS_LIBRARY_FILE);
}

// A line that is missing breaks programs that were linked before; a line more is a promise that has to be meant. Weak
// symbols are ours only where they belong to one of our classes: a build without optimisation has Qt's inline
// functions.
void TestLibrary::symbols()
{
    QFETCH(QString, library);
    static const QRegularExpression line(QStringLiteral("^[0-9a-f]+ ([A-Za-z]) (.*)$"));
    static const QRegularExpression ownWeak(QStringLiteral("^(?:vtable|typeinfo|typeinfo name) for I?C[A-Z]\\w+$"));
    static const QRegularExpression instruments(QStringLiteral("^__(?:odr_)?asan|^__st(?:art|op)___sancov"));
    QStringList exported;
    const QString names = output(NM, {QStringLiteral("-DC"), QStringLiteral("--defined-only"), library});
    for (const QString& text : names.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QRegularExpressionMatch match = line.match(text);
        const QString symbol = match.captured(2).replace(
            QLatin1String("QList<QString>"), QLatin1String("QStringList")); // The same in Qt 6
        const bool isWeak = QStringLiteral("WVuvw").contains(match.captured(1));
        if (!instruments.match(symbol).hasMatch() && (!isWeak || ownWeak.match(symbol).hasMatch())
            && !exported.contains(symbol)) {
            exported << symbol;
        }
    }
    exported.sort();
    compareWithRecord(QString::fromLatin1(QTest::currentDataTag()), exported);
}

// Where the fields of the public records lie, on a machine with 64 bits: a program that was linked before goes by it.
void TestLibrary::layouts()
{
    if (sizeof(void*) != 8) {
        QTest::qSkip("recorded for 64 bits", __FILE__, __LINE__);
        return;
    }
    using Sub = CCanOpenSubObject;
    using Device = CDeviceProfile;
    using Header = CProfileHeader;
    using Network = CNetworkCanOpenProfile;
    compareWithRecord(
        QStringLiteral("layouts" MVX_SUFFIX),
        {layoutOf(
             "CProfileHeader", &Header::mProfileIdentification, &Header::mProfileRevision, &Header::mProfileName,
             &Header::mProfileSource, &Header::mProfileClassId, &Header::mProfileDate, &Header::mAdditionalInformation,
             &Header::mIso15745Part, &Header::mIso15745Edition, &Header::mProfileTechnology,
             &Header::mIasInterfaceType),
         layoutOf(
             "CGLabel", &CGLabel::mType, &CGLabel::mText, &CGLabel::mLang, &CGLabel::mUri, &CGLabel::mRefText,
             &CGLabel::mDictId, &CGLabel::mTextId),
         layoutOf<CGLabels>("CGLabels"),
         layoutOf("CWriteProtectString", &CWriteProtectString::mValue, &CWriteProtectString::mReadOnly),
         layoutOf("CWriteProtectGLabels", &CWriteProtectGLabels::mLabels, &CWriteProtectGLabels::mReadOnly),
         layoutOf("CVersion", &CVersion::mVersionType),
         layoutOf("CCharacteristic", &CCharacteristic::mCharacteristicName, &CCharacteristic::mCharacteristicContent),
         layoutOf(
             "CDeviceProfile", &Device::mHeader, &Device::mFileCreationDate, &Device::mFileCreationTime,
             &Device::mFileCreator, &Device::mFileModificationDate, &Device::mFileModificationTime,
             &Device::mFileModifiedBy, &Device::mFileName, &Device::mFileVersion, &Device::mVendorName,
             &Device::mVendorId, &Device::mVendorText, &Device::mDeviceFamily, &Device::mProductFamily,
             &Device::mProductName, &Device::mProductId, &Device::mProductText, &Device::mOrderNumber,
             &Device::mVersions, &Device::mBuildDate, &Device::mSpecificationRevision, &Device::mInstanceName,
             &Device::mCharacteristic, &Device::mCategory),
         layoutOf(
             "CCanOpenSubObject", &Sub::mIndex, &Sub::mName, &Sub::mObjectType, &Sub::mDataType, &Sub::mLowLimit,
             &Sub::mHighLimit, &Sub::mAccessType, &Sub::mDefaultValue, &Sub::mActualValue, &Sub::mDenotation,
             &Sub::mPdoMapping, &Sub::mObjFlags, &Sub::mUniqueIdRef, &Sub::mSubNumber),
         layoutOf("CCanOpenObject", &CCanOpenObject::mSubObjects),
         layoutOf(
             "CNetworkCanOpenProfile", &Network::mHeader, &Network::mFileCreationDate, &Network::mFileCreationTime,
             &Network::mFileCreator, &Network::mFileModificationDate, &Network::mFileModificationTime,
             &Network::mFileModifiedBy, &Network::mFileName, &Network::mFileVersion, &Network::mVendorId,
             &Network::mDeviceFamily, &Network::mProductId, &Network::mVersions, &Network::mBuildDate,
             &Network::mSpecificationRevision, &Network::mMandatoryObjects, &Network::mOptionalObjects,
             &Network::mManufacturerObjects, &Network::mObjects, &Network::mBaudRate, &Network::mSupportedBaudRates),
         layoutOf(
             "CXddRemark", &CXddRemark::mKind, &CXddRemark::mSeverity, &CXddRemark::mLine, &CXddRemark::mColumn,
             &CXddRemark::mRule, &CXddRemark::mIndex, &CXddRemark::mSubIndex, &CXddRemark::mSentence,
             &CXddRemark::mReason),
         layoutOf("CXddRule", &CXddRule::mId, &CXddRule::mSummary, &CXddRule::mReason, &CXddRule::mSeverity),
         layoutOf<CXddDocument>("CXddDocument"),
         layoutOf("CXddCopy", &CXddCopy::mText, &CXddCopy::mLoads, &CXddCopy::mRemarks),
         layoutOf("CXddEds", &CXddEds::mText, &CXddEds::mEntries, &CXddEds::mIncomplete, &CXddEds::mLosses),
         layoutOf("CXddPdo", &CXddPdo::mIsTransmit, &CXddPdo::mNumber, &CXddPdo::mFields, &CXddPdo::mDoubts),
         layoutOf(
             "CXddEntry", &CXddEntry::mIndex, &CXddEntry::mDataType, &CXddEntry::mDefaultValue,
             &CXddEntry::mUniqueIdRef),
         layoutOf(
             "CXddDevice", &CXddDevice::mForm, &CXddDevice::mNetworkProfile, &CXddDevice::mBitRates,
             &CXddDevice::mCommissioning)});
}

void TestLibrary::soNames()
{
    const QString own = output(OBJDUMP, {QStringLiteral("-p"), QStringLiteral(LIBRARY_FILE)});
    QVERIFY(own.contains(QRegularExpression(QStringLiteral("SONAME +libmvxIso15745Xml" MVX_SUFFIX "\\.so\\.0\\.1\n"))));
    QVERIFY(own.contains(QRegularExpression(QStringLiteral("NEEDED +libmvxXml" MVX_SUFFIX "\\.so\\.0\\.1\n"))));
    const QString xml = output(OBJDUMP, {QStringLiteral("-p"), QStringLiteral(XML_LIBRARY_FILE)});
    QVERIFY(xml.contains(QRegularExpression(QStringLiteral("SONAME +libmvxXml" MVX_SUFFIX "\\.so\\.0\\.1\n"))));
}

void TestLibrary::samples_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QTime>("created");
    QTest::addColumn<QTime>("modified");
    QTest::addColumn<int>("versions");
    QTest::addColumn<int>("linked"); // Objects with a unique ID
    QTest::addColumn<unsigned int>("manufacturerObjects");
    QTest::newRow("v") << QStringLiteral("NLV7315602_v.xdd") << QTime(9, 9) << QTime(9, 9, 36) << 3 << 24 << 0U;
    QTest::newRow("i") << QStringLiteral("NLV7315602_i.xdd") << QTime(11, 6) << QTime(11, 6) << 1 << 0 << 20U;
}

void TestLibrary::samples()
{
    QFETCH(QString, name);
    QFETCH(QTime, created);
    QFETCH(QTime, modified);
    QFETCH(int, versions);
    QFETCH(int, linked);
    QFETCH(unsigned int, manufacturerObjects);

    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QString error;
    QVERIFY2(reader->load(sample(qPrintable(name)), error), qPrintable(error));
    const CDeviceProfile& device = reader->deviceProfile();
    QCOMPARE(device.mFileName, name);
    QCOMPARE(device.mFileCreationDate, QDate(2011, 10, 5));
    QCOMPARE(device.mFileCreationTime, created);
    QCOMPARE(device.mFileModificationTime, modified);
    QCOMPARE(device.mVersions.size(), versions);
    QVERIFY(device.mCharacteristic.valid());
    const CNetworkCanOpenProfile& network = reader->networkProfile();
    QCOMPARE(network.mFileCreationTime, created);
    QCOMPARE(network.mManufacturerObjects, manufacturerObjects);
    QCOMPARE(network.mBaudRate, CNetworkCanOpenProfile::BAUD_250_KBPS);
    QCOMPARE(network.mSupportedBaudRates.size(), 8);
    QVERIFY(!network.mSupportedBaudRates.contains(CNetworkCanOpenProfile::BAUD_100_KBPS));
    QCOMPARE(network.mObjects.size(), 41);
    int subObjects = 0;
    int references = 0;
    for (const CCanOpenObject& object : network.mObjects) {
        subObjects += int(object.mSubObjects.size());
        references += object.mUniqueIdRef.isEmpty() ? 0 : 1;
        QCOMPARE(object.mSubObjects.size(), int(object.mSubNumber));
        QVERIFY(object.mPdoMapping != CCanOpenSubObject::OBJ_MAP_INVALID);
    }
    QCOMPARE(subObjects, 67);
    QCOMPARE(references, linked);
    QCOMPARE(network.mObjects[0x1018].mSubObjects.size(), 3);
}

void TestLibrary::samplesCanBeTakenOut()
{
    QVERIFY(QFile::exists(sample("NLV7315602_v.xdd")));
    Q_CLEANUP_RESOURCE(mvxIso15745Xml);
    QVERIFY(!QFile::exists(sample("NLV7315602_v.xdd")) && !QFile::exists(sample("NLV7315602_i.xdd")));
    Q_INIT_RESOURCE(mvxIso15745Xml);
    QVERIFY(QFile::exists(sample("NLV7315602_i.xdd")));
}

// Both contexts of the library, with their arguments in place.
void TestLibrary::germanMessages()
{
    QTranslator translator;
    if (!translator.load(QStringLiteral("mvxIso15745Xml_de"), QStringLiteral(CATALOGUE_FOLDER))) {
        QTest::qSkip("there is no German catalogue", __FILE__, __LINE__);
        return;
    }
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QString error;
    QVERIFY(!loadText(*reader, changed(description(), "\"auto-baudRate\"", "\"9 Kbps\""), error));
    QVERIFY2(error.endsWith(QString::fromUtf8(" : \"9 Kbps\" ist keine gültige Baudrate !")), qPrintable(error));
    QVERIFY(error.startsWith(QLatin1String("Fehler beim Lesen des TAGs <supportedBaudRate> in Zeile ")));
    QVERIFY(!loadText(*reader, changed(description(), "2011-10-05", "heute"), error));
    QCOMPARE(
        error,
        QStringLiteral("Fehler beim Lesen des TAGs <ProfileBody> in Zeile 19 : Das Attribut \"fileCreationDate\" ist "
                       "\"heute\", sollte aber ein Datum Jahr-Monat-Tag (JJJJ-MM-TT) sein."));
}

QTEST_GUILESS_MAIN(TestLibrary)
#include "tst_library.moc"
