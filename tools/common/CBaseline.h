#ifndef TOOLS_CBASELINE_H
#define TOOLS_CBASELINE_H

#include <CXddRemark.h>

#include <QList>
#include <QMap>
#include <QSet>
#include <QString>

/**
 * Findings that are known, kept in a file of plain JSON, sorted and with one finding on a line. A finding is recognised
 * by its file, rule, entry and text, in English and without the numbers of lines, which move.
 */
class CBaseline
{
public:
    /** A baseline that is kept in that file, from whose folder on descriptions are named. */
    explicit CBaseline(const QString& fileName);

    /** Reads the file. Returns why not where that fails. */
    QString read();
    /** Writes what was added. Complains and returns false when that fails. */
    bool write() const;

    /** Adds the findings of a description. */
    template <typename Remark> void add(const QString& description, const QList<Remark>& findings)
    {
        for (const Remark& finding : findings) {
            ++mFindings[keyOf(description, finding)];
        }
    }

    /** The findings of a description that are not known. Each known one is recognised as often as it was added. */
    template <typename Remark> QList<Remark> unknown(const QString& description, const QList<Remark>& findings)
    {
        mLookedAt << pathOf(description);
        QList<Remark> unknown;
        for (const Remark& finding : findings) {
            int& left = mFindings[keyOf(description, finding)];
            if (left > 0) {
                --left;
            } else {
                unknown << finding;
            }
        }
        return unknown;
    }

    /** How many findings there are. */
    int size() const;
    /** How many of the descriptions that were compared were not recognised again. */
    int gone() const;

private:
    // File, rule, entry and text, in the order of the file.
    struct SKey
    {
        QString file;
        QString rule;
        QString entry;
        QString text;

        bool operator<(const SKey& other) const;
    };

    SKey keyOf(const QString& description, const CXddRemark& finding) const;
    QString pathOf(const QString& description) const;

    QString mFileName;
    QMap<SKey, int> mFindings;
    QSet<QString> mLookedAt;
};

#endif
