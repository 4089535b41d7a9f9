#include "Description.h"

#include <CXddComparison.h>
#include <CXddEdsWriter.h>

#include <QtTest>

/*
 * Plants one change after the other into a description in each form that there is, and expects exactly the rule that
 * it is at exactly that entry. What the changes say is compared in tests/data/diff.
 */
class TestComparison : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void planted_data();
    void planted();
    void everyRule();
    void revisions();
    void writings_data();
    void writings();
    void formats();
    void notOpen();
};

namespace
{
const QString NOT_RAISED = QStringLiteral("revision-not-raised");

// The rules that were planted so far.
QSet<QString>& planted()
{
    static QSet<QString> rules = {NOT_RAISED};
    return rules;
}

const QStringList FORMS = {QStringLiteral("xdd"), QStringLiteral("xdc"), QStringLiteral("eds"), QStringLiteral("dcf")};

QByteArray baseXdd()
{
    QByteArray text = testData(QStringLiteral("bus.xdd"));
    text = changed(
        text, "defaultValue=\"0x20060010\" PDOmapping=\"no\"/>\n",
        "defaultValue=\"0x20060010\" PDOmapping=\"no\"/>\n<CANopenSubObject subIndex=\"03\" name=\"Entry 3\" "
        "objectType=\"7\" dataType=\"0007\" accessType=\"rw\" defaultValue=\"0x20030001\" PDOmapping=\"no\"/>\n");
    text = changed(
        text, "defaultValue=\"0x2A\" PDOmapping=\"no\"/>\n",
        "defaultValue=\"0x2A\" PDOmapping=\"no\"/>\n<CANopenSubObject subIndex=\"03\" name=\"Revision\" "
        "objectType=\"7\" dataType=\"0007\" accessType=\"ro\" defaultValue=\"7\" PDOmapping=\"no\"/>\n");
    text = changed(
        text, "<CANopenObject index=\"2007\"",
        "<CANopenObject index=\"2010\" name=\"Gain\" objectType=\"7\" dataType=\"0006\" accessType=\"rw\" "
        "lowLimit=\"1\" highLimit=\"90\" defaultValue=\"5\" PDOmapping=\"no\"/>\n<CANopenObject index=\"2007\"");
    return changed(
        text, "<supportedBaudRate value=\"125 Kbps\"/>",
        "<supportedBaudRate value=\"125 Kbps\"/>\n"
        "<supportedBaudRate value=\"500 Kbps\"/>");
}

QByteArray baseOf(const QString& form)
{
    const QByteArray xdd = baseXdd();
    if (form == QLatin1String("xdc")) {
        return changed(xdd, "dataType=\"000C\"", "dataType=\"000C\" actualValue=\"1\"");
    }
    const CXddDocument document = CXddDocument::open(xdd);
    CXddCommissioning node;
    node.mNodeId = 5;
    return form == QLatin1String("xdd")   ? xdd
           : form == QLatin1String("eds") ? CXddEdsWriter::write(document).mText
                                          : CXddEdsWriter::writeDcf(document, node).mText;
}

bool isIni(const QString& form)
{
    return form == QLatin1String("eds") || form == QLatin1String("dcf");
}

// Where an entry begins and ends in a text.
std::pair<int, int> placeOf(const QByteArray& text, const CXddEntry& entry)
{
    if (text.startsWith('[')) {
        QByteArray section = '[' + QByteArray::number(entry.mIndex, 16).toUpper();
        section += entry.mSubIndex ? "sub" + QByteArray::number(*entry.mSubIndex, 16).toUpper() + ']' : "]";
        const int begin = int(text.indexOf(section));
        const int end = int(text.indexOf("\r\n[", begin));
        return {begin, end < 0 ? int(text.size()) : end + 2};
    }
    const QByteArray index = QByteArray::number(entry.mIndex, 16).toUpper();
    int begin = int(text.indexOf("<CANopenObject index=\"" + index + '"'));
    if (entry.mSubIndex) {
        const QByteArray subIndex = QByteArray::number(*entry.mSubIndex, 16).toUpper().rightJustified(2, '0');
        begin = int(text.indexOf("<CANopenSubObject subIndex=\"" + subIndex + '"', begin));
    }
    return {begin, int(text.indexOf('>', begin)) + 1};
}

// The text with another value of an attribute, or key, of an entry.
QByteArray edited(const QByteArray& text, const CXddEntry& entry, const QByteArray& attribute, const QByteArray& value)
{
    static const QMap<QByteArray, QByteArray> keys = {
        {"name", "ParameterName"},        {"objectType", "ObjectType"},      {"dataType", "DataType"},
        {"lowLimit", "LowLimit"},         {"highLimit", "HighLimit"},        {"accessType", "AccessType"},
        {"defaultValue", "DefaultValue"}, {"actualValue", "ParameterValue"}, {"PDOmapping", "PDOMapping"},
        {"objFlags", "ObjFlags"}};
    const auto [begin, end] = placeOf(text, entry);
    QByteArray part = text.mid(begin, end - begin);
    const bool isKey = text.startsWith('[');
    const QByteArray start = isKey ? "\r\n" + keys.value(attribute) + '=' : ' ' + attribute + "=\"";
    const int from = int(part.indexOf(start));
    if (from >= 0) {
        const int valueAt = from + int(start.size());
        part.replace(valueAt, int(part.indexOf(isKey ? '\r' : '"', valueAt)) - valueAt, value);
    } else if (isKey) {
        part.insert(part.indexOf("\r\n"), start + value);
    } else {
        part.insert(part.indexOf(' '), start + value + '"');
    }
    return text.left(begin) + part + text.mid(end);
}

QByteArray withoutEntry(const QByteArray& text, const CXddEntry& entry)
{
    auto [begin, end] = placeOf(text, entry);
    if (!text.startsWith('[') && text[end - 2] != '/') {
        end = int(text.indexOf("</CANopenObject>", end)) + 16;
    }
    return text.left(begin) + text.mid(end);
}

// "type-widened 0x2001"
QStringList found(const QByteArray& old, const QByteArray& now)
{
    QStringList lines;
    for (const CXddChange& change :
         CXddComparison::compare(CXddDocument::open(old), CXddDocument::open(now)).mChanges) {
        if (change.mRule != NOT_RAISED) {
            lines << (change.mRule + QLatin1Char(' ') + change.entry()).trimmed();
        }
    }
    return lines;
}

// Which change of a default value of an entry is planted, and which rule it is.
QList<QPair<QByteArray, QString>> defaultsOf(const CXddEntry& entry, const QList<CXddPdo>& pdos)
{
    const unsigned int index = entry.mIndex;
    const unsigned int subIndex = entry.mSubIndex.value_or(0);
    const QString address = entry.address();
    for (const CXddPdo& pdo : pdos) {
        const auto rule = [&](const char* active) {
            return QLatin1String(pdo.mIsEnabled ? active : "pdo-inactive") + QLatin1Char(' ');
        };
        if (index == pdo.communicationIndex() && subIndex > 0) {
            switch (subIndex) {
            case 1:
                return {
                    {"$NODEID+0x400004F0",
                     pdo.mIsEnabled ? rule("pdo-cob-id") + address : QStringLiteral("pdo-enabled ") + address},
                    {"$NODEID+0x80000180", pdo.mIsEnabled ? QStringLiteral("pdo-disabled ") + address
                                                          : QStringLiteral("pdo-inactive ") + address}};
            case 2:
                return {
                    {"254", rule(pdo.mTransmissionType == 2U ? "pdo-transmission" : "pdo-timing") + address},
                    {"240", rule(pdo.mTransmissionType == 2U ? "pdo-timing" : "pdo-transmission") + address}};
            default:
                return {{"77", rule("pdo-timing") + address}};
            }
        }
        const QString mapping = QStringLiteral("0x%1")
                                    .arg(pdo.mappingIndex(), 0, 16)
                                    .toUpper()
                                    .replace(QLatin1String("0X"), QLatin1String("0x"));
        if (index == pdo.mappingIndex() && subIndex > unsigned(pdo.mFields.size())) {
            return {{"0x20070030", QStringLiteral("default-changed ") + address}};
        }
        if (index == pdo.mappingIndex() && !pdo.mFields.isEmpty()) {
            return subIndex > 0 ? QList<QPair<QByteArray, QString>>{{"0x20070030", rule("pdo-layout") + mapping}}
                                : QList<QPair<QByteArray, QString>>{{"0", rule("pdo-layout") + mapping}};
        }
    }
    static const QMap<QString, QString> special = {
        {QStringLiteral("0x1000"), QStringLiteral("device-type")},
        {QStringLiteral("0x1005"), QStringLiteral("cob-id-changed")},
        {QStringLiteral("0x1014"), QStringLiteral("cob-id-changed")},
        {QStringLiteral("0x1018:01"), QStringLiteral("identity-changed")},
        {QStringLiteral("0x1018:03"), QStringLiteral("revision-changed")}};
    if (address == QLatin1String("0x1017")) {
        return {{"0", QStringLiteral("heartbeat-off 0x1017")}, {"7", QStringLiteral("default-changed 0x1017")}};
    }
    const bool isCount = entry.mSubIndex == 0U && entry.mAccessType == CCanOpenSubObject::OBJ_ACCESS_RO;
    const bool isGiven = entry.mDefaultValue.isGiven();
    const QString rule = special.value(address, QLatin1String(isCount ? "sub-count" : "default-changed"));
    return {{"9", (isGiven ? rule : QStringLiteral("default-changed")) + QLatin1Char(' ') + address}};
}

// An attribute, its new value and what that is.
struct SPlant
{
    QByteArray attribute;
    QByteArray value;
    QString expected;
};

QList<SPlant> plantsOf(const CXddEntry& entry, const QString& form, const QList<CXddPdo>& pdos)
{
    QList<SPlant> plants;
    const auto plant = [&plants, &entry](const char* attribute, const QByteArray& value, const char* rule) {
        plants << SPlant{attribute, value, QLatin1String(rule) + QLatin1Char(' ') + entry.address()};
    };
    plant("name", "Other name", "name-changed");
    plant("objFlags", isIni(form) ? "3" : "0003", "flags-changed");
    if (!entry.isVariable()) {
        return plants;
    }
    const auto type = [&form](const char* digits) {
        return (isIni(form) ? QByteArray("0x") : QByteArray()) + digits;
    };
    const bool isByte = entry.mDataType == 5;
    const bool isNumber = isByte || entry.mDataType == 6 || entry.mDataType == 7 || entry.mDataType == 0x1B;
    plant(
        "dataType", type(isByte ? "0007" : "0005"),
        !isNumber ? "type-changed"
        : isByte  ? "type-widened"
                  : "type-narrowed");
    if (entry.mPdoMapping == CCanOpenSubObject::OBJ_MAP_NO) {
        const bool isReadWrite = entry.mAccessType == CCanOpenSubObject::OBJ_ACCESS_RW;
        plant("accessType", isReadWrite ? "ro" : "rw", isReadWrite ? "access-narrowed" : "access-widened");
        plant("accessType", "const", isReadWrite ? "access-narrowed" : "access-constant");
        plant("PDOmapping", isIni(form) ? "1" : "optional", "pdo-mapping-gained");
    } else {
        plant("PDOmapping", isIni(form) ? "0" : "no", "pdo-mapping-lost");
    }
    for (const auto& [value, expected] : defaultsOf(entry, pdos)) {
        plants << SPlant{"defaultValue", value, expected};
    }
    if (entry.mHighLimit.isGiven()) {
        const bool isReadOnly = entry.mAccessType == CCanOpenSubObject::OBJ_ACCESS_RO;
        plant("highLimit", "50", isReadOnly ? "limits-changed" : "limits-narrowed");
        plant("highLimit", "2002", isReadOnly ? "limits-changed" : "limits-widened");
    }
    if (entry.mIndex >= 0x2000 && (form == QLatin1String("dcf") || form == QLatin1String("xdc"))) {
        plant("actualValue", "2", "actual-value");
    }
    return plants;
}

void addRow(const QString& name, const QByteArray& old, const QByteArray& now, const QString& expected)
{
    QTest::newRow(qPrintable(name)) << old << now << QStringList{expected};
}

// What stands at no entry, or is written in one form only.
void addReplacements(const QString& form, const QByteArray& base)
{
    struct SRow
    {
        bool isXml;
        QByteArray before;
        QByteArray after;
        const char* expected;
    };
    const QList<SRow> rows = {
        {true, "<vendorName>Works", "<vendorName>Plant", "text-changed"},
        {true, "0x0000002A</vendorID>", "0x0000002B</vendorID>", "identity-changed"},
        {true, "<productID>7", "<productID>8", "identity-changed"},
        {true, "<supportedBaudRate value=\"125 Kbps\"/>", "", "bit-rate-removed"},
        {true, "<supportedBaudRate value=\"125 Kbps\"/>",
         "<supportedBaudRate value=\"125 Kbps\"/><supportedBaudRate value=\"100 Kbps\"/>", "bit-rate-added"},
        {true, "defaultValue=\"125 Kbps\"", "defaultValue=\"500 Kbps\"", "bit-rate-default"},
        {true, "bootUpSlave=\"true\"", "bootUpSlave=\"false\"", "feature-lost"},
        {true, "granularity=\"1\"", "granularity=\"8\"", "feature-lost"},
        {true, "nrOfTxPDO=\"4\"", "nrOfTxPDO=\"5\"", "feature-gained"},
        {true, "Dummy0005=1", "Dummy0005=0", "feature-lost"},
        {true, "fileVersion=\"1\"", "fileVersion=\"2\"", "file-changed"},
        {true, ">rpm<", ">Hz<", "unit-changed 0x2000"},
        {true, "multiplier=\"0.1\"", "multiplier=\"0.01\"", "unit-changed 0x2000"},
        {true, ">Speed of the shaft<", ">Speed<", "text-changed 0x2000"},
        {true, "<enumValue value=\"0x1\">", "<enumValue value=\"2\">", "values-narrowed 0x2001"},
        {true, "</enum>", "<enumValue value=\"2\"/></enum>", "values-widened 0x2001"},
        {true, ">On<", ">Running<", "text-changed 0x2001"},
        {false, "VendorName=Works", "VendorName=Plant", "text-changed"},
        {false, "VendorNumber=0x2A", "VendorNumber=0x2B", "identity-changed"},
        {false, "BaudRate_500=1", "BaudRate_500=0", "bit-rate-removed"},
        {false, "BaudRate_800=0", "BaudRate_800=1", "bit-rate-added"},
        {false, "LSS_Supported=0", "LSS_Supported=1", "feature-gained"},
        {false, "SimpleBootUpSlave=1", "SimpleBootUpSlave=0", "feature-lost"},
        {false, "FileName=bus", "FileName=car", "file-changed"},
        {false, "10=0x2010\r\n", "", "list-changed 0x2010"},
        {false, "NodeID=5", "NodeID=6", "commissioning-changed"},
    };
    for (const SRow& row : rows) {
        if (row.isXml != isIni(form) && base.contains(row.before)) {
            const QString name =
                form + QLatin1Char(' ') + QString::fromUtf8(row.after.isEmpty() ? row.before : row.after);
            addRow(name, base, QByteArray(base).replace(row.before, row.after), QLatin1String(row.expected));
        }
    }
}
} // namespace

void TestComparison::planted_data()
{
    QTest::addColumn<QByteArray>("old");
    QTest::addColumn<QByteArray>("now");
    QTest::addColumn<QStringList>("expected");
    for (const QString& form : FORMS) {
        const QByteArray base = baseOf(form);
        const CXddDocument document = CXddDocument::open(base);
        QVERIFY(document.isOpen());
        const QList<CXddPdo> pdos = document.pdos();
        addReplacements(form, base);
        for (const CXddEntry& entry : document.entries()) {
            const QString name = form + QLatin1Char(' ') + entry.address() + QLatin1Char(' ');
            for (const SPlant& plant : plantsOf(entry, form, pdos)) {
                const QByteArray text = edited(base, entry, plant.attribute, plant.value);
                addRow(name + QString::fromLatin1(plant.attribute + '=' + plant.value), base, text, plant.expected);
            }
            if (entry.mIndex >= 0x2000 && (entry.mSubIndex || entry.isVariable())) {
                const QByteArray text = withoutEntry(base, entry);
                addRow(name + QLatin1String("is gone"), base, text, QLatin1String("entry-removed ") + entry.address());
                addRow(name + QLatin1String("is new"), text, base, QLatin1String("entry-added ") + entry.address());
            }
        }
        const CXddEntry count = document.entry(0x1A01, 0);
        addRow(
            form + QLatin1String(" extended"), base, edited(base, count, "defaultValue", "3"),
            QStringLiteral("pdo-extended 0x1A01"));
        const CXddEntry object = document.entry(0x2004);
        addRow(
            form + QLatin1String(" code"), base, edited(base, object, "objectType", isIni(form) ? "0x7" : "7"),
            QStringLiteral("object-code 0x2004"));
    }
}

void TestComparison::planted()
{
    QFETCH(QByteArray, old);
    QFETCH(QByteArray, now);
    QFETCH(QStringList, expected);
    QVERIFY(old != now);
    ::planted() << expected.value(0).section(QLatin1Char(' '), 0, 0);
    QCOMPARE(found(old, now), expected);
}

void TestComparison::everyRule()
{
    QSet<QString> rules;
    for (const CXddRule& rule : CXddComparison::rules()) {
        rules << rule.mId;
    }
    QCOMPARE(::planted(), rules);
}

// What is broken without a higher revision is said.
void TestComparison::revisions()
{
    for (const QString& form : FORMS) {
        const QByteArray base = baseOf(form);
        QByteArray raised = QByteArray(base).replace("fileVersion=\"1\"", "fileVersion=\"1.1\"");
        raised.replace("FileRevision=0", "FileRevision=1");
        const CXddDocument old = CXddDocument::open(base);
        const CXddEntry entry = old.entry(0x2010);
        const auto breaks = [&](const QByteArray& text) {
            return CXddComparison::compare(old, CXddDocument::open(edited(text, entry, "accessType", "ro")));
        };
        const auto isSaid = [](const CXddComparison& comparison) {
            return std::any_of(comparison.mChanges.begin(), comparison.mChanges.end(), [](const CXddChange& change) {
                return change.mRule == NOT_RAISED;
            });
        };
        QVERIFY(isSaid(breaks(base)) && !breaks(base).mIsRevisionRaised);
        QVERIFY(!isSaid(breaks(raised)) && breaks(raised).mIsRevisionRaised);
    }
}

void TestComparison::writings_data()
{
    QTest::addColumn<QByteArray>("old");
    QTest::addColumn<QByteArray>("now");
    const QByteArray xdd = baseXdd();
    const QByteArray eds = baseOf(QStringLiteral("eds"));
    QTest::newRow("the same") << xdd << xdd;
    QTest::newRow("numbers") << xdd
                             << QByteArray(xdd).replace("\"0x7D0\"", "\"2000\"").replace("\"10000\"", "\"0x2710\"");
    QTest::newRow("signs") << xdd << QByteArray(xdd).replace("\"-1000\"", "\"0xFFFFFC18\"");
    QTest::newRow("node-ID") << xdd << QByteArray(xdd).replace("$NODEID+0x80", "0x80 + $nodeid");
    QTest::newRow("ends of the type") << xdd << changed(xdd, "name=\"Way\"", "name=\"Way\" lowLimit=\"-32768\"");
    QTest::newRow("comments") << xdd << QByteArray(xdd).replace("<identity>", "<!-- x --><identity>");
    QTest::newRow("line ends") << xdd << QByteArray(xdd).replace("\n", "\r\n");
    QTest::newRow("EDS numbers") << eds << QByteArray(eds).replace("DefaultValue=0x2710", "DefaultValue=10000");
    QTest::newRow("EDS octal") << eds << QByteArray(eds).replace("DefaultValue=5\r", "DefaultValue=05\r");
    QTest::newRow("EDS words") << eds << QByteArray(eds).replace("AccessType=ro", "accesstype=RO");
    QTest::newRow("EDS line ends") << eds << QByteArray(eds).replace("\r\n", "\n");
}

// How something is written means nothing.
void TestComparison::writings()
{
    QFETCH(QByteArray, old);
    QFETCH(QByteArray, now);
    QCOMPARE(found(old, now), QStringList());
    QCOMPARE(found(now, old), QStringList());
}

// What an EDS cannot say is no change, in no direction.
void TestComparison::formats()
{
    const QByteArray xdd = baseXdd();
    for (const QString& form : FORMS) {
        const QByteArray text = baseOf(form);
        QCOMPARE(
            found(xdd, text),
            form == QLatin1String("xdc") ? QStringList{QStringLiteral("actual-value 0x2007")} : QStringList());
        QCOMPARE(
            found(text, xdd),
            form == QLatin1String("xdc") ? QStringList{QStringLiteral("actual-value 0x2007")} : QStringList());
    }
}

void TestComparison::notOpen()
{
    const CXddDocument closed = CXddDocument::open("<a");
    const CXddDocument document = CXddDocument::open(baseXdd());
    for (const CXddComparison& comparison :
         {CXddComparison::compare(closed, document), CXddComparison::compare(document, closed),
          CXddComparison::compare(closed, CXddDocument())}) {
        QVERIFY(!comparison.mIsOpen);
        QVERIFY(comparison.mChanges.isEmpty());
    }
}

QTEST_GUILESS_MAIN(TestComparison)
#include "tst_comparison.moc"
