#include "CLimitedXmlReader.h"

#include "CMarkupScanner.h"

#include <QBuffer>
#include <QDomDocument>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QXmlStreamReader>

#include <optional>

// The parser behind this document reads a whole file at once and cannot be stopped on the way. So the limits are
// counted before it starts, on the characters as it will see them.

namespace
{
template <typename Character> using CLimitScanner = CMarkupScanner<Character, SMarkupIgnored>;

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
    const bool isWhole = document.setContent(&front, true, &message, &line, &column);
    if (isWhole || front.error() == QXmlStreamReader::PrematureEndOfDocumentError) {
        message = scanner.refusal();
        line = scanner.line();
        column = scanner.column();
    }
}
} // namespace

bool CLimitedXmlReader::read(QIODevice& device, QDomDocument& document, QString& message, int& line, int& column)
{
    QByteArray bytes = device.readAll();
    SMarkupIgnored ignored;
    if (const std::optional<QString> text = decoded(bytes)) {
        const auto* const begin = reinterpret_cast<const char16_t*>(text->utf16());
        CLimitScanner<char16_t> scanner(begin, begin + text->size(), ignored);
        if (!scanner.scan()) {
            QXmlStreamReader front(text->left(scanner.sizeInFront()));
            refuse(scanner, front, document, message, line, column);
            return false;
        }
    } else {
        CLimitScanner<char> scanner(bytes.constData(), bytes.constData() + bytes.size(), ignored);
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
