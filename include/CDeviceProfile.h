#ifndef MVXISO15745XML_CDEVICEPROFILE_H
#define MVXISO15745XML_CDEVICEPROFILE_H

#include "CProfileHeader.h"
#include "CommonElements.h"
#include "mvxIso15745Xml_export.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QTime>

/**
 * The device profile of a description: the "ISO15745Profile" of the class "Device".
 *
 * The file fields come from attributes of "ProfileBody", the identity from its "DeviceIdentity", the category and the
 * characteristic from "characteristicsList" in "DeviceFunction"/"capabilities". A field whose optional element is
 * absent keeps the value it had; after a load into a new reader that is the default given here. Every element of the
 * identity but the versions and the build date must carry the attribute "readOnly", true or false; one that does not
 * fails the load for "vendorName" and "productName", and keeps the default flag for the others.
 */
class MVXISO15745XML_EXPORT CDeviceProfile
{
public:
    /** A profile with the defaults given at the fields. */
    CDeviceProfile();

    /** A profile with a copy of the given header and the defaults given at the other fields. */
    explicit CDeviceProfile(CProfileHeader const& header);

    CProfileHeader mHeader; ///< the profile's "ProfileHeader"

    /** Attribute "fileCreationDate", required. Default: the local date when the record was made. */
    QDate mFileCreationDate = QDate::currentDate();
    /** Attribute "fileCreationTime"; a null time when a loaded file has none. Default: the local time when the record
     * was made. */
    QTime mFileCreationTime = QTime::currentTime();
    QString mFileCreator;        ///< attribute "fileCreator", required
    QDate mFileModificationDate; ///< attribute "fileModificationDate"; a null date when absent
    QTime mFileModificationTime; ///< attribute "fileModificationTime"; a null time when absent
    QString mFileModifiedBy;     ///< attribute "fileModifiedBy"; empty when absent
    QString mFileName;           ///< attribute "fileName", required
    QString mFileVersion;        ///< attribute "fileVersion", required

    CWriteProtectString mVendorName{true, QString()}; ///< "vendorName", required in an identity; default read-only
    CWriteProtectString mVendorId{true, QString()};   ///< "vendorID"; default read-only
    CWriteProtectGLabels mVendorText{true, CGLabel::GLABTYP_INVALID};   ///< "vendorText"; not valid until read
    CWriteProtectGLabels mDeviceFamily{true, CGLabel::GLABTYP_INVALID}; ///< "deviceFamily"; not valid until read
    CWriteProtectString mProductFamily{true, QString()};                ///< "productFamily"; default read-only
    CWriteProtectString mProductName{false, QString()}; ///< "productName", required in an identity; default writable
    CWriteProtectString mProductId{true, QString()};    ///< "productID"; default read-only
    /** "productText"; default one empty English label, read-only. */
    CWriteProtectGLabels mProductText{true, CGLabel::GLABTYP_LABEL};
    CWriteProtectString mOrderNumber{true, QString()};           ///< "orderNumber"; default read-only
    QList<CVersion> mVersions;                                   ///< every "version" in document order
    QDate mBuildDate;                                            ///< "buildDate"; a null date when absent
    CWriteProtectString mSpecificationRevision{true, QString()}; ///< "specificationRevision"; default read-only
    CWriteProtectString mInstanceName{false, QString()};         ///< "instanceName"; default writable

    CGLabels mCategory; ///< "category" of the characteristics list; default an empty list
    /** The first "characteristic" of the characteristics list, required. Default: one empty English label each for
     * name and content. */
    CCharacteristic mCharacteristic{CGLabel::GLABTYP_LABEL, CGLabel::GLABTYP_LABEL};
};

#endif
