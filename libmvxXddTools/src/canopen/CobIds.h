#ifndef MVXXDDTOOLS_COBIDS_H
#define MVXXDDTOOLS_COBIDS_H

#include "canopen/CValue.h"
#include "remarks/SSentence.h"

#include <QtGlobal>

/** @file
 * What the bits of a COB-ID mean, and which CAN-IDs CiA 301 gives to whom.
 */

constexpr quint64 COB_ID_NOT_VALID = quint64(1) << 31U; ///< The PDO or message is not used
constexpr quint64 COB_ID_PRODUCES = quint64(1) << 30U;  ///< Of SYNC and TIME: the device sends it
constexpr quint64 COB_ID_NO_RTR = quint64(1) << 30U;    ///< Of a PDO: it is not sent on a remote request
constexpr quint64 COB_ID_EXTENDED = quint64(1) << 29U;  ///< The CAN-ID has 29 bits
constexpr quint64 CAN_ID_11 = 0x7FF;
constexpr quint64 CAN_ID_29 = 0x1FFFFFFF;

/** The CAN-ID of a COB-ID: its lower 29 or 11 bits. */
constexpr quint64 canIdOf(quint64 cobId)
{
    return cobId & ((cobId & COB_ID_EXTENDED) != 0 ? CAN_ID_29 : CAN_ID_11);
}

constexpr quint64 SYNC_CAN_ID = 0x80;
constexpr quint64 EMCY_CAN_ID = 0x80; ///< To which a device adds its node-ID, as to those that follow
constexpr quint64 SDO_TO_CLIENT = 0x580;
constexpr quint64 SDO_TO_SERVER = 0x600;
constexpr quint64 HEARTBEAT_CAN_ID = 0x700;
constexpr quint64 FIRST_TRANSMIT_CAN_ID = 0x180; ///< Of the first PDO
constexpr quint64 FIRST_RECEIVE_CAN_ID = 0x200;
constexpr quint64 PDO_CAN_ID_STEP = 0x100; ///< From one PDO to the next
constexpr unsigned int PREDEFINED_PDOS = 4;

/** What a COB-ID is used for. */
enum class ECobIdUse
{
    Pdo,
    Sdo,
    Emergency,
    Other ///< SYNC, TIME
};

/** True for a COB-ID that is used: bit 31 is not set. */
inline bool isValidCobId(const CValue& cobId)
{
    return (cobId.bits() & COB_ID_NOT_VALID) == 0;
}

/** What is wrong with a COB-ID, for every node-ID of the device, in words with a place for the value; nothing when it
 * can be used. SDOs are at CAN-IDs that others must not use. */
SWords cobIdFault(const CValue& cobId, ECobIdUse use);

#endif
