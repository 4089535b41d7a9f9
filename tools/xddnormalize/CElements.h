#ifndef XDDNORMALIZE_CELEMENTS_H
#define XDDNORMALIZE_CELEMENTS_H

#include <QString>

#include <deque>
#include <vector>

class QXmlStreamReader;

/** One element with its places in the text. */
struct SElement
{
    QString name;            ///< Name without its prefix
    QString prefix;          ///< Prefix with its colon, or nothing
    int begin = 0;           ///< The "<" of the start tag
    int contentBegin = 0;    ///< Behind the ">" of the start tag
    int contentEnd = 0;      ///< The "<" of the end tag
    int end = 0;             ///< Behind the end tag
    int line = 0;            ///< Line of the start tag, from 1
    bool isEmptyTag = false; ///< Written as one tag that ends with "/>"
    int namespaces = 0;      ///< Namespace declarations in force inside
    SElement* parent = nullptr;
    std::vector<SElement*> children; ///< Child elements in document order

    /** The first child with that name, or null. */
    SElement* child(const QString& childName) const;

    /** Every child with that name. */
    std::vector<SElement*> childrenNamed(const QString& childName) const;
};

/** The elements of an XML text. */
class CElements
{
public:
    /**
     * Finds all elements of a text.
     *
     * @return false, with a message that names line and column, when the text is not well-formed, or does not keep the
     *         limits of the library
     */
    bool find(const QString& text, QString& errorText);

    /** The root element. */
    const SElement& root() const;

    /** All elements in document order. */
    const std::deque<SElement>& all() const;

private:
    bool readEvents(const QString& text, QXmlStreamReader& reader, QString& errorText);

    std::deque<SElement> mElements; // A deque keeps its elements where they are
};

#endif
