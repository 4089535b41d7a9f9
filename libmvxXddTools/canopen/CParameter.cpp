#include "canopen/CParameter.h"

#include "NIso15745Tags.h"
#include "canopen/CDescription.h"
#include "canopen/ObjectCodes.h"
#include "canopen/ProcessNames.h"

using namespace NIso15745Tags;
using namespace NProcessNames;

namespace
{
QString accessTypeOf(const QString& access)
{
    if (access == QLatin1String("read")) {
        return VAL_OBJ_ACCESS_RO;
    }
    if (access == QLatin1String("write")) {
        return VAL_OBJ_ACCESS_WO;
    }
    if (access == QLatin1String("const")) {
        return VAL_OBJ_ACCESS_CONST;
    }
    const bool isReadWrite = access == QLatin1String("readWrite") || access == QLatin1String("readWriteInput")
                             || access == QLatin1String("readWriteOutput");
    return isReadWrite ? QString(VAL_OBJ_ACCESS_RW) : QString();
}
} // namespace

CParameter::CParameter(const CDescription& description, const CXmlElement& element)
    : mDescription(&description)
    , mElement(element)
{}

bool CParameter::isNull() const
{
    return mElement.isNull();
}

CXmlElement CParameter::element() const
{
    return mElement;
}

QString CParameter::dataType(const QString& objectType) const
{
    return isNull() ? QString() : mDescription->simpleTypeOf(mElement, objectType.toUInt() == CODE_DOMAIN);
}

// Without the attribute a value can be read; arrays and structures have no access of their own.
QString CParameter::accessType() const
{
    if (mElement.has(ATTR_ACCESS)) {
        return accessTypeOf(mElement.attribute(ATTR_ACCESS));
    }
    return dataType(QString()).isEmpty() ? QString() : QString(VAL_OBJ_ACCESS_RO);
}

CXmlElement CParameter::referredType() const
{
    const CXmlElement reference = mElement.child(TAG_DATA_TYPE_ID_REF);
    return reference.isNull() ? CXmlElement() : mDescription->byUniqueId(reference.attribute(ATTR_UNIQUE_ID_REF));
}

CXmlElement CParameter::lowLimit() const
{
    return limit(TAG_MIN_VALUE);
}

CXmlElement CParameter::highLimit() const
{
    return limit(TAG_MAX_VALUE);
}

CXmlElement CParameter::defaultValue() const
{
    return mElement.child(ATTR_DEFAULT_VALUE);
}

CXmlElement CParameter::actualValue() const
{
    return mElement.child(ATTR_ACTUAL_VALUE);
}

// Only one range is a limit; of several none is.
CXmlElement CParameter::limit(QLatin1String name) const
{
    const std::vector<CXmlElement> ranges = mElement.child(TAG_ALLOWED_VALUES).children(TAG_RANGE);
    return ranges.size() == 1 ? ranges.front().child(name) : CXmlElement();
}
