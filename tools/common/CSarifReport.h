#ifndef XDDCHECK_CSARIFREPORT_H
#define XDDCHECK_CSARIFREPORT_H

#include <CXddRule.h>

#include <QHash>
#include <QJsonArray>
#include <QList>
#include <QString>

/** Findings in the Static Analysis Results Interchange Format 2.1.0, for code-scanning views. */
class CSarifReport
{
public:
    CSarifReport();

    /** Adds what was found in a file. */
    void add(const QString& fileName, const QList<CXddRemark>& findings);
    /** Adds that a file could not be read. */
    void addFailure(const QString& fileName, const QString& text);

    /** The whole document, indented. */
    QByteArray document() const;

private:
    QList<CXddRule> mRules;
    QHash<QString, int> mRuleIndex;
    QJsonArray mResults;
    QJsonArray mFailures;
};

#endif
