#include "canopen/PdoLayout.h"

#include "canopen/CobIds.h"
#include "canopen/PdoDoubts.h"
#include "names/DataTypes.h"

#include <tuple>

namespace
{
// Inhibit times are in units of that many microseconds.
constexpr unsigned int INHIBIT_UNIT = 100;

// Lays one PDO out.
class CLayout
{
public:
    CLayout(const SPdo& pdo, const CDictionary& dictionary, CTexts& texts, unsigned int nodeId)
        : mPdo(pdo)
        , mDictionary(dictionary)
        , mTexts(texts)
        , mNodeId(nodeId)
    {}

    CXddPdo result()
    {
        mLayout.mIsTransmit = mPdo.isTransmit();
        mLayout.mNumber = int(mPdo.number);
        mLayout.mNodeId = mNodeId;
        mLayout.mHasCommunication = mPdo.communication != nullptr;
        mLayout.mHasMapping = mPdo.mapping != nullptr;
        mLayout.mIsMultiplexed = mPdo.isMultiplexed();
        layCanId();
        layTimes();
        layFields();
        CRemarks doubts;
        addDoubts(mPdo, mDictionary, mNodeId, doubts);
        mLayout.mDoubts = doubts.inOrder();
        return mLayout;
    }

private:
    // The sub-object of its communication parameters, or null.
    const SEntry* parameter(unsigned int subIndex) const
    {
        return mPdo.communication == nullptr ? nullptr : mDictionary.subObject(*mPdo.communication->index, subIndex);
    }

    // The value of such a sub-object as a number; nothing where it holds none.
    std::optional<unsigned int> number(unsigned int subIndex) const
    {
        const SEntry* const entry = parameter(subIndex);
        return entry == nullptr ? std::nullopt : entry->number(mNodeId);
    }

    // Without a COB-ID the first four have those of the predefined connection set.
    void layCanId()
    {
        const std::optional<unsigned int> cobId = number(1);
        if (!cobId) {
            const quint64 first = mLayout.mIsTransmit ? FIRST_TRANSMIT_CAN_ID : FIRST_RECEIVE_CAN_ID;
            mLayout.mIsEnabled = mPdo.number <= PREDEFINED_PDOS;
            mLayout.mUsesNodeId = mLayout.mIsEnabled;
            mLayout.mCanId = mLayout.mIsEnabled ? unsigned(first + (mPdo.number - 1) * PDO_CAN_ID_STEP) + mNodeId : 0;
            return;
        }
        mLayout.mIsEnabled = (*cobId & COB_ID_NOT_VALID) == 0;
        mLayout.mIsExtended = (*cobId & COB_ID_EXTENDED) != 0;
        mLayout.mAllowsRtr = (*cobId & COB_ID_NO_RTR) == 0;
        mLayout.mCanId = unsigned(canIdOf(*cobId));
        mLayout.mUsesNodeId = parameter(1)->current()->usesNodeId();
    }

    void layTimes()
    {
        mLayout.mTransmissionType = number(2);
        mLayout.mInhibitTime = quint64(number(3).value_or(0)) * INHIBIT_UNIT;
        mLayout.mEventTimer = number(5).value_or(0);
        mLayout.mSyncStart = number(6).value_or(0);
        if (mLayout.mTransmissionType) {
            const unsigned int type = *mLayout.mTransmissionType;
            const unsigned int last = lastReservedType(mPdo.direction);
            mLayout.mTransmission = type == 0                    ? CXddPdo::TRANSMISSION_ACYCLIC
                                    : type < FIRST_RESERVED_TYPE ? CXddPdo::TRANSMISSION_CYCLIC
                                    : type <= last || type > 255 ? CXddPdo::TRANSMISSION_RESERVED
                                    : type == 252                ? CXddPdo::TRANSMISSION_REQUEST_SYNC
                                    : type == 253                ? CXddPdo::TRANSMISSION_REQUEST
                                    : type == 254                ? CXddPdo::TRANSMISSION_EVENT_MANUFACTURER
                                                                 : CXddPdo::TRANSMISSION_EVENT_PROFILE;
        }
    }

    // One behind the other, without padding. Behind the first that does not fit into the data nothing does.
    void layFields()
    {
        unsigned int offset = 0;
        for (const SPdoField& field : mPdo.fields) {
            if (field.isActive && !field.carriesNothing()) {
                const bool fits = mLayout.mBeyond.isEmpty() && offset + field.bits <= MAX_PDO_BITS;
                (fits ? mLayout.mFields : mLayout.mBeyond) << fieldAt(field, int(offset));
                offset += field.bits;
            }
        }
    }

    CXddPdoField fieldAt(const SPdoField& mapped, int offset)
    {
        CXddPdoField field;
        field.mIndex = mapped.index;
        field.mSubIndex = mapped.subIndex;
        field.mIsSubObject = mapped.isSubObject();
        field.mOffset = offset;
        field.mBits = int(mapped.bits);
        if (mapped.isDummy()) {
            field.mKind = CXddPdoField::KIND_DUMMY;
            field.mDataType = mapped.index;
        } else if (mapped.target != nullptr) {
            describe(*mapped.target, field);
        }
        return field;
    }

    // The mapped bits rule, not those of the type; a range is only that of a whole value.
    void describe(const SEntry& target, CXddPdoField& field)
    {
        field.mIsDescribed = true;
        field.mName = target.name;
        field.mObjectName = mDictionary.objectOf(target).name;
        field.mDataType = target.dataType.value;
        field.mKind = kindOf(field.mDataType, field.mBits);
        field.mTexts = mTexts.of(target);
        const int bits = bitSize(field.mDataType);
        if (bits == field.mBits) {
            std::tie(field.mMinimum, field.mMaximum) = target.range();
        }
    }

    static CXddPdoField::EKind kindOf(unsigned int dataType, int bits)
    {
        switch (valueKind(dataType)) {
        case EValueKind::Boolean:
        case EValueKind::Unsigned:
            return CXddPdoField::KIND_UNSIGNED;
        case EValueKind::Signed:
            return CXddPdoField::KIND_SIGNED;
        case EValueKind::Real:
            return bits == bitSize(dataType) ? CXddPdoField::KIND_REAL : CXddPdoField::KIND_UNSIGNED;
        case EValueKind::Text:
            return CXddPdoField::KIND_BYTES;
        case EValueKind::None:
        case EValueKind::Record:
            break;
        }
        return CXddPdoField::KIND_UNKNOWN;
    }

    const SPdo& mPdo;
    const CDictionary& mDictionary;
    CTexts& mTexts;
    unsigned int mNodeId;
    CXddPdo mLayout;
};
} // namespace

QList<CXddPdo> layoutsOf(const CDescription& description, CTexts& texts, unsigned int nodeId)
{
    const unsigned int node = nodeId != 0 ? nodeId : description.commissioning().mNodeId;
    return layoutsOf(description.pdos(), description.dictionary(), texts, node);
}

QList<CXddPdo> layoutsOf(
    const std::vector<SPdo>& pdos, const CDictionary& dictionary, CTexts& texts, unsigned int nodeId)
{
    QList<CXddPdo> layouts;
    for (const SPdo& pdo : pdos) {
        layouts << CLayout(pdo, dictionary, texts, nodeId).result();
    }
    return layouts;
}

SPlace placeOf(const CXddPdo& pdo, const CDictionary& dictionary)
{
    const SEntry* const object =
        dictionary.object(pdo.mHasCommunication ? pdo.communicationIndex() : pdo.mappingIndex());
    return object == nullptr ? SPlace() : object->place();
}
