#ifndef XDDCHECK_CSARIFREPORT_H
#define XDDCHECK_CSARIFREPORT_H

#include <CXddFinding.h>

#include <QJsonArray>
#include <QList>
#include <QString>

/** Findings in the Static Analysis Results Interchange Format 2.1.0, for code-scanning views. */
class CSarifReport
{
public:
    /** Adds what was found in a file. */
    void add(const QString& fileName, const QList<CXddFinding>& findings);

    /** The whole document, indented. */
    QByteArray document() const;

private:
    QJsonArray mResults;
};

#endif
