#include "eds/CEdsEntryReader.h"

#include "NIso15745Tags.h"
#include "canopen/CValue.h"
#include "eds/EdsValues.h"
#include "names/DataTypes.h"
#include "names/NEdsWords.h"
#include "names/ObjectCodes.h"
#include "text/XmlText.h"

#include <algorithm>
#include <array>

using namespace NIso15745Tags;
using namespace NEdsWords;

namespace
{
// In the order of EEdsKey.
const std::array<QLatin1String, KEY_COUNT> ENTRY_KEYS = {
    PARAMETER_NAME, OBJECT_TYPE,     DATA_TYPE,  ACCESS_TYPE,     DEFAULT_VALUE, PDO_MAPPING, LOW_LIMIT,
    HIGH_LIMIT,     PARAMETER_VALUE, SUB_NUMBER, COMPACT_SUB_OBJ, OBJ_FLAGS,     DENOTATION};

// The keys of a section that an entry can have.
class CEntryKeys
{
public:
    template <typename Unknown> CEntryKeys(const SEdsSection& section, Unknown unknown)
    {
        for (const SEdsKey& key : section.keys) {
            const auto known =
                std::find_if(ENTRY_KEYS.begin(), ENTRY_KEYS.end(), [&key](QLatin1String name) { return key.is(name); });
            if (known == ENTRY_KEYS.end()) {
                unknown(key);
            } else {
                mKeys[std::size_t(known - ENTRY_KEYS.begin())] = &key;
            }
        }
    }

    // The name, which may be empty, or null.
    const SEdsKey* name() const { return mKeys.front(); }
    // The key, or null where it is absent or empty.
    const SEdsKey* given(EEdsKey name) const
    {
        const SEdsKey* const key = mKeys[name];
        return key == nullptr || key->value.isEmpty() ? nullptr : key;
    }
    int line(std::size_t name) const { return mKeys[name] == nullptr ? 0 : mKeys[name]->line; }

private:
    std::array<const SEdsKey*, KEY_COUNT> mKeys = {};
};

// A word of AccessType, and what an entry with it and with a mapping states in an XDD.
struct SAccessWord
{
    QLatin1String word;
    QLatin1String access;
    QLatin1String mapping;
    bool isStandard;
};
const std::array ACCESS_WORDS = {
    SAccessWord{VAL_OBJ_ACCESS_RO, VAL_OBJ_ACCESS_RO, VAL_OBJ_MAP_OPTINAL, true},
    SAccessWord{VAL_OBJ_ACCESS_RW, VAL_OBJ_ACCESS_RW, VAL_OBJ_MAP_OPTINAL, true},
    SAccessWord{VAL_OBJ_ACCESS_WO, VAL_OBJ_ACCESS_WO, VAL_OBJ_MAP_OPTINAL, true},
    SAccessWord{VAL_OBJ_ACCESS_CONST, VAL_OBJ_ACCESS_CONST, VAL_OBJ_MAP_OPTINAL, true},
    SAccessWord{READ_WRITE_TRANSMIT, VAL_OBJ_ACCESS_RW, VAL_OBJ_MAP_TPDO, true},
    SAccessWord{READ_WRITE_RECEIVE, VAL_OBJ_ACCESS_RW, VAL_OBJ_MAP_RPDO, true},
    SAccessWord{QLatin1String("r"), VAL_OBJ_ACCESS_RO, VAL_OBJ_MAP_OPTINAL, false},
    SAccessWord{QLatin1String("w"), VAL_OBJ_ACCESS_WO, VAL_OBJ_MAP_OPTINAL, false},
};

const QLatin1String EDS_NUMBER("eds-number");
const QLatin1String ACCESS_WORD("access-word");

bool isNumeric(unsigned int dataType)
{
    const EValueKind kind = valueKind(dataType);
    return kind == EValueKind::Unsigned || kind == EValueKind::Signed || kind == EValueKind::Real
           || kind == EValueKind::Boolean;
}

// Two digits for each octet.
QString flagDigits(unsigned int flags)
{
    const QString digits = QString::number(flags, 16).toUpper();
    return digits.size() % 2 == 0 ? digits : QLatin1Char('0') + digits;
}

SPlace at(SPlace place, const SEdsKey& key)
{
    place.line = key.line;
    return place;
}

SArgument name(const SEdsKey& key)
{
    return SArgument::word(key.name.toString());
}
} // namespace

SEdsEntry CEdsEntryReader::read(const SPlace& place, const SEdsSection& section)
{
    const CEntryKeys keys(section, [this](const SEdsKey& key) { leaveUnknown(key); });
    SEdsEntry entry;
    entry.line = section.line;
    entry.name = text(place, keys.name());
    entry.objectCode = number(place, keys.given(KEY_OBJECT_TYPE), objectCodeNamed).value_or(0);
    entry.dataType = number(place, keys.given(KEY_DATA_TYPE), dataTypeNamed).value_or(0);
    entry.lowLimit = value(place, keys.given(KEY_LOW_LIMIT), entry.dataType);
    entry.highLimit = value(place, keys.given(KEY_HIGH_LIMIT), entry.dataType);
    readAccess(entry, place, keys.given(KEY_ACCESS_TYPE), keys.given(KEY_PDO_MAPPING));
    entry.defaultValue = value(place, keys.given(KEY_DEFAULT_VALUE), entry.dataType);
    entry.actualValue = value(place, keys.given(KEY_PARAMETER_VALUE), entry.dataType);
    entry.denotation = text(place, keys.given(KEY_DENOTATION));
    if (const std::optional<unsigned int> flags = number(place, keys.given(KEY_OBJ_FLAGS))) {
        entry.flags = flagDigits(*flags);
    }
    if (const std::optional<unsigned int> count = number(place, keys.given(KEY_SUB_NUMBER))) {
        entry.subNumber = QString::number(*count);
    }
    for (std::size_t key = 0; key < KEY_COUNT; ++key) {
        entry.lines[key] = keys.line(key);
    }
    mHasActualValue = mHasActualValue || !entry.actualValue.isNull();
    return entry;
}

void CEdsEntryReader::leaveUnknown(const SEdsKey& key)
{
    const QString name = key.name.toString();
    if (!key.value.isEmpty() && !mUnknown.contains(name.toLower())) {
        mUnknown << name.toLower();
        mRemarks.lost(
            {key.line}, QLatin1String("eds-key"), CRemarks::say("%1 is left out here and wherever else it stands"),
            {name});
    }
}

// rwr and rww say the direction in which an entry is mapped, PDOMapping whether it is.
void CEdsEntryReader::readAccess(SEdsEntry& entry, const SPlace& place, const SEdsKey* key, const SEdsKey* mapping)
{
    const bool isMapped = number(place, mapping).value_or(0) != 0;
    entry.mapping = isMapped ? VAL_OBJ_MAP_OPTINAL : VAL_OBJ_E_MAP_NO;
    if (key == nullptr) {
        return;
    }
    const QString word = *edsValueOf(key->value).value;
    const auto* const known = std::find_if(ACCESS_WORDS.begin(), ACCESS_WORDS.end(), [&word](const SAccessWord& row) {
        return isEdsName(word, row.word);
    });
    if (known == ACCESS_WORDS.end()) {
        mRemarks.left(
            at(place, *key), ACCESS_WORD, CRemarks::say("AccessType \"%1\" is not one of: ro, wo, rw, rwr, rww, const"),
            {key->value.toString()});
        return;
    }
    entry.access = known->access;
    entry.mapping = isMapped ? known->mapping : VAL_OBJ_E_MAP_NO;
    if (!known->isStandard || word.size() != key->value.size()) {
        mRemarks.taken(
            at(place, *key), ACCESS_WORD, CRemarks::say("AccessType \"%1\" is taken as %2"),
            {key->value.toString(), QString(known->access)});
    } else if (!isMapped && known->mapping != VAL_OBJ_MAP_OPTINAL) {
        mRemarks.taken(
            at(place, *key), QLatin1String("eds-value"),
            CRemarks::say("AccessType %1 without PDOMapping is taken as rw"), {known->word});
    }
}

// Words of CiA 301 mean their number where a function knows them.
std::optional<unsigned int> CEdsEntryReader::number(
    const SPlace& place, const SEdsKey* key, unsigned int (*named)(const QString&))
{
    if (key == nullptr) {
        return std::nullopt;
    }
    SEdsMeaning<unsigned int> number = edsNumberOf(key->value);
    if (!number.value && named != nullptr) {
        const unsigned int meant = named(edsValueOf(key->value).value->toUpper());
        number = {meant != 0 ? std::optional<unsigned int>(meant) : std::nullopt, false};
    }
    if (!number.value) {
        mRemarks.left(
            at(place, *key), EDS_NUMBER, CRemarks::say("%1 \"%2\" is not a number and is left out"),
            {name(*key), key->value.toString()});
    } else if (!number.isPlain) {
        mRemarks.taken(
            at(place, *key), EDS_NUMBER, CRemarks::say("%1 \"%2\" is taken as %3"),
            {name(*key), key->value.toString(), *number.value});
    }
    return number.value;
}

QString CEdsEntryReader::value(const SPlace& place, const SEdsKey* key, unsigned int dataType)
{
    if (key == nullptr || !isNumeric(dataType)) {
        return text(place, key);
    }
    const SEdsMeaning<QString> value = edsValueOf(key->value);
    if (!value.isPlain) {
        mRemarks.taken(
            at(place, *key), EDS_NUMBER, CRemarks::say("%1 \"%2\" is taken as %3"),
            {name(*key), key->value.toString(), *value.value});
    }
    if (!CValue::read(*value.value, dataType)) {
        mRemarks.left(
            at(place, *key), QLatin1String("eds-value"), CRemarks::say("%1 \"%2\" is not a value of %3, left as it is"),
            {name(*key), key->value.toString(), dataTypeOf(dataType).name});
    }
    return *value.value;
}

QString CEdsEntryReader::text(const SPlace& place, const SEdsKey* key)
{
    if (key == nullptr) {
        return QString();
    }
    const SEdsMeaning<QString> text = edsTextOf(key->value);
    QString allowed = allowedInXml(*text.value);
    if (!text.isPlain) {
        mRemarks.taken(
            at(place, *key), QLatin1String("eds-text"), CRemarks::say("the quotes around %1 are left out"),
            {name(*key)});
    }
    if (allowed != *text.value) {
        mRemarks.left(
            at(place, *key), QLatin1String("eds-text"), CRemarks::say("control characters in %1 are left out"),
            {name(*key)});
    }
    return allowed;
}
