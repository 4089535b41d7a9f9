#include "CProfileHeader.h"

#include "NIso15745Tags.h"
#include "TextTables.h"

using namespace NIso15745Tags;

// The tables end with a copy of the invalid text, so it has to be built before them.
const QString CProfileHeader::mInvalidStr = QLatin1String("_invalid_");

const QStringList CProfileHeader::mClassIdTexts = {
    VAL_CID_AIP,      VAL_CID_PROCESS,   VAL_CID_INFO_EXCHANGE, VAL_CID_RESOURCE, VAL_CID_DEVICE,
    VAL_CID_COMM_NET, VAL_CID_EQUIPMENT, VAL_CID_HUMAN,         VAL_CID_MATERIAL, mInvalidStr,
};

const QStringList CProfileHeader::mIASInterfaceTypeTexts = {
    VAL_IFT_CSI, VAL_IFT_HCI, VAL_IFT_ISI, VAL_IFT_API, VAL_IFT_CMI, VAL_IFT_ESI,
    VAL_IFT_FSI, VAL_IFT_MTI, VAL_IFT_SEI, VAL_IFT_USI, mInvalidStr,
};

CProfileHeader::CProfileHeader() = default;

QString CProfileHeader::classIdAsStr(EClassId classId)
{
    return textOf(mClassIdTexts, classId, mInvalidStr);
}

CProfileHeader::EClassId CProfileHeader::classIdFromStr(QString const& text)
{
    return valueOf(mClassIdTexts, text, CID_INVALID);
}

QString CProfileHeader::iasIfTypAsStr(EIASInterfaceType interfaceType)
{
    return textOf(mIASInterfaceTypeTexts, interfaceType, mInvalidStr);
}

CProfileHeader::EIASInterfaceType CProfileHeader::iasIfTypFromStr(QString const& text)
{
    return valueOf(mIASInterfaceTypeTexts, text, IFT_INVALID);
}
