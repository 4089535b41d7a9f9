#ifndef MVXXDDTOOLS_CEDSOBJECTS_H
#define MVXXDDTOOLS_CEDSOBJECTS_H

#include "eds/CEdsFile.h"

#include <QMap>

#include <optional>

/** The keys of a list by the sub-indexes that they have for a name. */
using EdsList = QHash<unsigned int, const SEdsKey*>;

/** The sections of one object. */
struct SEdsObject
{
    const SEdsSection* section = nullptr; ///< Null when there are only sections of sub-objects
    QMap<unsigned int, const SEdsSection*> subObjects;
    unsigned int compact = 0; ///< How many elements it describes itself (CompactSubObj)
    EdsList names;            ///< From the lists [hhhhName], [hhhhValue] and [hhhhDenotation]
    EdsList values;
    EdsList denotations;

    int line() const { return section != nullptr ? section->line : subObjects.first()->line; }
};

/** The object dictionary of a file, which has to outlive it: what belongs together in its sections. */
class CEdsObjects
{
public:
    /** Returns false, with the reason and its place, for more objects than any device has. */
    bool collect(const CEdsFile& file, CRemarks& remarks, CXddRemark& failure);

    /** Every object by its index. */
    const QMap<unsigned int, SEdsObject>& all() const { return mObjects; }
    /** The sections that belong to no object. */
    const std::vector<const SEdsSection*>& others() const { return mOthers; }

    /** True for a section that describes an object. */
    static bool isObject(const SEdsSection& section);

private:
    void addSubObject(unsigned int index, const SEdsSection& section, CRemarks& remarks);

    QMap<unsigned int, SEdsObject> mObjects;
    std::vector<const SEdsSection*> mOthers;
};

#endif
