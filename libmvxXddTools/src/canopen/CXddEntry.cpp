#include "CXddEntry.h"

#include "CCanOpenNames.h"

#include "names/ObjectCodes.h"

CXddValue::CXddValue() = default;

CXddValue::CXddValue(const QString& text, EOrigin origin)
    : mText(text)
    , mOrigin(origin)
{}

CXddEntry::CXddEntry() = default;

QString CXddEntry::address() const
{
    return CCanOpenNames::entry(mIndex, mSubIndex);
}

QString CXddEntry::fullName() const
{
    return CCanOpenNames::fullName(mObjectName, mName);
}

QString CXddEntry::typeText(bool isShort) const
{
    if (mObjectCode != CODE_VAR || mDataType == 0) {
        return CCanOpenNames::objectCode(mObjectCode);
    }
    return isShort ? CCanOpenNames::shortDataType(mDataType) : CCanOpenNames::dataType(mDataType);
}

QString CXddEntry::accessText() const
{
    return mAccessType == CCanOpenSubObject::OBJ_ACCESS_INVALID ? QString()
                                                                : CCanOpenSubObject::accessTypeAsStr(mAccessType);
}

QString CXddEntry::mappingText() const
{
    return mPdoMapping == CCanOpenSubObject::OBJ_MAP_INVALID ? QString()
                                                             : CCanOpenSubObject::pdoMappingAsStr(mPdoMapping);
}

QString CXddEntry::rangeText() const
{
    return mMinimum.isEmpty() ? QString() : mMinimum + QLatin1String("..") + mMaximum;
}
