#include "CTextReport.h"

#include "COutput.h"
#include "CanOpenNames.h"

#include <QVector>

#include <algorithm>

namespace
{
// Widest name column of the dictionary, in characters; a longer name pushes the rest of its line to the right.
constexpr int MAX_COLUMN_WIDTH = 40;

// Width of the names of fields, in characters.
constexpr int FIELD_NAME_WIDTH = 24;

QString accessText(const CCanOpenSubObject& entry)
{
    return entry.mAccessType == CCanOpenSubObject::OBJ_ACCESS_INVALID
               ? QString()
               : CCanOpenSubObject::accessTypeAsStr(entry.mAccessType);
}

QString mappingText(const CCanOpenSubObject& entry)
{
    return entry.mPdoMapping == CCanOpenSubObject::OBJ_MAP_INVALID
               ? QString()
               : CCanOpenSubObject::pdoMappingAsStr(entry.mPdoMapping);
}

QString joined(const QString& first, const QString& second)
{
    return first.isEmpty() || second.isEmpty() ? first + second : first + QLatin1Char(' ') + second;
}

QString moment(const QDate& date, const QTime& time)
{
    return joined(date.toString(Qt::ISODate), time.toString(Qt::ISODate));
}

// The texts of a list of labels, or what its references point to.
QString labelsText(const CGLabels& labels)
{
    QStringList texts;
    for (const CGLabel& label : labels) {
        texts << (label.mTextId.isEmpty() ? label.mText : label.mDictId + QLatin1Char('#') + label.mTextId);
    }
    texts.removeAll(QString());
    return texts.join(QLatin1String("; "));
}

QString versionsText(const QList<CVersion>& versions)
{
    QStringList texts;
    for (const CVersion& version : versions) {
        const QString type = version.mVersionType == CVersion::VTYPE_INVALID
                                 ? QString()
                                 : CVersion::versionTypeAsStr(version.mVersionType);
        texts << joined(type, version.mValue.isEmpty() ? QStringLiteral("-") : version.mValue);
    }
    return texts.join(QLatin1String(", "));
}

// A bit rate in kbit/s.
QString rateText(CNetworkCanOpenProfile::EBaudrate rate)
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

// The file attributes, which both profiles have under the same names.
template <typename Profile> QString fileText(const Profile& profile)
{
    QString text = QCoreApplication::translate("xddinfo", "%1, version %2, created %3 by %4")
                       .arg(
                           profile.mFileName, profile.mFileVersion,
                           moment(profile.mFileCreationDate, profile.mFileCreationTime), profile.mFileCreator);
    const QString modified = moment(profile.mFileModificationDate, profile.mFileModificationTime);
    if (!modified.isEmpty() || !profile.mFileModifiedBy.isEmpty()) {
        text += QCoreApplication::translate("xddinfo", ", modified %1 by %2").arg(modified, profile.mFileModifiedBy);
    }
    return text;
}

QStringList dictionaryRow(
    const QString& index, const QString& subIndex, const QString& indent, const CCanOpenSubObject& entry)
{
    return {
        index,
        subIndex,
        indent + printable(entry.mName),
        objectCodeName(entry.mObjectType),
        dataTypeName(entry.mDataType),
        accessText(entry),
        mappingText(entry),
        printable(entry.mDefaultValue),
        printable(entry.mLowLimit),
        printable(entry.mHighLimit)};
}

QVector<int> columnWidths(const QVector<QStringList>& rows)
{
    QVector<int> widths(rows.first().size(), 0);
    for (const QStringList& row : rows) {
        for (int column = 0; column < row.size(); ++column) {
            widths[column] = std::min(std::max(widths[column], row.at(column).size()), MAX_COLUMN_WIDTH);
        }
    }
    return widths;
}

QString tableLine(const QStringList& row, const QVector<int>& widths)
{
    QString line;
    for (int column = 0; column < row.size(); ++column) {
        line += row.at(column).leftJustified(widths.at(column)) + QLatin1String("  ");
    }
    while (line.endsWith(QLatin1Char(' '))) {
        line.chop(1);
    }
    return line;
}
} // namespace

CTextReport::CTextReport(COutput& output)
    : mOutput(output)
{}

void CTextReport::showDescription(const QString& source, ICIso15745& reader)
{
    mOutput.writeLine(printable(source));
    mOutput.writeLine();
    showIdentity(reader.deviceProfile());
    mOutput.writeLine();
    showField(QString(), tr("Device profile"), fileText(reader.deviceProfile()));
    showField(QString(), tr("Network profile"), fileText(reader.networkProfile()));
    mOutput.writeLine();
    showBitRates(reader.networkProfile());
    mOutput.writeLine();
    showCounts(reader.networkProfile());
    mOutput.writeLine();
    showDictionary(reader.networkProfile().mObjects);
}

void CTextReport::showObject(const QString& source, const CCanOpenObject& object)
{
    mOutput.writeLine(printable(source));
    mOutput.writeLine();
    mOutput.writeLine(tr("Object %1").arg(indexText(object.mIndex)));
    showFields(object, QStringLiteral("  "));
    showField(QStringLiteral("  "), tr("Stated sub-objects"), QString::number(object.mSubNumber));
    for (const CCanOpenSubObject& subObject : object.mSubObjects) {
        mOutput.writeLine(QStringLiteral("  ") + tr("Sub-object %1").arg(subIndexText(subObject.mIndex)));
        showFields(subObject, QStringLiteral("    "));
    }
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

void CTextReport::showBitRates(const CNetworkCanOpenProfile& network)
{
    QStringList supported;
    for (const CNetworkCanOpenProfile::EBaudrate rate : network.mSupportedBaudRates) {
        supported << rateText(rate);
    }
    showField(QString(), tr("Default bit rate"), rateText(network.mBaudRate));
    showField(QString(), tr("Supported bit rates"), supported.join(QLatin1String(", ")));
}

void CTextReport::showCounts(const CNetworkCanOpenProfile& network)
{
    QMap<EObjectKind, int> found;
    for (auto object = network.mObjects.cbegin(); object != network.mObjects.cend(); ++object) {
        ++found[objectKind(object.key())];
    }
    const QString counts = tr("%1 stated, %2 found");
    showField(
        QString(), tr("Mandatory objects"),
        counts.arg(QString::number(network.mMandatoryObjects), QString::number(found.value(EObjectKind::Mandatory))));
    showField(
        QString(), tr("Optional objects"),
        counts.arg(QString::number(network.mOptionalObjects), QString::number(found.value(EObjectKind::Optional))));
    showField(
        QString(), tr("Manufacturer objects"),
        counts.arg(
            QString::number(network.mManufacturerObjects), QString::number(found.value(EObjectKind::Manufacturer))));
}

void CTextReport::showDictionary(const QMap<unsigned int, CCanOpenObject>& objects)
{
    QVector<QStringList> rows = {
        {tr("Index"), tr("Sub"), tr("Name"), tr("Object"), tr("Data type"), tr("Access"), tr("PDO"), tr("Default"),
         tr("Low"), tr("High")}};
    for (const CCanOpenObject& object : objects) {
        rows << dictionaryRow(indexText(object.mIndex), QString(), QString(), object);
        for (const CCanOpenSubObject& subObject : object.mSubObjects) {
            rows << dictionaryRow(QString(), subIndexText(subObject.mIndex), QStringLiteral("  "), subObject);
        }
    }
    const QVector<int> widths = columnWidths(rows);
    for (const QStringList& row : rows) {
        mOutput.writeLine(tableLine(row, widths));
    }
}

void CTextReport::showFields(const CCanOpenSubObject& entry, const QString& indent)
{
    showField(indent, tr("Name"), entry.mName);
    showField(indent, tr("Object"), objectCodeName(entry.mObjectType));
    showField(indent, tr("Data type"), dataTypeName(entry.mDataType));
    showField(indent, tr("Access"), accessText(entry));
    showField(indent, tr("PDO mapping"), mappingText(entry));
    showField(indent, tr("Default value"), entry.mDefaultValue);
    showField(indent, tr("Actual value"), entry.mActualValue);
    showField(indent, tr("Low limit"), entry.mLowLimit);
    showField(indent, tr("High limit"), entry.mHighLimit);
    showField(indent, tr("Denotation"), entry.mDenotation);
    showField(indent, tr("Flags"), entry.mObjFlags == 0 ? QString() : indexText(entry.mObjFlags));
    showField(indent, tr("Parameter"), entry.mUniqueIdRef);
}

// A field without a value is left out.
void CTextReport::showField(const QString& indent, const QString& name, const QString& value)
{
    if (!value.isEmpty()) {
        mOutput.writeLine((indent + name).leftJustified(FIELD_NAME_WIDTH) + printable(value));
    }
}
