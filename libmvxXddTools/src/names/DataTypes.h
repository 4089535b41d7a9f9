#ifndef MVXXDDTOOLS_DATATYPES_H
#define MVXXDDTOOLS_DATATYPES_H

#include <QLatin1String>
#include <QString>

/** @file
 * The data types of CiA 301 by their index in the object dictionary.
 */

constexpr unsigned int TYPE_BOOLEAN = 0x01;
constexpr unsigned int TYPE_UNSIGNED8 = 0x05;
constexpr unsigned int TYPE_UNSIGNED16 = 0x06;
constexpr unsigned int TYPE_UNSIGNED32 = 0x07;
constexpr unsigned int TYPE_REAL32 = 0x08;
constexpr unsigned int TYPE_VISIBLE_STRING = 0x09;
constexpr unsigned int TYPE_OCTET_STRING = 0x0A;
constexpr unsigned int TYPE_TIME_OF_DAY = 0x0C;
constexpr unsigned int TYPE_TIME_DIFFERENCE = 0x0D;
constexpr unsigned int TYPE_DOMAIN = 0x0F;
constexpr unsigned int TYPE_REAL64 = 0x11;

/** The types of a device and of its profile begin here, up to 0x025F. CiA 301 does not name them. */
constexpr unsigned int FIRST_OWN_TYPE = 0x40;
constexpr unsigned int LAST_TYPE = 0x25F;

/** The kinds of value that a data type can have. */
enum class EValueKind
{
    None, ///< A type that is not known, or has no values of its own
    Boolean,
    Unsigned,
    Signed,
    Real,
    Text,  ///< Strings, octets, blocks of data and times
    Record ///< A record of CiA 301, which no variable has
};

/** A data type. */
struct SDataType
{
    unsigned int index;
    EValueKind kind;
    int bits;                  ///< 0 for one without a fixed size
    QLatin1String name;        ///< In CiA 301
    QLatin1String shortName;   ///< For narrow tables
    QLatin1String processName; ///< In the application process; nothing when it has none there
    QLatin1String bitName;     ///< Its other name there, for a string of bits
};

/** The data type with that index; one without a name, of the kind None, when CiA 301 has none. */
const SDataType& dataTypeOf(unsigned int index);

/** The kind of the values of a data type. */
EValueKind valueKind(unsigned int dataType);

/** The size of a value of a data type in bits; 0 for one without a fixed size. */
int bitSize(unsigned int dataType);

/** The data type that CiA 301 names like that, such as 0x07 for "UNSIGNED32"; 0 for another name. */
unsigned int dataTypeNamed(const QString& name);

/** How a "dataType" is written so that the library reads it, too, which goes by the prefix: "0007", "0x0010". */
QString dataTypeText(unsigned int dataType);

/** The data type for a simple type of the application process, such as 0x07 for "UDINT"; 0 for any other element. */
unsigned int simpleType(const QString& name);

#endif
