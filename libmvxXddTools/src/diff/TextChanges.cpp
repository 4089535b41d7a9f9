#include "diff/TextChanges.h"

#include "canopen/Texts.h"

#include <QHash>
#include <QMap>
#include <QSet>

#include <algorithm>

namespace
{
QString shown(const QList<CXddLabel>& labels)
{
    QStringList texts;
    for (const CXddLabel& label : labels) {
        texts << label.mLanguage + QLatin1Char('=') + label.mText;
    }
    texts.sort();
    return texts.join(QLatin1String("; "));
}

QString unitText(const CXddEntryTexts& texts)
{
    QStringList parts = {shown(texts.mUnits), texts.mUnitUri};
    parts << (texts.mMultiplier.isEmpty() ? QString() : QStringLiteral("x ") + texts.mMultiplier);
    parts << (texts.mOffset.isEmpty() ? QString() : QStringLiteral("+ ") + texts.mOffset);
    parts.removeAll(QString());
    return parts.join(QLatin1String(", "));
}

// A unit in a language that only one of them has is no other unit.
bool isOtherUnit(const QList<CXddLabel>& old, const QList<CXddLabel>& now)
{
    QHash<QString, QSet<QString>> byLanguage;
    for (const CXddLabel& label : now) {
        byLanguage[label.mLanguage] << label.mText;
    }
    return std::any_of(old.begin(), old.end(), [&byLanguage](const CXddLabel& label) {
        const auto texts = byLanguage.constFind(label.mLanguage);
        return texts != byLanguage.cend() && !texts->contains(label.mText);
    });
}

bool isOtherQuantity(const CXddEntryTexts& old, const CXddEntryTexts& now)
{
    const auto isOther = [](const QString& before, const QString& after, double otherwise) {
        return !before.isEmpty() && scaleOf(before, otherwise) != scaleOf(after, otherwise);
    };
    const bool haveUris = !old.mUnitUri.isEmpty() && !now.mUnitUri.isEmpty();
    return isOther(old.mMultiplier, now.mMultiplier, 1) || isOther(old.mOffset, now.mOffset, 0)
           || (haveUris && old.mUnitUri != now.mUnitUri) || isOtherUnit(old.mUnits, now.mUnits);
}

// Single values with what they mean; ranges are limits.
QMap<QString, QString> allowedValues(const CXddEntryTexts& texts, unsigned int dataType)
{
    QMap<QString, QString> found;
    for (const CXddAllowedValue& allowed : texts.mAllowedValues) {
        if (allowed.isSingle()) {
            const std::optional<CValue> value = CValue::read(allowed.mLow, dataType);
            const std::optional<CInteger> number = value ? value->plain() : std::nullopt;
            found.insert(number ? number->text() : allowed.mLow, shown(allowed.mLabels));
        }
    }
    return found;
}

QString joined(const QStringList& texts)
{
    return texts.join(QLatin1String("; "));
}

std::vector<STextChange> allowedChanges(
    const QMap<QString, QString>& old, const QMap<QString, QString>& now, bool isWritten)
{
    const QStringList before = old.keys();
    const QStringList after = now.keys();
    if (before == after) {
        return old == now ? std::vector<STextChange>()
                          : std::vector<STextChange>{
                              {"text-changed",
                               CRemarks::say("what allowed values mean \"%1\" -> \"%2\""),
                               {joined(old.values()), joined(now.values())}}};
    }
    const bool isLost =
        std::any_of(before.begin(), before.end(), [&now](const QString& value) { return !now.contains(value); });
    const char* const rule = before.isEmpty() || after.isEmpty() ? "text-changed"
                             : isLost && isWritten               ? "values-narrowed"
                                                                 : "values-widened";
    return {{rule, CRemarks::say("allowed values %1 -> %2"), {joined(before), joined(after)}}};
}
} // namespace

std::vector<STextChange> textChanges(
    const SEntry& oldEntry, const CXddEntryTexts& old, const SEntry& newEntry, const CXddEntryTexts& now)
{
    std::vector<STextChange> changes;
    const auto compare =
        [&changes](const char* rule, const QString& before, const QString& after, const SWords& words) {
            if (before != after) {
                changes.push_back({rule, words, {before, after}});
            }
        };
    compare("text-changed", shown(old.mLabels), shown(now.mLabels), CRemarks::say("label \"%1\" -> \"%2\""));
    compare(
        "text-changed", shown(old.mDescriptions), shown(now.mDescriptions),
        CRemarks::say("description \"%1\" -> \"%2\""));
    compare(
        isOtherQuantity(old, now) ? "unit-changed" : "text-changed", unitText(old), unitText(now),
        CRemarks::say("unit %1 -> %2"));
    const std::vector<STextChange> allowed = allowedChanges(
        allowedValues(old, oldEntry.dataType.value), allowedValues(now, newEntry.dataType.value),
        isWritable(newEntry.access.value));
    changes.insert(changes.end(), allowed.begin(), allowed.end());
    return changes;
}
