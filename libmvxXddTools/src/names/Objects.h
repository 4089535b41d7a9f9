#ifndef MVXXDDTOOLS_OBJECTS_H
#define MVXXDDTOOLS_OBJECTS_H

/** @file
 * The indexes of objects of CiA 301 that say how a device takes part in its network. Those of PDOs are in
 * canopen/Pdos.h.
 */

constexpr unsigned int LAST_DATA_TYPE = 0x025F; ///< Objects from 1 on define data types
constexpr unsigned int DEVICE_TYPE = 0x1000;
constexpr unsigned int SYNC_COB_ID = 0x1005;
constexpr unsigned int SYNC_CYCLE = 0x1006; ///< Its time in microseconds
constexpr unsigned int TIME_COB_ID = 0x1012;
constexpr unsigned int EMCY_COB_ID = 0x1014;
constexpr unsigned int HEARTBEAT_CONSUMERS = 0x1016;
constexpr unsigned int HEARTBEAT_TIME = 0x1017; ///< Of its own heartbeat, in milliseconds
constexpr unsigned int IDENTITY = 0x1018;
constexpr unsigned int FIRST_SDO_SERVER = 0x1200;
constexpr unsigned int LAST_SDO_SERVER = 0x127F;
constexpr unsigned int LAST_SDO_CLIENT = 0x12FF;

#endif
