#include "names/ObjectCodes.h"

#include <algorithm>
#include <array>

namespace
{
constexpr std::array CODES = {
    SObjectCode{0, QLatin1String("NULL", 4), false, false, false, false},
    SObjectCode{CODE_DOMAIN, QLatin1String("DOMAIN", 6), true, true, false, true},
    SObjectCode{5, QLatin1String("DEFTYPE", 7), true, false, false, false},
    SObjectCode{6, QLatin1String("DEFSTRUCT", 9), true, false, true, false},
    SObjectCode{CODE_VAR, QLatin1String("VAR", 3), true, true, false, true},
    SObjectCode{CODE_ARRAY, QLatin1String("ARRAY", 5), true, false, true, true},
    SObjectCode{CODE_RECORD, QLatin1String("RECORD", 6), true, false, true, true},
};
constexpr SObjectCode UNKNOWN = {0, QLatin1String(), false, false, false, false};
} // namespace

const SObjectCode& objectCodeOf(unsigned int code)
{
    const auto* const found =
        std::find_if(CODES.begin(), CODES.end(), [code](const SObjectCode& row) { return row.code == code; });
    return found == CODES.end() ? UNKNOWN : *found;
}

unsigned int objectCodeNamed(const QString& name)
{
    const auto* const found =
        std::find_if(CODES.begin(), CODES.end(), [&name](const SObjectCode& row) { return row.name == name; });
    return found == CODES.end() ? 0 : found->code;
}
