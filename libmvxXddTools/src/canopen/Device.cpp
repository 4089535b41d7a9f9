#include "canopen/Device.h"

#include "CCanOpenNames.h"
#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "canopen/Texts.h"
#include "names/NEdsWords.h"
#include "names/NFormatWords.h"
#include "names/Objects.h"

#include <array>

using namespace NIso15745Tags;
using namespace NFormatWords;

namespace
{
// A child of an identity that carries a flag: its name, and what the flag is where it is absent.
struct SIdentityItem
{
    QLatin1String name;
    bool isReadOnly;
};

const std::array IDENTITY_ITEMS = {
    SIdentityItem{TAG_VENDOR_NAME, true},    SIdentityItem{TAG_VENDOR_ID, true},
    SIdentityItem{TAG_VENDOR_TEXT, true},    SIdentityItem{TAG_DEVICE_FAMILY, true},
    SIdentityItem{TAG_PRODUCT_FAMILY, true}, SIdentityItem{TAG_PRODUCT_NAME, false},
    SIdentityItem{TAG_PRODUCT_ID, true},     SIdentityItem{TAG_PRODUCT_TEXT, true},
    SIdentityItem{TAG_ORDER_NUMBER, true},   SIdentityItem{TAG_SPEC_REVISION, true},
    SIdentityItem{TAG_INSTANCE_NAME, false},
};

CGLabels labelsOf(const CXmlElement& list)
{
    CGLabels labels;
    for (CXmlElement child = list.firstChild(); !child.isNull(); child = child.nextSibling()) {
        CGLabel label(CGLabel::gLabelTypeFromStr(child.name()));
        if (label.mType == CGLabel::GLABTYP_LABEL || label.mType == CGLabel::GLABTYP_DESCRIPTION) {
            label.mText = child.text();
            label.mLang = child.attribute(ATTR_LANG);
            label.mUri = label.mType == CGLabel::GLABTYP_DESCRIPTION ? child.attribute(ATTR_URI) : QString();
        } else if (label.mType != CGLabel::GLABTYP_INVALID) {
            label.mRefText = child.text();
            label.mDictId = child.attribute(ATTR_DICT_ID);
            label.mTextId = child.attribute(ATTR_TEXT_ID);
        } else {
            continue;
        }
        labels << label;
    }
    return labels;
}

CProfileHeader headerOf(const CXmlElement& element)
{
    const CXmlElement reference = element.child(TAG_ISO15745_REFERENCE);
    const auto number = [&reference](QLatin1String name) {
        return CXmlValue::toNumber(reference.child(name).text(), BY_PREFIX).value_or(1);
    };
    CProfileHeader header;
    header.mProfileIdentification = element.child(TAG_PROFILE_IDENTIFICATION).text();
    header.mProfileRevision = element.child(TAG_PROFILE_REVISION).text();
    header.mProfileName = element.child(TAG_PROFILE_NAME).text();
    header.mProfileSource = element.child(TAG_PROFILE_SOURCE).text();
    header.mProfileDate = CXmlValue::toDate(element.child(TAG_PROFILE_DATE).text()).value_or(QDate());
    header.mAdditionalInformation = element.child(TAG_PROFILE_ADD_INFOS).text();
    header.mIso15745Part = number(TAG_ISO15745_PART);
    header.mIso15745Edition = number(TAG_ISO15745_EDITION);
    header.mProfileTechnology = reference.child(TAG_ISO15745_TECHNOLOGY).text();
    header.mIasInterfaceType = CProfileHeader::iasIfTypFromStr(element.child(TAG_IAS_INTERFACE_TYPE).text());
    return header;
}

QDate dateIn(const CXmlElement& body, QLatin1String attribute)
{
    const QString text = body.attribute(attribute);
    const std::optional<QDate> date = CXmlValue::toDate(text);
    return date ? *date : dateOf(text).value_or(QDate());
}

QTime timeIn(const CXmlElement& body, QLatin1String attribute)
{
    return CXmlValue::toTime(body.attribute(attribute)).value_or(QTime());
}

QList<CXddIdentityText> identityOf(const CXmlElement& identity, const CDescription& description)
{
    QList<CXddIdentityText> items;
    for (const SIdentityItem& row : IDENTITY_ITEMS) {
        const CXmlElement element = identity.child(row.name);
        if (!element.isNull()) {
            CXddIdentityText item;
            item.mName = row.name;
            item.mLabels = labelsOf(element);
            item.mTexts = item.mLabels.isEmpty() ? QList<CXddLabel>() : textsIn(element, description);
            item.mText = item.mLabels.isEmpty() ? element.text() : QString();
            item.mIsReadOnly = flagOf(element.attribute(ATTR_READ_ONLY)).value_or(row.isReadOnly);
            items << item;
        }
    }
    return items;
}

CXddProfile profileOf(const SProfile& stated, const CXmlElement& identity, const CDescription& description)
{
    const CXmlElement& body = stated.body;
    CXddProfile profile;
    profile.mIsStated = !body.isNull();
    profile.mHeader = headerOf(stated.header);
    profile.mHeader.mProfileClassId = stated.kind == EProfile::Device ? CProfileHeader::CID_DEVICE
                                      : profile.mIsStated             ? CProfileHeader::CID_COMM_NET
                                                                      : CProfileHeader::CID_INVALID;
    profile.mFileName = body.attribute(ATTR_FILE_NAME);
    profile.mFileCreator = body.attribute(ATTR_FILE_CREATOR);
    profile.mFileModifiedBy = body.attribute(ATTR_FILE_MODIFIED_BY);
    profile.mFileVersion = body.attribute(ATTR_FILE_VERSION);
    profile.mFileCreationDate = dateIn(body, ATTR_FILE_CREATION_DATE);
    profile.mFileCreationTime = timeIn(body, ATTR_FILE_CREATION_TIME);
    profile.mFileModificationDate = dateIn(body, ATTR_FILE_MODIFICATION_DATE);
    profile.mFileModificationTime = timeIn(body, ATTR_FILE_MODIFICATION_TIME);
    profile.mIdentity = identityOf(identity, description);
    for (const CXmlElement& element : identity.children(TAG_VERSION)) {
        CVersion version(flagOf(element.attribute(ATTR_READ_ONLY)).value_or(false));
        version.mValue = element.text();
        version.mVersionType = CVersion::versionTypeFromStr(element.attribute(ATTR_VERSION_TYPE));
        profile.mVersions << version;
    }
    profile.mBuildDate = CXmlValue::toDate(identity.child(TAG_BUILD_DATE).text()).value_or(QDate());
    return profile;
}

SProfile profileOfKind(const CDescription& description, EProfile kind)
{
    for (const SProfile& profile : description.profiles()) {
        if (profile.kind == kind) {
            return profile;
        }
    }
    return {};
}

QList<CXddFeature> featuresOf(const CDescription& description, QLatin1String element)
{
    QList<CXddFeature> features;
    for (const CXmlElement& stated : description.managementElements(element)) {
        for (const QString& name : stated.attributeNames()) {
            CXddFeature feature;
            feature.mName = name;
            feature.mText = stated.attribute(QLatin1String(name.toLatin1()));
            features << feature;
        }
    }
    return features;
}

void readBitRates(const CDescription& description, CXddDevice& device)
{
    for (const CXmlElement& baudRate : description.bitRates()) {
        device.mDefaultBitRate = bitRateOf(baudRate.attribute(ATTR_DEFAULT_VALUE));
        for (const CXmlElement& supported : baudRate.children(TAG_SUPPORTED_BAUD_RATE)) {
            const CNetworkCanOpenProfile::EBaudrate rate = bitRateOf(supported.attribute(ATTR_VALUE));
            if (rate != CNetworkCanOpenProfile::BAUD_INVALID) {
                device.mBitRates << rate;
            }
        }
    }
}

void readDummies(const CXmlElement& usage, CXddDevice& device)
{
    device.mStatesDummies = !usage.isNull();
    for (const CXmlElement& dummy : usage.children(TAG_DUMMY)) {
        const QString entry = dummy.attribute(ATTR_ENTRY).trimmed();
        if (entry.startsWith(NEdsWords::DUMMY) && entry.endsWith(QLatin1String("=1"))) {
            device.mDummyTypes << entry.mid(NEdsWords::DUMMY.size()).chopped(2).toUInt();
        }
    }
}

void readCounts(const CDescription& description, CXddDevice& device)
{
    using Kind = CCanOpenNames::EObjectKind;
    const std::vector<CXmlElement> lists = description.objectLists();
    const CXmlElement list = lists.empty() ? CXmlElement() : lists.front();
    const auto stated = [&list](QLatin1String attribute) {
        return CXmlValue::toNumber(list.attribute(attribute), DECIMAL);
    };
    device.mMandatoryObjects.mStated = stated(ATTR_MANDATORY_OBJECTS);
    device.mOptionalObjects.mStated = stated(ATTR_OPTIONAL_OBJECTS);
    device.mManufacturerObjects.mStated = stated(ATTR_MANUFACTURER_OBJECTS);
    const QMap<unsigned int, std::size_t>& objects = description.dictionary().byIndex();
    for (auto object = objects.cbegin(); object != objects.cend(); ++object) {
        const Kind kind = CCanOpenNames::objectKind(object.key());
        ++(kind == Kind::Mandatory  ? device.mMandatoryObjects
           : kind == Kind::Optional ? device.mOptionalObjects
                                    : device.mManufacturerObjects)
              .mFound;
    }
}

// That of a profile, by its prefix, else what the identity object holds.
std::optional<unsigned int> identityNumber(const CDescription& description, QLatin1String name, unsigned int subIndex)
{
    for (const CXmlElement& identity : description.identities()) {
        const std::optional<CInteger> number = readInteger(identity.child(name).text());
        if (number && number->unsigned32()) {
            return number->unsigned32();
        }
    }
    return description.dictionary().number(IDENTITY, subIndex);
}
} // namespace

CXddDevice deviceOf(const CDescription& description)
{
    const SProfile deviceProfile = profileOfKind(description, EProfile::Device);
    const SProfile networkProfile = profileOfKind(description, EProfile::Network);
    const CXmlElement layers = networkProfile.body.child(TAG_APPLICATION_LAYERS);
    const CXmlElement characteristics =
        deviceProfile.body.child(TAG_DEVICE_FUNCTION).child(TAG_CAPABILITIES).child(TAG_CHARACTERISTICS_LIST);
    const CXmlElement characteristic = characteristics.child(TAG_CHARACTERISTIC);
    const CDictionary& dictionary = description.dictionary();
    CXddDevice device;
    device.mForm = description.form();
    device.mDeviceProfile = profileOf(deviceProfile, deviceProfile.body.child(TAG_DEVICE_IDENTITY), description);
    device.mNetworkProfile = profileOf(networkProfile, layers.child(TAG_IDENTITY), description);
    device.mCategory = labelsOf(characteristics.child(TAG_CATEGORY));
    device.mCharacteristicName = labelsOf(characteristic.child(TAG_CHARACTERISTIC_NAME));
    device.mCharacteristicContent = labelsOf(characteristic.child(TAG_CHARACTERISTIC_CONTENT));
    device.mVendorId = identityNumber(description, TAG_VENDOR_ID, 1);
    device.mProductCode = identityNumber(description, TAG_PRODUCT_ID, 2);
    device.mRevisionNumber = dictionary.number(IDENTITY, 3);
    if (!device.mRevisionNumber) {
        device.mRevisionNumber = description.extras().revisionNumber;
    }
    device.mSerialNumber = dictionary.number(IDENTITY, 4);
    device.mDeviceType = dictionary.number(DEVICE_TYPE, 0);
    readBitRates(description, device);
    device.mGeneralFeatures = featuresOf(description, TAG_GENERAL_FEATURES);
    device.mMasterFeatures = featuresOf(description, TAG_MASTER_FEATURES);
    readDummies(layers.child(TAG_DUMMY_USAGE), device);
    readCounts(description, device);
    device.mIsCommissioned = !description.managementElements(TAG_COMMISSIONING).empty();
    device.mCommissioning = description.commissioning();
    return device;
}
