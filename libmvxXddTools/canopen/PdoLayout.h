#ifndef MVXXDDTOOLS_PDOLAYOUT_H
#define MVXXDDTOOLS_PDOLAYOUT_H

#include "CXddPdo.h"
#include "canopen/Pdos.h"

/** What a PDO is on the bus of a network in which its device has that node-ID: CAN-ID, timing, and where in its data
 * which entry is. With 0 the CAN-ID is that of node-ID 0. */
CXddPdo layoutOf(const SPdo& pdo, const CDictionary& dictionary, unsigned int nodeId);

#endif
