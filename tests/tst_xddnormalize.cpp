#include "Description.h"
#include "NormalizedDescription.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

#include <memory>

// What is changed in a description, what is not, and what the user is told about it.
class TestXddnormalize : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rules_data();
    void rules();
    void left_data();
    void left();
    void refused_data();
    void refused();
    void foreignHabits_data();
    void foreignHabits();
    void layout_data();
    void layout();
    void encodings();
    void samples();
    void endings_data();
    void endings();
    void destinations();
};

namespace
{
// A description that needs nothing.
QByteArray normalDescription()
{
    QByteArray text = changed(description(), "dataType=\"0009\"", "dataType=\"0007\"");
    text = changed(text, ">any<", ">CANopen<");
    text = changed(text, " accessType=\"RO\" PDOmapping=\"tpdo\"", "");
    text = changed(text, "uniqueIDRef=\"UID_1\" ", "");
    return changed(text, "</DeviceFunction>\n", R"(</DeviceFunction>
<ApplicationProcess><dataTypeList>
<derived uniqueID="T1"><INT/></derived><array uniqueID="T2"><INT/></array><derived uniqueID="T3"><dataTypeIDRef uniqueIDRef="T3"/></derived>
</dataTypeList><parameterList>
<parameter uniqueID="P1" access="readWriteInput"><q:ULINT xmlns:q="q"/><defaultValue value="a&amp;&quot;b"/><actualValue value="3"/>
<allowedValues><range><minValue value="1"/><maxValue value="9"/></range></allowedValues></parameter>
<parameter uniqueID="P2"><dataTypeIDRef uniqueIDRef="T1"/></parameter>
<parameter uniqueID="P3"><dataTypeIDRef uniqueIDRef="T2"/></parameter>
<parameter uniqueID="P4" access="noAccess"><dataTypeIDRef uniqueIDRef="T3"/></parameter>
</parameterList></ApplicationProcess>
)");
}

SNormalizedDescription normalized(const QByteArray& text)
{
    SNormalizedDescription result;
    QString error;
    if (!normalizeDescription(text, result, error)) {
        qFatal("Refused: %s", qPrintable(error));
    }
    return result;
}

QString loadError(const QByteArray& text)
{
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QString error;
    return loadDescription(*reader, text, error) ? QString() : error;
}
} // namespace

// A place of the normal description, how others write it, what becomes of that, and what the user is told.
void TestXddnormalize::rules_data()
{
    QTest::addColumn<QByteArray>("place");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("what");
    const auto row = [](const QByteArray& place, const QByteArray& before, const QByteArray& after, const char* what) {
        QTest::addRow("%s: %s: %s", place.constData(), before.constData(), what)
            << place << before << after << QString::fromLatin1(what);
    };
    row("<vendorName readOnly=\"true\">", "<vendorName>", "<vendorName readOnly=\"true\">",
        "readOnly=\"true\" of <vendorName> supplied");
    row("<productName readOnly=\"true\">", "<productName\n>", "<productName readOnly=\"false\"\n>",
        "readOnly=\"false\" of <productName> supplied");
    row("<orderNumber readOnly=\"true\">first", "<orderNumber readOnly='1'>", "<orderNumber readOnly='true'>",
        "readOnly \"1\" written as \"true\"");
    row("<vendorID readOnly=\"true\">0x3", "<vendorID>", "<vendorID readOnly=\"true\">",
        "readOnly=\"true\" of <vendorID> supplied");
    row("</capabilities>", "<standardComplianceList>\n<!-- x --></standardComplianceList></capabilities>",
        "<!-- <standardComplianceList>\n<!- - x - -></standardComplianceList> --></capabilities>",
        "standardComplianceList turned into a comment");
    row("<ProfileName/>\n<ProfileSource></ProfileSource>\n", "", "<ProfileName/>\n<ProfileSource/>\n",
        "<ProfileName> supplied|<ProfileSource> supplied");
    row("<ISO15745Edition>0x10</ISO15745Edition>\n", "", "<ISO15745Edition>1</ISO15745Edition>\n",
        "<ISO15745Edition> supplied");
    row("<ISO15745Part>4<", "<ISO15745Part> <", "<ISO15745Part>1<", "ISO15745Part supplied");
    row(">Device<", ">\n device <", ">Device<", "ProfileClassID \"\\u000a device \" written as \"Device\"");
    row("<ProfileBody fileName=\"d.xdd\" fileCreator=\"me\" fileCreationDate=\"2011-10-05\"",
        "<ProfileBody fileCreationDate=\"2011-10-05\" fileCreator=\"\" fileName=\"a\"",
        "<ProfileBody fileCreationDate=\"2011-10-05\" fileCreator=\"\" fileName=\"a\"", "");
    row(" fileCreator=\"net\" fileName=\"n.xdd\" fileVersion=\"2\"", "",
        " fileCreator=\"\" fileName=\"\" fileVersion=\"\"",
        "fileCreator supplied|fileName supplied|fileVersion supplied");
    row("\"2011-10-05\"", "\"11-23-2020\"", "\"2020-11-23\"",
        "fileCreationDate \"11-23-2020\" written as \"2020-11-23\"");
    row("\"2011-10-05\"", "\"23.11.2020\"", "\"2020-11-23\"",
        "fileCreationDate \"23.11.2020\" written as \"2020-11-23\"");
    row("\"2011-10-05\"", "\"2020/11/3\"", "\"2020-11-03\"",
        "fileCreationDate \"2020/11/3\" written as \"2020-11-03\"");
    row("\"2011-10-05\"", "\"2020-11-23T10:00:00\"", "\"2020-11-23\"",
        "fileCreationDate \"2020-11-23T10:00:00\" written as \"2020-11-23\"");
    row("\"2011-10-05\"", "\"\"", "\"2012-01-02\"", "fileCreationDate supplied");
    row("fileCreationDate=\"2011-10-06\" fileCreator=\"net\" fileName=\"n.xdd\" fileVersion=\"2\"",
        "fileCreator=\"net\" fileName=\"n.xdd\" fileVersion=\"2\"",
        "fileCreator=\"net\" fileName=\"n.xdd\" fileVersion=\"2\" fileCreationDate=\"1970-01-01\"",
        "fileCreationDate supplied");
    row("<baudRate defaultValue=\"125 Kbps\">", "<baudRate>", "<baudRate defaultValue=\"250 Kbps\">",
        "defaultValue supplied");
    for (const char* rate : {"125", " 125 kbps", "125kBit/s", "125000"}) {
        row("\"125 Kbps\"", QByteArray("\"") + rate + '"', "\"125 Kbps\"",
            qPrintable(QStringLiteral("defaultValue \"%1\" written as \"125 Kbps\"").arg(QString::fromLatin1(rate))));
    }
    row("\"auto-baudRate\"", "\"1 Mbit/s\"", "\"1000 Kbps\"", "value \"1 Mbit/s\" written as \"1000 Kbps\"");
    row(" name=\"last\" objectType=\"7\" dataType=\"0007\" objFlags=\"1F\"/>", " objectType=\"7\"  />",
        " objectType=\"7\" name=\"\"  />", "name supplied");
    row("dataType=\"0007\" objFlags", "dataType=\"0009\" objFlags", "dataType=\"0x0009\" objFlags",
        "dataType \"0009\" written as \"0x0009\"");
    row("dataType=\"0007\" objFlags", "dataType=\"1B\" objFlags", "dataType=\"0x1B\" objFlags",
        "dataType \"1B\" written as \"0x1B\"");
    row("objectType=\"9\"", "objectType=\"09\"", "objectType=\"0x09\"", "objectType \"09\" written as \"0x09\"");
    row("subNumber=\"5\"", "subNumber=\"010\"", "subNumber=\"0x0A\"", "subNumber \"010\" written as \"0x0A\"");
    row("manufacturerObjects=\"20\"", "manufacturerObjects=\"020\"", "manufacturerObjects=\"0x14\"",
        "manufacturerObjects \"020\" written as \"0x14\"");
    row("accessType=\"rw\"", "accessType=\"RW \"", "accessType=\"rw\"", "accessType \"RW \" written as \"rw\"");
    row("PDOmapping=\"TPDO\"", "PDOmapping=\"tpdo\"", "PDOmapping=\"TPDO\"", "PDOmapping \"tpdo\" written as \"TPDO\"");
    row("name=\"b\" objectType=\"7\"/>", "name=\"b\" objectType=\"7\" uniqueIDRef=\"P1\"/>",
        "name=\"b\" objectType=\"7\" uniqueIDRef=\"P1\" dataType=\"0x001B\" lowLimit=\"1\" highLimit=\"9\" "
        "accessType=\"rw\" "
        "defaultValue=\"a&amp;&quot;b\" actualValue=\"3\"/>",
        "dataType, lowLimit, highLimit, accessType, defaultValue, actualValue supplied");
    row("name=\"b\" objectType=\"7\"/>",
        "name=\"b\" objectType=\"7\" uniqueIDRef=\"P1\" accessType=\"ro\" dataType=\"0005\" lowLimit=\"0\"/>",
        "name=\"b\" objectType=\"7\" uniqueIDRef=\"P1\" accessType=\"ro\" dataType=\"0005\" lowLimit=\"0\" "
        "highLimit=\"9\" "
        "defaultValue=\"a&amp;&quot;b\" actualValue=\"3\"/>",
        "highLimit, defaultValue, actualValue supplied");
    row("name=\"b\" objectType=\"7\"/>", "name=\"b\" objectType=\"7\" uniqueIDRef=\"P2\"/>",
        "name=\"b\" objectType=\"7\" uniqueIDRef=\"P2\" dataType=\"0x0003\" accessType=\"ro\"/>",
        "dataType, accessType supplied");
    for (const char* nothing : {"P3", "P4"}) {
        const QByteArray same = QByteArray("name=\"b\" objectType=\"7\" uniqueIDRef=\"") + nothing + "\"/>";
        row("name=\"b\" objectType=\"7\"/>", same, same, "");
    }
}

void TestXddnormalize::rules()
{
    QFETCH(QByteArray, place);
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, what);
    const QByteArray normal = normalDescription();
    QCOMPARE(normalized(normal).bytes, normal);
    const SNormalizedDescription result = normalized(changed(normal, place, before));
    QCOMPARE(result.bytes, changed(normal, place, after));
    QStringList reports;
    for (const SChange& change : result.changes) {
        reports << change.what;
        QVERIFY(change.line > 1 && !reasonOf(change.rule).isEmpty());
    }
    QCOMPARE(reports.join(QLatin1Char('|')).replace(QLatin1Char('\n'), QLatin1String("\\u000a")), what);
    QCOMPARE(normalized(result.bytes).bytes, result.bytes);
    QCOMPARE(loadError(result.bytes), QString());
}

// What has no one meaning stays, and the user is told; what is in order is not even mentioned.
void TestXddnormalize::left_data()
{
    QTest::addColumn<QByteArray>("place");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("what");
    const auto row = [](const QByteArray& place, const QByteArray& text, const char* what) {
        QTest::addRow("%s", text.constData()) << place << text << QString::fromLatin1(what);
    };
    row("\"2011-10-05\"", "\"05.06.2020\"", "fileCreationDate \"05.06.2020\" left as it is");
    row("\"2011-10-05\"", "\"yesterday\"", "fileCreationDate \"yesterday\" left as it is");
    row("\"2011-10-05\"", "\"2011-10-05Z\"", "");
    row("\"auto-baudRate\"", "\"123 Kbps\"", "value \"123 Kbps\" left as it is");
    row("dataType=\"0007\" objFlags", "dataType=\"0401\" objFlags", "dataType \"0401\" left as it is");
    row("dataType=\"0007\" objFlags", "dataType=\"U32\" objFlags", "dataType \"U32\" left as it is");
    row("dataType=\"0007\" objFlags", "dataType=\"0x1B\" objFlags", "");
    row("accessType=\"rw\"", "accessType=\"rww\"", "accessType \"rww\" left as it is");
    row("name=\"last\"", "name=\"last\" uniqueIDRef=\"none\"", "uniqueIDRef \"none\" left as it is");
    row("name=\"last\"", "name=\"last\" uniqueIDRef=\"P3\"", "");
    row("name=\"last\"", "name=\"last\" uniqueIDRef=\"P4\"", "");
    row(">Device<", ">Equipment<", "");
    row("<other/>", "<vendorName>again</vendorName><![CDATA[<vendorName>]]><!-- <vendorName> -->", "");
}

void TestXddnormalize::left()
{
    QFETCH(QByteArray, place);
    QFETCH(QByteArray, text);
    QFETCH(QString, what);
    const QByteArray original = changed(normalDescription(), place, text);
    const SNormalizedDescription result = normalized(original);
    QCOMPARE(result.bytes, original);
    QCOMPARE(result.changes.isEmpty() ? QString() : result.changes.first().what, what);
}

// Files that are no CANopen descriptions, or would do harm.
void TestXddnormalize::refused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* name, const QByteArray& text, const char* message) {
        QTest::newRow(name) << text << QString::fromLatin1(message);
    };
    row("other technology", changed(description(), ">any<", ">Powerlink<"),
        "A profile is of the technology \"Powerlink\", not \"CANopen\".");
    row("other root", "<ISO15745Profile/>", "The root element is <ISO15745Profile>, not <ISO15745ProfileContainer>.");
    row("nothing said", "<ISO15745ProfileContainer/>", "Nothing says that this is a CANopen description.");
    row("broken", "<a>\n<b></a>", "Parse error at line 2, column 7: Opening and ending tag mismatch.");
    row("empty", "", "Parse error at line 1, column 0: Premature end of document.");
    row("deep", QByteArray("<a>").repeated(300),
        "Parse error at line 1, column 771: elements are nested deeper than 256 levels");
    row("subset", "<!DOCTYPE a [<!ENTITY e 'x'>]><a/>",
        "Parse error at line 1, column 30: the document type declaration has an internal subset");
    row("encoding", "<?xml version='1.0' encoding='none'?><a/>", "The encoding \"none\" is not known.");
    row("invalid UTF-8", "<a>\xFF</a>", "The text is not valid UTF-8.");
    QByteArray attributes;
    for (int i = 0; i < 100000; ++i) {
        attributes += " a" + QByteArray::number(i) + "=''";
    }
    row("attributes", "<a" + attributes + "/>", "an element has more than 256 attributes");
}

void TestXddnormalize::refused()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, message);
    SNormalizedDescription result;
    QString error;
    QVERIFY(!normalizeDescription(text, result, error));
    QCOMPARE(error, message);
    QVERIFY(result.bytes.isEmpty());
}

// Small descriptions in the habits of three generators, and what a reader finds in them afterwards.
void TestXddnormalize::foreignHabits_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("entries");
    const auto header = [](const char* name) {
        return QByteArray("<ISO15745Profile>\n<ProfileHeader><ProfileIdentification/><ProfileRevision/><ProfileName/"
                          "><ProfileSource/><ProfileClassID>")
               + name
               + "</ProfileClassID><ISO15745Reference><ISO15745Part>1</ISO15745Part><ISO15745Edition>1</"
                 "ISO15745Edition><ProfileTechnology>CANopen</ProfileTechnology></ISO15745Reference></ProfileHeader>\n";
    };
    const QByteArray rates = "<TransportLayers><PhysicalLayer><baudRate>\n<supportedBaudRate value=\"500 "
                             "Kbps\"/></baudRate></PhysicalLayer></TransportLayers>";
    const QByteArray end = "</ProfileBody></ISO15745Profile>\n";
    QTest::newRow("old form")
        << "<?xml version=\"1.0\"?>\r\n<ISO15745ProfileContainer>" + header("Device")
               + "<ProfileBody fileName=\"o\" fileCreator=\"\" fileCreationDate=\"03-31-2009\" "
                 "fileVersion=\"1\">\r\n\t<DeviceIdentity>\r\n\t\t<vendorName>V</vendorName>"
                 "<productName>P</productName></DeviceIdentity>"
               + end + header("CommunicationNetwork")
               + "<ProfileBody fileName=\"o\" fileCreator=\"\" fileCreationDate=\"2009-03-31\" "
                 "fileVersion=\"1\"><ApplicationLayers><CANopenObjectList>"
                 "<CANopenObject index=\"1008\" name=\"n\" objectType=\"7\" dataType=\"0009\" accessType=\"CONST\" "
                 "defaultValue=\"d\"/></CANopenObjectList></ApplicationLayers>"
               + rates + end + "</ISO15745ProfileContainer>"
        << QStringList{QStringLiteral("1008/9/const/d//")};
    QTest::newRow("new form")
        << "<ISO15745ProfileContainer xmlns=\"u\">" + header("Device")
               + R"(<ProfileBody xmlns:q1="v" formatName="CANopen" fileName="n" fileCreator="c" fileCreationDate="2020-11-28" fileVersion="1" xmlns="">
  <q1:DeviceIdentity>
    <q1:vendorName>V</q1:vendorName>
    <q1:productName>P</q1:productName>
  </q1:DeviceIdentity>
  <q1:DeviceFunction />
  <q1:ApplicationProcess><q1:parameterList>
    <q1:parameter uniqueID="UID_OBJ_1000"><label lang="en"/><UDINT /><q1:defaultValue value="0x191" /></q1:parameter>
    <q1:parameter uniqueID="UID_SUB_101801" access="const"><ULINT /><q1:allowedValues><q1:range><q1:minValue value="1"/><q1:maxValue value="2"/></q1:range></q1:allowedValues></q1:parameter>
  </q1:parameterList></q1:ApplicationProcess>
)" + end + header("CommunicationNetwork")
               + R"(<ProfileBody fileName="n" fileCreator="c" fileCreationDate="2020-11-28" fileVersion="1"><ApplicationLayers><CANopenObjectList>
  <CANopenObject index="1000" name="a" objectType="7" PDOmapping="no" uniqueIDRef="UID_OBJ_1000" />
  <CANopenObject index="1018" name="b" objectType="9" subNumber="1">
    <CANopenSubObject subIndex="01" objectType="7" PDOmapping="no" uniqueIDRef="UID_SUB_101801" />
  </CANopenObject>
</CANopenObjectList></ApplicationLayers>)"
               + rates + end + "</ISO15745ProfileContainer>\n"
        << QStringList{
               QStringLiteral("1000/7/ro/0x191//"), QStringLiteral("1018/0/_invalid_///"),
               QStringLiteral("1/27/const//1/2")};
    QTest::newRow("hand-written") << QByteArray(
        "<ISO15745ProfileContainer><ISO15745Profile><ProfileHeader><ProfileClassID> device "
        "</ProfileClassID></ProfileHeader><ProfileBody "
        "type='ProfileBody_Device_CANopen'><DeviceIdentity/></ProfileBody>"
        "</ISO15745Profile><ISO15745Profile><ProfileHeader/><ProfileBody "
        "type='ProfileBody_CommunicationNetwork_CANopen'><ApplicationLayers>"
        "<CANopenObjectList><CANopenObject index='2000' objectType='07' dataType='8' accessType='Rw' "
        "lowLimit='-1.5'/></CANopenObjectList></ApplicationLayers>"
        "</ProfileBody></ISO15745Profile></ISO15745ProfileContainer>")
                                  << QStringList{QStringLiteral("2000/8/rw//-1.5/")};
}

void TestXddnormalize::foreignHabits()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, entries);
    QVERIFY(!loadError(text).isEmpty());
    const QByteArray copy = normalized(text).bytes;
    QCOMPARE(normalized(copy).bytes, copy);
    QCOMPARE(copy.count("\r\n") > 0, text.count("\r\n") > 0);
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QString error;
    QVERIFY2(loadDescription(*reader, copy, error), qPrintable(error + QString::fromUtf8(copy)));
    QStringList found;
    const auto add = [&found](const CCanOpenSubObject& entry) {
        found << QStringLiteral("%1/%2/%3/%4/%5/%6")
                     .arg(
                         QString::number(entry.mIndex, 16), QString::number(entry.mDataType),
                         CCanOpenSubObject::accessTypeAsStr(entry.mAccessType), entry.mDefaultValue, entry.mLowLimit,
                         entry.mHighLimit);
    };
    for (const CCanOpenObject& object : reader->getObjList()) {
        add(object);
        for (const CCanOpenSubObject& subObject : object.mSubObjects) {
            add(subObject);
        }
    }
    QCOMPARE(found, entries);
    QVERIFY(!reader->networkProfile().mSupportedBaudRates.isEmpty());
}

// Added elements look like their surroundings.
void TestXddnormalize::layout_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("indented") << QByteArray("\n  <p:DeviceFunction />\n") << QByteArray(R"(
  <p:DeviceFunction>
    <p:capabilities>
      <p:characteristicsList>
        <p:characteristic>
          <p:characteristicName>
            <p:label lang="en"/>
          </p:characteristicName>
          <p:characteristicContent>
            <p:label lang="en"/>
          </p:characteristicContent>
        </p:characteristic>
      </p:characteristicsList>
    </p:capabilities>
  </p:DeviceFunction>
)");
    QTest::newRow("on one line")
        << QByteArray("<p:a/><p:DeviceFunction><!-- --><p:capabilities></p:capabilities></p:DeviceFunction>")
        << QByteArray("<p:a/><p:DeviceFunction><!-- "
                      "--><p:capabilities><p:characteristicsList><p:characteristic><p:characteristicName><p:label "
                      "lang=\"en\"/>"
                      "</p:characteristicName><p:characteristicContent><p:label "
                      "lang=\"en\"/></p:characteristicContent></p:characteristic></p:characteristicsList>"
                      "</p:capabilities></p:DeviceFunction>");
}

void TestXddnormalize::layout()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QByteArray normal = changed(normalDescription(), "xmlns=\"urn:profile\"", "xmlns=\"u\" xmlns:p=\"u\"");
    const int begin = normal.indexOf("<DeviceFunction>");
    const QByteArray function = normal.mid(begin, normal.indexOf("</DeviceFunction>") + 17 - begin);
    QCOMPARE(normalized(changed(normal, function, before)).bytes, changed(normal, function, after));
}

// The bytes of every encoding come back, with what was added in the same encoding.
void TestXddnormalize::encodings()
{
    const QByteArray normal = changed(normalDescription(), ">Vendor<", ">V\xC3\xA4ndor<");
    const QByteArray foreign = changed(normal, "<vendorName readOnly=\"true\">", "<vendorName>");
    for (const char* name : {"UTF-8", "ISO-8859-1", "UTF-16", "UTF-16LE", "windows-1252"}) {
        QTextCodec* const codec = QTextCodec::codecForName(name);
        const auto encoded = [&](const QByteArray& text) {
            return codec->fromUnicode(
                QString::fromUtf8(changed(text, "encoding=\"UTF-8\"", QByteArray("encoding=\"") + name + '"')));
        };
        if (qstrcmp(name, "UTF-16LE") != 0) { // Without a byte order mark nobody can tell
            QCOMPARE(normalized(encoded(foreign)).bytes, encoded(normal));
        }
        QCOMPARE(normalized("\xEF\xBB\xBF" + foreign).bytes, "\xEF\xBB\xBF" + normal);
    }
}

void TestXddnormalize::samples()
{
    const auto sample = [](const char* name) {
        QFile file(QStringLiteral(":/mvxIso15745Xml/xml/") + QString::fromLatin1(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray lean = sample("NLV7315602_i.xdd");
    QCOMPARE(normalized(lean).bytes, lean);
    const SNormalizedDescription full = normalized(sample("NLV7315602_v.xdd"));
    QCOMPARE(full.changes.size(), 24);
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QString error;
    QVERIFY(loadDescription(*reader, full.bytes, error));
    const CCanOpenObject output = reader->getObj(0x2018);
    QCOMPARE(output.mDefaultValue + output.mLowLimit + output.mHighLimit, QStringLiteral("0010000"));
    QCOMPARE(output.mAccessType, CCanOpenSubObject::OBJ_ACCESS_RW);
}

void TestXddnormalize::endings_data()
{
    QTest::addColumn<QString>("arguments"); // %1 stands for a foreign description, %2 for one that never loads
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("messages");
    const auto row = [](const char* arguments, int status, const char* messages) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments) << status << QString::fromLatin1(messages);
    };
    const char* const report = "%1:21: readOnly=\"true\" of <vendorName> supplied, the format's default where the "
                               "attribute is absent\n%1: 1 changes\n";
    row("%1", 0, report);
    row("--dry-run %1", 0, report);
    row("--quiet %1", 0, "");
    row("--quiet %2", 1,
        "xddnormalize: %2: It still does not load: Error while parsing TAG <CANopenObject> in line %3 : Attribute "
        "\"objectType\" is missing.\n");
    row("absent", 1, "xddnormalize: absent: No such file or directory\n");
    row("-o %1 %1", 2,
        "xddnormalize: %1 would be overwritten; --in-place does that.\nxddnormalize: Try 'xddnormalize --help'.\n");
    row("%1 %2", 2,
        "xddnormalize: Several files need --output-dir or --in-place.\nxddnormalize: Try 'xddnormalize --help'.\n");
    row("", 2, "xddnormalize: No file is named.\nxddnormalize: Try 'xddnormalize --help'.\n");
    row("--quiet -o /dev/full %1", 1, "xddnormalize: /dev/full: Cannot write: No space left on device*");
}

void TestXddnormalize::endings()
{
    QFETCH(QString, arguments);
    QFETCH(int, status);
    QFETCH(QString, messages);
    const QTemporaryDir folder;
    const auto file = [&folder](const char* name, const QByteArray& text) {
        QFile created(folder.filePath(QString::fromLatin1(name)));
        if (!created.open(QIODevice::WriteOnly) || created.write(text) != text.size()) {
            qFatal("No temporary file");
        }
        return created.fileName();
    };
    const QByteArray normal = normalDescription();
    const QString foreign = file("f.xdd", changed(normal, "<vendorName readOnly=\"true\">", "<vendorName>"));
    const QString hopeless = file("h.xdd", changed(normal, "name=\"last\" objectType=\"7\"", "name=\"last\""));
    const auto filled = [&](QString text) {
        return text.replace(QLatin1String("%1"), foreign)
            .replace(QLatin1String("%2"), hopeless)
            .replace(
                QLatin1String("%3"), QString::number(normal.left(normal.indexOf("name=\"last\"")).count('\n') + 1));
    };
    QProcess process;
    process.start(QStringLiteral(XDDNORMALIZE), filled(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QVERIFY(process.waitForFinished());
    const QString printed = QString::fromUtf8(process.readAllStandardError());
    const QString expected = filled(messages);
    if (expected.endsWith(QLatin1Char('*'))) {
        QVERIFY2(printed.startsWith(expected.chopped(1)), qPrintable(printed));
    } else {
        QCOMPARE(printed, expected);
    }
    QCOMPARE(process.exitCode(), status);
    const bool copied = arguments == QLatin1String("%1") || arguments == QLatin1String("--quiet %1");
    const bool copiedHopeless = arguments == QLatin1String("--quiet %2");
    QCOMPARE(process.readAllStandardOutput().size() > 0, copied || copiedHopeless);
}

void TestXddnormalize::destinations()
{
    const QTemporaryDir folder;
    const QByteArray normal = normalDescription();
    const auto path = [&folder](const char* name) {
        return folder.filePath(QString::fromLatin1(name));
    };
    const auto content = [](const QString& name) {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    QFile foreign(path("f.xdd"));
    QVERIFY(foreign.open(QIODevice::WriteOnly));
    foreign.write(changed(normal, "<vendorName readOnly=\"true\">", "<vendorName>"));
    foreign.close();
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("out")));
    const auto run = [](const QStringList& arguments) {
        return QProcess::execute(QStringLiteral(XDDNORMALIZE), QStringList{QStringLiteral("--quiet")} + arguments);
    };
    QCOMPARE(run({QStringLiteral("-o"), path("copy.xdd"), path("f.xdd")}), 0);
    QCOMPARE(content(path("copy.xdd")), normal);
    QCOMPARE(run({QStringLiteral("--output-dir"), path("out"), path("f.xdd")}), 0);
    QCOMPARE(content(path("out/f.xdd")), normal);
    QCOMPARE(run({QStringLiteral("--in-place"), path("f.xdd")}), 0);
    QCOMPARE(content(path("f.xdd")), normal);
}

QTEST_GUILESS_MAIN(TestXddnormalize)
#include "tst_xddnormalize.moc"
