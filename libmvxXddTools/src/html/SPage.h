#ifndef MVXXDDTOOLS_SPAGE_H
#define MVXXDDTOOLS_SPAGE_H

#include "CXddDevice.h"
#include "CXddEntry.h"
#include "CXddFact.h"
#include "CXddPdo.h"
#include "CXddRemark.h"
#include "canopen/CDescription.h"

#include <QByteArray>
#include <QList>
#include <QSet>
#include <QString>

#include <optional>

/** What a page shows. */
struct SPage
{
    const CDescription& description;
    QString fileName; ///< Without a folder
    QByteArray bytes; ///< Of the file
    QString language; ///< In which texts are chosen, such as "de"
    CXddDevice device;
    QList<CXddEntry> entries; ///< Each object followed by its sub-objects
    QList<CXddFact> facts = {};
    QList<CXddFact> fileFacts = {};
    QList<CXddPdo> pdos = {};
    QList<CXddRemark> findings = {};
    bool hasFindings = true;

    /** What the device is called. */
    QString title() const;
    int count(CXddRemark::ESeverity severity) const;
    int objects() const;
    const QSet<QString>* rows = nullptr; ///< IDs of the rows that are there; null for those of the dictionary
    QString idSuffix = {};               ///< Of the IDs of PDOs, where two devices are on one page

    /** True when an entry has a row that a link can lead to. */
    bool hasRow(unsigned int index, std::optional<unsigned int> subIndex = std::nullopt) const;
};

/** The ID of the row of an entry: "0x1018", or "0x1018.A". */
QString rowId(unsigned int index, std::optional<unsigned int> subIndex);

#endif
