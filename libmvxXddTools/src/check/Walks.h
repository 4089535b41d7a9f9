#ifndef MVXXDDTOOLS_WALKS_H
#define MVXXDDTOOLS_WALKS_H

#include "CCanOpenNames.h"
#include "check/CCheckRules.h"

/** @file
 * How rules go through a dictionary, and the small questions that they ask.
 */

constexpr bool isBetween(unsigned int number, unsigned int first, unsigned int last)
{
    return number >= first && number <= last;
}

/** A text in quotes, with the line of the element that states it unless that is the given one. */
inline SArgument quoted(const QString& text, const CXmlElement& source, const CXmlElement& element)
{
    return source.isNull() || source == element
               ? CRemarks::filled({"\"%1\""}, {text})
               : CRemarks::filled(CRemarks::say("\"%1\" (line %2)"), {text, SArgument::line(source.line())});
}

inline SArgument quoted(const SValueProperty& property, const SEntry& entry)
{
    return quoted(property.text, property.source, entry.element);
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
