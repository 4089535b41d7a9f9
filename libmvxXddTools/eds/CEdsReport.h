#ifndef MVXXDDTOOLS_CEDSREPORT_H
#define MVXXDDTOOLS_CEDSREPORT_H

#include "CXddEdsWriter.h"
#include "canopen/CDictionary.h"

#include <QCoreApplication>
#include <QSet>

/** What the INI form does not say of a description. */
class CEdsReport
{
    Q_DECLARE_TR_FUNCTIONS(CEdsReport)

public:
    /** Something of an entry is lost, or written in another way. */
    void add(const SDictionaryEntry& entry, const char* kind, const QString& text);
    /** Something of another element is. */
    void add(const CXmlElement& element, const char* kind, const QString& text);

    /** The losses in the order of the description. */
    QList<CXddLoss> losses() const;
    /** How many entries have a loss. */
    int incompleteEntries() const;

private:
    QList<CXddLoss> mLosses;
    QSet<int> mIncomplete; // Where the entries begin in the text
};

#endif
