#include "CCanOpenNames.h"
#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "canopen/CDescription.h"
#include "canopen/CValue.h"
#include "normalize/NormalizeRules.h"
#include "text/CXmlEdits.h"

#include <CCanOpenObject.h>

#include <QCoreApplication>

#include <climits>

using namespace NIso15745Tags;

namespace
{
// The bases in which the format writes numbers. The library lets the prefix decide, which is base 0.
constexpr int DECIMAL = 10;
constexpr int HEXADECIMAL = 16;
constexpr int BY_PREFIX = 0;

void entryNames(const CDescription& description, CXmlEdits& edits)
{
    for (const SEntry& entry : description.entries()) {
        if (!entry.element.has(ATTR_NAME)) {
            edits.supply(entry.element, ATTR_NAME, QString());
        }
    }
}

void number(const CXmlElement& element, QLatin1String attribute, int base, unsigned int highest, CXmlEdits& edits)
{
    const QString digits = element.attribute(attribute).trimmed();
    if (digits.isEmpty() || hasHexadecimalPrefix(digits)) {
        return;
    }
    const auto meant = CXmlValue::toNumber(digits, base, highest);
    if (!meant) {
        edits.leave(element, attribute);
    } else if (CXmlValue::toNumber(digits, BY_PREFIX, highest) != meant) {
        const bool isPlain = base == HEXADECIMAL && digits.at(0) != QLatin1Char('+');
        edits.rewrite(element, attribute, isPlain ? HEXADECIMAL_PREFIX + digits : CCanOpenNames::subIndex(*meant));
    }
}

void numbers(const CDescription& description, CXmlEdits& edits)
{
    for (const CXmlElement& list : description.objectLists()) {
        for (const QLatin1String count : {ATTR_MANDATORY_OBJECTS, ATTR_OPTIONAL_OBJECTS, ATTR_MANUFACTURER_OBJECTS}) {
            number(list, count, DECIMAL, UINT_MAX, edits);
        }
    }
    for (const SEntry& entry : description.entries()) {
        number(entry.element, ATTR_DATA_TYPE, HEXADECIMAL, UCHAR_MAX, edits);
        number(entry.element, ATTR_OBJECT_TYPE, DECIMAL, UCHAR_MAX, edits);
        number(entry.element, ATTR_SUB_NUMBER, DECIMAL, UCHAR_MAX, edits);
    }
}

void writing(const CXmlElement& element, QLatin1String attribute, const QStringList& texts, CXmlEdits& edits)
{
    const QString text = element.attribute(attribute);
    if (text.isEmpty() || texts.contains(text)) {
        return;
    }
    for (const QString& known : texts) {
        if (known.compare(text.trimmed(), Qt::CaseInsensitive) == 0) {
            edits.rewrite(element, attribute, known);
            return;
        }
    }
    edits.leave(element, attribute);
}

void writings(const CDescription& description, CXmlEdits& edits)
{
    const QStringList accessTypes = CCanOpenSubObject::mAccessTypeTexts.values();
    const QStringList mappings = CCanOpenSubObject::mPdoMappingTexts.values();
    for (const SEntry& entry : description.entries()) {
        writing(entry.element, ATTR_ACCESS_TYPE, accessTypes, edits);
        writing(entry.element, ATTR_PDO_MAPPING, mappings, edits);
    }
}

// Supplies what an entry lacks from the parameter that it refers to; what it has is never changed.
void parameters(const CDescription& description, CXmlEdits& edits)
{
    for (const SEntry& entry : description.entries()) {
        const CParameter& parameter = entry.parameter;
        if (parameter.isNull()) {
            if (!entry.element.attribute(ATTR_UNIQUE_ID_REF).isEmpty()) {
                edits.leave(entry.element, ATTR_UNIQUE_ID_REF);
            }
            continue;
        }
        std::vector<CXmlEdits::Attribute> supplied;
        const auto supply = [&](QLatin1String name, const QString& text) {
            if (!text.isNull() && !entry.element.has(name)) {
                supplied.emplace_back(name, text);
            }
        };
        const auto stated = [](const QString& text) {
            return text.isEmpty() ? QString() : text;
        };
        supply(ATTR_DATA_TYPE, stated(parameter.dataType(entry.element.attribute(ATTR_OBJECT_TYPE))));
        supply(ATTR_LOW_LIMIT, parameter.lowLimit().attribute(ATTR_VALUE));
        supply(ATTR_HIGH_LIMIT, parameter.highLimit().attribute(ATTR_VALUE));
        supply(ATTR_ACCESS_TYPE, stated(parameter.accessType()));
        supply(ATTR_DEFAULT_VALUE, parameter.defaultValue().attribute(ATTR_VALUE));
        supply(ATTR_ACTUAL_VALUE, parameter.actualValue().attribute(ATTR_VALUE));
        edits.supply(entry.element, supplied);
    }
}
} // namespace

const NormalizeRules& dictionaryRules()
{
    static const NormalizeRules rules = {
        {"entry-name", QT_TRANSLATE_NOOP("mvxXddTools", "An object or sub-object has no name: an empty one"),
         QT_TRANSLATE_NOOP("mvxXddTools", "an entry without a name has an empty one"), false, entryNames},
        {"number",
         QT_TRANSLATE_NOOP(
             "mvxXddTools", "dataType (hexadecimal in the format), objectType, subNumber or a count of objects "
                            "(decimal) has no prefix "
                            "and would be read as another number or not at all: the same number with \"0x\""),
         QT_TRANSLATE_NOOP("mvxXddTools", "without \"0x\" the number would be read as another one or not at all"),
         false, numbers},
        {"writing",
         QT_TRANSLATE_NOOP(
             "mvxXddTools",
             "accessType or PDOmapping differs from a text of the format in capitals or blanks: that text"),
         QT_TRANSLATE_NOOP("mvxXddTools", "the format's writing of the same value"), true, writings},
        {"parameter",
         QT_TRANSLATE_NOOP(
             "mvxXddTools", "An object or sub-object with uniqueIDRef lacks dataType, accessType, defaultValue, "
                            "actualValue, lowLimit or "
                            "highLimit: what its parameter states"),
         QT_TRANSLATE_NOOP("mvxXddTools", "stated by the parameter that the entry refers to"), false, parameters},
    };
    return rules;
}
