#ifndef MVXXDDTOOLS_CEDSFILE_H
#define MVXXDDTOOLS_CEDSFILE_H

#include "remarks/CRemarks.h"
#include "text/Suppressions.h"

#include <QHash>
#include <QSet>
#include <QStringView>

#include <vector>

/** True for a name of the form, in which case does not matter. */
inline bool isEdsName(QStringView name, QLatin1String wanted)
{
    return name.size() == wanted.size() && name.compare(wanted, Qt::CaseInsensitive) == 0;
}

/** A key of a section. */
struct SEdsKey
{
    QStringView name;
    QStringView value; ///< Without spaces around it
    int line = 0;

    bool is(QLatin1String wanted) const { return isEdsName(name, wanted); }
};

/** A section with its keys in the order of the file. */
struct SEdsSection
{
    QStringView name;
    int line = 1;
    std::vector<SEdsKey> keys = {};

    bool is(QLatin1String wanted) const { return isEdsName(name, wanted); }
    /** The first key with that name, or null. */
    const SEdsKey* key(QLatin1String wanted) const;
    /** The key, or null where it is absent or empty. */
    const SEdsKey* given(QLatin1String wanted) const;
};

/** The sections and keys of a text in the INI form. Knows nothing of their meaning. */
class CEdsFile
{
public:
    /** Reads a text and adds what is wrong with its lines to the remarks. Returns false, with the reason and its place,
     * for a text beyond the limits. */
    bool read(const QString& text, CRemarks& remarks, CXddRemark& failure);

    /** Every section, in the order in which they begin. One that is there twice is one. */
    const std::vector<SEdsSection>& sections() const { return mSections; }
    /** The section with that name, or null. */
    const SEdsSection* find(QLatin1String name) const;
    /** The section with that name; one without keys in line 1 where it is absent. */
    const SEdsSection& section(QLatin1String name) const;

    /** The rules of the checker that comments switch off, in the order of the lines. */
    const std::vector<SSuppression>& suppressions() const { return mSuppressions; }

private:
    void readLine(QStringView text, int line, CRemarks& remarks);
    void beginSection(QStringView name, int line, CRemarks& remarks);
    void addKey(const SEdsKey& key, CRemarks& remarks);

    QString mText; // What the views refer to
    std::vector<SEdsSection> mSections;
    std::vector<SSuppression> mSuppressions;
    QHash<QString, int> mByName; // In lower case
    int mCurrent = -1;           // The section that keys belong to
    QSet<QString> mKeys;         // Those of the current section in lower case, once it has many
};

#endif
