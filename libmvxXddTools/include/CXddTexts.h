#ifndef MVXXDDTOOLS_CXDDTEXTS_H
#define MVXXDDTOOLS_CXDDTEXTS_H

#include "CXddDocument.h"
#include "CXddEntryTexts.h"
#include "mvxXddTools_export.h"

#include <memory>
#include <optional>

class CTexts;

/** What a description says for people, which the records do not hold. To be used by one thread. */
class MVXXDDTOOLS_EXPORT CXddTexts
{
public:
    /** The texts of a description. One that is not open has none. */
    explicit CXddTexts(const CXddDocument& document);
    CXddTexts(const CXddTexts&) = delete;
    CXddTexts(CXddTexts&&) = delete;
    CXddTexts& operator=(const CXddTexts&) = delete;
    CXddTexts& operator=(CXddTexts&&) = delete;
    ~CXddTexts();

    /** The texts of an object or sub-object; none where there is no such entry. */
    CXddEntryTexts of(unsigned int index, std::optional<unsigned int> subIndex = std::nullopt);

private:
    const CXddDocument mDocument;
    const std::unique_ptr<CTexts> mTexts; // Null where the document is not open
};

#endif
