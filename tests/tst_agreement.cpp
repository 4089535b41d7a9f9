#include "Description.h"

#include <CCanOpenNames.h>
#include <CXddChecker.h>
#include <CXddDbcWriter.h>
#include <CXddEdsWriter.h>
#include <CXddNormalizer.h>
#include <CXddPage.h>

#include <QtTest>

#include <memory>

// All that is made of one description says the same of the same entry: the records, the EDS, the PDOs, the findings.
class TestAgreement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entries_data();
    void entries();
    void pdos_data();
    void pdos();
    void findings_data();
    void findings();
    void notOpen_data();
    void notOpen();
};

Q_DECLARE_METATYPE(CXddDocument)

namespace
{
void descriptions()
{
    QTest::addColumn<QByteArray>("text");
    for (const char* const name : {"sound.xdd", "everything.xdd", "foreign.xdd", "many.xdd", "sound.eds"}) {
        QTest::newRow(name) << testData(QString::fromLatin1(name));
    }
    for (const char* const name : {"NLV7315602_v.xdd", "NLV7315602_i.xdd"}) {
        QTest::newRow(name)
            << CXddDocument::openFile(QStringLiteral(":/mvxIso15745Xml/xml/") + QString::fromLatin1(name)).bytes();
    }
}

std::unique_ptr<ICIso15745> readerOf(const CXddDocument& document)
{
    std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QList<CXddRemark> remarks;
    CXddRemark failure;
    if (!CXddNormalizer::load(document, *reader, remarks, failure)) {
        qFatal("%s", qPrintable(failure.text()));
    }
    return reader;
}

// A number as it is meant, "$NODEID" first; any other text as it is.
QString meant(const QString& text, unsigned int dataType)
{
    static const QRegularExpression sum(QStringLiteral("^(?:(.+)\\+)?(\\$NODEID)(?:\\+(.+))?$"));
    const QString plain = text.simplified().remove(QLatin1Char(' ')).toUpper();
    const QRegularExpressionMatch match = sum.match(plain);
    const QString number = match.hasMatch() ? match.captured(1) + match.captured(3) : plain;
    const bool isPattern = number.startsWith(QLatin1String("0X"));
    bool ok = false;
    qlonglong value = number.toLongLong(&ok, isPattern ? 16 : 10);
    if (!ok && isPattern) {
        value = static_cast<qlonglong>(number.toULongLong(&ok, 16));
    }
    const QMap<unsigned int, int> signedBits = {{2, 8},     {3, 16},    {4, 32},   {0x10, 24},
                                                {0x12, 40}, {0x13, 48}, {0x14, 56}};
    const int bits = signedBits.value(dataType);
    if (isPattern && bits != 0 && value >> unsigned(bits - 1) == 1) {
        value -= qlonglong(1) << unsigned(bits);
    }
    if (dataType == 1 && (plain == QLatin1String("TRUE") || plain == QLatin1String("FALSE"))) {
        return plain == QLatin1String("TRUE") ? QStringLiteral("1") : QStringLiteral("0");
    }
    return ok ? match.captured(2) + QString::number(value) : text.trimmed();
}

// What an INI form can say of an entry. An array or record has no type, access, mapping and values of its own there.
QString said(const CCanOpenSubObject& entry)
{
    using Entry = CCanOpenSubObject;
    QStringList fields = {
        entry.mName.trimmed(), QString::number(entry.mObjectType), QString::number(entry.mObjFlags),
        entry.mDenotation.trimmed()};
    if (entry.mObjectType != 8 && entry.mObjectType != 9) {
        const bool isMapped = entry.mPdoMapping != Entry::OBJ_MAP_NO && entry.mPdoMapping != Entry::OBJ_MAP_INVALID;
        fields << QString::number(entry.mDataType) << Entry::accessTypeAsStr(entry.mAccessType)
               << QString::number(int(isMapped));
        for (const QString& value : {entry.mDefaultValue, entry.mActualValue, entry.mLowLimit, entry.mHighLimit}) {
            fields << meant(value, entry.mDataType);
        }
    }
    return fields.join(QLatin1Char('|'));
}

// The entries of a description but for those that are left out, each with what is said of it.
QStringList entriesOf(const CXddDocument& document, const QSet<QString>& without)
{
    QStringList entries;
    const auto add = [&](const QString& name, const CCanOpenSubObject& entry) {
        if (!without.contains(name)) {
            entries << name + QLatin1Char(' ') + said(entry);
        }
    };
    for (const CCanOpenObject& object : readerOf(document)->getObjList()) {
        add(CCanOpenNames::entry(object.mIndex), object);
        for (const CCanOpenSubObject& subObject : object.mSubObjects) {
            if (!without.contains(CCanOpenNames::entry(object.mIndex))) {
                add(CCanOpenNames::entry(object.mIndex, subObject.mIndex), subObject);
            }
        }
    }
    return entries;
}

QStringList shown(const QList<CXddPdo>& pdos)
{
    QStringList lines;
    for (const CXddPdo& pdo : pdos) {
        QStringList fields;
        for (const CXddPdoField& field : pdo.mFields) {
            fields << QStringLiteral("%1 %2 %3").arg(field.entry(), QString::number(field.mBits), field.rangeText());
        }
        lines << QStringLiteral("%1 %2 %3 %4: %5")
                     .arg(
                         pdo.name(), pdo.canIdText(), QString::number(int(pdo.mIsEnabled)), pdo.transmissionText(),
                         fields.join(QLatin1String(", ")));
    }
    return lines;
}
} // namespace

void TestAgreement::entries_data()
{
    descriptions();
}

// A DCF says of every entry what the description says of it, but for what is reported as lost. It is clean, and the
// same when it is read and written again; so is an EDS.
void TestAgreement::entries()
{
    QFETCH(QByteArray, text);
    const CXddDocument document = CXddDocument::open(text);
    CXddCommissioning node;
    node.mNodeId = 5;
    node.mNodeName = QStringLiteral("Left");
    node.mBaudrate = CNetworkCanOpenProfile::BAUD_500_KBPS;
    node.mNetworkNumber = 3;
    node.mNetworkName = QStringLiteral("Line");
    node.mIsManager = true;
    const CXddEds dcf = CXddEdsWriter::writeDcf(document, node);
    const CXddDocument read = CXddDocument::open(dcf.mText);
    QSet<QString> lost;
    for (const CXddRemark& loss : dcf.mLosses) {
        lost << loss.entry();
    }
    QCOMPARE(entriesOf(read, lost), entriesOf(document, lost));
    QVERIFY(!entriesOf(read, lost).isEmpty());
    QCOMPARE(read.form(), CXddDevice::FORM_DCF);
    QCOMPARE(read.remarks().size(), 0);
    QCOMPARE(CXddEdsWriter::writeDcf(read, read.device().mCommissioning).mText, dcf.mText);

    const QByteArray eds = CXddEdsWriter::write(document).mText;
    const CXddDocument readEds = CXddDocument::open(eds);
    QCOMPARE(readEds.form(), CXddDevice::FORM_EDS);
    QCOMPARE(CXddEdsWriter::write(readEds).mText, eds);
}

void TestAgreement::pdos_data()
{
    descriptions();
}

// Those of a description and those of the DCF that is written of it.
void TestAgreement::pdos()
{
    QFETCH(QByteArray, text);
    const CXddDocument document = CXddDocument::open(text);
    CXddCommissioning node;
    node.mNodeId = 5;
    const CXddDocument dcf = CXddDocument::open(CXddEdsWriter::writeDcf(document, node).mText);
    QCOMPARE(shown(dcf.pdos()), shown(document.pdos(5)));
}

void TestAgreement::findings_data()
{
    descriptions();
}

// A finding about an entry is about one that is there.
void TestAgreement::findings()
{
    QFETCH(QByteArray, text);
    const CXddDocument document = CXddDocument::open(text);
    const QMap<unsigned int, CCanOpenObject> objects = readerOf(document)->getObjList();
    for (const CXddRemark& finding : CXddChecker::check(document)) {
        if (!finding.mIndex) {
            continue;
        }
        QVERIFY2(objects.contains(*finding.mIndex), qPrintable(finding.text()));
        QVERIFY2(finding.text().startsWith(finding.entry() + QLatin1String(": ")), qPrintable(finding.text()));
    }
}

void TestAgreement::notOpen_data()
{
    QTest::addColumn<CXddDocument>("document");
    QTest::newRow("never opened") << CXddDocument();
    QTest::newRow("empty") << CXddDocument::open(QByteArray());
    QTest::newRow("no XML") << CXddDocument::open("<a", QStringLiteral("a.xdd"));
    QTest::newRow("another XML") << CXddDocument::open("<a/>", QStringLiteral("a.xdd"));
    QTest::newRow("no file") << CXddDocument::openFile(QStringLiteral("absent.eds"));
}

// Of a document that is not open everything is empty.
void TestAgreement::notOpen()
{
    QFETCH(CXddDocument, document);
    QVERIFY(!document.isOpen());
    QCOMPARE(document.form(), CXddDevice::FORM_NONE);
    QVERIFY(document.remarks().isEmpty() && document.leftOut().isEmpty());
    QVERIFY(document.entries().isEmpty() && document.pdos().isEmpty() && document.pdos(5).isEmpty());
    QVERIFY(document.facts(QStringLiteral("en")).isEmpty() && document.fileFacts().isEmpty());
    QVERIFY(!document.entry(0x1000).isThere() && !document.entry(0x1018, 1).isThere());
    QCOMPARE(document.texts(0x1000).characters(), 0);
    QVERIFY(!document.device().mDeviceProfile.mIsStated && !document.device().mIsCommissioned);
    QCOMPARE(document.device().bitRateInForce(), CNetworkCanOpenProfile::BAUD_INVALID);
    QCOMPARE(CXddChecker::check(document).size(), 1);
    QCOMPARE(CXddNormalizer::normalize(document).mText, QByteArray());
    QCOMPARE(CXddNormalizer::conform(document, {}).mText, QByteArray());
    QVERIFY(!CXddNormalizer::normalize(document).mLoads);
    QCOMPARE(CXddEdsWriter::write(document).mText, QByteArray());
    QCOMPARE(CXddEdsWriter::writeDcf(document, CXddCommissioning()).mText, QByteArray());
    QCOMPARE(CXddPage::write(document, CXddPage::SOptions()).mText, QByteArray());
    const CXddDbc dbc = CXddDbcWriter::write({CXddNode(document, 5)});
    QVERIFY(!dbc.mText.contains("_5_"));
    QVERIFY(dbc.mRemarks.value(0).isEmpty());
}

QTEST_GUILESS_MAIN(TestAgreement)
#include "tst_agreement.moc"
