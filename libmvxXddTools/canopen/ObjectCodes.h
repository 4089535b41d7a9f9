#ifndef MVXXDDTOOLS_OBJECTCODES_H
#define MVXXDDTOOLS_OBJECTCODES_H

/** @file
 * The object codes of CiA 301, the "objectType" of an object or sub-object.
 */

constexpr unsigned int CODE_DOMAIN = 2; ///< A block of data
constexpr unsigned int CODE_DEFTYPE = 5;
constexpr unsigned int CODE_DEFSTRUCT = 6;
constexpr unsigned int CODE_VAR = 7;
constexpr unsigned int CODE_ARRAY = 8;
constexpr unsigned int CODE_RECORD = 9;

/** The sub-index that holds the structure of an object and is none of its elements. */
constexpr unsigned int STRUCTURE_SUB_INDEX = 255;

#endif
