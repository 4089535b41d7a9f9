#include "canopen/Writings.h"

#include "NIso15745Tags.h"
#include "XmlValues.h"
#include "names/NFormatWords.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace NIso15745Tags;
using namespace NFormatWords;

namespace
{
template <typename Meaning> struct SWord
{
    Meaning meaning;
    QLatin1String word;
};

const std::array ACCESS_OF_ENTRIES = {
    SWord<EAccess>{EAccess::ReadOnly, VAL_OBJ_ACCESS_RO},
    SWord<EAccess>{EAccess::WriteOnly, VAL_OBJ_ACCESS_WO},
    SWord<EAccess>{EAccess::ReadWrite, VAL_OBJ_ACCESS_RW},
    SWord<EAccess>{EAccess::Const, VAL_OBJ_ACCESS_CONST},
};

const std::array ACCESS_OF_PARAMETERS = {
    SWord<EAccess>{EAccess::Const, VAL_OBJ_ACCESS_CONST},
    SWord<EAccess>{EAccess::ReadOnly, VAL_ACCESS_READ},
    SWord<EAccess>{EAccess::WriteOnly, VAL_ACCESS_WRITE},
    SWord<EAccess>{EAccess::ReadWrite, VAL_ACCESS_READ_WRITE},
    SWord<EAccess>{EAccess::ReadWrite, VAL_ACCESS_READ_WRITE_INPUT},
    SWord<EAccess>{EAccess::ReadWrite, VAL_ACCESS_READ_WRITE_OUTPUT},
    SWord<EAccess>{EAccess::None, VAL_NO_ACCESS},
};

const std::array MAPPINGS = {
    SWord<EMapping>{EMapping::No, VAL_OBJ_E_MAP_NO},          SWord<EMapping>{EMapping::Default, VAL_OBJ_MAP_DEFAULT},
    SWord<EMapping>{EMapping::Optional, VAL_OBJ_MAP_OPTINAL}, SWord<EMapping>{EMapping::Transmit, VAL_OBJ_MAP_TPDO},
    SWord<EMapping>{EMapping::Receive, VAL_OBJ_MAP_RPDO},
};

template <typename Words> auto meaningOf(const QString& text, const Words& words)
{
    using Meaning = decltype(words.front().meaning);
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty()) {
        return Meaning::NotStated;
    }
    const auto found = std::find_if(words.begin(), words.end(), [&](const SWord<Meaning>& row) {
        return trimmed.compare(row.word, Qt::CaseInsensitive) == 0;
    });
    return found == words.end() ? Meaning::Unknown : found->meaning;
}

template <typename Words, typename Meaning> QLatin1String wordOf(Meaning meaning, const Words& words)
{
    const auto found =
        std::find_if(words.begin(), words.end(), [&](const SWord<Meaning>& row) { return row.meaning == meaning; });
    return found == words.end() ? QLatin1String() : found->word;
}
} // namespace

EAccess accessOfEntry(const QString& text)
{
    return meaningOf(text, ACCESS_OF_ENTRIES);
}

EAccess accessOfParameter(const QString& text)
{
    return meaningOf(text, ACCESS_OF_PARAMETERS);
}

QStringList accessWordsOfParameters()
{
    QStringList words;
    for (const SWord<EAccess>& row : ACCESS_OF_PARAMETERS) {
        words << row.word;
    }
    return words;
}

QLatin1String accessText(EAccess access)
{
    return wordOf(access, ACCESS_OF_ENTRIES);
}

bool isReadable(EAccess access)
{
    return access == EAccess::ReadOnly || access == EAccess::ReadWrite || access == EAccess::Const;
}

bool isWritable(EAccess access)
{
    return access == EAccess::WriteOnly || access == EAccess::ReadWrite;
}

EMapping mappingOf(const QString& text)
{
    return meaningOf(text, MAPPINGS);
}

QLatin1String mappingText(EMapping mapping)
{
    return wordOf(mapping, MAPPINGS);
}

bool isMappable(EMapping mapping)
{
    return mapping != EMapping::NotStated && mapping != EMapping::No && mapping != EMapping::Unknown;
}

CNetworkCanOpenProfile::EBaudrate bitRateOf(const QString& text)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*(\\d+)\\s*(k|m|)\\s*(?:bit/s|bits/s|bps|bit|baud|bd|)\\s*$"),
        QRegularExpression::CaseInsensitiveOption);
    const QString word = text.trimmed();
    if (word.compare(VAL_BAUD_AUTO, Qt::CaseInsensitive) == 0
        || word.compare(QLatin1String("auto"), Qt::CaseInsensitive) == 0) {
        return CNetworkCanOpenProfile::BAUD_AUTO;
    }
    const QRegularExpressionMatch match = form.match(text);
    int rate = match.captured(1).toInt();
    if (match.captured(2).toLower() == QLatin1String("m")) {
        rate = rate == 1 ? 1000 : 0; // The only rate of the format in Mbit/s
    } else if (match.captured(2).isEmpty() && rate >= 10000) {
        rate = rate % 1000 == 0 ? rate / 1000 : 0; // bit/s: the highest rate in kbit/s is 1000
    }
    const auto known = static_cast<CNetworkCanOpenProfile::EBaudrate>(rate);
    return rate > 0 && CNetworkCanOpenProfile::mBaudrateTexts.contains(known) ? known
                                                                              : CNetworkCanOpenProfile::BAUD_INVALID;
}

std::optional<QDate> dateOf(const QString& text)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*(\\d{1,4})([-./])(\\d{1,2})\\2(\\d{1,4})(?:[T Z+-].*)?\\s*$"));
    const QRegularExpressionMatch match = form.match(text);
    const int first = match.captured(1).toInt();
    const int second = match.captured(3).toInt();
    const int third = match.captured(4).toInt();
    QDate date;
    if (match.capturedLength(1) == 4) {
        date = QDate(first, second, third);
    } else if (match.capturedLength(4) == 4) {
        const QDate dayFirst(third, second, first);
        const QDate monthFirst(third, first, second);
        if (!dayFirst.isValid() || !monthFirst.isValid() || dayFirst == monthFirst) {
            date = dayFirst.isValid() ? dayFirst : monthFirst;
        }
    }
    return date.isValid() ? std::optional<QDate>(date) : std::nullopt;
}

std::optional<bool> flagOf(const QString& text)
{
    const QString word = text.trimmed();
    if (word.compare(VALUE_TRUE, Qt::CaseInsensitive) == 0 || word == QLatin1String("1")) {
        return true;
    }
    if (word.compare(VALUE_FALSE, Qt::CaseInsensitive) == 0 || word == QLatin1String("0")) {
        return false;
    }
    return std::nullopt;
}
