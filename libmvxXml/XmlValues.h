#ifndef MVXXML_XMLVALUES_H
#define MVXXML_XMLVALUES_H

#include <QLatin1String>

/** @file
 * Value texts that XML documents of every kind share.
 */

/** Text of a boolean attribute or element that is set. */
constexpr QLatin1String VALUE_TRUE("true", 4);

/** Text of a boolean attribute or element that is not set. */
constexpr QLatin1String VALUE_FALSE("false", 5);

#endif
