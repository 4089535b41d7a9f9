#ifndef MVXXDDTOOLS_CPAGEWRITER_H
#define MVXXDDTOOLS_CPAGEWRITER_H

#include "html/CHtml.h"
#include "html/SPage.h"

#include <QCoreApplication>

/** Writes the page of a device. */
class CPageWriter
{
    Q_DECLARE_TR_FUNCTIONS(mvxXddTools)

public:
    explicit CPageWriter(const SPage& page);

    QByteArray bytes();

    /** Begins a page that may show nothing but what stands in it; the body is open then. @p script may be empty. */
    static void begin(CHtml& html, const QString& title, const QString& language, const QByteArray& script);
    static QByteArray style();
    /** "e", "w" or "n", the class of a severity. */
    static QString classOf(CXddRemark::ESeverity severity);

private:
    void writeHeader();
    void writeTiles();
    void writeNavigation();
    void writeDevice();
    void writeFeatures();
    void writeBitRates();
    void writeFindings();
    void writeGroup(const QList<CXddRemark>& group);
    void writeFooter();

    const SPage& mPage;
    CHtml mHtml;
    qint64 mFindingsLeft; // In characters
};

#endif
