#ifndef MVXXDDTOOLS_WALKS_H
#define MVXXDDTOOLS_WALKS_H

#include "CCanOpenNames.h"
#include "canopen/PdoDoubts.h"
#include "check/CCheckRules.h"

/** @file
 * How rules go through a dictionary, and the small questions that they ask.
 */

constexpr bool isBetween(unsigned int number, unsigned int first, unsigned int last)
{
    return number >= first && number <= last;
}

/** Calls for every object. */
template <typename Look> void forObjects(const CDescription& description, Look look)
{
    for (const std::size_t number : description.dictionary().objects()) {
        look(description.dictionary().entries()[number]);
    }
}

/** Calls for everything that has a value. */
template <typename Look> void forVariables(const CDescription& description, Look look)
{
    for (const SEntry& entry : description.dictionary().entries()) {
        if (entry.isVariable()) {
            look(entry);
        }
    }
}

#endif
