#ifndef TESTS_DESCRIPTION_H
#define TESTS_DESCRIPTION_H

#include <ICIso15745.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

/** The content of a file of the folder tests/data; fails the test when there is none. */
QByteArray testData(const QString& name);

/** The description that the tests of the library change: small, valid, and with every element that the library reads.
 */
QByteArray description();

/** A copy of @p text in which @p before is replaced by @p after; fails the test when it occurs not exactly once. */
QByteArray changed(const QByteArray& text, const QByteArray& before, const QByteArray& after);

/** Loads @p text from a temporary file. */
bool loadText(ICIso15745& reader, const QByteArray& text, QString& errorText);

/** Every field of everything that a reader holds, one line each: "deviceProfile.mFileName = d.xdd". */
QStringList dump(ICIso15745& reader);

/** What makes the second of two sequences of the first: the lines to take away behind "-", those to add behind "+". */
QStringList differences(const QStringList& first, const QStringList& second);

#endif
