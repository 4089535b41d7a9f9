#ifndef XDDINFO_CJSONREPORT_H
#define XDDINFO_CJSONREPORT_H

#include <ICIso15745.h>

class COutput;

/**
 * Shows a loaded description to a program: one JSON document on one line.
 *
 * The keys are the names of the elements and attributes, with a plural for lists ("versions", "objects"). Enumerations
 * are the texts of the format, bit rates kbit/s with 0 for automatic detection, dates and times ISO 8601 texts.
 * Whatever the description does not give, or gives in an unknown form, is null, or an empty text or list.
 */
class CJsonReport
{
public:
    explicit CJsonReport(COutput& output);

    /** Shows the whole model. @p fileName is the file that it came from. */
    void showDescription(const QString& fileName, ICIso15745& reader);

    /** Shows one object. */
    void showObject(const QString& fileName, const CCanOpenObject& object);

private:
    COutput& mOutput;
};

#endif
