#ifndef XDDINFO_CTEXTREPORT_H
#define XDDINFO_CTEXTREPORT_H

#include "ShownDescription.h"

#include <CXddFact.h>

#include <QCoreApplication>

class COutput;

/** Shows a loaded description to a person. */
class CTextReport
{
    Q_DECLARE_TR_FUNCTIONS(xddinfo)

public:
    /** @p width is the number of columns of the terminal, 0 for any other output. */
    CTextReport(COutput& output, int width);

    /** Shows the identity, the file attributes, the bit rates, the PDOs and the object dictionary. */
    void showDescription(const SShownDescription& description);

    /** Shows every field of objects with their sub-objects, or of sub-objects, by their numbers among the entries. */
    void showEntries(const SShownDescription& description, const QVector<int>& selected);

private:
    void showSource(const SShownDescription& description);
    void showFacts(const QList<CXddFact>& facts);
    void showBitRates(const CXddDevice& device);
    void showPdos(const QString& name, const QList<CXddPdo>& pdos, bool isTransmit);
    void showCount(const QString& name, const CXddCount& count);
    void showDictionary(const QList<CXddEntry>& entries);
    void showEntry(const CXddEntry& entry, const QString& indent, CShownTexts& texts);
    void showTexts(const CXddEntryTexts& texts, const QString& indent);
    void showField(const QString& indent, const QString& name, const QString& value);

    COutput& mOutput;
    int mWidth;
};

#endif
