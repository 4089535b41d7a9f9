#ifndef TESTS_TESTENCODINGS_H
#define TESTS_TESTENCODINGS_H

#include <QByteArray>
#include <QList>
#include <QString>

/** The names of encodings that Qt knows, those in which markup looks different among them. */
QList<QByteArray> testEncodings();

/** A text in one of them. */
QByteArray encodedAs(const QByteArray& encoding, const QString& text);

#endif
