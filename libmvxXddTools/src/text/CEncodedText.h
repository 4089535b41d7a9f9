#ifndef MVXXDDTOOLS_CENCODEDTEXT_H
#define MVXXDDTOOLS_CENCODEDTEXT_H

#include "CXddSentence.h"
#include "text/Encodings.h"

#include <QByteArray>
#include <QString>

/** The characters of an XML file, together with what is needed to get its bytes back. */
class CEncodedText
{
public:
    /**
     * Decodes the bytes of a file: by its byte order mark, by its XML declaration, or as UTF-8.
     *
     * @return false, with a message, when the encoding is not known or the text would not come back byte for byte
     */
    bool decode(const QByteArray& bytes, CXddSentence& error);

    /**
     * Decodes the bytes of a plain text: by its byte order mark, else as UTF-8, UTF-16 or Windows-1252, as which
     * everything can be read.
     *
     * @return the name of the encoding where it is neither marked nor UTF-8
     */
    QByteArray decodePlain(const QByteArray& bytes);

    /** Takes a text as if it had been decoded from UTF-8. */
    void setText(const QString& text);

    /** The bytes of a text in the encoding of the file, byte order mark included. */
    QByteArray encode(const QString& text) const { return mByteOrderMark + encoded(text, mEncoding); }

    /** The decoded characters without the byte order mark. */
    const QString& text() const { return mText; }

private:
    QByteArray takeMark(const QByteArray& bytes);
    bool decodeAs(const QByteArray& encoding, const QByteArray& bytes);

    QByteArray mEncoding;
    QByteArray mByteOrderMark;
    QString mText;
};

#endif
