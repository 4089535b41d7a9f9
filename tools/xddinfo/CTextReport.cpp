#include "CTextReport.h"

#include "COutput.h"
#include "CTable.h"
#include "Messages.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace
{
// Width of the names of fields, in columns.
constexpr int FIELD_NAME_WIDTH = 24;

// As many PDOs of one direction are shown with what they map; a device can have 512.
constexpr int MAX_SHOWN_PDOS = 16;

// The invalid enumerators are shown as nothing.

QString accessShown(const CCanOpenSubObject& entry)
{
    return entry.mAccessType == CCanOpenSubObject::OBJ_ACCESS_INVALID
               ? QString()
               : CCanOpenSubObject::accessTypeAsStr(entry.mAccessType);
}

QString mappingShown(const CCanOpenSubObject& entry)
{
    return entry.mPdoMapping == CCanOpenSubObject::OBJ_MAP_INVALID
               ? QString()
               : CCanOpenSubObject::pdoMappingAsStr(entry.mPdoMapping);
}

QString joined(const QStringList& texts, const QString& separator)
{
    QStringList stated = texts;
    stated.removeAll(QString());
    return stated.join(separator);
}

QString moment(const QDate& date, const QTime& time)
{
    return joined({date.toString(Qt::ISODate), time.toString(Qt::ISODate)}, QStringLiteral(" "));
}

bool isIn(const QString& language, const CGLabel& label)
{
    return label.mLang.section(QRegularExpression(QStringLiteral("[-_]")), 0, 0).compare(language, Qt::CaseInsensitive)
           == 0;
}

// The texts of a list of labels, or what its references point to: those in the user's language where there are any,
// else those in English, else all.
QString labelsText(const CGLabels& labels)
{
    for (const QString& language : {QLocale().name().section(QLatin1Char('_'), 0, 0), QStringLiteral("en")}) {
        QStringList texts;
        for (const CGLabel& label : labels) {
            texts << (isIn(language, label) ? label.mText : QString());
        }
        QString text = joined(texts, QStringLiteral("; "));
        if (!text.isEmpty()) {
            return text;
        }
    }
    QStringList texts;
    for (const CGLabel& label : labels) {
        texts << (label.mTextId.isEmpty() ? label.mText : label.mDictId + QLatin1Char('#') + label.mTextId);
    }
    return joined(texts, QStringLiteral("; "));
}

QString versionsText(const QList<CVersion>& versions)
{
    QStringList texts;
    for (const CVersion& version : versions) {
        const QString type = version.mVersionType == CVersion::VTYPE_INVALID
                                 ? QString()
                                 : CVersion::versionTypeAsStr(version.mVersionType);
        texts << (version.mValue.isEmpty() ? QString() : joined({type, version.mValue}, QStringLiteral(" ")));
    }
    return joined(texts, QStringLiteral(", "));
}

// A bit rate in kbit/s.
QString rateShown(CNetworkCanOpenProfile::EBaudrate rate)
{
    switch (rate) {
    case CNetworkCanOpenProfile::BAUD_INVALID:
        return QString();
    case CNetworkCanOpenProfile::BAUD_AUTO:
        return QCoreApplication::translate("xddinfo", "automatic");
    default:
        return QCoreApplication::translate("xddinfo", "%1 kbit/s").arg(static_cast<int>(rate));
    }
}

// "created 2011-10-05 09:09:00 by name", as far as it is stated.
QString doneText(const QString& what, const QString& when, const QString& by)
{
    if (when.isEmpty() && by.isEmpty()) {
        return QString();
    }
    const QString who = by.isEmpty() ? QString() : QCoreApplication::translate("xddinfo", "by %1").arg(by);
    return joined({what, when, who}, QStringLiteral(" "));
}

// The file attributes, which both profiles have under the same names.
template <typename Profile> QString fileText(const Profile& profile, bool hasCreationDate)
{
    const QString created = moment(hasCreationDate ? profile.mFileCreationDate : QDate(), profile.mFileCreationTime);
    const QString modified = moment(profile.mFileModificationDate, profile.mFileModificationTime);
    const QString version = profile.mFileVersion.isEmpty()
                                ? QString()
                                : QCoreApplication::translate("xddinfo", "version %1").arg(profile.mFileVersion);
    return joined(
        {profile.mFileName, version,
         doneText(QCoreApplication::translate("xddinfo", "created"), created, profile.mFileCreator),
         doneText(QCoreApplication::translate("xddinfo", "modified"), modified, profile.mFileModifiedBy)},
        QStringLiteral(", "));
}

QStringList dictionaryRow(
    const QString& index, const QString& subIndex, const QString& indent, const CCanOpenSubObject& entry)
{
    return {
        index,
        subIndex,
        indent + printable(entry.mName),
        CCanOpenNames::objectCode(entry.mObjectType),
        CCanOpenNames::dataType(entry.mDataType),
        accessShown(entry),
        mappingShown(entry),
        printable(entry.mDefaultValue),
        printable(entry.mActualValue),
        printable(entry.mLowLimit),
        printable(entry.mHighLimit)};
}

const CCanOpenSubObject* subObjectOf(const CCanOpenObject& object, unsigned int subIndex)
{
    const auto found = std::find_if(
        object.mSubObjects.begin(), object.mSubObjects.end(),
        [subIndex](const CCanOpenSubObject& subObject) { return subObject.mIndex == subIndex; });
    return found == object.mSubObjects.end() ? nullptr : &*found;
}

// The value of a sub-object of the identity object, or where to find it.
QString identityValue(const CCanOpenObject& identity, unsigned int subIndex)
{
    const CCanOpenSubObject* const entry = subObjectOf(identity, subIndex);
    if (entry == nullptr) {
        return QString();
    }
    const QString value = entry->mActualValue.isEmpty() ? entry->mDefaultValue : entry->mActualValue;
    const QString place = QStringLiteral("0x1018:%1").arg(subIndex);
    return value.isEmpty() ? QCoreApplication::translate("xddinfo", "in the device (%1)").arg(place)
                           : QStringLiteral("%1 (%2)").arg(value, place);
}
} // namespace

CTextReport::CTextReport(COutput& output, int width)
    : mOutput(output)
    , mWidth(width)
{}

void CTextReport::showDescription(const SShownDescription& description)
{
    const CNetworkCanOpenProfile& network = description.reader->networkProfile();
    showSource(description);
    showIdentity(description.reader->deviceProfile());
    showStandardObjects(network.mObjects);
    showFiles(description);
    mOutput.writeLine();
    showBitRates(description);
    showPdos(tr("Receive PDOs"), receivePdos(network.mObjects));
    showPdos(tr("Transmit PDOs"), transmitPdos(network.mObjects));
    mOutput.writeLine();
    using Kind = CCanOpenNames::EObjectKind;
    const CXddStated& stated = description.stated;
    showCount(
        tr("Mandatory objects"), stated.mMandatoryObjects, network.mMandatoryObjects, Kind::Mandatory,
        network.mObjects);
    showCount(
        tr("Optional objects"), stated.mOptionalObjects, network.mOptionalObjects, Kind::Optional, network.mObjects);
    showCount(
        tr("Manufacturer objects"), stated.mManufacturerObjects, network.mManufacturerObjects, Kind::Manufacturer,
        network.mObjects);
    mOutput.writeLine();
    showDictionary(network.mObjects);
}

void CTextReport::showEntries(const SShownDescription& description, const QVector<SShownEntry>& entries)
{
    showSource(description);
    bool isFirst = true;
    for (const SShownEntry& entry : entries) {
        if (!isFirst) {
            mOutput.writeLine();
        }
        isFirst = false;
        if (entry.subObject) {
            showSubObject(entry.object.mIndex, *entry.subObject, QString());
            continue;
        }
        mOutput.writeLine(tr("Object %1").arg(CCanOpenNames::index(entry.object.mIndex)));
        showFields(entry.object, QStringLiteral("  "));
        showField(
            QStringLiteral("  "), tr("Stated sub-objects"),
            entry.object.mSubNumber == 0 ? QString() : QString::number(entry.object.mSubNumber));
        for (const CCanOpenSubObject& subObject : entry.object.mSubObjects) {
            showSubObject(entry.object.mIndex, subObject, QStringLiteral("  "));
        }
    }
}

void CTextReport::showSource(const SShownDescription& description)
{
    const QString name =
        description.isSample ? tr("Embedded sample %1").arg(description.fileName) : description.fileName;
    mOutput.writeLine(printable(name));
    mOutput.writeLine();
}

void CTextReport::showIdentity(const CDeviceProfile& device)
{
    const QString none;
    showField(none, tr("Vendor"), device.mVendorName.mValue);
    showField(none, tr("Vendor ID"), device.mVendorId.mValue);
    showField(none, tr("Vendor text"), labelsText(device.mVendorText.mLabels));
    showField(none, tr("Device family"), labelsText(device.mDeviceFamily.mLabels));
    showField(none, tr("Product family"), device.mProductFamily.mValue);
    showField(none, tr("Product"), device.mProductName.mValue);
    showField(none, tr("Product ID"), device.mProductId.mValue);
    showField(none, tr("Product text"), labelsText(device.mProductText.mLabels));
    showField(none, tr("Order number"), device.mOrderNumber.mValue);
    showField(none, tr("Versions"), versionsText(device.mVersions));
    showField(none, tr("Build date"), device.mBuildDate.toString(Qt::ISODate));
    showField(none, tr("Follows"), device.mSpecificationRevision.mValue);
    showField(none, tr("Instance name"), device.mInstanceName.mValue);
}

// What the objects of every device say about it: its type, revision and serial number.
void CTextReport::showStandardObjects(const QMap<unsigned int, CCanOpenObject>& objects)
{
    const CCanOpenObject type = objects.value(0x1000);
    const QString value = type.mActualValue.isEmpty() ? type.mDefaultValue : type.mActualValue;
    bool ok = false;
    const unsigned int number = value.toUInt(&ok, 0) & 0xFFFFU;
    const QString profile = CCanOpenNames::deviceProfile(number);
    const QString other = number == 0 ? tr("none (0x1000 is 0)") : tr("none of CiA's (%1)").arg(number);
    showField(QString(), tr("Follows profile"), ok && profile.isEmpty() ? other : profile);
    const CCanOpenObject identity = objects.value(0x1018);
    showField(QString(), tr("Revision number"), identityValue(identity, 3));
    showField(QString(), tr("Serial number"), identityValue(identity, 4));
}

// One line where both profiles say the same.
void CTextReport::showFiles(const SShownDescription& description)
{
    const QString device = fileText(description.reader->deviceProfile(), description.stated.mDeviceCreationDate);
    const QString network = fileText(description.reader->networkProfile(), description.stated.mNetworkCreationDate);
    if (device.isEmpty() && network.isEmpty()) {
        return;
    }
    mOutput.writeLine();
    if (device == network) {
        showField(QString(), tr("File"), device);
        return;
    }
    showField(QString(), tr("Device profile"), device);
    showField(QString(), tr("Network profile"), network);
}

void CTextReport::showBitRates(const SShownDescription& description)
{
    const CNetworkCanOpenProfile& network = description.reader->networkProfile();
    const QString supplied = tr("%1 (not stated; the format's default)");
    QStringList supported;
    for (const CNetworkCanOpenProfile::EBaudrate rate : network.mSupportedBaudRates) {
        supported << rateShown(rate);
    }
    const QString rate = rateShown(network.mBaudRate);
    showField(
        QString(), tr("Default bit rate"), rate.isEmpty() || description.stated.mBaudRate ? rate : supplied.arg(rate));
    if (description.stated.mSupportedBaudRates) {
        showField(QString(), tr("Supported bit rates"), supported.join(QLatin1String(", ")));
    }
}

void CTextReport::showPdos(const QString& name, const QVector<SPdo>& pdos)
{
    showField(QString(), name, QString::number(pdos.size()));
    int shown = 0;
    int more = 0;
    for (const SPdo& pdo : pdos) {
        if (pdo.mapped.isEmpty()) {
            continue;
        }
        if (++shown > MAX_SHOWN_PDOS) {
            ++more;
            continue;
        }
        showField(QStringLiteral("  "), tr("PDO %1").arg(pdo.number), pdo.mapped.join(QLatin1String(", ")));
    }
    showField(QStringLiteral("  "), tr("more"), more == 0 ? QString() : QString::number(more));
}

void CTextReport::showCount(
    const QString& name, bool isStated, unsigned int stated, CCanOpenNames::EObjectKind kind,
    const QMap<unsigned int, CCanOpenObject>& objects)
{
    int found = 0;
    for (auto object = objects.cbegin(); object != objects.cend(); ++object) {
        found += CCanOpenNames::objectKind(object.key()) == kind ? 1 : 0;
    }
    const bool agree = unsigned(found) == stated;
    showField(
        QString(), name,
        !isStated || agree ? QString::number(found)
                           : tr("%1 (the file states %2)").arg(QString::number(found), QString::number(stated)));
}

void CTextReport::showDictionary(const QMap<unsigned int, CCanOpenObject>& objects)
{
    CTable table(
        {tr("Index"), tr("Sub"), tr("Name"), tr("Object"), tr("Data type"), tr("Access"), tr("PDO"), tr("Default"),
         tr("Actual"), tr("Low"), tr("High")});
    for (const CCanOpenObject& object : objects) {
        table.addRow(dictionaryRow(CCanOpenNames::index(object.mIndex), QString(), QString(), object));
        for (const CCanOpenSubObject& subObject : object.mSubObjects) {
            table.addRow(
                dictionaryRow(QString(), CCanOpenNames::subIndex(subObject.mIndex), QStringLiteral("  "), subObject));
        }
    }
    table.write(mOutput, mWidth);
}

void CTextReport::showSubObject(unsigned int index, const CCanOpenSubObject& subObject, const QString& indent)
{
    mOutput.writeLine(
        indent + tr("Sub-object %1 of %2").arg(CCanOpenNames::subIndex(subObject.mIndex), CCanOpenNames::index(index)));
    showFields(subObject, indent + QLatin1String("  "));
}

void CTextReport::showFields(const CCanOpenSubObject& entry, const QString& indent)
{
    showField(indent, tr("Name"), entry.mName);
    showField(indent, tr("Object"), CCanOpenNames::objectCode(entry.mObjectType));
    showField(indent, tr("Data type"), CCanOpenNames::dataType(entry.mDataType));
    showField(indent, tr("Access"), accessShown(entry));
    showField(indent, tr("PDO mapping"), mappingShown(entry));
    showField(indent, tr("Default value"), entry.mDefaultValue);
    showField(indent, tr("Actual value"), entry.mActualValue);
    showField(indent, tr("Low limit"), entry.mLowLimit);
    showField(indent, tr("High limit"), entry.mHighLimit);
    showField(indent, tr("Denotation"), entry.mDenotation);
    showField(indent, tr("Flags"), entry.mObjFlags == 0 ? QString() : CCanOpenNames::index(entry.mObjFlags));
    showField(indent, tr("Parameter"), entry.mUniqueIdRef);
}

// A field without a value is left out.
void CTextReport::showField(const QString& indent, const QString& name, const QString& value)
{
    if (!value.isEmpty()) {
        const QString start = indent + name;
        const int gap = std::max(FIELD_NAME_WIDTH - columnsOf(start), 1);
        mOutput.writeLine(start + QString(gap, QLatin1Char(' ')) + printable(value));
    }
}
