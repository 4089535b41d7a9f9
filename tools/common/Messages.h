#ifndef TOOLS_MESSAGES_H
#define TOOLS_MESSAGES_H

#include <CXddRemark.h>

#include <QJsonObject>
#include <QList>
#include <QString>

#include <limits>
#include <optional>

/** @file
 * What tools say on standard error, and how texts of a file are shown.
 */

/**
 * A text of a file in a form that a terminal only shows: control characters, and characters that change the direction
 * of the text around them, become escapes such as "\u001B".
 */
QString printable(const QString& text);

/** An object as JSON on one line, in which a terminal shows every character. */
QString jsonLine(const QJsonObject& object);

/** A number as JSON; null for none. */
QJsonValue numberOrNull(const std::optional<unsigned int>& number);

/** Writes a message behind the name of the program. */
void complain(const QString& text);

/** Writes why something failed with a file, behind the place that is to blame. */
void complainAbout(const QString& fileName, const CXddRemark& failure);

/** Writes a line as it is. */
void reportLine(const QString& text);

/** As many remarks of one group are told one by one; EACH for all of them. */
constexpr int MOST = 10;
constexpr int EACH = std::numeric_limits<int>::max();

/** A remark, and the text with which it stands for others that are alike. */
struct STold
{
    CXddRemark remark;
    QString text;
};

/** The remarks with more than @p most of one group summed up in the first of them: "and 12 more like this up to line
 * 99". */
QList<STold> summedUp(const QList<CXddRemark>& remarks, int most = MOST);

/** Writes a line for each remark, summed up: "FILE:LINE: text, reason", or with the rule "FILE:LINE: text [rule]". */
void reportRemarks(const QString& fileName, const QList<CXddRemark>& remarks, int most = MOST, bool showsRules = false);

/** "FILE:LINE:COLUMN: " as far as they are known; "FILE: " for what is at no line. */
QString place(const QString& fileName, int line, int column = 0);

#endif
