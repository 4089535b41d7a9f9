#ifndef MVXXDDTOOLS_CDESCRIPTION_H
#define MVXXDDTOOLS_CDESCRIPTION_H

#include "CXddDevice.h"
#include "canopen/CDictionary.h"
#include "canopen/CReferences.h"
#include "canopen/Pdos.h"
#include "text/CXmlTree.h"

#include <QString>

#include <vector>

/** The two kinds of profile that a CANopen description has. */
enum class EProfile
{
    Device,
    Network,
    Other
};

/** One "ISO15745Profile" with a header and a body. */
struct SProfile
{
    EProfile kind = EProfile::Other;
    CXmlElement header;
    CXmlElement body;
};

/** What an EDS or DCF says that an XDD has no place for. */
struct SEdsExtras
{
    std::optional<unsigned int> revisionNumber; ///< RevisionNumber of [DeviceInfo]
};

/** A CANopen description as CiA 301 and its format mean it: what of it stands where in the text, and what holds. */
class CDescription
{
public:
    /** Reads a text with an element at its root, which has to outlive the description; @p form is that of the file. */
    CDescription(const CXmlTree& tree, CXddDevice::EForm form, SEdsExtras extras = {});
    CDescription(const CDescription&) = delete; // PDOs refer to the dictionary
    CDescription(CDescription&&) = delete;
    CDescription& operator=(const CDescription&) = delete;
    CDescription& operator=(CDescription&&) = delete;
    ~CDescription() = default;

    const CXmlTree& tree() const { return mTree; }
    CXddDevice::EForm form() const { return mForm; }
    bool isXdd() const { return mForm == CXddDevice::FORM_XDD; }
    const SEdsExtras& extras() const { return mExtras; }
    /** What an attribute or element is called in the form of the file: "SubNumber" of an EDS for "subNumber". */
    QLatin1String word(QLatin1String name) const;
    CXmlElement root() const { return mTree.root(); }

    /**
     * True for a container whose profiles all state the technology CANopen, or state none and are CANopen by their
     * content; otherwise false, with the reason and its place.
     */
    bool isCanOpen(CXddRemark& failure) const;

    /** The bodies whose "xsi:type" is that, whatever its prefix. */
    std::vector<CXmlElement> bodiesOfType(QLatin1String type) const;

    /** Every profile with a header and a body, in document order. */
    const std::vector<SProfile>& profiles() const { return mProfiles; }
    /** The bodies of the profiles of a kind. */
    std::vector<CXmlElement> bodies(EProfile kind) const;
    /** The first body of a kind, or a null element. */
    CXmlElement body(EProfile kind) const;

    /** What a remark about an element names: the entry that stands in it, if there is one. */
    SPlace placeOf(const CXmlElement& element) const;

    /** Every "CANopenObjectList". */
    std::vector<CXmlElement> objectLists() const;
    /** Every "baudRate" of the physical layer. */
    std::vector<CXmlElement> bitRates() const;
    /** The identities of both profiles, that of the device first. */
    std::vector<CXmlElement> identities() const;
    /** Every element with that name in the network management. */
    std::vector<CXmlElement> managementElements(QLatin1String name) const;

    /** What is configured for the device in its network. */
    CXddCommissioning commissioning() const;

    /** The texts with that ID, one for each language, in a dictionary of the description. */
    QList<CXddLabel> dictionaryTexts(const QString& dictionaryId, const QString& textId) const;

    const CReferences& references() const { return mReferences; }
    const CDictionary& dictionary() const { return mDictionary; }
    const std::vector<SPdo>& pdos() const { return mPdos; }

private:
    const CXmlTree& mTree;
    CXddDevice::EForm mForm;
    SEdsExtras mExtras;
    CReferences mReferences;
    std::vector<SProfile> mProfiles;
    CDictionary mDictionary;
    std::vector<SPdo> mPdos;
    QHash<QString, QList<CXddLabel>> mDictionaryTexts; // By the IDs of dictionary and text
};

#endif
