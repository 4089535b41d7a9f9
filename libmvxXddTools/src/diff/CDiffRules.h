#ifndef MVXXDDTOOLS_CDIFFRULES_H
#define MVXXDDTOOLS_CDIFFRULES_H

#include "CXddChange.h"

#include <QCoreApplication>

#include <vector>

/** A row of the table of rules on what changes between two descriptions. */
struct SDiffRule
{
    const char* id; ///< Such as "type-widened"
    CXddRemark::ESeverity severity;
    unsigned int concerns;  ///< Of CXddChange::EConcern
    bool concernsMapped;    ///< Who reads frames as well, where the entry can be mapped
    const char* summary;    ///< What changed, and why that grade
    const char* help;       ///< What to do
    const char* wrong = ""; ///< An example: the old description
    const char* right = ""; ///< The new one
};

using DiffRules = std::vector<SDiffRule>;

/** The tables of rules on what changes, by what they are about. */
class CDiffRules
{
    Q_DECLARE_TR_FUNCTIONS(mvxXddTools)

public:
    static const DiffRules& entries(); ///< What entries there are, and what they are.
    static const DiffRules& values();  ///< What values mean and which there are.
    static const DiffRules& pdos();    ///< What is on the bus as process data.
    static const DiffRules& network(); ///< How the device takes part in its network.
    static const DiffRules& people();  ///< What people and tools tell versions apart by.

    /** All of them, in the order of the manual. */
    static const std::vector<const DiffRules*>& tables();
};

#endif
