#ifndef MVXXDDTOOLS_WALKS_H
#define MVXXDDTOOLS_WALKS_H

#include "check/CheckRules.h"

#include <algorithm>

/** @file
 * How rules go through a dictionary, and the small questions that they ask.
 */

template <typename List> bool contains(const List& list, unsigned int number)
{
    return std::find(std::begin(list), std::end(list), number) != std::end(list);
}

inline bool isBetween(unsigned int number, unsigned int first, unsigned int last)
{
    return number >= first && number <= last;
}

inline QString lineOf(const SDictionaryEntry& entry)
{
    return QString::number(entry.element.line());
}

/** Calls for every object. */
template <typename Look> void forObjects(const SChecked& checked, Look look)
{
    for (const std::size_t number : checked.dictionary.objects()) {
        look(checked.dictionary.entries()[number]);
    }
}

/** Calls for everything that has a value. */
template <typename Look> void forVariables(const SChecked& checked, Look look)
{
    for (const SDictionaryEntry& entry : checked.dictionary.entries()) {
        if (entry.isVariable()) {
            look(entry);
        }
    }
}

#endif
