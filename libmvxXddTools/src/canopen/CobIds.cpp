#include "canopen/CobIds.h"

#include <algorithm>
#include <array>

namespace
{
struct SCanIds
{
    quint64 first;
    quint64 last;
};
constexpr std::array<SCanIds, 5> RESTRICTED = {
    {{0x000, 0x07F}, {0x101, 0x180}, {0x581, 0x5FF}, {0x601, 0x67F}, {0x6E0, 0x7FF}}};
} // namespace

bool isRestrictedCanId(quint64 canId)
{
    return hasRestrictedCanId(canId, canId);
}

bool hasRestrictedCanId(quint64 first, quint64 last)
{
    return std::any_of(RESTRICTED.begin(), RESTRICTED.end(), [&](const SCanIds& range) {
        return first <= range.last && last >= range.first;
    });
}
