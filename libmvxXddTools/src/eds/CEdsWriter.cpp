#include "eds/CEdsWriter.h"

#include "CCanOpenNames.h"
#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "names/DataTypes.h"
#include "names/Hexadecimal.h"
#include "names/NEdsWords.h"
#include "names/NFormatWords.h"
#include "names/ObjectCodes.h"
#include "names/Objects.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <climits>
#include <vector>

using namespace NIso15745Tags;
using namespace NFormatWords;
using namespace NEdsWords;

namespace
{
QString sectionOf(const SEntry& entry)
{
    const QString object = hexadecimalDigits(*entry.index, 4);
    return entry.isSubObject ? object + SUB + hexadecimalDigits(*entry.subIndex, 1) : object;
}

QLatin1String flagText(bool isSet)
{
    return isSet ? QLatin1String("1") : QLatin1String("0");
}

// A feature as the file writes it; nothing when the description does not state it.
QString featureText(const CXmlElement& element, QLatin1String attribute)
{
    const QString text = element.attribute(attribute);
    if (const std::optional<bool> isSet = flagOf(text)) {
        return flagText(*isSet);
    }
    const std::optional<unsigned int> number = CXmlValue::toNumber(text, 10);
    return number ? QString::number(*number) : QString();
}

// The two numbers of a file version such as "2.7" or "0x03": 1 and 0 for a text that does not begin with such numbers.
std::pair<int, int> versionOf(const QString& text)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*(0x[0-9a-f]+|\\d+)(?:\\.(0x[0-9a-f]+|\\d+))?(?:\\D.*)?$"),
        QRegularExpression::CaseInsensitiveOption);
    const auto numberOf = [](const QString& digits) {
        bool ok = false;
        const int number = digits.toInt(&ok, hasHexadecimalPrefix(digits) ? 16 : 10);
        return ok ? number : INT_MAX;
    };
    const QRegularExpressionMatch match = form.match(text);
    const int version = numberOf(match.captured(1));
    const int revision = match.captured(2).isEmpty() ? 0 : numberOf(match.captured(2));
    return version <= 255 && revision <= 255 ? std::make_pair(version, revision) : std::make_pair(1, 0);
}

QString fileNameOf(const CXmlElement& body, QLatin1String ending)
{
    const QString baseName = QFileInfo(body.attribute(ATTR_FILE_NAME)).completeBaseName();
    return baseName.isEmpty() ? QString() : baseName + ending;
}

QString dateText(const CXmlElement& body, QLatin1String attribute)
{
    const QString text = body.attribute(attribute);
    const std::optional<QDate> date = CXmlValue::toDate(text);
    return edsDate(date ? *date : dateOf(text).value_or(QDate()));
}

QString timeText(const CXmlElement& body, QLatin1String attribute)
{
    return edsTime(CXmlValue::toTime(body.attribute(attribute)).value_or(QTime()));
}
} // namespace

CEdsWriter::CEdsWriter(const CDescription& description, const CXddCommissioning* commissioning)
    : mDescription(description)
    , mCommissioning(commissioning)
    , mDeviceBody(description.body(EProfile::Device))
    , mNetworkBody(description.body(EProfile::Network))
{
    chooseObjects();
    writeFileInfo();
    writeDeviceInfo();
    writeCommissioning();
    writeDummyUsage();
    mSections.begin(COMMENTS);
    mSections.key(LINES, flagText(false));
    writeObjectLists();
    for (const SObject& object : qAsConst(mObjects)) {
        writeObject(object);
    }
}

void CEdsWriter::chooseObjects()
{
    for (const std::size_t number : mDescription.dictionary().objects()) {
        const SEntry& entry = mDescription.dictionary().entries()[number];
        if (!canSay(entry)) {
            continue;
        }
        SObject chosen;
        chosen.entry = &entry;
        if (entry.isArrayOrRecord()) {
            chooseSubObjects(chosen);
            if (chosen.subObjects.isEmpty()) {
                lose(entry, LEFT_OUT, CRemarks::say("left out: it has no sub-objects"));
                continue;
            }
        } else if (entry.subObjects > 0) {
            lose(entry, LEFT_OUT, CRemarks::say("the sub-objects of a variable are left out"));
        }
        mObjects.insert(*entry.index, chosen);
    }
}

void CEdsWriter::chooseSubObjects(SObject& object)
{
    for (const SEntry* const entry : mDescription.dictionary().subObjects(*object.entry)) {
        if (!entry->subIndex || *entry->subIndex >= STRUCTURE_SUB_INDEX) {
            lose(*entry, LEFT_OUT, CRemarks::say("left out: an EDS cannot have this sub-index"));
        } else if (object.subObjects.contains(*entry->subIndex)) {
            lose(*entry, LEFT_OUT, CRemarks::say("left out: it is there already"));
        } else {
            object.subObjects.insert(*entry->subIndex, entry);
        }
    }
}

bool CEdsWriter::canSay(const SEntry& object)
{
    if (object.index && *object.index > 0 && *object.index <= LAST_DATA_TYPE) {
        lose(object, LEFT_OUT, CRemarks::say("left out: it defines a data type, which an EDS does not list"));
    } else if (!object.index || *object.index < 0x1000 || *object.index > 0xFFFF) {
        lose(object, LEFT_OUT, CRemarks::say("left out: an EDS cannot have this index"));
    } else if (!objectCodeOf(object.objectCode.value_or(0)).isInEds) {
        lose(
            object, LEFT_OUT, CRemarks::say("left out: an EDS cannot have the object code %1"),
            {object.element.attribute(ATTR_OBJECT_TYPE)});
    } else if (mObjects.contains(*object.index)) {
        lose(object, LEFT_OUT, CRemarks::say("left out: it is there already"));
    } else {
        return true;
    }
    return false;
}

void CEdsWriter::writeFileInfo()
{
    const CXmlElement body = mDeviceBody.isNull() ? mNetworkBody : mDeviceBody;
    const std::pair<int, int> version = versionOf(body.attribute(ATTR_FILE_VERSION));
    const CXmlElement label = mDeviceBody.child(TAG_DEVICE_IDENTITY).child(TAG_PRODUCT_TEXT).firstChild();

    mSections.begin(FILE_INFO);
    writeText(FILE_NAME, body, fileNameOf(body, QLatin1String(mCommissioning == nullptr ? ".eds" : ".dcf")));
    mSections.key(FILE_VERSION, QString::number(version.first));
    mSections.key(FILE_REVISION, QString::number(version.second));
    mSections.key(EDS_VERSION, QStringLiteral("4.0"));
    writeText(DESCRIPTION, label, label.text());
    mSections.key(CREATION_TIME, timeText(body, ATTR_FILE_CREATION_TIME));
    mSections.key(CREATION_DATE, dateText(body, ATTR_FILE_CREATION_DATE));
    writeText(CREATED_BY, body, body.attribute(ATTR_FILE_CREATOR));
    mSections.key(MODIFICATION_TIME, timeText(body, ATTR_FILE_MODIFICATION_TIME));
    mSections.key(MODIFICATION_DATE, dateText(body, ATTR_FILE_MODIFICATION_DATE));
    writeText(MODIFIED_BY, body, body.attribute(ATTR_FILE_MODIFIED_BY));
}

void CEdsWriter::writeDeviceInfo()
{
    const CXmlElement identity = mDeviceBody.child(TAG_DEVICE_IDENTITY);
    const auto writeChild = [&](QLatin1String key, QLatin1String name) {
        writeText(key, identity.child(name), identity.child(name).text());
    };
    const std::optional<unsigned int> revision = identityDefault(3);

    mSections.begin(DEVICE_INFO);
    writeChild(VENDOR_NAME, TAG_VENDOR_NAME);
    mSections.key(VENDOR_NUMBER, identityNumber(TAG_VENDOR_ID, 1));
    writeChild(PRODUCT_NAME, TAG_PRODUCT_NAME);
    mSections.key(PRODUCT_NUMBER, identityNumber(TAG_PRODUCT_ID, 2));
    mSections.key(REVISION_NUMBER, revision ? hexadecimalText(*revision, 8) : QString());
    writeChild(ORDER_CODE, TAG_ORDER_NUMBER);
    writeBitRates();
    writeFeatures();
}

// The default value of an entry of the identity object that is written, where that is a number of 32 bits.
std::optional<unsigned int> CEdsWriter::identityDefault(unsigned int subIndex) const
{
    const SEntry* const entry = mObjects.value(0x1018).subObjects.value(subIndex);
    const std::optional<CInteger> number = entry == nullptr ? std::nullopt : entry->plainDefault();
    return number ? number->unsigned32() : std::nullopt;
}

// By its prefix: that of the device, else of the network profile, else of the identity object, else 0.
QString CEdsWriter::identityNumber(QLatin1String name, unsigned int subIndex) const
{
    for (const CXmlElement& identity : mDescription.identities()) {
        const std::optional<CInteger> number = readInteger(identity.child(name).text());
        if (number && number->unsigned32()) {
            return hexadecimalText(*number->unsigned32(), 8);
        }
    }
    return hexadecimalText(identityDefault(subIndex).value_or(0), 8);
}

// 100 kbit/s and automatic detection have no key; without a bit rate that has one no key is written.
void CEdsWriter::writeBitRates()
{
    QSet<int> supported;
    for (const CXmlElement& baudRate : mDescription.bitRates()) {
        for (const CXmlElement& rate : baudRate.children(TAG_SUPPORTED_BAUD_RATE)) {
            const QString text = rate.attribute(ATTR_VALUE);
            const CNetworkCanOpenProfile::EBaudrate known = bitRateOf(text);
            const bool hasKey = std::find(BAUD_RATES.begin(), BAUD_RATES.end(), known) != BAUD_RATES.end();
            if (hasKey) {
                supported << known;
            } else {
                lose(
                    rate, QLatin1String("bit-rate"), CRemarks::say("an EDS has no key for the bit rate \"%1\""),
                    {text});
            }
        }
    }
    if (supported.isEmpty()) {
        return;
    }
    for (const int rate : BAUD_RATES) {
        mSections.key(BAUD_RATE + QString::number(rate), flagText(supported.contains(rate)));
    }
}

void CEdsWriter::writeFeatures()
{
    const CXmlElement management = mNetworkBody.child(TAG_NETWORK_MANAGEMENT);
    const CXmlElement general = management.child(TAG_GENERAL_FEATURES);
    const CXmlElement master = management.child(TAG_MASTER_FEATURES);
    const auto count = [&](EPdoDirection direction) {
        const QList<unsigned int> indexes = mObjects.keys();
        return QString::number(std::count_if(indexes.begin(), indexes.end(), [&](unsigned int index) {
            return communicationDirection(index) == direction;
        }));
    };
    mSections.key(SIMPLE_BOOT_UP_MASTER, featureText(master, ATTR_BOOT_UP_MASTER));
    mSections.key(SIMPLE_BOOT_UP_SLAVE, featureText(general, ATTR_BOOT_UP_SLAVE));
    mSections.key(GRANULARITY, featureText(general, ATTR_GRANULARITY));
    mSections.key(DYNAMIC_CHANNELS, featureText(general, ATTR_DYNAMIC_CHANNELS));
    mSections.key(GROUP_MESSAGING, featureText(general, ATTR_GROUP_MESSAGING));
    mSections.key(NR_OF_RX_PDO, count(EPdoDirection::Receive));
    mSections.key(NR_OF_TX_PDO, count(EPdoDirection::Transmit));
    mSections.key(LSS_SUPPORTED, featureText(general, ATTR_LSS_SLAVE));
}

void CEdsWriter::writeCommissioning()
{
    const auto number = [](unsigned int value) {
        return value == 0 ? QString() : QString::number(value);
    };
    if (mCommissioning == nullptr) {
        for (const CXmlElement& element : mDescription.managementElements(TAG_COMMISSIONING)) {
            if (mDescription.commissioning().mNodeId != 0) {
                lose(
                    element, QLatin1String("configured"),
                    CRemarks::say("the commissioning is left out, it belongs into a DCF"));
            }
        }
        return;
    }
    mSections.begin(COMMISSIONING);
    mSections.key(NODE_ID_KEY, number(mCommissioning->mNodeId));
    writeText(NODE_NAME, mNetworkBody, mCommissioning->mNodeName);
    mSections.key(NODE_BAUD_RATE, number(unsigned(std::max<int>(mCommissioning->mBaudrate, 0))));
    mSections.key(NET_NUMBER, number(mCommissioning->mNetworkNumber));
    writeText(NETWORK_NAME, mNetworkBody, mCommissioning->mNetworkName);
    mSections.key(CANOPEN_MANAGER, flagText(mCommissioning->mIsManager.value_or(false)));
}

// All seven keys or none: a reader refuses a part of them.
void CEdsWriter::writeDummyUsage()
{
    const CXmlElement usage = mNetworkBody.child(TAG_APPLICATION_LAYERS).child(TAG_DUMMY_USAGE);
    QStringList used;
    for (const CXmlElement& dummy : usage.children(TAG_DUMMY)) {
        used << dummy.attribute(ATTR_ENTRY).trimmed();
    }
    if (used.isEmpty()) {
        return;
    }
    mSections.begin(DUMMY_USAGE);
    for (int type = 1; type <= 7; ++type) {
        const QString name = DUMMY + QString::number(type);
        mSections.key(name, flagText(used.contains(name + QLatin1String("=1"))));
    }
}

void CEdsWriter::writeObjectLists()
{
    using Kind = CCanOpenNames::EObjectKind;
    const std::vector<std::pair<QLatin1String, Kind>> lists = {
        {MANDATORY_OBJECTS, Kind::Mandatory},
        {OPTIONAL_OBJECTS, Kind::Optional},
        {MANUFACTURER_OBJECTS, Kind::Manufacturer}};
    for (const auto& list : lists) {
        QStringList indexes;
        for (auto object = mObjects.cbegin(); object != mObjects.cend(); ++object) {
            if (CCanOpenNames::objectKind(object.key()) == list.second) {
                indexes << CCanOpenNames::entry(object.key());
            }
        }
        mSections.begin(list.first);
        mSections.key(SUPPORTED_OBJECTS, QString::number(indexes.size()));
        for (int i = 0; i < indexes.size(); ++i) {
            mSections.key(QString::number(i + 1), indexes.at(i));
        }
    }
}

void CEdsWriter::writeObject(const SObject& object)
{
    mSections.begin(sectionOf(*object.entry));
    if (!object.entry->isArrayOrRecord()) {
        writeVariable(*object.entry);
        return;
    }
    writeComposed(object);
    for (const SEntry* const entry : object.subObjects) {
        mSections.begin(sectionOf(*entry));
        writeVariable(*entry);
    }
}

// An array or record by itself, for which the form has no type, access, mapping and values.
void CEdsWriter::writeComposed(const SObject& object)
{
    const SEntry& entry = *object.entry;
    writeName(entry);
    mSections.key(OBJECT_TYPE, hexadecimalText(*entry.objectCode, 1));
    mSections.key(SUB_NUMBER, QString::number(object.subObjects.size()));
    writeFlags(entry);
    writeConfigured(entry, 0);
    if (entry.defaultValue.isGiven() || entry.lowLimit.isGiven() || entry.highLimit.isGiven()) {
        lose(entry, QLatin1String("composed"), CRemarks::say("the values of an array or record itself are left out"));
    }
}

void CEdsWriter::writeVariable(const SEntry& entry)
{
    const bool isBlock = entry.objectCode == CODE_DOMAIN;
    const unsigned int type = entry.dataType.value != 0 ? entry.dataType.value : TYPE_DOMAIN;
    writeName(entry);
    mSections.key(OBJECT_TYPE, hexadecimalText(isBlock ? CODE_DOMAIN : CODE_VAR, 1));
    writeDataType(entry, type);
    writeAccess(entry);
    if (!isBlock) {
        writeMapping(entry);
    } else if (isMappable(entry.mapping) || entry.lowLimit.isGiven() || entry.highLimit.isGiven()) {
        lose(entry, QLatin1String("domain"), CRemarks::say("mapping and limits of a DOMAIN are left out"));
    }
    writeValue(entry, DEFAULT_VALUE, entry.defaultValue.text, type);
    if (!isBlock) {
        writeLimits(entry, type);
    }
    writeFlags(entry);
    writeConfigured(entry, type);
}

void CEdsWriter::writeConfigured(const SEntry& entry, unsigned int type)
{
    const QString denotation = entry.element.attribute(ATTR_DENOTATION);
    if (mCommissioning != nullptr) {
        writeValue(entry, PARAMETER_VALUE, entry.actualValue.text, type);
        writeText(DENOTATION, entry.element, denotation);
    } else if (entry.actualValue.isGiven() || !denotation.isEmpty()) {
        lose(
            entry, QLatin1String("configured"),
            CRemarks::say("actual value and denotation are left out, they belong into a DCF"));
    }
}

// A reader refuses an entry without the key, but takes an empty name.
void CEdsWriter::writeName(const SEntry& entry)
{
    loseText(entry, mSections.text(PARAMETER_NAME, entry.name));
}

void CEdsWriter::writeDataType(const SEntry& entry, unsigned int type)
{
    mSections.key(DATA_TYPE, hexadecimalText(type, 4));
    const CXddValue::EOrigin origin = entry.dataType.origin;
    const bool isStated = origin == CXddValue::ORIGIN_ENTRY || origin == CXddValue::ORIGIN_PARAMETER;
    if ((!isStated || entry.dataType.value == 0) && entry.objectCode != CODE_DOMAIN) {
        lose(
            entry, QLatin1String("data-type"), CRemarks::say("it has no data type and is written as %1"),
            {CCanOpenNames::dataType(type)});
    }
}

void CEdsWriter::writeAccess(const SEntry& entry)
{
    const std::optional<EPdoDirection> direction = onlyDirection(entry.mapping);
    const EAccess access = entry.access.value;
    QLatin1String text = accessText(access);
    if (!isReadable(access) && !isWritable(access)) {
        text = direction == EPdoDirection::Receive ? VAL_OBJ_ACCESS_WO : VAL_OBJ_ACCESS_RO;
        lose(entry, QLatin1String("access"), CRemarks::say("it has no access and is written as %1"), {text});
    } else if (direction && forbidsDirection(access, *direction)) {
        lose(
            entry, QLatin1String("direction"), CRemarks::say("an EDS cannot say %1 together with PDOmapping %2"),
            {text, mappingText(entry.mapping)});
    } else if (direction && access == EAccess::ReadWrite && entry.objectCode != CODE_DOMAIN) {
        text = direction == EPdoDirection::Receive ? READ_WRITE_RECEIVE : READ_WRITE_TRANSMIT;
    }
    mSections.key(ACCESS_TYPE, text);
}

void CEdsWriter::writeMapping(const SEntry& entry)
{
    mSections.key(PDO_MAPPING, flagText(isMappable(entry.mapping)));
    if (entry.mapping == EMapping::Unknown) {
        lose(
            entry, QLatin1String("mapping"), CRemarks::say("PDOmapping \"%1\" is unknown and is written as 0"),
            {entry.element.attribute(ATTR_PDO_MAPPING)});
    }
}

void CEdsWriter::writeValue(const SEntry& entry, QLatin1String key, const QString& text, unsigned int type)
{
    if (text.isEmpty()) {
        return;
    }
    const SEdsValue value = edsValue(text, type);
    if (value.text.isEmpty()) {
        lose(
            entry, QLatin1String("value"), CRemarks::say("%1 \"%2\" is not a value of %3 and is left out"),
            {key, text, CCanOpenNames::dataType(type)});
    } else if (value.isText) {
        loseText(entry, mSections.text(key, value.text));
    } else {
        mSections.key(key, value.text);
    }
    if (value.lostSuffix) {
        lose(entry, QLatin1String("suffix"), CRemarks::say("%1 \"%2\" is written without its suffix"), {key, text});
    }
}

// A reader refuses a whole file for one low limit above the high one, of a type that it does not know, too. Without a
// type of its own an element has that of its array.
void CEdsWriter::writeLimits(const SEntry& entry, unsigned int type)
{
    const unsigned int compared = valueKind(type) == EValueKind::None ? TYPE_UNSIGNED32 : type;
    const auto read = [compared](const SValueProperty& property) {
        return property.isGiven() ? CValue::read(property.text, compared) : std::nullopt;
    };
    const std::optional<CValue> low = read(entry.lowLimit);
    const std::optional<CValue> high = read(entry.highLimit);
    if (low && high && high->isBelow(*low)) {
        lose(
            entry, QLatin1String("limits"),
            CRemarks::say("limits are left out because the low one is above the high one"));
        return;
    }
    writeValue(entry, LOW_LIMIT, entry.lowLimit.text, type);
    writeValue(entry, HIGH_LIMIT, entry.highLimit.text, type);
}

void CEdsWriter::writeFlags(const SEntry& entry)
{
    const unsigned int flags = CXmlValue::toNumber(entry.element.attribute(ATTR_OBJ_FLAGS), 16).value_or(0);
    mSections.key(OBJ_FLAGS, flags == 0 ? QString() : hexadecimalText(flags, 1));
}

void CEdsWriter::writeText(QLatin1String key, const CXmlElement& element, const QString& text)
{
    if (!text.isEmpty()) {
        loseText(element, mSections.text(key, text));
    }
}

void CEdsWriter::lose(const SPlace& place, QLatin1String kind, const SWords& words, CRemarks::Arguments arguments)
{
    CXddRemark cause;
    cause.mKind = CXddRemark::KIND_LOSS;
    cause.mSeverity = CXddRemark::SEVERITY_NOTE;
    cause.mRule = kind;
    mLosses.setCause(cause);
    mLosses.add(place, words, arguments);
    if (place.isEntry) {
        mIncomplete << place.entry() + QLatin1Char('@') + QString::number(place.line);
    }
}

void CEdsWriter::loseText(const SPlace& place, const SEdsText& text)
{
    if (text.isTrimmed) {
        lose(
            place, QLatin1String("spaces"), CRemarks::say("spaces around a text or control characters in it are lost"));
    }
    if (text.isReplaced) {
        lose(
            place, QLatin1String("characters"), CRemarks::say("\";\", \"#\" or a leading quote of a text is replaced"));
    }
    if (text.isCut) {
        lose(place, QLatin1String("length"), CRemarks::say("a text is cut, a line has 255 characters"));
    }
    if (text.isUnicode) {
        lose(
            place, QLatin1String("unicode"),
            CRemarks::say("a text has characters outside ASCII and is written as UTF-8"));
    }
}
