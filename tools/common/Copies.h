#ifndef TOOLS_COPIES_H
#define TOOLS_COPIES_H

#include "CCopyCommandLine.h"

#include <CXddNormalizer.h>

#include <functional>

/** @file
 * How tools write changed copies of descriptions.
 */

/** Reports the changes of a copy, with their rules or their reasons, and writes it where that was asked for; in place
 * only where something changed. */
ECopied writeCopy(const SCopyRequest& request, const CXddDocument& document, const CXddCopy& copy, bool showsRules);

/** Which findings of a description are put right. */
using ChooseFindings = std::function<QList<CXddRemark>(const CXddDocument&)>;

/** Writes a copy for publishing. Refuses EDS files. */
ECopied conformFile(const SCopyRequest& request, const QString& fileName, const ChooseFindings& choose);

#endif
