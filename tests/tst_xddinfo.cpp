#include "Description.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// The tool as its user meets it: what it prints, where, and how it ends.
class TestXddinfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endings_data();
    void endings();
    void table();
    void oneObject();
    void json();
    void theOthersAreShown();
    void foreignDescription();
    void controlCharacters();
    void closedPipe();
};

namespace
{
struct SResult
{
    int status;
    QString output;
    QString messages;
};

SResult run(const QStringList& arguments, const QString& outputFile = QString())
{
    QProcess process;
    if (!outputFile.isEmpty()) {
        process.setStandardOutputFile(outputFile);
    }
    process.start(QStringLiteral(XDDINFO), arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) {
        qFatal("xddinfo did not end by itself");
    }
    return {
        process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
        QString::fromUtf8(process.readAllStandardError())};
}

QString fileWith(const QTemporaryDir& folder, const QByteArray& text, const char* name = "file.xdd")
{
    QFile file(folder.filePath(QString::fromUtf8(name)));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        qFatal("No temporary file");
    }
    return file.fileName();
}
} // namespace

void TestXddinfo::endings_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("outputFile");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* name, const char* arguments, int status, const char* message,
                        const char* file = "") {
        QTest::newRow(name) << QString::fromUtf8(arguments) << QString::fromUtf8(file) << status
                            << QString::fromUtf8(message);
    };
    row("sample", "", 0, "");
    row("help", "--help", 0, "");
    row("version", "--version", 0, "");
    row("object", "--object 1018", 0, "");
    row("absent file", "no%1.xdd", 1, "xddinfo: no%1.xdd: Cannot open file \"no%1.xdd\": File does not exist.\n");
    row("absent object", "--object 0x4711", 1,
        "xddinfo: :/mvxIso15745Xml/xml/NLV7315602_v.xdd: There is no object 0x4711.\n");
    row("unknown option", "--nonsense", 2, "xddinfo: Unknown option 'nonsense'.\nxddinfo: Try 'xddinfo --help'.\n");
    row("no index", "--object nonsense", 2, "xddinfo: 'nonsense' is not an index.\nxddinfo: Try 'xddinfo --help'.\n");
    row("full disk", "", 1, "xddinfo: Cannot write: No space left on device\n", "/dev/full");
    row("full disk for help", "--help", 1, "xddinfo: Cannot write: No space left on device\n", "/dev/full");
}

void TestXddinfo::endings()
{
    QFETCH(QString, arguments);
    QFETCH(QString, outputFile);
    QFETCH(int, status);
    QFETCH(QString, message);
    const SResult result = run(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts), outputFile);
    QCOMPARE(result.messages, message);
    QCOMPARE(result.status, status);
    QCOMPARE(result.output.isEmpty(), status != 0);
}

void TestXddinfo::table()
{
    const QString output = run({}).output;
    QVERIFY(output.startsWith(QLatin1String("Embedded sample :/mvxIso15745Xml/xml/NLV7315602_v.xdd\n")));
    QCOMPARE(output.count(QLatin1String("\n0x")), 41);
    QCOMPARE(output.count(QLatin1String("\n        0x")), 67);
    QVERIFY(output.contains(QLatin1String("\nDefault bit rate        250 kbit/s\n")));
    QVERIFY(output.contains(QLatin1String("\nOptional objects        0 stated, 18 found\n")));
    QVERIFY(
        output.contains(QLatin1String("\n0x1001        Error register           VAR     UNSIGNED8           TPDO\n")));
    QVERIFY(output.contains(
        QLatin1String("\n        0x01    Vendor-ID              VAR     UNSIGNED32  ro            0x00FFFF17\n")));
}

void TestXddinfo::oneObject()
{
    const QTemporaryDir folder;
    const SResult result = run({QStringLiteral("--object"), QStringLiteral("0x1018"), fileWith(folder, description())});
    QCOMPARE(result.status, 0);
    QVERIFY(result.output.contains(QLatin1String("\n  Stated sub-objects    5\n  Sub-object 0x0A\n")));
    QVERIFY(result.output.contains(QLatin1String("\n    Actual value        av\n    Low limit           9\n")));
}

void TestXddinfo::json()
{
    const QTemporaryDir folder;
    const QString file = fileWith(folder, changed(description(), "name=\"last\"", "name=\"\x7F\xC2\x9B&quot;\""));
    const SResult result = run({QStringLiteral("--json"), file, file});
    QCOMPARE(result.status, 0);
    const QStringList lines = result.output.split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines[0], lines[1]);
    QVERIFY(lines[0].contains(QLatin1String("\\u007f\\u009b\\\"")));

    const QJsonObject document = QJsonDocument::fromJson(lines[0].toUtf8()).object();
    const auto at = [](const QJsonValue& value, const char* key) {
        return value.toObject().value(QLatin1String(key));
    };
    const QJsonValue device = document.value(QLatin1String("deviceProfile"));
    const QJsonValue network = document.value(QLatin1String("networkProfile"));
    QCOMPARE(document.value(QLatin1String("file")).toString(), file);
    QCOMPARE(at(at(device, "ProfileHeader"), "ProfileClassID").toString(), QStringLiteral("Device"));
    QCOMPARE(at(at(device, "vendorID"), "readOnly").toBool(true), false);
    QCOMPARE(at(at(device, "vendorText"), "labels").toArray().size(), 4);
    QVERIFY(at(device, "versions").toArray().last().toObject().value(QLatin1String("versionType")).isNull());
    QVERIFY(at(network, "fileCreationTime").isNull());
    QCOMPARE(at(network, "baudRate").toInt(), 125);
    QCOMPARE(at(network, "supportedBaudRates").toArray(), (QJsonArray{1000, 0, 1000}));
    const QJsonArray objects = at(network, "objects").toArray();
    QCOMPARE(objects.size(), 2);
    QCOMPARE(at(objects[0], "index").toInt(), 0x1018);
    const QJsonValue subObject = at(objects[0], "subObjects").toArray().first();
    QCOMPARE(at(subObject, "subIndex").toInt(), 10);
    QVERIFY(at(objects[1], "accessType").isNull());
}

void TestXddinfo::theOthersAreShown()
{
    const QTemporaryDir folder;
    const QString good = fileWith(folder, description(), "good.xdd");
    const SResult result = run({fileWith(folder, "<a>", "bad.xdd"), good});
    QCOMPARE(result.status, 1);
    QVERIFY(result.output.contains(good + QLatin1String("\n\nVendor                  Vendor\n")));
    QVERIFY(result.messages.startsWith(QStringLiteral("xddinfo: %1/bad.xdd: Read file").arg(folder.path())));
}

void TestXddinfo::foreignDescription()
{
    const QTemporaryDir folder;
    const QByteArray foreign = changed(description(), "<vendorName readOnly=\"true\">", "<vendorName>");
    const QString file = fileWith(folder, changed(foreign, ">any<", ">CANopen<"));
    QCOMPARE(run({file}).status, 1);
    const SResult result = run({QStringLiteral("--normalize"), file});
    QCOMPARE(result.status, 0);
    QVERIFY(result.output.startsWith(file + QLatin1String("\n\nVendor                  Vendor\n")));
    QVERIFY(result.output.contains(QLatin1String("VISIBLE_STRING"))); // "0009"
    // The reference to a parameter that is not there is left, which is no change.
    QVERIFY(result.messages.endsWith(QLatin1String(": Normalized before it was read, with 4 changes.\n")));
}

void TestXddinfo::controlCharacters()
{
    const QTemporaryDir folder;
    const QByteArray evil = "\x1B[31m" + QString(QChar(0x202E)).toUtf8() + "\xC2\x9B";
    const QString shown = QStringLiteral("\\u001b[31m\\u202e\\u009b");
    const QString good = fileWith(folder, changed(description(), ">Vendor<", '>' + evil + '<'));
    QVERIFY(run({good}).output.contains(QLatin1String("Vendor                  ") + shown + QLatin1Char('\n')));
    const QString bad = fileWith(folder, changed(description(), "\"auto-baudRate\"", '"' + evil + '"'));
    QVERIFY(run({bad}).messages.contains(QLatin1Char('"') + shown + QLatin1String("\" is not an valid baudrate")));
}

void TestXddinfo::closedPipe()
{
    QProcess shell;
    shell.start(
        QStringLiteral("bash"),
        {QStringLiteral("-c"), QStringLiteral("\"$0\" | true; echo ${PIPESTATUS[0]}"), QStringLiteral(XDDINFO)});
    QVERIFY(shell.waitForFinished());
    QCOMPARE(shell.readAllStandardOutput(), QByteArray("0\n"));
    QCOMPARE(shell.readAllStandardError(), QByteArray());
}

QTEST_GUILESS_MAIN(TestXddinfo)
#include "tst_xddinfo.moc"
