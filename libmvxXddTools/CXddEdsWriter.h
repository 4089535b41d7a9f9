#ifndef MVXXDDTOOLS_CXDDEDSWRITER_H
#define MVXXDDTOOLS_CXDDEDSWRITER_H

#include "mvxXddTools_export.h"

#include <QByteArray>
#include <QList>
#include <QString>

/** Something that a description says and its INI form cannot. */
class MVXXDDTOOLS_EXPORT CXddLoss
{
public:
    CXddLoss();

    int mLine = 0; ///< line of the description, from 1
    QString mKind; ///< what losses of one kind have in common, such as "access"
    QString mText; ///< what is lost or written in another way, in the language of the program
};

/** A description in the INI form of CiA 306 (EDS). */
class MVXXDDTOOLS_EXPORT CXddEds
{
public:
    CXddEds();

    QByteArray mText;        ///< the whole file, with CR and LF at the ends of lines
    int mEntries = 0;        ///< objects and sub-objects of the description
    int mIncomplete = 0;     ///< those of them that the file does not wholly say
    QList<CXddLoss> mLosses; ///< what is not said, in the order of the description
};

/**
 * Writes descriptions for the tools that read EDS files only.
 *
 * The description is normalised first. The same description always gives the same bytes. The functions keep no state
 * and may run on any thread.
 */
class MVXXDDTOOLS_EXPORT CXddEdsWriter
{
public:
    /**
     * Writes the INI form of a description.
     *
     * @param description the whole file, in any encoding that Qt knows
     * @param eds         replaced by the INI form and what it does not say
     * @param errorText   replaced by one message when the result is false; untouched otherwise
     * @return false when the text is not well-formed XML or no CANopen description; nothing but @p errorText is then
     *         changed
     */
    static bool write(const QByteArray& description, CXddEds& eds, QString& errorText);
};

#endif
