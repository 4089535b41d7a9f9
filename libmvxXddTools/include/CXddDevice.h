#ifndef MVXXDDTOOLS_CXDDDEVICE_H
#define MVXXDDTOOLS_CXDDDEVICE_H

#include "CXddCommissioning.h"
#include "CXddEntryTexts.h"
#include "mvxXddTools_export.h"

#include <CNetworkCanOpenProfile.h>
#include <CProfileHeader.h>
#include <CommonElements.h>

#include <QDate>
#include <QList>
#include <QString>
#include <QTime>

#include <optional>

/** A text of an identity that a description states, such as "vendorName". */
class MVXXDDTOOLS_EXPORT CXddIdentityText
{
public:
    CXddIdentityText();

    QString mName;            ///< The element's, such as "vendorName"
    QString mText;            ///< Its text; nothing for one with labels
    CGLabels mLabels;         ///< Its labels as they are written, such as those of "productText"
    QList<CXddLabel> mTexts;  ///< The same with references replaced by the texts that they name
    bool mIsReadOnly = false; ///< "readOnly", or its default in the format
};

/** What the device profile and the network profile of a description both have. */
class MVXXDDTOOLS_EXPORT CXddProfile
{
public:
    /** A profile that is not there. */
    CXddProfile();

    /** A text of the identity; null where it is not stated. */
    QString identity(const QString& name) const;
    /** The texts of an item with labels, in a language such as "de" where there are any, else in English, else all. */
    QString identityTexts(const QString& name, const QString& language) const;

    bool mIsStated = false;      ///< The description has such a profile
    CProfileHeader mHeader;      ///< "ProfileHeader"; what it does not state is empty
    QString mFileName;           ///< "fileName"; empty where not stated, as the texts that follow
    QString mFileCreator;        ///< "fileCreator"
    QString mFileModifiedBy;     ///< "fileModifiedBy"
    QString mFileVersion;        ///< "fileVersion"
    QDate mFileCreationDate;     ///< "fileCreationDate"; null where not stated or not readable, as those that follow
    QTime mFileCreationTime;     ///< "fileCreationTime"
    QDate mFileModificationDate; ///< "fileModificationDate"
    QTime mFileModificationTime; ///< "fileModificationTime"
    QList<CXddIdentityText> mIdentity; ///< What "DeviceIdentity" or "identity" states, in the order of the format
    QList<CVersion> mVersions;         ///< Every "version" of it
    QDate mBuildDate;                  ///< "buildDate" of it; null where not stated
};

/** A feature of the network management that a description states. */
class MVXXDDTOOLS_EXPORT CXddFeature
{
public:
    CXddFeature();

    QString mName; ///< The attribute's, such as "bootUpSlave"
    QString mText; ///< Its value as it is written
};

/** How many objects of a kind there are. */
class MVXXDDTOOLS_EXPORT CXddCount
{
public:
    CXddCount();

    std::optional<unsigned int> mStated; ///< As the description states it; nothing where it does not
    unsigned int mFound = 0;             ///< In its object dictionary
};

/**
 * What a description says of its device as a whole. What it does not state is nothing, an empty text or an empty list,
 * never a default.
 */
class MVXXDDTOOLS_EXPORT CXddDevice
{
public:
    /** The form in which a description is written. */
    enum EForm : int
    {
        FORM_NONE = 0, ///< Not open
        FORM_XDD = 1,  ///< XML of ISO 15745 (XDD, XDC)
        FORM_EDS = 2,  ///< INI form of CiA 306
        FORM_DCF = 3   ///< INI form with what is configured
    };

    /** A device of which nothing is known. */
    CXddDevice();

    /** A feature of either kind as it is written; null where it is not stated. */
    QString feature(const QString& name) const;
    /** A feature that is a flag, such as "bootUpSlave"; nothing where it is not stated, or no flag. */
    std::optional<bool> flag(const QString& feature) const;
    /** A feature that is a number, such as "granularity"; nothing where it is not stated, or no number. */
    std::optional<unsigned int> number(const QString& feature) const;

    /** The bit rate that a device has which nobody has configured: that which is stated; in a DCF that of its
     * commissioning; else the default of the format, 250 kbit/s, for an XDD, and BAUD_INVALID for an EDS, which has
     * none. */
    CNetworkCanOpenProfile::EBaudrate bitRateInForce() const;

    EForm mForm = FORM_NONE;         ///< The form of the file
    CXddProfile mDeviceProfile;      ///< The first device profile
    CXddProfile mNetworkProfile;     ///< The first network profile
    CGLabels mCategory;              ///< "category" of the device function
    CGLabels mCharacteristicName;    ///< "characteristicName" of its first characteristic
    CGLabels mCharacteristicContent; ///< "characteristicContent" of it

    std::optional<unsigned int> mVendorId;       ///< "vendorID" of a profile, else 0x1018:01, as a number
    std::optional<unsigned int> mProductCode;    ///< "productID" of a profile, else 0x1018:02, likewise
    std::optional<unsigned int> mRevisionNumber; ///< 0x1018:03, else the RevisionNumber of an EDS
    std::optional<unsigned int> mSerialNumber;   ///< 0x1018:04
    std::optional<unsigned int> mDeviceType;     ///< 0x1000; its lower half is the number of a device profile

    QList<CNetworkCanOpenProfile::EBaudrate> mBitRates; ///< Every "supportedBaudRate" that is known
    /** "defaultValue" of "baudRate"; BAUD_INVALID where it is not stated or not known. */
    CNetworkCanOpenProfile::EBaudrate mDefaultBitRate = CNetworkCanOpenProfile::BAUD_INVALID;

    QList<CXddFeature> mGeneralFeatures; ///< "CANopenGeneralFeatures", in the order of the file
    QList<CXddFeature> mMasterFeatures;  ///< "CANopenMasterFeatures"

    bool mStatesDummies = false;     ///< "dummyUsage" says which data types can be mapped as place holders
    QList<unsigned int> mDummyTypes; ///< These data types

    CXddCount mMandatoryObjects;    ///< 0x1000, 0x1001 and 0x1018; "mandatoryObjects"
    CXddCount mOptionalObjects;     ///< All that are neither; "optionalObjects"
    CXddCount mManufacturerObjects; ///< 0x2000 to 0x5FFF; "manufacturerObjects"

    bool mIsCommissioned = false;     ///< It states what is configured for it in its network
    CXddCommissioning mCommissioning; ///< That
};

#endif
