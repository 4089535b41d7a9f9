#ifndef MVXXDDTOOLS_SOPENED_H
#define MVXXDDTOOLS_SOPENED_H

#include "CXddDocument.h"
#include "canopen/CDescription.h"
#include "text/CEncodedText.h"
#include "text/CXmlTree.h"
#include "text/Suppressions.h"

#include <vector>

/** What an open document consists of. */
struct SOpened
{
    SOpened(CEncodedText decoded, CXmlTree read, EForm form)
        : encoded(std::move(decoded))
        , tree(std::move(read))
        , description(tree, form)
    {}

    CEncodedText encoded; ///< The XDD, which an EDS has been made to
    CXmlTree tree;
    CDescription description;
    std::vector<SSuppression> suppressions; ///< Rules that comments switch off
    QList<CXddRemark> remarks;              ///< What was taken otherwise, left out or found while it was read
};

/** The parts of a document, which has to be open. */
const SOpened& openedOf(const CXddDocument& document);

#endif
