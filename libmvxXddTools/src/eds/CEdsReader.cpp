#include "eds/CEdsReader.h"

#include "NIso15745Tags.h"
#include "XmlValues.h"
#include "canopen/CValue.h"
#include "canopen/Writings.h"
#include "eds/EdsRules.h"
#include "eds/EdsValues.h"
#include "names/DataTypes.h"
#include "names/Hexadecimal.h"
#include "names/NEdsWords.h"
#include "names/NFormatWords.h"
#include "names/ObjectCodes.h"

#include <CNetworkCanOpenProfile.h>

#include <algorithm>
#include <array>

using namespace NIso15745Tags;
using namespace NFormatWords;
using namespace NEdsWords;

namespace
{
const QLatin1String EDS_KEY("eds-key");
const QLatin1String EDS_SECTION("eds-section");
const QLatin1String BAD_DATE("bad-date");

const QLatin1String XMLNS("xmlns");
const QLatin1String XMLNS_XSI("xmlns:xsi");
const QLatin1String XSI_SCHEMA_LOCATION("xsi:schemaLocation");
const QLatin1String XSI_TYPE("xsi:type");

// Never octal: "08" is 8.
std::optional<unsigned int> versionNumber(const SEdsKey* key)
{
    bool ok = false;
    const QString text = key == nullptr ? QString() : key->value.toString();
    const unsigned int number = text.toUInt(&ok, hasHexadecimalPrefix(text) ? 16 : 10);
    return ok ? std::make_optional(number) : std::nullopt;
}

// With a version that is no number the text as it stands.
QString fileVersion(const SEdsSection& info)
{
    const SEdsKey* const key = info.key(FILE_VERSION);
    const std::optional<unsigned int> version = versionNumber(key);
    const std::optional<unsigned int> revision = versionNumber(info.key(FILE_REVISION));
    if (!version) {
        return key == nullptr ? QStringLiteral("") : key->value.toString();
    }
    return revision ? QStringLiteral("%1.%2").arg(QString::number(*version), QString::number(*revision))
                    : QString::number(*version);
}

bool isSet(const SEdsKey* key)
{
    return key != nullptr && edsNumberOf(key->value).value.value_or(0) != 0;
}

// Sub-index 0 of an object that describes its elements itself.
SEdsEntry numberOfElements(const SEdsObject& object)
{
    SEdsEntry entry;
    entry.line = object.line();
    entry.name = NR_OF_OBJECTS;
    entry.dataType = TYPE_UNSIGNED8;
    entry.access = VAL_OBJ_ACCESS_RO;
    entry.defaultValue = QString::number(object.compact);
    entry.mapping = VAL_OBJ_E_MAP_NO;
    return entry;
}

// An element of such an object.
SEdsEntry elementOf(SEdsEntry compact, unsigned int subIndex)
{
    compact.objectCode = CODE_VAR;
    compact.name += QString::number(subIndex);
    compact.subNumber = QString();
    return compact;
}
} // namespace

bool CEdsReader::read(const QString& text, CXddRemark& failure)
{
    if (!mFile.read(text, mRemarks, failure) || !isDescription(failure)
        || !mObjects.collect(mFile, mRemarks, failure)) {
        return false;
    }
    leaveSections();
    readFileInfo();
    mXdd.begin(TAG_PROFILE_CONTAINER, 1);
    mXdd.declaration(XMLNS, VAL_NAMESPACE);
    mXdd.declaration(XMLNS_XSI, VAL_SCHEMA_INSTANCE);
    mXdd.attribute(XSI_SCHEMA_LOCATION, VAL_NAMESPACE + QLatin1Char(' ') + VAL_SCHEMA);
    writeDeviceProfile();
    writeNetworkProfile();
    mXdd.end();
    findInEds(mFile, mObjects.all(), mRemarks);
    return true;
}

bool CEdsReader::isDcf() const
{
    return commissioning() != nullptr || mEntries.hasActualValue() || mHasValueList;
}

// Other kinds of files have the same form, and some the same ending.
bool CEdsReader::isDescription(CXddRemark& failure) const
{
    const std::vector<SEdsSection>& sections = mFile.sections();
    const bool hasLists = mFile.find(DEVICE_INFO) != nullptr && mFile.find(MANDATORY_OBJECTS) != nullptr;
    if (hasLists || std::any_of(sections.begin(), sections.end(), CEdsObjects::isObject)) {
        return true;
    }
    if (sections.empty()) {
        failure.mSentence = CRemarks::filled(CRemarks::say("This is neither XML nor an EDS: it has no sections."));
        return false;
    }
    const QLatin1String device("Device");
    const QLatin1String topology("Topology");
    if (const SEdsSection* const other = mFile.find(device)) {
        failure.mLine = other->line;
        failure.mSentence = CRemarks::filled(
            CRemarks::say(
                "This is a description of another technology: EtherNet/IP and DeviceNet have a section [%1]."),
            {device});
    } else if (const SEdsSection* const list = mFile.find(topology)) {
        failure.mLine = list->line;
        failure.mSentence = CRemarks::filled(
            CRemarks::say("This is a list of nodes, which has a section [%1], not a device."), {topology});
    } else {
        failure.mLine = sections.front().line;
        failure.mSentence = CRemarks::filled(
            CRemarks::say("This is another kind of INI file: it begins with [%1] and has no objects."),
            {sections.front().name.toString()});
    }
    return false;
}

// What an XDD has no place for, in one line.
void CEdsReader::leaveSections()
{
    static const std::array known = {FILE_INFO,        DEVICE_INFO,          DUMMY_USAGE,   MANDATORY_OBJECTS,
                                     OPTIONAL_OBJECTS, MANUFACTURER_OBJECTS, COMMISSIONING, COMMISSIONING_TWO_M};
    QStringList left;
    int line = 0;
    for (const SEdsSection* const section : mObjects.others()) {
        const bool isKnown =
            std::any_of(known.begin(), known.end(), [section](QLatin1String name) { return section->is(name); });
        const bool isNoComment = section->is(COMMENTS) && section->keys.size() < 2;
        if (!isKnown && !isNoComment) {
            line = line == 0 ? section->line : line;
            left << QLatin1Char('[') + section->name.toString() + QLatin1Char(']');
        }
    }
    if (!left.isEmpty()) {
        mRemarks.lost(
            {line}, EDS_SECTION, CRemarks::say("left out, an XDD has no place for them: %1"),
            {left.join(QLatin1String(", "))});
    }
}

// Keys that say something, but not what an XDD has a place for.
void CEdsReader::leaveKeys(const SEdsSection& section, std::initializer_list<QLatin1String> known)
{
    for (const SEdsKey& key : section.keys) {
        const bool isKnown =
            std::any_of(known.begin(), known.end(), [&key](QLatin1String name) { return key.is(name); });
        const bool isBitRate = key.name.startsWith(BAUD_RATE, Qt::CaseInsensitive);
        if (!isKnown && !isBitRate && !key.value.isEmpty() && edsNumberOf(key.value).value != 0U) {
            mRemarks.lost(
                {key.line}, EDS_KEY, CRemarks::say("%1 is left out, an XDD has no place for it"),
                {key.name.toString()});
        }
    }
}

QString CEdsReader::textOf(const SEdsSection& section, QLatin1String key)
{
    return mEntries.text({section.line}, section.key(key));
}

void CEdsReader::readFileInfo()
{
    const SEdsSection& info = mFile.section(FILE_INFO);
    const auto required = [](const QString& text) {
        return text.isNull() ? QStringLiteral("") : text;
    };
    mFileInfo.emplace_back(ATTR_FILE_NAME, required(textOf(info, FILE_NAME)));
    mFileInfo.emplace_back(ATTR_FILE_CREATOR, required(textOf(info, CREATED_BY)));
    readDate(ATTR_FILE_CREATION_DATE, CREATION_DATE);
    readTime(ATTR_FILE_CREATION_TIME, CREATION_TIME);
    readDate(ATTR_FILE_MODIFICATION_DATE, MODIFICATION_DATE);
    readTime(ATTR_FILE_MODIFICATION_TIME, MODIFICATION_TIME);
    mFileInfo.emplace_back(ATTR_FILE_MODIFIED_BY, textOf(info, MODIFIED_BY));
    mFileInfo.emplace_back(ATTR_FILE_VERSION, fileVersion(info));
    leaveKeys(
        info, {FILE_NAME, FILE_VERSION, FILE_REVISION, EDS_VERSION, DESCRIPTION, CREATION_DATE, CREATION_TIME,
               CREATED_BY, MODIFICATION_DATE, MODIFICATION_TIME, MODIFIED_BY});
}

void CEdsReader::readDate(QLatin1String attribute, QLatin1String key)
{
    if (const SEdsKey* const stated = mFile.section(FILE_INFO).given(key)) {
        const SEdsMeaning<QDate> date = edsDateOf(stated->value);
        mFileInfo.emplace_back(attribute, date.value ? date.value->toString(Qt::ISODate) : QString());
        remarkOn(*stated, date.value.has_value(), date.isPlain, QLatin1String("MM-DD-YYYY"));
    }
}

void CEdsReader::readTime(QLatin1String attribute, QLatin1String key)
{
    if (const SEdsKey* const stated = mFile.section(FILE_INFO).given(key)) {
        const SEdsMeaning<QTime> time = edsTimeOf(stated->value);
        mFileInfo.emplace_back(attribute, time.value ? time.value->toString(Qt::ISODate) : QString());
        remarkOn(*stated, time.value.has_value(), time.isPlain, QLatin1String("hh:mmAM"));
    }
}

void CEdsReader::remarkOn(const SEdsKey& key, bool isReadable, bool isPlain, QLatin1String form)
{
    const SArgument name = SArgument::word(key.name.toString());
    if (!isReadable) {
        mRemarks.left(
            {key.line}, BAD_DATE, CRemarks::say("%1 \"%2\" is not %3 and is left out"),
            {name, key.value.toString(), form});
    } else if (!isPlain) {
        mRemarks.taken({key.line}, BAD_DATE, CRemarks::say("%1 \"%2\" is not %3"), {name, key.value.toString(), form});
    }
}

// The schema wants a function, and a characteristic in it; a file without one has empty ones.
void CEdsReader::writeDeviceProfile()
{
    beginProfile(QLatin1String("CAN device profile"), VAL_CID_DEVICE, VAL_DEVICE_BODY);
    writeIdentity();
    for (const QLatin1String name :
         {TAG_DEVICE_FUNCTION, TAG_CAPABILITIES, TAG_CHARACTERISTICS_LIST, TAG_CHARACTERISTIC}) {
        mXdd.begin(name, 1);
    }
    for (const QLatin1String name : {TAG_CHARACTERISTIC_NAME, TAG_CHARACTERISTIC_CONTENT}) {
        mXdd.begin(name, 1);
        mXdd.element(VAL_GLABTYP_LABEL, 1, QString(), ATTR_LANG, QStringLiteral("en"));
        mXdd.end();
    }
    mXdd.end(6);
}

void CEdsReader::writeNetworkProfile()
{
    const int line = mFile.section(MANDATORY_OBJECTS).line;
    beginProfile(QLatin1String("CAN comm net profile"), VAL_CID_COMM_NET, VAL_NETWORK_BODY);
    mXdd.begin(TAG_APPLICATION_LAYERS, line);
    mXdd.begin(TAG_CAN_OPEN_OBJECT_LIST, line);
    for (auto object = mObjects.all().cbegin(); object != mObjects.all().cend(); ++object) {
        writeObject(object.key(), *object);
    }
    mXdd.end();
    writeDummyUsage();
    mXdd.end();
    writeBitRates();
    writeManagement();
    mXdd.end(2);
}

void CEdsReader::beginProfile(QLatin1String identification, QLatin1String classId, QLatin1String type)
{
    const int line = mFile.section(FILE_INFO).line;
    mXdd.begin(TAG_PROFILE, line);
    mXdd.begin(TAG_PROFILE_HEADER, line);
    mXdd.element(TAG_PROFILE_IDENTIFICATION, line, identification);
    mXdd.element(TAG_PROFILE_REVISION, line, QStringLiteral("1"));
    mXdd.element(TAG_PROFILE_NAME, line, QString());
    mXdd.element(TAG_PROFILE_SOURCE, line, QString());
    mXdd.element(TAG_PROFILE_CLASS_ID, line, classId);
    mXdd.begin(TAG_ISO15745_REFERENCE, line);
    mXdd.element(TAG_ISO15745_PART, line, QStringLiteral("1"));
    mXdd.element(TAG_ISO15745_EDITION, line, QStringLiteral("1"));
    mXdd.element(TAG_ISO15745_TECHNOLOGY, line, VAL_CAN_OPEN);
    mXdd.end(2);
    mXdd.begin(TAG_PROFILE_BODY, line);
    mXdd.attribute(XSI_TYPE, type);
    for (const auto& attribute : mFileInfo) {
        mXdd.attribute(attribute.first, attribute.second);
    }
}

void CEdsReader::writeIdentity()
{
    const SEdsSection& device = mFile.section(DEVICE_INFO);
    const auto write = [&](QLatin1String element, QLatin1String name, QLatin1String readOnly) {
        if (const SEdsKey* const key = device.key(name)) {
            mXdd.element(element, key->line, mEntries.text({key->line}, key), ATTR_READ_ONLY, readOnly);
        }
    };
    mXdd.begin(TAG_DEVICE_IDENTITY, device.line);
    write(TAG_VENDOR_NAME, VENDOR_NAME, VALUE_TRUE);
    write(TAG_VENDOR_ID, VENDOR_NUMBER, VALUE_TRUE);
    write(TAG_PRODUCT_NAME, PRODUCT_NAME, VALUE_FALSE);
    write(TAG_PRODUCT_ID, PRODUCT_NUMBER, VALUE_TRUE);
    if (const SEdsKey* const text = mFile.section(FILE_INFO).given(DESCRIPTION)) {
        mXdd.begin(TAG_PRODUCT_TEXT, text->line);
        mXdd.attribute(ATTR_READ_ONLY, VALUE_TRUE);
        mXdd.element(
            VAL_GLABTYP_DESCRIPTION, text->line, mEntries.text({text->line}, text), ATTR_LANG, QStringLiteral("en"));
        mXdd.end();
    }
    write(TAG_ORDER_NUMBER, ORDER_CODE, VALUE_TRUE);
    mXdd.end();
}

void CEdsReader::writeObject(unsigned int index, const SEdsObject& object)
{
    const SPlace place = {object.line(), 0, true, false, index, std::nullopt};
    const bool hasSubObjects = object.compact > 0 || !object.subObjects.isEmpty();
    SEdsEntry entry;
    if (object.section == nullptr) {
        entry.line = object.line();
        entry.name = QStringLiteral("");
        entry.objectCode = CODE_RECORD;
        mRemarks.taken(
            place, EDS_SECTION, CRemarks::say("sub-objects without a section of their object: it is a RECORD"));
    } else {
        entry = mEntries.read(place, *object.section);
    }
    const SEdsEntry compact = entry;
    if (entry.objectCode == 0) {
        entry.objectCode = hasSubObjects ? CODE_RECORD : CODE_VAR;
        if (hasSubObjects) {
            mRemarks.taken(place, QLatin1String("eds-number"), CRemarks::say("ObjectType is missing: it is a RECORD"));
        }
    }
    if (hasSubObjects && objectCodeOf(entry.objectCode).isOfSubObject) {
        mRemarks.taken(
            place, EDS_SECTION, CRemarks::say("the sub-objects of a %1 are kept"),
            {objectCodeOf(entry.objectCode).name});
    }
    if (object.compact > 0 && (entry.subNumber.isNull() || entry.subNumber == QLatin1String("0"))) {
        entry.subNumber = QString::number(object.compact + 1);
    }
    if (hasSubObjects && (object.section == nullptr || object.section->key(PDO_MAPPING) == nullptr)) {
        entry.mapping = QLatin1String();
    }
    mXdd.begin(TAG_CAN_OPEN_OBJECT, entry.line);
    mXdd.hexadecimal(ATTR_INDEX, index, 4);
    writeEntry(entry);
    unsigned int next = 0; // The lowest sub-index that is not written yet
    while (object.compact > 0 && next <= object.compact) {
        writeSubObject(place, next++, object, compact);
    }
    for (auto sub = object.subObjects.lowerBound(next); sub != object.subObjects.cend(); ++sub) {
        writeSubObject(place, sub.key(), object, compact);
    }
    mXdd.end();
}

// A section of its own wins over what a compact object says of its elements.
void CEdsReader::writeSubObject(SPlace place, unsigned int subIndex, const SEdsObject& object, const SEdsEntry& compact)
{
    const SEdsSection* const section = object.subObjects.value(subIndex);
    place.line = section != nullptr ? section->line : object.line();
    place.isSubObject = true;
    place.subIndex = subIndex;
    SEdsEntry entry = section != nullptr ? mEntries.read(place, *section)
                      : subIndex == 0    ? numberOfElements(object)
                                         : elementOf(compact, subIndex);
    entry.objectCode = entry.objectCode == 0 ? CODE_VAR : entry.objectCode;
    fromLists(entry, place, object);
    mXdd.begin(TAG_CAN_OPEN_SUB_OBJECT, entry.line);
    mXdd.hexadecimal(ATTR_SUB_INDEX, subIndex, 2);
    writeEntry(entry);
    mXdd.end();
}

// Names, values and denotations that stand in a list, unless the sub-object has its own.
void CEdsReader::fromLists(SEdsEntry& entry, const SPlace& place, const SEdsObject& object)
{
    const SEdsSection* const section = object.subObjects.value(*place.subIndex);
    const auto listed = [&](const EdsList& list, QLatin1String ownKey) {
        const bool isOwn = section != nullptr && section->given(ownKey) != nullptr;
        return isOwn || list.isEmpty() ? nullptr : list.value(*place.subIndex);
    };
    if (const SEdsKey* const name = listed(object.names, PARAMETER_NAME)) {
        entry.name = mEntries.text(place, name);
        entry.lines[KEY_PARAMETER_NAME] = name->line;
    }
    if (const SEdsKey* const value = listed(object.values, PARAMETER_VALUE)) {
        entry.actualValue = mEntries.value(place, value, entry.dataType);
        entry.lines[KEY_PARAMETER_VALUE] = value->line;
        mHasValueList = true;
    }
    if (const SEdsKey* const denotation = listed(object.denotations, DENOTATION)) {
        entry.denotation = mEntries.text(place, denotation);
        entry.lines[KEY_DENOTATION] = denotation->line;
    }
}

void CEdsReader::writeEntry(const SEdsEntry& entry)
{
    mXdd.attribute(ATTR_NAME, entry.name, entry.lines[KEY_PARAMETER_NAME]);
    mXdd.attribute(ATTR_OBJECT_TYPE, QString::number(entry.objectCode), entry.lines[KEY_OBJECT_TYPE]);
    if (entry.dataType != 0) {
        mXdd.attribute(ATTR_DATA_TYPE, dataTypeText(entry.dataType), entry.lines[KEY_DATA_TYPE]);
    }
    mXdd.attribute(ATTR_LOW_LIMIT, entry.lowLimit, entry.lines[KEY_LOW_LIMIT]);
    mXdd.attribute(ATTR_HIGH_LIMIT, entry.highLimit, entry.lines[KEY_HIGH_LIMIT]);
    mXdd.attribute(ATTR_ACCESS_TYPE, entry.access, entry.lines[KEY_ACCESS_TYPE]);
    mXdd.attribute(ATTR_DEFAULT_VALUE, entry.defaultValue, entry.lines[KEY_DEFAULT_VALUE]);
    mXdd.attribute(ATTR_ACTUAL_VALUE, entry.actualValue, entry.lines[KEY_PARAMETER_VALUE]);
    mXdd.attribute(ATTR_DENOTATION, entry.denotation, entry.lines[KEY_DENOTATION]);
    mXdd.attribute(ATTR_PDO_MAPPING, entry.mapping, entry.lines[KEY_PDO_MAPPING]);
    mXdd.attribute(ATTR_OBJ_FLAGS, entry.flags, entry.lines[KEY_OBJ_FLAGS]);
    mXdd.attribute(ATTR_SUB_NUMBER, entry.subNumber, entry.lines[KEY_SUB_NUMBER]);
}

// The format has the seven types that CiA 301 has as dummies.
void CEdsReader::writeDummyUsage()
{
    const SEdsSection* const usage = mFile.find(DUMMY_USAGE);
    if (usage == nullptr) {
        return;
    }
    mXdd.begin(TAG_DUMMY_USAGE, usage->line);
    for (const SEdsKey& key : usage->keys) {
        const bool isDummy = key.name.startsWith(DUMMY, Qt::CaseInsensitive);
        const unsigned int type = isDummy ? key.name.mid(DUMMY.size()).toUInt() : 0;
        if (type >= 1 && type <= MAX_DUMMY) {
            const QString entry = DUMMY + QString::number(type) + QLatin1String(isSet(&key) ? "=1" : "=0");
            mXdd.element(TAG_DUMMY, key.line, QString(), ATTR_ENTRY, entry);
        } else if (isSet(&key)) {
            mRemarks.lost(
                {key.line}, EDS_KEY, CRemarks::say("%1 is left out, an XDD has no place for it"),
                {key.name.toString()});
        }
    }
    mXdd.end();
}

// A file that states no bit rate has no element that could.
void CEdsReader::writeBitRates()
{
    std::vector<const SEdsKey*> supported;
    for (const SEdsKey& key : mFile.section(DEVICE_INFO).keys) {
        if (!key.name.startsWith(BAUD_RATE, Qt::CaseInsensitive) || !isSet(&key)) {
            continue;
        }
        if (bitRateOf(key.name.mid(BAUD_RATE.size()).toString()) > CNetworkCanOpenProfile::BAUD_AUTO) {
            supported.push_back(&key);
        } else {
            mRemarks.left(
                {key.line}, EDS_KEY, CRemarks::say("%1 is left out, it is not a bit rate of CANopen"),
                {key.name.toString()});
        }
    }
    if (supported.empty()) {
        return;
    }
    for (const QLatin1String name : {TAG_TRANSPORT_LAYERS, TAG_PHYSICAL_LAYER, TAG_BAUD_RATE}) {
        mXdd.begin(name, supported.front()->line);
    }
    for (const SEdsKey* const key : supported) {
        const QString rate = key->name.mid(BAUD_RATE.size()).toString();
        mXdd.element(
            TAG_SUPPORTED_BAUD_RATE, key->line, QString(), ATTR_VALUE,
            CNetworkCanOpenProfile::baudrateAsStr(bitRateOf(rate)));
    }
    mXdd.end(3);
}

void CEdsReader::writeManagement()
{
    const SEdsSection& device = mFile.section(DEVICE_INFO);
    mXdd.begin(TAG_NETWORK_MANAGEMENT, device.line);
    mXdd.begin(TAG_GENERAL_FEATURES, device.line);
    writeFlag(ATTR_GROUP_MESSAGING, device.given(GROUP_MESSAGING));
    writeNumber(ATTR_DYNAMIC_CHANNELS, device.given(DYNAMIC_CHANNELS));
    writeFlag(ATTR_LSS_SLAVE, device.given(LSS_SUPPORTED));
    writeNumber(ATTR_NR_OF_RX_PDO, device.given(NR_OF_RX_PDO));
    writeNumber(ATTR_NR_OF_TX_PDO, device.given(NR_OF_TX_PDO));
    writeFlag(ATTR_BOOT_UP_SLAVE, device.given(SIMPLE_BOOT_UP_SLAVE));
    writeNumber(ATTR_GRANULARITY, device.given(GRANULARITY));
    mXdd.end();
    if (const SEdsKey* const master = device.given(SIMPLE_BOOT_UP_MASTER)) {
        mXdd.begin(TAG_MASTER_FEATURES, master->line);
        writeFlag(ATTR_BOOT_UP_MASTER, master);
        mXdd.end();
    }
    writeCommissioning();
    mXdd.end();
    leaveKeys(
        device, {VENDOR_NAME, VENDOR_NUMBER, PRODUCT_NAME, PRODUCT_NUMBER, REVISION_NUMBER, ORDER_CODE,
                 SIMPLE_BOOT_UP_MASTER, SIMPLE_BOOT_UP_SLAVE, GRANULARITY, DYNAMIC_CHANNELS, GROUP_MESSAGING,
                 NR_OF_RX_PDO, NR_OF_TX_PDO, LSS_SUPPORTED});
}

// A flag as XML writes it; a text that is none as it stands.
void CEdsReader::writeFlag(QLatin1String attribute, const SEdsKey* key)
{
    if (key != nullptr) {
        const std::optional<unsigned int> number = edsNumberOf(key->value).value;
        const QString text = number ? QString(*number != 0 ? VALUE_TRUE : VALUE_FALSE) : key->value.toString();
        mXdd.attribute(attribute, text, key->line);
    }
}

// A number in decimal; a text that is none as it stands.
void CEdsReader::writeNumber(QLatin1String attribute, const SEdsKey* key)
{
    if (key != nullptr) {
        const std::optional<unsigned int> number = edsNumberOf(key->value).value;
        mXdd.attribute(attribute, number ? QString::number(*number) : key->value.toString(), key->line);
    }
}

// What an XDD has no place for, but others ask for.
SEdsExtras CEdsReader::extras() const
{
    SEdsExtras extras;
    if (const SEdsKey* const revision = mFile.section(DEVICE_INFO).given(REVISION_NUMBER)) {
        extras.revisionNumber = edsNumberOf(revision->value).value;
    }
    return extras;
}

// The standard writes the section with one m, many others with two.
const SEdsSection* CEdsReader::commissioning() const
{
    const SEdsSection* const standard = mFile.find(COMMISSIONING);
    return standard != nullptr ? standard : mFile.find(COMMISSIONING_TWO_M);
}

void CEdsReader::writeCommissioning()
{
    const SEdsSection* const stated = commissioning();
    if (stated == nullptr) {
        return;
    }
    mXdd.begin(TAG_COMMISSIONING, stated->line);
    writeNumber(ATTR_NODE_ID, stated->given(NODE_ID_KEY));
    mXdd.attribute(ATTR_NODE_NAME, mEntries.text({stated->line}, stated->given(NODE_NAME)));
    writeNumber(ATTR_ACTUAL_BAUD_RATE, stated->given(NODE_BAUD_RATE));
    writeNumber(ATTR_NETWORK_NUMBER, stated->given(NET_NUMBER));
    mXdd.attribute(ATTR_NETWORK_NAME, mEntries.text({stated->line}, stated->given(NETWORK_NAME)));
    writeFlag(ATTR_CANOPEN_MANAGER, stated->given(CANOPEN_MANAGER));
    mXdd.end();
    leaveKeys(*stated, {NODE_ID_KEY, NODE_NAME, NODE_BAUD_RATE, NET_NUMBER, NETWORK_NAME, CANOPEN_MANAGER});
}
