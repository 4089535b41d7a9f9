#include "eds/EdsRules.h"

#include "CCanOpenNames.h"
#include "canopen/CValue.h"
#include "eds/EdsValues.h"
#include "names/NEdsWords.h"
#include "names/ObjectCodes.h"

#include <array>

using namespace NEdsWords;

namespace
{
using Objects = QMap<unsigned int, SEdsObject>;
using Kind = CCanOpenNames::EObjectKind;

// The three lists of objects, by the kind of object that belongs there.
const std::array<QLatin1String, 3> LISTS = {MANDATORY_OBJECTS, OPTIONAL_OBJECTS, MANUFACTURER_OBJECTS};

SPlace placeOf(int line, unsigned int index)
{
    return {line, 0, true, false, index, std::nullopt};
}

// Keys of the lists are numbers, their values indexes.
bool isNumberOfEntry(const SEdsKey& key)
{
    return key.name.front().isDigit();
}

void findInList(
    std::size_t kind, const CEdsFile& file, const Objects& objects, QSet<unsigned int>& listed, CRemarks& remarks)
{
    const SEdsSection* const list = file.find(LISTS.at(kind));
    if (list == nullptr) {
        return;
    }
    int count = 0;
    for (const SEdsKey& key : list->keys) {
        const std::optional<unsigned int> index = edsNumberOf(key.value).value;
        if (!isNumberOfEntry(key) || !index) {
            continue;
        }
        ++count;
        const SPlace place = placeOf(key.line, *index);
        const auto wanted = std::size_t(CCanOpenNames::objectKind(*index));
        if (listed.contains(*index)) {
            remarks.found(place, QLatin1String("object-list"), CRemarks::say("it is listed twice"));
        } else if (!objects.contains(*index) || objects[*index].section == nullptr) {
            remarks.found(
                place, QLatin1String("listed-without-section"), CRemarks::say("it is listed, but has no section"));
        } else if (wanted != kind) {
            remarks.found(
                place, QLatin1String("wrong-list"), CRemarks::say("it is listed in [%1], but belongs into [%2]"),
                {LISTS.at(kind), LISTS.at(wanted)});
        }
        listed << *index;
    }
    const SEdsKey* const stated = list->key(SUPPORTED_OBJECTS);
    if (stated != nullptr && edsNumberOf(stated->value).value != unsigned(count)) {
        remarks.found(
            {stated->line}, QLatin1String("object-list"),
            CRemarks::say("%1 is %2, but the number of listed objects is %3"),
            {SUPPORTED_OBJECTS, stated->value.toString(), count});
    }
}

void findInLists(const CEdsFile& file, const Objects& objects, CRemarks& remarks)
{
    QSet<unsigned int> listed;
    bool hasList = false;
    for (std::size_t kind = 0; kind < LISTS.size(); ++kind) {
        findInList(kind, file, objects, listed, remarks);
        hasList = hasList || file.find(LISTS.at(kind)) != nullptr;
    }
    if (!hasList) {
        remarks.found(
            {file.sections().front().line}, QLatin1String("object-list"),
            CRemarks::say("there are no lists of objects"));
        return;
    }
    for (auto object = objects.cbegin(); object != objects.cend(); ++object) {
        if (object->section != nullptr && object.key() >= 0x1000 && !listed.contains(object.key())) {
            remarks.found(
                placeOf(object->section->line, object.key()), QLatin1String("section-not-listed"),
                CRemarks::say("it is in none of the lists of objects"));
        }
    }
}

void findName(SPlace place, const SEdsSection& section, CRemarks& remarks)
{
    if (section.key(PARAMETER_NAME) == nullptr) {
        place.line = section.line;
        remarks.found(place, QLatin1String("missing-item"), CRemarks::say("%1 is missing"), {PARAMETER_NAME});
    }
}

void findInObject(unsigned int index, const SEdsObject& object, CRemarks& remarks)
{
    for (auto sub = object.subObjects.cbegin(); sub != object.subObjects.cend(); ++sub) {
        if (!object.names.contains(sub.key())) {
            findName({0, 0, true, true, index, sub.key()}, **sub, remarks);
        }
    }
    if (object.section == nullptr) {
        return;
    }
    const SPlace place = placeOf(object.section->line, index);
    findName(place, *object.section, remarks);
    const SEdsKey* const number = object.section->given(SUB_NUMBER);
    const SEdsKey* const type = object.section->given(OBJECT_TYPE);
    const bool isVariable = type != nullptr && edsNumberOf(type->value).value == CODE_VAR;
    if (!object.subObjects.isEmpty() && !isVariable && number == nullptr && object.compact == 0) {
        remarks.found(place, QLatin1String("sub-number-missing"), CRemarks::say("%1 is missing"), {SUB_NUMBER});
    }
    if (object.compact > 0 && number != nullptr && edsNumberOf(number->value).value != 0U) {
        remarks.found(
            place, QLatin1String("compact-conflict"), CRemarks::say("%1 and %2 contradict each other"),
            {COMPACT_SUB_OBJ, SUB_NUMBER});
    }
    if (object.compact > 0 && object.section->given(DATA_TYPE) == nullptr) {
        remarks.found(
            place, QLatin1String("compact-conflict"), CRemarks::say("%1 without %2"), {COMPACT_SUB_OBJ, DATA_TYPE});
    }
}

void findInDummyUsage(const SEdsSection& usage, CRemarks& remarks)
{
    unsigned int count = 0;
    for (const SEdsKey& key : usage.keys) {
        const bool isDummy = key.name.startsWith(DUMMY, Qt::CaseInsensitive);
        const unsigned int type = isDummy ? key.name.mid(DUMMY.size()).toUInt() : 0;
        count += type >= 1 && type <= MAX_DUMMY ? 1 : 0;
    }
    if (count < MAX_DUMMY) {
        remarks.found(
            {usage.line}, QLatin1String("dummy-usage"),
            CRemarks::say("[%1] has %2 of the seven keys Dummy0001 to Dummy0007"), {DUMMY_USAGE, count});
    }
}

// "Lines" and as many keys "Line1" and so on.
void findInComments(const SEdsSection& comments, CRemarks& remarks)
{
    const SEdsKey* const lines = comments.key(LINES);
    const int count = int(comments.keys.size()) - (lines == nullptr ? 0 : 1);
    if (lines == nullptr || lines->name != LINES || edsNumberOf(lines->value).value != unsigned(count)) {
        remarks.found(
            {lines == nullptr ? comments.line : lines->line}, QLatin1String("comment-lines"),
            CRemarks::say("%1 is not the number of comment lines, which is %2"), {LINES, count});
    }
}

void findInRevision(const CEdsFile& file, const Objects& objects, CRemarks& remarks)
{
    const SEdsKey* const stated = file.section(DEVICE_INFO).given(REVISION_NUMBER);
    const SEdsSection* const entry = objects.value(0x1018).subObjects.value(3);
    const SEdsKey* const value = entry == nullptr ? nullptr : entry->given(DEFAULT_VALUE);
    if (stated == nullptr || !edsNumberOf(stated->value).value) {
        return;
    }
    const unsigned int number = *edsNumberOf(stated->value).value;
    if (value == nullptr && number != 0) {
        remarks.lost(
            {stated->line}, QLatin1String("eds-key"), CRemarks::say("%1 is left out, %2 does not have it"),
            {REVISION_NUMBER, CCanOpenNames::entry(0x1018, 3)});
    } else if (value != nullptr && edsNumberOf(value->value).value.value_or(number) != number) {
        remarks.found(
            {stated->line}, QLatin1String("revision-number"),
            CRemarks::say("%1 %2 is not the default %3 of %4 (line %5)"),
            {REVISION_NUMBER, stated->value.toString(), value->value.toString(), CCanOpenNames::entry(0x1018, 3),
             SArgument::line(value->line)});
    }
}

bool isSupported(const SEdsSection& device, unsigned int kbits)
{
    const QByteArray name = QByteArray(BAUD_RATE.data(), int(BAUD_RATE.size())) + QByteArray::number(kbits);
    const SEdsKey* const key = device.given(QLatin1String(name.constData(), int(name.size())));
    return key != nullptr && edsNumberOf(key->value).value != 0U;
}

void findInCommissioning(const CEdsFile& file, CRemarks& remarks)
{
    const QLatin1String rule("commissioning");
    const SEdsSection* const other = file.find(COMMISSIONING_TWO_M);
    const SEdsSection* const section = file.find(COMMISSIONING) == nullptr ? other : file.find(COMMISSIONING);
    if (other != nullptr) {
        remarks.found({other->line}, rule, CRemarks::say("the standard writes [%1] with one m"), {COMMISSIONING});
    }
    if (section == nullptr) {
        return;
    }
    const SEdsKey* const nodeId = section->key(NODE_ID_KEY);
    const unsigned int number = nodeId == nullptr ? MIN_NODE_ID : edsNumberOf(nodeId->value).value.value_or(0);
    if (number < MIN_NODE_ID || number > MAX_NODE_ID) {
        remarks.found(
            {nodeId->line}, rule, CRemarks::say("%1 \"%2\" is not a node-ID from 1 to 127"),
            {NODE_ID_KEY, nodeId->value.toString()});
    }
    const SEdsKey* const rate = section->given(NODE_BAUD_RATE);
    const unsigned int kbits = rate == nullptr ? 0 : edsNumberOf(rate->value).value.value_or(0);
    if (kbits != 0 && !isSupported(file.section(DEVICE_INFO), kbits)) {
        remarks.found(
            {rate->line}, rule, CRemarks::say("%1 %2 is not one of the supported bit rates"),
            {NODE_BAUD_RATE, rate->value.toString()});
    }
}
} // namespace

void findInEds(const CEdsFile& file, const QMap<unsigned int, SEdsObject>& objects, CRemarks& remarks)
{
    for (const QLatin1String name : {FILE_INFO, DEVICE_INFO}) {
        if (file.find(name) == nullptr) {
            remarks.found(
                {file.sections().front().line}, QLatin1String("missing-item"), CRemarks::say("section [%1] is missing"),
                {name});
        }
    }
    findInLists(file, objects, remarks);
    for (auto object = objects.cbegin(); object != objects.cend(); ++object) {
        findInObject(object.key(), *object, remarks);
    }
    if (const SEdsSection* const usage = file.find(DUMMY_USAGE)) {
        findInDummyUsage(*usage, remarks);
    }
    if (const SEdsSection* const comments = file.find(COMMENTS)) {
        findInComments(*comments, remarks);
    }
    findInRevision(file, objects, remarks);
    findInCommissioning(file, remarks);
}
