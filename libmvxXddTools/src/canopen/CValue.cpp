#include "canopen/CValue.h"

#include "names/DataTypes.h"
#include "names/Hexadecimal.h"

#include <cfloat>
#include <cmath>
#include <limits>
#include <tuple>

namespace
{
// Digits of a base and nothing else.
std::optional<quint64> digits(const QString& text, int base)
{
    for (const QChar character : text) {
        const ushort code = character.unicode();
        const bool isDigit =
            (code >= '0' && code <= '9') || (base == 16 && ((code | 0x20) >= 'a' && (code | 0x20) <= 'f'));
        if (!isDigit) {
            return std::nullopt;
        }
    }
    bool ok = false;
    const quint64 number = text.toULongLong(&ok, base);
    return ok ? std::optional<quint64>(number) : std::nullopt;
}

// Takes the node-ID off a sum with it. Returns the text itself where there is none.
QString withoutNodeId(const QString& text, bool& usesNodeId, bool& isLast)
{
    usesNodeId = text.contains(NODE_ID.at(0));
    isLast = false;
    if (!usesNodeId) {
        return text;
    }
    const QString sum = text.simplified().remove(QLatin1Char(' '));
    if (sum.compare(NODE_ID, Qt::CaseInsensitive) == 0) {
        return QStringLiteral("0");
    }
    if (sum.startsWith(NODE_ID + QLatin1Char('+'), Qt::CaseInsensitive)) {
        return sum.mid(NODE_ID.size() + 1);
    }
    if (sum.endsWith(QLatin1Char('+') + NODE_ID, Qt::CaseInsensitive)) {
        isLast = true;
        return sum.chopped(NODE_ID.size() + 1);
    }
    usesNodeId = false;
    return text;
}

// A hexadecimal number of a signed type is the pattern of its bits.
CInteger fromPattern(quint64 pattern, unsigned int dataType)
{
    if (valueKind(dataType) != EValueKind::Signed) {
        return {false, pattern};
    }
    const int bits = bitSize(dataType);
    const quint64 sign = quint64(1) << unsigned(bits - 1);
    const bool fits = bits == 64 || pattern >> unsigned(bits) == 0;
    if (!fits || (pattern & sign) == 0) {
        return {false, pattern};
    }
    return {true, bits == 64 ? ~pattern + 1 : (quint64(1) << unsigned(bits)) - pattern};
}

std::optional<CInteger> integer(const QString& text, unsigned int dataType)
{
    const bool isNegative = text.startsWith(QLatin1Char('-'));
    const bool hasSign = isNegative || text.startsWith(QLatin1Char('+'));
    const QString number = hasSign ? text.mid(1) : text;
    const bool isPattern = hasHexadecimalPrefix(number);
    const std::optional<quint64> magnitude =
        isPattern ? digits(number.mid(HEXADECIMAL_PREFIX.size()), 16) : digits(number, 10);
    if (!magnitude) {
        return std::nullopt;
    }
    return isPattern && !hasSign ? fromPattern(*magnitude, dataType) : CInteger(isNegative, *magnitude);
}

} // namespace

CInteger::CInteger(bool isNegative, quint64 magnitude)
    : mHigh(isNegative && magnitude != 0 ? -1 : 0)
    , mLow(isNegative ? ~magnitude + 1 : magnitude)
{}

CInteger CInteger::plus(unsigned int number) const
{
    CInteger sum = *this;
    sum.mLow += number;
    sum.mHigh += sum.mLow < mLow ? 1 : 0;
    return sum;
}

std::optional<unsigned int> CInteger::unsigned32() const
{
    const bool fits = mHigh == 0 && mLow <= std::numeric_limits<quint32>::max();
    return fits ? std::optional<unsigned int>(static_cast<unsigned int>(mLow)) : std::nullopt;
}

QString CInteger::text() const
{
    return (isNegative() ? QStringLiteral("-") : QString()) + QString::number(magnitude());
}

bool CInteger::operator<(const CInteger& other) const
{
    return std::tie(mHigh, mLow) < std::tie(other.mHigh, other.mLow);
}

std::optional<CValue> CValue::read(const QString& text, unsigned int dataType)
{
    CValue value;
    value.mText = dataType == TYPE_OCTET_STRING ? text.simplified().remove(QLatin1Char(' ')).toLower() : text;
    const QString trimmed = text.trimmed();
    switch (valueKind(dataType)) {
    case EValueKind::None:
    case EValueKind::Record:
    case EValueKind::Text:
        return value;
    case EValueKind::Real: {
        value.mKind = EKind::Real;
        value.mIsPattern = hasHexadecimalPrefix(trimmed);
        bool ok = false;
        value.mReal = trimmed.toDouble(&ok);
        return ok || (value.mIsPattern && digits(trimmed.mid(HEXADECIMAL_PREFIX.size()), 16))
                   ? std::optional<CValue>(value)
                   : std::nullopt;
    }
    case EValueKind::Boolean:
        if (trimmed == QLatin1String("true") || trimmed == QLatin1String("false")) {
            value.mKind = EKind::Integer;
            value.mInteger = CInteger(false, trimmed == QLatin1String("true") ? 1 : 0);
            return value;
        }
        break;
    case EValueKind::Unsigned:
    case EValueKind::Signed:
        break;
    }
    value.mKind = EKind::Integer;
    const std::optional<CInteger> number =
        integer(withoutNodeId(trimmed, value.mUsesNodeId, value.mIsNodeIdLast), dataType);
    if (!number) {
        return std::nullopt;
    }
    value.mInteger = *number;
    return value;
}

CInteger CValue::lowest(unsigned int dataType)
{
    return valueKind(dataType) == EValueKind::Signed ? CInteger(true, quint64(1) << unsigned(bitSize(dataType) - 1))
                                                     : CInteger();
}

CInteger CValue::highest(unsigned int dataType)
{
    const int bits = bitSize(dataType) - (valueKind(dataType) == EValueKind::Signed ? 1 : 0);
    return {false, std::numeric_limits<quint64>::max() >> unsigned(64 - bits)};
}

bool CValue::fits(unsigned int dataType) const
{
    if (mKind == EKind::Real) {
        return mIsPattern || dataType != TYPE_REAL32 || std::fabs(mReal) <= double(FLT_MAX);
    }
    if (mKind == EKind::Text) {
        return true;
    }
    return !(at(MIN_NODE_ID) < lowest(dataType)) && !(highest(dataType) < at(MAX_NODE_ID));
}

bool CValue::isBelow(const CValue& other) const
{
    if (mKind == EKind::Real && other.mKind == EKind::Real) {
        return !mIsPattern && !other.mIsPattern && mReal < other.mReal;
    }
    return mKind == EKind::Integer && other.mKind == EKind::Integer
           && (at(MIN_NODE_ID) < other.at(MIN_NODE_ID) || at(MAX_NODE_ID) < other.at(MAX_NODE_ID));
}

bool CValue::operator==(const CValue& other) const
{
    if (mKind != other.mKind) {
        return false;
    }
    if (mKind == EKind::Real) {
        return mIsPattern || other.mIsPattern ? mText == other.mText : !(mReal < other.mReal || other.mReal < mReal);
    }
    if (mKind == EKind::Integer) {
        return mInteger == other.mInteger && mUsesNodeId == other.mUsesNodeId;
    }
    return mText == other.mText;
}

std::optional<CInteger> CValue::plain() const
{
    return isInteger() && !mUsesNodeId ? std::optional<CInteger>(mInteger) : std::nullopt;
}

std::optional<CInteger> readInteger(const QString& text)
{
    return integer(text.trimmed(), 0);
}
