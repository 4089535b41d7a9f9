#ifndef MVXISO15745XML_COMMONELEMENTS_H
#define MVXISO15745XML_COMMONELEMENTS_H

#include "mvxIso15745Xml_export.h"

#include <QList>
#include <QString>
#include <QStringList>

/** @file
 * The building blocks that descriptions repeat in many places: labels, write-protected values, versions and
 * characteristics.
 */

/**
 * One entry of a g_labels list: a text in one language, or a reference into a text dictionary.
 *
 * An entry uses only the fields of its kind, the others stay empty: "label" and "description" use mText, mLang and
 * (description only) mUri; "labelRef" and "descriptionRef" use mRefText, mDictId and mTextId.
 */
class MVXISO15745XML_EXPORT CGLabel
{
public:
    /** Kind of an entry, from its tag name. Each value is the position in mGLabTypeTexts. */
    enum EGLabelsType : int
    {
        GLABTYP_LABEL = 0,           ///< "label"
        GLABTYP_DESCRIPTION = 1,     ///< "description"
        GLABTYP_LABEL_REF = 2,       ///< "labelRef"
        GLABTYP_DESCRIPTION_REF = 3, ///< "descriptionRef"
        GLABTYP_INVALID = 4          ///< any other tag name
    };

    /** An entry of the type GLABTYP_INVALID without texts. */
    CGLabel();

    /** An entry of the given type without texts. */
    explicit CGLabel(EGLabelsType type);

    /** The tag name of a type; mInvalidStr for GLABTYP_INVALID and for a value outside the enumeration. */
    static QString gLabelTypeAsStr(EGLabelsType type);

    /** The type of a tag name, compared exactly; GLABTYP_INVALID for an unknown one. */
    static EGLabelsType gLabelTypeFromStr(QString const& text);

    /** "_invalid_", the text of the invalid enumerator. */
    static const QString mInvalidStr;

    /** The text of every EGLabelsType at its value, mInvalidStr last. */
    static const QStringList mGLabTypeTexts;

    EGLabelsType mType = GLABTYP_INVALID; ///< kind of the entry
    QString mText;                        ///< content of a label or description
    QString mLang;                        ///< attribute "lang" of a label or description, a language code such as "en"
    QString mUri;                         ///< attribute "URI" of a description, optional
    QString mRefText;                     ///< content of a labelRef or descriptionRef
    QString mDictId;                      ///< attribute "dictID" of a reference
    QString mTextId;                      ///< attribute "textID" of a reference
};

/** A g_labels list: the entries of one element in document order. */
class MVXISO15745XML_EXPORT CGLabels : public QList<CGLabel>
{
public:
    /** An empty list, which is not valid. */
    CGLabels();

    /** A list with one entry of the given type without texts. */
    explicit CGLabels(CGLabel::EGLabelsType type);

    /** True when the list has an entry and the first one is not of the type GLABTYP_INVALID. */
    bool valid() const;
};

/** A text with a read-only flag: an element with the attribute "readOnly". */
class MVXISO15745XML_EXPORT CWriteProtectString
{
public:
    /** The given value with the given flag. */
    CWriteProtectString(bool readOnly, QString value);

    QString mValue; ///< content of the element
    bool mReadOnly; ///< attribute "readOnly": true when a tool must not change the value
};

/** A g_labels list with a read-only flag: an element with the attribute "readOnly". */
class MVXISO15745XML_EXPORT CWriteProtectGLabels
{
public:
    /** A list with one entry of the given type without texts, with the given flag. */
    CWriteProtectGLabels(bool readOnly, CGLabel::EGLabelsType type);

    /** True when the list is valid (CGLabels::valid); the flag plays no part. */
    bool valid() const;

    CGLabels mLabels; ///< entries of the element
    bool mReadOnly;   ///< attribute "readOnly": true when a tool must not change the texts
};

/** One element "version": the version of the device's software, firmware or hardware. */
class MVXISO15745XML_EXPORT CVersion : public CWriteProtectString
{
public:
    /** What a version is the version of, the attribute "versionType". Each value is the position in
     * mVersionTypeTexts. */
    enum EVersionType : int
    {
        VTYPE_SW = 0,     ///< "SW", software
        VTYPE_FW = 1,     ///< "FW", firmware
        VTYPE_HW = 2,     ///< "HW", hardware
        VTYPE_INVALID = 3 ///< absent, or any other text
    };

    /** An empty version of the type VTYPE_INVALID with the given flag. A "version" without "readOnly" is not
     * read-only. */
    explicit CVersion(bool readOnly);

    /** The text of a version type; mInvalidStr for VTYPE_INVALID and for a value outside the enumeration. */
    static QString versionTypeAsStr(EVersionType type);

    /** The version type of a text, compared exactly; VTYPE_INVALID for an unknown text. */
    static EVersionType versionTypeFromStr(QString const& text);

    /** "_invalid_", the text of the invalid enumerator. */
    static const QString mInvalidStr;

    /** The text of every EVersionType at its value, mInvalidStr last. */
    static const QStringList mVersionTypeTexts;

    EVersionType mVersionType = VTYPE_INVALID; ///< attribute "versionType", optional
};

/** One element "characteristic" of the device function: what the device can do, as a name and a content. */
class MVXISO15745XML_EXPORT CCharacteristic
{
public:
    /** A name and a content of one entry each, of the given types and without texts. */
    CCharacteristic(CGLabel::EGLabelsType nameType, CGLabel::EGLabelsType contentType);

    /** True when both lists are valid (CGLabels::valid). */
    bool valid() const;

    CGLabels mCharacteristicName;    ///< element "characteristicName"
    CGLabels mCharacteristicContent; ///< element "characteristicContent"
};

#endif
