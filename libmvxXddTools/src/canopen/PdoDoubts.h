#ifndef MVXXDDTOOLS_PDODOUBTS_H
#define MVXXDDTOOLS_PDODOUBTS_H

#include "canopen/CDictionary.h"
#include "canopen/Pdos.h"
#include "remarks/CRemarks.h"

/** @file
 * What is wrong with a PDO. The rules are those of the checker, which has their texts; whoever shows a PDO says the
 * same of it.
 */

/** A rule about PDOs: its ID, and how bad it is. */
struct SPdoRule
{
    const char* id;
    CXddRemark::ESeverity severity;
};

constexpr SPdoRule PDO_WITHOUT_PARTNER = {"pdo-without-partner", CXddRemark::SEVERITY_ERROR};
constexpr SPdoRule COB_ID = {"cob-id", CXddRemark::SEVERITY_WARNING};
constexpr SPdoRule COB_ID_MISSING = {"cob-id-missing", CXddRemark::SEVERITY_NOTE};
constexpr SPdoRule TRANSMISSION_TYPE = {"transmission-type", CXddRemark::SEVERITY_WARNING};
constexpr SPdoRule MAPPING_GAP = {"mapping-gap", CXddRemark::SEVERITY_ERROR};
constexpr SPdoRule MAPPING_COUNT = {"mapping-count", CXddRemark::SEVERITY_ERROR};
constexpr SPdoRule MAPPING_NOT_STATED = {"mapping-not-stated", CXddRemark::SEVERITY_NOTE};
constexpr SPdoRule PDO_TOO_LONG = {"pdo-too-long", CXddRemark::SEVERITY_ERROR};
constexpr SPdoRule MAPPED_OBJECT_MISSING = {"mapped-object-missing", CXddRemark::SEVERITY_ERROR};
constexpr SPdoRule MAPPED_LENGTH = {"mapped-length", CXddRemark::SEVERITY_ERROR};
constexpr SPdoRule MAPPED_OBJECT_NOT_MAPPABLE = {"mapped-object-not-mappable", CXddRemark::SEVERITY_WARNING};
constexpr SPdoRule PDO_DIRECTION = {"pdo-direction", CXddRemark::SEVERITY_WARNING};
constexpr SPdoRule INACTIVE_MAPPING = {"inactive-mapping", CXddRemark::SEVERITY_NOTE};

/** Adds what is wrong with a PDO. The node-ID of its device is 0 where it is not known. */
void addDoubts(const SPdo& pdo, const CDictionary& dictionary, unsigned int nodeId, CRemarks& doubts);

/** What an entry says of its access, as a part of a sentence. */
CXddSentence accessSaid(const SEntry& entry);

/** A text in quotes, with the line of the element that states it unless that is the given one. */
SArgument quoted(const QString& text, const CXmlElement& source, const CXmlElement& element);
SArgument quoted(const SValueProperty& property, const SEntry& entry);

#endif
