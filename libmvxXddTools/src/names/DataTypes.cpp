#include "names/DataTypes.h"

#include "names/Hexadecimal.h"

#include <algorithm>
#include <array>

namespace
{
constexpr QLatin1String operator""_word(const char* text, std::size_t size)
{
    return QLatin1String(text, int(size));
}

constexpr QLatin1String NO_NAME;

// In the order of their indexes.
constexpr std::array TYPES = {
    SDataType{0x00, EValueKind::None, 0, NO_NAME, NO_NAME, NO_NAME, NO_NAME},
    SDataType{0x01, EValueKind::Boolean, 1, "BOOLEAN"_word, "BOOL"_word, "BOOL"_word, NO_NAME},
    SDataType{0x02, EValueKind::Signed, 8, "INTEGER8"_word, "I8"_word, "SINT"_word, NO_NAME},
    SDataType{0x03, EValueKind::Signed, 16, "INTEGER16"_word, "I16"_word, "INT"_word, NO_NAME},
    SDataType{0x04, EValueKind::Signed, 32, "INTEGER32"_word, "I32"_word, "DINT"_word, NO_NAME},
    SDataType{0x05, EValueKind::Unsigned, 8, "UNSIGNED8"_word, "U8"_word, "USINT"_word, "BYTE"_word},
    SDataType{0x06, EValueKind::Unsigned, 16, "UNSIGNED16"_word, "U16"_word, "UINT"_word, "WORD"_word},
    SDataType{0x07, EValueKind::Unsigned, 32, "UNSIGNED32"_word, "U32"_word, "UDINT"_word, "DWORD"_word},
    SDataType{0x08, EValueKind::Real, 32, "REAL32"_word, "R32"_word, "REAL"_word, NO_NAME},
    SDataType{0x09, EValueKind::Text, 0, "VISIBLE_STRING"_word, "STR"_word, "STRING"_word, NO_NAME},
    SDataType{0x0A, EValueKind::Text, 0, "OCTET_STRING"_word, "OCT"_word, NO_NAME, "BITSTRING"_word},
    SDataType{0x0B, EValueKind::Text, 0, "UNICODE_STRING"_word, "UNI"_word, "WSTRING"_word, NO_NAME},
    SDataType{0x0C, EValueKind::Text, 48, "TIME_OF_DAY"_word, "TOD"_word, NO_NAME, NO_NAME},
    SDataType{0x0D, EValueKind::Text, 48, "TIME_DIFFERENCE"_word, "TDIFF"_word, NO_NAME, NO_NAME},
    SDataType{0x0F, EValueKind::Text, 0, "DOMAIN"_word, "DOM"_word, NO_NAME, NO_NAME},
    SDataType{0x10, EValueKind::Signed, 24, "INTEGER24"_word, "I24"_word, NO_NAME, NO_NAME},
    SDataType{0x11, EValueKind::Real, 64, "REAL64"_word, "R64"_word, "LREAL"_word, NO_NAME},
    SDataType{0x12, EValueKind::Signed, 40, "INTEGER40"_word, "I40"_word, NO_NAME, NO_NAME},
    SDataType{0x13, EValueKind::Signed, 48, "INTEGER48"_word, "I48"_word, NO_NAME, NO_NAME},
    SDataType{0x14, EValueKind::Signed, 56, "INTEGER56"_word, "I56"_word, NO_NAME, NO_NAME},
    SDataType{0x15, EValueKind::Signed, 64, "INTEGER64"_word, "I64"_word, "LINT"_word, NO_NAME},
    SDataType{0x16, EValueKind::Unsigned, 24, "UNSIGNED24"_word, "U24"_word, NO_NAME, NO_NAME},
    SDataType{0x18, EValueKind::Unsigned, 40, "UNSIGNED40"_word, "U40"_word, NO_NAME, NO_NAME},
    SDataType{0x19, EValueKind::Unsigned, 48, "UNSIGNED48"_word, "U48"_word, NO_NAME, NO_NAME},
    SDataType{0x1A, EValueKind::Unsigned, 56, "UNSIGNED56"_word, "U56"_word, NO_NAME, NO_NAME},
    SDataType{0x1B, EValueKind::Unsigned, 64, "UNSIGNED64"_word, "U64"_word, "ULINT"_word, "LWORD"_word},
    SDataType{0x20, EValueKind::Record, 0, "PDO_COMMUNICATION_PARAMETER"_word, NO_NAME, NO_NAME, NO_NAME},
    SDataType{0x21, EValueKind::Record, 0, "PDO_MAPPING"_word, NO_NAME, NO_NAME, NO_NAME},
    SDataType{0x22, EValueKind::Record, 0, "SDO_PARAMETER"_word, NO_NAME, NO_NAME, NO_NAME},
    SDataType{0x23, EValueKind::Record, 0, "IDENTITY"_word, NO_NAME, NO_NAME, NO_NAME},
    SDataType{0x24, EValueKind::Record, 0, NO_NAME, NO_NAME, NO_NAME, NO_NAME},
    SDataType{0x25, EValueKind::Record, 0, NO_NAME, NO_NAME, NO_NAME, NO_NAME},
    SDataType{0x26, EValueKind::Record, 0, NO_NAME, NO_NAME, NO_NAME, NO_NAME},
};
} // namespace

const SDataType& dataTypeOf(unsigned int index)
{
    const auto* const found =
        std::lower_bound(TYPES.begin(), TYPES.end(), index, [](const SDataType& type, unsigned int wanted) {
            return type.index < wanted;
        });
    return found != TYPES.end() && found->index == index ? *found : TYPES.front();
}

EValueKind valueKind(unsigned int dataType)
{
    return dataTypeOf(dataType).kind;
}

int bitSize(unsigned int dataType)
{
    return dataTypeOf(dataType).bits;
}

unsigned int dataTypeNamed(const QString& name)
{
    const auto* const found =
        std::find_if(TYPES.begin(), TYPES.end(), [&name](const SDataType& type) { return name == type.name; });
    return name.isEmpty() || found == TYPES.end() ? 0 : found->index;
}

unsigned int simpleType(const QString& name)
{
    const auto* const found = std::find_if(TYPES.begin(), TYPES.end(), [&](const SDataType& type) {
        return name == type.processName || name == type.bitName;
    });
    return name.isEmpty() || found == TYPES.end() ? 0 : found->index;
}

QString dataTypeText(unsigned int dataType)
{
    const QString text = hexadecimalText(dataType, 4);
    return dataType < 8 ? text.mid(HEXADECIMAL_PREFIX.size()) : text;
}
