#ifndef MVXXDDTOOLS_CXDDRULE_H
#define MVXXDDTOOLS_CXDDRULE_H

#include "CXddRemark.h"
#include "mvxXddTools_export.h"

#include <QString>

/** A rule by which descriptions are checked, normalised or written, in the language of the program. */
class MVXXDDTOOLS_EXPORT CXddRule
{
public:
    CXddRule();

    /** True when a pattern names a rule: its ID, in which "*" stands for any characters. */
    static bool isNamed(const QString& id, const QString& pattern);

    QString mId;      ///< Such as "read-only"
    QString mSummary; ///< What the rule looks for, and what becomes of it
    QString mReason;  ///< Why that matters or is right, and what to do
    QString mWrong;   ///< Of a rule of the checker: something that it finds
    QString mRight;   ///< The same as it should be

    CXddRemark::ESeverity mSeverity = CXddRemark::SEVERITY_NOTE; ///< Of its remarks
};

#endif
