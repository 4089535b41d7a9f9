#ifndef MVXXDDTOOLS_SPAGE_H
#define MVXXDDTOOLS_SPAGE_H

#include "CXddFact.h"
#include "CXddPdo.h"
#include "CXddRemark.h"
#include "canopen/CDescription.h"

#include <ICIso15745.h>

#include <QByteArray>
#include <QList>
#include <QString>

/** What a page shows. */
struct SPage
{
    ICIso15745& reader;              ///< The records, which hold what is not stated as defaults
    const CDescription& description; ///< Where texts and PDOs come from
    QString fileName;                ///< Without a folder
    QByteArray bytes;                ///< Of the file
    QString language;                ///< In which texts are chosen, such as "de"
    unsigned int nodeId = 0;         ///< 0 where none is known
    bool hasFindings = true;
    bool statesBitRates = true;
    QList<CXddFact> identity = {};
    QList<CXddFact> files = {};
    QList<CXddPdo> pdos = {};
    QList<CXddRemark> findings = {};

    /** What the device is called. */
    QString title() const;
    int count(CXddRemark::ESeverity severity) const;
    int entries() const;
};

/** The ID of the row of an entry: "0x1018", or "0x1018.A". */
QString rowId(unsigned int index, std::optional<unsigned int> subIndex);

#endif
