#ifndef MVXISO15745XML_CNETWORKCANOPENPROFILE_H
#define MVXISO15745XML_CNETWORKCANOPENPROFILE_H

#include "CCanOpenObject.h"
#include "CProfileHeader.h"
#include "CommonElements.h"
#include "mvxIso15745Xml_export.h"

#include <QDate>
#include <QList>
#include <QMap>
#include <QString>
#include <QTime>

/**
 * The communication network profile of a description: the "ISO15745Profile" of the class "CommunicationNetwork".
 *
 * The file fields come from attributes of "ProfileBody" and mean the same as in CDeviceProfile. Counts and objects come
 * from "CANopenObjectList" and the identity from "identity", both in "ApplicationLayers"; the bit rates come from
 * "baudRate" in "TransportLayers"/"PhysicalLayer". Nothing in the identity is required: a missing element leaves
 * its field as it was. A malformed one may leave a part: a text without "readOnly" its value but not its flag, a list
 * of labels those in front of the first malformed one.
 */
class MVXISO15745XML_EXPORT CNetworkCanOpenProfile
{
public:
    /** Bit rate of the CANopen network. Each valid value is the bit rate in kbit/s. */
    enum EBaudrate : int
    {
        BAUD_INVALID = -1,    ///< absent, or any other text
        BAUD_AUTO = 0,        ///< "auto-baudRate", automatic bit rate detection
        BAUD_10_KBPS = 10,    ///< "10 Kbps"
        BAUD_20_KBPS = 20,    ///< "20 Kbps"
        BAUD_50_KBPS = 50,    ///< "50 Kbps"
        BAUD_100_KBPS = 100,  ///< "100 Kbps"
        BAUD_125_KBPS = 125,  ///< "125 Kbps"
        BAUD_250_KBPS = 250,  ///< "250 Kbps"
        BAUD_500_KBPS = 500,  ///< "500 Kbps"
        BAUD_800_KBPS = 800,  ///< "800 Kbps"
        BAUD_1000_KBPS = 1000 ///< "1000 Kbps"
    };

    /** A profile with the defaults given at the fields. */
    CNetworkCanOpenProfile();

    /** A profile with a copy of the given header and the defaults given at the other fields. */
    explicit CNetworkCanOpenProfile(CProfileHeader const& header);

    /** The text of a bit rate; mInvalidStr for BAUD_INVALID and for a value outside the enumeration. */
    static QString baudrateAsStr(EBaudrate baudrate);

    /** The bit rate of a text, compared exactly; BAUD_INVALID for an unknown text. */
    static EBaudrate baudrateFromStr(QString const& text);

    /** A new map from every EBaudrate to its text; equal to mBaudrateTexts. */
    static QMap<EBaudrate, QString> createBaudrateMap();

    /** "_invalid_", the text of the invalid enumerator. */
    static const QString mInvalidStr;

    /** The text of every EBaudrate. */
    static const QMap<EBaudrate, QString> mBaudrateTexts;

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

    CWriteProtectString mVendorId{true, QString()};                     ///< "vendorID"; default read-only
    CWriteProtectGLabels mDeviceFamily{true, CGLabel::GLABTYP_INVALID}; ///< "deviceFamily"; not valid until read
    CWriteProtectString mProductId{true, QString()};                    ///< "productID"; default read-only
    QList<CVersion> mVersions;                                          ///< every "version" in document order
    QDate mBuildDate;                                                   ///< "buildDate"; a null date when absent
    CWriteProtectString mSpecificationRevision{true, QString()};        ///< "specificationRevision"; default read-only

    unsigned int mMandatoryObjects = 0;    ///< attribute "mandatoryObjects", as stated by the file, not counted
    unsigned int mOptionalObjects = 0;     ///< attribute "optionalObjects", as stated by the file, not counted
    unsigned int mManufacturerObjects = 0; ///< attribute "manufacturerObjects", as stated by the file, not counted

    /** The object dictionary: every object under its own index, in ascending order. */
    QMap<unsigned int, CCanOpenObject> mObjects;

    /** Attribute "defaultValue" of "baudRate"; BAUD_INVALID when a loaded file gives none or an unknown one. Default
     * 250 kbit/s. */
    EBaudrate mBaudRate = BAUD_250_KBPS;
    /** Attribute "value" of every "supportedBaudRate" in document order. At least one is required and each must be
     * known. */
    QList<EBaudrate> mSupportedBaudRates;
};

#endif
