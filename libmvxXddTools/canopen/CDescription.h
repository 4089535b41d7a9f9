#ifndef MVXXDDTOOLS_CDESCRIPTION_H
#define MVXXDDTOOLS_CDESCRIPTION_H

#include "canopen/CParameter.h"
#include "text/CXmlText.h"

#include <QHash>
#include <QString>

#include <optional>
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

/** One "CANopenObject" or "CANopenSubObject". */
struct SEntry
{
    CXmlElement element;
    CParameter parameter; ///< What its "uniqueIDRef" names, if that is a parameter
};

/** A CANopen description in the words of its format: what of it stands where in the text. */
class CDescription
{
public:
    /** Reads a text with an element at its root; both have to outlive the description. */
    explicit CDescription(const CXmlText& text);
    CDescription(const CDescription&) = delete; // Its parameters refer to it
    CDescription(CDescription&&) = delete;
    CDescription& operator=(const CDescription&) = delete;
    CDescription& operator=(CDescription&&) = delete;
    ~CDescription() = default;

    CXmlElement root() const;

    /**
     * True for a container whose profiles all state the technology CANopen, or state none and are CANopen by their
     * content; otherwise false, with the reason.
     */
    bool isCanOpen(QString& errorText) const;

    /** The bodies whose "xsi:type" is that, whatever its prefix. */
    std::vector<CXmlElement> bodiesOfType(QLatin1String type) const;
    /** True when there is a body of one of the two types of CANopen; otherwise false, with the reason. */
    bool hasTypedBody(QString& errorText) const;

    /** Every profile with a header and a body, in document order. */
    const std::vector<SProfile>& profiles() const;
    /** The bodies of the profiles of a kind. */
    std::vector<CXmlElement> bodies(EProfile kind) const;

    /** Every "CANopenObjectList". */
    std::vector<CXmlElement> objectLists() const;
    /** Every "baudRate" of the physical layer. */
    std::vector<CXmlElement> bitRates() const;
    /** Every object of the lists, each followed by its sub-objects. */
    const std::vector<SEntry>& entries() const;

    /** Every element of the text in document order. */
    std::vector<CXmlElement> elements() const;

    /** The first element with that "uniqueID". */
    CXmlElement byUniqueId(const QString& id) const;
    /** The index of the data type, such as "0x0007", of a parameter or of a type that it refers to, if that is one
     * simple type; @p isBlock for an object that is a block of data. */
    QString simpleTypeOf(const CXmlElement& described, bool isBlock) const;
    /** The parameter that an element refers to. */
    CParameter parameterOf(const CXmlElement& element) const;

private:
    std::optional<QString> findSimpleType(const CXmlElement& described, bool isBlock, int depth) const;

    const CXmlText& mText;
    CXmlElement mRoot;
    QHash<QString, CXmlElement> mByUniqueId;
    std::vector<SProfile> mProfiles;
    std::vector<SEntry> mEntries;
    mutable QHash<int, QString> mSimpleTypes[2]; // By where a type begins: those that were found, and those of blocks
};

#endif
