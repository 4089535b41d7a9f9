#ifndef MVXXDDTOOLS_DBCNAMES_H
#define MVXXDDTOOLS_DBCNAMES_H

#include "canopen/CDictionary.h"

#include <QHash>
#include <QSet>
#include <QString>

/** @file
 * Names and texts as every reader of a DBC takes them.
 */

/** Longest name of a node, message or signal that all readers take. */
constexpr int MAX_DBC_NAME = 32;

/** A text in printable ASCII, without the quotation marks and backslashes that some readers do not take: "degC" for
 * "°C", "'" for a quotation mark, "?" for what has no such letters. */
QString dbcText(const QString& text);

/** A name of letters, digits and underscores that is no keyword and does not begin with a digit; nothing for a text
 * without a letter or digit. It may be too long. */
QString dbcName(const QString& text);

/** The beginning of a name, without an underscore at its end. */
QString shortened(const QString& name, int length);

/** What a signal is called. */
struct SDbcName
{
    QString name;
    QString longName; ///< The whole name where that is longer than all readers take; else nothing
};

/** The names of the signals of a device. They only depend on its dictionary, so that they stay when nodes or PDOs are
 * added. */
class CDbcNames
{
public:
    explicit CDbcNames(const CDictionary& dictionary);

    /** The name for an entry: its own, that behind its object's, or that with the sub-index, whichever is the first
     * that no other entry has. */
    SDbcName of(const SEntry& entry) const;

    /** The name for an entry without a name. */
    static SDbcName byIndex(unsigned int index, bool isSubObject, unsigned int subIndex);

private:
    static QVector<SDbcName> candidates(const QString& object, const SEntry& entry);

    const CDictionary& mDictionary;
    QHash<QString, int> mCounts; // Of the names in lower case
};

/** Names that are in use, whatever their capitals. */
class CUsedNames
{
public:
    /** The name, with a number behind it where another one has it already. */
    QString unique(const QString& name);

private:
    QSet<QString> mUsed; // In lower case
};

#endif
