#ifndef MVXXDDTOOLS_PAGEINDEX_H
#define MVXXDDTOOLS_PAGEINDEX_H

#include <QByteArray>
#include <QList>
#include <QString>

/** What the index says of a page. */
struct SIndexRow
{
    QString fileName; ///< Of the page, in the same folder
    QString source;   ///< Name of the description
    QString product;
    QString vendor;
    int entries = 0;
    int pdos = 0;
    int errors = 0;
    int warnings = 0;
};

/** A page with a link to each of some pages, in their order. */
QByteArray pageIndex(const QList<SIndexRow>& rows, const QString& language);

#endif
