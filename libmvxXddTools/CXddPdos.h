#ifndef MVXXDDTOOLS_CXDDPDOS_H
#define MVXXDDTOOLS_CXDDPDOS_H

#include "CXddDocument.h"
#include "mvxXddTools_export.h"

#include <CCanOpenObject.h>

#include <QList>
#include <QMap>

/** What a PDO carries at one place. */
class MVXXDDTOOLS_EXPORT CXddPdoField
{
public:
    CXddPdoField();

    /** The entry that it carries, such as "0x6041" or "0x6200:01"; a data type such as "0x0005" for a dummy. */
    QString entry() const;

    unsigned int mIndex = 0;    ///< Index of the object
    unsigned int mSubIndex = 0; ///< Sub-index; 0 for an object without sub-objects
    bool mIsSubObject = false;  ///< The entry is a sub-object
    int mBits = 0;              ///< Length in bits
};

/** A process data object of a device. */
class MVXXDDTOOLS_EXPORT CXddPdo
{
public:
    CXddPdo();

    bool mIsTransmit = false;    ///< The device sends it
    int mNumber = 0;             ///< From 1 to 512
    QList<CXddPdoField> mFields; ///< What it carries, in order
};

/** The PDOs of a device: actual values (XDC) come before default values. */
class MVXXDDTOOLS_EXPORT CXddPdos
{
public:
    /** The PDOs of a description, which has to be open: the receive PDOs, then the transmit PDOs, each by its number.
     */
    static QList<CXddPdo> of(const CXddDocument& document);

    /** The PDOs of the objects that a reader has loaded. */
    static QList<CXddPdo> of(const QMap<unsigned int, CCanOpenObject>& objects);
};

#endif
