#include "CJsonReport.h"

#include "COutput.h"
#include "Messages.h"

#include <CCanOpenNames.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace
{
QString key(const char* name)
{
    return QString::fromLatin1(name);
}

QJsonValue orNull(const QString& text, bool valid)
{
    return valid ? QJsonValue(text) : QJsonValue();
}

QJsonValue toJson(const QDate& date)
{
    return orNull(date.toString(Qt::ISODate), date.isValid());
}

QJsonValue toJson(const QTime& time)
{
    return orNull(time.toString(Qt::ISODateWithMs), time.isValid());
}

QJsonValue toJson(CNetworkCanOpenProfile::EBaudrate rate)
{
    return rate == CNetworkCanOpenProfile::BAUD_INVALID ? QJsonValue() : QJsonValue(static_cast<int>(rate));
}

QJsonValue toJson(unsigned int number)
{
    return QJsonValue(static_cast<qint64>(number));
}

QJsonValue toJson(const CGLabel& label)
{
    return QJsonObject{
        {key("type"), orNull(CGLabel::gLabelTypeAsStr(label.mType), label.mType != CGLabel::GLABTYP_INVALID)},
        {key("text"), label.mText},
        {key("lang"), label.mLang},
        {key("URI"), label.mUri},
        {key("refText"), label.mRefText},
        {key("dictID"), label.mDictId},
        {key("textID"), label.mTextId},
    };
}

QJsonValue toJson(const CVersion& version)
{
    return QJsonObject{
        {key("versionType"),
         orNull(CVersion::versionTypeAsStr(version.mVersionType), version.mVersionType != CVersion::VTYPE_INVALID)},
        {key("value"), version.mValue},
        {key("readOnly"), version.mReadOnly},
    };
}

// What objects and sub-objects have in common. Their index has a key of its own name.
QJsonObject entryJson(const char* indexKey, const CCanOpenSubObject& entry, const QString& address)
{
    return {
        {key("address"), address},
        {key(indexKey), toJson(entry.mIndex)},
        {key("name"), entry.mName},
        {key("objectType"), entry.mObjectType},
        {key("dataType"), entry.mDataType},
        {key("lowLimit"), entry.mLowLimit},
        {key("highLimit"), entry.mHighLimit},
        {key("accessType"), orNull(
                                CCanOpenSubObject::accessTypeAsStr(entry.mAccessType),
                                entry.mAccessType != CCanOpenSubObject::OBJ_ACCESS_INVALID)},
        {key("defaultValue"), entry.mDefaultValue},
        {key("actualValue"), entry.mActualValue},
        {key("denotation"), entry.mDenotation},
        {key("PDOmapping"), orNull(
                                CCanOpenSubObject::pdoMappingAsStr(entry.mPdoMapping),
                                entry.mPdoMapping != CCanOpenSubObject::OBJ_MAP_INVALID)},
        {key("objFlags"), toJson(entry.mObjFlags)},
        {key("uniqueIDRef"), entry.mUniqueIdRef},
    };
}

QJsonObject subObjectJson(unsigned int index, const CCanOpenSubObject& subObject)
{
    return entryJson("subIndex", subObject, CCanOpenNames::entry(index, subObject.mIndex));
}

QJsonObject toJson(const CCanOpenObject& object);

template <typename Item> QJsonArray toJson(const QList<Item>& items)
{
    QJsonArray array;
    for (const Item& item : items) {
        array.append(toJson(item));
    }
    return array;
}

QJsonObject toJson(const CCanOpenObject& object)
{
    QJsonArray subObjects;
    for (const CCanOpenSubObject& subObject : object.mSubObjects) {
        subObjects.append(subObjectJson(object.mIndex, subObject));
    }
    QJsonObject json = entryJson("index", object, CCanOpenNames::entry(object.mIndex));
    json[key("subNumber")] = object.mSubNumber;
    json[key("subObjects")] = subObjects;
    return json;
}

QJsonValue toJson(const CWriteProtectString& value)
{
    return QJsonObject{{key("value"), value.mValue}, {key("readOnly"), value.mReadOnly}};
}

QJsonValue toJson(const CWriteProtectGLabels& value)
{
    return QJsonObject{{key("labels"), toJson<CGLabel>(value.mLabels)}, {key("readOnly"), value.mReadOnly}};
}

QJsonObject toJson(const CProfileHeader& header)
{
    return {
        {key("ProfileIdentification"), header.mProfileIdentification},
        {key("ProfileRevision"), header.mProfileRevision},
        {key("ProfileName"), header.mProfileName},
        {key("ProfileSource"), header.mProfileSource},
        {key("ProfileClassID"), orNull(
                                    CProfileHeader::classIdAsStr(header.mProfileClassId),
                                    header.mProfileClassId != CProfileHeader::CID_INVALID)},
        {key("ProfileDate"), toJson(header.mProfileDate)},
        {key("AdditionalInformation"), header.mAdditionalInformation},
        {key("ISO15745Part"), toJson(header.mIso15745Part)},
        {key("ISO15745Edition"), toJson(header.mIso15745Edition)},
        {key("ProfileTechnology"), header.mProfileTechnology},
        {key("IASInterfaceType"), orNull(
                                      CProfileHeader::iasIfTypAsStr(header.mIasInterfaceType),
                                      header.mIasInterfaceType != CProfileHeader::IFT_INVALID)},
    };
}

// The header and the file attributes, which both profiles have.
template <typename Profile> QJsonObject commonPart(const Profile& profile)
{
    return {
        {key("ProfileHeader"), toJson(profile.mHeader)},
        {key("fileCreationDate"), toJson(profile.mFileCreationDate)},
        {key("fileCreationTime"), toJson(profile.mFileCreationTime)},
        {key("fileCreator"), profile.mFileCreator},
        {key("fileModificationDate"), toJson(profile.mFileModificationDate)},
        {key("fileModificationTime"), toJson(profile.mFileModificationTime)},
        {key("fileModifiedBy"), profile.mFileModifiedBy},
        {key("fileName"), profile.mFileName},
        {key("fileVersion"), profile.mFileVersion},
    };
}

QJsonObject toJson(const CDeviceProfile& device)
{
    QJsonObject object = commonPart(device);
    object[key("vendorName")] = toJson(device.mVendorName);
    object[key("vendorID")] = toJson(device.mVendorId);
    object[key("vendorText")] = toJson(device.mVendorText);
    object[key("deviceFamily")] = toJson(device.mDeviceFamily);
    object[key("productFamily")] = toJson(device.mProductFamily);
    object[key("productName")] = toJson(device.mProductName);
    object[key("productID")] = toJson(device.mProductId);
    object[key("productText")] = toJson(device.mProductText);
    object[key("orderNumber")] = toJson(device.mOrderNumber);
    object[key("versions")] = toJson(device.mVersions);
    object[key("buildDate")] = toJson(device.mBuildDate);
    object[key("specificationRevision")] = toJson(device.mSpecificationRevision);
    object[key("instanceName")] = toJson(device.mInstanceName);
    object[key("category")] = toJson<CGLabel>(device.mCategory);
    object[key("characteristicName")] = toJson<CGLabel>(device.mCharacteristic.mCharacteristicName);
    object[key("characteristicContent")] = toJson<CGLabel>(device.mCharacteristic.mCharacteristicContent);
    return object;
}

QJsonObject toJson(const CNetworkCanOpenProfile& network)
{
    QJsonObject object = commonPart(network);
    object[key("vendorID")] = toJson(network.mVendorId);
    object[key("deviceFamily")] = toJson(network.mDeviceFamily);
    object[key("productID")] = toJson(network.mProductId);
    object[key("versions")] = toJson(network.mVersions);
    object[key("buildDate")] = toJson(network.mBuildDate);
    object[key("specificationRevision")] = toJson(network.mSpecificationRevision);
    object[key("mandatoryObjects")] = toJson(network.mMandatoryObjects);
    object[key("optionalObjects")] = toJson(network.mOptionalObjects);
    object[key("manufacturerObjects")] = toJson(network.mManufacturerObjects);
    object[key("objects")] = toJson(network.mObjects.values());
    object[key("baudRate")] = toJson(network.mBaudRate);
    object[key("supportedBaudRates")] = toJson(network.mSupportedBaudRates);
    return object;
}

// Inside of a JSON text an escape means the same as the character, so the document stays what it is.
QString oneLine(const QJsonObject& object)
{
    return printable(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}
} // namespace

CJsonReport::CJsonReport(COutput& output)
    : mOutput(output)
{}

void CJsonReport::showDescription(const SShownDescription& description)
{
    QJsonObject device = toJson(description.reader->deviceProfile());
    QJsonObject network = toJson(description.reader->networkProfile());
    // What the library or the normaliser supplied is not stated by the file.
    const auto clear = [&](QJsonObject& object, const char* name, CXddDocument::EItem item, const QJsonValue& nothing) {
        if (!description.document.states(item)) {
            object[key(name)] = nothing;
        }
    };
    clear(device, "fileCreationDate", CXddDocument::ITEM_DEVICE_CREATION_DATE, QJsonValue());
    clear(network, "fileCreationDate", CXddDocument::ITEM_NETWORK_CREATION_DATE, QJsonValue());
    clear(network, "mandatoryObjects", CXddDocument::ITEM_MANDATORY_OBJECTS, QJsonValue());
    clear(network, "optionalObjects", CXddDocument::ITEM_OPTIONAL_OBJECTS, QJsonValue());
    clear(network, "manufacturerObjects", CXddDocument::ITEM_MANUFACTURER_OBJECTS, QJsonValue());
    clear(network, "baudRate", CXddDocument::ITEM_BAUD_RATE, QJsonValue());
    clear(network, "supportedBaudRates", CXddDocument::ITEM_SUPPORTED_BAUD_RATES, QJsonArray());
    mOutput.writeLine(oneLine({
        {key("file"), description.fileName},
        {key("deviceProfile"), device},
        {key("networkProfile"), network},
    }));
}

void CJsonReport::showEntries(const SShownDescription& description, const QVector<SSelectedEntry>& entries)
{
    for (const SSelectedEntry& entry : entries) {
        QJsonObject json{{key("file"), description.fileName}};
        if (entry.subObject) {
            json[key("index")] = toJson(entry.object.mIndex);
            json[key("subObject")] = subObjectJson(entry.object.mIndex, *entry.subObject);
        } else {
            json[key("object")] = toJson(entry.object);
        }
        mOutput.writeLine(oneLine(json));
    }
}
