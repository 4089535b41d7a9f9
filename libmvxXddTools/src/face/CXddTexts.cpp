#include "CXddTexts.h"

#include "canopen/Texts.h"
#include "face/SOpened.h"

CXddTexts::CXddTexts(const CXddDocument& document)
    : mDocument(document)
    , mTexts(mDocument.isOpen() ? std::make_unique<CTexts>(openedOf(mDocument).description) : nullptr)
{}

CXddTexts::~CXddTexts() = default;

CXddEntryTexts CXddTexts::of(unsigned int index, std::optional<unsigned int> subIndex)
{
    if (!mTexts) {
        return {};
    }
    const CDictionary& dictionary = openedOf(mDocument).description.dictionary();
    const SEntry* const entry = subIndex ? dictionary.subObject(index, *subIndex) : dictionary.object(index);
    return entry == nullptr ? CXddEntryTexts() : mTexts->of(*entry);
}
