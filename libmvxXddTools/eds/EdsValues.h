#ifndef MVXXDDTOOLS_EDSVALUES_H
#define MVXXDDTOOLS_EDSVALUES_H

#include <QDate>
#include <QString>
#include <QTime>

/** @file
 * How values and texts are written in an EDS file, so that every reader takes them for what they are.
 */

/** A value of a description in the form of the file. */
struct SEdsValue
{
    QString text;            ///< Nothing when it cannot be written
    bool lostSuffix = false; ///< A suffix such as "LL" was taken off
    bool isText = false;     ///< Made from characters, not from a number
};

/** The value of a text that is not empty: signed numbers as signed decimals, "$NODEID" first, without leading zeros;
 * octets without blanks. */
SEdsValue edsValue(const QString& text, unsigned int dataType);

/** A text in the form of the file, and what had to be changed. */
struct SEdsText
{
    QString text;
    bool isTrimmed = false;  ///< Outer blanks or control characters
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

#endif
