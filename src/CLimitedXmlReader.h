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
 * without end. This reader counts while the parser works, up to the limits of CXmlLimits.
 *
 * Within them it gives what QDomDocument::setContent gives with namespace processing: a malformed file the same
 * message, line and column, a well-formed one the same elements, attributes, texts and line numbers, which is all that
 * a record is read from. (Only where an attribute holds a reference to an entity that nobody declared may the nodes
 * differ.) A file beyond the limits is a parse error at the place where it meets them.
 */
class CLimitedXmlReader
{
public:
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
