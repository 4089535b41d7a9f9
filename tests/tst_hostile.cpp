#include "Description.h"
#include "TestEncodings.h"

#include <CXddChecker.h>
#include <CXddComparison.h>
#include <CXddDbcWriter.h>
#include <CXddEdsWriter.h>
#include <CXddNormalizer.h>
#include <CXddPage.h>

#include <QDomDocument>
#include <QTemporaryFile>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <random>
#include <thread>

// Files that are made to do harm, and files that are merely broken.
class TestHostile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void limits_data();
    void limits();
    void aRefusalKeepsTheReader();
    void sameAsQt_data();
    void sameAsQt();
    void mutationsAreSameAsQt();
    void truncatedEverywhere();
    void encodings();
    void manyObjects();
    void hugeTexts();
    void toolsOnManyOfAKind_data();
    void toolsOnManyOfAKind();
    void toolsOnMutations();
    void edsLimits_data();
    void edsLimits();
    void edsOfManyOfAKind_data();
    void edsOfManyOfAKind();
    void edsTruncatedEverywhere();
    void edsEncodings();
    void threads();
};

namespace
{
bool hasQt5()
{
    return QLibraryInfo::version().majorVersion() == 5;
}

QString load(const QByteArray& text)
{
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QString error;
    return loadText(*reader, text, error) ? QString() : error;
}

// The message of a load of a file with this text without its file name, and the one that Qt gives for it.
void compareWithQt(const QByteArray& text)
{
    QTemporaryFile file;
    if (!file.open() || file.write(text) != text.size() || !file.seek(0)) {
        qFatal("No temporary file");
    }
    QDomDocument document;
    QString message;
    int line = 0;
    int column = 0;
    const bool parsed = document.setContent(&file, true, &message, &line, &column);
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QString error;
    reader->load(file.fileName(), error);
    const QString expected = QStringLiteral("Read file \"%1\": Parse error at line %2, column %3: %4")
                                 .arg(file.fileName(), QString::number(line), QString::number(column), message);
    QVERIFY2(
        parsed ? !error.startsWith(QLatin1String("Read file")) : error == expected,
        qPrintable(error + QLatin1String(" instead of ") + (parsed ? QString() : expected)));
}

// Why the tools refuse a text; nothing when they take it. What they make of it has to hold together.
QString tools(const QByteArray& text)
{
    const CXddDocument document = CXddDocument::open(text);
    if (!document.isOpen()) {
        return document.failure().text();
    }
    const CXddCopy copy = CXddNormalizer::normalize(document);
    const CXddDocument again = CXddDocument::open(copy.mText);
    if (!again.isOpen() || CXddNormalizer::normalize(again).mText != copy.mText) {
        qFatal("Normalising a second time changes something");
    }
    const CXddComparison comparison = CXddComparison::compare(document, again);
    const QByteArray review = CXddPage::compared(document, again, comparison, QString());
    if (!comparison.mIsOpen || review.isEmpty() || review.contains("<script")) {
        qFatal("The copy cannot be compared, or a text has become markup");
    }
    const CXddEds eds = CXddEdsWriter::write(document);
    if (eds.mIncomplete > eds.mEntries) {
        qFatal("More entries are incomplete than there are");
    }
    if (CXddEdsWriter::write(CXddDocument::open(eds.mText)).mText != eds.mText) {
        qFatal("The EDS is another one when it is read and written");
    }
    const CXddDbc dbc = CXddDbcWriter::write({CXddNode(document, 5)}, CXddDbcWriter::OPTION_ALL);
    const bool isAscii = std::all_of(dbc.mText.begin(), dbc.mText.end(), [](char character) {
        return character == '\n' || (character >= ' ' && character <= '~');
    });
    if (!isAscii || dbc.mText.size() > 10 * text.size() + 1000000) {
        qFatal("The DBC is not in ASCII, or too long: %d characters", int(dbc.mText.size()));
    }
    const CXddPage page = CXddPage::write(document, {});
    if (page.mText.count("<script") > 1 || page.mText.size() > 15 * text.size() + 300000) {
        qFatal("A text has become markup, or the page is too long: %d bytes", int(page.mText.size()));
    }
    for (const CXddRemark& remark : copy.mRemarks + eds.mLosses + dbc.mRemarks.value(0)) {
        if (remark.text().size() > 1500) {
            qFatal("A remark repeats too much: %d characters", int(remark.text().size()));
        }
    }
    return QString();
}

QByteArray nested(int depth)
{
    return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

// A text with a few bytes changed, removed or repeated.
QByteArray mutated(QByteArray text, std::minstd_rand& random)
{
    const QByteArray bytes("<>&;'\"/![]?-=\0\x80\xFF x", 18);
    for (unsigned int change = random() % 4; change < 4; ++change) {
        const int position = int(random() % unsigned(text.size()));
        switch (random() % 3) {
        case 0:
            text[position] = bytes.at(int(random() % unsigned(bytes.size())));
            break;
        case 1:
            text.remove(position, int(random() % 20));
            break;
        default:
            text.insert(position, text.mid(int(random() % unsigned(text.size())), int(random() % 20)));
        }
    }
    return text;
}

QByteArray numbered(const char* pattern, int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i) {
        text += QByteArray(pattern).replace('#', QByteArray::number(i));
    }
    return text;
}
} // namespace

void TestHostile::limits_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason"); // Empty for a text within the limits, which has only the wrong root
    const auto row = [](const char* name, const QByteArray& text, const char* reason) {
        QTest::newRow(name) << text << QString::fromLatin1(reason);
    };
    const char* const deep = "elements are nested deeper than 256 levels";
    const char* const wide = "an element has more than 256 attributes";
    const char* const subset = "the document type declaration has an internal subset";
    const char* const declarations = "more than 64 namespace declarations are in force";
    row("depth 256", nested(256), "");
    row("depth 257", nested(257), deep);
    row("depth without end", QByteArray("<a>").repeated(1000000), deep);
    row("256 attributes", "<a" + numbered(" a#='1'", 256) + "/>", "");
    row("257 attributes", "<a" + numbered(" a#='1'", 257) + "/>", wide);
    if (!hasQt5()) { // Qt 5 refuses a second root before it looks at its attributes
        row("257 attributes behind the root", "<a/><b" + numbered(" a#='1'", 257) + "/>", wide);
    }
    row("20,000 attributes", "<a" + numbered(" a#='1'", 20000) + "/>", wide);
    row("64 namespaces", "<a xmlns='u'" + numbered(" xmlns:a#='u'", 63) + "/>", "");
    row("65 namespaces", "<a" + numbered(" xmlns:a#='u'", 65) + "/>", declarations);
    row("namespaces of siblings", "<a>" + numbered("<b xmlns:a#='u'/>", 1000) + "</a>", "");
    row("nested namespaces", numbered("<a xmlns:a#='u'>", 65), declarations);
    row("bare declaration", "<!DOCTYPE a><a/>", "");
    row("external subset", "<!DOCTYPE a SYSTEM \"[\"><a/>", "");
    if (hasQt5()) { // Qt 6 refuses a bracket in a public identifier, as the standard does
        row("bracket in an identifier", "<!DOCTYPE a PUBLIC '[' '['  ><a/>", "");
    }
    row("empty subset", "<!DOCTYPE a []><a/>", subset);
    row("external and internal subset", "<!DOCTYPE a SYSTEM 's' [ ]><a/>", subset);
    row("subset that closes at once", "<!DOCTYPE a [>", subset);
    row("parameter entity", "<!DOCTYPE a[%x;]><a/>", subset);
    row("white space over many blocks",
        "<!DOCTYPE a [" + QByteArray("\t\r\n ").repeated(2000) + "<!ELEMENT a ANY>]><a/>", subset);
    row("content model", "<!DOCTYPE a [<!ELEMENT a " + QByteArray("(").repeated(200000), subset);
    row("entities", "<!DOCTYPE a [" + numbered("<!ENTITY e# 'x'>", 20000) + "]><a/>", subset);
    row("entity bomb",
        "<!DOCTYPE a [<!ENTITY b '" + QByteArray("x").repeated(4000) + "'>]><a>" + QByteArray("&b;").repeated(20000)
            + "</a>",
        subset);
    // The bracket is the last character of a block that is read from the file, and then the first of the next one.
    for (const int size : {1023, 1024, 1025}) {
        const QByteArray start = "<!DOCTYPE a";
        QTest::addRow("block of %d", size)
            << start + QByteArray(" ").repeated(size - start.size() - 1) + "[<!ELEMENT a (a)>]><a/>"
            << QString::fromLatin1(subset);
    }
}

void TestHostile::limits()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    const QString error = load(text);
    if (reason.isEmpty()) {
        QVERIFY2(error.startsWith(QLatin1String("This is not an ISO15745 xdd file.")), qPrintable(error));
    } else {
        QVERIFY2(error.startsWith(QLatin1String("Read file \"")), qPrintable(error));
        QVERIFY2(error.endsWith(QLatin1String(": ") + reason), qPrintable(error));
    }
    // The tools keep the same limits.
    const QList<CXddRemark> findings = CXddChecker::check(CXddDocument::open(text));
    QCOMPARE(findings.size(), 1);
    if (!reason.isEmpty()) {
        QCOMPARE(findings.first().mRule, QStringLiteral("not-well-formed"));
        QCOMPARE(findings.first().text(), reason);
        QVERIFY(tools(text).endsWith(reason));
    }
}

void TestHostile::aRefusalKeepsTheReader()
{
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QString error;
    QVERIFY(loadText(*reader, description(), error));
    QVERIFY(!loadText(*reader, nested(300), error));
    QVERIFY(error.contains(QLatin1String("Parse error at line 1, column 771: elements are nested")));
    QCOMPARE(reader->getObjList().size(), 2);
    QCOMPARE(reader->deviceProfile().mVendorName.mValue, QStringLiteral("Vendor"));
}

void TestHostile::sameAsQt_data()
{
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const char* name, const QByteArray& text) {
        QTest::newRow(name) << text;
    };
    row("nothing", "");
    row("white space", " \n ");
    row("no XML", "index;name");
    row("NUL", QByteArray("<a>\0</a>", 8));
    row("end of block as a character", "<a>\xEF\xBF\xBE</a>");
    row("end of document as a character", "<a>\xEF\xBF\xBF</a>");
    row("invalid UTF-8", "<a b='\xFF\xFE\xC3'>\xE2\x82</a>");
    row("lone surrogates", "<a>\xED\xA0\x80</a>");
    row("two roots", "<a/><b/>");
    row("undeclared entity", "<a>&b;</a>");
    row("undeclared entities after a declaration", "<!DOCTYPE a SYSTEM 's'><a b='&c;'>&d;</a>");
    row("undeclared prefix", "<x:a/>");
    row("duplicate attribute", "<a b='1' b='2'/>");
    row("comment without end", "<a><!-- ");
    row("long lines", "<a>" + QByteArray("x").repeated(100000) + "<");
    row("endings", "<a>\r\n\r\n<b>\r</a>");
    row("encoding unknown", "<?xml version='1.0' encoding='nonsense'?><a>\xFF</a>");
    row("encoding that does not fit", "<?xml version='1.0' encoding='UTF-16'?><a/>");
    row("standalone", "<?xml version='1.0' standalone='maybe'?><a/>");
    row("processing instruction", "<?php <a> ?><a/><?x");
    row("CDATA", "<a><![CDATA[ ]] ]]></b>");
    row("name of a megabyte", "<" + QByteArray("n").repeated(1000000));
}

void TestHostile::sameAsQt()
{
    QFETCH(QByteArray, text);
    compareWithQt(text);
}

// Always the same ones.
void TestHostile::mutationsAreSameAsQt()
{
    std::minstd_rand random(1);
    for (int round = 0; round < 1000; ++round) {
        const QByteArray text = mutated(description(), random);
        compareWithQt(text);
        if (QTest::currentTestFailed()) {
            qWarning("in round %d", round);
            return;
        }
    }
}

void TestHostile::truncatedEverywhere()
{
    const QByteArray text = description();
    for (int size = 0; size < text.trimmed().size(); ++size) {
        QVERIFY2(load(text.left(size)).startsWith(QLatin1String("Read file \"")), qPrintable(QString::number(size)));
    }
}

// Whatever Qt's codecs make of a description, it loads as in UTF-8 or gives a message, and no encoding hides a limit.
void TestHostile::encodings()
{
    const auto withEncoding = [](const QByteArray& text, const QByteArray& name) {
        return changed(text, "encoding=\"UTF-8\"", "encoding=\"" + name + '"');
    };
    const QByteArray deep = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + nested(300);
    for (const QByteArray& name : testEncodings()) {
        const QByteArray text = withEncoding(description(), name);
        for (const QByteArray& encoded : {encodedAs(name, QString::fromUtf8(text)), text}) {
            const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
            QString error;
            if (loadText(*reader, encoded, error)) {
                QCOMPARE(reader->getObj(0x1018).mName, QStringLiteral("identity"));
            } else {
                QVERIFY2(!error.isEmpty(), name.constData());
            }
        }
        const QString refusal = load(encodedAs(name, QString::fromUtf8(withEncoding(deep, name))));
        QVERIFY2(refusal.startsWith(QLatin1String("Read file \"")), name.constData());
    }
}

void TestHostile::manyObjects()
{
    const QByteArray object = "<CANopenObject index=\"2000\" name=\"last\"";
    QByteArray objects;
    for (int index = 0; index < 100000; ++index) {
        objects += "<CANopenObject index='" + QByteArray::number(0x10000 + index, 16) + "' name='x' objectType='7'/>\n";
    }
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QString error;
    QVERIFY2(loadText(*reader, changed(description(), object, objects + object), error), qPrintable(error));
    QCOMPARE(reader->getObjList().size(), 100002);
    QCOMPARE(reader->getObj(0x10000 + 99999).mName, QStringLiteral("x"));
}

void TestHostile::hugeTexts()
{
    const QByteArray huge(2000000, 'x');
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QString error;
    QByteArray text = changed(description(), ">Vendor<", ">" + huge + "<");
    text = changed(text, "name=\"last\"", "name=\"" + huge + '"');
    QVERIFY2(loadText(*reader, text, error), qPrintable(error));
    QCOMPARE(reader->deviceProfile().mVendorName.mValue.size(), huge.size());
    QCOMPARE(reader->getObj(0x2000).mName.size(), huge.size());
    QVERIFY(load(changed(description(), "index=\"1018\"", "index=\"" + huge + '"')).size() < 1000);
    // Whatever a text of the file is, the tools repeat only its beginning.
    const QByteArray base = testData(QStringLiteral("sound.xdd"));
    for (const char* const place :
         {"index=\"2004", "subIndex=\"02\" name=\"Lower", "dataType=\"0008", "objectType=\"2", "access=\"const",
          "accessType=\"wo", "<defaultValue value=\"-5", "uniqueIDRef=\"P_PORT"}) {
        const QByteArray before = QByteArray(place);
        const QByteArray hostile = changed(base, before, before + huge);
        QCOMPARE(tools(hostile), QString());
        for (const CXddRemark& finding : CXddChecker::check(CXddDocument::open(hostile))) {
            QVERIFY2(finding.text().size() < 1500, place);
        }
    }
    // Qt 6 reads names of up to 4,096 characters.
    QCOMPARE(load(changed(description(), "<Comment/>", '<' + huge + "/>")).isEmpty(), hasQt5());
}

// Much of whatever a rule compares with each other.
void TestHostile::toolsOnManyOfAKind_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("added");
    QTest::addColumn<int>("most"); // Most findings; each is a line of the report
    const QByteArray objects = "</CANopenObjectList>";
    const auto repeated = [](int count, const auto& text) {
        QByteArray all;
        for (int i = 0; i < count; ++i) {
            all += text(i);
        }
        return all;
    };
    const auto entry = [](int i, const QByteArray& rest) {
        return "<CANopenObject index='" + QByteArray::number(i, 16) + "' name='x' objectType='7' " + rest + "/>\n";
    };
    QTest::newRow("objects of one index")
        << objects << repeated(MANY / 2, [&](int) { return entry(0x3000, {}); }) << 3 * MANY;
    QTest::newRow("objects") << objects << repeated(MANY, [&](int i) { return entry(0x10000 + i, {}); }) << 6 * MANY;
    QTest::newRow("sub-objects of one object")
        << objects
        << "<CANopenObject index='3000' name='x' objectType='9'>"
               + repeated(
                   MANY,
                   [](int i) {
                       return "<CANopenSubObject subIndex='" + QByteArray::number(i, 16)
                              + "' name='x' objectType='7'/>\n";
                   })
               + "</CANopenObject>"
        << 6 * MANY;
    for (const char* const child : {"<x/>", "<label lang='en'/>", "<allowedValues/>", "<range/>"}) {
        const QByteArray many = QByteArray(child).repeated(MANY);
        QTest::addRow("entries of one parameter with many %s", child)
            << objects
            << "<parameter uniqueID='BIG'>"
                   + (child == QByteArray("<range/>") ? "<allowedValues>" + many + "</allowedValues>" : many)
                   + "</parameter>" + repeated(MANY / 4, [&](int i) { return entry(0x10000 + i, "uniqueIDRef='BIG'"); })
            << 6 * MANY;
    }
    for (const char* const list : {"array", "struct"}) {
        QTest::addRow("objects of one %s", list)
            << objects
            << "<parameter uniqueID='BIG'><dataTypeIDRef uniqueIDRef='LIST'/></parameter><" + QByteArray(list)
                   + " uniqueID='LIST'>" + QByteArray("<varDeclaration/>").repeated(MANY) + "</" + list + ">"
                   + repeated(
                       MANY / 4,
                       [&](int i) {
                           return "<CANopenObject index='" + QByteArray::number(0x10000 + i, 16)
                                  + "' name='x' objectType='9' uniqueIDRef='BIG'><CANopenSubObject subIndex='01' "
                                    "name='x' objectType='7'/></CANopenObject>\n";
                       })
            << 6 * MANY;
    }
    QTest::newRow("clashes of COB-IDs") << objects << repeated(MANY / 20, [](int i) {
        const QByteArray number = QByteArray::number(i % 0x1FF + 1, 16).rightJustified(3, '0');
        return "<CANopenObject index='1" + QByteArray(i % 2 == 0 ? "8" : "A").append(number.right(2))
               + "' name='x' objectType='9'><CANopenSubObject subIndex='01' name='x' objectType='7' "
                 "dataType='0007' accessType='rw' defaultValue='0x181'/></CANopenObject>\n";
    }) << MANY;
    // Each of them maps one entry whose parameter has many values.
    QTest::newRow("PDOs of one large parameter")
        << objects
        << "<parameter uniqueID='BIG'><allowedValues>"
               + repeated(
                   250,
                   [](int i) {
                       return "<value value='" + QByteArray::number(i)
                              + "'><label lang='en'>abcdefghij</label></value>";
                   })
               + "</allowedValues><USINT/></parameter>"
               + entry(0x2100, "dataType='0005' accessType='ro' PDOmapping='TPDO' uniqueIDRef='BIG'")
               + repeated(
                   400,
                   [](int i) {
                       const QByteArray number = QByteArray::number(0x10 + i, 16).rightJustified(3, '0');
                       const auto sub = [](const char* index, const char* type, const QByteArray& value) {
                           return "<CANopenSubObject subIndex='" + QByteArray(index)
                                  + "' name='x' objectType='7' dataType='" + type + "' accessType='rw' defaultValue='"
                                  + value + "'/>\n";
                       };
                       const QByteArray object = "' name='x' objectType='9'>";
                       return "<CANopenObject index='1" + QByteArray::number(0x810 + i, 16) + object
                              + sub("01", "0007", "0x2" + number) + "</CANopenObject><CANopenObject index='1"
                              + QByteArray::number(0xA10 + i, 16) + object + sub("00", "0005", "8")
                              + sub("01", "0007", "0x21000008") + sub("02", "0007", "0x21000008")
                              + sub("03", "0007", "0x21000008") + "</CANopenObject>";
                   })
        << MANY;
    // All of them are about the line in which all objects stand.
    QTest::newRow("findings and comments that hide none")
        << objects
        << "<!-- xddcheck-disable-next-line " + repeated(MANY, [](int i) { return QByteArray::number(i, 16) + ' '; })
               + "-->\n" + repeated(MANY / 10, [&](int i) { return entry(0x10000 + i, {}).trimmed(); })
        << 3 * MANY;
    const QByteArray types = "</dataTypeList>";
    QTest::newRow("types that refer to each other many times")
        << types
        << repeated(
               20,
               [&](int i) {
                   const QByteArray next = QByteArray::number(i + 1);
                   return "<derived uniqueID='D" + QByteArray::number(i) + "'>"
                          + QByteArray("<dataTypeIDRef uniqueIDRef='D" + next + "'/>").repeated(100) + "</derived>\n";
               })
               + "<derived uniqueID='D20'><INT/></derived>"
               + repeated(
                   15,
                   [](int i) {
                       return "<derived uniqueID='E" + QByteArray::number(i)
                              + "'><dataTypeIDRef uniqueIDRef='D10'/></derived>";
                   })
        << 100;
    QTest::newRow("a cycle of types") << types
                                      << QByteArray("<derived uniqueID='A'><dataTypeIDRef uniqueIDRef='B'/></derived>"
                                                    "<derived uniqueID='B'><dataTypeIDRef uniqueIDRef='A'/></derived>")
                                      << 100;
    QTest::newRow("parameters") << QByteArray("</parameterList>") << repeated(MANY / 2, [](int i) {
        return "<parameter uniqueID='Q" + QByteArray::number(i)
               + "'><dataTypeIDRef uniqueIDRef='T_LEVEL'/></parameter>\n";
    }) << 100;
    QTest::newRow("profiles") << QByteArray("</ISO15745ProfileContainer>")
                              << QByteArray("<ISO15745Profile><ProfileHeader/><ProfileBody "
                                            "type='ProfileBody_CommunicationNetwork_CANopen'><ApplicationLayers>"
                                            "<CANopenObjectList><CANopenObject index='1000'/></CANopenObjectList>"
                                            "</ApplicationLayers></ProfileBody></ISO15745Profile>\n")
                                     .repeated(MANY / 20)
                              << 2 * MANY;
}

void TestHostile::toolsOnManyOfAKind()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, added);
    QFETCH(int, most);
    QByteArray text = testData(QStringLiteral("sound.xdd"));
    text = changed(text, before, added + before);
    text = changed(text, "<dataTypeIDRef uniqueIDRef=\"T_LEVEL\"/>", "<dataTypeIDRef uniqueIDRef=\"D0\"/>");
    QCOMPARE(tools(text), QString());
    QVERIFY(CXddChecker::check(CXddDocument::open(text)).size() < most);
}

void TestHostile::toolsOnMutations()
{
    std::minstd_rand random(2);
    for (const char* const name : {"sound.xdd", "sound.eds"}) {
        const QByteArray base = testData(QString::fromLatin1(name));
        for (int round = 0; round < 500; ++round) {
            const QByteArray text = mutated(base, random);
            const QString refusal = tools(text);
            const CXddDocument document = CXddDocument::open(text);
            const QList<CXddRemark> findings = CXddChecker::check(document);
            QVERIFY2(refusal.isEmpty() || !findings.isEmpty(), qPrintable(refusal));
            // A normalised copy means the same, and one for publishing is not put right again.
            const CXddDocument copy = CXddDocument::open(CXddNormalizer::normalize(document).mText);
            QVERIFY2(CXddComparison::compare(document, copy).mChanges.isEmpty(), text.constData());
            const QByteArray right = CXddNormalizer::conform(document, findings).mText;
            const CXddDocument again = CXddDocument::open(right);
            QCOMPARE(CXddNormalizer::conform(again, CXddChecker::check(again)).mText, right);
        }
    }
}

void TestHostile::edsLimits_data()
{
    QTest::addColumn<QByteArray>("added");
    QTest::addColumn<QString>("refusal"); // With its line; empty for what is within the limits
    const auto row = [](const char* name, const QByteArray& added, const char* refusal) {
        QTest::newRow(name) << added << QString::fromLatin1(refusal);
    };
    const QByteArray object = "[%1]\nParameterName=x\nDataType=5\nAccessType=ro\nCompactSubObj=254\n";
    const auto compact = [&object](int count) {
        QByteArray objects;
        for (int i = 0; i < count; ++i) {
            objects += QByteArray(object).replace("%1", QByteArray::number(0x3000 + i, 16));
        }
        return objects;
    };
    row("a line", ";" + QByteArray(65535, 'x') + '\n', "");
    row("a longer line", ";" + QByteArray(65536, 'x') + '\n', "1: a line has more than 65536 characters");
    row("keys", "[x]\n" + numbered("k#=1\n", 100000), "");
    row("more keys", "[x]\n" + numbered("k#=1\n", 100001), "100002: a section has more than 100000 keys");
    row("sections", numbered("[s#]\n", 499970), "");
    row("more sections", numbered("[s#]\n", 500001), "500001: the file has more than 500000 sections");
    row("compact objects", compact(970), "");
    row("more compact objects", compact(980), "4881: the file has more than 250000 objects and sub-objects");
    row("NUL", QByteArray(1, '\0'), "1: This is a binary file.");
}

void TestHostile::edsLimits()
{
    QFETCH(QByteArray, added);
    QFETCH(QString, refusal);
    const CXddDocument document = CXddDocument::open(added + testData(QStringLiteral("sound.eds")));
    const CXddRemark failure = document.failure();
    QCOMPARE(document.isOpen() ? QString() : QStringLiteral("%1: %2").arg(failure.mLine).arg(failure.text()), refusal);
}

// Much of whatever is looked up, each in time that grows with it.
void TestHostile::edsOfManyOfAKind_data()
{
    QTest::addColumn<QByteArray>("added");
    const auto row = [](const char* name, const QByteArray& added) {
        QTest::newRow(name) << added;
    };
    row("keys of an object", "[3000]\nParameterName=x\n" + numbered("key#=1\n", MANY / 2));
    row("one key", "[3000]\nParameterName=x\n" + QByteArray("Unit=1\n").repeated(MANY));
    row("one section", QByteArray("[3000]\nParameterName=x\n").repeated(MANY));
    row("objects that are only listed", "[OptionalObjects]\n" + numbered("#0=0x3000\n", MANY / 2));
    row("sub-sections without an object", numbered("[#00sub1]\nParameterName=x\n", MANY / 2));
    row("lists of names", "[2100Name]\n" + numbered("#=x\n", MANY / 2));
    row("lines that are nothing", QByteArray("x\n").repeated(MANY));
    row("comments that hide nothing", "; " + QByteArray("xddcheck-disable-next-line ").repeated(2000) + '\n'
                                          + numbered("; xddcheck-disable-next-line #\n", MANY / 2));
    row("bit rates", "[DeviceInfo]\n" + numbered("BaudRate_#=1\n", MANY / 2));
    row("dummies", "[DummyUsage]\n" + numbered("Dummy#=1\n", MANY / 2));
}

void TestHostile::edsOfManyOfAKind()
{
    QFETCH(QByteArray, added);
    const QByteArray text = testData(QStringLiteral("sound.eds")) + added;
    QCOMPARE(tools(text), QString());
    QVERIFY(CXddChecker::check(CXddDocument::open(text)).size() < 3 * MANY);
}

void TestHostile::edsTruncatedEverywhere()
{
    const QByteArray text = testData(QStringLiteral("sound.eds"));
    const int firstObject = int(text.indexOf("ParameterName=")) + int(sizeof "ParameterName=") - 1;
    for (int size = 0; size < text.size(); ++size) {
        const CXddDocument document = CXddDocument::open(text.left(size));
        const bool isOpen = size >= int(text.indexOf("[MandatoryObjects]")) + int(sizeof "[MandatoryObjects]") - 1;
        QCOMPARE(document.isOpen(), isOpen);
        QCOMPARE(document.failure().text().isEmpty(), isOpen);
        if (size >= firstObject && size % 7 == 0) {
            QCOMPARE(tools(text.left(size)), QString());
        }
    }
}

// In whatever encoding, the same is read; what is neither marked nor UTF-8 is reported.
void TestHostile::edsEncodings()
{
    const QByteArray base = changed(testData(QStringLiteral("sound.eds")), "=Error register", "=Fehlerz\xC3\xA4hler");
    const QString text = QString::fromUtf8(base);
    const auto nameIn = [](const QByteArray& bytes, int remarks) {
        const CXddDocument document = CXddDocument::open(bytes);
        const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
        QList<CXddRemark> all;
        CXddRemark failure;
        CXddNormalizer::load(document, *reader, all, failure);
        return document.remarks().size() == remarks ? reader->getObj(0x1001).mName
                                                    : QStringLiteral("%1 remarks").arg(document.remarks().size());
    };
    const QString name = QStringLiteral("Fehlerz\u00E4hler");
    QCOMPARE(nameIn(base, 0), name);
    QCOMPARE(nameIn("\xEF\xBB\xBF" + base, 0), name);
    QCOMPARE(nameIn(text.toLatin1(), 1), name);
    const QByteArray marks[] = {"\xFF\xFE", "\xFE\xFF"};
    const QByteArray encodings[] = {"UTF-16LE", "UTF-16BE"};
    for (std::size_t order = 0; order < 2; ++order) {
        const QByteArray encoded = encodedAs(encodings[order], text);
        const QByteArray unmarked = encoded.startsWith(marks[order]) ? encoded.mid(2) : encoded;
        QCOMPARE(nameIn(marks[order] + unmarked, 0), name);
        QCOMPARE(nameIn(unmarked, 1), name);
    }
    QByteArray returns = base;
    QCOMPARE(nameIn(returns.replace('\n', '\r'), 0), name);
    QCOMPARE(nameIn(returns.replace("\r", "\r\n"), 0), name);
}

// Readers on several threads come to the same results as on one, messages and conversions included.
void TestHostile::threads()
{
    QTranslator german;
    if (!german.load(QStringLiteral("mvxIso15745Xml_de"), QStringLiteral(CATALOGUE_FOLDER))) {
        QTest::qSkip("there is no German catalogue", __FILE__, __LINE__);
        return;
    }
    QVERIFY(QCoreApplication::installTranslator(&german));
    const QByteArray broken = changed(description(), "\"auto-baudRate\"", "\"1 Kbps\"");
    const auto work = [&broken](QStringList& results) {
        for (int round = 0; round < 20; ++round) {
            const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
            QString error;
            QTemporaryFile file;
            results << QString::number(loadText(*reader, description(), error))
                    << CCanOpenSubObject::accessTypeAsStr(reader->getObj(0x1018).mSubObjects.first().mAccessType)
                    << reader->deviceProfile().mVendorText.mLabels.last().mDictId << load(broken)
                    << load("<a>").right(40)
                    << QString::number(CNetworkCanOpenProfile::baudrateFromStr(QStringLiteral("800 Kbps")));
        }
    };
    QStringList expected;
    work(expected);
    QVERIFY(expected.at(3).contains(QLatin1String("Baudrate !")) && expected.at(3).startsWith(QLatin1String("Fehler")));
    std::vector<QStringList> results(8);
    std::vector<std::thread> threads;
    threads.reserve(results.size());
    for (QStringList& result : results) {
        threads.emplace_back(work, std::ref(result));
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const QStringList& result : results) {
        QCOMPARE(result, expected);
    }
}

QTEST_GUILESS_MAIN(TestHostile)
#include "tst_hostile.moc"
