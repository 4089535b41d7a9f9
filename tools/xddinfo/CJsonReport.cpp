#include "CJsonReport.h"

#include "COutput.h"
#include "Messages.h"

#include <CCanOpenNames.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

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
QJsonObject entryJson(const CXddEntry& entry, CShownTexts& texts)
{
    const QString access = entry.accessText();
    const QString mapping = entry.mappingText();
    return {
        {key("address"), entry.address()},
        {key(entry.mSubIndex ? "subIndex" : "index"), toJson(entry.mSubIndex.value_or(entry.mIndex))},
        {key("name"), entry.mName},
        {key("objectType"), toJson(entry.mObjectCode)},
        {key("dataType"), toJson(entry.mDataType)},
        {key("lowLimit"), entry.mLowLimit.mText},
        {key("highLimit"), entry.mHighLimit.mText},
        {key("accessType"), orNull(access, !access.isEmpty())},
        {key("defaultValue"), entry.mDefaultValue.mText},
        {key("actualValue"), entry.mActualValue.mText},
        {key("denotation"), entry.mDenotation},
        {key("PDOmapping"), orNull(mapping, !mapping.isEmpty())},
        {key("objFlags"), toJson(entry.mObjFlags)},
        {key("uniqueIDRef"), entry.mUniqueIdRef},
        {key("texts"), toJson(texts.of(entry))},
    };
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

// An object with its sub-objects.
QJsonObject objectJson(const SShownDescription& description, int object, CShownTexts& texts)
{
    QJsonObject json = entryJson(description.entries[object], texts);
    QJsonArray subObjects;
    for (int number = object + 1; number < description.endOf(object); ++number) {
        subObjects.append(entryJson(description.entries[number], texts));
    }
    json[key("subNumber")] = toJson(description.entries[object].mSubNumber.value_or(0));
    json[key("subObjects")] = subObjects;
    return json;
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

// An item of an identity: its key, whether it has labels, and whether it is read-only where the file does not say.
struct SItem
{
    const char* name;
    bool hasLabels;
    bool isReadOnly;
};
constexpr std::array DEVICE_ITEMS = {
    SItem{"vendorName", false, true},    SItem{"vendorID", false, true},
    SItem{"vendorText", true, true},     SItem{"deviceFamily", true, true},
    SItem{"productFamily", false, true}, SItem{"productName", false, false},
    SItem{"productID", false, true},     SItem{"productText", true, true},
    SItem{"orderNumber", false, true},   SItem{"specificationRevision", false, true},
    SItem{"instanceName", false, false},
};
constexpr std::array NETWORK_ITEMS = {
    SItem{"vendorID", false, true},
    SItem{"deviceFamily", true, true},
    SItem{"productID", false, true},
    SItem{"specificationRevision", false, true},
};

// Header, file attributes and identity, which both profiles have.
template <typename Items> QJsonObject toJson(const CXddProfile& profile, const Items& items)
{
    QJsonObject object = {
        {key("ProfileHeader"), toJson(profile.mHeader)},
        {key("fileCreationDate"), toJson(profile.mFileCreationDate)},
        {key("fileCreationTime"), toJson(profile.mFileCreationTime)},
        {key("fileCreator"), profile.mFileCreator},
        {key("fileModificationDate"), toJson(profile.mFileModificationDate)},
        {key("fileModificationTime"), toJson(profile.mFileModificationTime)},
        {key("fileModifiedBy"), profile.mFileModifiedBy},
        {key("fileName"), profile.mFileName},
        {key("fileVersion"), profile.mFileVersion},
        {key("versions"), toJson(profile.mVersions)},
        {key("buildDate"), toJson(profile.mBuildDate)},
    };
    for (const SItem& item : items) {
        CXddIdentityText stated;
        stated.mIsReadOnly = item.isReadOnly;
        for (const CXddIdentityText& one : profile.mIdentity) {
            stated = one.mName == key(item.name) ? one : stated;
        }
        object[key(item.name)] = QJsonObject{
            item.hasLabels ? qMakePair(key("labels"), QJsonValue(toJson<CGLabel>(stated.mLabels)))
                           : qMakePair(key("value"), QJsonValue(stated.mText)),
            {key("readOnly"), stated.mIsReadOnly}};
    }
    return object;
}

QJsonValue toJson(const std::optional<unsigned int>& number)
{
    return orNull(number.value_or(0), number.has_value());
}

QJsonObject toJson(const QList<CXddFeature>& features)
{
    QJsonObject object;
    for (const CXddFeature& feature : features) {
        object[feature.mName] = feature.mText;
    }
    return object;
}

QJsonObject toJson(const CXddCommissioning& commissioning)
{
    return {
        {key("nodeID"), orNull(commissioning.mNodeId, commissioning.mNodeId != 0)},
        {key("nodeName"), commissioning.mNodeName},
        {key("actualBaudRate"), toJson(commissioning.mBaudrate)},
        {key("networkNumber"), orNull(commissioning.mNetworkNumber, commissioning.mNetworkNumber != 0)},
        {key("networkName"), commissioning.mNetworkName},
        {key("CANopenManager"), commissioning.mIsManager ? QJsonValue(*commissioning.mIsManager) : QJsonValue()},
    };
}

QJsonObject deviceJson(const CXddDevice& device)
{
    QJsonObject object = toJson(device.mDeviceProfile, DEVICE_ITEMS);
    object[key("category")] = toJson<CGLabel>(device.mCategory);
    object[key("characteristicName")] = toJson<CGLabel>(device.mCharacteristicName);
    object[key("characteristicContent")] = toJson<CGLabel>(device.mCharacteristicContent);
    return object;
}

QJsonObject networkJson(const SShownDescription& description, CShownTexts& texts)
{
    const CXddDevice& device = description.device;
    QJsonArray objects;
    for (int object = 0; object < description.entries.size(); object = description.endOf(object)) {
        objects.append(objectJson(description, object, texts));
    }
    QJsonArray dummies;
    for (const unsigned int type : device.mDummyTypes) {
        dummies.append(toJson(type));
    }
    QJsonObject json = toJson(device.mNetworkProfile, NETWORK_ITEMS);
    json[key("mandatoryObjects")] = toJson(device.mMandatoryObjects.mStated);
    json[key("optionalObjects")] = toJson(device.mOptionalObjects.mStated);
    json[key("manufacturerObjects")] = toJson(device.mManufacturerObjects.mStated);
    json[key("objects")] = objects;
    json[key("dummyTypes")] = device.mStatesDummies ? QJsonValue(dummies) : QJsonValue();
    json[key("baudRate")] = toJson(device.mDefaultBitRate);
    json[key("supportedBaudRates")] = toJson(device.mBitRates);
    json[key("generalFeatures")] = toJson(device.mGeneralFeatures);
    json[key("masterFeatures")] = toJson(device.mMasterFeatures);
    json[key("deviceCommissioning")] =
        device.mIsCommissioned ? QJsonValue(toJson(device.mCommissioning)) : QJsonValue();
    return json;
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
    return {
        {key("line"), remark.mLine},
        {key("entry"), remark.entry()},
        {key("rule"), remark.mRule},
        {key("severity"), CXddRemark::severityAsStr(remark.mSeverity)},
        {key("message"), remark.text()}};
}

QJsonObject pdoJson(const CXddPdo& pdo, CShownTexts& texts)
{
    const auto fieldsJson = [&texts](const QList<CXddPdoField>& fields) {
        QJsonArray array;
        for (const CXddPdoField& field : fields) {
            array.append(fieldJson(field, texts));
        }
        return array;
    };
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
        {key("rtrAllowed"), pdo.mAllowsRtr},
        {key("multiplexed"), pdo.mIsMultiplexed},
        {key("transmissionType"), orNull(pdo.mTransmissionType.value_or(0), pdo.mTransmissionType.has_value())},
        {key("transmission"), orNull(transmission, !transmission.isEmpty())},
        {key("inhibitTimeMicroseconds"), QJsonValue(qint64(pdo.mInhibitTime))},
        {key("eventTimerMilliseconds"), toJson(pdo.mEventTimer)},
        {key("syncStart"), toJson(pdo.mSyncStart)},
        {key("bytes"), pdo.bytes()},
        {key("fields"), fieldsJson(pdo.mFields)},
        {key("beyond"), fieldsJson(pdo.mBeyond)},
        {key("remarks"), toJson<CXddRemark>(pdo.mDoubts)},
    };
}

} // namespace

CJsonReport::CJsonReport(COutput& output)
    : mOutput(output)
{}

void CJsonReport::showDescription(const SShownDescription& description)
{
    CShownTexts texts(description.document);
    writeLine(
        {{key("file"), description.fileName},
         {key("deviceProfile"), deviceJson(description.device)},
         {key("networkProfile"), networkJson(description, texts)},
         {key("revisionNumber"), toJson(description.device.mRevisionNumber)}},
        texts);
}

void CJsonReport::showEntries(const SShownDescription& description, const QVector<int>& selected)
{
    CShownTexts texts(description.document);
    for (const int number : selected) {
        const CXddEntry& entry = description.entries[number];
        QJsonObject json{{key("file"), description.fileName}};
        if (entry.mSubIndex) {
            json[key("index")] = toJson(entry.mIndex);
            json[key("subObject")] = entryJson(entry, texts);
        } else {
            json[key("object")] = objectJson(description, number, texts);
        }
        writeLine(json, texts);
    }
}

void CJsonReport::showPdos(const SShownDescription& description, const QList<CXddPdo>& pdos, unsigned int nodeId)
{
    CShownTexts texts(description.document);
    QJsonArray array;
    for (const CXddPdo& pdo : pdos) {
        array.append(pdoJson(pdo, texts));
    }
    writeLine(
        {
            {key("file"), description.fileName},
            {key("nodeId"), orNull(nodeId, nodeId != 0)},
            {key("pdos"), array},
        },
        texts);
}

// Says where texts were left out of it.
void CJsonReport::writeLine(QJsonObject json, const CShownTexts& texts)
{
    if (texts.areLeftOut()) {
        json[key("textsLeftOut")] = true;
    }
    mOutput.writeLine(jsonLine(json));
}
