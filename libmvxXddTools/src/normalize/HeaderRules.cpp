#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "normalize/CNormalizeRules.h"

#include <CProfileHeader.h>

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

void fileDates(const CDescription& description, CXmlEdits& edits)
{
    for (const CXmlElement& body : readBodies(description)) {
        for (const QLatin1String name : {ATTR_FILE_CREATION_DATE, ATTR_FILE_MODIFICATION_DATE}) {
            const QString text = body.attribute(name);
            if (text.trimmed().isEmpty() || CXmlValue::toDate(text)) {
                continue;
            }
            const std::optional<QDate> date = dateOf(text);
            date ? edits.rewrite(body, name, date->toString(Qt::ISODate)) : edits.leave(body, name);
        }
    }
}

void missingCreationDates(const CDescription& description, CXmlEdits& edits)
{
    for (const CXmlElement& body : readBodies(description)) {
        if (body.attribute(ATTR_FILE_CREATION_DATE).trimmed().isEmpty()) {
            const QDate date = dateOf(body.attribute(ATTR_FILE_MODIFICATION_DATE)).value_or(QDate(1970, 1, 1));
            edits.supply(body, {{ATTR_FILE_CREATION_DATE, date.toString(Qt::ISODate)}});
        }
    }
}

void fileAttributes(const CDescription& description, CXmlEdits& edits)
{
    for (const CXmlElement& body : readBodies(description)) {
        for (const QLatin1String name : {ATTR_FILE_CREATOR, ATTR_FILE_NAME, ATTR_FILE_VERSION}) {
            if (!body.has(name)) {
                edits.supply(body, {{name, QString()}});
            }
        }
    }
}
} // namespace

const NormalizeRules& CNormalizeRules::header()
{
    static const NormalizeRules rules = {
        {"required", NOTE,
         QT_TR_NOOP(
             "A profile header lacks a required element: it gets an empty one, 1 for part and edition, and CANopen for the technology"),
         QT_TR_NOOP("a required element that states nothing is empty"), requiredItems},
        {"class", WARNING,
         QT_TR_NOOP("Spaces or other capitals make ProfileClassID an unknown class: it gets that class"),
         QT_TR_NOOP("a profile of an unknown class would not be read"), profileClass},
        {"file-date", WARNING, QT_TR_NOOP("A file date is written in another common form: yyyy-MM-dd"),
         QT_TR_NOOP("dates are written yyyy-MM-dd"), fileDates},
        {"creation-date", NOTE, QT_TR_NOOP("There is no creation date: the modification date or 1970-01-01"),
         QT_TR_NOOP("the library demands one"), missingCreationDates},
        {"file-attribute", NOTE, QT_TR_NOOP("fileCreator, fileName or fileVersion is missing: it gets an empty one"),
         QT_TR_NOOP("a required file attribute that states nothing is empty"), fileAttributes},
    };
    return rules;
}
