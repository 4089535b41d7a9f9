#ifndef MVXXDDTOOLS_CXDDCOMMISSIONING_H
#define MVXXDDTOOLS_CXDDCOMMISSIONING_H

#include "mvxXddTools_export.h"

#include <CNetworkCanOpenProfile.h>

#include <QString>

#include <optional>

/** What is configured for a device in its network: "deviceCommissioning" of an XDC, [DeviceComissioning] of a DCF. */
class MVXXDDTOOLS_EXPORT CXddCommissioning
{
public:
    /** Nothing is configured. */
    CXddCommissioning();

    unsigned int mNodeId = 0; ///< From 1 to 127; 0 where none is stated
    QString mNodeName;        ///< "nodeName"
    /** The bit rate of the network; BAUD_INVALID where none is stated. */
    CNetworkCanOpenProfile::EBaudrate mBaudrate = CNetworkCanOpenProfile::BAUD_INVALID;
    unsigned int mNetworkNumber = 0; ///< "networkNumber"; 0 where none is stated
    QString mNetworkName;            ///< "networkName"
    std::optional<bool> mIsManager;  ///< "CANopenManager": the device manages the network
};

#endif
