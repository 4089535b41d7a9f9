#include "ShownDescription.h"

#include "Catalogue.h"

#include <ICIso15745.h>

#include <QCoreApplication>

namespace
{
// As many times the size of the description, and that many characters more.
constexpr qint64 TEXTS_FACTOR = 4;
constexpr qint64 TEXTS_LEAST = 1000000;

CXddEntry entryOf(const CCanOpenSubObject& record, const CCanOpenObject& object)
{
    const auto value = [](const QString& text) {
        return text.isEmpty() ? CXddValue() : CXddValue(text, CXddValue::ORIGIN_ENTRY);
    };
    CXddEntry entry;
    entry.mIndex = object.mIndex;
    entry.mName = record.mName;
    entry.mObjectName = object.mName;
    entry.mObjectCode = record.mObjectType;
    entry.mDataType = record.mDataType;
    entry.mAccessType = record.mAccessType;
    entry.mPdoMapping = record.mPdoMapping;
    entry.mDefaultValue = value(record.mDefaultValue);
    entry.mActualValue = value(record.mActualValue);
    entry.mLowLimit = value(record.mLowLimit);
    entry.mHighLimit = value(record.mHighLimit);
    entry.mDenotation = record.mDenotation;
    entry.mObjFlags = record.mObjFlags;
    entry.mUniqueIdRef = record.mUniqueIdRef;
    return entry;
}

QList<CXddEntry> entriesOf(const QMap<unsigned int, CCanOpenObject>& objects)
{
    QList<CXddEntry> entries;
    for (const CCanOpenObject& object : objects) {
        entries << entryOf(object, object);
        entries.last().mSubObjects = int(object.mSubObjects.size());
        entries.last().mSubNumber = object.mSubNumber;
        for (const CCanOpenSubObject& subObject : object.mSubObjects) {
            entries << entryOf(subObject, object);
            entries.last().mSubIndex = subObject.mIndex;
        }
    }
    return entries;
}
// The items of an identity that a record holds; what it does not hold is not stated.
class CIdentity
{
public:
    CIdentity& add(const char* name, const CWriteProtectString& record)
    {
        if (!record.mValue.isEmpty()) {
            add(name, record.mReadOnly).mText = record.mValue;
        }
        return *this;
    }

    CIdentity& add(const char* name, const CWriteProtectGLabels& record)
    {
        const bool isStated = record.valid() && (record.mLabels.size() > 1 || !record.mLabels.first().mText.isEmpty());
        if (isStated) {
            add(name, record.mReadOnly).mLabels = record.mLabels;
        }
        return *this;
    }

    QList<CXddIdentityText> items() const { return mItems; }

private:
    CXddIdentityText& add(const char* name, bool isReadOnly)
    {
        mItems << CXddIdentityText();
        mItems.last().mName = QString::fromLatin1(name);
        mItems.last().mIsReadOnly = isReadOnly;
        return mItems.last();
    }

    QList<CXddIdentityText> mItems;
};

// What both records have under the same names.
template <typename Record> CXddProfile profileOf(const Record& record)
{
    CXddProfile profile;
    profile.mIsStated = record.mHeader.mProfileClassId != CProfileHeader::CID_INVALID;
    profile.mHeader = record.mHeader;
    profile.mFileName = record.mFileName;
    profile.mFileCreator = record.mFileCreator;
    profile.mFileModifiedBy = record.mFileModifiedBy;
    profile.mFileVersion = record.mFileVersion;
    profile.mFileCreationDate = record.mFileCreationDate;
    profile.mFileCreationTime = record.mFileCreationTime;
    profile.mFileModificationDate = record.mFileModificationDate;
    profile.mFileModificationTime = record.mFileModificationTime;
    profile.mVersions = record.mVersions;
    profile.mBuildDate = record.mBuildDate;
    return profile;
}

CXddDevice deviceOf(ICIso15745& reader, CXddDevice device)
{
    const CDeviceProfile& own = reader.deviceProfile();
    const CNetworkCanOpenProfile& network = reader.networkProfile();
    device.mDeviceProfile = profileOf(own);
    device.mDeviceProfile.mIdentity = CIdentity()
                                          .add("vendorName", own.mVendorName)
                                          .add("vendorID", own.mVendorId)
                                          .add("vendorText", own.mVendorText)
                                          .add("deviceFamily", own.mDeviceFamily)
                                          .add("productFamily", own.mProductFamily)
                                          .add("productName", own.mProductName)
                                          .add("productID", own.mProductId)
                                          .add("productText", own.mProductText)
                                          .add("orderNumber", own.mOrderNumber)
                                          .add("specificationRevision", own.mSpecificationRevision)
                                          .add("instanceName", own.mInstanceName)
                                          .items();
    device.mCategory = own.mCategory;
    device.mCharacteristicName = own.mCharacteristic.mCharacteristicName;
    device.mCharacteristicContent = own.mCharacteristic.mCharacteristicContent;
    device.mNetworkProfile = profileOf(network);
    device.mNetworkProfile.mIdentity = CIdentity()
                                           .add("vendorID", network.mVendorId)
                                           .add("deviceFamily", network.mDeviceFamily)
                                           .add("productID", network.mProductId)
                                           .add("specificationRevision", network.mSpecificationRevision)
                                           .items();
    device.mDefaultBitRate = network.mBaudRate;
    device.mBitRates = network.mSupportedBaudRates;
    return device;
}
} // namespace

SShownDescription::SShownDescription(const QString& name, const CXddDocument& opened)
    : fileName(name)
    , document(opened)
    , device(opened.device())
    , entries(opened.entries())
    , facts(opened.facts(userLanguage()))
{}

SShownDescription::SShownDescription(const QString& name, const CXddDocument& opened, ICIso15745& reader)
    : fileName(name)
    , document(opened)
    , device(deviceOf(reader, opened.device()))
    , entries(entriesOf(reader.networkProfile().mObjects))
    , facts(opened.facts(userLanguage()))
{}

QString SShownDescription::title() const
{
    return isSample ? QCoreApplication::translate("xddinfo", "Embedded sample %1").arg(fileName) : fileName;
}

int SShownDescription::endOf(int object) const
{
    int end = object + 1;
    while (end < entries.size() && entries[end].mSubIndex) {
        ++end;
    }
    return end;
}

CShownTexts::CShownTexts(const CXddDocument& document)
    : mDocument(document)
    , mLeft(TEXTS_FACTOR * document.bytes().size() + TEXTS_LEAST)
{}

CXddEntryTexts CShownTexts::of(const CXddEntry& entry)
{
    return limited(mDocument.texts(entry.mIndex, entry.mSubIndex));
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
