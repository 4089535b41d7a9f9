#ifndef XDDNORMALIZE_CRULES_H
#define XDDNORMALIZE_CRULES_H

#include <QString>

/** @file
 * The table of the rules. The manual page repeats it for the user.
 */

/** Why a description is changed, or why a place of it is left although it cannot be read. */
enum class ERule
{
    ReadOnly,
    DeviceFunction,
    Required,
    ClassId,
    FileAttribute,
    FileDate,
    BitRate,
    Name,
    Number,
    Parameter,
    Spelling,
    Compliance,
    Left
};

/** The reason of a rule, for a report: why the change is what the file means. */
QString reasonOf(ERule rule);

#endif
