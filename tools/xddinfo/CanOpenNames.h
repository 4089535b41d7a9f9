#ifndef XDDINFO_CANOPENNAMES_H
#define XDDINFO_CANOPENNAMES_H

#include <QString>

/** @file
 * What CiA 301 calls the numbers of an object dictionary.
 */

/** An object or sub-object code such as "VAR"; the number itself for an unknown one. */
QString objectCodeName(unsigned char objectType);

/** A data type such as "UNSIGNED32"; the number as "0x0042" for an unknown one, nothing for 0. */
QString dataTypeName(unsigned char dataType);

/** An object index such as "0x1018". */
QString indexText(unsigned int index);

/** A sub-index such as "0x0A". */
QString subIndexText(unsigned int subIndex);

/** The three kinds of object that a description counts. */
enum class EObjectKind
{
    Mandatory,    ///< every device has it: 0x1000, 0x1001 and 0x1018
    Manufacturer, ///< in the manufacturer's range, 0x2000 to 0x5FFF
    Optional      ///< all others
};

/** The kind of the object with that index. */
EObjectKind objectKind(unsigned int index);

#endif
