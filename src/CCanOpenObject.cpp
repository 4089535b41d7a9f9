#include "CCanOpenObject.h"

#include "NIso15745Tags.h"
#include "TextTables.h"

using namespace NIso15745Tags;

// The tables contain the invalid text, so it has to be built before them.
const QString CCanOpenSubObject::mInvalidStr = QLatin1String("_invalid_");

const QMap<CCanOpenSubObject::EPdoMapping, QString> CCanOpenSubObject::mPdoMappingTexts = createMappingMap();

const QMap<CCanOpenSubObject::EAccessType, QString> CCanOpenSubObject::mAccessTypeTexts = createAccessMap();

CCanOpenSubObject::CCanOpenSubObject() = default;

CCanOpenSubObject::CCanOpenSubObject(unsigned int index, QString const& name, unsigned char objectType)
    : mIndex(index)
    , mName(name)
    , mObjectType(objectType)
{}

bool CCanOpenSubObject::isValid() const
{
    return !mName.isEmpty();
}

QString CCanOpenSubObject::accessTypeAsStr(EAccessType accessType)
{
    return textOf(mAccessTypeTexts, accessType, mInvalidStr);
}

CCanOpenSubObject::EAccessType CCanOpenSubObject::accessTypeFromStr(QString const& text)
{
    return valueOf(mAccessTypeTexts, text, OBJ_ACCESS_INVALID);
}

QString CCanOpenSubObject::pdoMappingAsStr(EPdoMapping pdoMapping)
{
    return textOf(mPdoMappingTexts, pdoMapping, mInvalidStr);
}

CCanOpenSubObject::EPdoMapping CCanOpenSubObject::pdoMappingFromStr(QString const& text)
{
    return valueOf(mPdoMappingTexts, text, OBJ_MAP_INVALID);
}

QMap<CCanOpenSubObject::EAccessType, QString> CCanOpenSubObject::createAccessMap()
{
    return {
        {OBJ_ACCESS_INVALID, mInvalidStr},        {OBJ_ACCESS_RO, VAL_OBJ_ACCESS_RO},
        {OBJ_ACCESS_WO, VAL_OBJ_ACCESS_WO},       {OBJ_ACCESS_RW, VAL_OBJ_ACCESS_RW},
        {OBJ_ACCESS_CONST, VAL_OBJ_ACCESS_CONST},
    };
}

QMap<CCanOpenSubObject::EPdoMapping, QString> CCanOpenSubObject::createMappingMap()
{
    return {
        {OBJ_MAP_INVALID, mInvalidStr},         {OBJ_MAP_NO, VAL_OBJ_E_MAP_NO},
        {OBJ_MAP_DEFAULT, VAL_OBJ_MAP_DEFAULT}, {OBJ_MAP_OPTIONAL, VAL_OBJ_MAP_OPTINAL},
        {OBJ_MAP_TPDO, VAL_OBJ_MAP_TPDO},       {OBJ_MAP_RPDO, VAL_OBJ_MAP_RPDO},
    };
}

CCanOpenObject::CCanOpenObject() = default;

CCanOpenObject::CCanOpenObject(unsigned int index, QString const& name, unsigned char objectType)
    : CCanOpenSubObject(index, name, objectType)
{}
