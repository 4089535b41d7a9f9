#ifndef MVXXDDTOOLS_PDOLAYOUT_H
#define MVXXDDTOOLS_PDOLAYOUT_H

#include "CXddPdo.h"
#include "canopen/CDescription.h"
#include "canopen/Pdos.h"

/** What a PDO is on the bus of a network in which its device has that node-ID: CAN-ID, timing, and where in its data
 * which entry is. With 0 the CAN-ID is that of node-ID 0. */
CXddPdo layoutOf(const SPdo& pdo, const CDictionary& dictionary, unsigned int nodeId);

/** All PDOs of a description, with the texts of what they carry. */
QList<CXddPdo> layoutsOf(const CDescription& description, unsigned int nodeId);

/** Where remarks about a PDO as a whole belong: its communication parameters, else its mapping. */
SPlace placeOf(const CXddPdo& pdo, const CDictionary& dictionary);

#endif
