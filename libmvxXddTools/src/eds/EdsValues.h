#ifndef MVXXDDTOOLS_EDSVALUES_H
#define MVXXDDTOOLS_EDSVALUES_H

#include <QDate>
#include <QString>
#include <QStringView>
#include <QTime>

#include <optional>

/** @file
 * How values and texts are written in an EDS file, so that every reader takes them for what they are, and what those
 * that exist mean.
 */

/** A value of a description in the form of the file. */
struct SEdsValue
{
    QString text;            ///< Nothing when it cannot be written
    bool lostSuffix = false; ///< A suffix such as "LL" was taken off
    bool isText = false;     ///< Made from characters, not from a number
};

/** The value of a text that is not empty: signed numbers as signed decimals, "$NODEID" first, without leading zeros;
 * octets without spaces. */
SEdsValue edsValue(const QString& text, unsigned int dataType);

/** A text in the form of the file, and what had to be changed. */
struct SEdsText
{
    QString text;
    bool isTrimmed = false;  ///< Outer spaces or control characters
    bool isReplaced = false; ///< ";", "#" or a leading quote, which end or change a text in some readers
    bool isCut = false;      ///< It was too long
    bool isUnicode = false;  ///< It has characters outside of ASCII, which are kept as UTF-8
};

/** A text of at most @p length characters. */
SEdsText edsText(const QString& text, int length);

/** "10-05-2011" */
QString edsDate(const QDate& date);

/** "09:09AM"; half past midnight is "12:30AM". */
QString edsTime(const QTime& time);

/** What a text of a file means, and whether it is written as the form demands. */
template <typename Value> struct SEdsMeaning
{
    std::optional<Value> value;
    bool isPlain = true;
};

/** True for one or more hexadecimal digits and nothing else. */
bool isHexadecimal(QStringView text);

/** A number: decimal, hexadecimal with "0x", octal with a leading 0; a comment may follow it. */
SEdsMeaning<unsigned int> edsNumberOf(QStringView text);

/** A date: month, day, year; other orders where they are not ambiguous. */
SEdsMeaning<QDate> edsDateOf(QStringView text);

/** A time of day with AM or PM, or of 24 hours. */
SEdsMeaning<QTime> edsTimeOf(QStringView text);

/** A value of a numeric type without a comment behind it, and decimal where a leading 0 makes it octal. */
SEdsMeaning<QString> edsValueOf(QStringView text);

/** A text without one pair of quotes around it. */
SEdsMeaning<QString> edsTextOf(QStringView text);

#endif
