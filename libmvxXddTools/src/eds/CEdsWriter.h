#ifndef MVXXDDTOOLS_CEDSWRITER_H
#define MVXXDDTOOLS_CEDSWRITER_H

#include "canopen/CDescription.h"
#include "eds/CEdsSections.h"

#include <QMap>
#include <QSet>

/** Writes the INI form of one description. */
class CEdsWriter
{
public:
    /** Writes a DCF where something is configured, else an EDS. */
    CEdsWriter(const CDescription& description, const CXddCommissioning* commissioning);

    QByteArray bytes() const { return mSections.bytes(); }
    /** What the form does not say, in the order of the description. */
    QList<CXddRemark> losses() const { return mLosses.inOrder(); }
    /** How many entries have a loss. */
    int incompleteEntries() const { return int(mIncomplete.size()); }

private:
    // Objects that are written, each with its sub-objects in their order.
    struct SObject
    {
        const SEntry* entry = nullptr;
        QMap<unsigned int, const SEntry*> subObjects;
    };

    void chooseObjects();
    void chooseSubObjects(SObject& object);
    bool canSay(const SEntry& object);

    void writeFileInfo();
    void writeDeviceInfo();
    void writeBitRates();
    void writeFeatures();
    void writeCommissioning();
    void writeDummyUsage();
    void writeObjectLists();
    void writeObject(const SObject& object);
    void writeComposed(const SObject& object);
    void writeVariable(const SEntry& entry);

    void writeName(const SEntry& entry);
    void writeDataType(const SEntry& entry, unsigned int type);
    void writeAccess(const SEntry& entry);
    void writeMapping(const SEntry& entry);
    void writeValue(const SEntry& entry, QLatin1String key, const QString& text, unsigned int type);
    void writeLimits(const SEntry& entry, unsigned int type);
    void writeFlags(const SEntry& entry);
    void writeConfigured(const SEntry& entry, unsigned int type);
    void writeText(QLatin1String key, const CXmlElement& element, const QString& text);
    QString identityNumber(QLatin1String name, unsigned int subIndex) const;
    std::optional<unsigned int> identityDefault(unsigned int subIndex) const;

    void lose(const SPlace& place, QLatin1String kind, const SWords& words, CRemarks::Arguments arguments = {});
    void loseText(const SPlace& place, const SEdsText& text);

    const CDescription& mDescription;
    const CXddCommissioning* mCommissioning; // Null for an EDS
    CXmlElement mDeviceBody;
    CXmlElement mNetworkBody;
    QMap<unsigned int, SObject> mObjects;
    CEdsSections mSections;
    CRemarks mLosses;
    QSet<QString> mIncomplete; // Entries with a loss
};

#endif
