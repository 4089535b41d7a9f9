#ifndef MVXXDDTOOLS_DEVICE_H
#define MVXXDDTOOLS_DEVICE_H

#include "CXddDevice.h"
#include "CXddFact.h"
#include "canopen/CDescription.h"

/** What a description says of its device as a whole. */
CXddDevice deviceOf(const CDescription& description);

/** Vendor, product, versions, profile, revision and serial number, for people. */
QList<CXddFact> factsOf(const CXddDevice& device, const CDictionary& dictionary, const QString& language);

/** Name, version and dates of the file: one fact where both profiles state the same, else two. */
QList<CXddFact> fileFactsOf(const CXddDevice& device);

#endif
