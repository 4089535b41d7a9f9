#include "ShownDescription.h"

#include <QCoreApplication>

namespace
{
// As many times the size of the description, and that many characters more.
constexpr qint64 TEXTS_FACTOR = 4;
constexpr qint64 TEXTS_LEAST = 1000000;
} // namespace

QString SShownDescription::title() const
{
    return isSample ? QCoreApplication::translate("xddinfo", "Embedded sample %1").arg(fileName) : fileName;
}

CShownTexts::CShownTexts(const CXddDocument& document)
    : mTexts(document)
    , mLeft(TEXTS_FACTOR * document.bytes().size() + TEXTS_LEAST)
{}

CXddEntryTexts CShownTexts::of(unsigned int index, std::optional<unsigned int> subIndex)
{
    return limited(mTexts.of(index, subIndex));
}

CXddEntryTexts CShownTexts::limited(const CXddEntryTexts& texts)
{
    mAreLeftOut = mAreLeftOut || texts.characters() > mLeft;
    if (mAreLeftOut) {
        return {};
    }
    mLeft -= texts.characters();
    return texts;
}
