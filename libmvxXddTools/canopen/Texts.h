#ifndef MVXXDDTOOLS_TEXTS_H
#define MVXXDDTOOLS_TEXTS_H

#include "CXddEntryTexts.h"
#include "canopen/CDescription.h"

#include <QStringList>

/** @file
 * Labels, descriptions, units and allowed values: what a description says for people.
 */

/** The texts of an entry of the description: its own, then those of its parameter. */
CXddEntryTexts textsOf(const SEntry& entry, const CDescription& description);

/** The languages of all texts, in alphabetical order. */
QStringList languagesOf(const CDescription& description);

#endif
