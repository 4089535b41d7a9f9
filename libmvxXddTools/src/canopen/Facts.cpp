#include "CXddFact.h"

#include "CCanOpenNames.h"

#include "NIso15745Tags.h"
#include "canopen/Device.h"
#include "canopen/Texts.h"
#include "names/Objects.h"
#include "remarks/CRemarks.h"

using namespace NIso15745Tags;

CXddFact::CXddFact() = default;

CXddFact::CXddFact(const QString& name, const QString& value)
    : mName(name)
    , mValue(value)
{}

namespace
{
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
    return joinedTexts({date.toString(Qt::ISODate), time.toString(Qt::ISODate)}, QLatin1String(" "));
}

QString versionsText(const QList<CVersion>& versions)
{
    QStringList texts;
    for (const CVersion& version : versions) {
        const QString type = version.mVersionType == CVersion::VTYPE_INVALID
                                 ? QString()
                                 : CVersion::versionTypeAsStr(version.mVersionType);
        texts << (version.mValue.isEmpty() ? QString() : joinedTexts({type, version.mValue}, QLatin1String(" ")));
    }
    return joinedTexts(texts, QLatin1String(", "));
}

// "created 2011-10-05 09:09:00 by name", as far as it is stated.
QString doneText(const QString& what, const QString& when, const QString& by)
{
    if (when.isEmpty() && by.isEmpty()) {
        return QString();
    }
    return joinedTexts({what, when, by.isEmpty() ? QString() : CRemarks::tr("by %1").arg(by)}, QLatin1String(" "));
}

QString fileText(const CXddProfile& profile)
{
    const QString created = moment(profile.mFileCreationDate, profile.mFileCreationTime);
    const QString modified = moment(profile.mFileModificationDate, profile.mFileModificationTime);
    const QString version =
        profile.mFileVersion.isEmpty() ? QString() : CRemarks::tr("version %1").arg(profile.mFileVersion);
    return joinedTexts(
        {profile.mFileName, version, doneText(CRemarks::tr("created"), created, profile.mFileCreator),
         doneText(CRemarks::tr("modified"), modified, profile.mFileModifiedBy)},
        QLatin1String(", "));
}

// The value of a sub-object of the identity object, or where to find it.
QString identityValue(const CDictionary& dictionary, unsigned int subIndex)
{
    const SEntry* const entry = dictionary.subObject(IDENTITY, subIndex);
    if (entry == nullptr) {
        return QString();
    }
    const QString value = (entry->actualValue.isGiven() ? entry->actualValue : entry->defaultValue).text;
    const QString place = entry->place().entry();
    return value.isEmpty() ? CRemarks::tr("in the device (%1)").arg(place)
                           : QStringLiteral("%1 (%2)").arg(value, place);
}

// What the lower half of object 0x1000 says.
QString profileText(const std::optional<unsigned int>& deviceType)
{
    if (!deviceType) {
        return QString();
    }
    const unsigned int number = *deviceType & 0xFFFFU;
    const QString profile = CCanOpenNames::deviceProfile(number);
    return !profile.isEmpty() ? profile
           : number == 0      ? CRemarks::tr("none (0x1000 is 0)")
                              : CRemarks::tr("none of CiA's (%1)").arg(number);
}
} // namespace

QList<CXddFact> factsOf(const CXddDevice& device, const CDictionary& dictionary, const QString& language)
{
    const CXddProfile& profile = device.mDeviceProfile;
    return stated({
        {CRemarks::tr("Vendor"), profile.identity(TAG_VENDOR_NAME)},
        {CRemarks::tr("Vendor ID"), profile.identity(TAG_VENDOR_ID)},
        {CRemarks::tr("Vendor text"), profile.identityTexts(TAG_VENDOR_TEXT, language)},
        {CRemarks::tr("Device family"), profile.identityTexts(TAG_DEVICE_FAMILY, language)},
        {CRemarks::tr("Product family"), profile.identity(TAG_PRODUCT_FAMILY)},
        {CRemarks::tr("Product"), profile.identity(TAG_PRODUCT_NAME)},
        {CRemarks::tr("Product ID"), profile.identity(TAG_PRODUCT_ID)},
        {CRemarks::tr("Product text"), profile.identityTexts(TAG_PRODUCT_TEXT, language)},
        {CRemarks::tr("Order number"), profile.identity(TAG_ORDER_NUMBER)},
        {CRemarks::tr("Versions"), versionsText(profile.mVersions)},
        {CRemarks::tr("Build date"), profile.mBuildDate.toString(Qt::ISODate)},
        {CRemarks::tr("Specification"), profile.identity(TAG_SPEC_REVISION)},
        {CRemarks::tr("Instance name"), profile.identity(TAG_INSTANCE_NAME)},
        {CRemarks::tr("Device profile"), profileText(device.mDeviceType)},
        {CRemarks::tr("Revision number"), identityValue(dictionary, 3)},
        {CRemarks::tr("Serial number"), identityValue(dictionary, 4)},
    });
}

QList<CXddFact> fileFactsOf(const CXddDevice& device)
{
    const QString ofDevice = fileText(device.mDeviceProfile);
    const QString ofNetwork = fileText(device.mNetworkProfile);
    return stated(
        ofDevice == ofNetwork
            ? QList<CXddFact>{{CRemarks::tr("File"), ofDevice}}
            : QList<CXddFact>{{CRemarks::tr("File, device"), ofDevice}, {CRemarks::tr("File, network"), ofNetwork}});
}
