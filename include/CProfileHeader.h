#ifndef MVXISO15745XML_CPROFILEHEADER_H
#define MVXISO15745XML_CPROFILEHEADER_H

#include "mvxIso15745Xml_export.h"

#include <QDate>
#include <QString>
#include <QStringList>

/**
 * The header of one profile: the element "ProfileHeader" of an "ISO15745Profile".
 *
 * It says what the profile is, which class of profile the body belongs to, and which part of ISO 15745 it follows. A
 * required element that is missing fails the load; the optional ones ("ProfileDate", "AdditionalInformation",
 * "IASInterfaceType") leave their default.
 */
class MVXISO15745XML_EXPORT CProfileHeader
{
public:
    /** Class of a profile, the content of "ProfileClassID". Each value is the position in mClassIdTexts. */
    enum EClassId : int
    {
        CID_AIP = 0,           ///< "AIP", application interoperability profile
        CID_PROCESS = 1,       ///< "Process"
        CID_INFO_EXCHANGE = 2, ///< "InformationExchange"
        CID_RESOURCE = 3,      ///< "Resource"
        CID_DEVICE = 4,        ///< "Device": the body is read into a CDeviceProfile
        CID_COMM_NET = 5,      ///< "CommunicationNetwork": the body is read into a CNetworkCanOpenProfile
        CID_EQUIPMENT = 6,     ///< "Equipment"
        CID_HUMAN = 7,         ///< "Human"
        CID_MATERIAL = 8,      ///< "Material"
        CID_INVALID = 9        ///< any other text
    };

    /** Kind of integration interface, the content of "IASInterfaceType". The values are positions in
     * mIASInterfaceTypeTexts. */
    enum EIASInterfaceType : int
    {
        IFT_CSI = 0,     ///< "CSI"
        IFT_HCI = 1,     ///< "HCI"
        IFT_ISI = 2,     ///< "ISI"
        IFT_API = 3,     ///< "API"
        IFT_CMI = 4,     ///< "CMI"
        IFT_ESI = 5,     ///< "ESI"
        IFT_FSI = 6,     ///< "FSI"
        IFT_MTI = 7,     ///< "MTI"
        IFT_SEI = 8,     ///< "SEI"
        IFT_USI = 9,     ///< "USI"
        IFT_INVALID = 10 ///< absent, or any other text
    };

    /** A header with the defaults given at the fields. */
    CProfileHeader();

    /** The text of a profile class; mInvalidStr for CID_INVALID and for a value outside the enumeration. */
    static QString classIdAsStr(EClassId classId);

    /** The profile class of a text, compared exactly; CID_INVALID for an unknown text. */
    static EClassId classIdFromStr(QString const& text);

    /** The text of an interface type; mInvalidStr for IFT_INVALID and for a value outside the enumeration. */
    static QString iasIfTypAsStr(EIASInterfaceType interfaceType);

    /** The interface type of a text, compared exactly; IFT_INVALID for an unknown text. */
    static EIASInterfaceType iasIfTypFromStr(QString const& text);

    /** "_invalid_", the text of the invalid enumerators. */
    static const QString mInvalidStr;

    /** The text of every EClassId at its value, mInvalidStr last. */
    static const QStringList mClassIdTexts;

    /** The text of every EIASInterfaceType at its value, mInvalidStr last. */
    static const QStringList mIASInterfaceTypeTexts;

    QString mProfileIdentification;         ///< "ProfileIdentification", required; default empty
    QString mProfileRevision;               ///< "ProfileRevision", required; default empty
    QString mProfileName;                   ///< "ProfileName", required; default empty
    QString mProfileSource;                 ///< "ProfileSource", required; default empty
    EClassId mProfileClassId = CID_INVALID; ///< "ProfileClassID", required; an unknown text is CID_INVALID
    QDate mProfileDate;                     ///< "ProfileDate", optional; a null date when absent or not a date
    QString mAdditionalInformation;         ///< "AdditionalInformation", optional; empty when absent
    unsigned int mIso15745Part = 1;         ///< "ISO15745Part" of "ISO15745Reference", required; default 1
    unsigned int mIso15745Edition = 1;      ///< "ISO15745Edition" of "ISO15745Reference", required; default 1
    QString mProfileTechnology;             ///< "ProfileTechnology" of "ISO15745Reference", required, any text
    EIASInterfaceType mIasInterfaceType = IFT_INVALID; ///< the first "IASInterfaceType", optional
};

#endif
