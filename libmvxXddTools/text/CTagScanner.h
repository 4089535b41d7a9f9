#ifndef MVXXDDTOOLS_CTAGSCANNER_H
#define MVXXDDTOOLS_CTAGSCANNER_H

#include "text/CXmlText.h"

/**
 * Finds the start tags of a text and their attributes with their places, and counts what has a limit before a parser
 * sees it: a parser compares all attributes of an element with each other.
 *
 * What it finds holds for a well-formed text. Of any other it only promises to come to an end.
 */
class CTagScanner
{
public:
    explicit CTagScanner(CXmlText& text);

    /** Fills the nodes of the text, without their structure. Returns false, with the reason, beyond a limit. */
    bool scan(CXmlText::SError& error);

private:
    void scanTag(QString& refusal);
    void scanAttribute(CXmlText::SNode& node);
    void scanDeclaration(QString& refusal);
    void skipBehind(QLatin1String end);
    void skipSpace();
    void skipName();
    void countLines(int end);
    bool startsWith(QLatin1String start) const;
    QChar current() const;
    bool atEnd() const;

    CXmlText& mXml;
    const QString& mText;
    int mPosition = 0;
    int mLine = 1;
    int mCounted = 0; // Characters whose line ends are in mLine
};

#endif
