#include "canopen/BitRates.h"

#include "NIso15745Tags.h"

#include <CNetworkCanOpenProfile.h>

#include <QRegularExpression>

using namespace NIso15745Tags;

QString bitRateText(const QString& text)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*(\\d+)\\s*(k|m|)\\s*(?:bit/s|bits/s|bps|bit|baud|bd|)\\s*$"),
        QRegularExpression::CaseInsensitiveOption);
    QString automatic = VAL_BAUD_AUTO;
    const QString word = text.trimmed().toLower();
    if (word == automatic.toLower() || word == QLatin1String("auto")) {
        return automatic;
    }
    const QRegularExpressionMatch match = form.match(text);
    int rate = match.captured(1).toInt();
    if (match.captured(2).toLower() == QLatin1String("m")) {
        rate = rate == 1 ? 1000 : 0; // The only rate of the format in Mbit/s
    } else if (match.captured(2).isEmpty() && rate >= 10000) {
        rate = rate % 1000 == 0 ? rate / 1000 : 0; // bit/s: the highest rate in kbit/s is 1000
    }
    const auto known = static_cast<CNetworkCanOpenProfile::EBaudrate>(rate);
    return rate > 0 ? CNetworkCanOpenProfile::mBaudrateTexts.value(known) : QString();
}
