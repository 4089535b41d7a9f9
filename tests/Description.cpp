#include "Description.h"

#include <QTemporaryFile>
#include <QtTest>

#include <algorithm>
#include <vector>

namespace
{
// Lists the fields of records, each behind the path that leads to it.
class CDump
{
public:
    QStringList lines;

    void add(const QString& path, const QString& value) { lines << path + QStringLiteral(" = ") + value; }
    void add(const QString& path, unsigned int value) { add(path, QString::number(value)); }
    void add(const QString& path, bool value) { add(path, value ? QStringLiteral("true") : QStringLiteral("false")); }
    void add(const QString& path, const QDate& value) { add(path, value.toString(Qt::ISODate)); }
    void add(const QString& path, const QTime& value) { add(path, value.toString(Qt::ISODateWithMs)); }
    void add(const QString& path, CNetworkCanOpenProfile::EBaudrate value)
    {
        add(path, CNetworkCanOpenProfile::baudrateAsStr(value));
    }
    void add(const QString& path, const CGLabel& label)
    {
        add(path + QStringLiteral(".mType"), CGLabel::gLabelTypeAsStr(label.mType));
        add(path + QStringLiteral(".mText"), label.mText);
        add(path + QStringLiteral(".mLang"), label.mLang);
        add(path + QStringLiteral(".mUri"), label.mUri);
        add(path + QStringLiteral(".mRefText"), label.mRefText);
        add(path + QStringLiteral(".mDictId"), label.mDictId);
        add(path + QStringLiteral(".mTextId"), label.mTextId);
    }
    void add(const QString& path, const CWriteProtectString& text)
    {
        add(path + QStringLiteral(".mValue"), text.mValue);
        add(path + QStringLiteral(".mReadOnly"), text.mReadOnly);
    }
    void add(const QString& path, const CWriteProtectGLabels& text)
    {
        addList<CGLabel>(path + QStringLiteral(".mLabels"), text.mLabels);
        add(path + QStringLiteral(".mReadOnly"), text.mReadOnly);
    }
    void add(const QString& path, const CVersion& version)
    {
        add(path + QStringLiteral(".mVersionType"), CVersion::versionTypeAsStr(version.mVersionType));
        add(path, static_cast<const CWriteProtectString&>(version));
    }
    template <typename Item> void addList(const QString& path, const QList<Item>& items)
    {
        add(path + QStringLiteral(".size"), unsigned(items.size()));
        for (int i = 0; i < items.size(); ++i) {
            add(path + QStringLiteral("[%1]").arg(i), items.at(i));
        }
    }
    void add(const QString& path, const CProfileHeader& header)
    {
        add(path + QStringLiteral(".mProfileIdentification"), header.mProfileIdentification);
        add(path + QStringLiteral(".mProfileRevision"), header.mProfileRevision);
        add(path + QStringLiteral(".mProfileName"), header.mProfileName);
        add(path + QStringLiteral(".mProfileSource"), header.mProfileSource);
        add(path + QStringLiteral(".mProfileClassId"), CProfileHeader::classIdAsStr(header.mProfileClassId));
        add(path + QStringLiteral(".mProfileDate"), header.mProfileDate);
        add(path + QStringLiteral(".mAdditionalInformation"), header.mAdditionalInformation);
        add(path + QStringLiteral(".mIso15745Part"), header.mIso15745Part);
        add(path + QStringLiteral(".mIso15745Edition"), header.mIso15745Edition);
        add(path + QStringLiteral(".mProfileTechnology"), header.mProfileTechnology);
        add(path + QStringLiteral(".mIasInterfaceType"), CProfileHeader::iasIfTypAsStr(header.mIasInterfaceType));
    }
    template <typename Profile> void addCommonPart(const QString& path, const Profile& profile)
    {
        add(path + QStringLiteral(".mHeader"), profile.mHeader);
        add(path + QStringLiteral(".mFileCreationDate"), profile.mFileCreationDate);
        add(path + QStringLiteral(".mFileCreationTime"), profile.mFileCreationTime);
        add(path + QStringLiteral(".mFileCreator"), profile.mFileCreator);
        add(path + QStringLiteral(".mFileModificationDate"), profile.mFileModificationDate);
        add(path + QStringLiteral(".mFileModificationTime"), profile.mFileModificationTime);
        add(path + QStringLiteral(".mFileModifiedBy"), profile.mFileModifiedBy);
        add(path + QStringLiteral(".mFileName"), profile.mFileName);
        add(path + QStringLiteral(".mFileVersion"), profile.mFileVersion);
        add(path + QStringLiteral(".mVendorId"), profile.mVendorId);
        add(path + QStringLiteral(".mDeviceFamily"), profile.mDeviceFamily);
        add(path + QStringLiteral(".mProductId"), profile.mProductId);
        addList(path + QStringLiteral(".mVersions"), profile.mVersions);
        add(path + QStringLiteral(".mBuildDate"), profile.mBuildDate);
        add(path + QStringLiteral(".mSpecificationRevision"), profile.mSpecificationRevision);
    }
    void add(const QString& path, const CDeviceProfile& device)
    {
        addCommonPart(path, device);
        add(path + QStringLiteral(".mVendorName"), device.mVendorName);
        add(path + QStringLiteral(".mVendorText"), device.mVendorText);
        add(path + QStringLiteral(".mProductFamily"), device.mProductFamily);
        add(path + QStringLiteral(".mProductName"), device.mProductName);
        add(path + QStringLiteral(".mProductText"), device.mProductText);
        add(path + QStringLiteral(".mOrderNumber"), device.mOrderNumber);
        add(path + QStringLiteral(".mInstanceName"), device.mInstanceName);
        addList<CGLabel>(path + QStringLiteral(".mCategory"), device.mCategory);
        const CCharacteristic& characteristic = device.mCharacteristic;
        addList<CGLabel>(path + QStringLiteral(".mCharacteristicName"), characteristic.mCharacteristicName);
        addList<CGLabel>(path + QStringLiteral(".mCharacteristicContent"), characteristic.mCharacteristicContent);
    }
    void add(const QString& path, const CCanOpenSubObject& entry)
    {
        add(path + QStringLiteral(".mIndex"), entry.mIndex);
        add(path + QStringLiteral(".mName"), entry.mName);
        add(path + QStringLiteral(".mObjectType"), unsigned(entry.mObjectType));
        add(path + QStringLiteral(".mDataType"), unsigned(entry.mDataType));
        add(path + QStringLiteral(".mLowLimit"), entry.mLowLimit);
        add(path + QStringLiteral(".mHighLimit"), entry.mHighLimit);
        add(path + QStringLiteral(".mAccessType"), CCanOpenSubObject::accessTypeAsStr(entry.mAccessType));
        add(path + QStringLiteral(".mDefaultValue"), entry.mDefaultValue);
        add(path + QStringLiteral(".mActualValue"), entry.mActualValue);
        add(path + QStringLiteral(".mDenotation"), entry.mDenotation);
        add(path + QStringLiteral(".mPdoMapping"), CCanOpenSubObject::pdoMappingAsStr(entry.mPdoMapping));
        add(path + QStringLiteral(".mObjFlags"), entry.mObjFlags);
        add(path + QStringLiteral(".mUniqueIdRef"), entry.mUniqueIdRef);
        add(path + QStringLiteral(".mSubNumber"), unsigned(entry.mSubNumber));
    }
    void add(const QString& path, const CNetworkCanOpenProfile& network)
    {
        addCommonPart(path, network);
        add(path + QStringLiteral(".mMandatoryObjects"), network.mMandatoryObjects);
        add(path + QStringLiteral(".mOptionalObjects"), network.mOptionalObjects);
        add(path + QStringLiteral(".mManufacturerObjects"), network.mManufacturerObjects);
        add(path + QStringLiteral(".mBaudRate"), network.mBaudRate);
        addList(path + QStringLiteral(".mSupportedBaudRates"), network.mSupportedBaudRates);
        add(path + QStringLiteral(".mObjects.size"), unsigned(network.mObjects.size()));
        for (auto object = network.mObjects.cbegin(); object != network.mObjects.cend(); ++object) {
            const QString at = QStringLiteral("mObjects[0x%1]").arg(object.key(), 4, 16, QLatin1Char('0'));
            add(at, static_cast<const CCanOpenSubObject&>(*object));
            addList(at + QStringLiteral(".mSubObjects"), object->mSubObjects);
        }
    }
};
} // namespace

QByteArray testData(const QString& name)
{
    QFile file(QStringLiteral(TEST_DATA "/") + name);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("There is no file %s", qPrintable(file.fileName()));
    }
    return file.readAll();
}

QByteArray description()
{
    return testData(QStringLiteral("load/description.xdd"));
}

QByteArray changed(const QByteArray& text, const QByteArray& before, const QByteArray& after)
{
    if (text.count(before) != 1) {
        qFatal("The description has %d times: %s", int(text.count(before)), before.constData());
    }
    return QByteArray(text).replace(before, after);
}

bool loadText(ICIso15745& reader, const QByteArray& text, QString& errorText)
{
    QTemporaryFile file;
    if (!file.open() || file.write(text) != text.size() || !file.flush()) {
        qFatal("No temporary file");
    }
    return reader.load(file.fileName(), errorText);
}

QStringList dump(ICIso15745& reader)
{
    CDump dump;
    dump.add(QStringLiteral("device"), reader.deviceProfile());
    dump.add(QStringLiteral("network"), reader.networkProfile());
    return dump.lines;
}

QStringList differences(const QStringList& first, const QStringList& second)
{
    // How long the longest common sequence is of what follows a line of the one and a line of the other.
    const int rows = int(first.size());
    const int columns = int(second.size());
    std::vector<std::vector<int>> common(std::size_t(rows + 1), std::vector<int>(std::size_t(columns + 1), 0));
    const auto at = [&common](int row, int column) -> int& {
        return common[std::size_t(row)][std::size_t(column)];
    };
    for (int row = rows - 1; row >= 0; --row) {
        for (int column = columns - 1; column >= 0; --column) {
            at(row, column) = first.at(row) == second.at(column) ? at(row + 1, column + 1) + 1
                                                                 : std::max(at(row + 1, column), at(row, column + 1));
        }
    }
    QStringList lines;
    for (int row = 0, column = 0; row < rows || column < columns;) {
        if (row < rows && column < columns && first.at(row) == second.at(column)) {
            ++row;
            ++column;
        } else if (column == columns || (row < rows && at(row + 1, column) >= at(row, column + 1))) {
            lines << QLatin1Char('-') + first.at(row++);
        } else {
            lines << QLatin1Char('+') + second.at(column++);
        }
    }
    return lines;
}
