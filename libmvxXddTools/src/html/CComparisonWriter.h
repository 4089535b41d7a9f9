#ifndef MVXXDDTOOLS_CCOMPARISONWRITER_H
#define MVXXDDTOOLS_CCOMPARISONWRITER_H

#include "CXddChange.h"
#include "html/CHtml.h"
#include "html/SPage.h"

#include <QCoreApplication>

/** What a page on two versions shows. */
struct SComparisonPage
{
    SPage& old;
    SPage& now;
    const QList<CXddChange>& changes;
    QString verdict;
    QStringList concerns; ///< Who breaks, for each of CXddChange::EConcern
};

/** Writes the page of two versions of a description. */
class CComparisonWriter
{
    Q_DECLARE_TR_FUNCTIONS(mvxXddTools)

public:
    explicit CComparisonWriter(const SComparisonPage& page);

    QByteArray bytes();

private:
    void writeChanges();
    void writeSection(const QString& title, const QList<const CXddChange*>& changes);
    void writeRow(const CXddChange& change);
    void writePdos();
    void writeCard(const SPage& page, const QList<CXddPdo>& pdos, const QString& name, const QString& title);

    const SComparisonPage& mPage;
    CHtml mHtml;
    QSet<QString> mRows;    // Their IDs
    QSet<QString> mWritten; // Likewise; a change may break several
};

#endif
