#include "canopen/Texts.h"

#include "NIso15745Tags.h"
#include "names/NFormatWords.h"

#include <algorithm>

using namespace NIso15745Tags;
using namespace NFormatWords;

namespace
{
// As many characters of texts an entry or a parameter has; what comes behind is cut or left.
constexpr int MAX_CHARACTERS = 8000;

// Adds a text that is not there yet.
void addNew(QList<CXddLabel>& labels, const CXddLabel& label)
{
    const bool isKnown = std::any_of(labels.begin(), labels.end(), [&label](const CXddLabel& known) {
        return known.mLanguage == label.mLanguage && known.mText == label.mText;
    });
    if (!label.mText.isEmpty() && !isKnown) {
        labels << label;
    }
}

// Collects the texts of one entry or parameter, up to that size.
class CTextCollector
{
public:
    explicit CTextCollector(const CDescription& description)
        : mDescription(description)
    {}

    // The labels and descriptions among the children of an element.
    void addTexts(const CXmlElement& element, QList<CXddLabel>& labels, QList<CXddLabel>& descriptions)
    {
        for (CXmlElement child = element.firstChild(); isNext(child); child = child.nextSibling()) {
            if (child.is(VAL_GLABTYP_LABEL)) {
                add(labels, {child.attribute(ATTR_LANG), child.text()});
            } else if (child.is(VAL_GLABTYP_DESCRIPTION)) {
                add(descriptions, {child.attribute(ATTR_LANG), child.text()});
            } else if (child.is(VAL_GLABTYP_LABEL_REF)) {
                addReferenced(labels, child);
            } else if (child.is(VAL_GLABTYP_DESCRIPTION_REF)) {
                addReferenced(descriptions, child);
            }
        }
    }

    // Labels and descriptions alike.
    QList<CXddLabel> allTexts(const CXmlElement& element)
    {
        QList<CXddLabel> texts;
        addTexts(element, texts, texts);
        return texts;
    }

    // Those of the parameter, else those of the enumeration that it refers to.
    QList<CXddAllowedValue> allowedValues(const CXmlElement& parameter)
    {
        QList<CXddAllowedValue> values;
        const CXmlElement stated = parameter.child(TAG_ALLOWED_VALUES);
        for (CXmlElement child = stated.firstChild(); isNext(child); child = child.nextSibling()) {
            if (child.is(TAG_VALUE)) {
                values << allowed(child, child, child);
            } else if (child.is(TAG_RANGE)) {
                values << allowed(child, child.child(TAG_MIN_VALUE), child.child(TAG_MAX_VALUE));
            }
        }
        const CXmlElement type = mDescription.references().referredType(parameter);
        CXmlElement child = values.isEmpty() && type.is(TAG_ENUM) ? type.firstChild() : CXmlElement();
        for (; isNext(child); child = child.nextSibling()) {
            if (child.is(TAG_ENUM_VALUE)) {
                values << allowed(child, child, child);
            }
        }
        return values;
    }

private:
    // Every element that is looked at counts as a character.
    bool isNext(const CXmlElement& element) { return !element.isNull() && --mLeft > 0; }

    QString taken(const QString& text)
    {
        const bool isCut = text.size() > mLeft;
        QString result = isCut ? text.left(mLeft) + QLatin1String("...") : text;
        mLeft -= int(result.size());
        return result;
    }

    void add(QList<CXddLabel>& labels, CXddLabel label)
    {
        label.mText = taken(label.mText.simplified());
        addNew(labels, label);
    }

    // The texts that a reference names in a dictionary of the description; where those are in a file of their own,
    // which is never opened, what the reference itself says.
    void addReferenced(QList<CXddLabel>& labels, const CXmlElement& reference)
    {
        const QString dictionary = reference.attribute(ATTR_DICT_ID);
        const QString text = reference.attribute(ATTR_TEXT_ID);
        const QList<CXddLabel> found = mDescription.dictionaryTexts(dictionary, text);
        for (const CXddLabel& label : found) {
            add(labels, label);
        }
        if (found.isEmpty()) {
            const QString own = reference.text().trimmed();
            add(labels, {QString(), own.isEmpty() ? dictionary + QLatin1Char('#') + text : own});
        }
    }

    CXddAllowedValue allowed(const CXmlElement& element, const CXmlElement& low, const CXmlElement& high)
    {
        CXddAllowedValue value;
        value.mLow = taken(low.attribute(ATTR_VALUE));
        value.mHigh = high == low ? value.mLow : taken(high.attribute(ATTR_VALUE));
        value.mLabels = allTexts(element);
        return value;
    }

    const CDescription& mDescription;
    int mLeft = MAX_CHARACTERS;
};
} // namespace

QList<CXddLabel> textsIn(const CXmlElement& list, const CDescription& description)
{
    return CTextCollector(description).allTexts(list);
}

QString joinedTexts(QStringList texts, QLatin1String separator)
{
    texts.removeAll(QString());
    return texts.join(separator);
}

std::optional<double> scaleOf(const QString& text, double otherwise)
{
    bool ok = false;
    const double number = text.trimmed().toDouble(&ok);
    return ok                         ? std::optional<double>(number)
           : text.trimmed().isEmpty() ? std::optional<double>(otherwise)
                                      : std::nullopt;
}

CTexts::CTexts(const CDescription& description)
    : mDescription(description)
{}

CXddEntryTexts CTexts::of(const SEntry& entry)
{
    CXddEntryTexts texts;
    if (!entry.parameter.isNull()) {
        const int key = entry.parameter.range().begin;
        if (!mOfParameters.contains(key)) {
            mOfParameters.insert(key, ofParameter(entry.parameter));
        }
        texts = mOfParameters.value(key);
    }
    if (entry.element.firstChild().isNull()) {
        return texts;
    }
    CXddEntryTexts own;
    CTextCollector(mDescription).addTexts(entry.element, own.mLabels, own.mDescriptions);
    const auto addBehind = [](QList<CXddLabel>& labels, const QList<CXddLabel>& others) {
        for (const CXddLabel& label : others) {
            addNew(labels, label);
        }
        return labels;
    };
    texts.mLabels = addBehind(own.mLabels, texts.mLabels);
    texts.mDescriptions = addBehind(own.mDescriptions, texts.mDescriptions);
    return texts;
}

CXddEntryTexts CTexts::ofParameter(const CXmlElement& parameter) const
{
    CXddEntryTexts texts;
    CTextCollector collector(mDescription);
    const CXmlElement unit = parameter.child(TAG_UNIT);
    collector.addTexts(parameter, texts.mLabels, texts.mDescriptions);
    texts.mUnits = collector.allTexts(unit);
    texts.mUnitUri = unit.attribute(ATTR_UNIT_URI);
    texts.mMultiplier = parameter.attribute(ATTR_MULTIPLIER);
    texts.mOffset = parameter.attribute(ATTR_OFFSET);
    texts.mAllowedValues = collector.allowedValues(parameter);
    return texts;
}
