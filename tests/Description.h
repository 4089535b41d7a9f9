#ifndef TESTS_DESCRIPTION_H
#define TESTS_DESCRIPTION_H

#include <ICIso15745.h>

#include <QByteArray>
#include <QString>

/** The description that the tests change: small, valid, and with every element that the library reads. */
QByteArray description();

/** A copy of @p text in which @p before is replaced by @p after; fails the test when it occurs not exactly once. */
QByteArray changed(const QByteArray& text, const QByteArray& before, const QByteArray& after);

/** Loads @p text from a temporary file. */
bool loadText(ICIso15745& reader, const QByteArray& text, QString& errorText);

#endif
