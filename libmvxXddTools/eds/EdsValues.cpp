#include "eds/EdsValues.h"

#include "canopen/CValue.h"
#include "canopen/DataTypes.h"

#include <QRegularExpression>

namespace
{
// The suffix of a number literal in C.
QString withoutSuffix(const QString& text)
{
    static const QRegularExpression literal(
        QStringLiteral("^([+-]?(?:0x[0-9a-f]+|[0-9]+))(?:u|l|ul|lu|ll|ull|llu)$"),
        QRegularExpression::CaseInsensitiveOption);
    return literal.match(text).captured(1);
}

// A number as it was written, hexadecimal or decimal, without leading zeros.
QString numberText(const CInteger& number, const QString& written, bool isSigned)
{
    const bool isHexadecimal = written.contains(HEXADECIMAL_PREFIX, Qt::CaseInsensitive);
    return isHexadecimal && !isSigned && !number.isNegative()
               ? HEXADECIMAL_PREFIX + QString::number(number.magnitude(), 16).toUpper()
               : number.text();
}

// Octets are written as hexadecimal digits, two for each; nothing for another text.
QString octets(const QString& text)
{
    static const QRegularExpression digits(QStringLiteral("^(?:[0-9A-Fa-f]{2})*$"));
    QString plain = text;
    plain.remove(QRegularExpression(QStringLiteral("\\s")));
    return digits.match(plain).hasMatch() ? plain : QString();
}

QString integerText(const CValue& value, const QString& written, unsigned int dataType)
{
    const bool isSigned = valueKind(dataType) == EValueKind::Signed;
    if (!value.usesNodeId()) {
        return numberText(value.base(), written, isSigned);
    }
    return value.base() == CInteger() ? QString(NODE_ID)
                                      : NODE_ID + QLatin1Char('+') + numberText(value.base(), written, isSigned);
}
} // namespace

SEdsValue edsValue(const QString& text, unsigned int dataType)
{
    const QString trimmed = text.trimmed();
    SEdsValue result;
    switch (valueKind(dataType)) {
    case EValueKind::None:
    case EValueKind::Record:
    case EValueKind::Text:
        result.isText = dataType != TYPE_DOMAIN && dataType != TYPE_OCTET_STRING;
        result.text = result.isText ? text : octets(text);
        // Other characters than octets in a string of octets are a text that readers take as it stands.
        if (dataType == TYPE_OCTET_STRING && result.text.isEmpty()) {
            result.isText = true;
            result.text = text;
        }
        return result;
    case EValueKind::Boolean:
    case EValueKind::Unsigned:
    case EValueKind::Signed:
    case EValueKind::Real:
        break;
    }
    std::optional<CValue> value = CValue::read(trimmed, dataType);
    QString written = trimmed;
    if (!value) {
        written = withoutSuffix(trimmed);
        value = written.isEmpty() ? std::nullopt : CValue::read(written, dataType);
        result.lostSuffix = value.has_value();
    }
    if (value) {
        result.text = value->isInteger() ? integerText(*value, written, dataType) : written;
    }
    return result;
}

SEdsText edsText(const QString& text, int length)
{
    SEdsText result;
    for (QChar character : text) {
        const bool isControl = character.unicode() < 0x20 || character.unicode() == 0x7F;
        const bool cutsOff = character == QLatin1Char(';') || character == QLatin1Char('#');
        result.isTrimmed = result.isTrimmed || isControl;
        result.isReplaced = result.isReplaced || cutsOff;
        result.isUnicode = result.isUnicode || character.unicode() > 0x7E;
        result.text += isControl ? QLatin1Char(' ') : cutsOff ? QLatin1Char(',') : character;
    }
    const QString trimmed = result.text.trimmed();
    result.isTrimmed = result.isTrimmed || trimmed.size() != result.text.size();
    result.isCut = trimmed.size() > length;
    result.text = trimmed.left(length);
    if (result.text.startsWith(QLatin1Char('"'))) {
        result.text[0] = QLatin1Char('\'');
        result.isReplaced = true;
    }
    return result;
}

QString edsDate(const QDate& date)
{
    return date.toString(QStringLiteral("MM-dd-yyyy"));
}

QString edsTime(const QTime& time)
{
    if (!time.isValid()) {
        return QString();
    }
    const int hour = time.hour() % 12 == 0 ? 12 : time.hour() % 12;
    return QStringLiteral("%1:%2%3")
        .arg(hour, 2, 10, QLatin1Char('0'))
        .arg(time.minute(), 2, 10, QLatin1Char('0'))
        .arg(time.hour() < 12 ? QLatin1String("AM") : QLatin1String("PM"));
}
