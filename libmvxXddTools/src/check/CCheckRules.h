#ifndef MVXXDDTOOLS_CCHECKRULES_H
#define MVXXDDTOOLS_CCHECKRULES_H

#include "canopen/CDescription.h"
#include "remarks/SRule.h"

#include <vector>

/** A rule of the checker: it adds to the findings what it finds in a description. */
using SCheckRule = SRule<const CDescription&, CRemarks&>;
using CheckRules = std::vector<SCheckRule>;

/** The tables of rules, by what they look at. */
class CCheckRules
{
    Q_DECLARE_TR_FUNCTIONS(mvxXddTools)

public:
    static const CheckRules& form(); ///< How XML is written
    static const CheckRules& eds();  ///< How the INI form is written
    static const CheckRules& identity();
    static const CheckRules& object();
    static const CheckRules& type();
    static const CheckRules& value();
    static const CheckRules& pdo();
    static const CheckRules& cobId();
    static const CheckRules& network();
};

#endif
