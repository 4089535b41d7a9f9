#ifndef MVXXDDTOOLS_HEXADECIMAL_H
#define MVXXDDTOOLS_HEXADECIMAL_H

#include <QLatin1String>
#include <QString>

/** @file
 * How hexadecimal numbers are written.
 */

/** How descriptions mark a hexadecimal number. */
constexpr QLatin1String HEXADECIMAL_PREFIX("0x", 2);

/** True for a text that begins with that mark, in either case. */
bool hasHexadecimalPrefix(const QString& text);

/** A number in at least so many upper-case hexadecimal digits. */
QString hexadecimalDigits(quint64 number, int digits);

/** A number as "0x" and at least so many upper-case hexadecimal digits. */
QString hexadecimalText(quint64 number, int digits);

#endif
