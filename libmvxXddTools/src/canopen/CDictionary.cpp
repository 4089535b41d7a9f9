#include "canopen/CDictionary.h"

#include "CCanOpenNames.h"

#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "names/DataTypes.h"
#include "names/Hexadecimal.h"
#include "names/NFormatWords.h"
#include "names/ObjectCodes.h"

#include <algorithm>
#include <climits>

using namespace NIso15745Tags;
using namespace NFormatWords;

namespace
{
quint64 keyOf(unsigned int index, unsigned int subIndex)
{
    return quint64(index) << 32U | subIndex;
}

SValueProperty valueOf(const CXmlElement& element, QLatin1String attribute, unsigned int dataType)
{
    SValueProperty property;
    property.text = element.attribute(attribute);
    if (!property.text.isNull()) {
        property.source = element;
        property.value = property.isGiven() ? CValue::read(property.text, dataType) : std::nullopt;
    }
    return property;
}

// A value of the entry, else that of an element of its parameter.
SValueProperty valueOf(
    const CXmlElement& entry, QLatin1String attribute, const CXmlElement& inParameter, unsigned int dataType)
{
    const SValueProperty own = valueOf(entry, attribute, dataType);
    return own.text.isNull() && !inParameter.isNull() ? valueOf(inParameter, ATTR_VALUE, dataType) : own;
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
    }
    return access;
}

SProperty<unsigned int> typeOf(const CXmlElement& element, const CXmlElement& parameter, unsigned int parameterType)
{
    const QString own = element.attribute(ATTR_DATA_TYPE);
    if (!own.isEmpty()) {
        return {CXmlValue::toNumber(own, HEXADECIMAL).value_or(0), own, element};
    }
    return parameterType == 0 ? SProperty<unsigned int>() : SProperty<unsigned int>{parameterType, {}, parameter};
}

// By its prefix: the format writes it in decimal.
std::optional<unsigned int> codeOf(const CXmlElement& element)
{
    const QString text = element.attribute(ATTR_OBJECT_TYPE);
    return CXmlValue::toNumber(text, hasHexadecimalPrefix(text.trimmed()) ? HEXADECIMAL : DECIMAL, UCHAR_MAX);
}

SEntry entryOf(const CXmlElement& element, bool isVariable, CReferences& references)
{
    SEntry entry;
    entry.element = element;
    entry.isSubObject = element.is(TAG_CAN_OPEN_SUB_OBJECT);
    entry.objectCode = codeOf(element);
    entry.name = element.attribute(ATTR_NAME);
    entry.mapping = mappingOf(element.attribute(ATTR_PDO_MAPPING));
    entry.parameter = references.parameterOf(element);
    const CXmlElement& parameter = entry.parameter;
    if (!parameter.isNull()) {
        entry.parameterType = references.simpleTypeOf(parameter, entry.objectCode == CODE_DOMAIN);
    }
    entry.dataType = typeOf(element, parameter, entry.parameterType);
    const QString access = element.attribute(ATTR_ACCESS_TYPE);
    entry.access = access.isEmpty() ? accessInParameter(parameter, isVariable)
                                    : SProperty<EAccess>{accessOfEntry(access), access, element};
    const unsigned int type = entry.dataType.value;
    const CXmlElement range = rangeOf(parameter);
    entry.lowLimit = valueOf(element, ATTR_LOW_LIMIT, range.child(TAG_MIN_VALUE), type);
    entry.highLimit = valueOf(element, ATTR_HIGH_LIMIT, range.child(TAG_MAX_VALUE), type);
    entry.defaultValue = valueOf(element, ATTR_DEFAULT_VALUE, parameter.child(ATTR_DEFAULT_VALUE), type);
    entry.actualValue = valueOf(element, ATTR_ACTUAL_VALUE, parameter.child(ATTR_ACTUAL_VALUE), type);
    return entry;
}

SEntry entryOf(const CCanOpenSubObject& record)
{
    const auto value = [&record](const QString& text) {
        return SValueProperty{
            text.isEmpty() ? std::nullopt : CValue::read(text, record.mDataType),
            text.isEmpty() ? QString() : text,
            {}};
    };
    SEntry entry;
    entry.objectCode = record.mObjectType;
    entry.name = record.mName;
    entry.mapping = mappingOf(CCanOpenSubObject::pdoMappingAsStr(record.mPdoMapping));
    entry.dataType.value = record.mDataType;
    entry.access.value = accessOfEntry(CCanOpenSubObject::accessTypeAsStr(record.mAccessType));
    entry.lowLimit = value(record.mLowLimit);
    entry.highLimit = value(record.mHighLimit);
    entry.defaultValue = value(record.mDefaultValue);
    entry.actualValue = value(record.mActualValue);
    return entry;
}

std::optional<CValue> wholeNumber(const SValueProperty& property, unsigned int dataType)
{
    const std::optional<CValue> value = valueKind(dataType) == EValueKind::None && property.isGiven()
                                            ? CValue::read(property.text, TYPE_UNSIGNED32)
                                            : property.value;
    return value && value->isInteger() ? value : std::nullopt;
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

std::optional<CInteger> SEntry::plainDefault() const
{
    return defaultValue.value ? defaultValue.value->plain() : std::nullopt;
}

std::optional<CValue> SEntry::current() const
{
    const std::optional<CValue> actual = wholeNumber(actualValue, dataType.value);
    return actual ? actual : wholeNumber(defaultValue, dataType.value);
}

CDictionary::CDictionary(const std::vector<CXmlElement>& lists, CReferences& references)
{
    for (const CXmlElement& list : lists) {
        for (const CXmlElement& object : list.children(TAG_CAN_OPEN_OBJECT)) {
            const std::vector<CXmlElement> subObjects = object.children(TAG_CAN_OPEN_SUB_OBJECT);
            SEntry added = entryOf(object, subObjects.empty(), references);
            added.index = CXmlValue::toNumber(object.attribute(ATTR_INDEX), HEXADECIMAL);
            add(std::move(added));
            for (const CXmlElement& subObject : subObjects) {
                added = entryOf(subObject, true, references);
                added.subIndex = CXmlValue::toNumber(subObject.attribute(ATTR_SUB_INDEX), HEXADECIMAL);
                add(std::move(added));
            }
        }
    }
}

CDictionary::CDictionary(const QMap<unsigned int, CCanOpenObject>& objects)
{
    for (const CCanOpenObject& object : objects) {
        SEntry added = entryOf(object);
        added.index = object.mIndex;
        add(std::move(added));
        for (const CCanOpenSubObject& subObject : object.mSubObjects) {
            added = entryOf(subObject);
            added.isSubObject = true;
            added.subIndex = subObject.mIndex;
            add(std::move(added));
        }
    }
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

unsigned int CDictionary::typeOfVariable(const SEntry& entry) const
{
    const SEntry& object = objectOf(entry);
    const bool isElement = entry.isSubObject && object.objectCode == CODE_ARRAY;
    return entry.dataType.value != 0 || !isElement ? entry.dataType.value : object.dataType.value;
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
    stated.dataType = typeOf({}, entry.parameter, entry.parameterType);
    stated.access = accessInParameter(entry.parameter, entry.isVariable());
    stated.defaultValue = valueOf(entry.parameter.child(ATTR_DEFAULT_VALUE), ATTR_VALUE, entry.dataType.value);
    return stated;
}
