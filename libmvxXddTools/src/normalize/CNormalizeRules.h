#ifndef MVXXDDTOOLS_CNORMALIZERULES_H
#define MVXXDDTOOLS_CNORMALIZERULES_H

#include "canopen/CDescription.h"
#include "normalize/CXmlEdits.h"
#include "remarks/SRule.h"

#include <vector>

/** A rule of the normaliser: it adds to the edits what it changes in a description. A warning is a change where the
 * file does not write something as the format does; see CXddRemark. */
using SNormalizeRule = SRule<const CDescription&, CXmlEdits&>;
using NormalizeRules = std::vector<SNormalizeRule>;

/** The tables of rules by the part of a description that they look at, in the order in which they are applied: what
 * several of them add to one start tag stands there in this order. */
class CNormalizeRules
{
    Q_DECLARE_TR_FUNCTIONS(mvxXddTools)

public:
    static const NormalizeRules& header();
    static const NormalizeRules& device();
    static const NormalizeRules& dictionary();
    static const NormalizeRules& bitRate();

    /** Rules for a copy for publishing, by the IDs of the checker: they put right what has one right writing. */
    static const NormalizeRules& conform();

    /** Rules for a copy that is only loaded: they leave out what has no one meaning, so that the rest can be read. */
    static const NormalizeRules& load();
};

#endif
