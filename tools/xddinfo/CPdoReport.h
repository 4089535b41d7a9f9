#ifndef XDDINFO_CPDOREPORT_H
#define XDDINFO_CPDOREPORT_H

#include "ShownDescription.h"

#include <QCoreApplication>

class COutput;

/** Shows to a person what the PDOs of a description carry. */
class CPdoReport
{
    Q_DECLARE_TR_FUNCTIONS(xddinfo)

public:
    /** @p width is the number of columns of the terminal, 0 for any other output. */
    CPdoReport(COutput& output, int width);

    /** Shows each PDO that maps something with its CAN-ID, its times and a picture of its bytes, then which map
     * nothing. */
    void show(const SShownDescription& description, const QList<CXddPdo>& pdos);

private:
    void showPdo(const CXddPdo& pdo);
    void showTimes(const CXddPdo& pdo);
    void showPicture(const CXddPdo& pdo);
    void showFields(const CXddPdo& pdo);
    void showEmpty(const QList<CXddPdo>& pdos, const QString& name, bool areEnabled);

    COutput& mOutput;
    int mWidth;
};

#endif
