#include <CDomDoc.h>
#include <XmlValues.h>

#include <QtTest>

// The typed access to elements and attributes.
class TestDomDoc : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbers_data();
    void numbers();
    void booleans_data();
    void booleans();
    void dates_data();
    void dates();
    void times_data();
    void times();
    void elements();
    void failureKeepsTheOutput();
};

namespace
{
QString latin1(const char* text)
{
    return QString::fromLatin1(text);
}

// The element <e> with the attribute a="value" and the child <c>value</c>, on line 2.
QDomElement elementWith(const QString& value)
{
    static QDomDocument document; // The last one, which keeps the element alive
    document = QDomDocument();
    QDomElement element = document.createElement(QStringLiteral("e"));
    document.appendChild(element);
    element.setAttribute(QStringLiteral("a"), value);
    QDomElement child = document.createElement(QStringLiteral("c"));
    child.appendChild(document.createTextNode(value));
    element.appendChild(child);
    return element;
}

QDomElement rootOf(const char* text)
{
    static CDomDoc document;
    if (!document.setContent(QByteArray(text), true)) {
        qFatal("Not well-formed: %s", text);
    }
    return document.documentElement();
}
} // namespace

void TestDomDoc::numbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("base");
    QTest::addColumn<qint64>("value"); // -1 for a text that does not convert

    const auto row = [](const QString& text, int base) {
        bool ok = false;
        const uint number = text.toUInt(&ok, base);
        QTest::addRow("%s base %d", qPrintable(text), base) << text << base << (ok ? qint64(number) : qint64(-1));
    };
    // Whatever a file may hold, in both bases, reads as Qt reads it.
    for (const char* text :
         {"1000",
          "0x1000",
          "0X1a",
          "1A00",
          "FFFFFFFF",
          "100000000",
          "0x",
          "00x1",
          "0xx1",
          "G",
          "0010",
          "0007",
          "0",
          "00",
          "0009",
          "001B",
          "1A",
          "255",
          "256",
          "4294967295",
          "4294967296",
          "18446744073709551617",
          "99999999999999999999999999",
          " \t7\n",
          "+7",
          "-7",
          "-0",
          "+0x10",
          "-0x0",
          "- 7",
          "+",
          "-",
          "1.0",
          "1,000",
          "7 7",
          "7x",
          "x7",
          "",
          " ",
          "00000000007",
          "037777777777",
          "040000000000",
          "08",
          "1e3",
          "0b11",
          "12345678",
          "123456789"}) {
        row(latin1(text), 0);
        row(latin1(text), 16);
    }
    row(QString(QChar(0x0667)), 0);
    row(QString(QChar(0xFF17)), 0);
    row(latin1("7") + QChar(), 0);
    row(QString(QChar(0x00A0)) + latin1("7"), 0);
}

void TestDomDoc::numbers()
{
    QFETCH(QString, text);
    QFETCH(int, base);
    QFETCH(qint64, value);
    const QDomElement element = elementWith(text);
    const bool fits8 = value >= 0 && value <= 255;
    const qint64 byDefault = 99;

    unsigned int u32 = 99;
    unsigned char u8 = 99;
    QString error;
    QCOMPARE(CDomDoc::success(CDomDoc::existingAttributeAsU32(latin1("a"), element, u32, error, base)), value >= 0);
    QCOMPARE(qint64(u32), value < 0 ? byDefault : value);
    QCOMPARE(error.isEmpty(), value >= 0);
    u32 = 99;
    QCOMPARE(CDomDoc::success(CDomDoc::existingSubElementAsU32(latin1("c"), element, u32, error, base)), value >= 0);
    QCOMPARE(qint64(u32), value < 0 ? byDefault : value);
    QCOMPARE(CDomDoc::success(CDomDoc::existingAttributeAsU8(latin1("a"), element, u8, error, base)), fits8);
    QCOMPARE(qint64(u8), fits8 ? value : byDefault);
    QCOMPARE(qint64(CDomDoc::existingAttributeAsU32(latin1("a"), element, 99U, base)), value < 0 ? byDefault : value);
    QCOMPARE(qint64(CDomDoc::existingAttributeAsU8(latin1("a"), element, u8, base)), fits8 ? value : byDefault);
}

void TestDomDoc::booleans_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value"); // -1 for a text that does not convert
    QTest::newRow("true") << latin1("true") << 1;
    QTest::newRow("false") << latin1("false") << 0;
    QTest::newRow("blanks") << latin1(" true ") << 1;
    QTest::newRow("upper case") << latin1("True") << -1;
    QTest::newRow("number") << latin1("1") << -1;
    QTest::newRow("empty") << QString() << -1;
}

void TestDomDoc::booleans()
{
    QFETCH(QString, text);
    QFETCH(int, value);
    const QDomElement element = elementWith(text);
    for (const bool byDefault : {false, true}) {
        bool read = byDefault;
        QString error;
        const auto result =
            CDomDoc::existingAttributeAsBool(latin1("a"), element, read, error, VALUE_TRUE, VALUE_FALSE);
        QCOMPARE(CDomDoc::success(result), value >= 0);
        QCOMPARE(read, value < 0 ? byDefault : value == 1);
        QCOMPARE(CDomDoc::existingAttributeAsBool(latin1("a"), element, byDefault, VALUE_TRUE, VALUE_FALSE), read);
        // An absent attribute is no empty text, even where the empty text is one of the two.
        QCOMPARE(CDomDoc::existingAttributeAsBool(latin1("b"), element, false, QString(), VALUE_FALSE), false);
    }
}

void TestDomDoc::dates_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("value");
    const QDate date(2011, 10, 5);
    for (const char* text : {"2011-10-05", " 2011-10-05\n", "2011-10-05Z", "2011-10-05+02:00", "2011-10-05-14:00"}) {
        QTest::newRow(text) << latin1(text) << date;
    }
    for (const char* text :
         {"", "2011/10/05", "05.10.2011", "2011-10-5", "2011-13-05", "2011-02-29", "0000-01-01", "2011-10-05 09:00",
          "2011-10-05x", "2011-10-05+14:01", "2011-10-05+02:60", "2011-10-05+2:00", "20111-10-05", "-2011-10-05",
          "+011-10-05"}) {
        QTest::newRow(*text == '\0' ? "empty" : text) << latin1(text) << QDate();
    }
}

void TestDomDoc::dates()
{
    QFETCH(QString, text);
    QFETCH(QDate, value);
    const QDomElement element = elementWith(text);
    const QDate byDefault(1999, 1, 1);
    const QDate expected = value.isValid() ? value : byDefault;
    QDate read = byDefault;
    QString error;
    QCOMPARE(CDomDoc::success(CDomDoc::existingAttributeAsDate(latin1("a"), element, read, error)), value.isValid());
    QCOMPARE(read, expected);
    QCOMPARE(CDomDoc::existingAttributeAsDate(latin1("a"), element, byDefault), expected);
    QCOMPARE(CDomDoc::existingSubElementAsDate(latin1("c"), element, byDefault), expected);
}

void TestDomDoc::times_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QTime>("value");
    const auto row = [](const char* text, const QTime& value) {
        QTest::newRow(*text == '\0' ? "empty" : text) << latin1(text) << value;
    };
    for (const char* text :
         {"11:06:00", " 11:06:00 ", "11:06:00Z", "11:06:00+02:00", "11:06:00-05:30", "11:06:00.0000000+01:00"}) {
        row(text, QTime(11, 6));
    }
    row("11:06:00.5+02:00", QTime(11, 6, 0, 500));
    row("11:06:00.12345", QTime(11, 6, 0, 123));
    row("23:59:59.9999", QTime(23, 59, 59, 999));
    for (const char* text :
         {"", "11:06", "11:06:0", "11:06:00x", "24:00:00", "11:60:00", "11:06:00.", "11:06:00.5.5", "9:48:42 PM"}) {
        row(text, QTime());
    }
}

void TestDomDoc::times()
{
    QFETCH(QString, text);
    QFETCH(QTime, value);
    const QTime byDefault(1, 2, 3);
    QCOMPARE(
        CDomDoc::existingAttributeAsTime(latin1("a"), elementWith(text), byDefault),
        value.isValid() ? value : byDefault);
}

void TestDomDoc::elements()
{
    const QDomElement root = rootOf("<r><x><n>grandchild</n></x>text<N/><p:n "
                                    "xmlns:p='u'>fir<b>s</b>t</p:n><n>second</n><empty/><blank> </blank></r>");
    const QDomElement first = CDomDoc::existingSubElement(latin1("n"), root);
    QCOMPARE(first.text(), latin1("first"));
    QCOMPARE(first.nextSiblingElement(latin1("n")).text(), latin1("second"));
    QVERIFY(CDomDoc::existingSubElement(latin1("absent"), root).isNull());

    QString text = latin1("before");
    QString error = latin1("untouched");
    QVERIFY(CDomDoc::success(CDomDoc::existingSubElementAsString(latin1("empty"), root, text, error)));
    QCOMPARE(text, QString());
    QCOMPARE(error, latin1("untouched"));
    QCOMPARE(CDomDoc::existingSubElementAsString(latin1("empty"), root, latin1("default")), QString());
    QCOMPARE(CDomDoc::existingSubElementAsString(latin1("absent"), root, latin1("default")), latin1("default"));

    const QDomElement attributes = rootOf("<r a='' b=' b '/>");
    QVERIFY(CDomDoc::success(CDomDoc::existingAttribute(latin1("a"), attributes, text, error)));
    QCOMPARE(CDomDoc::existingAttribute(latin1("a"), attributes, latin1("default")), QString());
    QCOMPARE(CDomDoc::existingAttribute(latin1("b"), attributes, latin1("default")), latin1(" b "));
    QCOMPARE(CDomDoc::existingAttribute(latin1("B"), attributes, latin1("default")), latin1("default"));
}

void TestDomDoc::failureKeepsTheOutput()
{
    const QDomElement root = rootOf("<r><c/></r>");
    QDomElement child = CDomDoc::existingSubElement(latin1("c"), root);
    QString text = latin1("kept");
    QString error;
    QVERIFY(!CDomDoc::success(CDomDoc::existingSubElement(latin1("no"), root, child, error)));
    QCOMPARE(child.tagName(), latin1("c"));
    QVERIFY(!CDomDoc::success(CDomDoc::existingAttribute(latin1("no"), root, text, error)));
    QCOMPARE(text, latin1("kept"));
    // Numbers that are known, so that both sides cannot be wrong together.
    unsigned int read = 0;
    QVERIFY(
        CDomDoc::success(CDomDoc::existingAttributeAsU32(latin1("a"), elementWith(latin1("0010")), read, error, 0)));
    QCOMPARE(read, 8U);
    QVERIFY(
        CDomDoc::success(CDomDoc::existingAttributeAsU32(latin1("a"), elementWith(latin1("+1A")), read, error, 16)));
    QCOMPARE(read, 26U);
    // A message stays readable whatever the file holds, and a place marker in a file is only text.
    unsigned int number = 0;
    const QDomElement huge = elementWith(QString(1000000, QLatin1Char('x')));
    QVERIFY(!CDomDoc::success(CDomDoc::existingAttributeAsU32(latin1("a"), huge, number, error, 0)));
    QVERIFY(error.size() < 1000 && error.contains(latin1("xxx...\"")));
    const QDomElement marked = rootOf("<!-- -->\n<r><c>%2 %1</c></r>");
    QVERIFY(!CDomDoc::success(CDomDoc::existingSubElementAsU32(latin1("c"), marked, number, error, 16)));
    QCOMPARE(
        error,
        latin1("Error while parsing TAG <r> in line 2 : Element <c> is \"%2 %1\", but should be an unsigned 32-bit "
               "number in base 16."));
}

QTEST_GUILESS_MAIN(TestDomDoc)
#include "tst_domdoc.moc"
