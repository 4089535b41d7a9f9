#ifndef MVXXDDTOOLS_CPDOCARDS_H
#define MVXXDDTOOLS_CPDOCARDS_H

#include "html/CHtml.h"
#include "html/SPage.h"

#include <QCoreApplication>

/** Writes what the PDOs of a device carry: a card with a picture for each that maps something, a table of the others.
 */
class CPdoCards
{
    Q_DECLARE_TR_FUNCTIONS(mvxXddTools)

public:
    CPdoCards(CHtml& html, const SPage& page);

    void write();

    /** Writes the card of one PDO. */
    void writeCard(const CXddPdo& pdo);

private:
    void writeDirection(bool isTransmit);
    void writeHead(const CXddPdo& pdo);
    void writePicture(const CXddPdo& pdo);
    void writeField(const CXddPdoField& field, int number);
    void writeBeyond(const CXddPdo& pdo);
    void writeLegend(const CXddPdo& pdo);
    void writeOthers(const QList<CXddPdo>& pdos);
    void writeObjects(const CXddPdo& pdo);
    void writeEntry(const CXddPdoField& field);
    QString nameOf(const CXddPdoField& field) const;

    CHtml& mHtml;
    const SPage& mPage;
};

#endif
