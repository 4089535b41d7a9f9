#ifndef MVXXDDTOOLS_TEXTCHANGES_H
#define MVXXDDTOOLS_TEXTCHANGES_H

#include "CXddEntryTexts.h"
#include "diff/CChanges.h"

#include <vector>

/** A change of what a description says of an entry for people. */
struct STextChange
{
    const char* rule;
    SWords words;
    SDifference difference;
};

/** What changed in labels, descriptions, unit, scale and allowed values. */
std::vector<STextChange> textChanges(
    const SEntry& oldEntry, const CXddEntryTexts& old, const SEntry& newEntry, const CXddEntryTexts& now);

#endif
