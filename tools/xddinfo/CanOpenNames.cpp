#include "CanOpenNames.h"

#include <QMap>

QString objectCodeName(unsigned char objectType)
{
    static const QMap<unsigned char, QString> names = {
        {0, QStringLiteral("NULL")},      {2, QStringLiteral("DOMAIN")}, {5, QStringLiteral("DEFTYPE")},
        {6, QStringLiteral("DEFSTRUCT")}, {7, QStringLiteral("VAR")},    {8, QStringLiteral("ARRAY")},
        {9, QStringLiteral("RECORD")},
    };
    return names.value(objectType, QString::number(objectType));
}

QString dataTypeName(unsigned char dataType)
{
    static const QMap<unsigned char, QString> names = {
        {0x00, QString()},
        {0x01, QStringLiteral("BOOLEAN")},
        {0x02, QStringLiteral("INTEGER8")},
        {0x03, QStringLiteral("INTEGER16")},
        {0x04, QStringLiteral("INTEGER32")},
        {0x05, QStringLiteral("UNSIGNED8")},
        {0x06, QStringLiteral("UNSIGNED16")},
        {0x07, QStringLiteral("UNSIGNED32")},
        {0x08, QStringLiteral("REAL32")},
        {0x09, QStringLiteral("VISIBLE_STRING")},
        {0x0A, QStringLiteral("OCTET_STRING")},
        {0x0B, QStringLiteral("UNICODE_STRING")},
        {0x0C, QStringLiteral("TIME_OF_DAY")},
        {0x0D, QStringLiteral("TIME_DIFFERENCE")},
        {0x0F, QStringLiteral("DOMAIN")},
        {0x10, QStringLiteral("INTEGER24")},
        {0x11, QStringLiteral("REAL64")},
        {0x12, QStringLiteral("INTEGER40")},
        {0x13, QStringLiteral("INTEGER48")},
        {0x14, QStringLiteral("INTEGER56")},
        {0x15, QStringLiteral("INTEGER64")},
        {0x16, QStringLiteral("UNSIGNED24")},
        {0x18, QStringLiteral("UNSIGNED40")},
        {0x19, QStringLiteral("UNSIGNED48")},
        {0x1A, QStringLiteral("UNSIGNED56")},
        {0x1B, QStringLiteral("UNSIGNED64")},
        {0x20, QStringLiteral("PDO_COMMUNICATION_PARAMETER")},
        {0x21, QStringLiteral("PDO_MAPPING")},
        {0x22, QStringLiteral("SDO_PARAMETER")},
        {0x23, QStringLiteral("IDENTITY")},
    };
    return names.value(dataType, indexText(dataType));
}

QString indexText(unsigned int index)
{
    return QStringLiteral("0x") + QStringLiteral("%1").arg(index, 4, 16, QLatin1Char('0')).toUpper();
}

QString subIndexText(unsigned int subIndex)
{
    return QStringLiteral("0x") + QStringLiteral("%1").arg(subIndex, 2, 16, QLatin1Char('0')).toUpper();
}

EObjectKind objectKind(unsigned int index)
{
    if (index == 0x1000 || index == 0x1001 || index == 0x1018) {
        return EObjectKind::Mandatory;
    }
    return index >= 0x2000 && index <= 0x5FFF ? EObjectKind::Manufacturer : EObjectKind::Optional;
}
