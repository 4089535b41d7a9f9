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
    void repeatedLoads();
    void optionalItemsOfASecondLoad();
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
    return int(text.left(text.lastIndexOf('\n' + start) + 1).count('\n')) + 1;
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
    // The parsers of both versions of Qt have words and places of their own.
    const bool hasQt5 = QLibraryInfo::version().majorVersion() == 5;
    QTest::newRow("empty") << latin1("a") << QByteArray("")
                           << parseError(
                                  hasQt5 ? "line 1, column 1: unexpected end of file"
                                         : "line 1, column 0: Premature end of document.");
    QTest::newRow("cut off") << latin1("%1 %2") << QByteArray("<a>\n<b")
                             << parseError(
                                    hasQt5 ? "line 2, column 3: unexpected end of file"
                                           : "line 2, column 2: Premature end of document.");
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

// Every field of the records, as data/load/description.dump has it. MVX_RENEW=1 writes that file.
void TestLoad::everythingIsRead()
{
    const auto iso = reader();
    QString error = latin1("untouched");
    QVERIFY2(loadText(*iso, description(), error), qPrintable(error));
    const QByteArray found = dump(*iso).join(QLatin1Char('\n')).toUtf8() + '\n';
    if (qEnvironmentVariableIsSet("MVX_RENEW")) {
        QFile file(latin1(TEST_DATA "/load/description.dump"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(found) == found.size());
    }
    const auto lines = [](const QByteArray& text) {
        return QString::fromUtf8(text).split(QLatin1Char('\n'));
    };
    const QStringList wrong = differences(lines(testData(latin1("load/description.dump"))), lines(found));
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1Char('\n'))));
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

// What a second load does not find keeps what the first one stored, but for what it empties or sets to nothing.
void TestLoad::optionalItemsOfASecondLoad()
{
    QByteArray text = changed(description(), "<supportedBaudRate value=\"auto-baudRate\"/>\n", "");
    for (const char* element : {"vendorID", "buildDate", "category"}) {
        const auto start = text.indexOf(QByteArray("<") + element);
        const QByteArray end = QByteArray("</") + element + '>';
        text.remove(start, text.indexOf(end, start) + end.size() - start);
    }
    text = changed(
        changed(text, "<version versionType=\"SW\" readOnly=\"true\">1</version>", ""), "mandatoryObjects=\"3\"", "");
    const auto iso = reader();
    QString error;
    QVERIFY(loadText(*iso, description(), error));
    const QStringList before = dump(*iso);
    iso->networkProfile().mObjects.clear();
    QVERIFY2(loadText(*iso, text, error), qPrintable(error));
    QStringList now = differences(before, dump(*iso)).filter(QRegularExpression(latin1("^\\+")));
    QCOMPARE(
        now.join(QLatin1Char(' ')),
        latin1(
            "+device.mVersions.size = 1 +device.mVersions[0].mVersionType = _invalid_ +device.mVersions[0].mValue = 2 "
            "+device.mVersions[0].mReadOnly = false +device.mBuildDate =  +network.mMandatoryObjects = 0 "
            "+network.mSupportedBaudRates.size = 2 +network.mSupportedBaudRates[1] = 1000 Kbps"));
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
