#include "CCanOpenNames.h"
#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "canopen/Writings.h"
#include "diff/CChanges.h"
#include "names/NFormatWords.h"
#include "names/Objects.h"

#include <QMap>
#include <QSet>

#include <algorithm>

using namespace NIso15745Tags;
using namespace NFormatWords;

namespace
{
using EBaudrate = CNetworkCanOpenProfile::EBaudrate;

constexpr EBaudrate INVALID = CNetworkCanOpenProfile::BAUD_INVALID;

// Bit rates that an EDS has no key for.
bool isInEds(EBaudrate rate)
{
    return rate != CNetworkCanOpenProfile::BAUD_100_KBPS && rate != CNetworkCanOpenProfile::BAUD_AUTO;
}

QString rateText(EBaudrate rate)
{
    return rate == INVALID ? QString() : CNetworkCanOpenProfile::baudrateAsStr(rate);
}

class CDeviceChanges
{
public:
    CDeviceChanges(const SSides& sides, CChanges& changes)
        : mSides(sides)
        , mOld(sides.old.device)
        , mNow(sides.now.device)
        , mChanges(changes)
    {}

    void compare()
    {
        compareIdentities();
        compareRates();
        compareFeatures();
        compareDummies();
        compareCommissioning();
        compareFiles();
    }

private:
    void add(const char* rule, const SWords& words, const SDifference& difference)
    {
        mChanges.add(QLatin1String(rule), nullptr, nullptr, words, difference);
    }

    void compareText(const char* rule, const QString& old, const QString& now, const SWords& words)
    {
        if (old != now) {
            add(rule, words, {old, now});
        }
    }

    // The number of an identity, as the device profile or else the network profile has it.
    static std::optional<CInteger> identityNumber(const CXddDevice& device, QLatin1String name)
    {
        const QString text = device.mDeviceProfile.identity(name);
        return readInteger(text.isEmpty() ? device.mNetworkProfile.identity(name) : text);
    }

    void compareNumber(QLatin1String name)
    {
        const std::optional<CInteger> old = identityNumber(mOld, name);
        const std::optional<CInteger> now = identityNumber(mNow, name);
        if (old && now && *old != *now) {
            const auto text = [](const CInteger& number) {
                return QStringLiteral("0x%1").arg(number.bits(), 8, 16, QLatin1Char('0'));
            };
            mChanges.add(
                QLatin1String("identity-changed"), nullptr, nullptr, CRemarks::say("%3 %1 -> %2"),
                {text(*old), text(*now)}, {text(*old), text(*now), name});
        }
    }

    void compareIdentities()
    {
        compareNumber(TAG_VENDOR_ID);
        compareNumber(TAG_PRODUCT_ID);
        const CXddProfile& old = mOld.mDeviceProfile;
        const CXddProfile& now = mNow.mDeviceProfile;
        for (const QLatin1String name : {TAG_VENDOR_NAME, TAG_PRODUCT_NAME, TAG_ORDER_NUMBER}) {
            const SDifference texts = {old.identity(name), now.identity(name)};
            if (texts.old != texts.now && (mSides.areOfOneForm() || !(texts.old.isEmpty() || texts.now.isEmpty()))) {
                mChanges.add(
                    QLatin1String("text-changed"), nullptr, nullptr, CRemarks::say("%3 \"%1\" -> \"%2\""), texts,
                    {texts.old, texts.now, name});
            }
        }
        if (mSides.areXdd()) {
            for (const QLatin1String name :
                 {TAG_VENDOR_TEXT, TAG_PRODUCT_TEXT, TAG_PRODUCT_FAMILY, TAG_DEVICE_FAMILY}) {
                const auto text = [name](const CXddProfile& profile) {
                    return profile.identity(name) + profile.identityTexts(name, QString());
                };
                if (text(old) != text(now)) {
                    mChanges.add(
                        QLatin1String("text-changed"), nullptr, nullptr, CRemarks::say("%3 \"%1\" -> \"%2\""),
                        {text(old), text(now)}, {text(old), text(now), name});
                }
            }
        }
    }

    // Rates that one side has and the other does not.
    QString ratesOnlyIn(const CXddDevice& device, const CXddDevice& other) const
    {
        const QSet<EBaudrate> others(other.mBitRates.begin(), other.mBitRates.end());
        QStringList rates;
        for (const EBaudrate rate : device.mBitRates) {
            if (!others.contains(rate) && (mSides.areXdd() || isInEds(rate))) {
                rates << rateText(rate);
            }
        }
        rates.removeDuplicates();
        return rates.join(QLatin1String(", "));
    }

    void compareRates()
    {
        if (!mOld.mBitRates.isEmpty() && !mNow.mBitRates.isEmpty()) {
            const QString lost = ratesOnlyIn(mOld, mNow);
            const QString gained = ratesOnlyIn(mNow, mOld);
            if (!lost.isEmpty()) {
                mChanges.add(
                    QLatin1String("bit-rate-removed"), nullptr, nullptr, CRemarks::say("no longer supports %1"),
                    {lost, QString()}, {lost});
            }
            if (!gained.isEmpty()) {
                mChanges.add(
                    QLatin1String("bit-rate-added"), nullptr, nullptr, CRemarks::say("supports %1, too"),
                    {QString(), gained}, {gained});
            }
        }
        if (mOld.mDefaultBitRate != INVALID && mNow.mDefaultBitRate != INVALID) {
            compareText(
                "bit-rate-default", rateText(mOld.mDefaultBitRate), rateText(mNow.mDefaultBitRate),
                CRemarks::say("default bit rate %1 -> %2"));
        }
    }

    // Features that both forms can state. One that counts PDOs is compared only where both do it in the same way.
    QStringList features() const
    {
        if (!mSides.areXdd()) {
            QStringList names = {ATTR_BOOT_UP_MASTER,   ATTR_BOOT_UP_SLAVE,   ATTR_GRANULARITY,
                                 ATTR_DYNAMIC_CHANNELS, ATTR_GROUP_MESSAGING, ATTR_LSS_SLAVE};
            return mSides.areOfOneForm() ? names + QStringList{ATTR_NR_OF_RX_PDO, ATTR_NR_OF_TX_PDO} : names;
        }
        QStringList names;
        for (const CXddDevice* const device : {&mOld, &mNow}) {
            for (const CXddFeature& feature : device->mGeneralFeatures + device->mMasterFeatures) {
                names << feature.mName;
            }
        }
        names.removeDuplicates();
        return names;
    }

    void compareFeatures()
    {
        for (const QString& name : features()) {
            const QString old = mOld.feature(name);
            const QString now = mNow.feature(name);
            const bool isCount = name == ATTR_GRANULARITY || name == ATTR_NR_OF_RX_PDO || name == ATTR_NR_OF_TX_PDO;
            if (isCount && (old.isEmpty() || now.isEmpty())) {
                continue;
            }
            const unsigned int before = amountOf(name, old);
            const unsigned int after = amountOf(name, now);
            if (before != after) {
                mChanges.add(
                    QLatin1String(after < before ? "feature-lost" : "feature-gained"), nullptr, nullptr,
                    CRemarks::say("%3 %1 -> %2"), {old, now}, {shown(old), shown(now), name});
            }
        }
    }

    static SArgument shown(const QString& text)
    {
        return text.isEmpty() ? SArgument(CRemarks::filled(CRemarks::say("not stated"))) : SArgument(text);
    }

    // How much a feature is: a flag 0 or 1, a number itself. Mapping is the finer the smaller the granularity is, and 0
    // is none.
    static unsigned int amountOf(const QString& name, const QString& text)
    {
        const std::optional<unsigned int> number = CXmlValue::toNumber(text, DECIMAL);
        const unsigned int amount = number ? *number : unsigned(flagOf(text).value_or(false));
        const bool isGranularity = name == ATTR_GRANULARITY;
        return isGranularity && amount > 0 ? ~amount : amount;
    }

    void compareDummies()
    {
        if (!mOld.mStatesDummies || !mNow.mStatesDummies) {
            return;
        }
        const auto missing = [](const QList<unsigned int>& types, const QList<unsigned int>& others) {
            const QSet<unsigned int> known(others.begin(), others.end());
            QStringList found;
            for (const unsigned int type : types) {
                if (!known.contains(type)) {
                    found << CCanOpenNames::dataType(type);
                }
            }
            found.removeDuplicates();
            return found.join(QLatin1String(", "));
        };
        const QString lost = missing(mOld.mDummyTypes, mNow.mDummyTypes);
        const QString gained = missing(mNow.mDummyTypes, mOld.mDummyTypes);
        if (!lost.isEmpty()) {
            mChanges.add(
                QLatin1String("feature-lost"), nullptr, nullptr, CRemarks::say("can no longer map the dummy %1"),
                {lost, QString()}, {lost});
        }
        if (!gained.isEmpty()) {
            mChanges.add(
                QLatin1String("feature-gained"), nullptr, nullptr, CRemarks::say("can map the dummy %1"),
                {QString(), gained}, {gained});
        }
    }

    using Items = QList<QPair<QLatin1String, QString>>;

    // One change for all items, which names those that differ.
    void compareItems(const char* rule, const SWords& words, const Items& olds, const Items& news)
    {
        QStringList names;
        QStringList before;
        QStringList after;
        for (int item = 0; item < olds.size(); ++item) {
            if (olds[item].second != news[item].second) {
                names << olds[item].first;
                before << olds[item].second;
                after << news[item].second;
            }
        }
        if (!names.isEmpty()) {
            const auto joined = [](const QStringList& texts) {
                return texts.join(QLatin1String(", "));
            };
            mChanges.add(
                QLatin1String(rule), nullptr, nullptr, words, {joined(before), joined(after)},
                {SArgument::word(joined(names)), joined(before), joined(after)});
        }
    }

    void compareCommissioning()
    {
        const auto items = [](const CXddCommissioning& commissioning) {
            return Items{
                {ATTR_NODE_ID, QString::number(commissioning.mNodeId)},
                {ATTR_NODE_NAME, commissioning.mNodeName},
                {ATTR_ACTUAL_BAUD_RATE, rateText(commissioning.mBaudrate)},
                {ATTR_NETWORK_NUMBER, QString::number(commissioning.mNetworkNumber)},
                {ATTR_NETWORK_NAME, commissioning.mNetworkName},
                {ATTR_CANOPEN_MANAGER, QString::number(int(commissioning.mIsManager.value_or(false)))}};
        };
        if (mOld.mIsCommissioned && mNow.mIsCommissioned) {
            compareItems(
                "commissioning-changed", CRemarks::say("commissioning: %1 \"%2\" -> \"%3\""),
                items(mOld.mCommissioning), items(mNow.mCommissioning));
        }
    }

    static QString dateText(const QDate& date, const QTime& time)
    {
        return (date.toString(Qt::ISODate) + QLatin1Char(' ') + time.toString(Qt::ISODate)).trimmed();
    }

    void compareFiles()
    {
        const auto items = [](const CXddProfile& profile) {
            return Items{
                {ATTR_FILE_NAME, profile.mFileName},
                {ATTR_FILE_VERSION, profile.mFileVersion},
                {ATTR_FILE_CREATOR, profile.mFileCreator},
                {ATTR_FILE_CREATION_DATE, dateText(profile.mFileCreationDate, profile.mFileCreationTime)},
                {ATTR_FILE_MODIFIED_BY, profile.mFileModifiedBy},
                {ATTR_FILE_MODIFICATION_DATE, dateText(profile.mFileModificationDate, profile.mFileModificationTime)}};
        };
        if (mSides.areOfOneForm()) {
            compareItems(
                "file-changed", CRemarks::say("file: %1 \"%2\" -> \"%3\""), items(mOld.mDeviceProfile),
                items(mNow.mDeviceProfile));
        }
    }

    const SSides& mSides;
    const CXddDevice& mOld;
    const CXddDevice& mNow;
    CChanges& mChanges;
};

// True for a higher version: "1.10" is above "1.9".
bool isHigher(const QString& old, const QString& now)
{
    const QStringList before = old.split(QLatin1Char('.'));
    const QStringList after = now.split(QLatin1Char('.'));
    for (int part = 0; part < before.size() && part < after.size(); ++part) {
        const std::optional<CInteger> left = readInteger(before[part]);
        const std::optional<CInteger> right = readInteger(after[part]);
        if (!left || !right || *left != *right) {
            return left && right && *left < *right;
        }
    }
    return !old.isEmpty() && after.size() > before.size();
}
} // namespace

void compareDevices(const SSides& sides, CChanges& changes)
{
    CDeviceChanges(sides, changes).compare();
}

bool isRevisionRaised(const SSides& sides)
{
    const CXddDevice& old = sides.old.device;
    const CXddDevice& now = sides.now.device;
    const std::optional<unsigned int> before = sides.old.dictionary.number(IDENTITY, 3);
    const std::optional<unsigned int> after = sides.now.dictionary.number(IDENTITY, 3);
    const bool isNumberHigher = before && after && *after > *before;
    const bool isStatedHigher =
        old.mRevisionNumber && now.mRevisionNumber && *now.mRevisionNumber > *old.mRevisionNumber;
    const std::optional<unsigned int> oldExtra = sides.old.description.extras().revisionNumber;
    const std::optional<unsigned int> newExtra = sides.now.description.extras().revisionNumber;
    const bool isExtraHigher = oldExtra && newExtra && *newExtra > *oldExtra;
    if (isNumberHigher || isStatedHigher || isExtraHigher
        || isHigher(old.mDeviceProfile.mFileVersion, now.mDeviceProfile.mFileVersion)) {
        return true;
    }
    // The first version of each kind, such as that of the firmware.
    QMap<int, QString> versions;
    for (const CVersion& version : old.mDeviceProfile.mVersions) {
        versions.insert(version.mVersionType, versions.value(version.mVersionType, version.mValue));
    }
    const QList<CVersion>& news = now.mDeviceProfile.mVersions;
    return std::any_of(news.begin(), news.end(), [&versions](const CVersion& version) {
        return isHigher(versions.value(version.mVersionType), version.mValue);
    });
}
