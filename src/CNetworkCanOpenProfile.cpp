#include "CNetworkCanOpenProfile.h"

#include "NIso15745Tags.h"
#include "TextTables.h"

using namespace NIso15745Tags;

// The table contains the invalid text, so it has to be built before it.
const QString CNetworkCanOpenProfile::mInvalidStr = QLatin1String("_invalid_");

const QMap<CNetworkCanOpenProfile::EBaudrate, QString> CNetworkCanOpenProfile::mBaudrateTexts = createBaudrateMap();

CNetworkCanOpenProfile::CNetworkCanOpenProfile() = default;

CNetworkCanOpenProfile::CNetworkCanOpenProfile(CProfileHeader const& header)
    : mHeader(header)
{}

QString CNetworkCanOpenProfile::baudrateAsStr(EBaudrate baudrate)
{
    return textOf(mBaudrateTexts, baudrate, mInvalidStr);
}

CNetworkCanOpenProfile::EBaudrate CNetworkCanOpenProfile::baudrateFromStr(QString const& text)
{
    return valueOf(mBaudrateTexts, text, BAUD_INVALID);
}

QMap<CNetworkCanOpenProfile::EBaudrate, QString> CNetworkCanOpenProfile::createBaudrateMap()
{
    return {
        {BAUD_INVALID, mInvalidStr},        {BAUD_AUTO, VAL_BAUD_AUTO},           {BAUD_10_KBPS, VAL_BAUD_10_KBPS},
        {BAUD_20_KBPS, VAL_BAUD_20_KBPS},   {BAUD_50_KBPS, VAL_BAUD_50_KBPS},     {BAUD_100_KBPS, VAL_BAUD_100_KBPS},
        {BAUD_125_KBPS, VAL_BAUD_125_KBPS}, {BAUD_250_KBPS, VAL_BAUD_250_KBPS},   {BAUD_500_KBPS, VAL_BAUD_500_KBPS},
        {BAUD_800_KBPS, VAL_BAUD_800_KBPS}, {BAUD_1000_KBPS, VAL_BAUD_1000_KBPS},
    };
}
