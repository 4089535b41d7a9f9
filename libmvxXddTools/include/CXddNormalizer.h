#ifndef MVXXDDTOOLS_CXDDNORMALIZER_H
#define MVXXDDTOOLS_CXDDNORMALIZER_H

#include "CXddDocument.h"
#include "CXddRemark.h"
#include "CXddRule.h"
#include "mvxXddTools_export.h"

#include <QByteArray>
#include <QList>
#include <QString>

class ICIso15745;

/** A description in the form that the library reads. */
class MVXXDDTOOLS_EXPORT CXddCopy
{
public:
    CXddCopy();

    QByteArray mText;           ///< The whole file, in its encoding; what it was when there was nothing to do
    bool mLoads = true;         ///< False when something was left that ICIso15745::load refuses
    QList<CXddRemark> mRemarks; ///< What was changed and what was left, in the order of the lines
};

/**
 * Brings the CANopen descriptions that exist into the form that the library reads.
 *
 * Most descriptions rely on defaults, write hexadecimal numbers without a prefix, or keep data types in parameters.
 * ICIso15745::load refuses these, or reads something else than they mean. A copy keeps the text as it is, character by
 * character, but for insertions and replaced values, each of which is reported. xddnormalize(1) has the rules.
 *
 * The functions keep no state and may run on any thread.
 */
class MVXXDDTOOLS_EXPORT CXddNormalizer
{
public:
    /** The copy of a description; nothing for one that is not open. What is unknown or ambiguous is left as it is. */
    static CXddCopy normalize(const CXddDocument& document);

    /**
     * A copy of a description in XML for publishing: what the findings of CXddChecker are about and has one right
     * writing is put right. What has no one right writing is left, and so is what is not among the findings, such as
     * what a comment hides. The copy of an EDS is an XDD with all that it states and no defaults that it does not: the
     * findings are not asked then.
     */
    static CXddCopy conform(const CXddDocument& document, const QList<CXddRemark>& findings);

    /**
     * Loads a description as ICIso15745::load does, normalised. What the library could not read, such as an object that
     * is there twice, is left out and reported. No file is written.
     *
     * @param document the description; one that is not open fails
     * @param reader   the reader to load into
     * @param remarks  replaced by what was changed and what was left out, in the order of the lines
     * @param failure  replaced by the reason when the load fails
     * @return true when every profile of the description was read
     */
    static bool load(const CXddDocument& document, ICIso15745& reader, QList<CXddRemark>& remarks, CXddRemark& failure);

    /** Loads the bytes of a document as they are, as ICIso15745::load does it with their file. The document need not be
     * open. Returns false with the message of that function. */
    static bool loadAsItIs(const CXddDocument& document, ICIso15745& reader, QString& errorText);

    /** The rules by which a description is normalised, in the order in which they are applied. */
    static QList<CXddRule> rules();
};

#endif
