#include "CElements.h"

#include "CLimitedXmlReader.h"
#include "CStartTag.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

#include <algorithm>

namespace
{
QString at(qint64 line, qint64 column, const QString& text)
{
    return QCoreApplication::translate("xddnormalize", "Parse error at line %1, column %2: %3")
        .arg(QString::number(line), QString::number(column), text);
}

// Skips from a "<!" or "<?" to behind the text that ends it.
int behind(const QString& text, int position, QLatin1String end)
{
    const int found = text.indexOf(end, position);
    return found < 0 ? text.size() : found + end.size();
}

// Qt's stream reader compares all attributes of an element with each other, too, so they are counted before it starts.
bool keepsAttributeLimit(const QString& text)
{
    int position = int(text.indexOf(QLatin1Char('<')));
    while (position >= 0) {
        const QStringView rest = QStringView(text).mid(position, 9);
        if (rest.startsWith(QLatin1String("<!--"))) {
            position = behind(text, position + 4, QLatin1String("-->"));
        } else if (rest.startsWith(QLatin1String("<![CDATA["))) {
            position = behind(text, position, QLatin1String("]]>"));
        } else if (rest.startsWith(QLatin1String("<?"))) {
            position = behind(text, position, QLatin1String("?>"));
        } else {
            int equalSigns = 0;
            QChar quote;
            for (; position < text.size() && (!quote.isNull() || text.at(position) != QLatin1Char('>')); ++position) {
                const QChar character = text.at(position);
                if (!quote.isNull()) {
                    quote = character == quote ? QChar() : quote;
                } else if (character == QLatin1Char('"') || character == QLatin1Char('\'')) {
                    quote = character;
                } else if (character == QLatin1Char('=')) {
                    ++equalSigns;
                }
            }
            // Namespace declarations are attributes here, and have a limit of their own.
            if (equalSigns > CLimitedXmlReader::MAX_ATTRIBUTES + CLimitedXmlReader::MAX_NAMESPACES) {
                return false;
            }
        }
        position = text.indexOf(QLatin1Char('<'), position);
    }
    return true;
}
} // namespace

SElement* SElement::child(const QString& childName) const
{
    const auto found = std::find_if(
        children.begin(), children.end(), [&](const SElement* element) { return element->name == childName; });
    return found == children.end() ? nullptr : *found;
}

std::vector<SElement*> SElement::childrenNamed(const QString& childName) const
{
    std::vector<SElement*> found;
    std::copy_if(children.begin(), children.end(), std::back_inserter(found), [&](const SElement* element) {
        return element->name == childName;
    });
    return found;
}

bool CElements::find(const QString& text, QString& errorText)
{
    mElements.clear();
    if (!keepsAttributeLimit(text)) {
        errorText = QCoreApplication::translate("CIso15745Impl", "an element has more than %1 attributes")
                        .arg(CLimitedXmlReader::MAX_ATTRIBUTES);
        return false;
    }
    QXmlStreamReader reader(text);
    if (!readEvents(text, reader, errorText)) {
        return false;
    }
    if (reader.hasError()) {
        errorText = at(reader.lineNumber(), reader.columnNumber(), reader.errorString());
        return false;
    }
    return true;
}

// Returns false for a limit that is met; errors of the reader are left to the caller.
bool CElements::readEvents(const QString& text, QXmlStreamReader& reader, QString& errorText)
{
    SElement* open = nullptr;
    int depth = 0;
    int counted = 0; // Characters whose line ends are in `line`
    int line = 1;
    const auto refuse = [&](const QString& reason) {
        errorText = at(reader.lineNumber(), reader.columnNumber(), reason);
        return false;
    };
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        const int offset = int(reader.characterOffset());
        if (token == QXmlStreamReader::DTD && reader.text().contains(QLatin1Char('['))) {
            return refuse(
                QCoreApplication::translate("CIso15745Impl", "the document type declaration has an internal subset"));
        }
        if (token == QXmlStreamReader::StartElement) {
            if (++depth > CLimitedXmlReader::MAX_DEPTH) {
                return refuse(QCoreApplication::translate("CIso15745Impl", "elements are nested deeper than %1 levels")
                                  .arg(CLimitedXmlReader::MAX_DEPTH));
            }
            mElements.emplace_back();
            SElement& element = mElements.back();
            element.name = reader.name().toString();
            element.prefix = reader.prefix().isEmpty() ? QString() : reader.prefix() + QLatin1Char(':');
            // A "<" cannot stand inside of a start tag, so the last one is where it begins.
            element.begin = text.lastIndexOf(QLatin1Char('<'), offset - 1);
            element.contentBegin = offset;
            element.isEmptyTag = text.at(offset - 2) == QLatin1Char('/');
            line += int(std::count(text.begin() + counted, text.begin() + element.begin, QLatin1Char('\n')));
            counted = element.begin;
            element.line = line;
            element.namespaces = reader.namespaceDeclarations().size() + (open == nullptr ? 0 : open->namespaces);
            if (element.namespaces > CLimitedXmlReader::MAX_NAMESPACES) {
                return refuse(
                    QCoreApplication::translate("CIso15745Impl", "more than %1 namespace declarations are in force")
                        .arg(CLimitedXmlReader::MAX_NAMESPACES));
            }
            element.parent = open;
            if (open != nullptr) {
                open->children.push_back(&element);
            }
            open = &element;
        } else if (token == QXmlStreamReader::EndElement && open != nullptr) {
            --depth;
            open->end = offset;
            open->contentEnd = open->isEmptyTag ? offset : text.lastIndexOf(QLatin1Char('<'), offset - 1);
            open = open->parent;
        }
    }
    return true;
}

const SElement& CElements::root() const
{
    return mElements.front();
}

const std::deque<SElement>& CElements::all() const
{
    return mElements;
}
