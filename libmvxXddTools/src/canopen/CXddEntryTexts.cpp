#include "CXddEntryTexts.h"

#include <QStringList>

#include <numeric>

namespace
{
// True for "de" and "de-AT", whatever its capitals.
bool isIn(const QString& language, const QString& wanted)
{
    const bool isLonger = language.size() > wanted.size() && !language.at(wanted.size()).isLetterOrNumber();
    return language.startsWith(wanted, Qt::CaseInsensitive) && (isLonger || language.size() == wanted.size());
}
} // namespace

CXddLabel::CXddLabel() = default;

CXddLabel::CXddLabel(const QString& language, const QString& text)
    : mLanguage(language)
    , mText(text)
{}

QString CXddLabel::chosen(const QList<CXddLabel>& labels, const QString& language)
{
    const auto textsIn = [&labels](const QString& wanted) {
        QStringList texts;
        for (const CXddLabel& label : labels) {
            if (!label.mText.isEmpty() && (wanted.isEmpty() || isIn(label.mLanguage, wanted))) {
                texts << label.mText;
            }
        }
        return texts.join(QLatin1String("; "));
    };
    for (const QString& wanted : {language, QStringLiteral("en")}) {
        QString texts = wanted.isEmpty() ? QString() : textsIn(wanted);
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
