#ifndef MVXXDDTOOLS_CREFERENCES_H
#define MVXXDDTOOLS_CREFERENCES_H

#include "text/CXmlTree.h"

#include <QHash>
#include <QString>

#include <optional>

/** What the elements of a description refer to by the "uniqueID" of another one. */
class CReferences
{
public:
    explicit CReferences(const CXmlTree& tree);

    /** The first element with that "uniqueID". */
    CXmlElement byId(const QString& id) const { return mById.value(id); }

    /** The parameter that an object or sub-object refers to. */
    CXmlElement parameterOf(const CXmlElement& entry) const;

    /** The type that a parameter refers to, if it is no simple one. */
    CXmlElement referredType(const CXmlElement& parameter) const;

    /** The index of the data type of a parameter, or of a type that it refers to, if that is one simple type; else 0.
     * @p isBlock for an object that is a block of data. Remembers what it finds. */
    unsigned int simpleTypeOf(const CXmlElement& described, bool isBlock);

private:
    std::optional<unsigned int> findSimpleType(const CXmlElement& described, bool isBlock, int depth);

    QHash<QString, CXmlElement> mById;
    QHash<int, unsigned int> mSimpleTypes[2]; // By where a type begins: those that were found, and those of blocks
};

#endif
