#ifndef MVXXDDTOOLS_CXDDSTATED_H
#define MVXXDDTOOLS_CXDDSTATED_H

#include "mvxXddTools_export.h"

#include <QByteArray>

/**
 * Which optional items a description states itself. A record of the library holds a default for an item that is absent,
 * and a normalised description holds what was supplied; neither can be told from a value that the file states.
 */
class MVXXDDTOOLS_EXPORT CXddStated
{
public:
    /** Everything is stated. */
    CXddStated();

    /** What the bytes of a description state. Where they are not well-formed, everything counts as stated. */
    static CXddStated in(const QByteArray& description);

    bool mDeviceCreationDate = true;  ///< "fileCreationDate" of the device profile
    bool mNetworkCreationDate = true; ///< "fileCreationDate" of the network profile
    bool mBaudRate = true;            ///< "defaultValue" of "baudRate"
    bool mSupportedBaudRates = true;  ///< a "supportedBaudRate"
    bool mMandatoryObjects = true;    ///< "mandatoryObjects"
    bool mOptionalObjects = true;     ///< "optionalObjects"
    bool mManufacturerObjects = true; ///< "manufacturerObjects"
};

#endif
