#ifndef MVXXDDTOOLS_CXDDFACT_H
#define MVXXDDTOOLS_CXDDFACT_H

#include "mvxXddTools_export.h"

#include <QString>

/** Something that a description states of its device: what it is, and its value. */
class MVXXDDTOOLS_EXPORT CXddFact
{
public:
    /** Nothing. */
    CXddFact();
    /** A value under its name. */
    CXddFact(const QString& name, const QString& value);

    QString mName;  ///< In the language of the program, such as "Vendor"
    QString mValue; ///< As the description states it
};

#endif
