#ifndef MVXXDDTOOLS_OBJECTCODES_H
#define MVXXDDTOOLS_OBJECTCODES_H

#include <QLatin1String>
#include <QString>

/** @file
 * The object codes of CiA 301, the "objectType" of an object or sub-object.
 */

constexpr unsigned int CODE_DOMAIN = 2; ///< A block of data
constexpr unsigned int CODE_VAR = 7;
constexpr unsigned int CODE_ARRAY = 8;
constexpr unsigned int CODE_RECORD = 9;

/** The sub-index that holds the structure of an object and is none of its elements. */
constexpr unsigned int STRUCTURE_SUB_INDEX = 255;

/** An object code. */
struct SObjectCode
{
    unsigned int code;
    QLatin1String name; ///< In CiA 301
    bool isOfObject;    ///< An object can have it
    bool isOfSubObject; ///< A sub-object can have it
    bool hasSubObjects; ///< An object with it has sub-objects
    bool isInEds;       ///< The INI form can say it
};

/** An object code; one without a name that nothing can have when CiA 301 has none such. */
const SObjectCode& objectCodeOf(unsigned int code);

/** The object code that CiA 301 names like that, such as 7 for "VAR"; 0 for another name. */
unsigned int objectCodeNamed(const QString& name);

#endif
