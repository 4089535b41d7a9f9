#include "canopen/CDescription.h"

#include "NIso15745Tags.h"
#include "names/NEdsWords.h"
#include "names/NFormatWords.h"
#include "remarks/CRemarks.h"

#include <algorithm>
#include <array>

using namespace NIso15745Tags;
using namespace NFormatWords;

namespace
{
// What the rules name, and its key in the INI form.
const std::array<std::pair<QLatin1String, QLatin1String>, 12> KEYS = {{
    {ATTR_NAME, NEdsWords::PARAMETER_NAME},
    {ATTR_DATA_TYPE, NEdsWords::DATA_TYPE},
    {ATTR_PDO_MAPPING, NEdsWords::PDO_MAPPING},
    {ATTR_SUB_NUMBER, NEdsWords::SUB_NUMBER},
    {TAG_VENDOR_NAME, NEdsWords::VENDOR_NAME},
    {TAG_VENDOR_ID, NEdsWords::VENDOR_NUMBER},
    {TAG_PRODUCT_NAME, NEdsWords::PRODUCT_NAME},
    {TAG_PRODUCT_ID, NEdsWords::PRODUCT_NUMBER},
    {ATTR_NR_OF_RX_PDO, NEdsWords::NR_OF_RX_PDO},
    {ATTR_NR_OF_TX_PDO, NEdsWords::NR_OF_TX_PDO},
    {ATTR_GRANULARITY, NEdsWords::GRANULARITY},
    {ATTR_NODE_ID, NEdsWords::NODE_ID_KEY},
}};

// As many languages a text of a dictionary has.
constexpr int MAX_LANGUAGES = 64;

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

std::vector<SProfile> profilesOf(const CXmlElement& root)
{
    std::vector<SProfile> profiles;
    for (const CXmlElement& profile : root.children(TAG_PROFILE)) {
        const CXmlElement header = profile.child(TAG_PROFILE_HEADER);
        const CXmlElement body = profile.child(TAG_PROFILE_BODY);
        if (!header.isNull() && !body.isNull()) {
            profiles.push_back({kindOf(header, body), header, body});
        }
    }
    return profiles;
}

CXmlElement objectListOf(const CXmlElement& body)
{
    return body.child(TAG_APPLICATION_LAYERS).child(TAG_CAN_OPEN_OBJECT_LIST);
}

QString textKey(const QString& dictionaryId, const QString& textId)
{
    return dictionaryId + QLatin1Char('\n') + textId;
}

// Adds an element that is there.
void add(std::vector<CXmlElement>& elements, const CXmlElement& element)
{
    if (!element.isNull()) {
        elements.push_back(element);
    }
}
} // namespace

CDescription::CDescription(const CXmlTree& tree, CXddDevice::EForm form, SEdsExtras extras)
    : mTree(tree)
    , mForm(form)
    , mExtras(extras)
    , mReferences(tree)
    , mProfiles(profilesOf(tree.root()))
    , mDictionary(objectLists(), mReferences)
    , mPdos(pdosOf(mDictionary))
{
    for (const CXmlElement& body : bodies(EProfile::Device)) {
        const CXmlElement list = body.child(TAG_DEVICE_FUNCTION).child(TAG_DICTIONARY_LIST);
        for (const CXmlElement& dictionary : list.children(TAG_DICTIONARY)) {
            for (CXmlElement text = dictionary.firstChild(); !text.isNull(); text = text.nextSibling()) {
                QList<CXddLabel>& texts =
                    mDictionaryTexts[textKey(dictionary.attribute(ATTR_DICT_ID), text.attribute(ATTR_TEXT_ID))];
                if (texts.size() < MAX_LANGUAGES) {
                    texts << CXddLabel(dictionary.attribute(ATTR_LANG), text.text());
                }
            }
        }
    }
}

QLatin1String CDescription::word(QLatin1String name) const
{
    const auto* const found =
        std::find_if(KEYS.begin(), KEYS.end(), [name](const std::pair<QLatin1String, QLatin1String>& row) {
            return row.first == name;
        });
    return isXdd() || found == KEYS.end() ? name : found->second;
}

bool CDescription::isCanOpen(CXddRemark& failure) const
{
    const auto refuse = [&](const SWords& words, CRemarks::Arguments arguments) {
        failure.mLine = root().line();
        failure.mColumn = root().place().column;
        failure.mSentence = CRemarks::filled(words, arguments);
        return false;
    };
    if (!root().is(TAG_PROFILE_CONTAINER)) {
        return refuse(
            CRemarks::say("This is another kind of XML: the root element is <%1>, not <%2>."),
            {root().name(), TAG_PROFILE_CONTAINER});
    }
    bool isStated = false;
    for (const CXmlElement& profile : root().children(TAG_PROFILE)) {
        const CXmlElement header = profile.child(TAG_PROFILE_HEADER);
        const QString name = header.child(TAG_ISO15745_REFERENCE).child(TAG_ISO15745_TECHNOLOGY).text().trimmed();
        if (!name.isEmpty() && name.compare(VAL_CAN_OPEN, Qt::CaseInsensitive) != 0) {
            return refuse(
                CRemarks::say("This is a description of another technology: \"%1\", not \"%2\"."),
                {name, VAL_CAN_OPEN});
        }
        const CXmlElement body = profile.child(TAG_PROFILE_BODY);
        isStated = isStated || !name.isEmpty() || body.attribute(ATTR_TYPE).contains(VAL_CAN_OPEN)
                   || !objectListOf(body).isNull();
    }
    return isStated || refuse(CRemarks::say("Nothing says that this is a CANopen description."), {});
}

std::vector<CXmlElement> CDescription::bodiesOfType(QLatin1String type) const
{
    std::vector<CXmlElement> bodies;
    for (const CXmlElement& profile : root().children(TAG_PROFILE)) {
        const CXmlElement body = profile.child(TAG_PROFILE_BODY);
        if (body.attribute(ATTR_TYPE).section(QLatin1Char(':'), -1) == type) {
            bodies.push_back(body);
        }
    }
    return bodies;
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

CXmlElement CDescription::body(EProfile kind) const
{
    const std::vector<CXmlElement> found = bodies(kind);
    return found.empty() ? CXmlElement() : found.front();
}

SPlace CDescription::placeOf(const CXmlElement& element) const
{
    const SEntry* const entry = mDictionary.entryIn(element);
    return entry == nullptr ? element.place() : entry->place();
}

std::vector<CXmlElement> CDescription::objectLists() const
{
    std::vector<CXmlElement> lists;
    for (const CXmlElement& body : bodies(EProfile::Network)) {
        add(lists, objectListOf(body));
    }
    return lists;
}

std::vector<CXmlElement> CDescription::bitRates() const
{
    std::vector<CXmlElement> rates;
    for (const CXmlElement& body : bodies(EProfile::Network)) {
        add(rates, body.child(TAG_TRANSPORT_LAYERS).child(TAG_PHYSICAL_LAYER).child(TAG_BAUD_RATE));
    }
    return rates;
}

std::vector<CXmlElement> CDescription::identities() const
{
    std::vector<CXmlElement> identities;
    for (const CXmlElement& body : bodies(EProfile::Device)) {
        add(identities, body.child(TAG_DEVICE_IDENTITY));
    }
    for (const CXmlElement& body : bodies(EProfile::Network)) {
        add(identities, body.child(TAG_APPLICATION_LAYERS).child(TAG_IDENTITY));
    }
    return identities;
}

QList<CXddLabel> CDescription::dictionaryTexts(const QString& dictionaryId, const QString& textId) const
{
    return mDictionaryTexts.value(textKey(dictionaryId, textId));
}

// A node-ID of 0 means that none is configured.
CXddCommissioning CDescription::commissioning() const
{
    const std::vector<CXmlElement> elements = managementElements(TAG_COMMISSIONING);
    CXddCommissioning stated;
    if (elements.empty()) {
        return stated;
    }
    const CXmlElement& element = elements.front();
    const auto number = [&element](QLatin1String name) {
        const std::optional<CInteger> value = readInteger(element.attribute(name));
        return value ? value->unsigned32().value_or(0) : 0;
    };
    const unsigned int nodeId = number(element.has(ATTR_NODE_ID) ? ATTR_NODE_ID : ATTR_NODE_ID_CAPITAL);
    stated.mNodeId = nodeId <= MAX_NODE_ID ? nodeId : 0;
    stated.mNodeName = element.attribute(ATTR_NODE_NAME);
    stated.mBaudrate = bitRateOf(element.attribute(ATTR_ACTUAL_BAUD_RATE));
    stated.mNetworkNumber = number(ATTR_NETWORK_NUMBER);
    stated.mNetworkName = element.attribute(ATTR_NETWORK_NAME);
    stated.mIsManager = flagOf(element.attribute(ATTR_CANOPEN_MANAGER));
    return stated;
}

std::vector<CXmlElement> CDescription::managementElements(QLatin1String name) const
{
    std::vector<CXmlElement> found;
    for (const CXmlElement& body : bodies(EProfile::Network)) {
        for (const CXmlElement& element : body.child(TAG_NETWORK_MANAGEMENT).children(name)) {
            found.push_back(element);
        }
    }
    return found;
}
