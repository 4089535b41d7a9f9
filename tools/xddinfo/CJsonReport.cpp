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

QJsonValue orNull(unsigned int number, bool valid)
{
    return valid ? QJsonValue(qint64(number)) : QJsonValue();
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

QJsonArray toJson(const QList<CXddLabel>& labels)
{
    QJsonArray array;
    for (const CXddLabel& label : labels) {
        array.append(QJsonObject{{key("lang"), label.mLanguage}, {key("text"), label.mText}});
    }
    return array;
}

// Null for an entry of which nothing is said.
QJsonValue toJson(const CXddEntryTexts& texts)
{
    if (texts.isEmpty()) {
        return QJsonValue();
    }
    QJsonArray allowedValues;
    for (const CXddAllowedValue& value : texts.mAllowedValues) {
        allowedValues.append(
            QJsonObject{{key("low"), value.mLow}, {key("high"), value.mHigh}, {key("labels"), toJson(value.mLabels)}});
    }
    return QJsonObject{
        {key("labels"), toJson(texts.mLabels)}, {key("descriptions"), toJson(texts.mDescriptions)},
        {key("units"), toJson(texts.mUnits)},   {key("unitURI"), texts.mUnitUri},
        {key("multiplier"), texts.mMultiplier}, {key("offset"), texts.mOffset},
        {key("allowedValues"), allowedValues},
    };
}

// What objects and sub-objects have in common. Their index has a key of its own name.
QJsonObject entryJson(
    const char* indexKey, const CCanOpenSubObject& entry, const QString& address, const CXddEntryTexts& texts)
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
        {key("texts"), toJson(texts)},
    };
}

QJsonObject subObjectJson(unsigned int index, const CCanOpenSubObject& subObject, CShownTexts& texts)
{
    return entryJson(
        "subIndex", subObject, CCanOpenNames::entry(index, subObject.mIndex), texts.of(index, subObject.mIndex));
}

QJsonObject toJson(const CXddRemark& remark);

template <typename Item> QJsonArray toJson(const QList<Item>& items)
{
    QJsonArray array;
    for (const Item& item : items) {
        array.append(toJson(item));
    }
    return array;
}

QJsonObject objectJson(const CCanOpenObject& object, CShownTexts& texts)
{
    QJsonObject json = entryJson("index", object, CCanOpenNames::entry(object.mIndex), texts.of(object.mIndex));
    QJsonArray subObjects;
    for (const CCanOpenSubObject& subObject : object.mSubObjects) {
        subObjects.append(subObjectJson(object.mIndex, subObject, texts));
    }
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

QJsonObject toJson(const CNetworkCanOpenProfile& network, CShownTexts& texts)
{
    QJsonArray objects;
    for (const CCanOpenObject& object : network.mObjects) {
        objects.append(objectJson(object, texts));
    }
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
    object[key("objects")] = objects;
    object[key("baudRate")] = toJson(network.mBaudRate);
    object[key("supportedBaudRates")] = toJson(network.mSupportedBaudRates);
    return object;
}

// How the bits of a field are to be read.
QString kindWord(CXddPdoField::EKind kind)
{
    switch (kind) {
    case CXddPdoField::KIND_UNSIGNED:
        return key("unsigned");
    case CXddPdoField::KIND_SIGNED:
        return key("signed");
    case CXddPdoField::KIND_REAL:
        return key("real");
    case CXddPdoField::KIND_BYTES:
        return key("bytes");
    case CXddPdoField::KIND_DUMMY:
        return key("dummy");
    case CXddPdoField::KIND_UNKNOWN:
        break;
    }
    return key("unknown");
}

QJsonObject fieldJson(const CXddPdoField& field, CShownTexts& texts)
{
    return {
        {key("address"), field.entry()},
        {key("index"), toJson(field.mIndex)},
        {key("subIndex"), toJson(field.mSubIndex)},
        {key("name"), field.mName},
        {key("objectName"), field.mObjectName},
        {key("dataType"), toJson(field.mDataType)},
        {key("kind"), kindWord(field.mKind)},
        {key("offset"), field.mOffset},
        {key("bits"), field.mBits},
        {key("minimum"), orNull(field.mMinimum, !field.mMinimum.isEmpty())},
        {key("maximum"), orNull(field.mMaximum, !field.mMaximum.isEmpty())},
        {key("texts"), toJson(texts.limited(field.mTexts))},
    };
}

QJsonObject toJson(const CXddRemark& remark)
{
    return {{key("line"), remark.mLine}, {key("entry"), remark.entry()}, {key("message"), remark.text()}};
}

QJsonObject pdoJson(const CXddPdo& pdo, CShownTexts& texts)
{
    QJsonArray fields;
    for (const CXddPdoField& field : pdo.mFields) {
        fields.append(fieldJson(field, texts));
    }
    const QString transmission = CXddPdo::transmissionAsStr(pdo.mTransmission);
    return {
        {key("name"), pdo.name()},
        {key("number"), pdo.mNumber},
        {key("direction"), key(pdo.mIsTransmit ? "transmit" : "receive")},
        {key("communication"), orNull(pdo.communicationIndex(), pdo.mHasCommunication)},
        {key("mapping"), orNull(pdo.mappingIndex(), pdo.mHasMapping)},
        {key("enabled"), pdo.mIsEnabled},
        {key("canId"), orNull(pdo.mCanId, pdo.mCanId != 0)},
        {key("extended"), pdo.mIsExtended},
        {key("usesNodeId"), pdo.mUsesNodeId},
        {key("multiplexed"), pdo.mIsMultiplexed},
        {key("transmissionType"), orNull(pdo.mTransmissionType.value_or(0), pdo.mTransmissionType.has_value())},
        {key("transmission"), orNull(transmission, !transmission.isEmpty())},
        {key("inhibitTimeMicroseconds"), toJson(pdo.mInhibitTime)},
        {key("eventTimerMilliseconds"), toJson(pdo.mEventTimer)},
        {key("syncStart"), toJson(pdo.mSyncStart)},
        {key("bytes"), pdo.bytes()},
        {key("fields"), fields},
        {key("remarks"), toJson<CXddRemark>(pdo.mRemarks)},
    };
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
    CShownTexts texts(description.document);
    QJsonObject network = toJson(description.reader->networkProfile(), texts);
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
    writeLine(
        {{key("file"), description.fileName}, {key("deviceProfile"), device}, {key("networkProfile"), network}}, texts);
}

void CJsonReport::showEntries(const SShownDescription& description, const QVector<SSelectedEntry>& entries)
{
    CShownTexts texts(description.document);
    for (const SSelectedEntry& entry : entries) {
        QJsonObject json{{key("file"), description.fileName}};
        if (entry.subObject) {
            json[key("index")] = toJson(entry.object.mIndex);
            json[key("subObject")] = subObjectJson(entry.object.mIndex, *entry.subObject, texts);
        } else {
            json[key("object")] = objectJson(entry.object, texts);
        }
        writeLine(json, texts);
    }
}

void CJsonReport::showPdos(const SShownDescription& description)
{
    CShownTexts texts(description.document);
    QJsonArray pdos;
    for (const CXddPdo& pdo : description.pdos) {
        pdos.append(pdoJson(pdo, texts));
    }
    writeLine(
        {
            {key("file"), description.fileName},
            {key("nodeId"), orNull(description.nodeId, description.nodeId != 0)},
            {key("pdos"), pdos},
        },
        texts);
}

// Says where texts were left out of it.
void CJsonReport::writeLine(QJsonObject json, const CShownTexts& texts)
{
    if (texts.areLeftOut()) {
        json[key("textsLeftOut")] = true;
    }
    mOutput.writeLine(oneLine(json));
}
