#ifndef MVXXDDTOOLS_CXDDCHANGE_H
#define MVXXDDTOOLS_CXDDCHANGE_H

#include "mvxXddTools_export.h"

#include <QString>

/** What was done at one place of a description to bring it into the form that the library reads, or was left there. */
class MVXXDDTOOLS_EXPORT CXddChange
{
public:
    CXddChange();

    QString mWhat;   ///< what was done, in the language of the program, such as "dataType, accessType supplied"
    int mLine = 0;   ///< line of the original text, from 1
    QString mRule;   ///< ID of the rule, such as "read-only"; xddnormalize(1) has the list
    QString mReason; ///< why this is what the file means, or why the place was left, in the language of the program
    /** False for a place that the library cannot read and that was left as it is, because it is ambiguous or unknown.
     */
    bool mChanged = true;
    /** True where the file writes something in another way than the format does and a meaning was found for it, which
     * a reader of the description may want to know; false for what the format itself supplies or leaves open. */
    bool mMatters = false;
};

#endif
