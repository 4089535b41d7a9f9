#ifndef XDDNORMALIZE_CSTARTTAG_H
#define XDDNORMALIZE_CSTARTTAG_H

#include <QString>
#include <QVarLengthArray>

/** A range of characters in a text. */
struct SRange
{
    int begin = 0;
    int end = 0; ///< Behind the last character
};

/** One attribute of a start tag. */
struct SAttribute
{
    SRange name;  ///< Place of the name, without its prefix
    SRange value; ///< Place of the value, without its quotes
};

/** Reads the attributes of one start tag with their places in the text, which has to be well-formed and to outlive it.
 */
class CStartTag
{
public:
    /** Reads the tag whose "<" is at @p begin. */
    CStartTag(const QString& text, int begin);

    /** Behind the last attribute, or behind the name when there is none. */
    int attributesEnd() const;

    /** The attribute with that local name, or null. */
    const SAttribute* attribute(const QString& name) const;

private:
    const QString& mText;
    int mAttributesEnd;
    QVarLengthArray<SAttribute, 20> mAttributes; // More than an object has
};

/** The value of a raw piece of XML text: references to characters and to the five predefined entities replaced. */
QString unescaped(QStringView raw);

/** A text as the value of an attribute in double quotes. */
QString escaped(const QString& value);

#endif
