#include "CDeviceProfile.h"

CDeviceProfile::CDeviceProfile()
    : CDeviceProfile(CProfileHeader())
{}

CDeviceProfile::CDeviceProfile(CProfileHeader const& header)
    : mHeader(header)
{
    const QString english = QLatin1String("en");
    mProductText.mLabels.first().mLang = english;
    mCharacteristic.mCharacteristicName.first().mLang = english;
    mCharacteristic.mCharacteristicContent.first().mLang = english;
}
