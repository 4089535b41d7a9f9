#ifndef MVXXDDTOOLS_CXDDEDSWRITER_H
#define MVXXDDTOOLS_CXDDEDSWRITER_H

#include "CXddDocument.h"
#include "CXddRemark.h"
#include "mvxXddTools_export.h"

#include <QByteArray>
#include <QList>

/** A description in the INI form of CiA 306 (EDS). */
class MVXXDDTOOLS_EXPORT CXddEds
{
public:
    CXddEds();

    QByteArray mText;          ///< The whole file, with CR and LF at the ends of lines
    int mEntries = 0;          ///< Objects and sub-objects of the description
    int mIncomplete = 0;       ///< Those of them that the file does not fully represent
    QList<CXddRemark> mLosses; ///< What it does not say, in the order of the lines
};

/**
 * Writes descriptions for the tools that read EDS files only. The same description always gives the same bytes. The
 * functions keep no state and may run on any thread.
 */
class MVXXDDTOOLS_EXPORT CXddEdsWriter
{
public:
    /** The INI form of a description, which has to be open. */
    static CXddEds write(const CXddDocument& document);
};

#endif
