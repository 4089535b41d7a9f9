#ifndef MVXXDDTOOLS_DATATYPES_H
#define MVXXDDTOOLS_DATATYPES_H

#include <QString>

/** @file
 * The data types of CiA 301 by their index in the object dictionary.
 */

constexpr unsigned int TYPE_BOOLEAN = 0x01;
constexpr unsigned int TYPE_INTEGER8 = 0x02;
constexpr unsigned int TYPE_UNSIGNED8 = 0x05;
constexpr unsigned int TYPE_UNSIGNED16 = 0x06;
constexpr unsigned int TYPE_UNSIGNED32 = 0x07;
constexpr unsigned int TYPE_REAL32 = 0x08;
constexpr unsigned int TYPE_VISIBLE_STRING = 0x09;
constexpr unsigned int TYPE_OCTET_STRING = 0x0A;
constexpr unsigned int TYPE_DOMAIN = 0x0F;
constexpr unsigned int TYPE_REAL64 = 0x11;

/** The kinds of value that a data type can have. */
enum class EValueKind
{
    None, ///< A type that is not known, or has no values of its own
    Boolean,
    Unsigned,
    Signed,
    Real,
    Text ///< Strings, octets, blocks of data and times
};

/** The kind of the values of a data type. */
EValueKind valueKind(unsigned int dataType);

/** The size of a value of a data type in bits; 0 for one without a fixed size. */
int bitSize(unsigned int dataType);

/** The data type for a simple type of the application process, such as 0x07 for "UDINT"; 0 for any other element. */
unsigned int simpleType(const QString& name);

#endif
