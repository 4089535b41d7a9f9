#ifndef MVXXDDTOOLS_CXDDRULE_H
#define MVXXDDTOOLS_CXDDRULE_H

#include "mvxXddTools_export.h"

#include <QString>

/** What one rule of a tool does, in the language of the program. */
class MVXXDDTOOLS_EXPORT CXddRule
{
public:
    CXddRule();

    QString mId;      ///< such as "read-only"
    QString mSummary; ///< what the rule looks for, and what becomes of it
    QString mReason;  ///< why
};

#endif
