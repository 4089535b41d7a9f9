#include "CLimitedXmlReader.h"

#include "CXmlLimits.h"

#include <QBuffer>
#include <QDomDocument>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QXmlStreamReader>

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The parser behind this document reads a whole file at once and cannot be stopped on the way. So the limits are
// counted before it starts, on the characters as it will see them.

namespace
{
// Finds the place where a text goes beyond a limit. What it counts holds for a well-formed text; of any other the
// parser is given no more than what lies in front of that place.
template <typename Character> class CLimitScanner
{
public:
    CLimitScanner(const Character* begin, const Character* end)
        : mBegin(begin)
        , mEnd(end)
        , mNext(begin)
    {}

    // Returns true when the whole text keeps the limits.
    bool scan()
    {
        while (mRefusal.isEmpty()) {
            mNext = find(Character('<'));
            if (mNext == mEnd) {
                return true;
            }
            mMarkup = mNext++;
            if (startsWith("!--")) {
                mNext += 3;
                skipBehind("-->");
            } else if (startsWith("![CDATA[")) {
                skipBehind("]]>");
            } else if (startsWith("?")) {
                skipBehind("?>");
            } else if (startsWith("!")) {
                scanDeclaration();
            } else if (startsWith("/")) {
                skipBehind(">");
                if (!mOpenElements.empty()) {
                    mOpenElements.pop_back();
                }
            } else {
                scanTag();
            }
        }
        return false;
    }

    QString refusal() const
    {
        return mRefusal;
    }

    // How much of the text lies in front of the markup that goes beyond the limit.
    qsizetype sizeInFront() const
    {
        return mMarkup - mBegin;
    }

    int line() const
    {
        return int(std::count(mBegin, mNext, Character('\n'))) + 1;
    }

    int column() const
    {
        const auto back =
            std::find(std::make_reverse_iterator(mNext), std::make_reverse_iterator(mBegin), Character('\n'));
        return int(mNext - back.base());
    }

private:
    void scanTag()
    {
        int attributes = 0;
        int namespaces = mOpenElements.empty() ? 0 : mOpenElements.back();
        const Character* name = mNext;
        const bool isPlain = skipPlainTag();
        while (!isPlain && mNext != mEnd && *mNext != Character('>')) {
            const Character character = *mNext++;
            if (character == Character('"') || character == Character('\'')) {
                mNext = find(character);
                mNext += mNext == mEnd ? 0 : 1;
            } else if (character == Character('=')) {
                ++(isDeclaration(name) ? namespaces : attributes);
                if (attributes > CXmlLimits::MAX_ATTRIBUTES || namespaces > CXmlLimits::MAX_NAMESPACES) {
                    break;
                }
            } else if (isSpace(character)) {
                name = mNext;
            }
        }
        const bool isEmptyTag = mNext != mBegin && *(mNext - 1) == Character('/');
        mNext += mNext == mEnd ? 0 : 1;
        if (attributes > CXmlLimits::MAX_ATTRIBUTES) {
            mRefusal = CXmlLimits::tooManyAttributes();
        } else if (namespaces > CXmlLimits::MAX_NAMESPACES) {
            mRefusal = CXmlLimits::tooManyNamespaces();
        } else if (mOpenElements.size() == std::size_t(CXmlLimits::MAX_DEPTH)) {
            mRefusal = CXmlLimits::tooDeep();
        } else if (!isEmptyTag) {
            mOpenElements.push_back(namespaces);
        }
    }

    // Goes to the end of a tag whose attributes can be counted by their quotes: all of them double, not too many, and
    // none of them a namespace declaration. Nearly all tags are like that, and looking at every character of the others
    // costs several times as much.
    bool skipPlainTag()
    {
        const Character* const end = find(Character('>'));
        if (mDeclaration < mNext) {
            static const std::basic_string<Character> declaration = {'x', 'm', 'l', 'n', 's'};
            const std::basic_string_view<Character> rest(mNext, std::size_t(mEnd - mNext));
            mDeclaration = mNext + std::min(rest.find(declaration), rest.size());
        }
        const qsizetype quotes = countOf(Character('"'), mNext, end);
        const bool hasOtherQuotes =
            std::char_traits<Character>::find(mNext, std::size_t(end - mNext), Character('\'')) != nullptr;
        if (quotes % 2 != 0 || quotes / 2 > CXmlLimits::MAX_ATTRIBUTES || hasOtherQuotes || mDeclaration < end) {
            return false;
        }
        mNext = end;
        return true;
    }

    // A document type declaration; an identifier in quotes may hold any character.
    void scanDeclaration()
    {
        while (mNext != mEnd && *mNext != Character('>')) {
            const Character character = *mNext++;
            if (character == Character('"') || character == Character('\'')) {
                mNext = find(character);
                mNext += mNext == mEnd ? 0 : 1;
            } else if (character == Character('[')) {
                mRefusal = CXmlLimits::internalSubset();
                return;
            }
        }
    }

    // The next place of a character, or the end. This search is the fastest that there is, and nearly all of a text is
    // searched.
    const Character* find(Character character) const
    {
        const Character* const found = std::char_traits<Character>::find(mNext, std::size_t(mEnd - mNext), character);
        return found == nullptr ? mEnd : found;
    }

    // How often a character stands in a range: counted in pieces whose sum fits into a byte, of which a processor adds
    // up many at once.
    static qsizetype countOf(Character character, const Character* begin, const Character* end)
    {
        qsizetype total = 0;
        while (begin != end) {
            const Character* const pieceEnd = begin + std::min<qsizetype>(end - begin, 255);
            unsigned char count = 0;
            for (; begin != pieceEnd; ++begin) {
                count = static_cast<unsigned char>(count + (*begin == character ? 1 : 0));
            }
            total += count;
        }
        return total;
    }

    static bool isSpace(Character character)
    {
        return character == Character(' ') || character == Character('\t') || character == Character('\n')
               || character == Character('\r');
    }

    // True for the name of a namespace declaration, "xmlns" or one that begins with "xmlns:".
    bool isDeclaration(const Character* name) const
    {
        constexpr char declaration[] = "xmlns";
        const Character* const end = name + std::min<qsizetype>(5, mEnd - name);
        const bool begins = std::equal(name, end, declaration, declaration + 5, [](Character left, char right) {
            return left == Character(right);
        });
        return begins && end != mEnd && (*end == Character(':') || *end == Character('=') || isSpace(*end));
    }

    bool startsWith(const char* text) const
    {
        const Character* next = mNext;
        for (; *text != '\0'; ++text, ++next) {
            if (next == mEnd || *next != Character(*text)) {
                return false;
            }
        }
        return true;
    }

    void skipBehind(const char* text)
    {
        while (mNext != mEnd && !startsWith(text)) {
            ++mNext;
        }
        for (; mNext != mEnd && *text != '\0'; ++text) {
            ++mNext;
        }
    }

    const Character* mBegin;
    const Character* mEnd;
    const Character* mNext;
    const Character* mMarkup = nullptr;      // The "<" that was found last
    const Character* mDeclaration = nullptr; // The next "xmlns", as far as it was looked for
    QString mRefusal;                        // Why the text is refused; empty as long as it is not
    std::vector<int> mOpenElements;          // For each open element, the declarations in force inside it
};

// Length of the start of a file in which its XML declaration has to stand, in bytes.
constexpr int DECLARATION_LENGTH = 1024;

// The characters of a file in an encoding whose markup cannot be found in its bytes; nothing for one where it can:
// UTF-8, and Latin-1, which it is scanned as.
std::optional<QString> decoded(const QByteArray& bytes)
{
    if (const auto encoding = QStringConverter::encodingForData(bytes, u'<')) {
        if (*encoding == QStringConverter::Utf8) {
            return std::nullopt;
        }
        QStringDecoder decoder(*encoding);
        return QString(decoder.decode(bytes));
    }
    static const QRegularExpression declaration(
        QStringLiteral("^<\\?xml\\s[^>]*?\\sencoding\\s*=\\s*[\"']([A-Za-z0-9._:-]+)[\"']"));
    const QByteArray name =
        declaration.match(QString::fromLatin1(bytes.left(DECLARATION_LENGTH))).captured(1).toLatin1();
    const auto known = QStringConverter::encodingForName(name.constData());
    if (name.isEmpty() || known == QStringConverter::Utf8 || known == QStringConverter::Latin1) {
        return std::nullopt;
    }
    QStringDecoder decoder(name.constData());
    return decoder.isValid() ? std::optional<QString>(QString(decoder.decode(bytes))) : std::nullopt;
}

// Parses what lies in front of the place that goes beyond a limit: an error there is what the parser would have met
// first. The end that is then missing is where the text is refused.
template <typename Character>
void refuse(
    const CLimitScanner<Character>& scanner, QXmlStreamReader& front, QDomDocument& document, QString& message,
    int& line, int& column)
{
    document.setContent(&front, true, &message, &line, &column);
    if (front.error() == QXmlStreamReader::PrematureEndOfDocumentError) {
        message = scanner.refusal();
        line = scanner.line();
        column = scanner.column();
    }
}
} // namespace

bool CLimitedXmlReader::read(QIODevice& device, QDomDocument& document, QString& message, int& line, int& column)
{
    QByteArray bytes = device.readAll();
    if (const std::optional<QString> text = decoded(bytes)) {
        const auto* const begin = reinterpret_cast<const char16_t*>(text->utf16());
        CLimitScanner<char16_t> scanner(begin, begin + text->size());
        if (!scanner.scan()) {
            QXmlStreamReader front(text->left(scanner.sizeInFront()));
            refuse(scanner, front, document, message, line, column);
            return false;
        }
    } else {
        CLimitScanner<char> scanner(bytes.constData(), bytes.constData() + bytes.size());
        if (!scanner.scan()) {
            QXmlStreamReader front(bytes.left(scanner.sizeInFront()));
            refuse(scanner, front, document, message, line, column);
            return false;
        }
    }
    // From a device, as setContent does it for a file: given all bytes at once the parser reports other places.
    QBuffer buffer(&bytes);
    return buffer.open(QIODevice::ReadOnly) && document.setContent(&buffer, true, &message, &line, &column);
}
