#ifndef MVXISO15745XML_CLIMITEDXMLREADER_H
#define MVXISO15745XML_CLIMITEDXMLREADER_H

class QDomDocument;
class QIODevice;
class QString;

/**
 * Parses a file into a DOM document and refuses what would bring the parser or the document down.
 *
 * Qt's parser and its document have no limits of their own: they recurse over nested elements and nested content
 * models until the stack is used up, compare every attribute of an element with every other, and expand entities
 * without end. This reader counts while the parser works. A file within the limits gives the document, and a malformed
 * one the message, line and column, that QDomDocument::setContent gives for it with namespace processing; a file beyond
 * them is a parse error at the place where it meets the limit. So is a document type declaration with an internal
 * subset, the place of entities and content models, which the format has no use for.
 */
class CLimitedXmlReader
{
public:
    /** Deepest nesting of elements. Qt needs about 330 bytes of stack for each level, and everything that walks or
     * releases a document recurses as well. Descriptions nest some 15 levels; 256 is what other parsers allow. */
    static constexpr int MAX_DEPTH = 256;

    /** Most attributes of one element. Adding one costs the document a comparison with all that are there. An object
     * has 14 at most. */
    static constexpr int MAX_ATTRIBUTES = 256;

    /** Most namespace declarations that are in force at one place of the file. At the end of every element the parser
     * compares all of their prefixes with each other. Descriptions declare three or four. */
    static constexpr int MAX_NAMESPACES = 64;

    /**
     * Parses a device into a document.
     *
     * @param device   open for reading
     * @param document replaced by what was read; after a failure it holds a part of that
     * @param message  on failure, what is wrong; unchanged otherwise, as are line and column
     * @param line     line where it is wrong, from 1
     * @param column   column where it is wrong, from 1
     * @return true when the whole file was read
     */
    static bool read(QIODevice& device, QDomDocument& document, QString& message, int& line, int& column);
};

#endif
