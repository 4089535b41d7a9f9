#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "canopen/CDescription.h"
#include "normalize/NormalizeRules.h"
#include "text/CXmlEdits.h"

#include <CProfileHeader.h>

#include <QCoreApplication>
#include <QDate>
#include <QRegularExpression>

using namespace NIso15745Tags;

namespace
{
// The class that the type of a body stands for.
QString classOf(const CXmlElement& body)
{
    const QString type = body.attribute(ATTR_TYPE);
    return type.contains(VAL_CID_COMM_NET) ? QString(VAL_CID_COMM_NET)
           : type.contains(VAL_CID_DEVICE) ? QString(VAL_CID_DEVICE)
                                           : QString();
}

std::vector<SNewElement> requiredReferenceItems()
{
    return {
        {TAG_ISO15745_PART, QString(), QStringLiteral("1")},
        {TAG_ISO15745_EDITION, QString(), QStringLiteral("1")},
        {TAG_ISO15745_TECHNOLOGY, QString(), VAL_CAN_OPEN}};
}

std::vector<SNewElement> requiredHeaderItems(const CXmlElement& body)
{
    return {
        {TAG_PROFILE_IDENTIFICATION, QString(), QString()},
        {TAG_PROFILE_REVISION, QString(), QString()},
        {TAG_PROFILE_NAME, QString(), QString()},
        {TAG_PROFILE_SOURCE, QString(), QString()},
        {TAG_PROFILE_CLASS_ID, QString(), classOf(body)},
        {TAG_ISO15745_REFERENCE, QString(), QString(), requiredReferenceItems()}};
}

void requiredItems(const CDescription& description, CXmlEdits& edits)
{
    for (const SProfile& profile : description.profiles()) {
        edits.supplyMissing(profile.header, requiredHeaderItems(profile.body));
        const CXmlElement reference = profile.header.child(TAG_ISO15745_REFERENCE);
        if (reference.isNull()) {
            continue;
        }
        edits.supplyMissing(reference, requiredReferenceItems());
        for (const QLatin1String name : {TAG_ISO15745_PART, TAG_ISO15745_EDITION}) {
            const CXmlElement number = reference.child(name);
            if (!number.isNull() && !number.isEmptyTag() && number.isPlain() && number.text().trimmed().isEmpty()) {
                edits.supplyText(number, QStringLiteral("1"));
            }
        }
    }
}

void profileClass(const CDescription& description, CXmlEdits& edits)
{
    for (const SProfile& profile : description.profiles()) {
        const CXmlElement element = profile.header.child(TAG_PROFILE_CLASS_ID);
        const QString text = element.text();
        for (const QString& known : CProfileHeader::mClassIdTexts) {
            if (element.isPlain() && text != known && text.trimmed().compare(known, Qt::CaseInsensitive) == 0) {
                edits.rewriteText(element, known);
            }
        }
    }
}

// The bodies of the profiles that the library reads.
std::vector<CXmlElement> readBodies(const CDescription& description)
{
    std::vector<CXmlElement> bodies;
    for (const SProfile& profile : description.profiles()) {
        if (profile.kind != EProfile::Other) {
            bodies.push_back(profile.body);
        }
    }
    return bodies;
}

// The date of a text in a common writing, in the form yyyy-MM-dd; nothing when it is none or ambiguous.
QString isoDate(const QString& text)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*(\\d{1,4})([-./])(\\d{1,2})\\2(\\d{1,4})(?:[T Z+-].*)?\\s*$"));
    const QRegularExpressionMatch match = form.match(text);
    const int first = match.captured(1).toInt();
    const int second = match.captured(3).toInt();
    const int third = match.captured(4).toInt();
    QDate date;
    if (match.capturedLength(1) == 4) {
        date = QDate(first, second, third);
    } else if (match.capturedLength(4) == 4) {
        const QDate dayFirst(third, second, first);
        const QDate monthFirst(third, first, second);
        if (!dayFirst.isValid() || !monthFirst.isValid() || dayFirst == monthFirst) {
            date = dayFirst.isValid() ? dayFirst : monthFirst;
        }
    }
    return date.isValid() ? date.toString(Qt::ISODate) : QString();
}

void fileDates(const CDescription& description, CXmlEdits& edits)
{
    for (const CXmlElement& body : readBodies(description)) {
        for (const QLatin1String name : {ATTR_FILE_CREATION_DATE, ATTR_FILE_MODIFICATION_DATE}) {
            const QString text = body.attribute(name);
            if (text.trimmed().isEmpty() || CXmlValue::toDate(text)) {
                continue;
            }
            const QString date = isoDate(text);
            date.isEmpty() ? edits.leave(body, name) : edits.rewrite(body, name, date);
        }
        if (body.attribute(ATTR_FILE_CREATION_DATE).trimmed().isEmpty()) {
            const QString modified = isoDate(body.attribute(ATTR_FILE_MODIFICATION_DATE));
            edits.supply(body, ATTR_FILE_CREATION_DATE, modified.isEmpty() ? QStringLiteral("1970-01-01") : modified);
        }
    }
}

void fileAttributes(const CDescription& description, CXmlEdits& edits)
{
    for (const CXmlElement& body : readBodies(description)) {
        for (const QLatin1String name : {ATTR_FILE_CREATOR, ATTR_FILE_NAME, ATTR_FILE_VERSION}) {
            if (!body.has(name)) {
                edits.supply(body, name, QString());
            }
        }
    }
}
} // namespace

const NormalizeRules& headerRules()
{
    static const NormalizeRules rules = {
        {"required",
         QT_TRANSLATE_NOOP(
             "mvxXddTools", "A profile header lacks a required element: an empty one; 1 for part and edition, CANopen "
                            "for the technology"),
         QT_TRANSLATE_NOOP("mvxXddTools", "a required element that states nothing is empty"), false, requiredItems},
        {"class",
         QT_TRANSLATE_NOOP("mvxXddTools", "Blanks or other capitals make ProfileClassID an unknown class: the class"),
         QT_TRANSLATE_NOOP("mvxXddTools", "a profile of an unknown class would not be read"), true, profileClass},
        {"file-date",
         QT_TRANSLATE_NOOP(
             "mvxXddTools", "A file date is written in another common form, or there is no creation date: yyyy-MM-dd; "
                            "the modification "
                            "date or 1970-01-01"),
         QT_TRANSLATE_NOOP("mvxXddTools", "dates are written yyyy-MM-dd"), true, fileDates},
        {"file-attribute",
         QT_TRANSLATE_NOOP("mvxXddTools", "fileCreator, fileName or fileVersion is missing: an empty one"),
         QT_TRANSLATE_NOOP("mvxXddTools", "a required file attribute that states nothing is empty"), false,
         fileAttributes},
    };
    return rules;
}
