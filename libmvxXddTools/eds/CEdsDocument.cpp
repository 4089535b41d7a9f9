#include "eds/CEdsDocument.h"

#include "CCanOpenNames.h"
#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "XmlValues.h"
#include "canopen/DataTypes.h"
#include "canopen/ObjectCodes.h"
#include "canopen/Pdos.h"
#include "canopen/ProcessNames.h"

#include <CNetworkCanOpenProfile.h>

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <vector>

using namespace NIso15745Tags;
using namespace NProcessNames;

namespace
{
const QLatin1String VERSION_OF_THE_FORM("4.0");
const QLatin1String READ_WRITE_MAPPED_TO_SEND("rwr");
const QLatin1String READ_WRITE_MAPPED_TO_RECEIVE("rww");

QString latin1(const char* text)
{
    return QString::fromLatin1(text);
}

QString upperHexadecimal(unsigned int number, int digits)
{
    return QStringLiteral("%1").arg(number, digits, 16, QLatin1Char('0')).toUpper();
}

QString sectionOf(const SDictionaryEntry& entry)
{
    const QString object = upperHexadecimal(*entry.index, 4);
    return entry.isSubObject ? object + latin1("sub") + upperHexadecimal(*entry.subIndex, 1) : object;
}

// A flag as the file writes it; nothing when the description does not state it.
QString flag(const CXmlElement& element, const char* attribute)
{
    const QString text = element.attribute(QLatin1String(attribute)).trimmed();
    if (const std::optional<bool> set = CXmlValue::toBool(text, VALUE_TRUE, VALUE_FALSE)) {
        return *set ? latin1("1") : latin1("0");
    }
    const std::optional<unsigned int> number = CXmlValue::toNumber(text, 10);
    return number ? QString::number(*number) : QString();
}

CXmlElement firstOrNull(const std::vector<CXmlElement>& elements)
{
    return elements.empty() ? CXmlElement() : elements.front();
}
} // namespace

CEdsDocument::CEdsDocument(const CDescription& description, const CDictionary& dictionary, const CXddStated& stated)
    : mDescription(description)
    , mDictionary(dictionary)
    , mDeviceBody(firstOrNull(description.bodies(EProfile::Device)))
    , mNetworkBody(firstOrNull(description.bodies(EProfile::Network)))
{
    chooseObjects();
    fileInfo(stated);
    deviceInfo(stated);
    dummyUsage();
    mSections.begin(latin1("Comments"));
    mSections.key(latin1("Lines"), latin1("0"));
    objectLists();
    for (const SObject& chosen : qAsConst(mObjects)) {
        object(chosen);
    }
}

QByteArray CEdsDocument::bytes() const
{
    return mSections.bytes();
}

const CEdsReport& CEdsDocument::report() const
{
    return mReport;
}

void CEdsDocument::chooseObjects()
{
    for (const std::size_t number : mDictionary.objects()) {
        const SDictionaryEntry& entry = mDictionary.entries()[number];
        if (!isSayable(entry)) {
            continue;
        }
        SObject chosen;
        chosen.entry = &entry;
        if (entry.isArrayOrRecord()) {
            chooseSubObjects(chosen);
            if (chosen.subObjects.isEmpty()) {
                mReport.add(entry, "left-out", CEdsReport::tr("left out: it has no sub-objects"));
                continue;
            }
        } else if (entry.subObjects > 0) {
            mReport.add(entry, "left-out", CEdsReport::tr("the sub-objects of a variable are left out"));
        }
        mObjects.insert(*entry.index, chosen);
    }
}

void CEdsDocument::chooseSubObjects(SObject& object)
{
    for (const SDictionaryEntry* const entry : mDictionary.subObjects(*object.entry)) {
        if (!entry->subIndex || *entry->subIndex >= STRUCTURE_SUB_INDEX) {
            mReport.add(*entry, "left-out", CEdsReport::tr("left out: the form has no such sub-index"));
        } else if (object.subObjects.contains(*entry->subIndex)) {
            mReport.add(*entry, "left-out", CEdsReport::tr("left out: it stands there already"));
        } else {
            object.subObjects.insert(*entry->subIndex, entry);
        }
    }
}

bool CEdsDocument::isSayable(const SDictionaryEntry& object)
{
    const bool isKnown = object.objectType == CODE_DOMAIN || object.objectType == CODE_VAR || object.isArrayOrRecord();
    if (!object.index || *object.index < 0x1000 || *object.index > 0xFFFF) {
        mReport.add(object, "left-out", CEdsReport::tr("left out: the form has no such index"));
    } else if (!isKnown) {
        mReport.add(
            object, "left-out",
            CEdsReport::tr("left out: the form has no object code %1").arg(object.element.attribute(ATTR_OBJECT_TYPE)));
    } else if (mObjects.contains(*object.index)) {
        mReport.add(object, "left-out", CEdsReport::tr("left out: it stands there already"));
    } else {
        return true;
    }
    return false;
}

void CEdsDocument::fileInfo(const CXddStated& stated)
{
    static const QRegularExpression version(QStringLiteral("^\\s*0*(\\d{1,3})(?:\\.0*(\\d{1,3}))?(?:\\D.*)?$"));
    const CXmlElement body = mDeviceBody.isNull() ? mNetworkBody : mDeviceBody;
    const bool isDated = mDeviceBody.isNull() ? stated.mNetworkCreationDate : stated.mDeviceCreationDate;
    const QRegularExpressionMatch parts = version.match(body.attribute(ATTR_FILE_VERSION));
    const bool isVersion = parts.hasMatch() && parts.captured(1).toInt() <= 255 && parts.captured(2).toInt() <= 255;
    const QString baseName = QFileInfo(body.attribute(ATTR_FILE_NAME)).completeBaseName();
    const auto date = [&](QLatin1String name) {
        return edsDate(CXmlValue::toDate(body.attribute(name)).value_or(QDate()));
    };
    const auto time = [&](QLatin1String name) {
        return edsTime(CXmlValue::toTime(body.attribute(name)).value_or(QTime()));
    };
    const CXmlElement product = mDeviceBody.child(TAG_DEVICE_IDENTITY).child(TAG_PRODUCT_TEXT);
    const CXmlElement label = product.firstChild();

    mSections.begin(latin1("FileInfo"));
    plainText(latin1("FileName"), body, baseName.isEmpty() ? QString() : baseName + latin1(".eds"));
    mSections.key(latin1("FileVersion"), isVersion ? QString::number(parts.captured(1).toInt()) : latin1("1"));
    mSections.key(latin1("FileRevision"), isVersion ? QString::number(parts.captured(2).toInt()) : latin1("0"));
    mSections.key(latin1("EDSVersion"), VERSION_OF_THE_FORM);
    plainText(latin1("Description"), label, label.text());
    mSections.key(latin1("CreationTime"), time(ATTR_FILE_CREATION_TIME));
    mSections.key(latin1("CreationDate"), isDated ? date(ATTR_FILE_CREATION_DATE) : QString());
    plainText(latin1("CreatedBy"), body, body.attribute(ATTR_FILE_CREATOR));
    mSections.key(latin1("ModificationTime"), time(ATTR_FILE_MODIFICATION_TIME));
    mSections.key(latin1("ModificationDate"), date(ATTR_FILE_MODIFICATION_DATE));
    plainText(latin1("ModifiedBy"), body, body.attribute(ATTR_FILE_MODIFIED_BY));
}

void CEdsDocument::deviceInfo(const CXddStated& stated)
{
    const CXmlElement identity = mDeviceBody.child(TAG_DEVICE_IDENTITY);
    const SDictionaryEntry* const revision = mDictionary.subObject(0x1018, 3);
    const std::optional<CInteger> number = revision == nullptr ? std::nullopt : revision->plainDefault();
    const auto text = [&](const char* key, QLatin1String name) {
        plainText(latin1(key), identity.child(name), identity.child(name).text());
    };

    mSections.begin(latin1("DeviceInfo"));
    text("VendorName", TAG_VENDOR_NAME);
    mSections.key(latin1("VendorNumber"), identityNumber(TAG_VENDOR_ID, 1));
    text("ProductName", TAG_PRODUCT_NAME);
    mSections.key(latin1("ProductNumber"), identityNumber(TAG_PRODUCT_ID, 2));
    mSections.key(latin1("RevisionNumber"), number ? edsNumber(number->magnitude()) : QString());
    text("OrderCode", TAG_ORDER_NUMBER);
    if (stated.mSupportedBaudRates) {
        bitRates();
    }
    features();
}

// By its prefix: that of the device, else of the network profile, else of the identity object, else 0.
QString CEdsDocument::identityNumber(QLatin1String name, unsigned int subIndex) const
{
    const CXmlElement network = mNetworkBody.child(TAG_APPLICATION_LAYERS).child(TAG_IDENTITY);
    for (const CXmlElement& identity : {mDeviceBody.child(TAG_DEVICE_IDENTITY), network}) {
        const std::optional<CInteger> number = readInteger(identity.child(name).text());
        if (number && !number->isNegative() && number->magnitude() <= 0xFFFFFFFF) {
            return edsNumber(number->magnitude());
        }
    }
    const SDictionaryEntry* const entry = mDictionary.subObject(0x1018, subIndex);
    const std::optional<CInteger> number = entry == nullptr ? std::nullopt : entry->plainDefault();
    return edsNumber(number ? number->magnitude() : 0);
}

// 100 kbit/s and automatic detection have no key.
void CEdsDocument::bitRates()
{
    QStringList supported;
    for (const CXmlElement& baudRate : mDescription.bitRates()) {
        for (const CXmlElement& rate : baudRate.children(TAG_SUPPORTED_BAUD_RATE)) {
            supported << rate.attribute(ATTR_VALUE);
            if (supported.last() == VAL_BAUD_100_KBPS || supported.last() == VAL_BAUD_AUTO) {
                mReport.add(rate, "bit-rate", CEdsReport::tr("the bit rate %1 has no key").arg(supported.last()));
            }
        }
    }
    for (const int rate : {10, 20, 50, 125, 250, 500, 800, 1000}) {
        const bool isSupported = supported.contains(
            CNetworkCanOpenProfile::baudrateAsStr(static_cast<CNetworkCanOpenProfile::EBaudrate>(rate)));
        mSections.key(latin1("BaudRate_") + QString::number(rate), isSupported ? latin1("1") : latin1("0"));
    }
}

void CEdsDocument::features()
{
    const CXmlElement management = mNetworkBody.child(TAG_NETWORK_MANAGEMENT);
    const CXmlElement general = management.child(TAG_GENERAL_FEATURES);
    const CXmlElement master = management.child(TAG_MASTER_FEATURES);
    int received = 0;
    int sent = 0;
    for (auto object = mObjects.cbegin(); object != mObjects.cend(); ++object) {
        const auto direction = communicationDirection(object.key());
        received += direction == EPdoDirection::Receive ? 1 : 0;
        sent += direction == EPdoDirection::Transmit ? 1 : 0;
    }
    mSections.key(latin1("SimpleBootUpMaster"), flag(master, "bootUpMaster"));
    mSections.key(latin1("SimpleBootUpSlave"), flag(general, "bootUpSlave"));
    mSections.key(latin1("Granularity"), flag(general, "granularity"));
    mSections.key(latin1("DynamicChannelsSupported"), flag(general, "dynamicChannels"));
    mSections.key(latin1("GroupMessaging"), flag(general, "groupMessaging"));
    mSections.key(latin1("NrOfRXPDO"), QString::number(received));
    mSections.key(latin1("NrOfTXPDO"), QString::number(sent));
    mSections.key(latin1("LSS_Supported"), flag(general, "layerSettingServiceSlave"));
}

// All seven keys or none: a reader refuses a part of them.
void CEdsDocument::dummyUsage()
{
    const CXmlElement usage = mNetworkBody.child(TAG_APPLICATION_LAYERS).child(TAG_DUMMY_USAGE);
    QStringList used;
    for (const CXmlElement& dummy : usage.children(TAG_DUMMY)) {
        used << dummy.attribute(ATTR_ENTRY).trimmed();
    }
    if (used.isEmpty()) {
        return;
    }
    mSections.begin(latin1("DummyUsage"));
    for (int type = 1; type <= 7; ++type) {
        const QString name = QStringLiteral("Dummy000%1").arg(type);
        mSections.key(name, used.contains(name + latin1("=1")) ? latin1("1") : latin1("0"));
    }
}

void CEdsDocument::objectLists()
{
    using Kind = CCanOpenNames::EObjectKind;
    const std::vector<std::pair<const char*, Kind>> lists = {
        {"MandatoryObjects", Kind::Mandatory},
        {"OptionalObjects", Kind::Optional},
        {"ManufacturerObjects", Kind::Manufacturer}};
    for (const auto& list : lists) {
        QStringList indexes;
        for (auto object = mObjects.cbegin(); object != mObjects.cend(); ++object) {
            if (CCanOpenNames::objectKind(object.key()) == list.second) {
                indexes << CCanOpenNames::index(object.key());
            }
        }
        mSections.begin(latin1(list.first));
        mSections.key(latin1("SupportedObjects"), QString::number(indexes.size()));
        for (int i = 0; i < indexes.size(); ++i) {
            mSections.key(QString::number(i + 1), indexes.at(i));
        }
    }
}

void CEdsDocument::object(const SObject& object)
{
    mSections.begin(sectionOf(*object.entry));
    if (!object.entry->isArrayOrRecord()) {
        variable(*object.entry, 0);
        return;
    }
    composed(object);
    const unsigned int arrayType = object.entry->objectType == CODE_ARRAY ? object.entry->dataType : 0;
    for (const SDictionaryEntry* const entry : object.subObjects) {
        mSections.begin(sectionOf(*entry));
        variable(*entry, arrayType);
    }
}

// An array or record by itself, of which the form has no type, access, mapping and values.
void CEdsDocument::composed(const SObject& object)
{
    const SDictionaryEntry& entry = *object.entry;
    parameterName(entry);
    mSections.key(latin1("ObjectType"), latin1("0x") + QString::number(entry.objectType, 16).toUpper());
    mSections.key(latin1("SubNumber"), QString::number(object.subObjects.size()));
    objFlags(entry);
    const bool hasMore = entry.dataType != 0 || !entry.element.attribute(ATTR_ACCESS_TYPE).isEmpty()
                         || entry.isMappable() || entry.defaultValue.isGiven() || entry.lowLimit.isGiven()
                         || entry.highLimit.isGiven();
    if (hasMore) {
        mReport.add(
            entry, "composed",
            CEdsReport::tr("type, access, mapping and values of an array or record itself are left out"));
    }
}

void CEdsDocument::variable(const SDictionaryEntry& entry, unsigned int arrayType)
{
    const bool isBlock = entry.objectType == CODE_DOMAIN;
    const unsigned int stated = entry.dataType != 0 ? entry.dataType : arrayType;
    const unsigned int type = stated != 0 ? stated : TYPE_DOMAIN;
    parameterName(entry);
    mSections.key(latin1("ObjectType"), isBlock ? latin1("0x2") : latin1("0x7"));
    dataType(entry, type);
    access(entry);
    if (!isBlock) {
        mSections.key(latin1("PDOMapping"), entry.isMappable() ? latin1("1") : latin1("0"));
    } else if (entry.isMappable() || entry.lowLimit.isGiven() || entry.highLimit.isGiven()) {
        mReport.add(entry, "domain", CEdsReport::tr("mapping and limits of a DOMAIN are left out"));
    }
    value(entry, latin1("DefaultValue"), entry.defaultValue, type);
    if (!isBlock) {
        limits(entry, type);
    }
    objFlags(entry);
    if (entry.actualValue.isGiven() || !entry.element.attribute(ATTR_DENOTATION).isEmpty()) {
        mReport.add(
            entry, "configured", CEdsReport::tr("actual value and denotation are left out, which belong into a DCF"));
    }
}

void CEdsDocument::parameterName(const SDictionaryEntry& entry)
{
    // A reader refuses an entry without the key, but takes an empty name.
    reportText(mSections.text(latin1("ParameterName"), entry.element.attribute(ATTR_NAME)), entry.element, &entry);
}

void CEdsDocument::dataType(const SDictionaryEntry& entry, unsigned int type)
{
    mSections.key(latin1("DataType"), CCanOpenNames::index(type));
    const bool isBlock = entry.objectType == CODE_DOMAIN;
    if (entry.dataType == 0 && !isBlock) {
        mReport.add(
            entry, "data-type",
            CEdsReport::tr("it has no data type and is written as %1").arg(CCanOpenNames::dataType(type)));
    }
}

void CEdsDocument::access(const SDictionaryEntry& entry)
{
    const std::optional<EPdoDirection> direction = onlyDirection(entry);
    QString access = entry.access.text;
    if (!entry.isReadable() && !entry.isWritable()) {
        access = direction == EPdoDirection::Receive ? VAL_OBJ_ACCESS_WO : VAL_OBJ_ACCESS_RO;
        mReport.add(entry, "access", CEdsReport::tr("it has no access and is written as %1").arg(access));
    } else if (direction && forbidsDirection(entry, *direction)) {
        mReport.add(
            entry, "direction",
            CEdsReport::tr("the form cannot say %1 together with PDOmapping %2").arg(access, entry.mapping));
    } else if (direction && access == VAL_OBJ_ACCESS_RW) {
        access = direction == EPdoDirection::Receive ? READ_WRITE_MAPPED_TO_RECEIVE : READ_WRITE_MAPPED_TO_SEND;
    }
    mSections.key(latin1("AccessType"), access);
}

void CEdsDocument::value(const SDictionaryEntry& entry, const QString& key, const SStated& stated, unsigned int type)
{
    if (!stated.isGiven()) {
        return;
    }
    const SEdsValue value = edsValue(stated.text, type);
    if (value.text.isEmpty()) {
        mReport.add(
            entry, "value",
            CEdsReport::tr("%1 \"%2\" is no %3 and is left out")
                .arg(key, stated.text.left(100), CCanOpenNames::dataType(type)));
    } else if (value.isText) {
        reportText(mSections.text(key, value.text), entry.element, &entry);
    } else {
        mSections.key(key, value.text);
    }
    if (value.lostSuffix) {
        mReport.add(
            entry, "suffix", CEdsReport::tr("%1 \"%2\" is written without its suffix").arg(key, stated.text.left(100)));
    }
}

// A reader refuses a whole file for one lower limit above the higher one.
void CEdsDocument::limits(const SDictionaryEntry& entry, unsigned int type)
{
    const auto read = [type](const SStated& stated) {
        return stated.isGiven() ? CValue::read(stated.text, type) : std::nullopt;
    };
    const std::optional<CValue> low = read(entry.lowLimit);
    const std::optional<CValue> high = read(entry.highLimit);
    if (low && high && high->isBelow(*low)) {
        mReport.add(entry, "limits", CEdsReport::tr("limits are left out, the low one is above the high one"));
        return;
    }
    value(entry, latin1("LowLimit"), entry.lowLimit, type);
    value(entry, latin1("HighLimit"), entry.highLimit, type);
}

void CEdsDocument::objFlags(const SDictionaryEntry& entry)
{
    const unsigned int flags = CXmlValue::toNumber(entry.element.attribute(ATTR_OBJ_FLAGS), 16).value_or(0);
    mSections.key(latin1("ObjFlags"), flags == 0 ? QString() : latin1("0x") + QString::number(flags, 16).toUpper());
}

void CEdsDocument::plainText(const QString& key, const CXmlElement& element, const QString& text)
{
    if (!text.isEmpty()) {
        reportText(mSections.text(key, text), element, nullptr);
    }
}

void CEdsDocument::reportText(const SEdsText& text, const CXmlElement& element, const SDictionaryEntry* entry)
{
    const auto report = [&](bool is, const char* kind, const QString& what) {
        if (is && entry != nullptr) {
            mReport.add(*entry, kind, what);
        } else if (is) {
            mReport.add(element, kind, QStringLiteral("<%1>: %2").arg(element.name(), what));
        }
    };
    report(text.isTrimmed, "blanks", CEdsReport::tr("outer blanks or control characters of a text are lost"));
    report(
        text.isReplaced, "characters",
        CEdsReport::tr("\";\", \"#\" or a leading quote of a text is written otherwise"));
    report(text.isCut, "length", CEdsReport::tr("a text is cut off, a line has 255 characters"));
    report(text.isUnicode, "unicode", CEdsReport::tr("a text is not only ASCII and is written as UTF-8"));
}
