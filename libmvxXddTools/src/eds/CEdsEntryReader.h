#ifndef MVXXDDTOOLS_CEDSENTRYREADER_H
#define MVXXDDTOOLS_CEDSENTRYREADER_H

#include "eds/CEdsFile.h"

#include <QSet>

#include <array>
#include <optional>

/** The keys of an object or sub-object. */
enum EEdsKey
{
    KEY_PARAMETER_NAME,
    KEY_OBJECT_TYPE,
    KEY_DATA_TYPE,
    KEY_ACCESS_TYPE,
    KEY_DEFAULT_VALUE,
    KEY_PDO_MAPPING,
    KEY_LOW_LIMIT,
    KEY_HIGH_LIMIT,
    KEY_PARAMETER_VALUE,
    KEY_SUB_NUMBER,
    KEY_COMPACT_SUB_OBJ,
    KEY_OBJ_FLAGS,
    KEY_DENOTATION,
    KEY_COUNT
};

/** What an object or sub-object states, as attributes of an XDD; a null text where it states nothing. */
struct SEdsEntry
{
    int line = 0;
    QString name;
    unsigned int objectCode = 0; ///< 0 when there is none
    unsigned int dataType = 0;   ///< 0 when there is none
    QString lowLimit;
    QString highLimit;
    QLatin1String access;
    QString defaultValue;
    QString actualValue;
    QString denotation;
    QLatin1String mapping;
    QString flags;
    QString subNumber;
    std::array<int, KEY_COUNT> lines = {}; ///< Of the keys; 0 for one that is absent
};

/** Reads the keys of objects and sub-objects. What is not written as the form demands is added to the remarks. */
class CEdsEntryReader
{
public:
    explicit CEdsEntryReader(CRemarks& remarks)
        : mRemarks(remarks)
    {}

    /** What a section states. */
    SEdsEntry read(const SPlace& place, const SEdsSection& section);

    /** The text of a key; a null text where there is none. */
    QString text(const SPlace& place, const SEdsKey* key);
    /** The value of a key for an entry of that type; a null text where there is none. */
    QString value(const SPlace& place, const SEdsKey* key, unsigned int dataType);

    /** True when an entry had an actual value. */
    bool hasActualValue() const { return mHasActualValue; }

private:
    void leaveUnknown(const SEdsKey& key);
    void readAccess(SEdsEntry& entry, const SPlace& place, const SEdsKey* key, const SEdsKey* mapping);
    std::optional<unsigned int> number(
        const SPlace& place, const SEdsKey* key, unsigned int (*named)(const QString&) = nullptr);

    CRemarks& mRemarks;
    QSet<QString> mUnknown; // Keys, in lower case, each of which is reported once
    bool mHasActualValue = false;
};

#endif
