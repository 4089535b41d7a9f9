#include "eds/CEdsObjects.h"

#include "eds/EdsValues.h"
#include "names/NEdsWords.h"

#include <algorithm>

using namespace NEdsWords;

namespace
{
// Most objects and sub-objects of a file. A compact form makes 255 of a line; the largest published files have some
// thousand.
constexpr unsigned int MAX_ENTRIES = 250000;

constexpr unsigned int MAX_SUB_INDEX = 0xFF;
constexpr unsigned int MAX_COMPACT = 254;
constexpr int INDEX_DIGITS = 4;

// A name that begins with an index.
struct SIndexed
{
    unsigned int index = 0;
    bool hasAllDigits = false;
    QStringView rest; // What follows the index
};

std::optional<SIndexed> indexedName(QStringView name)
{
    int digits = 0;
    while (digits < name.size() && digits < INDEX_DIGITS && isHexadecimal(name.mid(digits, 1))) {
        ++digits;
    }
    bool ok = false;
    const unsigned int index = name.left(digits).toUInt(&ok, 16);
    return ok ? std::optional<SIndexed>({index, digits == INDEX_DIGITS, name.mid(digits)}) : std::nullopt;
}

// The digits of a sub-index; nothing for another rest.
QStringView subIndexDigits(QStringView rest)
{
    const QStringView digits = isEdsName(rest.left(SUB.size()), SUB) ? rest.mid(SUB.size()) : QStringView();
    return isHexadecimal(digits) ? digits : QStringView();
}

EdsList* listNamed(QStringView rest, SEdsObject& object)
{
    return isEdsName(rest, LIST_NAME)         ? &object.names
           : isEdsName(rest, LIST_VALUE)      ? &object.values
           : isEdsName(rest, LIST_DENOTATION) ? &object.denotations
                                              : nullptr;
}

EdsList listOf(const SEdsSection& section)
{
    EdsList list;
    for (const SEdsKey& key : section.keys) {
        bool ok = false;
        const unsigned int subIndex = key.name.toUInt(&ok);
        if (ok && !key.value.isEmpty()) {
            list.insert(subIndex, &key);
        }
    }
    return list;
}

unsigned int compactCount(const SEdsSection& section)
{
    const SEdsKey* const key = section.given(COMPACT_SUB_OBJ);
    return key == nullptr ? 0 : std::min(edsNumberOf(key->value).value.value_or(0), MAX_COMPACT);
}
} // namespace

// Shorter names can be anything else, but for data types.
bool CEdsObjects::isObject(const SEdsSection& section)
{
    const std::optional<SIndexed> name = indexedName(section.name);
    return name && name->rest.isEmpty() && section.key(PARAMETER_NAME) != nullptr;
}

bool CEdsObjects::collect(const CEdsFile& file, CRemarks& remarks, CXddRemark& failure)
{
    std::size_t count = 0;
    std::vector<const SEdsSection*> left;
    for (const SEdsSection& section : file.sections()) {
        const std::optional<SIndexed> name = indexedName(section.name);
        if (!name || (!name->hasAllDigits && section.key(PARAMETER_NAME) == nullptr)) {
            mOthers.push_back(&section);
        } else if (name->rest.isEmpty()) {
            SEdsObject& object = mObjects[name->index];
            object.section = &section;
            object.compact = compactCount(section);
            count += 1 + (object.compact > 0 ? object.compact + 1 : 0);
        } else if (!subIndexDigits(name->rest).isEmpty()) {
            ++count;
            addSubObject(name->index, section, remarks);
        } else {
            left.push_back(&section);
        }
        if (count > MAX_ENTRIES) {
            failure.mLine = section.line;
            failure.mSentence =
                CRemarks::filled(CRemarks::say("the file has more than %1 objects and sub-objects"), {MAX_ENTRIES});
            return false;
        }
    }
    for (const SEdsSection* const section : left) {
        const SIndexed name = *indexedName(section->name);
        const auto object = mObjects.find(name.index);
        EdsList* const list = object == mObjects.end() ? nullptr : listNamed(name.rest, *object);
        if (list == nullptr) {
            mOthers.push_back(section);
        } else {
            *list = listOf(*section);
        }
    }
    std::sort(mOthers.begin(), mOthers.end()); // As they stand in the file
    return true;
}

void CEdsObjects::addSubObject(unsigned int index, const SEdsSection& section, CRemarks& remarks)
{
    const QStringView digits = subIndexDigits(indexedName(section.name)->rest);
    bool ok = false;
    const unsigned int subIndex = digits.toUInt(&ok, 16);
    if (!ok || subIndex > MAX_SUB_INDEX) {
        remarks.left(
            {section.line, 0, true, false, index, std::nullopt}, QLatin1String("sub-index-range"),
            CRemarks::say("sub-index \"%1\" is above FF and is left out"), {digits.toString()});
        return;
    }
    QMap<unsigned int, const SEdsSection*>& subObjects = mObjects[index].subObjects;
    const auto known = subObjects.constFind(subIndex);
    if (known == subObjects.constEnd()) {
        subObjects.insert(subIndex, &section);
        return;
    }
    remarks.left(
        {section.line, 0, true, true, index, subIndex}, QLatin1String("section-twice"),
        CRemarks::say("section [%1] duplicates line %2 and is left out"),
        {section.name.toString(), SArgument::line((*known)->line)});
}
