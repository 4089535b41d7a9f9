#include "canopen/CDictionary.h"

#include "CCanOpenNames.h"
#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "canopen/ObjectCodes.h"
#include "canopen/ProcessNames.h"

#include <QCoreApplication>

#include <climits>

using namespace NIso15745Tags;
using namespace NProcessNames;

namespace
{
quint64 keyOf(unsigned int index, unsigned int subIndex)
{
    return quint64(index) << 32U | subIndex;
}

// What the attribute of an entry states, or else the value of an element of its parameter.
SStated stated(const CXmlElement& entry, QLatin1String attribute, const CXmlElement& inParameter)
{
    if (entry.has(attribute)) {
        return {entry.attribute(attribute), entry};
    }
    return {inParameter.attribute(ATTR_VALUE), inParameter};
}

// Without an access of its own a parameter can be read.
SStated accessOf(const CXmlElement& entry, const CParameter& parameter)
{
    if (!entry.attribute(ATTR_ACCESS_TYPE).isEmpty()) {
        return {entry.attribute(ATTR_ACCESS_TYPE), entry};
    }
    if (parameter.isNull()) {
        return {};
    }
    const QString access = parameter.element().attribute(ATTR_ACCESS);
    if (access.isNull()) {
        return {VAL_OBJ_ACCESS_RO, parameter.element()};
    }
    const QString known = parameter.accessType();
    return {known.isEmpty() ? access : known, parameter.element()};
}

SDictionaryEntry entryOf(const SEntry& entry)
{
    SDictionaryEntry result;
    result.element = entry.element;
    result.parameter = entry.parameter;
    result.isSubObject = entry.element.is(TAG_CAN_OPEN_SUB_OBJECT);
    const QString objectType = entry.element.attribute(ATTR_OBJECT_TYPE);
    const bool hasPrefix = hasHexadecimalPrefix(objectType.trimmed());
    result.objectType = CXmlValue::toNumber(objectType, hasPrefix ? 16 : 10, UCHAR_MAX).value_or(0);
    const QString ownType = entry.element.attribute(ATTR_DATA_TYPE);
    result.ownsDataType = !ownType.isEmpty();
    result.dataType =
        CXmlValue::toNumber(
            result.ownsDataType ? ownType : entry.parameter.dataType(entry.element.attribute(ATTR_OBJECT_TYPE)), 16)
            .value_or(0);
    result.access = accessOf(entry.element, entry.parameter);
    result.lowLimit = stated(entry.element, ATTR_LOW_LIMIT, entry.parameter.lowLimit());
    result.highLimit = stated(entry.element, ATTR_HIGH_LIMIT, entry.parameter.highLimit());
    result.defaultValue = stated(entry.element, ATTR_DEFAULT_VALUE, entry.parameter.defaultValue());
    result.actualValue = stated(entry.element, ATTR_ACTUAL_VALUE, entry.parameter.actualValue());
    result.mapping = entry.element.attribute(ATTR_PDO_MAPPING);
    if (result.defaultValue.isGiven()) {
        result.value = CValue::read(result.defaultValue.text, result.dataType);
    }
    return result;
}
} // namespace

bool SStated::isGiven() const
{
    return !text.isEmpty();
}

bool SDictionaryEntry::isVariable() const
{
    return isSubObject || subObjects == 0;
}

bool SDictionaryEntry::isArrayOrRecord() const
{
    return !isSubObject && (objectType == CODE_ARRAY || objectType == CODE_RECORD);
}

bool SDictionaryEntry::isMappable() const
{
    return !mapping.isEmpty() && mapping != VAL_OBJ_E_MAP_NO;
}

bool SDictionaryEntry::isReadable() const
{
    return access.text == VAL_OBJ_ACCESS_RO || access.text == VAL_OBJ_ACCESS_RW || access.text == VAL_OBJ_ACCESS_CONST;
}

bool SDictionaryEntry::isWritable() const
{
    return access.text == VAL_OBJ_ACCESS_WO || access.text == VAL_OBJ_ACCESS_RW;
}

QString SDictionaryEntry::name() const
{
    QString indexText = index ? CCanOpenNames::index(*index) : QStringLiteral("?");
    if (!isSubObject) {
        return indexText;
    }
    return QCoreApplication::translate("mvxXddTools", "%1 sub-index %2")
        .arg(indexText, subIndex ? QString::number(*subIndex) : QStringLiteral("?"));
}

std::optional<CInteger> SDictionaryEntry::plainDefault() const
{
    return value && value->isInteger() && !value->usesNodeId() ? std::optional<CInteger>(value->base()) : std::nullopt;
}

CDictionary::CDictionary(const CDescription& description)
{
    mEntries.reserve(description.entries().size());
    for (const SEntry& entry : description.entries()) {
        SDictionaryEntry added = entryOf(entry);
        const std::size_t number = mEntries.size();
        if (added.isSubObject) {
            added.object = mObjects.back();
            SDictionaryEntry& object = mEntries[added.object];
            ++object.subObjects;
            added.index = object.index;
            added.subIndex = CXmlValue::toNumber(entry.element.attribute(ATTR_SUB_INDEX), 16);
            if (added.index && added.subIndex && !mBySubIndex.contains(keyOf(*added.index, *added.subIndex))) {
                mBySubIndex.insert(keyOf(*added.index, *added.subIndex), number);
            }
        } else {
            added.object = number;
            added.index = CXmlValue::toNumber(entry.element.attribute(ATTR_INDEX), 16);
            mObjects.push_back(number);
            if (added.index && !mByIndex.contains(*added.index)) {
                mByIndex.insert(*added.index, number);
            }
        }
        mEntries.push_back(std::move(added));
    }
}

const std::vector<SDictionaryEntry>& CDictionary::entries() const
{
    return mEntries;
}

const std::vector<std::size_t>& CDictionary::objects() const
{
    return mObjects;
}

const SDictionaryEntry* CDictionary::object(unsigned int index) const
{
    const auto found = mByIndex.constFind(index);
    return found == mByIndex.constEnd() ? nullptr : &mEntries[*found];
}

const SDictionaryEntry* CDictionary::subObject(unsigned int index, unsigned int subIndex) const
{
    const auto found = mBySubIndex.constFind(keyOf(index, subIndex));
    return found == mBySubIndex.constEnd() ? nullptr : &mEntries[*found];
}

const SDictionaryEntry* CDictionary::variable(unsigned int index, unsigned int subIndex) const
{
    const SDictionaryEntry* const found = object(index);
    if (found != nullptr && found->isVariable()) {
        return subIndex == 0 ? found : nullptr;
    }
    return subObject(index, subIndex);
}

std::vector<const SDictionaryEntry*> CDictionary::subObjects(const SDictionaryEntry& object) const
{
    std::vector<const SDictionaryEntry*> found;
    const std::size_t last = object.object + std::size_t(object.subObjects);
    for (std::size_t number = object.object + 1; number <= last; ++number) {
        found.push_back(&mEntries[number]);
    }
    return found;
}

const SDictionaryEntry& CDictionary::objectOf(const SDictionaryEntry& entry) const
{
    return mEntries[entry.object];
}
