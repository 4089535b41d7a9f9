#include "canopen/CDescription.h"

#include "CCanOpenNames.h"
#include "NIso15745Tags.h"
#include "canopen/DataTypes.h"
#include "canopen/ProcessNames.h"

#include <QCoreApplication>
#include <QSet>

using namespace NIso15745Tags;
using namespace NProcessNames;

namespace
{
// Depth up to which a data type is followed to the type that it is derived from.
constexpr int MAX_TYPE_DEPTH = 16;

// By the class that the header states, or by the type of the body where it states none.
EProfile kindOf(const CXmlElement& header, const CXmlElement& body)
{
    const CXmlElement stated = header.child(TAG_PROFILE_CLASS_ID);
    const QString name = stated.isNull() ? body.attribute(ATTR_TYPE) : stated.text();
    if (name.contains(VAL_CID_COMM_NET, Qt::CaseInsensitive)) {
        return EProfile::Network;
    }
    return name.contains(VAL_CID_DEVICE, Qt::CaseInsensitive) ? EProfile::Device : EProfile::Other;
}

CXmlElement objectListOf(const CXmlElement& body)
{
    return body.child(TAG_APPLICATION_LAYERS).child(TAG_CAN_OPEN_OBJECT_LIST);
}
} // namespace

CDescription::CDescription(const CXmlText& text)
    : mText(text)
    , mRoot(text.root())
{
    for (const CXmlElement& element : text.all()) {
        const QString id = element.attribute(ATTR_UNIQUE_ID);
        if (!id.isEmpty() && !mByUniqueId.contains(id)) {
            mByUniqueId.insert(id, element);
        }
    }
    for (const CXmlElement& profile : mRoot.children(TAG_PROFILE)) {
        const CXmlElement header = profile.child(TAG_PROFILE_HEADER);
        const CXmlElement body = profile.child(TAG_PROFILE_BODY);
        if (!header.isNull() && !body.isNull()) {
            mProfiles.push_back({kindOf(header, body), header, body});
        }
    }
    for (const CXmlElement& list : objectLists()) {
        for (const CXmlElement& object : list.children(TAG_CAN_OPEN_OBJECT)) {
            mEntries.push_back({object, parameterOf(object)});
            for (const CXmlElement& subObject : object.children(TAG_CAN_OPEN_SUB_OBJECT)) {
                mEntries.push_back({subObject, parameterOf(subObject)});
            }
        }
    }
}

CXmlElement CDescription::root() const
{
    return mRoot;
}

bool CDescription::isCanOpen(QString& errorText) const
{
    if (!mRoot.is(TAG_PROFILE_CONTAINER)) {
        errorText = QCoreApplication::translate("mvxXddTools", "The root element is <%1>, not <%2>.")
                        .arg(mRoot.name(), TAG_PROFILE_CONTAINER);
        return false;
    }
    bool stated = false;
    for (const CXmlElement& profile : mRoot.children(TAG_PROFILE)) {
        const CXmlElement header = profile.child(TAG_PROFILE_HEADER);
        const QString name = header.child(TAG_ISO15745_REFERENCE).child(TAG_ISO15745_TECHNOLOGY).text().trimmed();
        if (!name.isEmpty() && name.compare(VAL_CAN_OPEN, Qt::CaseInsensitive) != 0) {
            errorText = QCoreApplication::translate("mvxXddTools", "A profile is of the technology \"%1\", not \"%2\".")
                            .arg(name, VAL_CAN_OPEN);
            return false;
        }
        const CXmlElement body = profile.child(TAG_PROFILE_BODY);
        stated = stated || !name.isEmpty() || body.attribute(ATTR_TYPE).contains(VAL_CAN_OPEN)
                 || !objectListOf(body).isNull();
    }
    if (!stated) {
        errorText = QCoreApplication::translate("mvxXddTools", "Nothing says that this is a CANopen description.");
    }
    return stated;
}

std::vector<CXmlElement> CDescription::bodiesOfType(QLatin1String type) const
{
    std::vector<CXmlElement> bodies;
    for (const CXmlElement& profile : mRoot.children(TAG_PROFILE)) {
        const CXmlElement body = profile.child(TAG_PROFILE_BODY);
        if (body.attribute(ATTR_TYPE).section(QLatin1Char(':'), -1) == type) {
            bodies.push_back(body);
        }
    }
    return bodies;
}

bool CDescription::hasTypedBody(QString& errorText) const
{
    if (!bodiesOfType(VAL_DEVICE_BODY).empty() || !bodiesOfType(VAL_NETWORK_BODY).empty()) {
        return true;
    }
    errorText = QCoreApplication::translate("mvxXddTools", "No ProfileBody is of the type %1 or %2.")
                    .arg(VAL_DEVICE_BODY, VAL_NETWORK_BODY);
    return false;
}

const std::vector<SProfile>& CDescription::profiles() const
{
    return mProfiles;
}

std::vector<CXmlElement> CDescription::bodies(EProfile kind) const
{
    std::vector<CXmlElement> found;
    for (const SProfile& profile : mProfiles) {
        if (profile.kind == kind) {
            found.push_back(profile.body);
        }
    }
    return found;
}

std::vector<CXmlElement> CDescription::objectLists() const
{
    std::vector<CXmlElement> lists;
    for (const CXmlElement& body : bodies(EProfile::Network)) {
        const CXmlElement list = objectListOf(body);
        if (!list.isNull()) {
            lists.push_back(list);
        }
    }
    return lists;
}

std::vector<CXmlElement> CDescription::bitRates() const
{
    std::vector<CXmlElement> rates;
    for (const CXmlElement& body : bodies(EProfile::Network)) {
        const CXmlElement baudRate = body.child(TAG_TRANSPORT_LAYERS).child(TAG_PHYSICAL_LAYER).child(TAG_BAUD_RATE);
        if (!baudRate.isNull()) {
            rates.push_back(baudRate);
        }
    }
    return rates;
}

const std::vector<SEntry>& CDescription::entries() const
{
    return mEntries;
}

std::vector<CXmlElement> CDescription::elements() const
{
    return mText.all();
}

CXmlElement CDescription::byUniqueId(const QString& id) const
{
    return mByUniqueId.value(id);
}

QString CDescription::simpleTypeOf(const CXmlElement& described, bool isBlock) const
{
    return findSimpleType(described, isBlock, 0).value_or(QString());
}

// Nothing for a type that is derived from itself or too often, which ends the search: types may refer to many others.
std::optional<QString> CDescription::findSimpleType(const CXmlElement& described, bool isBlock, int depth) const
{
    if (depth > MAX_TYPE_DEPTH) {
        return std::nullopt;
    }
    QHash<int, QString>& found = mSimpleTypes[isBlock ? 1 : 0];
    const int place = described.range().begin;
    if (described.isNull() || described.is(TAG_ARRAY) || described.is(TAG_STRUCT)) {
        return QString();
    }
    if (found.contains(place)) {
        return found.value(place);
    }
    QSet<QString> types;
    for (CXmlElement child = described.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.is(TAG_DATA_TYPE_ID_REF)) {
            const auto type = findSimpleType(byUniqueId(child.attribute(ATTR_UNIQUE_ID_REF)), isBlock, depth + 1);
            if (!type) {
                return std::nullopt;
            }
            types << *type;
        } else if (const unsigned int simple = simpleType(child.name())) {
            // Blocks of data are bit strings, too, and have a type of their own.
            types << CCanOpenNames::index(isBlock && child.is(TAG_BITSTRING) ? TYPE_DOMAIN : simple);
        }
    }
    types.remove(QString());
    const QString type = types.size() == 1 ? *types.cbegin() : QString();
    found.insert(place, type);
    return type;
}

CParameter CDescription::parameterOf(const CXmlElement& element) const
{
    const QString id = element.attribute(ATTR_UNIQUE_ID_REF);
    const CXmlElement parameter = id.isEmpty() ? CXmlElement() : byUniqueId(id);
    return parameter.is(TAG_PARAMETER) ? CParameter(*this, parameter) : CParameter();
}
