#include "text/CEncodedText.h"

#include "remarks/CRemarks.h"
#include "text/Encodings.h"

#include <QRegularExpression>

#include <array>

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

const QByteArray UTF_8 = QByteArrayLiteral("UTF-8");

// The characters of Windows-1252 from 0x80 to 0x9F. Five are not used there and stay what they are in Latin-1.
constexpr std::array<ushort, 32> WINDOWS_1252 = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// Length of the start of a file in which its XML declaration has to stand, in bytes.
constexpr int DECLARATION_LENGTH = 1024;

QByteArray declaredEncoding(const QByteArray& bytes)
{
    static const QRegularExpression declaration(
        QStringLiteral("^<\\?xml\\s[^>]*?\\sencoding\\s*=\\s*[\"']([A-Za-z0-9._:-]+)[\"']"));
    return declaration.match(QString::fromLatin1(bytes.left(DECLARATION_LENGTH))).captured(1).toLatin1();
}
} // namespace

bool CEncodedText::decode(const QByteArray& bytes, CXddSentence& error)
{
    QByteArray encoding = takeMark(bytes);
    if (encoding.isEmpty()) {
        encoding = declaredEncoding(bytes);
    }
    if (encoding.isEmpty()) {
        encoding = UTF_8;
    }
    if (encodingName(encoding).isEmpty()) {
        error = CRemarks::filled(CRemarks::say("The encoding \"%1\" is not known."), {QString::fromLatin1(encoding)});
        return false;
    }
    if (!decodeAs(encoding, bytes)) {
        error = CRemarks::filled(CRemarks::say("The text is not valid %1."), {QString::fromLatin1(mEncoding)});
        return false;
    }
    return true;
}

QByteArray CEncodedText::decodePlain(const QByteArray& bytes)
{
    const QByteArray marked = takeMark(bytes);
    if (decodeAs(marked.isEmpty() ? UTF_8 : marked, bytes) && !mText.contains(QChar(0))) {
        return QByteArray();
    }
    for (const char* const encoding : {"UTF-16LE", "UTF-16BE"}) {
        const int zero = encoding[6] == 'L' ? 1 : 0; // Where the upper byte of a plain letter stands
        if (bytes.size() >= 4 && bytes.at(zero) == 0 && bytes.at(zero + 2) == 0 && decodeAs(encoding, bytes)) {
            return encoding;
        }
    }
    mByteOrderMark.clear();
    mEncoding = UTF_8;
    mText = QString::fromLatin1(bytes.constData(), bytes.size()); // Beyond a NUL, too
    for (QChar& character : mText) {
        if (character.unicode() >= 0x80 && character.unicode() < 0xA0) {
            character = WINDOWS_1252[character.unicode() - 0x80];
        }
    }
    return "Windows-1252";
}

void CEncodedText::setText(const QString& text)
{
    mByteOrderMark.clear();
    mEncoding = UTF_8;
    mText = text;
}

// The encoding that a byte order mark names; nothing where there is none.
QByteArray CEncodedText::takeMark(const QByteArray& bytes)
{
    mByteOrderMark.clear();
    for (const SMark& mark : BYTE_ORDER_MARKS) {
        const QByteArray start = QByteArray::fromRawData(mark.bytes, mark.size);
        if (bytes.startsWith(start)) {
            mByteOrderMark = start;
            return mark.codec;
        }
    }
    return QByteArray();
}

// Returns false when the text would not come back byte for byte.
bool CEncodedText::decodeAs(const QByteArray& encoding, const QByteArray& bytes)
{
    mEncoding = encodingName(encoding);
    mText = decoded(bytes.mid(mByteOrderMark.size()), mEncoding);
    return encode(mText) == bytes;
}
