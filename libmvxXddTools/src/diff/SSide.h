#ifndef MVXXDDTOOLS_SSIDE_H
#define MVXXDDTOOLS_SSIDE_H

#include "CXddPdo.h"
#include "canopen/CDescription.h"
#include "canopen/Texts.h"

/** One of two descriptions that are compared. */
struct SSide
{
    const CDescription& description;
    CTexts& texts;
    CXddDevice device;
    const CDictionary& dictionary; ///< Without what is configured, unless both are
    QList<CXddPdo> pdos;
    QHash<unsigned int, QString> lists; ///< Objects that are not in the list for their index, and what is said of that
    bool isConfigured = false;          ///< It states actual values, or what is configured in the network

    bool isXdd() const { return description.isXdd(); }
};

/** The old and the new description. */
struct SSides
{
    const SSide& old;
    const SSide& now;

    /** True when both are XDDs, so that what only an XDD can state counts. */
    bool areXdd() const { return old.isXdd() && now.isXdd(); }
    bool areOfOneForm() const { return old.isXdd() == now.isXdd(); }
    /** True when values in force are compared, not defaults. */
    bool areConfigured() const { return old.isConfigured && now.isConfigured; }
};

class CChanges;

/** Compares what the descriptions say of their devices as a whole. */
void compareDevices(const SSides& sides, CChanges& changes);
/** Compares the object dictionaries. */
void compareDictionaries(const SSides& sides, CChanges& changes);
/** Compares what the PDOs of both are on the bus. */
void comparePdos(const SSides& sides, CChanges& changes);
/** True where what comparePdos() said says enough of the value of an entry. */
bool isSaidOfPdo(const SEntry& entry, const SSides& sides, const CChanges& changes);

/** True when two properties mean the same: equal values, or equal texts that are no values. */
bool areSame(const SValueProperty& old, const SValueProperty& now);

/** True when a revision or version of the new description is higher. */
bool isRevisionRaised(const SSides& sides);

#endif
