#ifndef MVXXDDTOOLS_CXDDPDOS_H
#define MVXXDDTOOLS_CXDDPDOS_H

#include "CXddDocument.h"
#include "CXddPdo.h"
#include "mvxXddTools_export.h"

#include <CCanOpenObject.h>

#include <QList>
#include <QMap>

/** The PDOs of a device: actual values (XDC, DCF) come before default values. */
class MVXXDDTOOLS_EXPORT CXddPdos
{
public:
    /** The PDOs of a description, which has to be open: the receive PDOs, then the transmit PDOs, each by its number,
     * disabled and empty ones included. Without a node-ID, from 1 to 127, CAN-IDs are those of node-ID 0. */
    static QList<CXddPdo> of(const CXddDocument& document, unsigned int nodeId = 0);

    /** The PDOs of the objects that a reader has loaded, likewise. Their remarks are at no line, and they have no
     * texts. */
    static QList<CXddPdo> of(const QMap<unsigned int, CCanOpenObject>& objects, unsigned int nodeId = 0);
};

#endif
