#include "canopen/DataTypes.h"

#include <QHash>
#include <QMap>

namespace
{
struct SType
{
    EValueKind kind;
    int bits;
};

const QMap<unsigned int, SType>& types()
{
    static const QMap<unsigned int, SType> table = {
        {TYPE_BOOLEAN, {EValueKind::Boolean, 1}},
        {TYPE_INTEGER8, {EValueKind::Signed, 8}},
        {0x03, {EValueKind::Signed, 16}},
        {0x04, {EValueKind::Signed, 32}},
        {TYPE_UNSIGNED8, {EValueKind::Unsigned, 8}},
        {TYPE_UNSIGNED16, {EValueKind::Unsigned, 16}},
        {TYPE_UNSIGNED32, {EValueKind::Unsigned, 32}},
        {TYPE_REAL32, {EValueKind::Real, 32}},
        {TYPE_VISIBLE_STRING, {EValueKind::Text, 0}},
        {TYPE_OCTET_STRING, {EValueKind::Text, 0}},
        {0x0B, {EValueKind::Text, 0}},
        {0x0C, {EValueKind::Text, 48}},
        {0x0D, {EValueKind::Text, 48}},
        {TYPE_DOMAIN, {EValueKind::Text, 0}},
        {0x10, {EValueKind::Signed, 24}},
        {TYPE_REAL64, {EValueKind::Real, 64}},
        {0x12, {EValueKind::Signed, 40}},
        {0x13, {EValueKind::Signed, 48}},
        {0x14, {EValueKind::Signed, 56}},
        {0x15, {EValueKind::Signed, 64}},
        {0x16, {EValueKind::Unsigned, 24}},
        {0x18, {EValueKind::Unsigned, 40}},
        {0x19, {EValueKind::Unsigned, 48}},
        {0x1A, {EValueKind::Unsigned, 56}},
        {0x1B, {EValueKind::Unsigned, 64}},
    };
    return table;
}
} // namespace

EValueKind valueKind(unsigned int dataType)
{
    return types().value(dataType, {EValueKind::None, 0}).kind;
}

int bitSize(unsigned int dataType)
{
    return types().value(dataType, {EValueKind::None, 0}).bits;
}

unsigned int simpleType(const QString& name)
{
    static const QHash<QString, unsigned int> simple = {
        {QStringLiteral("BOOL"), 0x01},   {QStringLiteral("SINT"), 0x02},    {QStringLiteral("INT"), 0x03},
        {QStringLiteral("DINT"), 0x04},   {QStringLiteral("LINT"), 0x15},    {QStringLiteral("USINT"), 0x05},
        {QStringLiteral("UINT"), 0x06},   {QStringLiteral("UDINT"), 0x07},   {QStringLiteral("ULINT"), 0x1B},
        {QStringLiteral("BYTE"), 0x05},   {QStringLiteral("WORD"), 0x06},    {QStringLiteral("DWORD"), 0x07},
        {QStringLiteral("LWORD"), 0x1B},  {QStringLiteral("REAL"), 0x08},    {QStringLiteral("LREAL"), 0x11},
        {QStringLiteral("STRING"), 0x09}, {QStringLiteral("WSTRING"), 0x0B}, {QStringLiteral("BITSTRING"), 0x0A},
    };
    return simple.value(name);
}
