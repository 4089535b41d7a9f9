#ifndef MVXXDDTOOLS_CCANOPENNAMES_H
#define MVXXDDTOOLS_CCANOPENNAMES_H

#include "mvxXddTools_export.h"

#include <QString>

#include <optional>

/** What CiA 301 calls the numbers of an object dictionary, and how they are written. */
class MVXXDDTOOLS_EXPORT CCanOpenNames
{
public:
    /** The three kinds of object that a description counts. */
    enum class EObjectKind
    {
        Mandatory,   ///< every device has it: 0x1000, 0x1001 and 0x1018
        Optional,    ///< all that are neither
        Manufacturer ///< in the manufacturer's range, 0x2000 to 0x5FFF
    };

    /** The kind of the object with that index. */
    static EObjectKind objectKind(unsigned int index);

    /** The name of an object code such as "VAR" for 7; the number itself for an unknown one. */
    static QString objectCode(unsigned int objectType);

    /** The name of a data type such as "UNSIGNED32" for 7; the index for an unknown one, nothing for 0. */
    static QString dataType(unsigned int dataType);

    /** The name of a data type for narrow tables, such as "U32" for 7; that of dataType() where it has none. */
    static QString shortDataType(unsigned int dataType);

    /** The name of an entry behind that of its object, "Identity: Vendor-ID"; one of them where they are the same. */
    static QString fullName(const QString& object, const QString& name);

    /** The name of the device profile that the lower 16 bits of object 0x1000 name, such as "CiA 401, generic I/O
     * modules" for 0x191, in the language of the program; "CiA 499" for one without a name here, nothing for a number
     * that is none of CiA's. */
    static QString deviceProfile(unsigned int number);

    /** An object index such as "0x1018". */
    static QString index(unsigned int index);

    /** An entry of the object dictionary: an object such as "0x1018", or a sub-object such as "0x2001:0A". */
    static QString entry(unsigned int index, std::optional<unsigned int> subIndex = std::nullopt);
};

#endif
