#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "names/DataTypes.h"
#include "names/Hexadecimal.h"
#include "normalize/CNormalizeRules.h"

#include <climits>

using namespace NIso15745Tags;

namespace
{
void entryNames(const CDescription& description, CXmlEdits& edits)
{
    for (const SEntry& entry : description.dictionary().entries()) {
        if (!entry.element.has(ATTR_NAME)) {
            edits.supply(entry, {{ATTR_NAME, QString()}});
        }
    }
}

void number(const SEdited& edited, QLatin1String attribute, int base, unsigned int highest, CXmlEdits& edits)
{
    const QString digits = edited.element.attribute(attribute).trimmed();
    if (digits.isEmpty() || hasHexadecimalPrefix(digits)) {
        return;
    }
    const auto meant = CXmlValue::toNumber(digits, base, highest);
    if (!meant) {
        edits.leave(edited, attribute);
    } else if (CXmlValue::toNumber(digits, BY_PREFIX, highest) != meant) {
        const bool isPlain = base == HEXADECIMAL && digits.at(0) != QLatin1Char('+');
        edits.rewrite(edited, attribute, isPlain ? HEXADECIMAL_PREFIX + digits : hexadecimalText(*meant, 2));
    }
}

void numbers(const CDescription& description, CXmlEdits& edits)
{
    for (const CXmlElement& list : description.objectLists()) {
        for (const QLatin1String count : {ATTR_MANDATORY_OBJECTS, ATTR_OPTIONAL_OBJECTS, ATTR_MANUFACTURER_OBJECTS}) {
            number(list, count, DECIMAL, UINT_MAX, edits);
        }
    }
    for (const SEntry& entry : description.dictionary().entries()) {
        number(entry, ATTR_DATA_TYPE, HEXADECIMAL, UCHAR_MAX, edits);
        number(entry, ATTR_OBJECT_TYPE, DECIMAL, UCHAR_MAX, edits);
        number(entry, ATTR_SUB_NUMBER, DECIMAL, UCHAR_MAX, edits);
    }
}

// A word that means what the format writes otherwise.
void writing(const SEntry& entry, QLatin1String attribute, QLatin1String known, CXmlEdits& edits)
{
    const QString text = entry.element.attribute(attribute);
    if (text.isEmpty() || text == known) {
        return;
    }
    known.isEmpty() ? edits.leave(entry, attribute) : edits.rewrite(entry, attribute, known);
}

void writings(const CDescription& description, CXmlEdits& edits)
{
    for (const SEntry& entry : description.dictionary().entries()) {
        writing(entry, ATTR_ACCESS_TYPE, accessText(accessOfEntry(entry.element.attribute(ATTR_ACCESS_TYPE))), edits);
        writing(entry, ATTR_PDO_MAPPING, mappingText(entry.mapping), edits);
    }
}

// Supplies what holds for an entry because its parameter states it; what the entry states is never changed.
void parameters(const CDescription& description, CXmlEdits& edits)
{
    for (const SEntry& entry : description.dictionary().entries()) {
        if (entry.parameter.isNull()) {
            if (!entry.element.attribute(ATTR_UNIQUE_ID_REF).isEmpty()) {
                edits.leave(entry, ATTR_UNIQUE_ID_REF);
            }
            continue;
        }
        std::vector<CXmlEdits::Attribute> supplied;
        const auto supply = [&](QLatin1String name, const auto& property, const QString& text) {
            if (property.origin == CXddValue::ORIGIN_PARAMETER && !text.isNull()) {
                supplied.emplace_back(name, text);
            }
        };
        supply(ATTR_DATA_TYPE, entry.dataType, dataTypeText(entry.dataType.value));
        supply(ATTR_LOW_LIMIT, entry.lowLimit, entry.lowLimit.text);
        supply(ATTR_HIGH_LIMIT, entry.highLimit, entry.highLimit.text);
        supply(ATTR_ACCESS_TYPE, entry.access, accessText(entry.access.value));
        supply(ATTR_DEFAULT_VALUE, entry.defaultValue, entry.defaultValue.text);
        supply(ATTR_ACTUAL_VALUE, entry.actualValue, entry.actualValue.text);
        edits.supply(entry, supplied);
    }
}
} // namespace

const NormalizeRules& CNormalizeRules::dictionary()
{
    static const NormalizeRules rules = {
        {"entry-name", NOTE, QT_TR_NOOP("An object or sub-object has no name: it gets an empty one"),
         QT_TR_NOOP("an entry without a name has an empty one"), entryNames},
        {"number", NOTE,
         QT_TR_NOOP(
             "dataType (hexadecimal in the format), objectType, subNumber or a number of objects (decimal) has no prefix and would be read as another number or not at all: it gets \"0x\""),
         QT_TR_NOOP("without \"0x\" the number would be read as another one or not at all"), numbers},
        {"writing", WARNING,
         QT_TR_NOOP(
             "accessType or PDOmapping differs from a word of the format in capitals or spaces: it gets that word"),
         QT_TR_NOOP("the format writes the same value in this way"), writings},
        {"parameter", NOTE,
         QT_TR_NOOP(
             "An object or sub-object with uniqueIDRef lacks dataType, accessType, defaultValue, actualValue, lowLimit or highLimit: it gets what its parameter states"),
         QT_TR_NOOP("stated by the parameter that the entry refers to"), parameters},
    };
    return rules;
}
