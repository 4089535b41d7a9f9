#include "Description.h"

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
}

// A line that is missing breaks programs that were linked before; a line more is a promise that has to be meant.
void TestLibrary::symbols()
{
    QFETCH(QString, library);
    QStringList exported;
    const QString names = output(NM, {QStringLiteral("-DC"), QStringLiteral("--defined-only"), library});
    for (const QString& line : names.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QString symbol = line.mid(line.indexOf(QLatin1Char(' ')) + 3);
        if (!symbol.startsWith(QLatin1String("__asan")) && !symbol.startsWith(QLatin1String("__odr_asan"))
            && !exported.contains(symbol)) {
            exported << symbol;
        }
    }
    exported.sort();

    QFile file(
        QStringLiteral(SYMBOL_FOLDER "/") + QString::fromLatin1(QTest::currentDataTag()) + QStringLiteral(".txt"));
    QVERIFY2(file.open(QIODevice::ReadOnly | QIODevice::Text), qPrintable(file.fileName()));
    const QStringList recorded = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QStringList differences;
    for (const QString& symbol : recorded) {
        if (!exported.contains(symbol)) {
            differences << QStringLiteral("no longer exported: ") + symbol;
        }
    }
    for (const QString& symbol : qAsConst(exported)) {
        if (!recorded.contains(symbol)) {
            differences << QStringLiteral("exported, but not recorded: ") + symbol;
        }
    }
    QVERIFY2(differences.isEmpty(), qPrintable(differences.join(QLatin1Char('\n'))));
}

void TestLibrary::soNames()
{
    const QString own = output(OBJDUMP, {QStringLiteral("-p"), QStringLiteral(LIBRARY_FILE)});
    QVERIFY(own.contains(QRegularExpression(QStringLiteral("SONAME +libmvxIso15745Xml\\.so\\.0\\.1\n"))));
    QVERIFY(own.contains(QRegularExpression(QStringLiteral("NEEDED +libmvxXml\\.so\\.0\\.1\n"))));
    const QString xml = output(OBJDUMP, {QStringLiteral("-p"), QStringLiteral(XML_LIBRARY_FILE)});
    QVERIFY(xml.contains(QRegularExpression(QStringLiteral("SONAME +libmvxXml\\.so\\.0\\.1\n"))));
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
        subObjects += object.mSubObjects.size();
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
    QVERIFY(translator.load(QStringLiteral("mvxIso15745Xml_de"), QStringLiteral(CATALOGUE_FOLDER)));
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
