#ifndef MVXXDDTOOLS_CXDDPDO_H
#define MVXXDDTOOLS_CXDDPDO_H

#include "CXddEntryTexts.h"
#include "CXddRemark.h"
#include "mvxXddTools_export.h"

#include <QList>
#include <QString>

#include <optional>

/** What a PDO carries at one place of its data. */
class MVXXDDTOOLS_EXPORT CXddPdoField
{
public:
    /** How the bits are to be read. */
    enum EKind : int
    {
        KIND_UNSIGNED = 0, ///< A number without a sign, a boolean included
        KIND_SIGNED = 1,   ///< Two's complement
        KIND_REAL = 2,     ///< IEEE 754: REAL32 with 32 bits, REAL64 with 64
        KIND_BYTES = 3,    ///< Characters, octets, a block of data or a time
        KIND_DUMMY = 4,    ///< Only takes room: the index is that of a data type
        KIND_UNKNOWN = 5   ///< The dictionary does not describe the entry, or not its type
    };

    CXddPdoField();

    /** The entry that it carries, such as "0x6041" or "0x6200:01"; a data type such as "0x0005" for a dummy. */
    QString entry() const;

    /** Its name behind that of its object, "Identity: Vendor-ID"; one of them where they are the same. */
    QString fullName() const;

    /** "0..100"; nothing where the description limits none. */
    QString rangeText() const;

    unsigned int mIndex = 0;    ///< Index of the object
    unsigned int mSubIndex = 0; ///< Sub-index; 0 for an object without sub-objects
    bool mIsSubObject = false;  ///< The entry is a sub-object
    bool mIsDescribed = false;  ///< The dictionary describes it
    QString mName;              ///< Name of the entry
    QString mObjectName;        ///< Name of its object; the same for an object without sub-objects
    unsigned int mDataType = 0; ///< Data type; that of the array for an element without one; 0 when it is not known
    EKind mKind = KIND_UNKNOWN; ///< How the bits are to be read
    int mOffset = 0;            ///< Bits in front of it; the lowest bit of byte 0 is bit 0
    int mBits = 0;              ///< Length in bits, as the mapping states it
    QString mMinimum;           ///< Lowest raw value in decimal; empty where the description limits none
    QString mMaximum;           ///< Highest raw value likewise
    CXddEntryTexts mTexts;      ///< Unit, factor and labels of values; only from a description
};

/** A process data object of a device. */
class MVXXDDTOOLS_EXPORT CXddPdo
{
public:
    /** When a PDO is sent or, for one that is received, takes effect. */
    enum ETransmission : int
    {
        TRANSMISSION_NOT_STATED = 0,
        TRANSMISSION_ACYCLIC = 1,            ///< 0: with the SYNC after an event
        TRANSMISSION_CYCLIC = 2,             ///< 1 to 240: with every n-th SYNC
        TRANSMISSION_RESERVED = 3,           ///< 241 to 251, and of a received one 252 and 253
        TRANSMISSION_REQUEST_SYNC = 4,       ///< 252: sampled with the SYNC, sent on request
        TRANSMISSION_REQUEST = 5,            ///< 253: on request
        TRANSMISSION_EVENT_MANUFACTURER = 6, ///< 254: on an event, or its timer, as the manufacturer says
        TRANSMISSION_EVENT_PROFILE = 7       ///< 255: on an event, or its timer, as the device profile says
    };

    CXddPdo();

    /** True when it is enabled and carries something. */
    bool isInUse() const { return mIsEnabled && bytes() > 0; }
    /** "TPDO1" or "RPDO512" */
    QString name() const;
    /** Index of its communication parameters, 0x1400 to 0x15FF or 0x1800 to 0x19FF. */
    unsigned int communicationIndex() const;
    /** Index of its mapping, 0x200 above. */
    unsigned int mappingIndex() const { return communicationIndex() + 0x200; }
    /** "0x185", with eight digits where it is extended; "0x180+node-ID", in the language of the program, where it
     * depends on a node-ID that is not known. */
    QString canIdText() const;
    /** The transmission type in words, in the language of the program. */
    QString transmissionText() const;
    /** The same in one word: "acyclic", "cyclic", "reserved", "request-sync", "request", "event-manufacturer",
     * "event-profile"; nothing for TRANSMISSION_NOT_STATED. */
    static QString transmissionAsStr(ETransmission transmission);
    /** Length of its data, in bytes: all that it carries, dummies included; 8 for a multiplexed one. */
    int bytes() const;

    bool mIsTransmit = false;       ///< The device sends it
    int mNumber = 0;                ///< From 1 to 512
    bool mHasCommunication = false; ///< The dictionary has its communication parameters
    bool mHasMapping = false;       ///< The dictionary has its mapping
    bool mIsEnabled = false;        ///< Bit 31 of the COB-ID is not set
    unsigned int mCanId = 0;        ///< 11 or 29 bits; 0 where none is known. Without a node-ID that of node-ID 0
    bool mIsExtended = false;       ///< The CAN-ID has 29 bits
    unsigned int mNodeId = 0;       ///< Node-ID with which the CAN-ID was computed; 0 where none is known
    bool mUsesNodeId = false;       ///< The CAN-ID depends on the node-ID
    bool mAllowsRtr = false;        ///< It is sent on a remote request: bit 30 of the COB-ID is not set
    bool mIsMultiplexed = false;    ///< Its data name the entry that they carry
    std::optional<unsigned int> mTransmissionType;         ///< Sub-index 2
    ETransmission mTransmission = TRANSMISSION_NOT_STATED; ///< What that type means
    quint64 mInhibitTime = 0;                              ///< Shortest time between two, in microseconds; 0 for none
    unsigned int mEventTimer = 0; ///< Longest time between two, in milliseconds; 0 for none. A deadline where received
    unsigned int mSyncStart = 0;  ///< Value of the SYNC counter with which it begins; 0 for any
    QList<CXddPdoField> mFields;  ///< What it carries, in order
    QList<CXddPdoField> mBeyond;  ///< What is mapped behind it and does not fit into its 64 bits
    QList<CXddRemark> mDoubts;    ///< What is wrong with it: findings of the checker, with their rules
};

#endif
