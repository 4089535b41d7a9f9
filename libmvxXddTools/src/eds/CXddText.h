#ifndef MVXXDDTOOLS_CXDDTEXT_H
#define MVXXDDTOOLS_CXDDTEXT_H

#include <QString>

#include <vector>

/** Writes the text of an XDD. Every element keeps the line of the file that it was made from. Characters that XML does
 * not allow are left out. */
class CXddText
{
public:
    CXddText();

    void begin(QLatin1String element, int line);
    /** An attribute of the element that was begun last, from that line or from that of its element; nothing for a null
     * text. */
    void attribute(QLatin1String name, const QString& value, int line = 0);
    void attribute(QLatin1String name, QLatin1String value, int line = 0);
    /** A declaration of a namespace, which a tree has as no attribute. */
    void declaration(QLatin1String name, const QString& value);
    /** A number with at least so many hexadecimal digits. */
    void hexadecimal(QLatin1String name, unsigned int number, int digits);
    /** Ends the innermost elements. */
    void end(int count = 1);

    /** An element with a text, which may have an attribute. */
    void element(
        QLatin1String name, int line, const QString& text, QLatin1String attributeName = QLatin1String(),
        const QString& attributeValue = QString());

    const QString& text() const { return mText; }
    /** The lines of the elements, in document order. */
    const std::vector<int>& lines() const { return mLines; }
    /** The lines of the attributes, in document order; 0 for that of the element. */
    const std::vector<int>& attributeLines() const { return mAttributeLines; }

private:
    void beginLine();

    QString mText;
    std::vector<int> mLines;
    std::vector<int> mAttributeLines;
    std::vector<QLatin1String> mOpen; // Elements
    bool mIsInTag = false;            // The start tag of the innermost element takes attributes
};

#endif
