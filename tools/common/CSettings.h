#ifndef TOOLS_CSETTINGS_H
#define TOOLS_CSETTINGS_H

#include "CRuleChoice.h"

#include <QHash>
#include <QString>
#include <QVector>

/**
 * What the files ".xddcheck.ini" of a project, or those named for another tool, say of rules, as an INI file. A section
 * has the pattern of the files that it is about, relative to the folder of the settings; what stands in front of all
 * sections is about all of them:
 *
 *     disable = pdo-*, empty-identity
 *     [legacy*.eds]
 *     warning = bad-value
 */
class CSettings
{
public:
    /** The settings of the nearest folder at or above each description. */
    CSettings() = default;

    /** The name of the files of the tool that runs, such as ".xddcheck.ini". */
    static QString name();

    /** Takes the settings of one file for all descriptions. */
    void setFile(const QString& fileName) { mFileName = fileName; }
    /** Takes none. */
    void setNone() { mIsNone = true; }

    /** Applies what is said of a description. Returns why not, with the place, where the settings cannot be
     * understood. */
    QString apply(const QString& fileName, CRuleChoice& choice);

private:
    struct SEntry
    {
        QString files; // Empty for all of them
        QString key;
        QStringList patterns;
    };

    struct SFile
    {
        QString folder;
        QVector<SEntry> entries;
        QString error;
    };

    QString fileFor(const QString& fileName);
    static SFile read(const QString& fileName, const CRuleChoice& known);
    static QString faultOf(const SEntry& entry, const CRuleChoice& known);

    QString mFileName;
    bool mIsNone = false;
    QHash<QString, QString> mFileOfFolder;
    QHash<QString, SFile> mFiles;
};

#endif
