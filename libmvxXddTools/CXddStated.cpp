#include "CXddStated.h"

#include "NIso15745Tags.h"
#include "canopen/CDescription.h"
#include "text/CEncodedText.h"

#include <algorithm>

using namespace NIso15745Tags;

namespace
{
bool anyHas(const std::vector<CXmlElement>& elements, QLatin1String attribute)
{
    return std::any_of(elements.begin(), elements.end(), [&](const CXmlElement& element) {
        return !element.attribute(attribute).trimmed().isEmpty();
    });
}
} // namespace

CXddStated::CXddStated() = default;

CXddStated CXddStated::in(const QByteArray& description)
{
    CXddStated stated;
    CEncodedText encoded;
    CXmlText text;
    CXmlText::SError error;
    QString errorText;
    if (!encoded.decode(description, errorText) || !text.read(encoded.text(), error)) {
        return stated;
    }
    const CDescription read(text);
    const std::vector<CXmlElement> lists = read.objectLists();
    const std::vector<CXmlElement> rates = read.bitRates();
    stated.mDeviceCreationDate = anyHas(read.bodies(EProfile::Device), ATTR_FILE_CREATION_DATE);
    stated.mNetworkCreationDate = anyHas(read.bodies(EProfile::Network), ATTR_FILE_CREATION_DATE);
    stated.mBaudRate = anyHas(rates, ATTR_DEFAULT_VALUE);
    stated.mSupportedBaudRates = std::any_of(rates.begin(), rates.end(), [](const CXmlElement& baudRate) {
        return !baudRate.child(TAG_SUPPORTED_BAUD_RATE).isNull();
    });
    stated.mMandatoryObjects = anyHas(lists, ATTR_MANDATORY_OBJECTS);
    stated.mOptionalObjects = anyHas(lists, ATTR_OPTIONAL_OBJECTS);
    stated.mManufacturerObjects = anyHas(lists, ATTR_MANUFACTURER_OBJECTS);
    return stated;
}
