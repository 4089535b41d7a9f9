#ifndef MVXXDDTOOLS_CXDDDBCWRITER_H
#define MVXXDDTOOLS_CXDDDBCWRITER_H

#include "CXddDocument.h"
#include "CXddRemark.h"
#include "mvxXddTools_export.h"

#include <QByteArray>
#include <QList>

/** A device in a network. */
class MVXXDDTOOLS_EXPORT CXddNode
{
public:
    /** A device without a description and a node-ID. */
    CXddNode();
    /** A device with its description and its node-ID. */
    CXddNode(const CXddDocument& document, unsigned int nodeId);

    CXddDocument mDocument;   ///< Its description; a device without an open one sends nothing
    unsigned int mNodeId = 0; ///< From 1 to 127
};

/** A DBC: what is on the bus, for bus analysers and loggers. */
class MVXXDDTOOLS_EXPORT CXddDbc
{
public:
    CXddDbc();

    QByteArray mText;                  ///< The whole file, in ASCII
    QList<QList<CXddRemark>> mRemarks; ///< For each node what is left out or doubtful, in the order of the lines
};

/**
 * Writes the messages of the devices of a network as a DBC: the PDOs that are enabled and map something, and, where no
 * PDO has their CAN-IDs, the emergency and heartbeat messages of each device, network management and SYNC. Actual
 * values come before default values.
 *
 * Names of signals only depend on the dictionary of their device, so that they stay when a device or a PDO is added.
 * The same descriptions always give the same bytes, whatever the language of the program. The function keeps no state
 * and may run on any thread.
 */
class MVXXDDTOOLS_EXPORT CXddDbcWriter
{
public:
    /** What is written; to be combined by "|". */
    enum EOption : int
    {
        OPTION_NONE = 0,
        OPTION_ALL = 1,      ///< Disabled PDOs as well, under the CAN-IDs that they would have
        OPTION_ONLY_PDOS = 2 ///< Neither emergency nor heartbeat, network management and SYNC
    };

    /** The DBC of some devices, each of which has a node-ID of its own. */
    static CXddDbc write(const QList<CXddNode>& nodes, int options = OPTION_NONE);
};

#endif
