#include "canopen/PdoLayout.h"

#include "CCanOpenNames.h"
#include "canopen/CobIds.h"
#include "canopen/Texts.h"
#include "names/DataTypes.h"
#include "names/Hexadecimal.h"

#include <QLocale>

namespace
{
// Inhibit times are in units of that many microseconds.
constexpr unsigned int INHIBIT_UNIT = 100;

// Lays one PDO out, and remarks on what is doubtful in it.
class CLayout
{
public:
    CLayout(const SPdo& pdo, const CDictionary& dictionary, unsigned int nodeId)
        : mPdo(pdo)
        , mDictionary(dictionary)
        , mNodeId(nodeId)
    {
        CXddRemark cause;
        cause.mKind = CXddRemark::KIND_LEFT;
        cause.mSeverity = CXddRemark::SEVERITY_WARNING;
        cause.mRule = QStringLiteral("pdo");
        mRemarks.setCause(cause);
    }

    CXddPdo result()
    {
        mLayout.mIsTransmit = mPdo.direction == EPdoDirection::Transmit;
        mLayout.mNumber = int(mPdo.number);
        mLayout.mNodeId = mNodeId;
        mLayout.mHasCommunication = mPdo.communication != nullptr;
        mLayout.mHasMapping = mPdo.mapping != nullptr;
        mLayout.mIsMultiplexed = mPdo.isMultiplexed();
        layCanId();
        layTimes();
        layFields();
        mLayout.mRemarks = mRemarks.inOrder();
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
        const std::optional<CValue> value = entry == nullptr ? std::nullopt : entry->current();
        return value ? value->at(mNodeId).unsigned32() : std::nullopt;
    }

    // Where remarks about the PDO as a whole belong.
    SPlace place() const
    {
        const SEntry* const object = mPdo.communication != nullptr ? mPdo.communication : mPdo.mapping;
        return object->place();
    }

    void layCanId()
    {
        const SEntry* const entry = parameter(1);
        const std::optional<CValue> value = entry == nullptr ? std::nullopt : entry->current();
        const std::optional<unsigned int> cobId = value ? value->at(mNodeId).unsigned32() : std::nullopt;
        if (!cobId) {
            layPredefinedCanId();
            return;
        }
        mLayout.mIsEnabled = (*cobId & COB_ID_NOT_VALID) == 0;
        mLayout.mIsExtended = (*cobId & COB_ID_EXTENDED) != 0;
        mLayout.mAllowsRtr = (*cobId & COB_ID_NO_RTR) == 0;
        mLayout.mCanId = unsigned(canIdOf(*cobId));
        mLayout.mUsesNodeId = value->usesNodeId();
        if (mLayout.mIsEnabled) {
            remarkCanId(*entry, *cobId);
        }
    }

    // Without a COB-ID the first four have those of the predefined connection set.
    void layPredefinedCanId()
    {
        const SPlace at = parameter(1) == nullptr ? place() : parameter(1)->place();
        mLayout.mUsesNodeId = true;
        mLayout.mIsEnabled = mPdo.number <= PREDEFINED_PDOS;
        if (!mLayout.mIsEnabled) {
            mLayout.mUsesNodeId = false;
            mRemarks.add(at, CRemarks::say("no COB-ID is stated: the PDO is taken as disabled"));
            return;
        }
        const quint64 first = mLayout.mIsTransmit ? FIRST_TRANSMIT_CAN_ID : FIRST_RECEIVE_CAN_ID;
        mLayout.mCanId = unsigned(first + (mPdo.number - 1) * PDO_CAN_ID_STEP) + mNodeId;
        mRemarks.add(
            at, CRemarks::say("no COB-ID is stated: the PDO is taken with the predefined CAN-ID %1"),
            {hexadecimalText(mLayout.mCanId, 3)});
    }

    void remarkCanId(const SEntry& entry, unsigned int cobId)
    {
        const QString text = hexadecimalText(cobId, 3);
        if (!mLayout.mIsExtended && (cobId & CAN_ID_29 & ~CAN_ID_11) != 0) {
            mRemarks.add(
                entry, CRemarks::say("COB-ID %1 has more than 11 bits, but bit 29 is not set: it is taken as %2"),
                {text, hexadecimalText(mLayout.mCanId, 3)});
        }
        if (mLayout.mCanId == 0) {
            mRemarks.add(entry, CRemarks::say("the CAN-ID is 0, which is that of the network management"));
        } else if (
            !mLayout.mIsExtended && isRestrictedCanId(mLayout.mCanId) && (mNodeId != 0 || !mLayout.mUsesNodeId)) {
            mRemarks.add(entry, CRemarks::say("CAN-ID %1 is restricted"), {hexadecimalText(mLayout.mCanId, 3)});
        }
        remarkOtherNode(entry, cobId);
    }

    // An actual value that was configured for another node-ID.
    void remarkOtherNode(const SEntry& entry, unsigned int cobId)
    {
        const std::optional<CValue>& byDefault = entry.defaultValue.value;
        const bool isActual = entry.actualValue.value && !entry.actualValue.value->usesNodeId();
        const bool isByNode = byDefault && byDefault->isInteger() && byDefault->usesNodeId();
        if (mNodeId == 0 || !isActual || !isByNode) {
            return;
        }
        const quint64 base = canIdOf(byDefault->bits());
        const quint64 canId = canIdOf(cobId);
        if (canId > base && canId <= base + MAX_NODE_ID && canId != base + mNodeId) {
            mRemarks.add(
                entry, CRemarks::say("the actual COB-ID %1 is that of node-ID %2"),
                {hexadecimalText(cobId, 3), canId - base});
        }
    }

    void layTimes()
    {
        mLayout.mTransmissionType = number(2);
        mLayout.mInhibitTime = number(3).value_or(0) * INHIBIT_UNIT;
        mLayout.mEventTimer = number(5).value_or(0);
        mLayout.mSyncStart = number(6).value_or(0);
        if (mLayout.mTransmissionType) {
            const unsigned int type = *mLayout.mTransmissionType;
            mLayout.mTransmission = type == 0     ? CXddPdo::TRANSMISSION_ACYCLIC
                                    : type <= 240 ? CXddPdo::TRANSMISSION_CYCLIC
                                    : type == 252 ? CXddPdo::TRANSMISSION_REQUEST_SYNC
                                    : type == 253 ? CXddPdo::TRANSMISSION_REQUEST
                                    : type == 254 ? CXddPdo::TRANSMISSION_EVENT_MANUFACTURER
                                    : type == 255 ? CXddPdo::TRANSMISSION_EVENT_PROFILE
                                                  : CXddPdo::TRANSMISSION_RESERVED;
        }
    }

    // One behind the other, without padding.
    void layFields()
    {
        if (mPdo.mapping == nullptr) {
            mRemarks.add(place(), CRemarks::say("the PDO has no mapping"));
            return;
        }
        if (!mPdo.active && !mPdo.fields.empty()) {
            mRemarks.add(
                mPdo.count == nullptr ? mPdo.mapping->place() : mPdo.count->place(),
                CRemarks::say(
                    "no number of active entries is stated: those in front of the first empty one are taken"));
        }
        unsigned int offset = 0;
        for (const SPdoField& field : mPdo.fields) {
            if (!field.isActive) {
                continue;
            }
            if (field.index == 0 || field.bits == 0) {
                mRemarks.add(*field.entry, CRemarks::say("the active entry maps nothing"));
                continue;
            }
            const bool fits = mLayout.mBeyond.isEmpty() && offset + field.bits <= MAX_PDO_BITS;
            if (!fits && mLayout.mBeyond.isEmpty()) {
                mRemarks.add(
                    *field.entry, CRemarks::say("%1 and what follows it are left out: they are beyond %2 bits"),
                    {field.name(), MAX_PDO_BITS});
            }
            (fits ? mLayout.mFields : mLayout.mBeyond) << fieldAt(field, int(offset));
            offset += field.bits;
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
            return field;
        }
        if (mapped.target == nullptr) {
            mRemarks.add(*mapped.entry, CRemarks::say("it maps %1, which does not exist"), {mapped.name()});
            return field;
        }
        field.mName = mapped.target->name;
        field.mObjectName = mDictionary.objectOf(*mapped.target).name;
        field.mDataType = mDictionary.typeOfVariable(*mapped.target);
        const int bits = bitSize(field.mDataType);
        field.mKind = kindOf(field.mDataType, field.mBits);
        if (bits != 0 && bits != field.mBits) {
            mRemarks.add(
                *mapped.entry, CRemarks::say("it maps %1 bits of %2, which is %3 with %4 bits"),
                {field.mBits, mapped.name(), CCanOpenNames::dataType(field.mDataType), bits});
        } else {
            layRange(*mapped.target, field);
        }
        return field;
    }

    // The mapped bits rule, not those of the type.
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

    // Limits that the type holds; where there is one, the other end is that of the type.
    static void layRange(const SEntry& entry, CXddPdoField& field)
    {
        const auto usable = [&](const SValueProperty& limit) {
            const bool isUsable = limit.value && !limit.value->usesNodeId() && limit.value->fits(field.mDataType);
            return isUsable ? limit.value : std::nullopt;
        };
        const std::optional<CValue> low = usable(entry.lowLimit);
        const std::optional<CValue> high = usable(entry.highLimit);
        const bool isReversed = low && high && high->isBelow(*low);
        if (field.mDataType == TYPE_BOOLEAN) {
            field.mMinimum = QStringLiteral("0");
            field.mMaximum = QStringLiteral("1");
        } else if (field.mKind == CXddPdoField::KIND_REAL && low && high && !isReversed) {
            field.mMinimum = decimal(low->real());
            field.mMaximum = decimal(high->real());
        } else if (
            (field.mKind == CXddPdoField::KIND_UNSIGNED || field.mKind == CXddPdoField::KIND_SIGNED) && (low || high)
            && !isReversed) {
            field.mMinimum = (low ? low->base() : CValue::lowest(field.mDataType)).text();
            field.mMaximum = (high ? high->base() : CValue::highest(field.mDataType)).text();
        }
    }

    static QString decimal(double number) { return QString::number(number, 'f', QLocale::FloatingPointShortest); }

    const SPdo& mPdo;
    const CDictionary& mDictionary;
    unsigned int mNodeId;
    CXddPdo mLayout;
    CRemarks mRemarks;
};
} // namespace

CXddPdo layoutOf(const SPdo& pdo, const CDictionary& dictionary, unsigned int nodeId)
{
    return CLayout(pdo, dictionary, nodeId).result();
}

QList<CXddPdo> layoutsOf(const CDescription& description, unsigned int nodeId)
{
    CTexts texts(description);
    QList<CXddPdo> layouts;
    for (const SPdo& pdo : description.pdos()) {
        CXddPdo layout = layoutOf(pdo, description.dictionary(), nodeId);
        for (CXddPdoField& field : layout.mFields) { // What does not fit is only named
            const SEntry* const entry = description.dictionary().variable(field.mIndex, field.mSubIndex);
            field.mTexts = entry == nullptr ? CXddEntryTexts() : texts.of(*entry);
        }
        layouts << layout;
    }
    return layouts;
}

SPlace placeOf(const CXddPdo& pdo, const CDictionary& dictionary)
{
    const SEntry* const object =
        dictionary.object(pdo.mHasCommunication ? pdo.communicationIndex() : pdo.mappingIndex());
    return object == nullptr ? SPlace() : object->place();
}
