#include "CXmlValue.h"

#include <algorithm>

namespace
{
// The value of a digit in bases up to 16, or 16 for a character that is none.
unsigned int digitValue(QChar character)
{
    const unsigned int code = character.unicode();
    if (code >= '0' && code <= '9') {
        return code - '0';
    }
    const unsigned int lower = code | 0x20;
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : 16;
}

// The value of a short number that is nothing but digits, as nearly all are. Qt converts every writing, but copies each
// text twice for it, which is a tenth of what reading a description costs beyond parsing.
std::optional<unsigned int> fromDigits(const QString& text, int base)
{
    const auto size = text.size();
    if (size == 0 || size > 8 || base > 16) { // What fits in any case
        return std::nullopt;
    }
    const unsigned int radix = base != 0 ? unsigned(base) : text.at(0) == QLatin1Char('0') ? 8 : 10;
    unsigned int number = 0;
    for (const QChar character : text) {
        const unsigned int digit = digitValue(character);
        if (digit >= radix) {
            return std::nullopt;
        }
        number = number * radix + digit;
    }
    return number;
}

bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

// True when the text has the length of the pattern, a digit wherever the pattern has a 9, and is equal elsewhere.
// Qt's own conversions of dates and times accept other separators and trailing text.
bool matches(const QString& text, QLatin1String pattern)
{
    return std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(), [](QChar character, char expected) {
        return expected == '9' ? isDigit(character) : character == QLatin1Char(expected);
    });
}

int numberAt(const QString& text, int position, int digits)
{
    return text.mid(position, digits).toInt();
}

// The text without surrounding white space and without the time zone of XML Schema: "Z" or an offset up to 14:00.
QString withoutZone(const QString& text)
{
    QString value = text.trimmed();
    if (value.endsWith(QLatin1Char('Z'))) {
        return value.chopped(1);
    }
    const QString zone = value.right(6);
    if (matches(zone, QLatin1String("+99:99")) || matches(zone, QLatin1String("-99:99"))) {
        const int minutes = numberAt(zone, 4, 2);
        if (minutes < 60 && numberAt(zone, 1, 2) * 60 + minutes <= 14 * 60) {
            return value.chopped(6);
        }
    }
    return value;
}

// The milliseconds of a fraction of a second with its point, 0 for an empty one; further digits are cut off.
std::optional<int> toMilliseconds(const QString& fraction)
{
    if (fraction.isEmpty()) {
        return 0;
    }
    if (!fraction.startsWith(QLatin1Char('.')) || fraction.size() == 1
        || !std::all_of(fraction.begin() + 1, fraction.end(), isDigit)) {
        return std::nullopt;
    }
    return numberAt(fraction.leftJustified(4, QLatin1Char('0')), 1, 3);
}
} // namespace

std::optional<unsigned int> CXmlValue::toNumber(const QString& text, int base, unsigned int highest)
{
    std::optional<unsigned int> number = fromDigits(text, base);
    if (!number && !text.isEmpty()) {
        bool ok = false;
        number = text.toUInt(&ok, base);
        if (!ok) {
            return std::nullopt;
        }
    }
    return number && *number <= highest ? number : std::nullopt;
}

std::optional<bool> CXmlValue::toBool(const QString& text, const QString& trueText, const QString& falseText)
{
    const QString value = text.trimmed();
    if (value == trueText) {
        return true;
    }
    if (value == falseText) {
        return false;
    }
    return std::nullopt;
}

std::optional<QDate> CXmlValue::toDate(const QString& text)
{
    const QString value = withoutZone(text);
    const QDate date(numberAt(value, 0, 4), numberAt(value, 5, 2), numberAt(value, 8, 2));
    if (!matches(value, QLatin1String("9999-99-99")) || !date.isValid()) {
        return std::nullopt;
    }
    return date;
}

std::optional<QTime> CXmlValue::toTime(const QString& text)
{
    const QString value = withoutZone(text);
    const std::optional<int> milliseconds = toMilliseconds(value.mid(8));
    if (!matches(value.left(8), QLatin1String("99:99:99")) || !milliseconds) {
        return std::nullopt;
    }
    const QTime time(numberAt(value, 0, 2), numberAt(value, 3, 2), numberAt(value, 6, 2), *milliseconds);
    if (!time.isValid()) {
        return std::nullopt;
    }
    return time;
}
