#include "canopen/CReferences.h"

#include "NIso15745Tags.h"
#include "names/DataTypes.h"
#include "names/NFormatWords.h"

#include <QSet>

using namespace NIso15745Tags;
using namespace NFormatWords;

namespace
{
// Depth up to which a data type is followed to the type that it is derived from.
constexpr int MAX_TYPE_DEPTH = 16;
} // namespace

CReferences::CReferences(const CXmlTree& tree)
{
    for (const CXmlElement& element : tree.all()) {
        const QString id = element.attribute(ATTR_UNIQUE_ID);
        if (!id.isEmpty() && !mById.contains(id)) {
            mById.insert(id, element);
        }
    }
}

CXmlElement CReferences::parameterOf(const CXmlElement& entry) const
{
    const QString id = entry.attribute(ATTR_UNIQUE_ID_REF);
    const CXmlElement parameter = id.isEmpty() ? CXmlElement() : byId(id);
    return parameter.is(TAG_PARAMETER) ? parameter : CXmlElement();
}

CXmlElement CReferences::referredType(const CXmlElement& parameter) const
{
    const CXmlElement reference = parameter.child(TAG_DATA_TYPE_ID_REF);
    return reference.isNull() ? CXmlElement() : byId(reference.attribute(ATTR_UNIQUE_ID_REF));
}

unsigned int CReferences::simpleTypeOf(const CXmlElement& described, bool isBlock)
{
    return findSimpleType(described, isBlock, 0).value_or(0);
}

// Nothing for a type that is derived from itself or too often, which ends the search: types may refer to many others.
std::optional<unsigned int> CReferences::findSimpleType(const CXmlElement& described, bool isBlock, int depth)
{
    if (depth > MAX_TYPE_DEPTH) {
        return std::nullopt;
    }
    if (described.isNull() || described.is(TAG_ARRAY) || described.is(TAG_STRUCT)) {
        return 0;
    }
    QHash<int, unsigned int>& found = mSimpleTypes[isBlock ? 1 : 0];
    const int place = described.range().begin;
    if (found.contains(place)) {
        return found.value(place);
    }
    QSet<unsigned int> types;
    for (CXmlElement child = described.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.is(TAG_DATA_TYPE_ID_REF)) {
            const auto type = findSimpleType(byId(child.attribute(ATTR_UNIQUE_ID_REF)), isBlock, depth + 1);
            if (!type) {
                return std::nullopt;
            }
            types << *type;
        } else {
            // Blocks of data are bit strings, too, and have a type of their own.
            types << (isBlock && child.is(TAG_BITSTRING) ? TYPE_DOMAIN : simpleType(child.name()));
        }
    }
    types.remove(0);
    const unsigned int type = types.size() == 1 ? *types.cbegin() : 0;
    found.insert(place, type);
    return type;
}
