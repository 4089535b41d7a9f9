#include "canopen/CDictionary.h"

#include "CCanOpenNames.h"

#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "names/DataTypes.h"
#include "names/Hexadecimal.h"
#include "names/NFormatWords.h"
#include "names/ObjectCodes.h"

#include <QLocale>

#include <algorithm>
#include <climits>
#include <tuple>

using namespace NIso15745Tags;
using namespace NFormatWords;

namespace
{
quint64 keyOf(unsigned int index, unsigned int subIndex)
{
    return quint64(index) << 32U | subIndex;
}

SValueProperty valueOf(
    const CXmlElement& element, QLatin1String attribute, unsigned int dataType, CXddValue::EOrigin origin)
{
    SValueProperty property;
    property.text = element.attribute(attribute);
    if (!property.text.isNull()) {
        property.source = element;
        property.origin = origin;
        property.value = property.isGiven() ? CValue::read(property.text, dataType) : std::nullopt;
    }
    return property;
}

// A value of the entry, else that of an element of its parameter.
SValueProperty valueOf(
    const CXmlElement& entry, QLatin1String attribute, const CXmlElement& inParameter, unsigned int dataType)
{
    const SValueProperty own = valueOf(entry, attribute, dataType, CXddValue::ORIGIN_ENTRY);
    return own.text.isNull() && !inParameter.isNull()
               ? valueOf(inParameter, ATTR_VALUE, dataType, CXddValue::ORIGIN_PARAMETER)
               : own;
}

// A range of a parameter; only one is a limit, of several none is.
CXmlElement rangeOf(const CXmlElement& parameter)
{
    return parameter.child(TAG_ALLOWED_VALUES).onlyChild(TAG_RANGE);
}

// A parameter that states no access can be read. What has sub-objects has no access of its own.
SProperty<EAccess> accessInParameter(const CXmlElement& parameter, bool isVariable)
{
    SProperty<EAccess> access;
    access.text = parameter.attribute(ATTR_ACCESS);
    const bool isStated = !access.text.trimmed().isEmpty();
    if (!parameter.isNull() && (isStated || isVariable)) {
        access.value = isStated ? accessOfParameter(access.text) : EAccess::ReadOnly;
        access.source = parameter;
        access.origin = CXddValue::ORIGIN_PARAMETER;
    }
    return access;
}

SProperty<unsigned int> typeInParameter(const CXmlElement& parameter, unsigned int parameterType)
{
    return parameterType == 0 ? SProperty<unsigned int>()
                              : SProperty<unsigned int>{parameterType, {}, parameter, CXddValue::ORIGIN_PARAMETER};
}

// Its own, that of its parameter, or that of the array.
SProperty<unsigned int> typeOf(const SEntry& entry, const SEntry* array)
{
    const QString own = entry.element.attribute(ATTR_DATA_TYPE);
    if (!own.isEmpty()) {
        const unsigned int type = CXmlValue::toNumber(own, HEXADECIMAL).value_or(0);
        return {type, own, entry.element, CXddValue::ORIGIN_ENTRY};
    }
    if (entry.parameterType == 0 && array != nullptr && array->dataType.value != 0) {
        return {array->dataType.value, {}, array->element, CXddValue::ORIGIN_ARRAY};
    }
    return typeInParameter(entry.parameter, entry.parameterType);
}

// By its prefix: the format writes it in decimal.
std::optional<unsigned int> codeOf(const CXmlElement& element)
{
    const QString text = element.attribute(ATTR_OBJECT_TYPE);
    return CXmlValue::toNumber(text, hasHexadecimalPrefix(text.trimmed()) ? HEXADECIMAL : DECIMAL, UCHAR_MAX);
}

// An object, or with @p object one of its sub-objects.
SEntry entryOf(const CXmlElement& element, bool isVariable, const SEntry* object, CReferences& references)
{
    SEntry entry;
    entry.element = element;
    entry.isSubObject = object != nullptr;
    entry.objectCode = codeOf(element);
    entry.name = element.attribute(ATTR_NAME);
    entry.mapping = mappingOf(element.attribute(ATTR_PDO_MAPPING));
    entry.parameter = references.parameterOf(element);
    const CXmlElement& parameter = entry.parameter;
    if (!parameter.isNull()) {
        entry.parameterType = references.simpleTypeOf(parameter, entry.objectCode == CODE_DOMAIN);
    }
    entry.dataType = typeOf(entry, object != nullptr && object->objectCode == CODE_ARRAY ? object : nullptr);
    const QString access = element.attribute(ATTR_ACCESS_TYPE);
    entry.access = access.isEmpty()
                       ? accessInParameter(parameter, isVariable)
                       : SProperty<EAccess>{accessOfEntry(access), access, element, CXddValue::ORIGIN_ENTRY};
    const unsigned int type = entry.dataType.value;
    const CXmlElement range = rangeOf(parameter);
    entry.lowLimit = valueOf(element, ATTR_LOW_LIMIT, range.child(TAG_MIN_VALUE), type);
    entry.highLimit = valueOf(element, ATTR_HIGH_LIMIT, range.child(TAG_MAX_VALUE), type);
    entry.defaultValue = valueOf(element, ATTR_DEFAULT_VALUE, parameter.child(ATTR_DEFAULT_VALUE), type);
    entry.actualValue = valueOf(element, ATTR_ACTUAL_VALUE, parameter.child(ATTR_ACTUAL_VALUE), type);
    return entry;
}

std::optional<CValue> wholeNumber(const SValueProperty& property, unsigned int dataType)
{
    const std::optional<CValue> value = valueKind(dataType) == EValueKind::None && property.isGiven()
                                            ? CValue::read(property.text, TYPE_UNSIGNED32)
                                            : property.value;
    return value && value->isInteger() ? value : std::nullopt;
}

QString decimal(double number)
{
    return QString::number(number, 'f', QLocale::FloatingPointShortest);
}

// The words of the library for what it knows, too.
CCanOpenSubObject::EAccessType accessTypeOf(EAccess access)
{
    return CCanOpenSubObject::accessTypeFromStr(accessText(access));
}

CXddValue shownValue(const SValueProperty& property)
{
    return property.text.isNull() ? CXddValue() : CXddValue(property.text, property.origin);
}
} // namespace

SPlace SEntry::place() const
{
    SPlace place = element.place();
    place.isEntry = true;
    place.isSubObject = isSubObject;
    place.index = index;
    place.subIndex = subIndex;
    return place;
}

SPlace SEntry::placeOf(QLatin1String attribute) const
{
    SPlace at = place();
    at.line = element.placeOf(attribute).line;
    return at;
}

std::optional<CInteger> SEntry::plainDefault() const
{
    return defaultValue.value ? defaultValue.value->plain() : std::nullopt;
}

QLatin1String SEntry::inForceName() const
{
    return actualValue.value ? ATTR_ACTUAL_VALUE : ATTR_DEFAULT_VALUE;
}

std::optional<CValue> SEntry::current() const
{
    const std::optional<CValue> actual = wholeNumber(actualValue, dataType.value);
    return actual ? actual : wholeNumber(defaultValue, dataType.value);
}

std::optional<unsigned int> SEntry::number(unsigned int nodeId) const
{
    const std::optional<CValue> value = current();
    return value ? value->at(nodeId).unsigned32() : std::nullopt;
}

std::pair<QString, QString> SEntry::range() const
{
    const unsigned int type = dataType.value;
    const EValueKind kind = valueKind(type);
    const auto usable = [type](const SValueProperty& limit) {
        const bool isUsable = limit.value && !limit.value->usesNodeId() && limit.value->fits(type);
        return isUsable ? limit.value : std::nullopt;
    };
    if (kind == EValueKind::Boolean) {
        return {QStringLiteral("0"), QStringLiteral("1")};
    }
    if (lowLimit.text.isNull() && highLimit.text.isNull()) {
        return {};
    }
    const std::optional<CValue> low = usable(lowLimit);
    const std::optional<CValue> high = usable(highLimit);
    if (low && high && high->isBelow(*low)) {
        return {};
    }
    if (kind == EValueKind::Real) {
        return low && high ? std::make_pair(decimal(low->real()), decimal(high->real()))
                           : std::pair<QString, QString>();
    }
    if ((kind != EValueKind::Unsigned && kind != EValueKind::Signed) || (!low && !high)) {
        return {};
    }
    return {(low ? low->base() : CValue::lowest(type)).text(), (high ? high->base() : CValue::highest(type)).text()};
}

CDictionary::CDictionary(const std::vector<CXmlElement>& lists, CReferences& references)
{
    for (const CXmlElement& list : lists) {
        for (const CXmlElement& object : list.children(TAG_CAN_OPEN_OBJECT)) {
            const std::vector<CXmlElement> subObjects = object.children(TAG_CAN_OPEN_SUB_OBJECT);
            SEntry added = entryOf(object, subObjects.empty(), nullptr, references);
            added.index = CXmlValue::toNumber(object.attribute(ATTR_INDEX), HEXADECIMAL);
            add(std::move(added));
            for (const CXmlElement& subObject : subObjects) {
                added = entryOf(subObject, true, &mEntries[mObjects.back()], references);
                added.subIndex = CXmlValue::toNumber(subObject.attribute(ATTR_SUB_INDEX), HEXADECIMAL);
                add(std::move(added));
            }
        }
    }
}

CDictionary CDictionary::withoutActualValues() const
{
    CDictionary copy(*this);
    for (SEntry& entry : copy.mEntries) {
        entry.actualValue = {};
    }
    return copy;
}

// Sub-objects belong to the object that was added last.
void CDictionary::add(SEntry entry)
{
    const std::size_t number = mEntries.size();
    if (entry.isSubObject) {
        entry.object = mObjects.back();
        SEntry& object = mEntries[entry.object];
        ++object.subObjects;
        entry.index = object.index;
        if (entry.index && entry.subIndex && !mBySubIndex.contains(keyOf(*entry.index, *entry.subIndex))) {
            mBySubIndex.insert(keyOf(*entry.index, *entry.subIndex), number);
        }
    } else {
        entry.object = number;
        mObjects.push_back(number);
        if (entry.index && !mByIndex.contains(*entry.index)) {
            mByIndex.insert(*entry.index, number);
        }
    }
    mEntries.push_back(std::move(entry));
}

const SEntry* CDictionary::object(unsigned int index) const
{
    const auto found = mByIndex.constFind(index);
    return found == mByIndex.constEnd() ? nullptr : &mEntries[*found];
}

const SEntry* CDictionary::subObject(unsigned int index, unsigned int subIndex) const
{
    const auto found = mBySubIndex.constFind(keyOf(index, subIndex));
    return found == mBySubIndex.constEnd() ? nullptr : &mEntries[*found];
}

const SEntry* CDictionary::variable(unsigned int index, unsigned int subIndex) const
{
    const SEntry* const found = object(index);
    if (found != nullptr && found->isVariable()) {
        return subIndex == 0 ? found : nullptr;
    }
    return subObject(index, subIndex);
}

std::vector<const SEntry*> CDictionary::subObjects(const SEntry& object) const
{
    std::vector<const SEntry*> found;
    const std::size_t last = object.object + std::size_t(object.subObjects);
    for (std::size_t number = object.object + 1; number <= last; ++number) {
        found.push_back(&mEntries[number]);
    }
    return found;
}

const SEntry* CDictionary::entry(unsigned int index, std::optional<unsigned int> subIndex) const
{
    return subIndex ? subObject(index, *subIndex) : object(index);
}

std::optional<unsigned int> CDictionary::number(unsigned int index, unsigned int subIndex, unsigned int nodeId) const
{
    const SEntry* const found = variable(index, subIndex);
    return found == nullptr ? std::nullopt : found->number(nodeId);
}

QHash<int, std::array<unsigned int, 3>> CDictionary::countsOfLists() const
{
    QHash<int, std::array<unsigned int, 3>> counts;
    for (const std::size_t number : mObjects) {
        const SEntry& object = mEntries[number];
        if (object.index) {
            auto& ofList = counts[object.element.parent().range().begin];
            ++ofList[std::size_t(CCanOpenNames::objectKind(*object.index))];
        }
    }
    return counts;
}

const SEntry* CDictionary::entryIn(const CXmlElement& element) const
{
    const auto found =
        std::lower_bound(mEntries.begin(), mEntries.end(), element.range().begin, [](const SEntry& entry, int begin) {
            return entry.element.range().begin < begin;
        });
    return found != mEntries.end() && found->element == element ? &*found : nullptr;
}

SProperties CDictionary::fromParameter(const SEntry& entry)
{
    SProperties stated;
    stated.dataType = typeInParameter(entry.parameter, entry.parameterType);
    stated.access = accessInParameter(entry.parameter, entry.isVariable());
    stated.defaultValue = valueOf(
        entry.parameter.child(ATTR_DEFAULT_VALUE), ATTR_VALUE, entry.dataType.value, CXddValue::ORIGIN_PARAMETER);
    return stated;
}

CXddEntry shownEntry(const SEntry& entry, const CDictionary& dictionary)
{
    CXddEntry shown;
    shown.mIndex = entry.index.value_or(0);
    shown.mSubIndex = entry.subIndex;
    shown.mLine = entry.element.line();
    shown.mName = entry.name;
    shown.mObjectName = dictionary.objectOf(entry).name;
    shown.mObjectCode = entry.objectCode.value_or(0);
    shown.mSubObjects = entry.subObjects;
    shown.mSubNumber = CXmlValue::toNumber(entry.element.attribute(ATTR_SUB_NUMBER), DECIMAL, UCHAR_MAX);
    shown.mDataType = entry.dataType.value;
    shown.mDataTypeOrigin = entry.dataType.origin;
    shown.mAccessType = accessTypeOf(entry.access.value);
    shown.mAccessOrigin = entry.access.origin;
    shown.mPdoMapping = CCanOpenSubObject::pdoMappingFromStr(mappingText(entry.mapping));
    shown.mDefaultValue = shownValue(entry.defaultValue);
    shown.mActualValue = shownValue(entry.actualValue);
    shown.mLowLimit = shownValue(entry.lowLimit);
    shown.mHighLimit = shownValue(entry.highLimit);
    std::tie(shown.mMinimum, shown.mMaximum) = entry.range();
    shown.mDenotation = entry.element.attribute(ATTR_DENOTATION);
    shown.mObjFlags = CXmlValue::toNumber(entry.element.attribute(ATTR_OBJ_FLAGS), HEXADECIMAL).value_or(0);
    shown.mUniqueIdRef = entry.element.attribute(ATTR_UNIQUE_ID_REF);
    return shown;
}

QList<CXddEntry> shownEntries(const CDictionary& dictionary)
{
    QList<CXddEntry> entries;
    for (const std::size_t number : dictionary.byIndex()) {
        const SEntry& object = dictionary.entries()[number];
        entries << shownEntry(object, dictionary);
        for (const SEntry* const subObject : dictionary.subObjects(object)) {
            if (subObject->subIndex) {
                entries << shownEntry(*subObject, dictionary);
            }
        }
    }
    return entries;
}

QList<CXddRemark> leftOutOf(const CDictionary& dictionary)
{
    CRemarks remarks;
    for (const SEntry& entry : dictionary.entries()) {
        const bool isReadable = entry.isSubObject ? entry.subIndex.has_value() : entry.index.has_value();
        const SEntry* const first = entry.isSubObject || !entry.index ? &entry : dictionary.object(*entry.index);
        if (!isReadable) {
            remarks.left(entry, QLatin1String("bad-number"), CRemarks::say("left out: the index is not readable"));
        } else if (first != &entry) {
            remarks.left(
                entry, QLatin1String("duplicate-index"), CRemarks::say("left out: the object duplicates line %1"),
                {SArgument::line(first->element.line())});
        }
        const auto remarkUnknown = [&](QLatin1String attribute, bool isUnknown) {
            if (isUnknown) {
                remarks.left(
                    entry.placeOf(attribute), QLatin1String("unknown-word"),
                    CRemarks::say("%1 \"%2\" is not understood"), {attribute, entry.element.attribute(attribute)});
            }
        };
        remarkUnknown(ATTR_DATA_TYPE, entry.dataType.isOwn() && entry.dataType.value == 0);
        remarkUnknown(ATTR_ACCESS_TYPE, entry.access.isOwn() && entry.access.value == EAccess::Unknown);
        remarkUnknown(ATTR_PDO_MAPPING, entry.mapping == EMapping::Unknown);
    }
    return remarks.inOrder();
}
