#ifndef TOOLS_MESSAGES_H
#define TOOLS_MESSAGES_H

#include <QString>
#include <QVector>

/** @file
 * What tools say on standard error, and how texts of a file are shown.
 */

/**
 * A text of a file in a form that a terminal only shows: control characters, and characters that change the direction
 * of the text around them, become escapes such as "\u001B".
 */
QString printable(const QString& text);

/** Writes a message behind the name of the program. */
void complain(const QString& text);

/** Writes a message about a file, as "FILE:LINE: message" where the message names a line of it. */
void complainAbout(const QString& fileName, const QString& message);

/** Writes a line as it is. */
void reportLine(const QString& text);

/** One line of a report about a file. */
struct SReportLine
{
    int line = 0;   ///< Line of the file
    QString group;  ///< What lines that are alike have in common
    QString text;   ///< What is reported
    QString ending; ///< What stands behind the text, also when it is summed up
};

/** The lines of a report, with more than @p most of one group summed up in the first of them: "and 12 more like this up
 * to line 99". */
QVector<SReportLine> summedUp(const QVector<SReportLine>& lines, int most = 10);

/** "FILE:LINE: " */
QString place(const QString& fileName, int line);

#endif
