#include "eds/EdsValues.h"

#include "canopen/CValue.h"
#include "names/DataTypes.h"
#include "names/Hexadecimal.h"

#include <QRegularExpression>

#include <algorithm>

namespace
{
constexpr int FIRST_YEAR = 1970; // Programs write an earlier one where they know none

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
bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

bool beginsComment(QChar character)
{
    return character == QLatin1Char(';') || character == QLatin1Char('#');
}

// What follows a number is a comment, or other words behind a blank.
bool isComment(QStringView behind)
{
    const QStringView trimmed = behind.trimmed();
    return beginsComment(trimmed.front()) || (trimmed.size() < behind.size() && !isDigit(trimmed.front()));
}

// Two or more octal digits, the first of which is 0.
bool isOctalNumber(QStringView digits)
{
    return digits.size() > 1 && digits.front() == QLatin1Char('0')
           && std::all_of(digits.begin(), digits.end(), [](QChar character) {
                  return character >= QLatin1Char('0') && character <= QLatin1Char('7');
              });
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
    result.text = trimmed.left(length).trimmed();
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

bool isHexadecimal(QStringView text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar character) {
        const auto code = character.unicode();
        return isDigit(character) || ((code | 0x20) >= 'a' && (code | 0x20) <= 'f');
    });
}

// A leading 0 makes a number octal, unless it has digits that no octal number has.
SEdsMeaning<unsigned int> edsNumberOf(QStringView text)
{
    const bool isHex = text.startsWith(HEXADECIMAL_PREFIX, Qt::CaseInsensitive);
    const QStringView behindPrefix = text.mid(isHex ? HEXADECIMAL_PREFIX.size() : 0);
    const auto* const end = std::find_if_not(behindPrefix.begin(), behindPrefix.end(), [isHex](QChar character) {
        return isHex ? isHexadecimal(QStringView(&character, 1)) : isDigit(character);
    });
    const QStringView digits(behindPrefix.begin(), end);
    const QStringView behind = QStringView(end, behindPrefix.end());
    if (!behind.isEmpty() && !isComment(behind)) {
        return {std::nullopt, false};
    }
    const bool isOctal = !isHex && isOctalNumber(digits);
    bool ok = false;
    const unsigned int number = digits.toUInt(&ok, isHex ? 16 : isOctal ? 8 : 10);
    const bool hasUselessZero = !isHex && !isOctal && digits.size() > 1 && digits.front() == QLatin1Char('0');
    return {ok ? std::optional<unsigned int>(number) : std::nullopt, behind.isEmpty() && !hasUselessZero};
}

SEdsMeaning<QDate> edsDateOf(QStringView text)
{
    static const QRegularExpression form(
        QStringLiteral("^(\\d{1,4})([-/.])(\\d{1,2}|[A-Za-z]{3})\\2(\\d{1,4})(?:\\s.*)?$"));
    static const QStringList months = {QStringLiteral("jan"), QStringLiteral("feb"), QStringLiteral("mar"),
                                       QStringLiteral("apr"), QStringLiteral("may"), QStringLiteral("jun"),
                                       QStringLiteral("jul"), QStringLiteral("aug"), QStringLiteral("sep"),
                                       QStringLiteral("oct"), QStringLiteral("nov"), QStringLiteral("dec")};
    const QRegularExpressionMatch match = form.match(text.toString());
    int month = match.captured(1).toInt();
    int day = match.captured(3).toInt();
    int year = match.captured(4).toInt();
    bool isPlain = match.captured(2) == QLatin1String("-") && match.capturedLength(4) == 4;
    if (match.capturedLength(1) > 2) {
        isPlain = false;
        year = match.captured(1).toInt();
        month = match.captured(3).toInt();
        day = match.captured(4).toInt();
    } else if (months.contains(match.captured(3).toLower())) {
        isPlain = false;
        day = month;
        month = int(months.indexOf(match.captured(3).toLower())) + 1;
    } else if (month > 12) {
        isPlain = false;
        std::swap(month, day);
    } else if (match.captured(2) == QLatin1String(".") && day <= 12 && day != month) {
        return {std::nullopt, false}; // With dots the day comes first at least as often
    }
    const bool isShort = match.capturedLength(1) <= 2 && match.capturedLength(4) <= 2;
    const QDate date(isShort ? year + 2000 : year, month, day);
    const bool isMeant = match.hasMatch() && date.isValid() && date.year() >= FIRST_YEAR;
    return {isMeant ? std::optional<QDate>(date) : std::nullopt, isPlain};
}

SEdsMeaning<QTime> edsTimeOf(QStringView text)
{
    static const QRegularExpression form(
        QStringLiteral("^(\\d{1,2}):(\\d{1,2})(?::(\\d{1,2}))?(\\s*)([AP]M)?$"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(text.toString());
    const QString half = match.captured(5).toUpper();
    int hour = match.captured(1).toInt();
    if (!half.isEmpty() && hour <= 12) {
        hour = hour % 12 + (half == QLatin1String("PM") ? 12 : 0);
    }
    const QTime time(hour, match.captured(2).toInt(), match.captured(3).toInt());
    const bool isPlain = !half.isEmpty() && match.captured(3).isEmpty() && match.captured(4).isEmpty();
    return {match.hasMatch() && time.isValid() ? std::optional<QTime>(time) : std::nullopt, isPlain};
}

SEdsMeaning<QString> edsValueOf(QStringView text)
{
    const auto* const comment = std::find_if(text.begin(), text.end(), beginsComment);
    QStringView value = QStringView(text.begin(), comment).trimmed();
    const bool hasSign = value.startsWith(QLatin1Char('-')) || value.startsWith(QLatin1Char('+'));
    const QStringView digits = value.mid(hasSign ? 1 : 0);
    bool ok = false;
    const quint64 number = isOctalNumber(digits) ? digits.toULongLong(&ok, 8) : 0;
    if (ok && number != digits.toULongLong()) {
        return {value.left(hasSign ? 1 : 0).toString() + QString::number(number), false};
    }
    return {value.toString(), value.size() == text.size()};
}

SEdsMeaning<QString> edsTextOf(QStringView text)
{
    const QLatin1Char quote('"');
    const bool isQuoted = text.size() >= 2 && text.front() == quote && text.back() == quote
                          && text.mid(1, text.size() - 2).indexOf(quote) < 0;
    return {(isQuoted ? text.mid(1, text.size() - 2) : text).toString(), !isQuoted};
}
