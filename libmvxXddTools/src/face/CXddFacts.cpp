#include "CXddFacts.h"

#include "CCanOpenNames.h"
#include "CXddEntryTexts.h"
#include "remarks/CRemarks.h"

#include <algorithm>

CXddFact::CXddFact() = default;

CXddFact::CXddFact(const QString& name, const QString& value)
    : mName(name)
    , mValue(value)
{}

namespace
{
QString joined(const QStringList& texts, const QString& separator)
{
    QStringList stated = texts;
    stated.removeAll(QString());
    return stated.join(separator);
}

QList<CXddFact> stated(const QList<CXddFact>& facts)
{
    QList<CXddFact> result;
    for (const CXddFact& fact : facts) {
        if (!fact.mValue.isEmpty()) {
            result << fact;
        }
    }
    return result;
}

QString moment(const QDate& date, const QTime& time)
{
    return joined({date.toString(Qt::ISODate), time.toString(Qt::ISODate)}, QStringLiteral(" "));
}

// The texts of a list of labels, or what its references point to, in a language where there are any.
QString labelsText(const CGLabels& labels, const QString& language)
{
    QList<CXddLabel> texts;
    for (const CGLabel& label : labels) {
        texts << CXddLabel(
            label.mLang, label.mTextId.isEmpty() ? label.mText : label.mDictId + QLatin1Char('#') + label.mTextId);
    }
    return CXddLabel::chosen(texts, language);
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

// "created 2011-10-05 09:09:00 by name", as far as it is stated.
QString doneText(const QString& what, const QString& when, const QString& by)
{
    if (when.isEmpty() && by.isEmpty()) {
        return QString();
    }
    const QString who = by.isEmpty() ? QString() : CRemarks::tr("by %1").arg(by);
    return joined({what, when, who}, QStringLiteral(" "));
}

// The file attributes, which both profiles have under the same names.
template <typename Profile> QString fileText(const Profile& profile, bool hasCreationDate)
{
    const QString created = moment(hasCreationDate ? profile.mFileCreationDate : QDate(), profile.mFileCreationTime);
    const QString modified = moment(profile.mFileModificationDate, profile.mFileModificationTime);
    const QString version =
        profile.mFileVersion.isEmpty() ? QString() : CRemarks::tr("version %1").arg(profile.mFileVersion);
    return joined(
        {profile.mFileName, version, doneText(CRemarks::tr("created"), created, profile.mFileCreator),
         doneText(CRemarks::tr("modified"), modified, profile.mFileModifiedBy)},
        QStringLiteral(", "));
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
    return value.isEmpty() ? CRemarks::tr("in the device (%1)").arg(place)
                           : QStringLiteral("%1 (%2)").arg(value, place);
}
// What the lower half of object 0x1000 says.
QString profileText(const CCanOpenObject& deviceType)
{
    const QString value = deviceType.mActualValue.isEmpty() ? deviceType.mDefaultValue : deviceType.mActualValue;
    bool ok = false;
    const unsigned int number = value.toUInt(&ok, 0) & 0xFFFFU;
    const QString profile = CCanOpenNames::deviceProfile(number);
    const QString other =
        number == 0 ? CRemarks::tr("none (0x1000 is 0)") : CRemarks::tr("none of CiA's (%1)").arg(number);
    return ok && profile.isEmpty() ? other : profile;
}
} // namespace

QList<CXddFact> CXddFacts::identity(ICIso15745& reader, const QString& language)
{
    const CDeviceProfile& device = reader.deviceProfile();
    const QMap<unsigned int, CCanOpenObject>& objects = reader.networkProfile().mObjects;
    const CCanOpenObject identity = objects.value(0x1018);
    return stated({
        {CRemarks::tr("Vendor"), device.mVendorName.mValue},
        {CRemarks::tr("Vendor ID"), device.mVendorId.mValue},
        {CRemarks::tr("Vendor text"), labelsText(device.mVendorText.mLabels, language)},
        {CRemarks::tr("Device family"), labelsText(device.mDeviceFamily.mLabels, language)},
        {CRemarks::tr("Product family"), device.mProductFamily.mValue},
        {CRemarks::tr("Product"), device.mProductName.mValue},
        {CRemarks::tr("Product ID"), device.mProductId.mValue},
        {CRemarks::tr("Product text"), labelsText(device.mProductText.mLabels, language)},
        {CRemarks::tr("Order number"), device.mOrderNumber.mValue},
        {CRemarks::tr("Versions"), versionsText(device.mVersions)},
        {CRemarks::tr("Build date"), device.mBuildDate.toString(Qt::ISODate)},
        {CRemarks::tr("Follows"), device.mSpecificationRevision.mValue},
        {CRemarks::tr("Instance name"), device.mInstanceName.mValue},
        {CRemarks::tr("Follows profile"), profileText(objects.value(0x1000))},
        {CRemarks::tr("Revision number"), identityValue(identity, 3)},
        {CRemarks::tr("Serial number"), identityValue(identity, 4)},
    });
}

QList<CXddFact> CXddFacts::files(ICIso15745& reader, const CXddDocument& document)
{
    const QString device = fileText(reader.deviceProfile(), document.states(CXddDocument::ITEM_DEVICE_CREATION_DATE));
    const QString network =
        fileText(reader.networkProfile(), document.states(CXddDocument::ITEM_NETWORK_CREATION_DATE));
    return stated(
        device == network
            ? QList<CXddFact>{{CRemarks::tr("File"), device}}
            : QList<CXddFact>{{CRemarks::tr("Device profile"), device}, {CRemarks::tr("Network profile"), network}});
}
