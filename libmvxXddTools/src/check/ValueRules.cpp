#include "NIso15745Tags.h"
#include "canopen/Texts.h"
#include "check/CCheckRules.h"
#include "check/Walks.h"
#include "names/DataTypes.h"
#include "names/NFormatWords.h"

#include <array>

using namespace NIso15745Tags;
using namespace NFormatWords;

namespace
{
// A value or limit of an entry, and what it is called.
struct SNamedValue
{
    SArgument name; // A word
    QLatin1String attribute;
    const SValueProperty& property;
};

std::array<SNamedValue, 4> valuesOf(const SEntry& entry)
{
    const auto name = [](const SWords& words) {
        return SArgument(CRemarks::filled(words)).asWord();
    };
    return {
        {{name(CRemarks::say("default value")), ATTR_DEFAULT_VALUE, entry.defaultValue},
         {name(CRemarks::say("actual value")), ATTR_ACTUAL_VALUE, entry.actualValue},
         {name(CRemarks::say("low limit")), ATTR_LOW_LIMIT, entry.lowLimit},
         {name(CRemarks::say("high limit")), ATTR_HIGH_LIMIT, entry.highLimit}}};
}

// Calls for every entry of a type whose values are known.
template <typename Look> void forTyped(const CDescription& description, Look look)
{
    forVariables(description, [&](const SEntry& entry) {
        const EValueKind kind = valueKind(entry.dataType.value);
        if (kind != EValueKind::None && kind != EValueKind::Record) {
            look(entry);
        }
    });
}

// Calls for every value and limit of such an entry that is given.
template <typename Look> void forValues(const CDescription& description, Look look)
{
    forTyped(description, [&](const SEntry& entry) {
        for (const SNamedValue& value : valuesOf(entry)) {
            if (value.property.isGiven()) {
                look(entry, value);
            }
        }
    });
}

// True for two numbers, the first of which is below the second.
bool isBelow(const SValueProperty& low, const SValueProperty& high)
{
    return low.value && high.value && low.value->isBelow(*high.value);
}

void badValue(const CDescription& description, CRemarks& findings)
{
    forValues(description, [&](const SEntry& entry, const SNamedValue& value) {
        if (!value.property.value) {
            findings.add(
                entry.placeOf(value.attribute), CRemarks::say("%1 %2 is not a value of %3"),
                {value.name, quoted(value.property, entry), CCanOpenNames::dataType(entry.dataType.value)});
        }
    });
}

void valueOutOfRange(const CDescription& description, CRemarks& findings)
{
    forValues(description, [&](const SEntry& entry, const SNamedValue& value) {
        if (value.property.value && !value.property.value->fits(entry.dataType.value)) {
            findings.add(
                entry.placeOf(value.attribute), CRemarks::say("%1 %2 is outside the range of %3"),
                {value.name, quoted(value.property, entry), CCanOpenNames::dataType(entry.dataType.value)});
        }
    });
}

void limitsReversed(const CDescription& description, CRemarks& findings)
{
    forTyped(description, [&](const SEntry& entry) {
        if (isBelow(entry.highLimit, entry.lowLimit)) {
            findings.add(
                entry.placeOf(ATTR_LOW_LIMIT), CRemarks::say("low limit %1 is above high limit %2"),
                {quoted(entry.lowLimit, entry), quoted(entry.highLimit, entry)});
        }
    });
}

void valueOutsideLimits(const CDescription& description, CRemarks& findings)
{
    forTyped(description, [&](const SEntry& entry) {
        const std::array<SNamedValue, 4> values = valuesOf(entry);
        for (const SNamedValue& value : {values[0], values[1]}) {
            if (isBelow(value.property, entry.lowLimit)) {
                findings.add(
                    entry.placeOf(value.attribute), CRemarks::say("%1 %2 is below low limit %3"),
                    {value.name, quoted(value.property, entry), quoted(entry.lowLimit, entry)});
            }
            if (isBelow(entry.highLimit, value.property)) {
                findings.add(
                    entry.placeOf(value.attribute), CRemarks::say("%1 %2 is above high limit %3"),
                    {value.name, quoted(value.property, entry), quoted(entry.highLimit, entry)});
            }
        }
    });
}

void badScale(const CDescription& description, CRemarks& findings)
{
    for (const CXmlElement& element : description.tree().all()) {
        if (!element.is(TAG_PARAMETER)) {
            continue;
        }
        for (const QLatin1String attribute : {ATTR_MULTIPLIER, ATTR_OFFSET}) {
            const QString text = element.attribute(attribute);
            if (!scaleOf(text, 0)) {
                findings.add(
                    element, CRemarks::say("%1 \"%2\" of <%3> is not a number"), {attribute, text, TAG_PARAMETER});
            }
        }
    }
}

void nodeIdNotFirst(const CDescription& description, CRemarks& findings)
{
    forValues(description, [&](const SEntry& entry, const SNamedValue& value) {
        if (value.property.value && value.property.value->isNodeIdLast()) {
            findings.add(
                entry.placeOf(value.attribute), CRemarks::say("%1 %2 does not begin with $NODEID"),
                {value.name, quoted(value.property, entry)});
        }
    });
}
} // namespace

const CheckRules& CCheckRules::value()
{
    static const CheckRules rules = {
        {"bad-value", ERROR, QT_TR_NOOP("A default value, actual value or limit is not a value of its data type"),
         QT_TR_NOOP(
             "Tools refuse the file or take another value. Write numbers in decimal or with 0x, without a suffix."),
         badValue, "dataType=\"0005\" defaultValue=\"12LL\"", "dataType=\"0005\" defaultValue=\"12\""},
        {"value-out-of-range", ERROR,
         QT_TR_NOOP("A default value, actual value or limit does not fit into its data type"),
         QT_TR_NOOP("Tools cut it off or refuse it. Correct the value or the data type."), valueOutOfRange,
         "dataType=\"0005\" defaultValue=\"256\"", "dataType=\"0005\" defaultValue=\"255\""},
        {"limits-reversed", ERROR, QT_TR_NOOP("The low limit is above the high limit"),
         QT_TR_NOOP(
             "Tools that respect limits refuse every value. Exchange them; with a signed type, 0x80 and up may be meant as negative."),
         limitsReversed, "lowLimit=\"9\" highLimit=\"2\"", "lowLimit=\"2\" highLimit=\"9\""},
        {"value-outside-limits", WARNING, QT_TR_NOOP("A default or actual value is outside its limits"),
         QT_TR_NOOP("Tools that respect limits refuse the value. Correct one of them."), valueOutsideLimits,
         "defaultValue=\"12\" highLimit=\"9\"", "defaultValue=\"9\" highLimit=\"9\""},
        {"bad-scale", WARNING, QT_TR_NOOP("multiplier or offset of a parameter is not a number"),
         QT_TR_NOOP("Tools show raw values as physical ones. Write a decimal number with a point."), badScale,
         "multiplier=\"0,1\"", "multiplier=\"0.1\""},
        {"nodeid-not-first", WARNING, QT_TR_NOOP("A value is written N+$NODEID"),
         QT_TR_NOOP("Tools that follow the standard lose the node-ID. Write $NODEID+N."), nodeIdNotFirst,
         "defaultValue=\"0x80+$NODEID\"", "defaultValue=\"$NODEID+0x80\""},
    };
    return rules;
}
