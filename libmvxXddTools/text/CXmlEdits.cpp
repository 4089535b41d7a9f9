#include "text/CXmlEdits.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace
{
// A text as the value of an attribute in double quotes.
QString escaped(const QString& value)
{
    QString result;
    for (const QChar character : value) {
        if (character == QLatin1Char('&')) {
            result += QLatin1String("&amp;");
        } else if (character == QLatin1Char('<')) {
            result += QLatin1String("&lt;");
        } else if (character == QLatin1Char('"')) {
            result += QLatin1String("&quot;");
        } else if (character < QLatin1Char(' ')) {
            result += QStringLiteral("&#%1;").arg(character.unicode());
        } else {
            result += character;
        }
    }
    return result;
}

QString supplied(const QString& name)
{
    return QCoreApplication::translate("mvxXddTools", "%1 supplied").arg(name);
}

QString rewritten(const QString& name, const QString& before, const QString& after)
{
    return QCoreApplication::translate("mvxXddTools", "%1 \"%2\" written as \"%3\"").arg(name, before, after);
}
} // namespace

SNewElement around(const QString& name, const SNewElement& child)
{
    return {name, QString(), QString(), {child}};
}

CXmlEdits::CXmlEdits(const CXmlText& text, ELayout layout)
    : mText(text)
    , mLayout(layout)
    , mNewline(text.text().contains(QLatin1String("\r\n")) ? QStringLiteral("\r\n") : QStringLiteral("\n"))
{}

void CXmlEdits::setCause(const QString& rule, const QString& reason, bool matters)
{
    mCause.mRule = rule;
    mCause.mReason = reason;
    mCause.mMatters = matters;
}

void CXmlEdits::supply(const CXmlElement& element, QLatin1String attribute, const QString& value, bool named)
{
    setAttribute(element, attribute, value);
    record(
        element,
        supplied(
            named ? QStringLiteral("%1=\"%2\" of <%3>").arg(attribute, value, element.name()) : QString(attribute)));
}

void CXmlEdits::supply(const CXmlElement& element, const std::vector<Attribute>& attributes)
{
    QStringList names;
    for (const Attribute& attribute : attributes) {
        setAttribute(element, attribute.first, attribute.second);
        names << attribute.first;
    }
    if (!names.isEmpty()) {
        record(element, supplied(names.join(QLatin1String(", "))));
    }
}

void CXmlEdits::supplyText(const CXmlElement& element, const QString& text)
{
    replace(element.content(), text);
    record(element, supplied(element.name()));
}

// Indented as the surroundings are.
void CXmlEdits::supplyChildren(
    const CXmlElement& parent, const std::vector<SNewElement>& children, const CXmlElement& before)
{
    const CXmlElement sibling = parent.firstChild();
    const QString parentIndent = indentOf(parent);
    const QString unit = parentIndent.isNull() ? QString() : parentIndent.mid(indentOf(parent.parent()).size());
    const QString indent = sibling.isNull() ? parentIndent + unit : indentOf(sibling);
    const bool onLines = !(sibling.isNull() ? parentIndent : indent).isNull();
    const QString lineStart = onLines ? mNewline + indent : QString();
    const QString prefix = sibling.isNull() ? parent.prefix() : sibling.prefix();

    QString text;
    for (const SNewElement& child : children) {
        const QString childXml = xml(child, prefix, lineStart, onLines ? unit : QString());
        text += before.isNull() ? lineStart + childXml : childXml + lineStart;
        record(before.isNull() ? parent : before, supplied(QStringLiteral("<%1>").arg(child.name)));
    }
    const QString parentLine = onLines ? mNewline + parentIndent : QString();
    if (!before.isNull()) {
        replace({before.range().begin, before.range().begin}, text);
    } else if (!sibling.isNull()) {
        replace({parent.lastChild().range().end, parent.lastChild().range().end}, text);
    } else if (parent.isEmptyTag()) {
        replace(
            {parent.attributesEnd(), parent.range().end},
            QLatin1Char('>') + text + parentLine + QStringLiteral("</%1%2>").arg(parent.prefix(), parent.name()));
    } else {
        const bool endsLine = mText.raw(parent.content()).contains(QLatin1Char('\n'));
        replace({parent.content().begin, parent.content().begin}, endsLine ? text : text + parentLine);
    }
}

void CXmlEdits::supplyMissing(const CXmlElement& parent, const std::vector<SNewElement>& required)
{
    std::vector<SNewElement> missing;
    for (const SNewElement& element : required) {
        const CXmlElement present = parent.child(QLatin1String(element.name.toLatin1()));
        if (present.isNull()) {
            missing.push_back(element);
        } else if (!missing.empty()) {
            supplyChildren(parent, missing, present);
            missing.clear();
        }
    }
    if (!missing.empty()) {
        supplyChildren(parent, missing);
    }
}

void CXmlEdits::rewrite(const CXmlElement& element, QLatin1String attribute, const QString& value)
{
    setAttribute(element, attribute, value);
    record(element, rewritten(attribute, element.attribute(attribute), value));
}

void CXmlEdits::rewriteText(const CXmlElement& element, const QString& text)
{
    replace(element.content(), text);
    record(element, rewritten(element.name(), element.text(), text));
}

// A comment must not contain "--", so these are taken apart.
void CXmlEdits::turnIntoComment(const CXmlElement& element)
{
    QString text = mText.raw(element.range());
    while (text.contains(QLatin1String("--"))) {
        text.replace(QLatin1String("--"), QLatin1String("- -"));
    }
    replace(element.range(), QLatin1String("<!-- ") + text + QLatin1String(" -->"));
    record(element, QCoreApplication::translate("mvxXddTools", "%1 turned into a comment").arg(element.name()));
}

void CXmlEdits::leave(const CXmlElement& element, QLatin1String attribute)
{
    record(
        element, QCoreApplication::translate("mvxXddTools", "%1 \"%2\" left as it is")
                     .arg(attribute, element.attribute(attribute)));
    mChanges.last().mChanged = false;
    mChanges.last().mReason = QCoreApplication::translate("mvxXddTools", "it is unknown or ambiguous");
}

bool CXmlEdits::isEmpty() const
{
    return mEdits.empty();
}

QString CXmlEdits::result() const
{
    std::vector<SEdit> edits = mEdits;
    std::stable_sort(edits.begin(), edits.end(), [](const SEdit& left, const SEdit& right) {
        return std::make_pair(left.range.begin, left.range.end) < std::make_pair(right.range.begin, right.range.end);
    });
    QString text;
    text.reserve(mText.text().size() + 64 * int(edits.size()));
    int position = 0;
    for (const SEdit& edit : edits) {
        text += mText.raw({position, edit.range.begin});
        text += edit.text;
        position = edit.range.end;
    }
    return text + mText.raw({position, int(mText.text().size())});
}

QList<CXddChange> CXmlEdits::changes() const
{
    QList<CXddChange> changes = mChanges;
    std::stable_sort(changes.begin(), changes.end(), [](const CXddChange& left, const CXddChange& right) {
        return left.mLine < right.mLine;
    });
    return changes;
}

void CXmlEdits::record(const CXmlElement& element, const QString& what)
{
    mChanges << mCause;
    mChanges.last().mLine = element.line();
    mChanges.last().mWhat = what;
}

void CXmlEdits::replace(SRange range, const QString& text)
{
    mEdits.push_back({range, text});
}

void CXmlEdits::setAttribute(const CXmlElement& element, QLatin1String name, const QString& value)
{
    if (element.has(name)) {
        replace(element.valueRange(name), escaped(value));
    } else {
        replace(
            {element.attributesEnd(), element.attributesEnd()}, QStringLiteral(" %1=\"%2\"").arg(name, escaped(value)));
    }
}

// The white space in front of an element on its line; null when something else stands there, or no lines are wanted.
QString CXmlEdits::indentOf(const CXmlElement& element) const
{
    if (element.isNull() || mLayout == ELayout::InLine) {
        return QString();
    }
    const int begin = element.range().begin;
    const int lineBegin = int(mText.text().lastIndexOf(QLatin1Char('\n'), begin)) + 1;
    const QString indent = mText.raw({lineBegin, begin});
    if (!indent.trimmed().isEmpty()) {
        return QString();
    }
    return indent.isNull() ? QStringLiteral("") : indent;
}

QString CXmlEdits::xml(
    const SNewElement& element, const QString& prefix, const QString& lineStart, const QString& unit) const
{
    const QString name = prefix + element.name;
    const QString start = element.attribute.isEmpty() ? name : name + QLatin1Char(' ') + element.attribute;
    if (element.children.empty()) {
        return element.content.isEmpty() ? QStringLiteral("<%1/>").arg(start)
                                         : QStringLiteral("<%1>%2</%3>").arg(start, element.content, name);
    }
    QString text = QStringLiteral("<%1>").arg(start);
    for (const SNewElement& child : element.children) {
        text += lineStart + unit + xml(child, prefix, lineStart + unit, unit);
    }
    return text + lineStart + QStringLiteral("</%1>").arg(name);
}
