#include "CIso15745Impl.h"

#include "CChildElements.h"
#include "CLimitedXmlReader.h"
#include "NIso15745Tags.h"
#include "XmlValues.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace NIso15745Tags;

namespace
{
// Number bases of CDomDoc: indexes and flags are hexadecimal, for all other numbers their prefix decides.
constexpr int HEXADECIMAL = 16;
constexpr int BY_PREFIX = 0;

// The eight file attributes that the bodies of both profiles carry. The optional ones are read whatever happens to the
// required ones.
template <typename Profile> bool parseFileAttributes(const QDomElement& body, Profile& profile, QString& errorText)
{
    const bool complete =
        CDomDoc::success(
            CDomDoc::existingAttributeAsDate(ATTR_FILE_CREATION_DATE, body, profile.mFileCreationDate, errorText))
        && CDomDoc::success(CDomDoc::existingAttribute(ATTR_FILE_CREATOR, body, profile.mFileCreator, errorText))
        && CDomDoc::success(CDomDoc::existingAttribute(ATTR_FILE_NAME, body, profile.mFileName, errorText))
        && CDomDoc::success(CDomDoc::existingAttribute(ATTR_FILE_VERSION, body, profile.mFileVersion, errorText));

    profile.mFileCreationTime = CDomDoc::existingAttributeAsTime(ATTR_FILE_CREATION_TIME, body, QTime());
    profile.mFileModificationDate = CDomDoc::existingAttributeAsDate(ATTR_FILE_MODIFICATION_DATE, body, QDate());
    profile.mFileModificationTime = CDomDoc::existingAttributeAsTime(ATTR_FILE_MODIFICATION_TIME, body, QTime());
    profile.mFileModifiedBy = CDomDoc::existingAttribute(ATTR_FILE_MODIFIED_BY, body, QString());
    return complete;
}

bool parseClassId(const QDomElement& element, CProfileHeader& header, QString& errorText)
{
    QDomElement classId;
    if (!CDomDoc::success(CDomDoc::existingSubElement(TAG_PROFILE_CLASS_ID, element, classId, errorText))) {
        return false;
    }
    header.mProfileClassId = CProfileHeader::classIdFromStr(classId.text());
    return true;
}

bool parseIso15745Reference(const QDomElement& element, CProfileHeader& header, QString& errorText)
{
    QDomElement reference;
    return CDomDoc::success(CDomDoc::existingSubElement(TAG_ISO15745_REFERENCE, element, reference, errorText))
           && CDomDoc::success(CDomDoc::existingSubElementAsU32(
               TAG_ISO15745_PART, reference, header.mIso15745Part, errorText, BY_PREFIX))
           && CDomDoc::success(CDomDoc::existingSubElementAsU32(
               TAG_ISO15745_EDITION, reference, header.mIso15745Edition, errorText, BY_PREFIX))
           && CDomDoc::success(CDomDoc::existingSubElementAsString(
               TAG_ISO15745_TECHNOLOGY, reference, header.mProfileTechnology, errorText));
}

bool parseLabelText(const QDomElement& element, CGLabel& label, QString& errorText)
{
    label.mText = element.text();
    if (label.mType == CGLabel::GLABTYP_DESCRIPTION) {
        label.mUri = CDomDoc::existingAttribute(ATTR_URI, element, QString());
    }
    return CDomDoc::success(CDomDoc::existingAttribute(ATTR_LANG, element, label.mLang, errorText));
}

bool parseLabelReference(const QDomElement& element, CGLabel& label, QString& errorText)
{
    label.mRefText = element.text();
    return CDomDoc::success(CDomDoc::existingAttribute(ATTR_DICT_ID, element, label.mDictId, errorText))
           && CDomDoc::success(CDomDoc::existingAttribute(ATTR_TEXT_ID, element, label.mTextId, errorText));
}

bool parseReadOnly(const QDomElement& element, bool& readOnly, QString& errorText)
{
    return CDomDoc::success(
        CDomDoc::existingAttributeAsBool(ATTR_READ_ONLY, element, readOnly, errorText, VALUE_TRUE, VALUE_FALSE));
}

// The names of the attributes of objects and sub-objects. A dictionary asks for the same ones thousands of times, so
// they are converted once; as temporaries they would be a quarter of what reading costs beyond parsing.
struct SEntryNames
{
    QString index = ATTR_INDEX;
    QString subIndex = ATTR_SUB_INDEX;
    QString name = ATTR_NAME;
    QString objectType = ATTR_OBJECT_TYPE;
    QString dataType = ATTR_DATA_TYPE;
    QString lowLimit = ATTR_LOW_LIMIT;
    QString highLimit = ATTR_HIGH_LIMIT;
    QString accessType = ATTR_ACCESS_TYPE;
    QString defaultValue = ATTR_DEFAULT_VALUE;
    QString actualValue = ATTR_ACTUAL_VALUE;
    QString denotation = ATTR_DENOTATION;
    QString pdoMapping = ATTR_PDO_MAPPING;
    QString objFlags = ATTR_OBJ_FLAGS;
    QString uniqueIdRef = ATTR_UNIQUE_ID_REF;
    QString subNumber = ATTR_SUB_NUMBER;
    QString subObject = TAG_CAN_OPEN_SUB_OBJECT;
};

const SEntryNames& entryNames()
{
    static const SEntryNames names;
    return names;
}

// What objects and sub-objects have in common. Their index is read from an attribute of its own name.
bool parseObjectAttributes(
    const QString& indexName, const QDomElement& element, CCanOpenSubObject& object, QString& errorText)
{
    const SEntryNames& names = entryNames();
    if (!CDomDoc::success(CDomDoc::existingAttributeAsU32(indexName, element, object.mIndex, errorText, HEXADECIMAL))
        || !CDomDoc::success(CDomDoc::existingAttribute(names.name, element, object.mName, errorText))
        || !CDomDoc::success(
            CDomDoc::existingAttributeAsU8(names.objectType, element, object.mObjectType, errorText, BY_PREFIX))) {
        return false;
    }
    object.mDataType = CDomDoc::existingAttributeAsU8(names.dataType, element, 0, BY_PREFIX);
    object.mLowLimit = CDomDoc::existingAttribute(names.lowLimit, element, QString());
    object.mHighLimit = CDomDoc::existingAttribute(names.highLimit, element, QString());
    object.mAccessType =
        CCanOpenSubObject::accessTypeFromStr(CDomDoc::existingAttribute(names.accessType, element, QString()));
    object.mDefaultValue = CDomDoc::existingAttribute(names.defaultValue, element, QString());
    object.mActualValue = CDomDoc::existingAttribute(names.actualValue, element, QString());
    object.mDenotation = CDomDoc::existingAttribute(names.denotation, element, QString());
    object.mPdoMapping =
        CCanOpenSubObject::pdoMappingFromStr(CDomDoc::existingAttribute(names.pdoMapping, element, QString()));
    object.mObjFlags = CDomDoc::existingAttributeAsU32(names.objFlags, element, 0, HEXADECIMAL);
    object.mUniqueIdRef = CDomDoc::existingAttribute(names.uniqueIdRef, element, QString());
    return true;
}

QString duplicateObjectMessage(const QDomElement& element, unsigned int index)
{
    return QCoreApplication::translate(
               "CIso15745Impl",
               "Error while parsing TAG <%1> in line %2 : There is alrady a can open object with index %3 !")
        .arg(element.tagName(), QString::number(element.lineNumber()), QString::number(index));
}
} // namespace

CIso15745Impl::CIso15745Impl() = default;

bool CIso15745Impl::load(const QString& fileName, QString& errorText)
{
    return openFile(fileName, errorText) && parseRootFromDOM(mDomDoc.documentElement(), errorText);
}

bool CIso15745Impl::save(const QString& /*fileName*/, QString& /*errorText*/)
{
    return false;
}

CCanOpenObject CIso15745Impl::getObj(unsigned int index)
{
    return mNetworkProfile.mObjects.value(index);
}

bool CIso15745Impl::addObject(const CCanOpenObject& object, QString& errorText)
{
    if (mNetworkProfile.mObjects.contains(object.mIndex)) {
        errorText = QString(QLatin1String("ERROR : There is alrady an Object with index %1 !")).arg(object.mIndex);
        return false;
    }
    mNetworkProfile.mObjects.insert(object.mIndex, object);
    return true;
}

QMap<unsigned int, CCanOpenObject> CIso15745Impl::getObjList()
{
    return mNetworkProfile.mObjects;
}

CDeviceProfile& CIso15745Impl::deviceProfile()
{
    return mDeviceProfile;
}

CNetworkCanOpenProfile& CIso15745Impl::networkProfile()
{
    return mNetworkProfile;
}

bool CIso15745Impl::openFile(const QString& fileName, QString& errorText)
{
    if (!QFileInfo::exists(fileName)) {
        errorText = QCoreApplication::translate("CIso15745Impl", "Cannot open file \"%1\": File does not exist.")
                        .arg(QDir::toNativeSeparators(fileName));
        return false;
    }
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        errorText =
            QCoreApplication::translate("CIso15745Impl", "Cannot open file %1: %2").arg(fileName, file.errorString());
        return false;
    }
    QString parserMessage;
    int line = 0;
    int column = 0;
    if (!CLimitedXmlReader::read(file, mDomDoc, parserMessage, line, column)) {
        errorText =
            QCoreApplication::translate("CIso15745Impl", "Read file \"%1\": Parse error at line %2, column %3: %4")
                .arg(QDir::toNativeSeparators(fileName), QString::number(line), QString::number(column), parserMessage);
        mDomDoc.clear();
        return false;
    }
    return true;
}

bool CIso15745Impl::parseRootFromDOM(const QDomElement& root, QString& errorText)
{
    if (root.tagName() != QString(TAG_PROFILE_CONTAINER)) {
        errorText =
            QCoreApplication::translate(
                "CIso15745Impl", "This is not an ISO15745 xdd file. RootTagName is \"%1\", but should be \"%2\".")
                .arg(root.tagName(), TAG_PROFILE_CONTAINER);
        return false;
    }
    mNamespaceUri = root.namespaceURI();
    const QDomAttr schemaLocation = root.attributes().namedItem(ATTR_SCHEMA_LOCATION).toAttr();
    if (!schemaLocation.isNull()) {
        mSchemaLocationPrefix = schemaLocation.prefix();
        mSchemaLocationNamespaceUri = schemaLocation.namespaceURI();
        mSchemaLocation = schemaLocation.value();
    }

    QDomElement first;
    if (!CDomDoc::success(CDomDoc::existingSubElement(TAG_PROFILE, root, first, errorText))) {
        return false;
    }
    for (const QDomElement& profile : CChildElements(root, TAG_PROFILE)) {
        if (!parseIso15745ProfileFromDOM(profile, errorText)) {
            return false;
        }
    }
    return true;
}

bool CIso15745Impl::parseIso15745ProfileFromDOM(const QDomElement& profile, QString& errorText)
{
    QDomElement element;
    CProfileHeader header;
    if (!CDomDoc::success(CDomDoc::existingSubElement(TAG_PROFILE_HEADER, profile, element, errorText))
        || !parseProfileHeaderFromDom(element, header, errorText)
        || !CDomDoc::success(CDomDoc::existingSubElement(TAG_PROFILE_BODY, profile, element, errorText))) {
        return false;
    }
    switch (header.mProfileClassId) {
    case CProfileHeader::CID_DEVICE:
        mDeviceProfile.mHeader = header;
        return parseDeviceProfileBodyFromDOM(element, mDeviceProfile, errorText);
    case CProfileHeader::CID_COMM_NET:
        mNetworkProfile.mHeader = header;
        return parseNetworkCanOpenProfileBodyFromDOM(element, mNetworkProfile, errorText);
    default:
        return true; // Profiles of all other classes are skipped.
    }
}

bool CIso15745Impl::parseProfileHeaderFromDom(const QDomElement& element, CProfileHeader& header, QString& errorText)
{
    const bool complete =
        CDomDoc::success(CDomDoc::existingSubElementAsString(
            TAG_PROFILE_IDENTIFICATION, element, header.mProfileIdentification, errorText))
        && CDomDoc::success(
            CDomDoc::existingSubElementAsString(TAG_PROFILE_REVISION, element, header.mProfileRevision, errorText))
        && CDomDoc::success(
            CDomDoc::existingSubElementAsString(TAG_PROFILE_NAME, element, header.mProfileName, errorText))
        && CDomDoc::success(
            CDomDoc::existingSubElementAsString(TAG_PROFILE_SOURCE, element, header.mProfileSource, errorText))
        && parseClassId(element, header, errorText) && parseIso15745Reference(element, header, errorText);

    header.mProfileDate = CDomDoc::existingSubElementAsDate(TAG_PROFILE_DATE, element, QDate());
    header.mAdditionalInformation = CDomDoc::existingSubElementAsString(TAG_PROFILE_ADD_INFOS, element, QString());
    header.mIasInterfaceType = CProfileHeader::iasIfTypFromStr(
        CDomDoc::existingSubElementAsString(TAG_IAS_INTERFACE_TYPE, element, QString()));
    return complete;
}

bool CIso15745Impl::parseGLabel(const QDomElement& element, CGLabel& label, QString& errorText)
{
    label.mType = CGLabel::gLabelTypeFromStr(element.tagName());
    switch (label.mType) {
    case CGLabel::GLABTYP_LABEL:
    case CGLabel::GLABTYP_DESCRIPTION:
        return parseLabelText(element, label, errorText);
    case CGLabel::GLABTYP_LABEL_REF:
    case CGLabel::GLABTYP_DESCRIPTION_REF:
        return parseLabelReference(element, label, errorText);
    case CGLabel::GLABTYP_INVALID:
        break;
    }
    errorText =
        QCoreApplication::translate("CIso15745Impl", "Error in line %1 : Tag <%2> is not a valid g_labels type.")
            .arg(QString::number(element.lineNumber()), element.tagName());
    return false;
}

bool CIso15745Impl::parseGLabels(const QDomElement& element, CGLabels& labels, QString& errorText)
{
    labels.clear();
    bool complete = true;
    for (const QDomElement& entry : CChildElements(element)) {
        CGLabel label;
        complete = parseGLabel(entry, label, errorText);
        if (!complete) {
            break;
        }
        labels.append(label);
    }
    // Also reached when the first entry was not valid: this message then takes the place of the entry's own.
    if (labels.isEmpty()) {
        errorText = QCoreApplication::translate(
                        "CIso15745Impl", "Error while parsing TAG <%1> in line %2 : There is no g_lables entry.")
                        .arg(element.tagName(), QString::number(element.lineNumber()));
        return false;
    }
    return complete;
}

bool CIso15745Impl::parseWriteProtectedString(
    const QString& tagName, const QDomElement& parent, CWriteProtectString& value, QString& errorText)
{
    QDomElement element;
    if (!CDomDoc::success(CDomDoc::existingSubElement(tagName, parent, element, errorText))) {
        return false;
    }
    value.mValue = element.text();
    return parseReadOnly(element, value.mReadOnly, errorText);
}

bool CIso15745Impl::parseWriteProtectedGLables(
    const QString& tagName, const QDomElement& parent, CWriteProtectGLabels& value, QString& errorText)
{
    QDomElement element;
    return CDomDoc::success(CDomDoc::existingSubElement(tagName, parent, element, errorText))
           && parseGLabels(element, value.mLabels, errorText) && parseReadOnly(element, value.mReadOnly, errorText);
}

void CIso15745Impl::parseVersions(const QDomElement& parent, QList<CVersion>& versions)
{
    versions.clear();
    for (const QDomElement& element : CChildElements(parent, TAG_VERSION)) {
        CVersion version(CDomDoc::existingAttributeAsBool(ATTR_READ_ONLY, element, false, VALUE_TRUE, VALUE_FALSE));
        version.mValue = element.text();
        version.mVersionType =
            CVersion::versionTypeFromStr(CDomDoc::existingAttribute(ATTR_VERSION_TYPE, element, QString()));
        versions.append(version);
    }
}

bool CIso15745Impl::parseDeviceProfileBodyFromDOM(const QDomElement& body, CDeviceProfile& profile, QString& errorText)
{
    QDomElement function;
    if (!parseFileAttributes(body, profile, errorText)
        || !CDomDoc::success(CDomDoc::existingSubElement(TAG_DEVICE_FUNCTION, body, function, errorText))
        || !parseDeviceFunctionFromDOM(function, profile, errorText)) {
        return false;
    }
    const QDomElement identity = CDomDoc::existingSubElement(TAG_DEVICE_IDENTITY, body);
    return identity.isNull() || parseDeviceIdentityFromDOM(identity, profile, errorText);
}

bool CIso15745Impl::parseDeviceIdentityFromDOM(const QDomElement& identity, CDeviceProfile& profile, QString& errorText)
{
    const bool complete = parseWriteProtectedString(TAG_VENDOR_NAME, identity, profile.mVendorName, errorText)
                          && parseWriteProtectedString(TAG_PRODUCT_NAME, identity, profile.mProductName, errorText);

    // The rest is optional and fails without a message. A missing element keeps its field; a malformed one may have
    // stored a part: a text without "readOnly" its text, a list of labels those before the first bad one.
    QString ignored;
    parseWriteProtectedString(TAG_VENDOR_ID, identity, profile.mVendorId, ignored);
    parseWriteProtectedGLables(TAG_VENDOR_TEXT, identity, profile.mVendorText, ignored);
    parseWriteProtectedGLables(TAG_DEVICE_FAMILY, identity, profile.mDeviceFamily, ignored);
    parseWriteProtectedString(TAG_PRODUCT_FAMILY, identity, profile.mProductFamily, ignored);
    parseWriteProtectedString(TAG_PRODUCT_ID, identity, profile.mProductId, ignored);
    parseWriteProtectedGLables(TAG_PRODUCT_TEXT, identity, profile.mProductText, ignored);
    parseWriteProtectedString(TAG_ORDER_NUMBER, identity, profile.mOrderNumber, ignored);
    parseVersions(identity, profile.mVersions);
    profile.mBuildDate = CDomDoc::existingSubElementAsDate(TAG_BUILD_DATE, identity, QDate());
    parseWriteProtectedString(TAG_SPEC_REVISION, identity, profile.mSpecificationRevision, ignored);
    parseWriteProtectedString(TAG_INSTANCE_NAME, identity, profile.mInstanceName, ignored);
    return complete;
}

bool CIso15745Impl::parseDeviceFunctionFromDOM(const QDomElement& function, CDeviceProfile& profile, QString& errorText)
{
    // "picturesList" and "dictionaryList" beside the capabilities are not read.
    QDomElement capabilities;
    return CDomDoc::success(CDomDoc::existingSubElement(TAG_CAPABILITIES, function, capabilities, errorText))
           && parseDeviceFunctionCapabilitiesFromDOM(capabilities, profile, errorText);
}

bool CIso15745Impl::parseDeviceFunctionCapabilitiesFromDOM(
    const QDomElement& capabilities, CDeviceProfile& profile, QString& errorText)
{
    QDomElement list;
    if (!CDomDoc::success(CDomDoc::existingSubElement(TAG_CHARACTERISTICS_LIST, capabilities, list, errorText))
        || !parseDeviceFunctionCharacteristicList(list, profile, errorText)) {
        return false;
    }
    const QDomElement compliance = CDomDoc::existingSubElement(TAG_STANDARD_COMLIANCE_LIST, capabilities);
    if (!compliance.isNull()) {
        errorText = QCoreApplication::translate(
                        "CIso15745Impl", "Error while parsing TAG <%1> in line %2 : Not implemented now !")
                        .arg(compliance.tagName(), QString::number(compliance.lineNumber()));
        return false;
    }
    return true;
}

bool CIso15745Impl::parseDeviceFunctionCharacteristicList(
    const QDomElement& list, CDeviceProfile& profile, QString& errorText)
{
    QDomElement characteristic;
    if (!CDomDoc::success(CDomDoc::existingSubElement(TAG_CHARACTERISTIC, list, characteristic, errorText))
        || !parseCharacteristic(characteristic, profile.mCharacteristic, errorText)) {
        return false;
    }
    const QDomElement category = CDomDoc::existingSubElement(TAG_CATEGORY, list);
    return category.isNull() || parseGLabels(category, profile.mCategory, errorText);
}

bool CIso15745Impl::parseCharacteristic(const QDomElement& element, CCharacteristic& characteristic, QString& errorText)
{
    QDomElement name;
    QDomElement content;
    return CDomDoc::success(CDomDoc::existingSubElement(TAG_CHARACTERISTIC_NAME, element, name, errorText))
           && parseGLabels(name, characteristic.mCharacteristicName, errorText)
           && CDomDoc::success(CDomDoc::existingSubElement(TAG_CHARACTERISTIC_CONTENT, element, content, errorText))
           && parseGLabels(content, characteristic.mCharacteristicContent, errorText);
}

bool CIso15745Impl::parseNetworkCanOpenProfileBodyFromDOM(
    const QDomElement& body, CNetworkCanOpenProfile& profile, QString& errorText)
{
    QDomElement applicationLayers;
    QDomElement transportLayers;
    // "NetworkManagement" is not read.
    return parseFileAttributes(body, profile, errorText)
           && CDomDoc::success(CDomDoc::existingSubElement(TAG_APPLICATION_LAYERS, body, applicationLayers, errorText))
           && parseNetworkApplicationLayersFromDOM(applicationLayers, profile, errorText)
           && CDomDoc::success(CDomDoc::existingSubElement(TAG_TRANSPORT_LAYERS, body, transportLayers, errorText))
           && parseNetworkTransportLayersFromDOM(transportLayers, profile, errorText);
}

bool CIso15745Impl::parseNetworkApplicationLayersFromDOM(
    const QDomElement& layers, CNetworkCanOpenProfile& profile, QString& errorText)
{
    QDomElement objectList;
    if (!CDomDoc::success(CDomDoc::existingSubElement(TAG_CAN_OPEN_OBJECT_LIST, layers, objectList, errorText))
        || !parseNetworkCanOpenObjectListFromDOM(objectList, profile, errorText)) {
        return false;
    }
    const QDomElement identity = CDomDoc::existingSubElement(TAG_IDENTITY, layers);
    if (!identity.isNull()) {
        // All of it is optional, as in the identity of a device.
        QString ignored;
        parseWriteProtectedString(TAG_VENDOR_ID, identity, profile.mVendorId, ignored);
        parseWriteProtectedGLables(TAG_DEVICE_FAMILY, identity, profile.mDeviceFamily, ignored);
        parseWriteProtectedString(TAG_PRODUCT_ID, identity, profile.mProductId, ignored);
        parseVersions(identity, profile.mVersions);
        profile.mBuildDate = CDomDoc::existingSubElementAsDate(TAG_BUILD_DATE, identity, QDate());
        parseWriteProtectedString(TAG_SPEC_REVISION, identity, profile.mSpecificationRevision, ignored);
    }
    // "dummyUsage" and "dynamicChannels" are not read.
    return true;
}

bool CIso15745Impl::parseNetworkTransportLayersFromDOM(
    const QDomElement& layers, CNetworkCanOpenProfile& profile, QString& errorText)
{
    QDomElement physicalLayer;
    QDomElement baudRate;
    return CDomDoc::success(CDomDoc::existingSubElement(TAG_PHYSICAL_LAYER, layers, physicalLayer, errorText))
           && CDomDoc::success(CDomDoc::existingSubElement(TAG_BAUD_RATE, physicalLayer, baudRate, errorText))
           && parseNetworkBaudRateFromDOM(baudRate, profile, errorText);
}

bool CIso15745Impl::parseNetworkBaudRateFromDOM(
    const QDomElement& baudRate, CNetworkCanOpenProfile& profile, QString& errorText)
{
    profile.mBaudRate =
        CNetworkCanOpenProfile::baudrateFromStr(CDomDoc::existingAttribute(ATTR_DEFAULT_VALUE, baudRate, QString()));

    profile.mSupportedBaudRates.clear();
    QDomElement first;
    if (!CDomDoc::success(CDomDoc::existingSubElement(TAG_SUPPORTED_BAUD_RATE, baudRate, first, errorText))) {
        return false;
    }
    for (const QDomElement& supported : CChildElements(baudRate, TAG_SUPPORTED_BAUD_RATE)) {
        QString text;
        if (!CDomDoc::success(CDomDoc::existingAttribute(ATTR_VALUE, supported, text, errorText))) {
            return false;
        }
        const CNetworkCanOpenProfile::EBaudrate rate = CNetworkCanOpenProfile::baudrateFromStr(text);
        if (rate == CNetworkCanOpenProfile::BAUD_INVALID) {
            errorText =
                QCoreApplication::translate(
                    "CIso15745Impl", "Error while parsing TAG <%1> in line %2 : \"%3\" is not an valid baudrate !")
                    .arg(supported.tagName(), QString::number(supported.lineNumber()), text);
            return false;
        }
        profile.mSupportedBaudRates.append(rate);
    }
    return true;
}

bool CIso15745Impl::parseNetworkManagementFromDOM(
    const QDomElement& /*management*/, CNetworkCanOpenProfile& /*profile*/, QString& /*errorText*/)
{
    return true; // Nothing of it is read.
}

bool CIso15745Impl::parseObjects(const QDomElement& list, CNetworkCanOpenProfile& profile, QString& errorText)
{
    QDomElement first;
    if (!CDomDoc::success(CDomDoc::existingSubElement(TAG_CAN_OPEN_OBJECT, list, first, errorText))) {
        return false;
    }
    for (const QDomElement& element : CChildElements(list, TAG_CAN_OPEN_OBJECT)) {
        CCanOpenObject object;
        if (!parseCanObjectFromDOM(element, object, errorText)) {
            return false;
        }
        if (profile.mObjects.contains(object.mIndex)) {
            errorText = duplicateObjectMessage(element, object.mIndex);
            return false;
        }
        profile.mObjects.insert(object.mIndex, object);
    }
    return true;
}

bool CIso15745Impl::parseNetworkCanOpenObjectListFromDOM(
    const QDomElement& list, CNetworkCanOpenProfile& profile, QString& errorText)
{
    const bool complete = parseObjects(list, profile, errorText);

    // The counts are read whatever happened to the objects.
    profile.mMandatoryObjects = CDomDoc::existingAttributeAsU32(ATTR_MANDATORY_OBJECTS, list, 0, BY_PREFIX);
    profile.mOptionalObjects = CDomDoc::existingAttributeAsU32(ATTR_OPTIONAL_OBJECTS, list, 0, BY_PREFIX);
    profile.mManufacturerObjects = CDomDoc::existingAttributeAsU32(ATTR_MANUFACTURER_OBJECTS, list, 0, BY_PREFIX);
    return complete;
}

bool CIso15745Impl::parseCanObjectFromDOM(const QDomElement& element, CCanOpenObject& object, QString& errorText)
{
    const SEntryNames& names = entryNames();
    if (!parseObjectAttributes(names.index, element, object, errorText)) {
        return false;
    }
    object.mSubNumber = CDomDoc::existingAttributeAsU8(names.subNumber, element, 0, BY_PREFIX);
    for (const QDomElement& child : CChildElements(element, names.subObject)) {
        object.mSubObjects.append(CCanOpenSubObject());
        if (!parseCanSubObjectFromDOM(child, object.mSubObjects.last(), errorText)) {
            object.mSubObjects.removeLast();
            return false;
        }
    }
    return true;
}

bool CIso15745Impl::parseCanSubObjectFromDOM(
    const QDomElement& element, CCanOpenSubObject& subObject, QString& errorText)
{
    return parseObjectAttributes(entryNames().subIndex, element, subObject, errorText);
}
