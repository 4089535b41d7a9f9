#ifndef MVXXML_CDOMDOC_H
#define MVXXML_CDOMDOC_H

#include "mvxXml_export.h"

#include <QDate>
#include <QDomDocument>
#include <QDomElement>
#include <QString>
#include <QTime>

/**
 * A DOM document with typed access to child elements and attributes.
 *
 * The access functions are static and work on any element. They come in two forms with the same argument order, the
 * name first, then the element to look in:
 *
 * - The reporting form stores the value in an output reference and returns an EResult. When it fails it replaces the
 *   error text by one translated sentence (context "CDomDoc") that names the item, the element that it was looked for
 *   in and that element's line, and leaves the output as it was. When it succeeds it does not touch the error text.
 * - The defaulting form returns the value, or the given default when the item is absent or does not convert.
 *
 * A child element is a direct child with exactly that tag name, the first one in document order. An attribute is one
 * of the element itself. Both are compared by local name, case-sensitively. An item that is present but empty is
 * there: it reads as an empty text. Texts are returned as they stand.
 *
 * Numbers, booleans, dates and times convert as CXmlValue says.
 *
 * The functions keep no state and only read the element, so they may run on any thread as long as nobody changes the
 * document meanwhile.
 */
class MVXXML_EXPORT CDomDoc : public QDomDocument
{
public:
    /** Outcome of a reporting read. */
    enum class EResult
    {
        Success,       ///< The item is there and its value was stored.
        Missing,       ///< There is no such child element or attribute.
        NotConvertible ///< The item is there, but its text is not a value of the wanted type.
    };

    /** An empty document, to be filled with QDomDocument::setContent. */
    CDomDoc();

    /** True for EResult::Success, false for every other outcome. */
    static bool success(EResult result);

    /** Finds the first child element @p name of @p element (reporting form). */
    static EResult existingSubElement(
        const QString& name, const QDomElement& element, QDomElement& value, QString& errorText);

    /** The first child element @p name of @p element, or a null element when there is none. */
    static QDomElement existingSubElement(const QString& name, const QDomElement& element);

    /** Reads the text of the first child element @p name (reporting form). */
    static EResult existingSubElementAsString(
        const QString& name, const QDomElement& element, QString& value, QString& errorText);

    /** The text of the first child element @p name, or @p defaultValue. */
    static QString existingSubElementAsString(
        const QString& name, const QDomElement& element, const QString& defaultValue);

    /** Reads the first child element @p name as an unsigned 32-bit number in @p base (reporting form). */
    static EResult existingSubElementAsU32(
        const QString& name, const QDomElement& element, unsigned int& value, QString& errorText, int base);

    /** The first child element @p name as a date, or @p defaultValue. */
    static QDate existingSubElementAsDate(const QString& name, const QDomElement& element, const QDate& defaultValue);

    /** Reads the attribute @p name as a text (reporting form). */
    static EResult existingAttribute(
        const QString& name, const QDomElement& element, QString& value, QString& errorText);

    /** The attribute @p name as a text, or @p defaultValue. */
    static QString existingAttribute(const QString& name, const QDomElement& element, const QString& defaultValue);

    /** Reads the attribute @p name as an unsigned 8-bit number, 0 to 255, in @p base (reporting form). */
    static EResult existingAttributeAsU8(
        const QString& name, const QDomElement& element, unsigned char& value, QString& errorText, int base);

    /** The attribute @p name as an unsigned 8-bit number, 0 to 255, in @p base, or @p defaultValue. */
    static unsigned char existingAttributeAsU8(
        const QString& name, const QDomElement& element, unsigned char defaultValue, int base);

    /** Reads the attribute @p name as an unsigned 32-bit number in @p base (reporting form). */
    static EResult existingAttributeAsU32(
        const QString& name, const QDomElement& element, unsigned int& value, QString& errorText, int base);

    /** The attribute @p name as an unsigned 32-bit number in @p base, or @p defaultValue. */
    static unsigned int existingAttributeAsU32(
        const QString& name, const QDomElement& element, unsigned int defaultValue, int base);

    /** Reads the attribute @p name as a boolean: true for @p trueText, false for @p falseText (reporting form). */
    static EResult existingAttributeAsBool(
        const QString& name, const QDomElement& element, bool& value, QString& errorText, const QString& trueText,
        const QString& falseText);

    /** The attribute @p name as a boolean: true for @p trueText, false for @p falseText, or @p defaultValue. */
    static bool existingAttributeAsBool(
        const QString& name, const QDomElement& element, bool defaultValue, const QString& trueText,
        const QString& falseText);

    /** Reads the attribute @p name as a date (reporting form). */
    static EResult existingAttributeAsDate(
        const QString& name, const QDomElement& element, QDate& value, QString& errorText);

    /** The attribute @p name as a date, or @p defaultValue. */
    static QDate existingAttributeAsDate(const QString& name, const QDomElement& element, const QDate& defaultValue);

    /** The attribute @p name as a time of day, or @p defaultValue. */
    static QTime existingAttributeAsTime(const QString& name, const QDomElement& element, const QTime& defaultValue);
};

#endif
