#ifndef MVXXDDTOOLS_CEDSREADER_H
#define MVXXDDTOOLS_CEDSREADER_H

#include "canopen/CDescription.h"
#include "eds/CEdsEntryReader.h"
#include "eds/CEdsObjects.h"
#include "eds/CXddText.h"

/** Reads a description in the INI forms (EDS, DCF) and makes an XDD of it. */
class CEdsReader
{
public:
    /** What is not written as the form demands is added to @p remarks. */
    explicit CEdsReader(CRemarks& remarks)
        : mRemarks(remarks)
        , mEntries(remarks)
    {}

    /** Reads a text. Returns false, with the reason and its place, when it is another kind of file or beyond a limit.
     */
    bool read(const QString& text, CXddRemark& failure);

    /** The XDD. */
    const CXddText& xdd() const { return mXdd; }

    /** The rules of the checker that comments switch off. */
    const std::vector<SSuppression>& suppressions() const { return mFile.suppressions(); }

    /** What it says that the XDD has no place for. */
    SEdsExtras extras() const;

    /** True for a DCF: a file with what is configured. */
    bool isDcf() const;

private:
    using Attributes = std::vector<std::pair<QLatin1String, QString>>;

    bool isDescription(CXddRemark& failure) const;
    void leaveSections();
    void leaveKeys(const SEdsSection& section, std::initializer_list<QLatin1String> known);

    void readFileInfo();
    QString textOf(const SEdsSection& section, QLatin1String key);
    void readDate(QLatin1String attribute, QLatin1String key);
    void readTime(QLatin1String attribute, QLatin1String key);
    void remarkOn(const SEdsKey& key, bool isReadable, bool isPlain, QLatin1String form);

    void writeDeviceProfile();
    void writeNetworkProfile();
    void beginProfile(QLatin1String identification, QLatin1String classId, QLatin1String type);
    void writeIdentity();
    void writeObject(unsigned int index, const SEdsObject& object);
    void writeSubObject(SPlace place, unsigned int subIndex, const SEdsObject& object, const SEdsEntry& compact);
    void writeEntry(const SEdsEntry& entry);
    void fromLists(SEdsEntry& entry, const SPlace& place, const SEdsObject& object);
    void writeDummyUsage();
    void writeBitRates();
    void writeManagement();
    void writeFlag(QLatin1String attribute, const SEdsKey* key);
    void writeNumber(QLatin1String attribute, const SEdsKey* key);
    void writeCommissioning();
    const SEdsSection* commissioning() const;

    CRemarks& mRemarks;
    CEdsFile mFile;
    CEdsObjects mObjects;
    CEdsEntryReader mEntries;
    Attributes mFileInfo; // Of both bodies
    CXddText mXdd;
    bool mHasValueList = false;
};

#endif
