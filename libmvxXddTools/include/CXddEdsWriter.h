#ifndef MVXXDDTOOLS_CXDDEDSWRITER_H
#define MVXXDDTOOLS_CXDDEDSWRITER_H

#include "CXddCommissioning.h"
#include "CXddDocument.h"
#include "CXddRemark.h"
#include "mvxXddTools_export.h"

#include <QByteArray>
#include <QList>

/** A description in one of the INI forms of CiA 306 (EDS, DCF). */
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
 * Writes descriptions for the tools that read the INI forms only. The same description always gives the same bytes. The
 * functions keep no state and may run on any thread.
 */
class MVXXDDTOOLS_EXPORT CXddEdsWriter
{
public:
    /** The EDS of a description; nothing for one that is not open. */
    static CXddEds write(const CXddDocument& document);

    /** The DCF of a description: with actual values, denotations and what is configured for the
     * device in its network. The node-ID has to be one; "$NODEID" stays in values. */
    static CXddEds writeDcf(const CXddDocument& document, const CXddCommissioning& commissioning);
};

#endif
