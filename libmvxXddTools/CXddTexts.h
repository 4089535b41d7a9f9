#ifndef MVXXDDTOOLS_CXDDTEXTS_H
#define MVXXDDTOOLS_CXDDTEXTS_H

#include "CXddDocument.h"
#include "CXddEntryTexts.h"
#include "mvxXddTools_export.h"

#include <QStringList>

#include <optional>

/** What a description says for people, which the records do not hold. */
class MVXXDDTOOLS_EXPORT CXddTexts
{
public:
    /** The texts of an object or sub-object of a description, which has to be open; none where there is no such
     * entry. */
    static CXddEntryTexts of(
        const CXddDocument& document, unsigned int index, std::optional<unsigned int> subIndex = std::nullopt);

    /** The languages in which a description, which has to be open, has texts: "de", "en". */
    static QStringList languages(const CXddDocument& document);
};

#endif
