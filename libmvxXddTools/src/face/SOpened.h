#ifndef MVXXDDTOOLS_SOPENED_H
#define MVXXDDTOOLS_SOPENED_H

#include "CXddDocument.h"
#include "canopen/CDescription.h"
#include "canopen/Texts.h"
#include "text/CEncodedText.h"
#include "text/CXmlTree.h"
#include "text/Suppressions.h"

#include <QMutex>

#include <vector>

/** What an open document consists of. */
struct SOpened
{
    SOpened(CEncodedText decoded, CXmlTree read, CXddDevice::EForm form, const SEdsExtras& extras = {})
        : encoded(std::move(decoded))
        , tree(std::move(read))
        , description(tree, form, extras)
        , texts(description)
    {}

    CEncodedText encoded; ///< The XDD, which an EDS has been made to
    CXmlTree tree;
    CDescription description;
    std::vector<SSuppression> suppressions; ///< Rules that comments switch off
    QList<CXddRemark> remarks;              ///< What was taken otherwise, left out or found while it was read

    /** What was said while it was read, of some kinds. */
    QList<CXddRemark> remarksOf(std::initializer_list<CXddRemark::EKind> kinds) const;

    mutable QMutex textsLock; ///< Texts of a parameter are remembered when they are first asked for
    mutable CTexts texts;
};

/** What a document holds. */
struct SDocument
{
    QString name;
    QByteArray bytes;
    CXddRemark failure;
    std::unique_ptr<SOpened> opened; ///< Null where it is not open
};

/** The parts of a document; null where it is not open. */
const SOpened* openedOf(const CXddDocument& document);

#endif
