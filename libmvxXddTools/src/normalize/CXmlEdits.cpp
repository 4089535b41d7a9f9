#include "normalize/CXmlEdits.h"

#include "text/XmlText.h"

#include <QStringList>

#include <algorithm>

SNewElement around(const QString& name, const SNewElement& child)
{
    return {name, QString(), QString(), {child}};
}

SEdited::SEdited(const CXmlElement& edited)
    : element(edited)
    , place(edited.place())
{}

SEdited::SEdited(const SEntry& entry)
    : element(entry.element)
    , place(entry.place())
{}

CXmlEdits::CXmlEdits(const CXmlTree& tree, ELayout layout)
    : mTree(tree)
    , mLayout(layout)
    , mNewline(tree.text().contains(QLatin1String("\r\n")) ? QStringLiteral("\r\n") : QStringLiteral("\n"))
{}

void CXmlEdits::limitTo(const QList<CXddRemark>& findings)
{
    mWanted.emplace();
    for (const CXddRemark& finding : findings) {
        mWanted->insert({finding.mRule, finding.mLine});
    }
}

bool CXmlEdits::isWanted(const SPlace& place) const
{
    return !mWanted || mWanted->contains({mRemarks.cause().mRule, place.line});
}

void CXmlEdits::supply(const CXmlElement& element, QLatin1String attribute, const QString& value)
{
    if (!isWanted(element.place())) {
        return;
    }
    setAttribute(element, attribute, value);
    mRemarks.add(
        element, CRemarks::say("%1=\"%2\" of <%3> supplied"), {attribute, value, SArgument::word(element.name())});
}

void CXmlEdits::supply(const SEdited& edited, const std::vector<Attribute>& attributes)
{
    if (!isWanted(edited.place)) {
        return;
    }
    QStringList names;
    for (const Attribute& attribute : attributes) {
        setAttribute(edited.element, attribute.first, attribute.second);
        names << attribute.first;
    }
    if (!names.isEmpty()) {
        mRemarks.add(edited.place, CRemarks::say("%1 supplied"), {SArgument::word(names.join(QLatin1String(", ")))});
    }
}

void CXmlEdits::supplyText(const CXmlElement& element, const QString& text)
{
    if (!isWanted(element.place())) {
        return;
    }
    replace(element.content(), text);
    mRemarks.add(element, CRemarks::say("%1 supplied"), {SArgument::word(element.name())});
}

// Indented as the surroundings are.
void CXmlEdits::supplyChildren(
    const CXmlElement& parent, const std::vector<SNewElement>& children, const CXmlElement& before)
{
    if (!isWanted(parent.place())) {
        return;
    }
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
        mRemarks.add(
            (before.isNull() ? parent : before).place(), CRemarks::say("<%1> supplied"), {SArgument::word(child.name)});
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
        const bool endsLine = mTree.raw(parent.content()).contains(QLatin1Char('\n'));
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

void CXmlEdits::rewrite(const SEdited& edited, QLatin1String attribute, const QString& value)
{
    if (!isWanted(edited.place)) {
        return;
    }
    setAttribute(edited.element, attribute, value);
    mRemarks.add(
        edited.place, CRemarks::say("%1 \"%2\" written as \"%3\""),
        {attribute, edited.element.attribute(attribute), value});
}

void CXmlEdits::rewriteText(const CXmlElement& element, const QString& text)
{
    if (!isWanted(element.place())) {
        return;
    }
    replace(element.content(), text);
    mRemarks.add(
        element, CRemarks::say("%1 \"%2\" written as \"%3\""), {SArgument::word(element.name()), element.text(), text});
}

void CXmlEdits::turnIntoComment(const CXmlElement& element)
{
    if (!isWanted(element.place())) {
        return;
    }
    comment(element);
    mRemarks.add(element, CRemarks::say("%1 turned into a comment"), {SArgument::word(element.name())});
}

void CXmlEdits::leave(const SEdited& edited, QLatin1String attribute)
{
    if (!isWanted(edited.place)) {
        return;
    }
    mLeft << edited.element.valueRange(attribute).begin;
    remarkLeft(
        edited, CRemarks::say("it is unknown or ambiguous"), CRemarks::say("%1 \"%2\" left as it is"),
        {attribute, edited.element.attribute(attribute)});
}

void CXmlEdits::onlyRecord()
{
    mIsOnlyRecorded = true;
}

void CXmlEdits::takeOut(const SEdited& edited, const SWords& words, CRemarks::Arguments arguments)
{
    comment(edited.element);
    remarkLeft(edited, unreadableReason(), words, arguments);
}

void CXmlEdits::takeOutUnknown(const SEdited& edited, QLatin1String attribute)
{
    comment(edited.element);
    remarkUnknown(edited, attribute);
}

void CXmlEdits::replaceUnknown(const SEdited& edited, QLatin1String attribute, const QString& value)
{
    setAttribute(edited.element, attribute, value);
    remarkUnknown(edited, attribute);
}

// What was left has been recorded.
void CXmlEdits::remarkUnknown(const SEdited& edited, QLatin1String attribute)
{
    if (!mLeft.contains(edited.element.valueRange(attribute).begin)) {
        const bool isThere = edited.element.has(attribute);
        remarkLeft(
            edited, unreadableReason(), isThere ? CRemarks::say("%1 is \"%2\"") : CRemarks::say("%1 is missing"),
            {attribute, edited.element.attribute(attribute)});
    }
}

QString CXmlEdits::result() const
{
    std::vector<SEdit> edits = mEdits;
    std::stable_sort(edits.begin(), edits.end(), [](const SEdit& left, const SEdit& right) {
        return std::make_pair(left.range.begin, left.range.end) < std::make_pair(right.range.begin, right.range.end);
    });
    QString text;
    text.reserve(mTree.text().size() + 64 * int(edits.size()));
    int position = 0;
    for (const SEdit& edit : edits) {
        if (edit.range.begin < position) {
            continue; // In an element that is taken out
        }
        text += mTree.raw({position, edit.range.begin});
        text += edit.text;
        position = edit.range.end;
    }
    return text + mTree.raw({position, int(mTree.text().size())});
}

SWords CXmlEdits::unreadableReason() const
{
    return mIsOnlyRecorded ? CRemarks::say("left as it is, so the copy does not load") : CRemarks::say("left out");
}

void CXmlEdits::remarkLeft(
    const SEdited& edited, const SWords& reason, const SWords& words, CRemarks::Arguments arguments)
{
    const CXddRemark cause = mRemarks.cause();
    CXddRemark left = cause;
    left.mKind = CXddRemark::KIND_LEFT;
    left.mReason = CRemarks::filled(reason);
    mRemarks.setCause(left);
    mRemarks.add(edited.place, words, arguments);
    mRemarks.setCause(cause);
}

void CXmlEdits::replace(SRange range, const QString& text)
{
    mIsComplete = !mIsOnlyRecorded;
    if (!mIsOnlyRecorded) {
        mEdits.push_back({range, text});
    }
}

void CXmlEdits::setAttribute(const CXmlElement& element, QLatin1String name, const QString& value)
{
    if (element.has(name)) {
        replace(element.valueRange(name), escapedXml(value));
    } else {
        replace(
            {element.attributesEnd(), element.attributesEnd()},
            QStringLiteral(" %1=\"%2\"").arg(name, escapedXml(value)));
    }
}

// A comment must not contain "--", so these are taken apart.
void CXmlEdits::comment(const CXmlElement& element)
{
    QString text = mTree.raw(element.range());
    while (text.contains(QLatin1String("--"))) {
        text.replace(QLatin1String("--"), QLatin1String("- -"));
    }
    replace(element.range(), QLatin1String("<!-- ") + text + QLatin1String(" -->"));
}

// The white space in front of an element on its line; null when something else stands there, or no lines are wanted.
QString CXmlEdits::indentOf(const CXmlElement& element) const
{
    if (element.isNull() || mLayout == ELayout::InLine) {
        return QString();
    }
    const int begin = element.range().begin;
    const int lineBegin = int(mTree.text().lastIndexOf(QLatin1Char('\n'), begin)) + 1;
    const QString indent = mTree.raw({lineBegin, begin});
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
