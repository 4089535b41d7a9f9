#include "canopen/PdoDoubts.h"

#include "CCanOpenNames.h"

#include "NIso15745Tags.h"
#include "canopen/CobIds.h"
#include "names/DataTypes.h"
#include "names/Hexadecimal.h"

using namespace NIso15745Tags;

namespace
{
// Finds what is wrong with one PDO.
class CDoubts
{
public:
    CDoubts(const SPdo& pdo, const CDictionary& dictionary, unsigned int nodeId, CRemarks& doubts)
        : mPdo(pdo)
        , mDictionary(dictionary)
        , mNodeId(nodeId)
        , mDoubts(doubts)
    {}

    void find()
    {
        findPartner();
        if (mPdo.communication != nullptr) {
            findInCobId();
            findInTransmissionType();
        }
        if (mPdo.mapping != nullptr) {
            findInMapping();
        }
    }

private:
    void add(const SPdoRule& rule, const SPlace& place, const SWords& words, CRemarks::Arguments arguments)
    {
        CXddRemark cause;
        cause.mKind = CXddRemark::KIND_FINDING;
        cause.mSeverity = rule.severity;
        cause.mRule = QString::fromLatin1(rule.id);
        mDoubts.setCause(cause);
        mDoubts.add(place, words, arguments);
    }

    // The sub-object of its communication parameters, or null.
    const SEntry* parameter(unsigned int subIndex) const
    {
        return mDictionary.subObject(*mPdo.communication->index, subIndex);
    }

    void findPartner()
    {
        if (mPdo.mapping == nullptr) {
            add(PDO_WITHOUT_PARTNER, mPdo.place(), CRemarks::say("the PDO has no mapping %1"),
                {CCanOpenNames::entry(*mPdo.communication->index + MAPPING_OFFSET)});
        } else if (mPdo.communication == nullptr) {
            add(PDO_WITHOUT_PARTNER, mPdo.place(), CRemarks::say("the PDO has no communication parameters %1"),
                {CCanOpenNames::entry(*mPdo.mapping->index - MAPPING_OFFSET)});
        }
    }

    void findInCobId()
    {
        const SEntry* const entry = parameter(1);
        const std::optional<CValue> cobId = entry == nullptr ? std::nullopt : entry->current();
        if (!cobId || !cobId->at(mNodeId).unsigned32()) {
            const SPlace place = entry == nullptr ? mPdo.place() : entry->place();
            if (mPdo.number <= PREDEFINED_PDOS) {
                const quint64 first = mPdo.isTransmit() ? FIRST_TRANSMIT_CAN_ID : FIRST_RECEIVE_CAN_ID;
                add(COB_ID_MISSING, place, CRemarks::say("no COB-ID is stated: the predefined one is taken, %1"),
                    {SArgument::word(
                        NODE_ID + QLatin1Char('+') + hexadecimalText(first + (mPdo.number - 1) * PDO_CAN_ID_STEP, 3))});
            } else {
                add(COB_ID_MISSING, place, CRemarks::say("no COB-ID is stated: the PDO is taken as disabled"), {});
            }
            return;
        }
        const SWords fault = cobIdFault(*cobId, ECobIdUse::Pdo);
        if (!fault.isEmpty()) {
            add(COB_ID, entry->placeOf(entry->inForceName()), fault, {quoted(entry->inForce(), *entry)});
        }
        findOtherNode(*entry, *cobId);
    }

    // An actual value that was configured for another node-ID.
    void findOtherNode(const SEntry& entry, const CValue& cobId)
    {
        const std::optional<CValue>& byDefault = entry.defaultValue.value;
        const bool isActual = entry.actualValue.value && !entry.actualValue.value->usesNodeId();
        const bool isByNode = byDefault && byDefault->isInteger() && byDefault->usesNodeId();
        if (mNodeId == 0 || !isActual || !isByNode || !isValidCobId(cobId)) {
            return;
        }
        const quint64 base = canIdOf(byDefault->bits());
        const quint64 canId = canIdOf(cobId.bits());
        if (canId > base && canId <= base + MAX_NODE_ID && canId != base + mNodeId) {
            add(COB_ID, entry.placeOf(ATTR_ACTUAL_VALUE), CRemarks::say("the actual COB-ID %1 is that of node-ID %2"),
                {hexadecimalText(cobId.bits(), 3), canId - base});
        }
    }

    void findInTransmissionType()
    {
        const SEntry* const entry = parameter(2);
        const std::optional<unsigned int> type = entry == nullptr ? std::nullopt : entry->number(mNodeId);
        const unsigned int last = lastReservedType(mPdo.direction);
        if (type && *type >= FIRST_RESERVED_TYPE && *type <= last) {
            add(TRANSMISSION_TYPE, entry->placeOf(entry->inForceName()),
                CRemarks::say("transmission type %1 is reserved (241 to %2)"), {*type, last});
        }
    }

    void findInMapping()
    {
        findGap();
        findInCount();
        unsigned int bits = 0;
        for (const SPdoField& field : mPdo.fields) {
            bits += field.isActive ? field.bits : 0;
            findInField(field);
        }
        if (bits > MAX_PDO_BITS) {
            add(PDO_TOO_LONG, *mPdo.mapping, CRemarks::say("the active entries have %1 bits in total, more than %2"),
                {bits, MAX_PDO_BITS});
        }
    }

    void findGap()
    {
        unsigned int expected = 1;
        for (const SPdoField& field : mPdo.fields) {
            if (*field.entry->subIndex > expected) {
                add(MAPPING_GAP, *mPdo.mapping, CRemarks::say("sub-index %1 is missing below %2"),
                    {expected, mPdo.highestSubIndex()});
                return;
            }
            expected = *field.entry->subIndex + 1;
        }
    }

    void findInCount()
    {
        if (!mPdo.active) {
            if (!mPdo.fields.empty()) {
                add(MAPPING_NOT_STATED, mPdo.count == nullptr ? mPdo.mapping->place() : mPdo.count->place(),
                    CRemarks::say(
                        "no number of active entries is stated: those in front of the first empty one are taken"),
                    {});
            }
        } else if (!mPdo.isMultiplexed() && (*mPdo.active > MAX_MAPPED || *mPdo.active > mPdo.highestSubIndex())) {
            add(MAPPING_COUNT, mPdo.count->placeOf(mPdo.count->inForceName()),
                CRemarks::say("%1 entries are active, but %2 is the highest sub-index"),
                {*mPdo.active, mPdo.highestSubIndex()});
        }
    }

    void findInField(const SPdoField& field)
    {
        if (!field.isNumber) {
            if (field.isActive) {
                add(MAPPING_NOT_STATED, *field.entry, CRemarks::say("it is active, but what it maps is not stated"),
                    {});
            }
            return;
        }
        if (field.isActive && field.carriesNothing()) {
            add(MAPPING_COUNT, placeOf(field), CRemarks::say("it maps nothing, but is one of %1 active entries"),
                {mPdo.active.value_or(unsigned(mPdo.fields.size()))});
        } else if (!field.carriesNothing()) {
            findInTarget(field);
        }
    }

    static SPlace placeOf(const SPdoField& field) { return field.entry->placeOf(field.entry->inForceName()); }

    // An entry that is not active is wrong only for who activates it.
    void addOf(const SPdoRule& rule, const SPdoField& field, const SWords& words, CRemarks::Arguments arguments)
    {
        add(field.isActive ? rule : INACTIVE_MAPPING, placeOf(field), words, arguments);
    }

    void findInTarget(const SPdoField& field)
    {
        if (field.isDummy() && mPdo.isTransmit()) {
            addOf(
                MAPPED_OBJECT_MISSING, field, CRemarks::say("a TPDO maps a dummy (%1), which only an RPDO can"),
                {field.name()});
        } else if (!field.isDummy() && field.target == nullptr) {
            addOf(MAPPED_OBJECT_MISSING, field, CRemarks::say("it maps %1, which does not exist"), {field.name()});
        }
        const unsigned int type = field.isDummy()           ? field.index
                                  : field.target == nullptr ? 0
                                                            : field.target->dataType.value;
        const int bits = bitSize(type);
        if (bits != 0 && unsigned(bits) != field.bits) {
            addOf(
                MAPPED_LENGTH, field, CRemarks::say("it maps %1 bits of %2, which is %3 with %4 bits"),
                {field.bits, field.name(), CCanOpenNames::dataType(type), bits});
        }
        if (field.target == nullptr) {
            return;
        }
        const SArgument line = SArgument::line(field.target->element.line());
        if (field.target->mapping == EMapping::No) {
            addOf(
                MAPPED_OBJECT_NOT_MAPPABLE, field, CRemarks::say("it maps %1 (line %2), which must not be mapped"),
                {field.name(), line});
        }
        const CXddSentence reason = obstacle(*field.target);
        if (!reason.isEmpty()) {
            addOf(
                PDO_DIRECTION, field,
                mPdo.isTransmit() ? CRemarks::say("a TPDO maps %1 (line %2), which has %3")
                                  : CRemarks::say("an RPDO maps %1 (line %2), which has %3"),
                {field.name(), line, reason});
        }
    }

    // Why an entry cannot be in a PDO of this direction; nothing when it can.
    CXddSentence obstacle(const SEntry& target) const
    {
        if (forbidsDirection(target.access.value, mPdo.direction)) {
            return accessSaid(target);
        }
        const bool isOther = onlyDirection(target.mapping).value_or(mPdo.direction) != mPdo.direction;
        return isOther ? CRemarks::filled(CRemarks::say("PDOmapping \"%1\""), {mappingText(target.mapping)})
                       : CXddSentence();
    }

    const SPdo& mPdo;
    const CDictionary& mDictionary;
    unsigned int mNodeId;
    CRemarks& mDoubts;
};
} // namespace

void addDoubts(const SPdo& pdo, const CDictionary& dictionary, unsigned int nodeId, CRemarks& doubts)
{
    CDoubts(pdo, dictionary, nodeId, doubts).find();
}

CXddSentence accessSaid(const SEntry& entry)
{
    const SProperty<EAccess>& access = entry.access;
    return access.isGiven()
               ? CRemarks::filled(CRemarks::say("access %1"), {quoted(access.text, access.source, entry.element)})
               : CRemarks::filled(
                   CRemarks::say("access \"read\", which is the default of its parameter (line %1)"),
                   {SArgument::line(access.source.line())});
}

SArgument quoted(const QString& text, const CXmlElement& source, const CXmlElement& element)
{
    return source.isNull() || source == element
               ? CRemarks::filled({"\"%1\""}, {text})
               : CRemarks::filled(CRemarks::say("\"%1\" (line %2)"), {text, SArgument::line(source.line())});
}

SArgument quoted(const SValueProperty& property, const SEntry& entry)
{
    return quoted(property.text, property.source, entry.element);
}
