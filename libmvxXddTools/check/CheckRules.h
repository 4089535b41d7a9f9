#ifndef MVXXDDTOOLS_CHECKRULES_H
#define MVXXDDTOOLS_CHECKRULES_H

#include "CXddFinding.h"
#include "canopen/CDescription.h"
#include "canopen/CDictionary.h"
#include "canopen/Pdos.h"

#include <vector>

class CFindings;

/** What the rules look at. */
struct SChecked
{
    const CDescription& description;
    const CDictionary& dictionary;
    const std::vector<SPdoMapping>& mappings; ///< Every PDO mapping of the dictionary
};

/** One rule of the checker. Its texts are in English, to be translated in the context "CFindings". */
struct SCheckRule
{
    const char* id; ///< Such as "limits-reversed"
    CXddFinding::ESeverity severity;
    const char* summary; ///< When it finds something
    const char* help;    ///< Why that matters, and what to do
    /** Looks for it; null for what is found before there is anything to look at. */
    void (*find)(const SChecked& checked, CFindings& findings);
};

using CheckRules = std::vector<SCheckRule>;

// The rules by what they look at.
const CheckRules& formRules();
const CheckRules& identityRules();
const CheckRules& objectRules();
const CheckRules& typeRules();
const CheckRules& valueRules();
const CheckRules& pdoRules();
const CheckRules& cobIdRules();
const CheckRules& networkRules();

#endif
