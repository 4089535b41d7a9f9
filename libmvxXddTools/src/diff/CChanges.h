#ifndef MVXXDDTOOLS_CCHANGES_H
#define MVXXDDTOOLS_CCHANGES_H

#include "CXddChange.h"
#include "diff/CDiffRules.h"
#include "diff/SSide.h"
#include "remarks/CRemarks.h"

#include <QHash>
#include <QSet>

/** What differs, with its two writings. */
struct SDifference
{
    QString old;
    QString now;
};

/** Collects changes. */
class CChanges
{
public:
    using Arguments = std::initializer_list<SArgument>;

    CChanges();

    /** Adds a change of what stands in both descriptions; a null entry stands for the head. In the words "%1" and "%2"
     * are what the sides state; the place is that of the attribute, where one is named and the new one states it. */
    void add(
        QLatin1String rule, const SEntry* old, const SEntry* now, const SWords& words, const SDifference& difference,
        QLatin1String attribute = {});
    /** The same with other arguments. */
    void add(
        QLatin1String rule, const SEntry* old, const SEntry* now, const SWords& words, const SDifference& difference,
        Arguments arguments, QLatin1String attribute = {});

    /** Adds that an entry is gone, which is probably elsewhere now, or is new and was probably elsewhere. */
    void addGone(const SEntry& old, const SEntry* now);
    void addNew(const SEntry& now, const SEntry* old);

    /** All of them in order. */
    QList<CXddChange> inOrder();

    /** True when there is one of that severity. */
    bool has(CXddRemark::ESeverity severity) const;
    /** True when there is one of that entry. */
    bool has(unsigned int index, std::optional<unsigned int> subIndex) const;

private:
    CXddChange change(QLatin1String rule, const SEntry* old, const SEntry* now) const;

    QHash<QString, const SDiffRule*> mRules;
    QList<CXddChange> mChanges;
    QSet<QString> mEntries; // That changes are about
};

#endif
