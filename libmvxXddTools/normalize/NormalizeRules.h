#ifndef MVXXDDTOOLS_NORMALIZERULES_H
#define MVXXDDTOOLS_NORMALIZERULES_H

#include <vector>

class CDescription;
class CXmlEdits;

/** One rule of the normaliser. */
struct SNormalizeRule
{
    const char* id;      ///< Such as "read-only"
    const char* summary; ///< What it looks for and does, in English, to be translated in the context "mvxXddTools"
    const char* reason;  ///< Why that is what the file means, likewise
    bool matters;        ///< The file does not write it as the format does; see CXddChange
    void (*apply)(const CDescription& description, CXmlEdits& edits);
};

using NormalizeRules = std::vector<SNormalizeRule>;

// The rules by the part of a description that they look at, in the order in which they are applied: what several of
// them add to one start tag stands there in this order.
const NormalizeRules& headerRules();
const NormalizeRules& deviceRules();
const NormalizeRules& dictionaryRules();
const NormalizeRules& bitRateRules();

#endif
