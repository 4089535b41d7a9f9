#ifndef XDDINFO_CJSONREPORT_H
#define XDDINFO_CJSONREPORT_H

#include "ShownDescription.h"

#include <QJsonObject>
#include <QVector>

class COutput;

/**
 * Shows a loaded description to a program: one JSON document on one line.
 *
 * The keys are the names of the elements and attributes, with a plural for lists ("versions", "objects"). Enumerations
 * are the texts of the format, bit rates kbit/s with 0 for automatic detection, dates and times ISO 8601 texts.
 * Whatever the description does not state itself, or states in an unknown form, is null, or an empty text or list.
 */
class CJsonReport
{
public:
    explicit CJsonReport(COutput& output);

    /** Shows the whole model. */
    void showDescription(const SShownDescription& description);

    /** Shows objects and sub-objects, by their numbers among the entries, each on a line of its own. */
    void showEntries(const SShownDescription& description, const QVector<int>& selected);

    /** Shows the PDOs of a node, which has the number 0 where that is not known. */
    void showPdos(const SShownDescription& description, const QList<CXddPdo>& pdos, unsigned int nodeId);

private:
    void writeLine(QJsonObject json, const CShownTexts& texts);

    COutput& mOutput;
};

#endif
