#include "CTextReport.h"

#include "COutput.h"
#include "CTable.h"
#include "Catalogue.h"
#include "Messages.h"

#include <algorithm>

namespace
{
// The object code of a variable.
constexpr unsigned int VARIABLE = 7;

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

// The texts of a list of labels, or what its references point to, in the user's language where there are any.
QString labelsText(const CGLabels& labels)
{
    QList<CXddLabel> texts;
    for (const CGLabel& label : labels) {
        texts << CXddLabel(
            label.mLang, label.mTextId.isEmpty() ? label.mText : label.mDictId + QLatin1Char('#') + label.mTextId);
    }
    return CXddLabel::chosen(texts, userLanguage());
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

// What kind of entry it is: the data type of a variable, else the object code.
QString typeShown(const CCanOpenSubObject& entry, bool isShort)
{
    if (entry.mObjectType != VARIABLE || entry.mDataType == 0) {
        return CCanOpenNames::objectCode(entry.mObjectType);
    }
    return isShort ? CCanOpenNames::shortDataType(entry.mDataType) : CCanOpenNames::dataType(entry.mDataType);
}

CTable dictionaryTable(const QMap<unsigned int, CCanOpenObject>& objects, bool isShort)
{
    CTable table({
        {CTextReport::tr("Index")},
        {CTextReport::tr("Name"), 16},
        {CTextReport::tr("Type")},
        {CTextReport::tr("Access")},
        {CTextReport::tr("PDO")},
        {CTextReport::tr("Default"), 8},
        {CTextReport::tr("Actual"), 8},
        {CTextReport::tr("Low"), 8, true},
        {CTextReport::tr("High"), 8, true},
    });
    const auto addRow = [&](const QString& address, const QString& indent, const CCanOpenSubObject& entry) {
        table.addRow(
            {address, indent + printable(entry.mName), typeShown(entry, isShort), accessShown(entry),
             mappingShown(entry), printable(entry.mDefaultValue), printable(entry.mActualValue),
             printable(entry.mLowLimit), printable(entry.mHighLimit)});
    };
    for (const CCanOpenObject& object : objects) {
        addRow(CCanOpenNames::entry(object.mIndex), QString(), object);
        for (const CCanOpenSubObject& subObject : object.mSubObjects) {
            addRow(CCanOpenNames::entry(object.mIndex, subObject.mIndex), QStringLiteral("  "), subObject);
        }
    }
    return table;
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
    const QString place = CCanOpenNames::entry(0x1018, subIndex);
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
    showPdos(tr("Receive PDOs"), description.pdos, false);
    showPdos(tr("Transmit PDOs"), description.pdos, true);
    mOutput.writeLine();
    using Kind = CCanOpenNames::EObjectKind;
    const auto isStated = [&description](CXddDocument::EItem item) {
        return description.document.states(item);
    };
    showCount(
        tr("Mandatory objects"), isStated(CXddDocument::ITEM_MANDATORY_OBJECTS), network.mMandatoryObjects,
        Kind::Mandatory, network.mObjects);
    showCount(
        tr("Optional objects"), isStated(CXddDocument::ITEM_OPTIONAL_OBJECTS), network.mOptionalObjects, Kind::Optional,
        network.mObjects);
    showCount(
        tr("Manufacturer objects"), isStated(CXddDocument::ITEM_MANUFACTURER_OBJECTS), network.mManufacturerObjects,
        Kind::Manufacturer, network.mObjects);
    mOutput.writeLine();
    showDictionary(network.mObjects);
}

void CTextReport::showEntries(const SShownDescription& description, const QVector<SSelectedEntry>& entries)
{
    showSource(description);
    CShownTexts texts(description.document);
    bool isFirst = true;
    for (const SSelectedEntry& entry : entries) {
        if (!isFirst) {
            mOutput.writeLine();
        }
        isFirst = false;
        if (entry.subObject) {
            showSubObject(entry.object, *entry.subObject, QString(), texts);
            continue;
        }
        mOutput.writeLine(tr("Object %1").arg(CCanOpenNames::entry(entry.object.mIndex)));
        showFields(entry.object, QStringLiteral("  "));
        showTexts(texts.of(entry.object.mIndex), QStringLiteral("  "));
        showField(
            QStringLiteral("  "), tr("Stated sub-objects"),
            entry.object.mSubNumber == 0 ? QString() : QString::number(entry.object.mSubNumber));
        for (const CCanOpenSubObject& subObject : entry.object.mSubObjects) {
            showSubObject(entry.object, subObject, QStringLiteral("  "), texts);
        }
    }
    if (texts.areLeftOut()) {
        mOutput.writeLine();
        mOutput.writeLine(tr("Further texts are left out: together they are far longer than the description."));
    }
}

void CTextReport::showSource(const SShownDescription& description)
{
    mOutput.writeLine(printable(description.title()));
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
    const QString device = fileText(
        description.reader->deviceProfile(), description.document.states(CXddDocument::ITEM_DEVICE_CREATION_DATE));
    const QString network = fileText(
        description.reader->networkProfile(), description.document.states(CXddDocument::ITEM_NETWORK_CREATION_DATE));
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
        QString(), tr("Default bit rate"),
        rate.isEmpty() || description.document.states(CXddDocument::ITEM_BAUD_RATE) ? rate : supplied.arg(rate));
    if (description.document.states(CXddDocument::ITEM_SUPPORTED_BAUD_RATES)) {
        showField(QString(), tr("Supported bit rates"), supported.join(QLatin1String(", ")));
    }
}

void CTextReport::showPdos(const QString& name, const QList<CXddPdo>& pdos, bool isTransmit)
{
    QList<CXddPdo> mapped;
    int count = 0;
    for (const CXddPdo& pdo : pdos) {
        if (pdo.mIsTransmit == isTransmit) {
            ++count;
            mapped << (pdo.mFields.isEmpty() ? QList<CXddPdo>() : QList<CXddPdo>{pdo});
        }
    }
    showField(QString(), name, QString::number(count));
    for (const CXddPdo& pdo : mapped.mid(0, MAX_SHOWN_PDOS)) {
        QStringList entries;
        for (const CXddPdoField& field : pdo.mFields) {
            entries << field.entry();
        }
        showField(QStringLiteral("  "), tr("PDO %1").arg(pdo.mNumber), entries.join(QLatin1String(", ")));
    }
    const auto more = mapped.size() - MAX_SHOWN_PDOS;
    showField(QStringLiteral("  "), tr("more"), more <= 0 ? QString() : QString::number(more));
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

// With short names of data types where the long ones do not fit.
void CTextReport::showDictionary(const QMap<unsigned int, CCanOpenObject>& objects)
{
    const CTable table = dictionaryTable(objects, false);
    (table.fits(mWidth) ? table : dictionaryTable(objects, true)).write(mOutput, mWidth);
}

void CTextReport::showSubObject(
    const CCanOpenObject& object, const CCanOpenSubObject& subObject, const QString& indent, CShownTexts& texts)
{
    mOutput.writeLine(indent + tr("Sub-object %1").arg(CCanOpenNames::entry(object.mIndex, subObject.mIndex)));
    showFields(subObject, indent + QLatin1String("  "));
    showTexts(texts.of(object.mIndex, subObject.mIndex), indent + QLatin1String("  "));
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
    showField(
        indent, tr("Flags"),
        entry.mObjFlags == 0 ? QString() : QStringLiteral("0x") + QString::number(entry.mObjFlags, 16).toUpper());
    showField(indent, tr("Parameter"), entry.mUniqueIdRef);
}

// What the description says of an entry for people.
void CTextReport::showTexts(const CXddEntryTexts& texts, const QString& indent)
{
    const QString language = userLanguage();
    showField(indent, tr("Label"), CXddLabel::chosen(texts.mLabels, language));
    showField(indent, tr("Description"), CXddLabel::chosen(texts.mDescriptions, language));
    showField(
        indent, tr("Unit"), joined({CXddLabel::chosen(texts.mUnits, language), texts.mUnitUri}, QStringLiteral(" ")));
    showField(indent, tr("Multiplier"), texts.mMultiplier);
    showField(indent, tr("Offset"), texts.mOffset);
    for (const CXddAllowedValue& value : texts.mAllowedValues) {
        const QString range = value.isSingle() ? value.mLow : value.mLow + QLatin1String("..") + value.mHigh;
        showField(
            indent, tr("Allowed value"),
            joined({range, CXddLabel::chosen(value.mLabels, language)}, QStringLiteral("  ")));
    }
}

void CTextReport::showField(const QString& indent, const QString& name, const QString& value)
{
    writeField(mOutput, indent, name, value);
}
