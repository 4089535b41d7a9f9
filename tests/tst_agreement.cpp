#include "Description.h"

#include <CCanOpenNames.h>
#include <CXddChecker.h>
#include <CXddEdsWriter.h>
#include <CXddNormalizer.h>
#include <CXddPdos.h>

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
};

namespace
{
void descriptions()
{
    QTest::addColumn<QByteArray>("text");
    for (const char* const name : {"sound.xdd", "everything.xdd", "foreign.xdd", "many.xdd"}) {
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
        qFatal("%s", qPrintable(failure.mText));
    }
    return reader;
}

// The keys of the sections of an INI file: "2001sub1/DataType" = "0x0005".
QMap<QString, QString> keysOf(const QByteArray& eds)
{
    QMap<QString, QString> keys;
    QString section;
    for (const QString& line : QString::fromUtf8(eds).split(QStringLiteral("\r\n"))) {
        if (line.startsWith(QLatin1Char('['))) {
            section = line.mid(1, line.size() - 2);
        } else {
            keys[section + QLatin1Char('/') + line.section(QLatin1Char('='), 0, 0)] = line.section(QLatin1Char('='), 1);
        }
    }
    return keys;
}

void compare(const QMap<QString, QString>& keys, const QString& section, const CCanOpenSubObject& entry)
{
    using Entry = CCanOpenSubObject;
    const auto key = [&](const char* name) {
        return keys.value(section + QLatin1Char('/') + QString::fromLatin1(name));
    };
    if (entry.mObjectType == 8 || entry.mObjectType == 9) {
        QCOMPARE(key("ObjectType").toUInt(nullptr, 0), unsigned(entry.mObjectType));
        return;
    }
    if (entry.mDataType != 0) {
        QCOMPARE(key("DataType").toUInt(nullptr, 16), unsigned(entry.mDataType));
    }
    if (entry.mAccessType != Entry::OBJ_ACCESS_INVALID) {
        const QString access =
            key("AccessType").replace(QRegularExpression(QStringLiteral("rw[rw]")), QStringLiteral("rw"));
        QCOMPARE(access, Entry::accessTypeAsStr(entry.mAccessType));
    }
    const bool isMapped = entry.mPdoMapping != Entry::OBJ_MAP_NO && entry.mPdoMapping != Entry::OBJ_MAP_INVALID;
    if (entry.mObjectType == 7) {
        QCOMPARE(key("PDOMapping"), QString::number(isMapped ? 1 : 0));
    }
    QCOMPARE(key("ParameterName").isEmpty(), entry.mName.trimmed().isEmpty());
    bool isNumber = false;
    const qlonglong number = entry.mDefaultValue.toLongLong(&isNumber, 0);
    if (isNumber && entry.mDataType >= 5 && entry.mDataType <= 7) {
        QCOMPARE(key("DefaultValue").toLongLong(nullptr, 0), number);
    }
}

QStringList shown(const QList<CXddPdo>& pdos)
{
    QStringList lines;
    for (const CXddPdo& pdo : pdos) {
        QStringList fields;
        for (const CXddPdoField& field : pdo.mFields) {
            fields << QStringLiteral("%1 %2").arg(field.entry(), QString::number(field.mBits));
        }
        lines << QStringLiteral("%1 %2: %3")
                     .arg(
                         QString::number(int(pdo.mIsTransmit)), QString::number(pdo.mNumber),
                         fields.join(QLatin1String(", ")));
    }
    return lines;
}
} // namespace

void TestAgreement::entries_data()
{
    descriptions();
}

void TestAgreement::entries()
{
    QFETCH(QByteArray, text);
    const CXddDocument document = CXddDocument::open(text);
    const std::unique_ptr<ICIso15745> reader = readerOf(document);
    const QMap<QString, QString> keys = keysOf(CXddEdsWriter::write(document).mText);
    for (const CCanOpenObject& object : reader->getObjList()) {
        if (object.mIndex < 0x1000) {
            continue; // The form cannot say it
        }
        const QString section = QString::number(object.mIndex, 16).toUpper();
        compare(keys, section, object);
        for (const CCanOpenSubObject& subObject : object.mSubObjects) {
            compare(keys, section + QStringLiteral("sub") + QString::number(subObject.mIndex, 16).toUpper(), subObject);
        }
    }
}

void TestAgreement::pdos_data()
{
    descriptions();
}

// Those of the description and those of the records that are loaded from it.
void TestAgreement::pdos()
{
    QFETCH(QByteArray, text);
    const CXddDocument document = CXddDocument::open(text);
    QCOMPARE(shown(CXddPdos::of(document)), shown(CXddPdos::of(readerOf(document)->getObjList())));
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
        QVERIFY2(objects.contains(*finding.mIndex), qPrintable(finding.mText));
        QVERIFY2(finding.mText.startsWith(finding.entry() + QLatin1String(": ")), qPrintable(finding.mText));
    }
}

QTEST_GUILESS_MAIN(TestAgreement)
#include "tst_agreement.moc"
