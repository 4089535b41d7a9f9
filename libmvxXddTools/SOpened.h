#ifndef MVXXDDTOOLS_SOPENED_H
#define MVXXDDTOOLS_SOPENED_H

#include "CXddDocument.h"
#include "canopen/CDescription.h"
#include "text/CEncodedText.h"
#include "text/CXmlTree.h"

/** What an open document consists of. */
struct SOpened
{
    SOpened(CEncodedText decoded, CXmlTree read)
        : encoded(std::move(decoded))
        , tree(std::move(read))
        , description(tree)
    {}

    CEncodedText encoded;
    CXmlTree tree;
    CDescription description;
};

/** The parts of a document, which has to be open. */
const SOpened& openedOf(const CXddDocument& document);

#endif
