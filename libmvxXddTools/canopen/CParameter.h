#ifndef MVXXDDTOOLS_CPARAMETER_H
#define MVXXDDTOOLS_CPARAMETER_H

#include "text/CXmlText.h"

#include <QString>

class CDescription;

/** A "parameter" of the application process: what it states about the objects and sub-objects that refer to it. */
class CParameter
{
public:
    /** A parameter that is not there and states nothing. */
    CParameter() = default;

    CParameter(const CDescription& description, const CXmlElement& element);

    bool isNull() const;
    CXmlElement element() const;

    /** The index of the data type, such as "0x0007", of an entry with that object code; empty when the parameter does
     * not have one simple type. */
    QString dataType(const QString& objectType) const;
    /** The access type in the words of an object, such as "rw"; empty when it states none. */
    QString accessType() const;
    /** The type that it refers to, if it is no simple one. */
    CXmlElement referredType() const;

    // The elements whose "value" the entry has; null when the parameter does not state it.
    CXmlElement lowLimit() const;
    CXmlElement highLimit() const;
    CXmlElement defaultValue() const;
    CXmlElement actualValue() const;

private:
    CXmlElement limit(QLatin1String name) const;

    const CDescription* mDescription = nullptr;
    CXmlElement mElement;
};

#endif
