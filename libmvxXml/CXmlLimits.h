#ifndef MVXXML_CXMLLIMITS_H
#define MVXXML_CXMLLIMITS_H

#include "mvxXml_export.h"

#include <QString>

/**
 * How much of an XML text is read, wherever one is read: what goes beyond would bring Qt's parsers or its document
 * down.
 *
 * Each limit has the reason that is given for a refusal, translated in the context "CXmlLimits".
 */
class MVXXML_EXPORT CXmlLimits
{
public:
    /** Deepest nesting of elements. Qt needs about 330 bytes of stack for each level, and everything that walks or
     * releases a document recurses as well. Descriptions nest some 15 levels; 256 is what other parsers allow. */
    static constexpr int MAX_DEPTH = 256;

    /** Most attributes of one element, namespace declarations not counted. Adding one costs a comparison with all that
     * are there. An object of a description has 14 at most. */
    static constexpr int MAX_ATTRIBUTES = 256;

    /** Most namespace declarations that are in force at one place of the text. At the end of every element the parser
     * compares all of their prefixes with each other. Descriptions declare three or four. */
    static constexpr int MAX_NAMESPACES = 64;

    /** Elements are nested deeper than MAX_DEPTH. */
    static QString tooDeep();

    /** An element has more than MAX_ATTRIBUTES attributes. */
    static QString tooManyAttributes();

    /** More than MAX_NAMESPACES declarations are in force. */
    static QString tooManyNamespaces();

    /** The document type declaration has an internal subset, the place of entities and content models. Descriptions
     * have no use for one, and parsers expand it without end. */
    static QString internalSubset();
};

#endif
