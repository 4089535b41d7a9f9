#include "canopen/CobIds.h"

#include "remarks/CRemarks.h"

#include <algorithm>
#include <array>

namespace
{
// The CAN-IDs of 11 bits that CiA 301 keeps for other uses than PDOs.
struct SCanIds
{
    quint64 first;
    quint64 last;
};
constexpr std::array<SCanIds, 5> RESTRICTED = {
    {{0x000, 0x07F}, {0x101, 0x180}, {0x581, 0x5FF}, {0x601, 0x67F}, {0x6E0, 0x7FF}}};

// True when one of the CAN-IDs that a COB-ID stands for is restricted.
bool isRestricted(const CValue& cobId)
{
    const quint64 base = cobId.bits() & CAN_ID_11;
    const quint64 first = cobId.usesNodeId() ? base + MIN_NODE_ID : base;
    const quint64 last = cobId.usesNodeId() ? base + MAX_NODE_ID : base;
    return std::any_of(RESTRICTED.begin(), RESTRICTED.end(), [&](const SCanIds& range) {
        return first <= range.last && last >= range.first;
    });
}

// True for a predefined CAN-ID without the node-ID.
bool lacksNodeId(const CValue& cobId, ECobIdUse use)
{
    const quint64 bits = cobId.bits();
    const quint64 step = bits % PDO_CAN_ID_STEP;
    switch (use) {
    case ECobIdUse::Pdo:
        return !cobId.usesNodeId() && bits >= FIRST_TRANSMIT_CAN_ID && bits < SDO_TO_CLIENT
               && (step == FIRST_TRANSMIT_CAN_ID % PDO_CAN_ID_STEP || step == 0);
    case ECobIdUse::Sdo:
        return !cobId.usesNodeId() && (bits == SDO_TO_CLIENT || bits == SDO_TO_SERVER);
    case ECobIdUse::Emergency:
        return !cobId.usesNodeId() && bits == EMCY_CAN_ID;
    case ECobIdUse::Other:
        break;
    }
    return false;
}
} // namespace

SWords cobIdFault(const CValue& cobId, ECobIdUse use)
{
    const bool isCanId11 = isValidCobId(cobId) && (cobId.bits() & COB_ID_EXTENDED) == 0;
    const bool lacks = lacksNodeId(cobId, use);
    if (use != ECobIdUse::Sdo && isCanId11 && (cobId.bits() & CAN_ID_29 & ~CAN_ID_11) != 0) {
        return CRemarks::say("COB-ID %1 has more than 11 bits, but bit 29 is not set");
    }
    if (lacks && (use == ECobIdUse::Sdo || use == ECobIdUse::Emergency)) {
        return CRemarks::say("COB-ID %1 lacks $NODEID");
    }
    if (use == ECobIdUse::Sdo || !isCanId11 || !isRestricted(cobId)) {
        return {};
    }
    return lacks ? CRemarks::say("COB-ID %1 lacks $NODEID") : CRemarks::say("COB-ID %1 is restricted");
}
