#ifndef MVXXDDTOOLS_NORMALIZE_H
#define MVXXDDTOOLS_NORMALIZE_H

#include "CXddChange.h"
#include "CXddRule.h"
#include "text/CXmlEdits.h"

#include <QByteArray>
#include <QList>

/** What became of a text that was to be normalised. */
enum class ENormalized
{
    Unreadable, ///< It is in no known encoding or not well-formed
    Foreign,    ///< It is something else than a CANopen description
    Description ///< It is normalised
};

/** Applies the rules to the bytes of a description. Only then are `normalized` and `changes` replaced; else the error
 * text says why not. */
ENormalized normalizeText(
    CXmlEdits::ELayout layout, const QByteArray& description, QByteArray& normalized, QList<CXddChange>& changes,
    QString& errorText);

/** The rules in the order in which they are applied. */
QList<CXddRule> normalizeRules();

#endif
