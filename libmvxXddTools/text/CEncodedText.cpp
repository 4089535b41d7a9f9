#include "text/CEncodedText.h"

#include "text/Encodings.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace
{
struct SMark
{
    const char* bytes;
    int size;
    const char* codec;
};

// Longer marks first: the one of UTF-32 starts with the one of UTF-16.
constexpr SMark BYTE_ORDER_MARKS[] = {
    {"\xFF\xFE\x00\x00", 4, "UTF-32LE"}, {"\x00\x00\xFE\xFF", 4, "UTF-32BE"}, {"\xEF\xBB\xBF", 3, "UTF-8"},
    {"\xFF\xFE", 2, "UTF-16LE"},         {"\xFE\xFF", 2, "UTF-16BE"},
};

// Length of the start of a file in which its XML declaration has to stand, in bytes.
constexpr int DECLARATION_LENGTH = 1024;

QByteArray declaredEncoding(const QByteArray& bytes)
{
    static const QRegularExpression declaration(
        QStringLiteral("^<\\?xml\\s[^>]*?\\sencoding\\s*=\\s*[\"']([A-Za-z0-9._:-]+)[\"']"));
    return declaration.match(QString::fromLatin1(bytes.left(DECLARATION_LENGTH))).captured(1).toLatin1();
}
} // namespace

bool CEncodedText::decode(const QByteArray& bytes, QString& errorText)
{
    QByteArray encoding;
    mByteOrderMark.clear();
    for (const SMark& mark : BYTE_ORDER_MARKS) {
        const QByteArray start = QByteArray::fromRawData(mark.bytes, mark.size);
        if (bytes.startsWith(start)) {
            encoding = mark.codec;
            mByteOrderMark = start;
            break;
        }
    }
    if (encoding.isEmpty()) {
        encoding = declaredEncoding(bytes);
    }
    if (encoding.isEmpty()) {
        encoding = "UTF-8";
    }
    mEncoding = encodingName(encoding);
    if (mEncoding.isEmpty()) {
        errorText = QCoreApplication::translate("mvxXddTools", "The encoding \"%1\" is not known.")
                        .arg(QString::fromLatin1(encoding));
        return false;
    }
    mText = decoded(bytes.mid(mByteOrderMark.size()), mEncoding);
    if (encode(mText) != bytes) {
        errorText =
            QCoreApplication::translate("mvxXddTools", "The text is not valid %1.").arg(QString::fromLatin1(mEncoding));
        return false;
    }
    return true;
}
