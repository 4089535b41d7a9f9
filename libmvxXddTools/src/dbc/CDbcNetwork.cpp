#include "dbc/CDbcNetwork.h"

#include "CCanOpenNames.h"
#include "NIso15745Tags.h"
#include "canopen/CobIds.h"
#include "canopen/PdoLayout.h"
#include "names/DataTypes.h"
#include "names/Hexadecimal.h"
#include "names/NFormatWords.h"
#include "names/Objects.h"

#include <QSet>

#include <algorithm>
#include <limits>

using namespace NFormatWords;
using namespace NIso15745Tags;

namespace
{
// As much of a product's name as leaves room for the rest of a message's name.
constexpr int MAX_PRODUCT = 18;

// Most values of all tables together; real devices have a few hundred.
constexpr int MAX_VALUES = 20000;

constexpr unsigned int MICROSECONDS = 1000; // In a millisecond

// A file says the same whoever writes it.
QString englishText(const QList<CXddLabel>& labels)
{
    return dbcText(CRemarks::cut(CXddLabel::chosen(labels, QStringLiteral("en"))));
}

// A time in milliseconds, up to the largest that the form can say.
unsigned int cycle(quint64 milliseconds)
{
    return unsigned(std::min<quint64>(milliseconds, quint64(std::numeric_limits<int>::max())));
}

// At least one millisecond where there is a time at all.
unsigned int milliseconds(quint64 microseconds)
{
    const quint64 rounded = (microseconds + MICROSECONDS / 2) / MICROSECONDS;
    return microseconds == 0 ? 0 : cycle(std::max<quint64>(rounded, 1));
}

// How often a TPDO is sent. What is not sent by time has no cycle, and the timer of an RPDO is a deadline.
unsigned int cycleTimeOf(const CXddPdo& pdo, unsigned int syncCycle)
{
    const bool isByEvent = pdo.mTransmission == CXddPdo::TRANSMISSION_EVENT_MANUFACTURER
                           || pdo.mTransmission == CXddPdo::TRANSMISSION_EVENT_PROFILE;
    return !pdo.mIsTransmit ? 0
           : isByEvent      ? cycle(pdo.mEventTimer)
           : pdo.mTransmission == CXddPdo::TRANSMISSION_CYCLIC
               ? milliseconds(quint64(*pdo.mTransmissionType) * syncCycle)
               : 0;
}

QString commentOf(const CXddPdo& pdo)
{
    const QString type =
        pdo.mTransmissionType ? QStringLiteral("transmission type %1").arg(*pdo.mTransmissionType) : QString();
    const QString inhibit =
        pdo.mInhibitTime == 0 ? QString()
                              : QStringLiteral("inhibit time %1 ms").arg(dbcNumber(double(pdo.mInhibitTime) / 1000.0));
    const QString timer = pdo.mEventTimer == 0 ? QString()
                          : pdo.mIsTransmit    ? QStringLiteral("event timer %1 ms").arg(pdo.mEventTimer)
                                               : QStringLiteral("deadline %1 ms").arg(pdo.mEventTimer);
    const QString sync = pdo.mSyncStart == 0 ? QString() : QStringLiteral("SYNC start %1").arg(pdo.mSyncStart);
    return joinedTexts(
        {CCanOpenNames::index(pdo.communicationIndex()), CCanOpenNames::index(pdo.mappingIndex()),
         pdo.mIsEnabled ? QString() : QStringLiteral("disabled"), type, inhibit, timer, sync},
        QLatin1String(", "));
}

SDbcSignal signalAt(const QString& name, int start, int bits, const QVector<QPair<QString, QString>>& values = {})
{
    SDbcSignal signal;
    signal.name = name;
    signal.start = start;
    signal.bits = bits;
    signal.values = values;
    return signal;
}

// The physical value is (raw + offset) x multiplier, that of a DBC raw x factor + offset.
void scale(SDbcSignal& signal, const CXddPdoField& field)
{
    const double multiplier = scaleOf(field.mTexts.mMultiplier, 1).value_or(1);
    const double offset = scaleOf(field.mTexts.mOffset, 0).value_or(0) * multiplier;
    const bool isScaled = multiplier != 0 && !dbcNumber(multiplier).isEmpty() && !dbcNumber(offset).isEmpty();
    if (isScaled) {
        signal.factor = dbcNumber(multiplier);
        signal.offset = dbcNumber(offset);
    }
    if (field.mMinimum.isEmpty()) {
        return;
    }
    if (!isScaled || (multiplier == 1 && offset == 0)) {
        const auto isPlain = [&field](const QString& limit) {
            return field.mKind != CXddPdoField::KIND_REAL || !dbcNumber(limit.toDouble()).isEmpty();
        };
        if (isPlain(field.mMinimum) && isPlain(field.mMaximum)) {
            signal.minimum = field.mMinimum;
            signal.maximum = field.mMaximum;
        }
        return;
    }
    const double ends[] = {
        field.mMinimum.toDouble() * multiplier + offset, field.mMaximum.toDouble() * multiplier + offset};
    const QString minimum = dbcNumber(std::min(ends[0], ends[1]));
    const QString maximum = dbcNumber(std::max(ends[0], ends[1]));
    if (!minimum.isEmpty() && !maximum.isEmpty()) {
        signal.minimum = minimum;
        signal.maximum = maximum;
    }
}

// What the single allowed values of a whole number mean.
QVector<QPair<QString, QString>> valuesOf(const CXddPdoField& field)
{
    QVector<QPair<QString, QString>> values;
    QSet<QString> known;
    for (const CXddAllowedValue& allowed : field.mTexts.mAllowedValues) {
        const std::optional<CValue> value = CValue::read(allowed.mLow, field.mDataType);
        const QString label = englishText(allowed.mLabels);
        const bool isNumber = value && value->plain() && value->fits(field.mDataType);
        const QString number = isNumber ? value->plain()->text() : QString();
        if (allowed.isSingle() && isNumber && !label.isEmpty() && !known.contains(number)) {
            known.insert(number);
            values << qMakePair(number, label);
        }
    }
    return values;
}

// The signals of a field: none for a dummy, two for a time.
QVector<SDbcSignal> signalsOf(const CXddPdoField& field, const SDbcName& name)
{
    constexpr int millisecondBits = 28;
    constexpr int dayStart = 32;
    constexpr int dayBits = 16;
    if (field.mKind == CXddPdoField::KIND_DUMMY) {
        return {};
    }
    const bool isTime = field.mDataType == TYPE_TIME_OF_DAY || field.mDataType == TYPE_TIME_DIFFERENCE;
    const QString comment = dbcText(QStringLiteral("%1 %2 %3")
                                        .arg(
                                            CCanOpenNames::entry(field.mIndex, field.mSubIndex),
                                            CCanOpenNames::dataType(field.mDataType), CRemarks::cut(field.fullName())));
    if (isTime && field.mBits == dayStart + dayBits) {
        const auto part = [&](const char* end, int start, int bits, const char* unit) {
            const QString ending = QString::fromLatin1(end);
            SDbcSignal signal =
                signalAt(shortened(name.name, MAX_DBC_NAME - int(ending.size())) + ending, field.mOffset + start, bits);
            signal.unit = QString::fromLatin1(unit);
            signal.comment = comment;
            return signal;
        };
        return {part("_ms", 0, millisecondBits, "ms"), part("_days", dayStart, dayBits, "d")};
    }
    SDbcSignal signal = signalAt(name.name, field.mOffset, field.mBits);
    signal.longName = name.longName;
    signal.isSigned = field.mKind == CXddPdoField::KIND_SIGNED;
    signal.isReal = field.mKind == CXddPdoField::KIND_REAL;
    signal.comment = comment;
    if (field.mKind == CXddPdoField::KIND_UNSIGNED || signal.isSigned || signal.isReal) {
        scale(signal, field);
        signal.unit = englishText(field.mTexts.mUnits);
    }
    if (field.mKind == CXddPdoField::KIND_UNSIGNED || signal.isSigned) {
        signal.values = valuesOf(field);
    }
    return {signal};
}

// What a multiplexed PDO carries: the entry, and four bytes of it.
QVector<SDbcSignal> multiplexedSignals()
{
    return {
        signalAt(QStringLiteral("Node"), 0, 7),   signalAt(QStringLiteral("Destination"), 7, 1),
        signalAt(QStringLiteral("Index"), 8, 16), signalAt(QStringLiteral("Subindex"), 24, 8),
        signalAt(QStringLiteral("Data"), 32, 32),
    };
}

quint64 bitsOf(const SDbcSignal& signal)
{
    constexpr int all = 64;
    const quint64 ones = signal.bits == all ? ~quint64(0) : (quint64(1) << unsigned(signal.bits)) - 1;
    return ones << unsigned(signal.start);
}

// The signal of a message with the bits of another one, or null.
SDbcSignal* signalWithBitsOf(const SDbcSignal& signal, SDbcMessage& message)
{
    for (SDbcSignal& other : message.signalList) {
        if (other.start == signal.start && other.bits == signal.bits) {
            return &other;
        }
    }
    return nullptr;
}

bool areReadAlike(const SDbcSignal& left, const SDbcSignal& right)
{
    return left.isSigned == right.isSigned && left.isReal == right.isReal && left.factor == right.factor
           && left.offset == right.offset;
}
} // namespace

CDbcNetwork::SNode::SNode(const CDescription& opened, const QList<CXddPdo>& itsPdos, unsigned int id)
    : description(opened)
    , nodeId(id)
    , names(opened.dictionary())
    , pdos(itsPdos)
{
    CXddRemark cause;
    cause.mKind = CXddRemark::KIND_LEFT;
    cause.mSeverity = CXddRemark::SEVERITY_WARNING;
    cause.mRule = QStringLiteral("dbc");
    remarks.setCause(cause);
}

CDbcNetwork::CDbcNetwork(const SDbcChoice& choice)
    : mChoice(choice)
    , mValuesLeft(MAX_VALUES)
{}

void CDbcNetwork::add(
    const CDescription& description, const QList<CXddPdo>& pdos, unsigned int nodeId, const QString& fileName)
{
    const CXmlElement identity = description.body(EProfile::Device).child(TAG_DEVICE_IDENTITY);
    const QString vendor = identity.child(TAG_VENDOR_NAME).text().simplified();
    const QString product = identity.child(TAG_PRODUCT_NAME).text().simplified();
    SNode node(description, pdos, nodeId);
    const QString name = shortened(dbcName(product), MAX_PRODUCT);
    node.name = (name.isEmpty() ? QStringLiteral("Node") : name) + QLatin1Char('_') + QString::number(nodeId);
    node.comment = dbcText(CRemarks::cut(joinedTexts({vendor, product, fileName}, QLatin1String(", "))));
    mNodes.push_back(std::move(node));
}

QByteArray CDbcNetwork::text()
{
    addPdos(true);
    addPdos(false);
    for (SNode& node : mNodes) {
        remarkPdos(node);
    }
    if (!mChoice.onlyPdos) {
        addServices();
    }
    QVector<SDbcNode> nodes;
    for (const SNode& node : mNodes) {
        nodes << SDbcNode{node.name, node.comment};
    }
    QVector<SDbcMessage> messages;
    for (auto& [key, entered] : mMessages) {
        QVector<SDbcSignal>& all = entered.message.signalList;
        std::sort(all.begin(), all.end(), [](const SDbcSignal& left, const SDbcSignal& right) {
            return left.start < right.start;
        });
        messages << entered.message;
    }
    return dbcFile(nodes, messages);
}

QList<QList<CXddRemark>> CDbcNetwork::remarks() const
{
    QList<QList<CXddRemark>> all;
    for (const SNode& node : mNodes) {
        all << node.remarks.inOrder();
    }
    return all;
}

void CDbcNetwork::addPdos(bool isTransmit)
{
    for (SNode& node : mNodes) {
        for (const CXddPdo& pdo : qAsConst(node.pdos)) {
            const bool isChosen = pdo.mIsEnabled || mChoice.hasDisabled;
            if (pdo.mIsTransmit == isTransmit && isChosen && pdo.bytes() > 0) {
                addPdo(node, pdo);
            }
        }
    }
}

// The first PDO of a CAN-ID defines the message.
void CDbcNetwork::addPdo(SNode& node, const CXddPdo& pdo)
{
    const SPlace place = placeOf(pdo, node.description.dictionary());
    if (pdo.mCanId == 0) {
        node.remarks.add(place, CRemarks::say("%1 has no CAN-ID and is left out"), {pdo.name()});
        return;
    }
    const Key key(pdo.mIsExtended, pdo.mCanId);
    const QString name = node.name + QLatin1Char('_') + pdo.name();
    const auto found = mMessages.find(key);
    if (found != mMessages.end()) {
        if (pdo.mIsTransmit) {
            node.remarks.add(
                place, CRemarks::say("%1 is left out: CAN-ID %2 is that of %3"),
                {pdo.name(), pdo.canIdText(), found->second.by});
            return;
        }
        addReceiver(found->second, node, pdo);
        return;
    }
    SEntered& entered = mMessages[key];
    entered.by = name;
    entered.isTransmit = pdo.mIsTransmit;
    entered.message.canId = pdo.mCanId;
    entered.message.isExtended = pdo.mIsExtended;
    entered.message.name = name;
    entered.message.bytes = pdo.bytes();
    entered.message.sender = pdo.mIsTransmit ? node.name : QString();
    entered.message.comment = commentOf(pdo);
    entered.message.cycleTime = cycleTimeOf(pdo, syncCycleOf(node));
    for (const SDbcSignal& signal : signalsOfPdo(node, pdo)) {
        addSignal(entered, signal);
    }
}

QVector<SDbcSignal> CDbcNetwork::signalsOfPdo(SNode& node, const CXddPdo& pdo)
{
    QVector<SDbcSignal> all = pdo.mIsMultiplexed ? multiplexedSignals() : QVector<SDbcSignal>();
    for (const CXddPdoField& field : pdo.mFields) {
        remarkScale(node, placeOf(pdo, node.description.dictionary()), field);
        const SEntry* const entry = node.description.dictionary().variable(field.mIndex, field.mSubIndex);
        const SDbcName name = entry == nullptr ? CDbcNames::byIndex(field.mIndex, field.mIsSubObject, field.mSubIndex)
                                               : node.names.of(*entry);
        all += signalsOf(field, name);
    }
    for (SDbcSignal& signal : all) {
        signal.receivers = pdo.mIsTransmit ? QStringList() : QStringList{node.name};
    }
    limitValues(node, placeOf(pdo, node.description.dictionary()), all);
    return all;
}

// What is no number is not applied.
void CDbcNetwork::remarkScale(SNode& node, const SPlace& place, const CXddPdoField& field)
{
    const std::pair<QLatin1String, QString> texts[] = {
        {ATTR_MULTIPLIER, field.mTexts.mMultiplier}, {ATTR_OFFSET, field.mTexts.mOffset}};
    for (const auto& [name, text] : texts) {
        if (!scaleOf(text, 0)) {
            node.remarks.add(
                place, CRemarks::say("%1 \"%2\" of %3 is not a number and is not applied"),
                {name, text, field.entry()});
        }
    }
}

// That of the device that produces the SYNC, which others cannot know; its own where none does.
unsigned int CDbcNetwork::syncCycleOf(const SNode& node) const
{
    const auto producer = std::find_if(mNodes.begin(), mNodes.end(), [](const SNode& one) {
        return (one.description.dictionary().number(SYNC_COB_ID, 0, one.nodeId).value_or(0) & COB_ID_PRODUCES) != 0;
    });
    const SNode& source = producer == mNodes.end() ? node : *producer;
    return source.description.dictionary().number(SYNC_CYCLE, 0, source.nodeId).value_or(0);
}

// A small table can be that of many signals.
void CDbcNetwork::limitValues(SNode& node, const SPlace& place, QVector<SDbcSignal>& all)
{
    for (SDbcSignal& signal : all) {
        mValuesLeft -= int(signal.values.size());
        if (mValuesLeft < 0 && !signal.values.isEmpty()) {
            signal.values.clear();
            node.remarks.add(place, CRemarks::say("the values of %1 are left out: there are too many"), {signal.name});
        }
    }
}

void CDbcNetwork::addSignal(SEntered& entered, SDbcSignal signal)
{
    signal.name = entered.names.unique(signal.name);
    entered.usedBits |= bitsOf(signal);
    entered.message.signalList << signal;
}

// An RPDO that reads a message of another PDO: its node receives the signals with the same bits. Where nobody sends the
// message, its other signals also go into free bits, which is what dummies are for.
void CDbcNetwork::addReceiver(SEntered& entered, SNode& node, const CXddPdo& pdo)
{
    const SPlace place = placeOf(pdo, node.description.dictionary());
    for (const SDbcSignal& signal : signalsOfPdo(node, pdo)) {
        SDbcSignal* const same = signalWithBitsOf(signal, entered.message);
        if (same != nullptr) {
            same->receivers << signal.receivers;
            same->receivers.removeDuplicates();
            if (!areReadAlike(*same, signal)) {
                node.remarks.add(
                    place, CRemarks::say("%1 reads %2 of %3 otherwise, as %4"),
                    {pdo.name(), same->name, entered.by, signal.name});
            }
        } else if (!entered.isTransmit && (entered.usedBits & bitsOf(signal)) == 0) {
            addSignal(entered, signal);
        } else {
            node.remarks.add(
                place, CRemarks::say("%1 of %2 is left out: CAN-ID %3 is that of %4, where other values take its bits"),
                {signal.name, pdo.name(), pdo.canIdText(), entered.by});
        }
    }
    if (!entered.isTransmit) {
        entered.message.bytes = std::max(entered.message.bytes, pdo.bytes());
    }
}

// What is doubtful in PDOs that are in use or map something, and which are not in the file.
void CDbcNetwork::remarkPdos(SNode& node) const
{
    int empty = 0;
    for (const CXddPdo& pdo : qAsConst(node.pdos)) {
        for (const CXddRemark& remark : pdo.mDoubts) {
            if (pdo.mIsEnabled || pdo.bytes() > 0) {
                node.remarks.add(remark);
            }
        }
        if (pdo.bytes() == 0) {
            ++empty;
        } else if (!pdo.mIsEnabled && !mChoice.hasDisabled) {
            node.remarks.add(
                placeOf(pdo, node.description.dictionary()), CRemarks::say("%1 is disabled and left out"),
                {pdo.name()});
        }
    }
    if (empty > 0) {
        node.remarks.add(SPlace(), CRemarks::say("PDOs that map nothing: %1"), {empty});
    }
}

// What every device sends and receives besides, as far as no PDO has its CAN-ID. SDOs are left out: their segments
// cannot be read one by one.
void CDbcNetwork::addServices()
{
    addNetworkManagement();
    addSync();
    for (SNode& node : mNodes) {
        addEmergency(node);
        addHeartbeat(node);
    }
}

void CDbcNetwork::addNetworkManagement()
{
    QStringList names;
    for (const SNode& node : mNodes) {
        names << node.name;
    }
    SDbcMessage message;
    message.name = QStringLiteral("NMT");
    message.bytes = 2;
    message.comment = QStringLiteral("Network management");
    message.signalList = {
        signalAt(
            QStringLiteral("Command"), 0, BITS_OF_BYTE,
            {{QStringLiteral("1"), QStringLiteral("Start")},
             {QStringLiteral("2"), QStringLiteral("Stop")},
             {QStringLiteral("128"), QStringLiteral("Enter pre-operational")},
             {QStringLiteral("129"), QStringLiteral("Reset node")},
             {QStringLiteral("130"), QStringLiteral("Reset communication")}}),
        signalAt(QStringLiteral("Node"), BITS_OF_BYTE, BITS_OF_BYTE, {{QStringLiteral("0"), QStringLiteral("All")}}),
    };
    for (SDbcSignal& signal : message.signalList) {
        signal.receivers = names;
    }
    addIfFree(message);
}

// The first device that produces the SYNC sends it; else its CAN-ID is that of the first device that states one.
void CDbcNetwork::addSync()
{
    SDbcMessage message;
    message.name = QStringLiteral("SYNC");
    message.canId = unsigned(SYNC_CAN_ID);
    message.comment = QStringLiteral("Synchronisation");
    SNode* known = nullptr;
    for (SNode& node : mNodes) {
        const std::optional<unsigned int> cobId = node.description.dictionary().number(SYNC_COB_ID, 0, node.nodeId);
        const bool isSender = cobId && (*cobId & COB_ID_PRODUCES) != 0;
        if (!cobId || !message.sender.isEmpty() || (known != nullptr && !isSender)) {
            continue;
        }
        known = &node;
        message.canId = unsigned(canIdOf(*cobId));
        message.isExtended = (*cobId & COB_ID_EXTENDED) != 0;
        if (isSender) {
            message.sender = node.name;
            message.cycleTime =
                milliseconds(node.description.dictionary().number(SYNC_CYCLE, 0, node.nodeId).value_or(0));
        }
    }
    const SEntry* const entry = known == nullptr ? nullptr : known->description.dictionary().object(SYNC_COB_ID);
    addIfFree(message, known, entry == nullptr ? SPlace() : entry->place());
}

void CDbcNetwork::addEmergency(SNode& node)
{
    const SEntry* const entry = node.description.dictionary().object(EMCY_COB_ID);
    if (entry == nullptr) {
        return;
    }
    const unsigned int cobId = entry->number(node.nodeId).value_or(unsigned(EMCY_CAN_ID) + node.nodeId);
    if ((cobId & COB_ID_NOT_VALID) != 0) {
        return;
    }
    SDbcMessage message;
    message.canId = unsigned(canIdOf(cobId));
    message.isExtended = (cobId & COB_ID_EXTENDED) != 0;
    message.name = node.name + QLatin1String("_EMCY");
    message.bytes = 8;
    message.sender = node.name;
    message.comment = QStringLiteral("Emergency");
    message.signalList = {
        signalAt(QStringLiteral("Error_code"), 0, 16),
        signalAt(QStringLiteral("Error_register"), 16, 8),
        signalAt(QStringLiteral("Manufacturer_error"), 24, 40),
    };
    addIfFree(message, &node, *entry);
}

void CDbcNetwork::addHeartbeat(SNode& node)
{
    SDbcMessage message;
    message.canId = unsigned(HEARTBEAT_CAN_ID) + node.nodeId;
    message.name = node.name + QLatin1String("_Heartbeat");
    message.bytes = 1;
    message.sender = node.name;
    message.cycleTime = cycle(node.description.dictionary().number(HEARTBEAT_TIME, 0, node.nodeId).value_or(0));
    message.comment = QStringLiteral("Heartbeat, boot-up and node guarding");
    message.signalList = {
        signalAt(
            QStringLiteral("State"), 0, 7,
            {{QStringLiteral("0"), QStringLiteral("Boot-up")},
             {QStringLiteral("4"), QStringLiteral("Stopped")},
             {QStringLiteral("5"), QStringLiteral("Operational")},
             {QStringLiteral("127"), QStringLiteral("Pre-operational")}}),
        signalAt(QStringLiteral("Toggle"), 7, 1),
    };
    addIfFree(message, &node);
}

// A service that the CAN-ID of another message takes the place of is remarked with the node that has it.
void CDbcNetwork::addIfFree(const SDbcMessage& message, SNode* node, const SPlace& place)
{
    SEntered entered;
    entered.message = message;
    entered.by = message.name;
    const auto [found, isFree] = mMessages.emplace(Key(message.isExtended, message.canId), entered);
    if (!isFree && node != nullptr) {
        node->remarks.add(
            place, CRemarks::say("%1 is left out: CAN-ID %2 is that of %3"),
            {message.name, hexadecimalText(message.canId, message.isExtended ? 8 : 3), found->second.by});
    }
}
