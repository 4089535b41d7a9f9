#include "CXddPdo.h"

#include "CCanOpenNames.h"
#include "canopen/Pdos.h"
#include "names/Hexadecimal.h"
#include "remarks/CRemarks.h"

CXddPdoField::CXddPdoField() = default;

QString CXddPdoField::entry() const
{
    return CCanOpenNames::entry(mIndex, mIsSubObject ? std::optional<unsigned int>(mSubIndex) : std::nullopt);
}

QString CXddPdoField::fullName() const
{
    return CCanOpenNames::fullName(mObjectName, mName);
}

QString CXddPdoField::rangeText() const
{
    return mMinimum.isEmpty() ? QString() : mMinimum + QLatin1String("..") + mMaximum;
}

CXddPdo::CXddPdo() = default;

QString CXddPdo::name() const
{
    return QLatin1String(mIsTransmit ? "TPDO" : "RPDO") + QString::number(mNumber);
}

unsigned int CXddPdo::communicationIndex() const
{
    return (mIsTransmit ? 0x1800U : 0x1400U) + unsigned(mNumber) - 1;
}

QString CXddPdo::canIdText() const
{
    const QString canId = hexadecimalText(mCanId, mIsExtended ? 8 : 3);
    return mNodeId == 0 && mUsesNodeId ? CRemarks::tr("%1+node-ID").arg(canId) : canId;
}

QString CXddPdo::transmissionText() const
{
    switch (mTransmission) {
    case TRANSMISSION_NOT_STATED:
        break;
    case TRANSMISSION_ACYCLIC:
        return mIsTransmit ? CRemarks::tr("with the SYNC after an event") : CRemarks::tr("with the next SYNC");
    case TRANSMISSION_CYCLIC:
        return !mIsTransmit              ? CRemarks::tr("with the next SYNC")
               : mTransmissionType == 1U ? CRemarks::tr("with every SYNC")
                                         : CRemarks::tr("once every %1 SYNCs").arg(*mTransmissionType);
    case TRANSMISSION_RESERVED:
        return CRemarks::tr("reserved");
    case TRANSMISSION_REQUEST_SYNC:
        return CRemarks::tr("on request, sampled with the SYNC");
    case TRANSMISSION_REQUEST:
        return CRemarks::tr("on request");
    case TRANSMISSION_EVENT_MANUFACTURER:
        return CRemarks::tr("on an event of the manufacturer");
    case TRANSMISSION_EVENT_PROFILE:
        return CRemarks::tr("on an event of the device profile");
    }
    return QString();
}

QString CXddPdo::transmissionAsStr(ETransmission transmission)
{
    switch (transmission) {
    case TRANSMISSION_NOT_STATED:
        break;
    case TRANSMISSION_ACYCLIC:
        return QStringLiteral("acyclic");
    case TRANSMISSION_CYCLIC:
        return QStringLiteral("cyclic");
    case TRANSMISSION_RESERVED:
        return QStringLiteral("reserved");
    case TRANSMISSION_REQUEST_SYNC:
        return QStringLiteral("request-sync");
    case TRANSMISSION_REQUEST:
        return QStringLiteral("request");
    case TRANSMISSION_EVENT_MANUFACTURER:
        return QStringLiteral("event-manufacturer");
    case TRANSMISSION_EVENT_PROFILE:
        return QStringLiteral("event-profile");
    }
    return QString();
}

int CXddPdo::bytes() const
{
    const int bits = mFields.isEmpty() ? 0 : mFields.last().mOffset + mFields.last().mBits;
    return mIsMultiplexed ? MAX_PDO_BYTES : (bits + BITS_OF_BYTE - 1) / BITS_OF_BYTE;
}
