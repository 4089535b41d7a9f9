#include "CCanOpenNames.h"

#include "names/DataTypes.h"
#include "names/Hexadecimal.h"
#include "names/ObjectCodes.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace
{
// The numbers that CiA gives to its profiles; other numbers are a manufacturer's own.
constexpr unsigned int FIRST_PROFILE = 301;
constexpr unsigned int LAST_PROFILE = 999;

struct SProfileName
{
    unsigned int number;
    const char* name; // In English, to be translated
};

constexpr std::array PROFILES = {
    SProfileName{302, QT_TRANSLATE_NOOP("CCanOpenNames", "additional application layer functions")},
    SProfileName{401, QT_TRANSLATE_NOOP("CCanOpenNames", "generic I/O modules")},
    SProfileName{402, QT_TRANSLATE_NOOP("CCanOpenNames", "drives and motion control")},
    SProfileName{404, QT_TRANSLATE_NOOP("CCanOpenNames", "measuring devices and closed-loop controllers")},
    SProfileName{405, QT_TRANSLATE_NOOP("CCanOpenNames", "programmable devices")},
    SProfileName{406, QT_TRANSLATE_NOOP("CCanOpenNames", "encoders")},
    SProfileName{408, QT_TRANSLATE_NOOP("CCanOpenNames", "fluid power technology")},
    SProfileName{410, QT_TRANSLATE_NOOP("CCanOpenNames", "inclinometers")},
    SProfileName{412, QT_TRANSLATE_NOOP("CCanOpenNames", "medical devices")},
    SProfileName{413, QT_TRANSLATE_NOOP("CCanOpenNames", "truck gateways")},
    SProfileName{417, QT_TRANSLATE_NOOP("CCanOpenNames", "lift control systems")},
    SProfileName{418, QT_TRANSLATE_NOOP("CCanOpenNames", "battery modules")},
    SProfileName{419, QT_TRANSLATE_NOOP("CCanOpenNames", "battery chargers")},
    SProfileName{422, QT_TRANSLATE_NOOP("CCanOpenNames", "municipal vehicles")},
    SProfileName{425, QT_TRANSLATE_NOOP("CCanOpenNames", "medical diagnostic add-on modules")},
    SProfileName{447, QT_TRANSLATE_NOOP("CCanOpenNames", "special-purpose car add-on devices")},
    SProfileName{454, QT_TRANSLATE_NOOP("CCanOpenNames", "energy management systems")},
};
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
    const QLatin1String name = objectCodeOf(objectType).name;
    return name.isEmpty() ? QString::number(objectType) : QString(name);
}

QString CCanOpenNames::dataType(unsigned int dataType)
{
    const QLatin1String name = dataTypeOf(dataType).name;
    return dataType != 0 && name.isEmpty() ? index(dataType) : QString(name);
}

QString CCanOpenNames::shortDataType(unsigned int dataType)
{
    const QLatin1String name = dataTypeOf(dataType).shortName;
    return name.isEmpty() ? CCanOpenNames::dataType(dataType) : QString(name);
}

QString CCanOpenNames::fullName(const QString& object, const QString& name)
{
    return name == object || object.isEmpty() ? name : object + QLatin1String(": ") + name;
}

QString CCanOpenNames::deviceProfile(unsigned int number)
{
    const unsigned int profile = number & 0xFFFF;
    if (profile < FIRST_PROFILE || profile > LAST_PROFILE) {
        return QString();
    }
    const QString standard = QStringLiteral("CiA %1").arg(profile);
    const auto* const known = std::find_if(
        PROFILES.begin(), PROFILES.end(), [profile](const SProfileName& row) { return row.number == profile; });
    return known == PROFILES.end()
               ? standard
               : standard + QLatin1String(", ") + QCoreApplication::translate("CCanOpenNames", known->name);
}

QString CCanOpenNames::index(unsigned int index)
{
    return hexadecimalText(index, 4);
}

QString CCanOpenNames::entry(unsigned int index, std::optional<unsigned int> subIndex)
{
    const QString object = CCanOpenNames::index(index);
    return subIndex ? object + QLatin1Char(':') + hexadecimalDigits(*subIndex, 2) : object;
}
