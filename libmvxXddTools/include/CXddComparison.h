#ifndef MVXXDDTOOLS_CXDDCOMPARISON_H
#define MVXXDDTOOLS_CXDDCOMPARISON_H

#include "CXddChange.h"
#include "CXddDocument.h"
#include "CXddRule.h"
#include "mvxXddTools_export.h"

#include <QList>

/**
 * Says what changed from one version of a description to the next, and whom it breaks. What the descriptions mean is
 * compared, not how they are written, and only what the forms of both can state. xdddiff(1) has the rules. The function
 * keeps no state and may run on any thread.
 */
class MVXXDDTOOLS_EXPORT CXddComparison
{
public:
    /** Nothing that differs. */
    CXddComparison();

    /** Compares two open documents. With one that is not open there is no change: mIsOpen says so. */
    static CXddComparison compare(const CXddDocument& old, const CXddDocument& now);

    /** The rules, in the order of the manual. */
    static QList<CXddRule> rules();

    /** How many changes of a grade there are. */
    int count(CXddRemark::ESeverity severity) const;
    /** "breaking", "compatible" or "editorial", the worst grade that there is, or "same"; the same in every language.
     */
    QString verdict() const;
    /** The verdict for people: "breaking: 3 changes break SDO access and PDO receivers; 14 compatible; revision not
     * raised (0x00010003)". */
    QString verdictText() const;
    /** Who is concerned, such as "SDO access and PDO receivers"; @p concerns are of CXddChange::EConcern. */
    static QString concernsText(unsigned int concerns);

    bool mIsOpen = false; ///< Both documents were open
    /** Breaking ones first, then by index and sub-index, the device before its entries. Those that are of no interest
     * may be taken out. */
    QList<CXddChange> mChanges;
    bool mIsRevisionRaised = false; ///< A revision or version of the device or file is higher than it was
    /** Revision number of the new description (object 0x1018, sub-index 3), else its file version, as it is written;
     * empty where it states none. */
    QString mRevision;
};

#endif
