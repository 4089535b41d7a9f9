#ifndef MVXXDDTOOLS_CXDDPAGE_H
#define MVXXDDTOOLS_CXDDPAGE_H

#include "CXddComparison.h"
#include "CXddDocument.h"
#include "CXddRemark.h"
#include "mvxXddTools_export.h"

#include <QByteArray>
#include <QList>
#include <QString>

/**
 * A description as one page for a browser: the device, what its PDOs carry, its object dictionary, and what the checker
 * finds. It needs no other file, asks for none, and can be read without its script.
 *
 * Each object has a row with the ID "0x1018", each sub-object one with "0x1018.A", that links can lead to.
 */
class MVXXDDTOOLS_EXPORT CXddPage
{
public:
    /** A page that was not written. */
    CXddPage();

    /** How a page is written. */
    struct SOptions
    {
        unsigned int mNodeId = 0;                 ///< That of CAN-IDs; 0 for the one that the description states
        QString mLanguage = QStringLiteral("en"); ///< Of the page, such as "de-AT"; texts in it come first
        bool mHasFindings = true;                 ///< With what the checker finds
    };

    /** The page of a description. It is in the language of the program; the same description then always gives the same
     * bytes. Without a text, and with the failure, where the description is not open. */
    static CXddPage write(const CXddDocument& document, const SOptions& options);

    /** A page for the review of a new version: the verdict, the changes by whom they break, and what changed PDOs carry
     * before and after. Nothing where a document is not open. */
    static QByteArray compared(
        const CXddDocument& old, const CXddDocument& now, const CXddComparison& comparison, const QString& language);

    /** A page that leads to others, which are in its folder. */
    static QByteArray index(const QList<CXddPage>& pages, const QString& language);

    QByteArray mText;    ///< The whole page in UTF-8; nothing where it could not be written
    CXddRemark mFailure; ///< Why it could not be written
    QString mFileName;   ///< Name of the file that it is written to, which the caller sets
    QString mSource;     ///< Name of the description, without its folder
    QString mProduct;    ///< What the device is called
    QString mVendor;     ///< Its vendor
    int mEntries = 0;    ///< Objects and sub-objects
    int mPdos = 0;       ///< PDOs that are enabled and map something
    int mErrors = 0;     ///< Findings of the checker
    int mWarnings = 0;   ///< Likewise
};

#endif
