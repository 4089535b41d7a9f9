#include "CommonElements.h"

#include "NIso15745Tags.h"
#include "TextTables.h"

#include <utility>

using namespace NIso15745Tags;

// The tables end with a copy of the invalid text, so it has to be built before them.
const QString CVersion::mInvalidStr = QLatin1String("_invalid_");

const QStringList CVersion::mVersionTypeTexts = {VAL_VTYPE_SW, VAL_VTYPE_FW, VAL_VTYPE_HW, mInvalidStr};

const QString CGLabel::mInvalidStr = QLatin1String("_invalid_");

const QStringList CGLabel::mGLabTypeTexts = {
    VAL_GLABTYP_LABEL, VAL_GLABTYP_DESCRIPTION, VAL_GLABTYP_LABEL_REF, VAL_GLABTYP_DESCRIPTION_REF, mInvalidStr,
};

CGLabel::CGLabel() = default;

CGLabel::CGLabel(EGLabelsType type)
    : mType(type)
{}

QString CGLabel::gLabelTypeAsStr(EGLabelsType type)
{
    return textOf(mGLabTypeTexts, type, mInvalidStr);
}

CGLabel::EGLabelsType CGLabel::gLabelTypeFromStr(QString const& text)
{
    return valueOf(mGLabTypeTexts, text, GLABTYP_INVALID);
}

CGLabels::CGLabels() = default;

CGLabels::CGLabels(CGLabel::EGLabelsType type)
{
    append(CGLabel(type));
}

bool CGLabels::valid() const
{
    return !isEmpty() && first().mType != CGLabel::GLABTYP_INVALID;
}

CWriteProtectString::CWriteProtectString(bool readOnly, QString value)
    : mValue(std::move(value))
    , mReadOnly(readOnly)
{}

CWriteProtectGLabels::CWriteProtectGLabels(bool readOnly, CGLabel::EGLabelsType type)
    : mLabels(type)
    , mReadOnly(readOnly)
{}

bool CWriteProtectGLabels::valid() const
{
    return mLabels.valid();
}

CVersion::CVersion(bool readOnly)
    : CWriteProtectString(readOnly, QString())
{}

QString CVersion::versionTypeAsStr(EVersionType type)
{
    return textOf(mVersionTypeTexts, type, mInvalidStr);
}

CVersion::EVersionType CVersion::versionTypeFromStr(QString const& text)
{
    return valueOf(mVersionTypeTexts, text, VTYPE_INVALID);
}

CCharacteristic::CCharacteristic(CGLabel::EGLabelsType nameType, CGLabel::EGLabelsType contentType)
    : mCharacteristicName(nameType)
    , mCharacteristicContent(contentType)
{}

bool CCharacteristic::valid() const
{
    return mCharacteristicName.valid() && mCharacteristicContent.valid();
}
