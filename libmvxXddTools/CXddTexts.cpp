#include "CXddTexts.h"

#include "SOpened.h"
#include "canopen/Texts.h"

CXddEntryTexts CXddTexts::of(const CXddDocument& document, unsigned int index, std::optional<unsigned int> subIndex)
{
    const CDescription& description = openedOf(document).description;
    const SEntry* const entry =
        subIndex ? description.dictionary().subObject(index, *subIndex) : description.dictionary().object(index);
    return entry == nullptr ? CXddEntryTexts() : textsOf(*entry, description);
}

QStringList CXddTexts::languages(const CXddDocument& document)
{
    return languagesOf(openedOf(document).description);
}
