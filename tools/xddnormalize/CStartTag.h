#ifndef XDDNORMALIZE_CSTARTTAG_H
#define XDDNORMALIZE_CSTARTTAG_H

#include <QString>
#include <QVector>

/** A range of characters in a text. */
struct SRange
{
    int begin = 0;
    int end = 0; ///< Behind the last character
};

/** One attribute of a start tag. */
struct SAttribute
{
    QString qualifiedName; ///< Name as written
    QString name;          ///< Name without its prefix
    SRange value;          ///< Place of the value, without its quotes
};

/** Reads the attributes of one start tag with their places in the text. The text has to be well-formed. */
class CStartTag
{
public:
    /** Reads the tag whose "<" is at @p begin. */
    CStartTag(const QString& text, int begin);

    /** Behind the name of the element. */
    int nameEnd() const;

    /** Behind the last attribute, or behind the name when there is none. */
    int attributesEnd() const;

    /** Number of attributes, namespace declarations included. */
    int count() const;

    /** The attribute with that local name, or null. */
    const SAttribute* attribute(const QString& name) const;

private:
    int mNameEnd;
    int mAttributesEnd;
    QVector<SAttribute> mAttributes;
};

/** The value of a raw piece of XML text: references to characters and to the five predefined entities replaced. */
QString unescaped(QStringView raw);

/** A text as the value of an attribute in double quotes. */
QString escaped(const QString& value);

#endif
