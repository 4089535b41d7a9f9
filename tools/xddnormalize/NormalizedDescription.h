#ifndef XDDNORMALIZE_NORMALIZEDDESCRIPTION_H
#define XDDNORMALIZE_NORMALIZEDDESCRIPTION_H

#include "CNormalizer.h"

#include <ICIso15745.h>

#include <QByteArray>

/** A description in the form that the library reads, and what was done for that. */
struct SNormalizedDescription
{
    QByteArray bytes;         ///< The whole file, in the encoding of the original
    QVector<SChange> changes; ///< In the order of the text, with the places that were left

    /** How many changes were made; what was left does not count. */
    int made() const;
};

/** Normalises the bytes of a file. Returns false, with a message, when the file is to be left alone. */
bool normalizeDescription(const QByteArray& original, SNormalizedDescription& normalized, QString& errorText);

/** Loads the bytes of a description through a temporary file, because a reader takes names. */
bool loadDescription(ICIso15745& reader, const QByteArray& bytes, QString& errorText);

#endif
