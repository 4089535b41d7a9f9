#ifndef MVXXDDTOOLS_TEXTS_H
#define MVXXDDTOOLS_TEXTS_H

#include "CXddEntryTexts.h"
#include "canopen/CDescription.h"

#include <QHash>

/** @file
 * Labels, descriptions, units and allowed values: what a description says for people.
 */

/** The texts of the entries of a description. Those of a parameter are read once, whatever refers to it. */
class CTexts
{
public:
    /** @p description has to outlive this object. */
    explicit CTexts(const CDescription& description);

    /** The texts of an entry: its own, then those of its parameter. */
    CXddEntryTexts of(const SEntry& entry);

private:
    CXddEntryTexts ofParameter(const CXmlElement& parameter) const;

    const CDescription& mDescription;
    QHash<int, CXddEntryTexts> mOfParameters; // By where they begin
};

#endif
