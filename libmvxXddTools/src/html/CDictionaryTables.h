#ifndef MVXXDDTOOLS_CDICTIONARYTABLES_H
#define MVXXDDTOOLS_CDICTIONARYTABLES_H

#include "canopen/Texts.h"
#include "html/CHtml.h"
#include "html/SPage.h"

#include <QCoreApplication>
#include <QHash>

/** A range of the object dictionary. */
struct SDictionaryRange
{
    QString id;
    QString name;
    QString shortName;
    unsigned int first = 0;
    unsigned int last = 0;
};

/** Writes the object dictionary: a row for each entry, with what is said of it. */
class CDictionaryTables
{
    Q_DECLARE_TR_FUNCTIONS(mvxXddTools)

public:
    CDictionaryTables(CHtml& html, const SPage& page);

    void write();

    /** The ranges in which a description has objects. */
    static QList<SDictionaryRange> ranges(const SPage& page);

private:
    using Rows = QList<const CXddEntry*>; // Each object followed by its sub-objects

    void writeRange(const SDictionaryRange& range);
    void writeTables(const Rows& rows);
    void beginTable();
    void endTable();
    void writeObject(const Rows& rows, int first, int end);
    void writeFold(const Rows& rows, int first, int end, const QString& text);
    void writeSubObject(const CXddEntry& entry);
    void writeRow(const CXddEntry& entry, const QString& id);
    void writeName(const CXddEntry& entry);
    void writeTexts(const CXddEntry& entry);
    void writeLabels(const QList<CXddLabel>& labels, const QString& except);
    void writeValues(const QList<CXddAllowedValue>& values, const CXddEntry& entry);
    void writeMapped(const CXddEntry& entry);
    void writeFindings(const CXddEntry& entry);
    void writePdo(const CXddEntry& entry);
    void writeDefault(const CXddEntry& entry);
    QString rangeText(const CXddEntry& entry) const;
    CXddEntryTexts textsOf(const CXddEntry& entry);
    QString saidOf(const CXddEntry& entry);
    bool isAlike(const CXddEntry& left, const CXddEntry& right);

    CHtml& mHtml;
    const SPage& mPage;
    CTexts mTexts;
    bool mIsLarge;                                      // Rows are laid out by the browser when they come into view
    int mRows = 0;                                      // In the table that is open
    qint64 mTextsLeft;                                  // In characters
    QHash<unsigned int, int> mSubIndexes;               // How often the object that is written has had each
    QString mUnit;                                      // Of the row that is written
    QHash<QString, QStringList> mPdos;                  // The PDOs that carry an entry
    QHash<QString, QString> mMapped;                    // What the entries of mappings map
    QHash<QString, QList<const CXddRemark*>> mFindings; // By the entry that they are about
    QHash<QString, int> mFindingsOfRule;
};

#endif
