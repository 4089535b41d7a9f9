#ifndef MVXXDDTOOLS_XMLTEXT_H
#define MVXXDDTOOLS_XMLTEXT_H

#include <QString>

/** @file
 * How characters are written in XML.
 */

/** A text as it stands in an attribute with double quotes, or between tags. It consists of characters that XML allows.
 */
QString escapedXml(const QString& text);

/** The characters of a text that XML allows. */
QString allowedInXml(const QString& text);

#endif
