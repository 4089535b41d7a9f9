#include "CLimitedXmlReader.h"

#include "CXmlLimits.h"

#include <QDomDocument>
#include <QVector>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

// This parser is what builds a QDomDocument in Qt 5. Deprecated or not, there is no other to put the limits into.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

namespace
{
// The characters of the file. They are handed out as QXmlInputSource does it, but with the last ones in reach: those
// tell how a document type declaration goes on.
class CSource final : public QXmlInputSource
{
public:
    using QXmlInputSource::QXmlInputSource;

    QChar next() override { return mNext == mEnd ? nextBlock() : *mNext++; }

    // Called with every block that is read from the file.
    void setData(const QString& data) override
    {
        mLastBefore = lastInBlock(mEnd);
        mBlock = data;
        mBlock.replace(QChar(EndOfData), QChar(EndOfDocument)); // As a character of the file it ends the document.
        mNext = mBlock.constBegin();
        mEnd = mBlock.constEnd();
    }

    // The last character before the one that was handed out last, white space left out.
    QChar previous() const { return mNext == mBlock.constBegin() ? mLastBefore : lastInBlock(mNext - 1); }

private:
    // The parser is told of the end of a block before the next one is read.
    QChar nextBlock()
    {
        mBlockEnded = !mBlockEnded;
        if (mBlockEnded) {
            return EndOfData;
        }
        fetchData();
        return mNext == mEnd ? QChar(EndOfDocument) : next();
    }

    // The last character of the block in front of `end`, white space left out; of the blocks before if there is none.
    QChar lastInBlock(const QChar* end) const
    {
        while (end != mBlock.constBegin() && (end - 1)->isSpace()) {
            --end;
        }
        return end == mBlock.constBegin() ? mLastBefore : *(end - 1);
    }

    QString mBlock;
    const QChar* mNext = mBlock.constBegin();
    const QChar* mEnd = mBlock.constEnd();
    bool mBlockEnded = true; // There is no block yet
    QChar mLastBefore;       // The last character of the blocks before this one, white space left out
};

// Stands between the parser and the handlers that build the document, counts, and forwards every event unchanged.
class CGuard final : public QXmlSimpleReader, private QXmlDefaultHandler
{
public:
    explicit CGuard(const CSource& source)
        : mSource(source)
    {
        // What QDomDocument::setContent sets for a document with namespace processing.
        setFeature(QLatin1String("http://xml.org/sax/features/namespaces"), true);
        setFeature(QLatin1String("http://xml.org/sax/features/namespace-prefixes"), false);
        setFeature(QLatin1String("http://qt-project.org/xml/features/report-whitespace-only-CharData"), false);
    }

    void setContentHandler(QXmlContentHandler* handler) override
    {
        mContentHandler = handler;
        QXmlSimpleReader::setContentHandler(this);
    }

    void setLexicalHandler(QXmlLexicalHandler* handler) override
    {
        mLexicalHandler = handler;
        QXmlSimpleReader::setLexicalHandler(this);
    }

private:
    bool refuse(const QString& reason)
    {
        mRefusal = reason;
        return false;
    }

    // The parser reports the namespace declarations of an element before the element itself.
    bool startPrefixMapping(const QString& prefix, const QString& uri) override
    {
        if (++mNamespaces > CXmlLimits::MAX_NAMESPACES) {
            return refuse(CXmlLimits::tooManyNamespaces());
        }
        return mContentHandler->startPrefixMapping(prefix, uri);
    }

    bool startElement(
        const QString& namespaceURI, const QString& localName, const QString& qName,
        const QXmlAttributes& attributes) override
    {
        if (mOpenElements.size() == CXmlLimits::MAX_DEPTH) {
            return refuse(CXmlLimits::tooDeep());
        }
        if (attributes.count() > CXmlLimits::MAX_ATTRIBUTES) {
            return refuse(CXmlLimits::tooManyAttributes());
        }
        mOpenElements.append(mNamespaces);
        return mContentHandler->startElement(namespaceURI, localName, qName, attributes);
    }

    bool endElement(const QString& namespaceURI, const QString& localName, const QString& qName) override
    {
        mOpenElements.removeLast();
        mNamespaces = mOpenElements.isEmpty() ? 0 : mOpenElements.last();
        return mContentHandler->endElement(namespaceURI, localName, qName);
    }

    bool startDTD(const QString& name, const QString& publicId, const QString& systemId) override
    {
        // The parser comes here when it has taken the first character after the "[" that opens an internal subset and
        // the white space behind it, or else the ">" that ends the declaration.
        if (mSource.previous() == QLatin1Char('[')) {
            return refuse(CXmlLimits::internalSubset());
        }
        return mLexicalHandler->startDTD(name, publicId, systemId);
    }

    void setDocumentLocator(QXmlLocator* locator) override { mContentHandler->setDocumentLocator(locator); }

    bool startDocument() override { return mContentHandler->startDocument(); }

    bool endDocument() override { return mContentHandler->endDocument(); }

    bool endPrefixMapping(const QString& prefix) override { return mContentHandler->endPrefixMapping(prefix); }

    bool characters(const QString& text) override { return mContentHandler->characters(text); }

    bool ignorableWhitespace(const QString& text) override { return mContentHandler->ignorableWhitespace(text); }

    bool processingInstruction(const QString& target, const QString& data) override
    {
        return mContentHandler->processingInstruction(target, data);
    }

    bool skippedEntity(const QString& name) override { return mContentHandler->skippedEntity(name); }

    bool endDTD() override { return mLexicalHandler->endDTD(); }

    bool startEntity(const QString& name) override { return mLexicalHandler->startEntity(name); }

    bool endEntity(const QString& name) override { return mLexicalHandler->endEntity(name); }

    bool startCDATA() override { return mLexicalHandler->startCDATA(); }

    bool endCDATA() override { return mLexicalHandler->endCDATA(); }

    bool comment(const QString& text) override { return mLexicalHandler->comment(text); }

    QString errorString() const override { return mRefusal.isEmpty() ? mContentHandler->errorString() : mRefusal; }

    const CSource& mSource;
    QXmlContentHandler* mContentHandler = nullptr;
    QXmlLexicalHandler* mLexicalHandler = nullptr;
    QString mRefusal;           // Why the file is refused; empty as long as it is not
    int mNamespaces = 0;        // Declarations in force, including those of the element that comes next
    QVector<int> mOpenElements; // For each open element, the declarations in force inside it
};
} // namespace

bool CLimitedXmlReader::read(QIODevice& device, QDomDocument& document, QString& message, int& line, int& column)
{
    CSource source(&device);
    CGuard guard(source);
    return document.setContent(&source, &guard, &message, &line, &column);
}

QT_WARNING_POP
