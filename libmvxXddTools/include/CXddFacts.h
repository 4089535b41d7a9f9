#ifndef MVXXDDTOOLS_CXDDFACTS_H
#define MVXXDDTOOLS_CXDDFACTS_H

#include "CXddDocument.h"
#include "CXddFact.h"
#include "mvxXddTools_export.h"

#include <ICIso15745.h>

#include <QList>

/** What a description states of its device as a whole, for people. What it does not state is left out. */
class MVXXDDTOOLS_EXPORT CXddFacts
{
public:
    /** Vendor, product, versions, profile, revision and serial number. @p language is that in which texts are taken
     * where there are several, such as "de". */
    static QList<CXddFact> identity(ICIso15745& reader, const QString& language);

    /** Name, version and dates of the file: one fact where both profiles state the same, else two. */
    static QList<CXddFact> files(ICIso15745& reader, const CXddDocument& document);
};

#endif
