#ifndef MVXXDDTOOLS_CXDDENTRYTEXTS_H
#define MVXXDDTOOLS_CXDDENTRYTEXTS_H

#include "mvxXddTools_export.h"

#include <QList>
#include <QString>

/** A text of a description in one of its languages. */
class MVXXDDTOOLS_EXPORT CXddLabel
{
public:
    /** No text. */
    CXddLabel();
    /** A text in a language. */
    CXddLabel(const QString& language, const QString& text);

    /** The language tag of a locale: "de-AT" of "de_AT.UTF-8"; a tag stays as it is. */
    static QString languageTag(const QString& locale);

    /** True for a text in a language, such as one in "de-AT" for "de" and one in "de" for "de-AT". */
    bool isIn(const QString& language) const;

    /** The texts in a language such as "de-AT", else those in "de", else those in English, else all; several are
     * separated by "; ". */
    static QString chosen(const QList<CXddLabel>& labels, const QString& language);

    QString mLanguage; ///< "lang", such as "en" or "de-AT"; empty where none is stated
    QString mText;     ///< The text, with single blanks
};

/** A value that an entry may have, or a range of values. */
class MVXXDDTOOLS_EXPORT CXddAllowedValue
{
public:
    CXddAllowedValue();

    /** True for one value. */
    bool isSingle() const { return mLow == mHigh; }

    QString mLow;             ///< The value as it is written, or "minValue" of a range
    QString mHigh;            ///< The value again, or "maxValue" of a range
    QList<CXddLabel> mLabels; ///< What it means
};

/**
 * What a description says of an entry for people: its own texts, then those of the parameter that it refers to. The
 * physical value of a number is (raw + mOffset) x mMultiplier.
 */
class MVXXDDTOOLS_EXPORT CXddEntryTexts
{
public:
    CXddEntryTexts();

    /** True when nothing is said. */
    bool isEmpty() const { return characters() == 0; }

    /** How long all texts are together. Many entries can refer to one parameter, so that what is written of all of
     * them may be far longer than the description. */
    int characters() const;

    QList<CXddLabel> mLabels;               ///< "label" and "labelRef": what it is called
    QList<CXddLabel> mDescriptions;         ///< "description" and "descriptionRef"
    QList<CXddLabel> mUnits;                ///< Labels of "unit", such as "mm"
    QString mUnitUri;                       ///< "unitURI" of "unit"
    QString mMultiplier;                    ///< "multiplier" of the parameter; empty for 1
    QString mOffset;                        ///< "offset" of the parameter; empty for 0
    QList<CXddAllowedValue> mAllowedValues; ///< "allowedValues", or the values of an "enum" type
};

#endif
