#ifndef XDDDIFF_CHANGERANGES_H
#define XDDDIFF_CHANGERANGES_H

#include <CXddChange.h>

#include <QList>
#include <QString>

/** A change, and the neighbouring entries that changed in the same way. */
struct SChangeRange
{
    CXddChange first;
    unsigned int lastIndex = 0;
    unsigned int lastSubIndex = 0; ///< Where the first is about a sub-object
    int entries = 1;

    /** "0x2001", "0x2004:01-08" or "0x2004-0x2006:01-08"; nothing for the device as a whole. */
    QString address() const;
};

/** Changes of one rule with the same old and new over neighbouring sub-indexes, and then over neighbouring objects, as
 * one each, in the order of the first. */
QList<SChangeRange> rangesOf(const QList<CXddChange>& changes);

#endif
