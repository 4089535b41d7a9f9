#ifndef MVXXDDTOOLS_CXDDCHANGE_H
#define MVXXDDTOOLS_CXDDCHANGE_H

#include "CXddRemark.h"
#include "mvxXddTools_export.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/**
 * Something that differs between two descriptions of a device, and whom it concerns. As a remark it is of the kind
 * KIND_DIFFERENCE; its line is that of the new description, or of the old one for what is gone.
 */
class MVXXDDTOOLS_EXPORT CXddChange : public CXddRemark
{
public:
    /** Who has to do with a change; several may be set. */
    enum EConcern : unsigned int
    {
        CONCERN_SDO = 1,           ///< A master or tool that reads and writes entries
        CONCERN_PDO = 2,           ///< Who reads or sends frames on the bus
        CONCERN_CONFIGURATION = 4, ///< What is stored for the device, and defaults that are relied on
        CONCERN_PEOPLE = 8         ///< Texts, names and dates
    };

    CXddChange();

    /** "breaking" for SEVERITY_ERROR: something that worked with the old description no longer does, or means something
     * else; "compatible" for SEVERITY_WARNING: the device differs, who knows the old description goes on working;
     * "editorial" for SEVERITY_NOTE: the device is the same. The same in every language. */
    static QString gradeAsStr(ESeverity severity);
    /** "sdo", "pdo", "configuration" and "people", in that order, the same in every language. */
    static QStringList concernsAsStr(unsigned int concerns);

    unsigned int mConcerns = 0; ///< Of EConcern
    bool mIsOld = false;        ///< mLine is a line of the old description
    int mOtherLine = 0;         ///< Line of the same entry in the other description; 0 where there is none
    QString mOld;               ///< What the old description states, such as "rw"; empty where it states nothing
    QString mNew;               ///< What the new one states
    std::optional<unsigned int>
        mOtherIndex; ///< Of what is gone: where it probably is now; of what is new: where it was
    std::optional<unsigned int> mOtherSubIndex; ///< The sub-index of that
};

#endif
