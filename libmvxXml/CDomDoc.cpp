#include "CDomDoc.h"

#include "CXmlValue.h"

#include <QCoreApplication>

#include <limits>
#include <optional>

namespace
{
// Longest text of a file that a message repeats, in characters. Descriptions come from outside; a value of a megabyte
// must not become a message of a megabyte.
constexpr int MAX_QUOTED_LENGTH = 200;

QString quoted(const QString& text)
{
    return text.size() <= MAX_QUOTED_LENGTH ? text : text.left(MAX_QUOTED_LENGTH) + QLatin1String("...");
}

// The two kinds of item that are looked up by name.
enum class EItem
{
    Element,
    Attribute
};

// The messages. All arguments of one go in with one call, so that a "%1" inside a text of the file stays as it is.

QString missingMessage(EItem item, const QString& name, const QDomElement& element)
{
    QString message;
    switch (item) {
    case EItem::Element:
        message = QCoreApplication::translate(
            "CDomDoc", "Error while parsing TAG <%1> in line %2 : Element <%3> is missing.");
        break;
    case EItem::Attribute:
        message = QCoreApplication::translate(
            "CDomDoc", "Error while parsing TAG <%1> in line %2 : Attribute \"%3\" is missing.");
        break;
    }
    return message.arg(quoted(element.tagName()), QString::number(element.lineNumber()), quoted(name));
}

QString wrongMessage(
    EItem item, const QString& name, const QDomElement& element, const QString& text, const QString& expected)
{
    QString message;
    switch (item) {
    case EItem::Element:
        message = QCoreApplication::translate(
            "CDomDoc", "Error while parsing TAG <%1> in line %2 : Element <%3> is \"%4\", but should be %5.");
        break;
    case EItem::Attribute:
        message = QCoreApplication::translate(
            "CDomDoc", "Error while parsing TAG <%1> in line %2 : Attribute \"%3\" is \"%4\", but should be %5.");
        break;
    }
    return message.arg(
        quoted(element.tagName()), QString::number(element.lineNumber()), quoted(name), quoted(text), expected);
}

// What a value should have been, for the last argument of the message above.

QString number(int bits, int base)
{
    if (base == 0) {
        return QCoreApplication::translate(
                   "CDomDoc",
                   "an unsigned %1-bit number in base 0 (hexadecimal after 0x, octal after 0, otherwise decimal)")
            .arg(bits);
    }
    return QCoreApplication::translate("CDomDoc", "an unsigned %1-bit number in base %2")
        .arg(QString::number(bits), QString::number(base));
}

QString boolean(const QString& trueText, const QString& falseText)
{
    return QCoreApplication::translate("CDomDoc", "\"%1\" or \"%2\"").arg(trueText, falseText);
}

QString date()
{
    return QCoreApplication::translate("CDomDoc", "a date year-month-day (yyyy-MM-dd)");
}

// Finds the text of an item. Returns false, with an empty text, when there is no such item.
bool findText(EItem item, const QString& name, const QDomElement& element, QString& text)
{
    if (item == EItem::Element) {
        const QDomElement child = element.firstChildElement(name);
        text = child.text();
        return !child.isNull();
    }
    text = element.attribute(name);
    // Only an empty text leaves open whether the attribute is there; all others cost one look-up.
    return !text.isEmpty() || element.hasAttribute(name);
}

// Finds the text of an item that has to be there, or reports that it is missing.
bool requireText(EItem item, const QString& name, const QDomElement& element, QString& text, QString& errorText)
{
    if (findText(item, name, element, text)) {
        return true;
    }
    errorText = missingMessage(item, name, element);
    return false;
}

// Reporting form for texts.
CDomDoc::EResult readText(
    EItem item, const QString& name, const QDomElement& element, QString& value, QString& errorText)
{
    QString text;
    if (!requireText(item, name, element, text, errorText)) {
        return CDomDoc::EResult::Missing;
    }
    value = text;
    return CDomDoc::EResult::Success;
}

// Reporting form for everything else: `convert` turns a text into an optional value, `expected` says what it accepts.
template <typename Value, typename Convert, typename Expected>
CDomDoc::EResult readValue(
    EItem item, const QString& name, const QDomElement& element, Value& value, QString& errorText, Convert convert,
    Expected expected)
{
    QString text;
    if (!requireText(item, name, element, text, errorText)) {
        return CDomDoc::EResult::Missing;
    }
    const std::optional<Value> converted = convert(text);
    if (!converted) {
        errorText = wrongMessage(item, name, element, text, expected());
        return CDomDoc::EResult::NotConvertible;
    }
    value = *converted;
    return CDomDoc::EResult::Success;
}

template <typename Number> std::optional<Number> toNumber(const QString& text, int base)
{
    const std::optional<unsigned int> number = CXmlValue::toNumber(text, base, std::numeric_limits<Number>::max());
    return number ? std::optional<Number>(static_cast<Number>(*number)) : std::nullopt;
}

// Reporting form for numbers.
template <typename Number>
CDomDoc::EResult readNumber(
    EItem item, const QString& name, const QDomElement& element, Number& value, QString& errorText, int base)
{
    return readValue(
        item, name, element, value, errorText, [base](const QString& text) { return toNumber<Number>(text, base); },
        [base] { return number(std::numeric_limits<Number>::digits, base); });
}

// Defaulting form for numbers. An absent attribute reads as an empty text, which is not a number either.
template <typename Number>
Number numberOr(const QString& name, const QDomElement& element, Number defaultValue, int base)
{
    return toNumber<Number>(element.attribute(name), base).value_or(defaultValue);
}
} // namespace

CDomDoc::CDomDoc() = default;

bool CDomDoc::success(EResult result)
{
    return result == EResult::Success;
}

CDomDoc::EResult CDomDoc::existingSubElement(
    const QString& name, const QDomElement& element, QDomElement& value, QString& errorText)
{
    const QDomElement child = element.firstChildElement(name);
    if (child.isNull()) {
        errorText = missingMessage(EItem::Element, name, element);
        return EResult::Missing;
    }
    value = child;
    return EResult::Success;
}

QDomElement CDomDoc::existingSubElement(const QString& name, const QDomElement& element)
{
    return element.firstChildElement(name);
}

CDomDoc::EResult CDomDoc::existingSubElementAsString(
    const QString& name, const QDomElement& element, QString& value, QString& errorText)
{
    return readText(EItem::Element, name, element, value, errorText);
}

QString CDomDoc::existingSubElementAsString(
    const QString& name, const QDomElement& element, const QString& defaultValue)
{
    QString text;
    return findText(EItem::Element, name, element, text) ? text : defaultValue;
}

CDomDoc::EResult CDomDoc::existingSubElementAsU32(
    const QString& name, const QDomElement& element, unsigned int& value, QString& errorText, int base)
{
    return readNumber(EItem::Element, name, element, value, errorText, base);
}

QDate CDomDoc::existingSubElementAsDate(const QString& name, const QDomElement& element, const QDate& defaultValue)
{
    return CXmlValue::toDate(element.firstChildElement(name).text()).value_or(defaultValue);
}

CDomDoc::EResult CDomDoc::existingAttribute(
    const QString& name, const QDomElement& element, QString& value, QString& errorText)
{
    return readText(EItem::Attribute, name, element, value, errorText);
}

QString CDomDoc::existingAttribute(const QString& name, const QDomElement& element, const QString& defaultValue)
{
    return element.attribute(name, defaultValue);
}

CDomDoc::EResult CDomDoc::existingAttributeAsU8(
    const QString& name, const QDomElement& element, unsigned char& value, QString& errorText, int base)
{
    return readNumber(EItem::Attribute, name, element, value, errorText, base);
}

unsigned char CDomDoc::existingAttributeAsU8(
    const QString& name, const QDomElement& element, unsigned char defaultValue, int base)
{
    return numberOr(name, element, defaultValue, base);
}

CDomDoc::EResult CDomDoc::existingAttributeAsU32(
    const QString& name, const QDomElement& element, unsigned int& value, QString& errorText, int base)
{
    return readNumber(EItem::Attribute, name, element, value, errorText, base);
}

unsigned int CDomDoc::existingAttributeAsU32(
    const QString& name, const QDomElement& element, unsigned int defaultValue, int base)
{
    return numberOr(name, element, defaultValue, base);
}

CDomDoc::EResult CDomDoc::existingAttributeAsBool(
    const QString& name, const QDomElement& element, bool& value, QString& errorText, const QString& trueText,
    const QString& falseText)
{
    return readValue(
        EItem::Attribute, name, element, value, errorText,
        [&](const QString& text) { return CXmlValue::toBool(text, trueText, falseText); },
        [&] { return boolean(trueText, falseText); });
}

bool CDomDoc::existingAttributeAsBool(
    const QString& name, const QDomElement& element, bool defaultValue, const QString& trueText,
    const QString& falseText)
{
    QString text;
    return findText(EItem::Attribute, name, element, text)
               ? CXmlValue::toBool(text, trueText, falseText).value_or(defaultValue)
               : defaultValue;
}

CDomDoc::EResult CDomDoc::existingAttributeAsDate(
    const QString& name, const QDomElement& element, QDate& value, QString& errorText)
{
    return readValue(EItem::Attribute, name, element, value, errorText, CXmlValue::toDate, date);
}

QDate CDomDoc::existingAttributeAsDate(const QString& name, const QDomElement& element, const QDate& defaultValue)
{
    return CXmlValue::toDate(element.attribute(name)).value_or(defaultValue);
}

QTime CDomDoc::existingAttributeAsTime(const QString& name, const QDomElement& element, const QTime& defaultValue)
{
    return CXmlValue::toTime(element.attribute(name)).value_or(defaultValue);
}
