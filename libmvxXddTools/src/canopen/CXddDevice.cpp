#include "CXddDevice.h"

#include "CXmlValue.h"
#include "canopen/Writings.h"

#include <algorithm>

CXddIdentityText::CXddIdentityText() = default;

CXddProfile::CXddProfile() = default;

CXddFeature::CXddFeature() = default;

CXddCount::CXddCount() = default;

CXddDevice::CXddDevice() = default;

namespace
{
// The item of a list with that name, or null.
template <typename Item> const Item* named(const QList<Item>& items, const QString& name)
{
    const auto found =
        std::find_if(items.begin(), items.end(), [&name](const Item& item) { return item.mName == name; });
    return found == items.end() ? nullptr : &*found;
}
} // namespace

QString CXddProfile::identity(const QString& name) const
{
    const CXddIdentityText* const item = named(mIdentity, name);
    return item == nullptr ? QString() : item->mText;
}

QString CXddProfile::identityTexts(const QString& name, const QString& language) const
{
    const CXddIdentityText* const item = named(mIdentity, name);
    return item == nullptr ? QString() : CXddLabel::chosen(item->mTexts, language);
}

QString CXddDevice::feature(const QString& name) const
{
    const CXddFeature* const general = named(mGeneralFeatures, name);
    const CXddFeature* const stated = general != nullptr ? general : named(mMasterFeatures, name);
    return stated == nullptr ? QString() : stated->mText;
}

std::optional<bool> CXddDevice::flag(const QString& feature) const
{
    return flagOf(this->feature(feature));
}

std::optional<unsigned int> CXddDevice::number(const QString& feature) const
{
    return CXmlValue::toNumber(this->feature(feature), DECIMAL);
}

CNetworkCanOpenProfile::EBaudrate CXddDevice::bitRateInForce() const
{
    const bool isConfigured = mForm == FORM_DCF && mCommissioning.mBaudrate != CNetworkCanOpenProfile::BAUD_INVALID;
    if (mDefaultBitRate != CNetworkCanOpenProfile::BAUD_INVALID || isConfigured) {
        return isConfigured ? mCommissioning.mBaudrate : mDefaultBitRate;
    }
    return mForm == FORM_XDD ? CNetworkCanOpenProfile::BAUD_250_KBPS : CNetworkCanOpenProfile::BAUD_INVALID;
}
