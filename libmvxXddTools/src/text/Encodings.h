#ifndef MVXXDDTOOLS_ENCODINGS_H
#define MVXXDDTOOLS_ENCODINGS_H

#include <QByteArray>
#include <QString>

/** @file
 * Characters and bytes in every encoding that Qt knows. The major versions of Qt have nothing in common here.
 */

/** The proper name of an encoding, such as "UTF-8" for "utf8"; empty when it is not known. */
QByteArray encodingName(const QByteArray& name);

/** The characters of bytes without a byte order mark in a known encoding. */
QString decoded(const QByteArray& bytes, const QByteArray& encoding);

/** The bytes of a text in a known encoding, without a byte order mark. */
QByteArray encoded(const QString& text, const QByteArray& encoding);

#endif
