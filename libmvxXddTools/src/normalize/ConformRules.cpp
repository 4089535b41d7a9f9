#include "CCanOpenNames.h"
#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "canopen/Writings.h"
#include "names/Hexadecimal.h"
#include "names/NFormatWords.h"
#include "normalize/CNormalizeRules.h"

#include <QLocale>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <climits>

using namespace NIso15745Tags;
using namespace NFormatWords;

namespace
{
// Writes a number as the format does, unless it is written so or is none.
void writeNumber(
    const SEntry& entry, QLatin1String attribute, int base, const QString& (*form)(QString&), CXmlEdits& edits)
{
    const QString text = entry.element.attribute(attribute).trimmed();
    const bool hasPrefix = hasHexadecimalPrefix(text);
    const auto number = CXmlValue::toNumber(text, hasPrefix ? HEXADECIMAL : base, USHRT_MAX);
    if (text.isEmpty() || !number) {
        return;
    }
    QString right = QString::number(*number, base).toUpper();
    form(right);
    const QString stated = entry.element.attribute(attribute);
    const bool isRight = base == HEXADECIMAL ? stated.compare(right, Qt::CaseInsensitive) == 0 : stated == right;
    if (!isRight) {
        edits.rewrite(entry, attribute, right);
    }
}

const QString& fourDigits(QString& number)
{
    return number = number.rightJustified(4, QLatin1Char('0'));
}

const QString& twoDigits(QString& number)
{
    return number = number.rightJustified(2, QLatin1Char('0'));
}

const QString& asItIs(QString& number)
{
    return number;
}

// An index that has five digits and a type of two digits are left: the first is none, the second is right.
void numberForms(const CDescription& description, CXmlEdits& edits)
{
    for (const SEntry& entry : description.dictionary().entries()) {
        if (!entry.isSubObject) {
            writeNumber(entry, ATTR_INDEX, HEXADECIMAL, fourDigits, edits);
        } else if (hasHexadecimalPrefix(entry.element.attribute(ATTR_SUB_INDEX))) {
            writeNumber(entry, ATTR_SUB_INDEX, HEXADECIMAL, twoDigits, edits);
        }
        for (const QLatin1String attribute : {ATTR_DATA_TYPE, ATTR_OBJ_FLAGS}) {
            const QString text = entry.element.attribute(attribute);
            if (hasHexadecimalPrefix(text) || text.size() % 2 != 0) {
                writeNumber(entry, attribute, HEXADECIMAL, fourDigits, edits);
            }
        }
        for (const QLatin1String attribute : {ATTR_OBJECT_TYPE, ATTR_SUB_NUMBER}) {
            if (hasHexadecimalPrefix(entry.element.attribute(attribute))) {
                writeNumber(entry, attribute, DECIMAL, asItIs, edits);
            }
        }
    }
}

void subIndexForms(const CDescription& description, CXmlEdits& edits)
{
    for (const SEntry& entry : description.dictionary().entries()) {
        if (entry.isSubObject && !hasHexadecimalPrefix(entry.element.attribute(ATTR_SUB_INDEX))) {
            writeNumber(entry, ATTR_SUB_INDEX, HEXADECIMAL, twoDigits, edits);
        }
    }
}

// The time of a text in a common writing, with twelve or twenty-four hours.
QTime timeOf(const QString& text)
{
    const QString plain = text.simplified().toUpper();
    for (const char* const form : {"h:mm:ss AP", "h:mm AP", "h:mm:ssAP", "h:mmAP", "h:mm"}) {
        const QTime time = QLocale::c().toTime(plain, QString::fromLatin1(form));
        if (time.isValid()) {
            return time;
        }
    }
    return {};
}

void timeForms(const CDescription& description, CXmlEdits& edits)
{
    for (const SProfile& profile : description.profiles()) {
        for (const QLatin1String name : {ATTR_FILE_CREATION_TIME, ATTR_FILE_MODIFICATION_TIME}) {
            const QString text = profile.body.attribute(name);
            const QTime time = CXmlValue::toTime(text) ? QTime() : timeOf(text);
            if (time.isValid()) {
                edits.rewrite(profile.body, name, time.toString(Qt::ISODate));
            }
        }
    }
}

// Words that differ from those of the format in capitals and spaces.
void wordForms(const CDescription& description, CXmlEdits& edits)
{
    const auto rewrite = [&edits](const CXmlElement& element, QLatin1String attribute, const QStringList& known) {
        const QString text = element.attribute(attribute);
        for (const QString& word : known) {
            if (text != word && text.simplified().remove(QLatin1Char(' ')).compare(word, Qt::CaseInsensitive) == 0) {
                edits.rewrite(element, attribute, word);
            }
        }
    };
    static const QStringList access = accessWordsOfParameters();
    static const QStringList versions = {VAL_VTYPE_SW, VAL_VTYPE_FW, VAL_VTYPE_HW};
    for (const CXmlElement& element : description.tree().all()) {
        if (element.is(TAG_PARAMETER)) {
            rewrite(element, ATTR_ACCESS, access);
        } else if (element.is(TAG_VERSION)) {
            rewrite(element, ATTR_VERSION_TYPE, versions);
        }
    }
}

void nodeIdForms(const CDescription& description, CXmlEdits& edits)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*(.*?)\\s*\\+\\s*\\$NODEID\\s*$"), QRegularExpression::CaseInsensitiveOption);
    QSet<int> ofParameters; // Which several entries can refer to
    for (const SEntry& entry : description.dictionary().entries()) {
        const auto rewrite = [&](QLatin1String attribute, const SValueProperty& property) {
            const QRegularExpressionMatch match = form.match(property.text);
            if (!property.value || !property.value->isNodeIdLast() || !match.hasMatch()) {
                return;
            }
            const QString right = NODE_ID + QLatin1Char('+') + match.captured(1);
            const int begin = property.source.range().begin;
            if (property.source == entry.element) {
                edits.rewrite(entry, attribute, right);
            } else if (
                property.source.has(ATTR_VALUE) && edits.isWanted(entry.place()) && !ofParameters.contains(begin)) {
                ofParameters.insert(begin);
                SEdited ofEntry = property.source;
                ofEntry.place = entry.place();
                edits.rewrite(ofEntry, ATTR_VALUE, right);
            }
        };
        rewrite(ATTR_DEFAULT_VALUE, entry.defaultValue);
        rewrite(ATTR_ACTUAL_VALUE, entry.actualValue);
        rewrite(ATTR_LOW_LIMIT, entry.lowLimit);
        rewrite(ATTR_HIGH_LIMIT, entry.highLimit);
    }
}

// A number that is stated and is not the one of what is there.
void recount(const SEdited& edited, QLatin1String attribute, unsigned int count, CXmlEdits& edits)
{
    const auto stated = CXmlValue::toNumber(edited.element.attribute(attribute), DECIMAL);
    if (stated && *stated != count) {
        edits.rewrite(edited, attribute, QString::number(count));
    }
}

void subNumbers(const CDescription& description, CXmlEdits& edits)
{
    for (const SEntry& entry : description.dictionary().entries()) {
        if (!entry.isSubObject && entry.subObjects > 0) {
            recount(entry, ATTR_SUB_NUMBER, unsigned(entry.subObjects), edits);
        }
    }
}

void objectCounts(const CDescription& description, CXmlEdits& edits)
{
    using EKind = CCanOpenNames::EObjectKind;
    const auto& entries = description.dictionary().entries();
    if (std::any_of(entries.begin(), entries.end(), [](const SEntry& entry) { return !entry.index; })) {
        return; // It may be of any kind
    }
    const auto countsOf = description.dictionary().countsOfLists();
    for (const CXmlElement& list : description.objectLists()) {
        const std::array<unsigned int, 3> counts = countsOf.value(list.range().begin);
        recount(list, ATTR_MANDATORY_OBJECTS, counts[std::size_t(EKind::Mandatory)], edits);
        recount(list, ATTR_OPTIONAL_OBJECTS, counts[std::size_t(EKind::Optional)], edits);
        recount(list, ATTR_MANUFACTURER_OBJECTS, counts[std::size_t(EKind::Manufacturer)], edits);
    }
}

void pdoCounts(const CDescription& description, CXmlEdits& edits)
{
    for (const CXmlElement& features : description.managementElements(TAG_GENERAL_FEATURES)) {
        recount(features, ATTR_NR_OF_RX_PDO, countOf(description.pdos(), EPdoDirection::Receive), edits);
        recount(features, ATTR_NR_OF_TX_PDO, countOf(description.pdos(), EPdoDirection::Transmit), edits);
    }
}

// A rule that the copy for the strict load has, too, by the ID of the checker.
SNormalizeRule sharedRule(const NormalizeRules& table, const char* id, const char* checkedId)
{
    const auto found = std::find_if(table.begin(), table.end(), [id](const SNormalizeRule& rule) {
        return QLatin1String(rule.id) == QLatin1String(id);
    });
    SNormalizeRule rule = *found;
    rule.id = checkedId;
    return rule;
}
} // namespace

const NormalizeRules& CNormalizeRules::conform()
{
    static const char* const help = QT_TR_NOOP("the format writes the same value in this way");
    static const char* const counted = QT_TR_NOOP("that many are there");
    static const NormalizeRules rules = {
        sharedRule(header(), "required", "missing-item"),
        sharedRule(header(), "file-attribute", "missing-item"),
        sharedRule(dictionary(), "entry-name", "missing-item"),
        sharedRule(header(), "file-date", "bad-date"),
        {"bad-date", WARNING, "", help, timeForms},
        {"bad-number", ERROR, "", help, numberForms},
        {"number-width", WARNING, "", help, subIndexForms},
        sharedRule(dictionary(), "writing", "unknown-word"),
        sharedRule(bitRate(), "bit-rate-writing", "unknown-word"),
        {"unknown-word", ERROR, "", help, wordForms},
        {"nodeid-not-first", WARNING, "", help, nodeIdForms},
        {"sub-number", WARNING, "", counted, subNumbers},
        {"object-count", WARNING, "", counted, objectCounts},
        {"pdo-count", WARNING, "", counted, pdoCounts},
    };
    return rules;
}
