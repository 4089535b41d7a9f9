#include "CXddEntryTexts.h"

#include <QStringList>

#include <algorithm>
#include <numeric>

namespace
{
// True for "de" and "de-AT" where "de" is wanted, whatever its capitals.
bool isVarietyOf(const QString& language, const QString& wanted)
{
    const bool isLonger = language.size() > wanted.size() && !language.at(wanted.size()).isLetterOrNumber();
    return language.startsWith(wanted, Qt::CaseInsensitive) && (isLonger || language.size() == wanted.size());
}

// A language and what it is a variety of: "de-AT", "de".
QStringList fallbacksOf(const QString& language)
{
    QStringList languages;
    for (QString tag = CXddLabel::languageTag(language); !tag.isEmpty(); tag = tag.section(QLatin1Char('-'), 0, -2)) {
        languages << tag;
    }
    return languages;
}
} // namespace

CXddLabel::CXddLabel() = default;

CXddLabel::CXddLabel(const QString& language, const QString& text)
    : mLanguage(language)
    , mText(text)
{}

QString CXddLabel::languageTag(const QString& locale)
{
    const QString name = locale.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('@'), 0, 0);
    return QString(name).replace(QLatin1Char('_'), QLatin1Char('-'));
}

bool CXddLabel::isIn(const QString& language) const
{
    const QStringList languages = fallbacksOf(language);
    return std::any_of(
        languages.begin(), languages.end(), [this](const QString& wanted) { return isVarietyOf(mLanguage, wanted); });
}

QString CXddLabel::chosen(const QList<CXddLabel>& labels, const QString& language)
{
    const auto textsIn = [&labels](const QString& wanted) {
        QStringList texts;
        for (const CXddLabel& label : labels) {
            if (!label.mText.isEmpty() && (wanted.isEmpty() || isVarietyOf(label.mLanguage, wanted))) {
                texts << label.mText;
            }
        }
        return texts.join(QLatin1String("; "));
    };
    const QStringList languages = fallbacksOf(language) + QStringList(QStringLiteral("en"));
    for (const QString& wanted : languages) {
        QString texts = textsIn(wanted);
        if (!texts.isEmpty()) {
            return texts;
        }
    }
    return textsIn(QString());
}

CXddAllowedValue::CXddAllowedValue() = default;

CXddEntryTexts::CXddEntryTexts() = default;

int CXddEntryTexts::characters() const
{
    const auto sum = [](const QList<CXddLabel>& labels) {
        const auto add = [](int length, const CXddLabel& label) {
            return length + int(label.mText.size());
        };
        return std::accumulate(labels.begin(), labels.end(), 0, add);
    };
    int length = sum(mLabels) + sum(mDescriptions) + sum(mUnits);
    length += int(mUnitUri.size() + mMultiplier.size() + mOffset.size());
    for (const CXddAllowedValue& value : mAllowedValues) {
        length += int(value.mLow.size() + value.mHigh.size()) + sum(value.mLabels);
    }
    return length;
}
