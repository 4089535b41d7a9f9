#include "ObjectSelection.h"

#include <CCanOpenNames.h>

#include <QRegularExpression>

QString SObjectSelection::text() const
{
    const QString entry = CCanOpenNames::entry(first, subIndex);
    return first == last ? entry : entry + QLatin1Char('-') + CCanOpenNames::entry(last);
}

std::optional<SObjectSelection> objectSelection(const QString& text)
{
    static const QRegularExpression form(
        QStringLiteral("^(?:0x)?([0-9a-f]{1,8})h?(?:(?::|sub)(?:0x)?([0-9a-f]{1,2})h?|-(?:0x)?([0-9a-f]{1,8})h?)?$"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(text.trimmed());
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    SObjectSelection selection;
    selection.first = match.captured(1).toUInt(nullptr, 16);
    selection.last = match.captured(3).isEmpty() ? selection.first : match.captured(3).toUInt(nullptr, 16);
    if (!match.captured(2).isEmpty()) {
        selection.subIndex = match.captured(2).toUInt(nullptr, 16);
    }
    return selection.first <= selection.last ? std::optional<SObjectSelection>(selection) : std::nullopt;
}
