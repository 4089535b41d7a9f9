#include "CCanOpenNames.h"
#include "NIso15745Tags.h"
#include "canopen/DataTypes.h"
#include "check/CFindings.h"
#include "check/CheckRules.h"

#include <array>

using namespace NIso15745Tags;

namespace
{
// A value or limit that an entry has.
struct SNamedValue
{
    QLatin1String name;
    const SStated* stated;
    std::optional<CValue> value; // Nothing when it is not given or not readable
};

// The values and limits of an entry.
struct SValues
{
    SNamedValue defaultValue;
    SNamedValue actualValue;
    SNamedValue lowLimit;
    SNamedValue highLimit;

    std::array<const SNamedValue*, 4> all() const
    {
        return {&defaultValue, &actualValue, &lowLimit, &highLimit};
    }
};

SValues valuesOf(const SDictionaryEntry& entry)
{
    const auto named = [&](QLatin1String name, const SStated& stated) {
        return SNamedValue{name, &stated, stated.isGiven() ? CValue::read(stated.text, entry.dataType) : std::nullopt};
    };
    return {
        {ATTR_DEFAULT_VALUE, &entry.defaultValue, entry.value},
        named(ATTR_ACTUAL_VALUE, entry.actualValue),
        named(ATTR_LOW_LIMIT, entry.lowLimit),
        named(ATTR_HIGH_LIMIT, entry.highLimit)};
}

// True for two numbers, the first of which is below the second.
bool isBelow(const SNamedValue& low, const SNamedValue& high)
{
    return low.value && high.value && low.value->isBelow(*high.value);
}

// Calls for every entry of a type whose values are known, with its values.
template <typename Look> void forTyped(const SChecked& checked, Look look)
{
    for (const SDictionaryEntry& entry : checked.dictionary.entries()) {
        if (entry.isVariable() && valueKind(entry.dataType) != EValueKind::None) {
            look(entry, valuesOf(entry));
        }
    }
}

QString shown(const SDictionaryEntry& entry, const SNamedValue& value)
{
    return QString(value.name) + QLatin1Char(' ') + CFindings::quoted(*value.stated, entry.element);
}

void badValue(const SChecked& checked, CFindings& findings)
{
    forTyped(checked, [&](const SDictionaryEntry& entry, const SValues& values) {
        for (const SNamedValue* const value : values.all()) {
            if (value->stated->isGiven() && !value->value) {
                findings.add(
                    entry,
                    CFindings::tr("%1 is no %2").arg(shown(entry, *value), CCanOpenNames::dataType(entry.dataType)));
            }
        }
    });
}

void valueOutOfRange(const SChecked& checked, CFindings& findings)
{
    forTyped(checked, [&](const SDictionaryEntry& entry, const SValues& values) {
        for (const SNamedValue* const value : values.all()) {
            if (value->value && !value->value->fits(entry.dataType)) {
                findings.add(
                    entry, CFindings::tr("%1 is out of the range of %2")
                               .arg(shown(entry, *value), CCanOpenNames::dataType(entry.dataType)));
            }
        }
    });
}

void limitsReversed(const SChecked& checked, CFindings& findings)
{
    forTyped(checked, [&](const SDictionaryEntry& entry, const SValues& values) {
        if (isBelow(values.highLimit, values.lowLimit)) {
            findings.add(
                entry,
                CFindings::tr("%1 is above %2").arg(shown(entry, values.lowLimit), shown(entry, values.highLimit)));
        }
    });
}

void valueOutsideLimits(const SChecked& checked, CFindings& findings)
{
    forTyped(checked, [&](const SDictionaryEntry& entry, const SValues& values) {
        for (const SNamedValue* const value : {&values.defaultValue, &values.actualValue}) {
            if (isBelow(*value, values.lowLimit)) {
                findings.add(
                    entry, CFindings::tr("%1 is below %2").arg(shown(entry, *value), shown(entry, values.lowLimit)));
            }
            if (isBelow(values.highLimit, *value)) {
                findings.add(
                    entry, CFindings::tr("%1 is above %2").arg(shown(entry, *value), shown(entry, values.highLimit)));
            }
        }
    });
}

void nodeIdNotFirst(const SChecked& checked, CFindings& findings)
{
    forTyped(checked, [&](const SDictionaryEntry& entry, const SValues& values) {
        for (const SNamedValue* const value : values.all()) {
            if (value->value && value->value->isNodeIdLast()) {
                findings.add(entry, CFindings::tr("%1 does not begin with $NODEID").arg(shown(entry, *value)));
            }
        }
    });
}
} // namespace

const CheckRules& valueRules()
{
    static const CheckRules rules = {
        {"bad-value", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP("CFindings", "A default, an actual value or a limit is no value of its data type"),
         QT_TRANSLATE_NOOP(
             "CFindings",
             "Tools refuse the file or take another value. Write numbers in decimal or with 0x, without a suffix."),
         badValue},
        {"value-out-of-range", CXddFinding::SEVERITY_ERROR,
         QT_TRANSLATE_NOOP("CFindings", "A default, an actual value or a limit does not fit into its data type"),
         QT_TRANSLATE_NOOP("CFindings", "Tools cut it off or refuse it. Mend the value or the data type."),
         valueOutOfRange},
        {"limits-reversed", CXddFinding::SEVERITY_ERROR, QT_TRANSLATE_NOOP("CFindings", "lowLimit is above highLimit"),
         QT_TRANSLATE_NOOP(
             "CFindings",
             "Tools that keep limits refuse every value. Exchange them; of a signed type, 0x80 and up may be "
             "meant as negative."),
         limitsReversed},
        {"value-outside-limits", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "A default or actual value lies outside of its limits"),
         QT_TRANSLATE_NOOP("CFindings", "Tools that keep limits refuse the value. Mend one of them."),
         valueOutsideLimits},
        {"nodeid-not-first", CXddFinding::SEVERITY_WARNING,
         QT_TRANSLATE_NOOP("CFindings", "A value is written N+$NODEID"),
         QT_TRANSLATE_NOOP("CFindings", "Tools that follow the standard lose the node-ID. Write $NODEID+N."),
         nodeIdNotFirst},
    };
    return rules;
}
