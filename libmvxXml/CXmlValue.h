#ifndef MVXXML_CXMLVALUE_H
#define MVXXML_CXMLVALUE_H

#include "mvxXml_export.h"

#include <QDate>
#include <QString>
#include <QTime>

#include <limits>
#include <optional>

/**
 * The value that a text of an XML document stands for: nothing when it is no value of the type. White space around the
 * text is ignored.
 */
class MVXXML_EXPORT CXmlValue
{
public:
    /**
     * An unsigned number from 0 to @p highest in the given base, converted exactly when QString::toUInt does it: 16
     * reads hexadecimal digits with or without "0x"; 0 lets the prefix decide, hexadecimal after "0x", octal after a
     * leading "0", decimal otherwise. A fraction, further text, or a number that is too large do not convert.
     */
    static std::optional<unsigned int> toNumber(
        const QString& text, int base, unsigned int highest = std::numeric_limits<unsigned int>::max());

    /** True for @p trueText, false for @p falseText, both compared exactly. */
    static std::optional<bool> toBool(const QString& text, const QString& trueText, const QString& falseText);

    /** A date yyyy-MM-dd. It may carry a time zone ("Z", "+02:00" up to 14:00), which is dropped. */
    static std::optional<QDate> toDate(const QString& text);

    /** A time hh:mm:ss with an optional fraction of a second, of which milliseconds are kept, and an optional time
     * zone, which is dropped: "11:06:00+02:00" is 11:06:00. */
    static std::optional<QTime> toTime(const QString& text);
};

#endif
