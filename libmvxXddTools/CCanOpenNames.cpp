#include "CCanOpenNames.h"

#include <QCoreApplication>
#include <QMap>

namespace
{
QString hexadecimal(unsigned int number, int digits)
{
    return QStringLiteral("0x") + QStringLiteral("%1").arg(number, digits, 16, QLatin1Char('0')).toUpper();
}

// The numbers that CiA gives to its profiles; other numbers are a manufacturer's own.
constexpr unsigned int FIRST_PROFILE = 301;
constexpr unsigned int LAST_PROFILE = 999;

QString profileName(unsigned int number)
{
    switch (number) {
    case 302:
        return QCoreApplication::translate("CCanOpenNames", "additional application layer functions");
    case 401:
        return QCoreApplication::translate("CCanOpenNames", "generic I/O modules");
    case 402:
        return QCoreApplication::translate("CCanOpenNames", "drives and motion control");
    case 404:
        return QCoreApplication::translate("CCanOpenNames", "measuring devices and closed-loop controllers");
    case 405:
        return QCoreApplication::translate("CCanOpenNames", "programmable devices");
    case 406:
        return QCoreApplication::translate("CCanOpenNames", "encoders");
    case 408:
        return QCoreApplication::translate("CCanOpenNames", "fluid power technology");
    case 410:
        return QCoreApplication::translate("CCanOpenNames", "inclinometers");
    case 412:
        return QCoreApplication::translate("CCanOpenNames", "medical devices");
    case 413:
        return QCoreApplication::translate("CCanOpenNames", "truck gateways");
    case 417:
        return QCoreApplication::translate("CCanOpenNames", "lift control systems");
    case 418:
        return QCoreApplication::translate("CCanOpenNames", "battery modules");
    case 419:
        return QCoreApplication::translate("CCanOpenNames", "battery chargers");
    case 422:
        return QCoreApplication::translate("CCanOpenNames", "municipal vehicles");
    case 425:
        return QCoreApplication::translate("CCanOpenNames", "medical diagnostic add-on modules");
    case 447:
        return QCoreApplication::translate("CCanOpenNames", "special-purpose car add-on devices");
    case 454:
        return QCoreApplication::translate("CCanOpenNames", "energy management systems");
    default:
        return QString();
    }
}
} // namespace

CCanOpenNames::EObjectKind CCanOpenNames::objectKind(unsigned int index)
{
    if (index == 0x1000 || index == 0x1001 || index == 0x1018) {
        return EObjectKind::Mandatory;
    }
    return index >= 0x2000 && index <= 0x5FFF ? EObjectKind::Manufacturer : EObjectKind::Optional;
}

QString CCanOpenNames::objectCode(unsigned int objectType)
{
    static const QMap<unsigned int, QString> names = {
        {0, QStringLiteral("NULL")},      {2, QStringLiteral("DOMAIN")}, {5, QStringLiteral("DEFTYPE")},
        {6, QStringLiteral("DEFSTRUCT")}, {7, QStringLiteral("VAR")},    {8, QStringLiteral("ARRAY")},
        {9, QStringLiteral("RECORD")},
    };
    return names.value(objectType, QString::number(objectType));
}

QString CCanOpenNames::dataType(unsigned int dataType)
{
    static const QMap<unsigned int, QString> names = {
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
    return names.value(dataType, index(dataType));
}

QString CCanOpenNames::deviceProfile(unsigned int number)
{
    const unsigned int profile = number & 0xFFFF;
    if (profile < FIRST_PROFILE || profile > LAST_PROFILE) {
        return QString();
    }
    const QString name = profileName(profile);
    const QString standard = QStringLiteral("CiA %1").arg(profile);
    return name.isEmpty() ? standard : standard + QLatin1String(", ") + name;
}

QString CCanOpenNames::index(unsigned int index)
{
    return hexadecimal(index, 4);
}

QString CCanOpenNames::subIndex(unsigned int subIndex)
{
    return hexadecimal(subIndex, 2);
}
