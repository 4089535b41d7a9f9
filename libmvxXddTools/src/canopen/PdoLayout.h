#ifndef MVXXDDTOOLS_PDOLAYOUT_H
#define MVXXDDTOOLS_PDOLAYOUT_H

#include "CXddPdo.h"
#include "canopen/CDescription.h"
#include "canopen/Texts.h"

/** What the PDOs of a description are on the bus of a network in which the device has that node-ID: CAN-ID, timing, and
 * where in their data which entry is, with its texts. With 0 the node-ID is the one that the description states; where
 * it states none, CAN-IDs are those of node-ID 0. */
QList<CXddPdo> layoutsOf(const CDescription& description, CTexts& texts, unsigned int nodeId);

/** The same of the PDOs of a dictionary; with 0 CAN-IDs are those of node-ID 0. */
QList<CXddPdo> layoutsOf(
    const std::vector<SPdo>& pdos, const CDictionary& dictionary, CTexts& texts, unsigned int nodeId);

/** Where remarks about a PDO as a whole belong: its communication parameters, else its mapping. */
SPlace placeOf(const CXddPdo& pdo, const CDictionary& dictionary);

#endif
