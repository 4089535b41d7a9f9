#include "CNormalizer.h"

#include "NIso15745Tags.h"

#include <ICIso15745.h>

#include <QCoreApplication>
#include <QDate>
#include <QRegularExpression>

#include <algorithm>
#include <climits>

using namespace NIso15745Tags;

namespace
{
// Names of the application process and of XML Schema, which the library does not read.
const QString PARAMETER = QStringLiteral("parameter");
const QString UNIQUE_ID = QStringLiteral("uniqueID");
const QString DATA_TYPE_ID_REF = QStringLiteral("dataTypeIDRef");

const QString DEFAULT_RATE = QStringLiteral("250 Kbps");

// Depth up to which a data type is followed to the type that it is derived from.
constexpr int MAX_TYPE_DEPTH = 16;

// Object code of an object that is a block of data, CiA 301.
constexpr int OBJECT_CODE_DOMAIN = 2;

// A translated text about a name.
QString supplied(const QString& name)
{
    return QCoreApplication::translate("xddnormalize", "%1 supplied").arg(name);
}

QString changed(const QString& name, const QString& before, const QString& after)
{
    return QCoreApplication::translate("xddnormalize", "%1 \"%2\" written as \"%3\"").arg(name, before, after);
}

QString left(const QString& name, const QString& value)
{
    return QCoreApplication::translate("xddnormalize", "%1 \"%2\" left as it is").arg(name, value);
}

SNewElement empty(const QString& name)
{
    return {name, QString(), QString()};
}

SNewElement around(const QString& name, const SNewElement& child)
{
    return {name, QString(), QString(), {child}};
}

// What the embedded samples carry where a device has no function to state.
SNewElement emptyLabel()
{
    return {VAL_GLABTYP_LABEL, QStringLiteral("lang=\"en\""), QString()};
}

SNewElement emptyCharacteristic()
{
    return {
        TAG_CHARACTERISTIC,
        QString(),
        QString(),
        {around(TAG_CHARACTERISTIC_NAME, emptyLabel()), around(TAG_CHARACTERISTIC_CONTENT, emptyLabel())}};
}

SNewElement emptyCharacteristicsList()
{
    return around(TAG_CHARACTERISTICS_LIST, emptyCharacteristic());
}

SNewElement emptyDeviceFunction()
{
    return around(TAG_DEVICE_FUNCTION, around(TAG_CAPABILITIES, emptyCharacteristicsList()));
}

SNewElement supportedRate(const QString& rate)
{
    return {TAG_SUPPORTED_BAUD_RATE, QStringLiteral("value=\"%1\"").arg(rate), QString()};
}

SNewElement defaultBaudRate()
{
    return {
        TAG_BAUD_RATE,
        QStringLiteral("defaultValue=\"%1\"").arg(DEFAULT_RATE),
        QString(),
        {supportedRate(DEFAULT_RATE)}};
}

bool isIsoDate(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^\\s*\\d{4}-\\d{2}-\\d{2}(Z|[+-]\\d{2}:\\d{2})?\\s*$"));
    return form.match(text).hasMatch() && QDate::fromString(text.trimmed().left(10), Qt::ISODate).isValid();
}

// The date of a text in a common writing, in the form yyyy-MM-dd; nothing when it has no or more than one meaning.
QString isoDate(const QString& text)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*(\\d{1,4})([-./])(\\d{1,2})\\2(\\d{1,4})(?:[T Z+-].*)?\\s*$"));
    const QRegularExpressionMatch match = form.match(text);
    const int first = match.captured(1).toInt();
    const int second = match.captured(3).toInt();
    const int third = match.captured(4).toInt();
    QDate date;
    if (match.capturedLength(1) == 4) {
        date = QDate(first, second, third);
    } else if (match.capturedLength(4) == 4) {
        const QDate dayFirst(third, second, first);
        const QDate monthFirst(third, first, second);
        if (!dayFirst.isValid() || !monthFirst.isValid() || dayFirst == monthFirst) {
            date = dayFirst.isValid() ? dayFirst : monthFirst;
        }
    }
    return date.isValid() ? date.toString(Qt::ISODate) : QString();
}

// A bit rate in the format's writing; nothing when the text is none of the format's rates.
QString rateText(const QString& text)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*(\\d+)\\s*(k|m|)\\s*(?:bit/s|bits/s|bps|bit|baud|bd|)\\s*$"),
        QRegularExpression::CaseInsensitiveOption);
    QString automatic = VAL_BAUD_AUTO;
    const QString word = text.trimmed().toLower();
    if (word == automatic.toLower() || word == QLatin1String("auto")) {
        return automatic;
    }
    const QRegularExpressionMatch match = form.match(text);
    int rate = match.captured(1).toInt();
    if (match.captured(2).toLower() == QLatin1String("m")) {
        rate *= 1000;
    } else if (match.captured(2).isEmpty() && rate >= 10000) {
        rate = rate % 1000 == 0 ? rate / 1000 : 0; // bit/s: the highest rate in kbit/s is 1000
    }
    const auto known = static_cast<CNetworkCanOpenProfile::EBaudrate>(rate);
    return rate > 0 ? CNetworkCanOpenProfile::mBaudrateTexts.value(known) : QString();
}

// The data type index of CiA 301 for a simple type of the application process; 0 for any other element.
int simpleType(const QString& name)
{
    static const QHash<QString, int> types = {
        {QStringLiteral("BOOL"), 0x01},   {QStringLiteral("SINT"), 0x02},    {QStringLiteral("INT"), 0x03},
        {QStringLiteral("DINT"), 0x04},   {QStringLiteral("LINT"), 0x15},    {QStringLiteral("USINT"), 0x05},
        {QStringLiteral("UINT"), 0x06},   {QStringLiteral("UDINT"), 0x07},   {QStringLiteral("ULINT"), 0x1B},
        {QStringLiteral("BYTE"), 0x05},   {QStringLiteral("WORD"), 0x06},    {QStringLiteral("DWORD"), 0x07},
        {QStringLiteral("LWORD"), 0x1B},  {QStringLiteral("REAL"), 0x08},    {QStringLiteral("LREAL"), 0x11},
        {QStringLiteral("STRING"), 0x09}, {QStringLiteral("WSTRING"), 0x0B}, {QStringLiteral("BITSTRING"), 0x0A},
    };
    return types.value(name);
}

QString accessText(const QString& access)
{
    static const QHash<QString, QString> texts = {
        {QStringLiteral("read"), VAL_OBJ_ACCESS_RO},
        {QStringLiteral("write"), VAL_OBJ_ACCESS_WO},
        {QStringLiteral("readWrite"), VAL_OBJ_ACCESS_RW},
        {QStringLiteral("readWriteInput"), VAL_OBJ_ACCESS_RW},
        {QStringLiteral("readWriteOutput"), VAL_OBJ_ACCESS_RW},
        {QStringLiteral("const"), VAL_OBJ_ACCESS_CONST},
    };
    return texts.value(access);
}

QString hexadecimal(uint number, int digits)
{
    return QStringLiteral("0x") + QStringLiteral("%1").arg(number, digits, 16, QLatin1Char('0')).toUpper();
}

const SElement* childOf(const SElement* element, const QString& name)
{
    return element == nullptr ? nullptr : element->child(name);
}
} // namespace

bool CNormalizer::normalize(const QString& text, QString& errorText)
{
    mText = text;
    mByUniqueId.clear();
    mEdits.clear();
    mChanges.clear();
    if (!mElements.find(text, errorText) || !isCanOpen(errorText)) {
        return false;
    }
    mNewline = text.contains(QLatin1String("\r\n")) ? QStringLiteral("\r\n") : QStringLiteral("\n");
    for (const SElement& element : mElements.all()) {
        const QString uniqueId = value(&element, UNIQUE_ID);
        if (!uniqueId.isEmpty() && !mByUniqueId.contains(uniqueId)) {
            mByUniqueId.insert(uniqueId, &element);
        }
    }
    for (const SElement* const element : mElements.root().childrenNamed(TAG_PROFILE)) {
        profile(*element);
    }
    return true;
}

QString CNormalizer::result() const
{
    QVector<SEdit> edits = mEdits;
    std::stable_sort(edits.begin(), edits.end(), [](const SEdit& left, const SEdit& right) {
        return std::make_pair(left.range.begin, left.range.end) < std::make_pair(right.range.begin, right.range.end);
    });
    QString text;
    int position = 0;
    for (const SEdit& edit : qAsConst(edits)) {
        text += QStringView(mText).mid(position, edit.range.begin - position);
        text += edit.text;
        position = edit.range.end;
    }
    text += QStringView(mText).mid(position);
    return text;
}

QVector<SChange> CNormalizer::changes() const
{
    QVector<SChange> changes = mChanges;
    std::stable_sort(changes.begin(), changes.end(), [](const SChange& left, const SChange& right) {
        return left.line < right.line;
    });
    return changes;
}

// True for a container whose profiles all state the technology CANopen, or state none and are CANopen by their content.
bool CNormalizer::isCanOpen(QString& errorText) const
{
    const SElement& root = mElements.root();
    if (root.name != QString(TAG_PROFILE_CONTAINER)) {
        errorText = QCoreApplication::translate("xddnormalize", "The root element is <%1>, not <%2>.")
                        .arg(root.name, TAG_PROFILE_CONTAINER);
        return false;
    }
    bool stated = false;
    for (const SElement* const profile : root.childrenNamed(TAG_PROFILE)) {
        const SElement* const technology =
            childOf(childOf(profile->child(TAG_PROFILE_HEADER), TAG_ISO15745_REFERENCE), TAG_ISO15745_TECHNOLOGY);
        const QString name = technology == nullptr ? QString() : content(*technology).trimmed();
        if (!name.isEmpty() && name.compare(VAL_CAN_OPEN, Qt::CaseInsensitive) != 0) {
            errorText =
                QCoreApplication::translate("xddnormalize", "A profile is of the technology \"%1\", not \"%2\".")
                    .arg(name, VAL_CAN_OPEN);
            return false;
        }
        const SElement* const body = profile->child(TAG_PROFILE_BODY);
        stated = stated || !name.isEmpty() || value(body, ATTR_TYPE).contains(VAL_CAN_OPEN)
                 || childOf(childOf(body, TAG_APPLICATION_LAYERS), TAG_CAN_OPEN_OBJECT_LIST) != nullptr;
    }
    if (!stated) {
        errorText = QCoreApplication::translate("xddnormalize", "Nothing says that this is a CANopen description.");
    }
    return stated;
}

void CNormalizer::profile(const SElement& profile)
{
    const SElement* const profileHeader = profile.child(TAG_PROFILE_HEADER);
    const SElement* const body = profile.child(TAG_PROFILE_BODY);
    if (profileHeader == nullptr || body == nullptr) {
        return; // The library's message tells what is missing.
    }
    header(*profileHeader, body);
    const SElement* const classElement = profileHeader->child(TAG_PROFILE_CLASS_ID);
    const QString className = classElement == nullptr ? value(body, ATTR_TYPE) : content(*classElement).trimmed();
    if (className.contains(VAL_CID_COMM_NET, Qt::CaseInsensitive)) {
        fileAttributes(*body);
        const SElement* const layers = body->child(TAG_APPLICATION_LAYERS);
        identity(childOf(layers, TAG_IDENTITY), {TAG_VENDOR_ID, TAG_DEVICE_FAMILY, TAG_PRODUCT_ID, TAG_SPEC_REVISION});
        if (const SElement* const list = childOf(layers, TAG_CAN_OPEN_OBJECT_LIST)) {
            objectList(*list);
        }
        bitRates(*body);
    } else if (className.contains(VAL_CID_DEVICE, Qt::CaseInsensitive)) {
        fileAttributes(*body);
        if (const SElement* const deviceIdentity = body->child(TAG_DEVICE_IDENTITY)) {
            addMissing(
                *deviceIdentity, {{TAG_VENDOR_NAME, QStringLiteral("readOnly=\"true\""), QString()},
                                  {TAG_PRODUCT_NAME, QStringLiteral("readOnly=\"false\""), QString()}});
        }
        identity(
            body->child(TAG_DEVICE_IDENTITY),
            {TAG_VENDOR_NAME, TAG_VENDOR_ID, TAG_VENDOR_TEXT, TAG_DEVICE_FAMILY, TAG_PRODUCT_FAMILY, TAG_PRODUCT_NAME,
             TAG_PRODUCT_ID, TAG_PRODUCT_TEXT, TAG_ORDER_NUMBER, TAG_SPEC_REVISION, TAG_INSTANCE_NAME});
        deviceFunction(*body);
    }
}

void CNormalizer::header(const SElement& header, const SElement* body)
{
    const QString bodyType = value(body, ATTR_TYPE);
    const QString className = bodyType.contains(VAL_CID_COMM_NET) ? QString(VAL_CID_COMM_NET)
                              : bodyType.contains(VAL_CID_DEVICE) ? QString(VAL_CID_DEVICE)
                                                                  : QString();
    const std::vector<SNewElement> required = {
        empty(TAG_PROFILE_IDENTIFICATION),
        empty(TAG_PROFILE_REVISION),
        empty(TAG_PROFILE_NAME),
        empty(TAG_PROFILE_SOURCE),
        {TAG_PROFILE_CLASS_ID, QString(), className},
        {TAG_ISO15745_REFERENCE,
         QString(),
         QString(),
         {{TAG_ISO15745_PART, QString(), QStringLiteral("1")},
          {TAG_ISO15745_EDITION, QString(), QStringLiteral("1")},
          {TAG_ISO15745_TECHNOLOGY, QString(), VAL_CAN_OPEN}}}};
    addMissing(header, required);
    if (const SElement* const reference = header.child(TAG_ISO15745_REFERENCE)) {
        addMissing(*reference, required.back().children);
        for (const SNewElement& item : {required.back().children[0], required.back().children[1]}) {
            const SElement* const number = reference->child(item.name);
            if (number != nullptr && !number->isEmptyTag && isPlain(*number) && content(*number).trimmed().isEmpty()) {
                replace({number->contentBegin, number->contentEnd}, item.content);
                report(ERule::Required, *number, supplied(item.name));
            }
        }
    }
    if (const SElement* const element = header.child(TAG_PROFILE_CLASS_ID)) {
        classId(*element);
    }
}

// Adds those of the required children that an element lacks, each in front of the next one that is there.
void CNormalizer::addMissing(const SElement& parent, const std::vector<SNewElement>& required)
{
    std::vector<SNewElement> missing;
    for (const SNewElement& element : required) {
        const SElement* const present = parent.child(element.name);
        if (present != nullptr && !missing.empty()) {
            addChildren(ERule::Required, parent, missing, present);
            missing.clear();
        } else if (present == nullptr) {
            missing.push_back(element);
        }
    }
    if (!missing.empty()) {
        addChildren(ERule::Required, parent, missing);
    }
}

void CNormalizer::classId(const SElement& classId)
{
    const QString text = content(classId);
    for (const QString& known : CProfileHeader::mClassIdTexts) {
        if (isPlain(classId) && text != known && text.trimmed().compare(known, Qt::CaseInsensitive) == 0) {
            replace({classId.contentBegin, classId.contentEnd}, known);
            report(ERule::ClassId, classId, changed(TAG_PROFILE_CLASS_ID, text, known));
        }
    }
}

void CNormalizer::fileAttributes(const SElement& body)
{
    const CStartTag tag(mText, body.begin);
    fileDates(body, tag);
    for (const QString& name : {QString(ATTR_FILE_CREATOR), QString(ATTR_FILE_NAME), QString(ATTR_FILE_VERSION)}) {
        if (tag.attribute(name) == nullptr) {
            setAttribute(tag, name, QString());
            report(ERule::FileAttribute, body, supplied(name));
        }
    }
}

void CNormalizer::fileDates(const SElement& body, const CStartTag& tag)
{
    const auto rewrite = [&](const QString& name) {
        const QString text = value(tag, name);
        const QString date = isoDate(text);
        if (text.trimmed().isEmpty() || isIsoDate(text)) {
            return;
        }
        if (date.isEmpty()) {
            report(ERule::Left, body, left(name, text));
            return;
        }
        setAttribute(tag, name, date);
        report(ERule::FileDate, body, changed(name, text, date));
    };
    rewrite(ATTR_FILE_CREATION_DATE);
    rewrite(ATTR_FILE_MODIFICATION_DATE);
    if (value(tag, ATTR_FILE_CREATION_DATE).trimmed().isEmpty()) {
        const QString modified = isoDate(value(tag, ATTR_FILE_MODIFICATION_DATE));
        setAttribute(tag, ATTR_FILE_CREATION_DATE, modified.isEmpty() ? QStringLiteral("1970-01-01") : modified);
        report(ERule::FileDate, body, supplied(ATTR_FILE_CREATION_DATE));
    }
}

// Adds what is missing on the way from the body to the labels of the first characteristic.
void CNormalizer::deviceFunction(const SElement& body)
{
    const SElement* const function = body.child(TAG_DEVICE_FUNCTION);
    if (function == nullptr) {
        addChildren(ERule::DeviceFunction, body, {emptyDeviceFunction()}, body.child(TAG_APPL_PROCESS));
        return;
    }
    const SElement* const capabilities = function->child(TAG_CAPABILITIES);
    if (capabilities == nullptr) {
        addChildren(ERule::DeviceFunction, *function, emptyDeviceFunction().children);
        return;
    }
    const SElement* const compliance = capabilities->child(TAG_STANDARD_COMLIANCE_LIST);
    const SElement* const list = capabilities->child(TAG_CHARACTERISTICS_LIST);
    if (list == nullptr) {
        addChildren(ERule::DeviceFunction, *capabilities, {emptyCharacteristicsList()}, compliance);
    } else {
        characteristic(*list);
    }
    if (compliance != nullptr) {
        turnIntoComment(*compliance);
    }
}

void CNormalizer::characteristic(const SElement& list)
{
    const SElement* const first = list.child(TAG_CHARACTERISTIC);
    if (first == nullptr) {
        addChildren(ERule::DeviceFunction, list, {emptyCharacteristic()});
        return;
    }
    const SElement* const name = first->child(TAG_CHARACTERISTIC_NAME);
    const SElement* const content = first->child(TAG_CHARACTERISTIC_CONTENT);
    std::vector<SNewElement> missing;
    if (name == nullptr) {
        missing.push_back(emptyCharacteristic().children.front());
    }
    if (content == nullptr) {
        missing.push_back(emptyCharacteristic().children.back());
    }
    if (!missing.empty()) {
        addChildren(ERule::DeviceFunction, *first, missing, content);
    }
    for (const SElement* const labels : {name, content}) {
        if (labels != nullptr && labels->children.empty()) {
            addChildren(ERule::DeviceFunction, *labels, {emptyLabel()});
        }
    }
}

// A comment must not contain "--", so these are taken apart.
void CNormalizer::turnIntoComment(const SElement& element)
{
    QString text = raw({element.begin, element.end});
    while (text.contains(QLatin1String("--"))) {
        text.replace(QLatin1String("--"), QLatin1String("- -"));
    }
    replace({element.begin, element.end}, QLatin1String("<!-- ") + text + QLatin1String(" -->"));
    report(
        ERule::Compliance, element,
        QCoreApplication::translate("xddnormalize", "%1 turned into a comment").arg(element.name));
}

void CNormalizer::identity(const SElement* identity, const QStringList& protectedNames)
{
    for (const QString& name : protectedNames) {
        if (const SElement* const element = childOf(identity, name)) {
            const bool writable = name == QString(TAG_PRODUCT_NAME) || name == QString(TAG_INSTANCE_NAME);
            readOnly(*element, writable ? QStringLiteral("false") : QStringLiteral("true"));
        }
    }
}

void CNormalizer::readOnly(const SElement& element, const QString& byDefault)
{
    static const QHash<QString, QString> writings = {
        {QStringLiteral("1"), QStringLiteral("true")},
        {QStringLiteral("0"), QStringLiteral("false")},
        {QStringLiteral("true"), QStringLiteral("true")},
        {QStringLiteral("false"), QStringLiteral("false")},
    };
    const CStartTag tag(mText, element.begin);
    if (tag.attribute(ATTR_READ_ONLY) == nullptr) {
        setAttribute(tag, ATTR_READ_ONLY, byDefault);
        report(
            ERule::ReadOnly, element, supplied(QStringLiteral("readOnly=\"%1\" of <%2>").arg(byDefault, element.name)));
        return;
    }
    const QString text = value(tag, ATTR_READ_ONLY);
    const QString meant = writings.value(text.trimmed().toLower());
    if (meant.isEmpty()) {
        report(ERule::Left, element, left(ATTR_READ_ONLY, text));
    } else if (meant != text.trimmed()) {
        setAttribute(tag, ATTR_READ_ONLY, meant);
        report(ERule::Spelling, element, changed(ATTR_READ_ONLY, text, meant));
    }
}

void CNormalizer::objectList(const SElement& list)
{
    const CStartTag tag(mText, list.begin);
    for (const QString& name :
         {QString(ATTR_MANDATORY_OBJECTS), QString(ATTR_OPTIONAL_OBJECTS), QString(ATTR_MANUFACTURER_OBJECTS)}) {
        number(list, tag, name, 10, UINT_MAX);
    }
    for (const SElement* const object : list.childrenNamed(TAG_CAN_OPEN_OBJECT)) {
        entry(*object);
        for (const SElement* const subObject : object->childrenNamed(TAG_CAN_OPEN_SUB_OBJECT)) {
            entry(*subObject);
        }
    }
}

void CNormalizer::entry(const SElement& entry)
{
    const CStartTag tag(mText, entry.begin);
    if (tag.attribute(ATTR_NAME) == nullptr) {
        setAttribute(tag, ATTR_NAME, QString());
        report(ERule::Name, entry, supplied(ATTR_NAME));
    }
    number(entry, tag, ATTR_DATA_TYPE, 16, UCHAR_MAX);
    number(entry, tag, ATTR_OBJECT_TYPE, 10, UCHAR_MAX);
    number(entry, tag, ATTR_SUB_NUMBER, 10, UCHAR_MAX);
    spelling(entry, tag, ATTR_ACCESS_TYPE, CCanOpenSubObject::mAccessTypeTexts.values());
    spelling(entry, tag, ATTR_PDO_MAPPING, CCanOpenSubObject::mPdoMappingTexts.values());
    parameter(entry, tag);
}

// Data types are hexadecimal in the format and all other numbers decimal; the library reads both by their prefix.
void CNormalizer::number(const SElement& element, const CStartTag& tag, const QString& name, int base, uint highest)
{
    const QString text = value(tag, name);
    const QString digits = text.trimmed();
    if (digits.isEmpty() || digits.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)) {
        return;
    }
    bool isRead = false;
    bool isMeant = false;
    const uint read = digits.toUInt(&isRead, 0);
    const uint meant = digits.toUInt(&isMeant, base);
    if (!isMeant || meant > highest) {
        report(ERule::Left, element, left(name, text));
    } else if (!isRead || read != meant) {
        const QString prefixed = base == 16 ? QLatin1String("0x") + digits : hexadecimal(meant, 2);
        setAttribute(tag, name, prefixed);
        report(ERule::Number, element, changed(name, text, prefixed));
    }
}

void CNormalizer::spelling(const SElement& element, const CStartTag& tag, const QString& name, const QStringList& texts)
{
    const QString text = value(tag, name);
    if (text.isEmpty() || texts.contains(text)) {
        return;
    }
    for (const QString& known : texts) {
        if (known.compare(text.trimmed(), Qt::CaseInsensitive) == 0) {
            setAttribute(tag, name, known);
            report(ERule::Spelling, element, changed(name, text, known));
            return;
        }
    }
    report(ERule::Left, element, left(name, text));
}

// Supplies what an entry lacks from the parameter that it refers to; what it has is never changed.
void CNormalizer::parameter(const SElement& entry, const CStartTag& tag)
{
    const QString uniqueId = value(tag, ATTR_UNIQUE_ID_REF);
    if (uniqueId.isEmpty()) {
        return;
    }
    const SElement* const parameter = mByUniqueId.value(uniqueId);
    if (parameter == nullptr || parameter->name != PARAMETER) {
        report(ERule::Left, entry, left(ATTR_UNIQUE_ID_REF, uniqueId));
        return;
    }
    const CStartTag parameterTag(mText, parameter->begin);
    const QString dataType = dataTypeOf(*parameter, value(tag, ATTR_OBJECT_TYPE));
    // Without the attribute a value can be read; arrays and structures have no access of their own.
    const QString access = parameterTag.attribute(QStringLiteral("access")) == nullptr && !dataType.isEmpty()
                               ? QStringLiteral("read")
                               : value(parameterTag, QStringLiteral("access"));
    const SElement* const allowed = parameter->child(QStringLiteral("allowedValues"));
    const auto ranges = allowed == nullptr ? std::vector<SElement*>() : allowed->childrenNamed(QStringLiteral("range"));
    const SElement* const range = ranges.size() == 1 ? ranges.front() : nullptr;

    QStringList names;
    const auto supply = [&](const QString& name, const QString& text, bool stated) {
        if (stated && tag.attribute(name) == nullptr) {
            setAttribute(tag, name, text);
            names << name;
        }
    };
    const auto supplyValue = [&](const QString& name, const SElement* source) {
        supply(name, value(source, ATTR_VALUE), source != nullptr);
    };
    supply(ATTR_DATA_TYPE, dataType, !dataType.isEmpty());
    supplyValue(ATTR_LOW_LIMIT, childOf(range, QStringLiteral("minValue")));
    supplyValue(ATTR_HIGH_LIMIT, childOf(range, QStringLiteral("maxValue")));
    supply(ATTR_ACCESS_TYPE, accessText(access), !accessText(access).isEmpty());
    supplyValue(ATTR_DEFAULT_VALUE, parameter->child(ATTR_DEFAULT_VALUE));
    supplyValue(ATTR_ACTUAL_VALUE, parameter->child(ATTR_ACTUAL_VALUE));
    if (!names.isEmpty()) {
        report(ERule::Parameter, entry, supplied(names.join(QLatin1String(", "))));
    }
}

// The data type of a parameter or of a type that it refers to, if it is one simple type.
QString CNormalizer::dataTypeOf(const SElement& described, const QString& objectType, int depth) const
{
    const bool composed = described.name == QLatin1String("array") || described.name == QLatin1String("struct");
    if (composed || depth > MAX_TYPE_DEPTH) {
        return QString();
    }
    QStringList found;
    for (const SElement* const child : described.children) {
        QString type;
        if (child->name == DATA_TYPE_ID_REF) {
            const SElement* const referred = mByUniqueId.value(value(child, ATTR_UNIQUE_ID_REF));
            type = referred == nullptr ? QString() : dataTypeOf(*referred, objectType, depth + 1);
        } else if (simpleType(child->name) != 0) {
            // Blocks of data are bit strings, too, and have a type of their own.
            const bool isBlock = child->name == QLatin1String("BITSTRING") && objectType.toInt() == OBJECT_CODE_DOMAIN;
            type = hexadecimal(isBlock ? 0x0F : uint(simpleType(child->name)), 4);
        }
        if (!type.isEmpty() && !found.contains(type)) {
            found << type;
        }
    }
    return found.size() == 1 ? found.first() : QString();
}

void CNormalizer::bitRates(const SElement& body)
{
    const SElement* const layers = body.child(TAG_TRANSPORT_LAYERS);
    const SElement* const physicalLayer = childOf(layers, TAG_PHYSICAL_LAYER);
    const SElement* const baudRate = childOf(physicalLayer, TAG_BAUD_RATE);
    if (layers == nullptr) {
        addChildren(
            ERule::BitRate, body, {around(TAG_TRANSPORT_LAYERS, around(TAG_PHYSICAL_LAYER, defaultBaudRate()))},
            body.child(TAG_NETWORK_MANAGEMENT));
    } else if (physicalLayer == nullptr) {
        addChildren(ERule::BitRate, *layers, {around(TAG_PHYSICAL_LAYER, defaultBaudRate())});
    } else if (baudRate == nullptr) {
        addChildren(ERule::BitRate, *physicalLayer, {defaultBaudRate()});
    } else {
        const QString rate = bitRate(*baudRate, ATTR_DEFAULT_VALUE);
        const std::vector<SElement*> supported = baudRate->childrenNamed(TAG_SUPPORTED_BAUD_RATE);
        if (supported.empty() && !rate.isEmpty()) {
            addChildren(ERule::BitRate, *baudRate, {supportedRate(rate)});
        }
        for (const SElement* const element : supported) {
            bitRate(*element, ATTR_VALUE);
        }
    }
}

// Brings a bit rate into the format's writing and returns it; a default rate that is absent is 250 kbit/s.
QString CNormalizer::bitRate(const SElement& element, const QString& attribute)
{
    const CStartTag tag(mText, element.begin);
    if (tag.attribute(attribute) == nullptr) {
        if (attribute == QString(ATTR_DEFAULT_VALUE)) {
            setAttribute(tag, attribute, DEFAULT_RATE);
            report(ERule::BitRate, element, supplied(attribute));
        }
        return DEFAULT_RATE;
    }
    const QString text = value(tag, attribute);
    QString rate = rateText(text);
    if (rate.isEmpty()) {
        report(ERule::Left, element, left(attribute, text));
    } else if (rate != text) {
        setAttribute(tag, attribute, rate);
        report(ERule::BitRate, element, changed(attribute, text, rate));
    }
    return rate;
}

QString CNormalizer::raw(SRange range) const
{
    return mText.mid(range.begin, range.end - range.begin);
}

QString CNormalizer::value(const CStartTag& tag, const QString& name) const
{
    const SAttribute* const attribute = tag.attribute(name);
    return attribute == nullptr ? QString() : unescaped(raw(attribute->value));
}

QString CNormalizer::value(const SElement* element, const QString& name) const
{
    return element == nullptr ? QString() : value(CStartTag(mText, element->begin), name);
}

// True when the content is nothing but characters and references.
bool CNormalizer::isPlain(const SElement& element) const
{
    return !raw({element.contentBegin, element.contentEnd}).contains(QLatin1Char('<'));
}

QString CNormalizer::content(const SElement& element) const
{
    return unescaped(raw({element.contentBegin, element.contentEnd}));
}

// The white space in front of an element on its line; null when something else stands there.
QString CNormalizer::indentOf(const SElement& element) const
{
    const int lineBegin = int(mText.lastIndexOf(QLatin1Char('\n'), element.begin)) + 1;
    const QString indent = raw({lineBegin, element.begin});
    return indent.trimmed().isEmpty() ? indent + QLatin1String("") : QString();
}

void CNormalizer::report(ERule rule, const SElement& element, const QString& what)
{
    mChanges << SChange{rule, element.line, what};
}

void CNormalizer::replace(SRange range, const QString& text)
{
    mEdits << SEdit{range, text};
}

void CNormalizer::setAttribute(const CStartTag& tag, const QString& name, const QString& text)
{
    if (const SAttribute* const attribute = tag.attribute(name)) {
        replace(attribute->value, escaped(text));
    } else {
        replace({tag.attributesEnd(), tag.attributesEnd()}, QStringLiteral(" %1=\"%2\"").arg(name, escaped(text)));
    }
}

// Adds children at the end of an element, or in front of one of its children, indented as their surroundings are.
void CNormalizer::addChildren(
    ERule rule, const SElement& parent, const std::vector<SNewElement>& children, const SElement* before)
{
    const SElement* const sibling = parent.children.empty() ? nullptr : parent.children.front();
    const QString parentIndent = indentOf(parent);
    const QString grandparentIndent = parent.parent == nullptr ? QString() : indentOf(*parent.parent);
    const QString unit = parentIndent.isNull() ? QString() : parentIndent.mid(grandparentIndent.size());
    const QString indent = sibling == nullptr ? parentIndent + unit : indentOf(*sibling);
    const bool onLines = !(sibling == nullptr ? parentIndent : indent).isNull();
    const QString lineStart = onLines ? mNewline + indent : QString();
    const QString prefix = sibling == nullptr ? parent.prefix : sibling->prefix;

    QString text;
    for (const SNewElement& child : children) {
        const QString childXml = xml(child, prefix, lineStart, onLines ? unit : QString());
        text += before == nullptr ? lineStart + childXml : childXml + lineStart;
        report(rule, before == nullptr ? parent : *before, supplied(QStringLiteral("<%1>").arg(child.name)));
    }
    const QString parentLine = onLines ? mNewline + parentIndent : QString();
    if (before != nullptr) {
        replace({before->begin, before->begin}, text);
    } else if (sibling != nullptr) {
        replace({parent.children.back()->end, parent.children.back()->end}, text);
    } else if (parent.isEmptyTag) {
        const CStartTag tag(mText, parent.begin);
        replace(
            {tag.attributesEnd(), parent.end},
            QLatin1Char('>') + text + parentLine + QStringLiteral("</%1%2>").arg(parent.prefix, parent.name));
    } else {
        const bool endsLine = raw({parent.contentBegin, parent.contentEnd}).contains(QLatin1Char('\n'));
        replace({parent.contentBegin, parent.contentBegin}, endsLine ? text : text + parentLine);
    }
}

QString CNormalizer::xml(
    const SNewElement& element, const QString& prefix, const QString& lineStart, const QString& unit) const
{
    const QString name = prefix + element.name;
    const QString start = element.attribute.isEmpty() ? name : name + QLatin1Char(' ') + element.attribute;
    if (element.children.empty()) {
        return element.content.isEmpty() ? QStringLiteral("<%1/>").arg(start)
                                         : QStringLiteral("<%1>%2</%3>").arg(start, element.content, name);
    }
    QString text = QStringLiteral("<%1>").arg(start);
    for (const SNewElement& child : element.children) {
        text += lineStart + unit + xml(child, prefix, lineStart + unit, unit);
    }
    return text + lineStart + QStringLiteral("</%1>").arg(name);
}
