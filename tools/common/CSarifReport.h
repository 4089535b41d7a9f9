#ifndef TOOLS_CSARIFREPORT_H
#define TOOLS_CSARIFREPORT_H

#include "CRuleChoice.h"

#include <QHash>
#include <QJsonArray>
#include <QList>
#include <QString>

/** Findings in the Static Analysis Results Interchange Format 2.1.0, for code-scanning views. */
class CSarifReport
{
public:
    explicit CSarifReport(const SRules& rules);

    /** Adds what was found in a file. */
    void add(const QString& fileName, const CXddRemark& finding);
    /** Adds what differs at a place, with another one that has to do with it; that of line 0 is none. */
    void add(const QString& fileName, const CXddRemark& finding, const QString& relatedFile, int relatedLine);
    /** Adds that a file could not be read. */
    void addFailure(const QString& fileName, const QString& text);

    /** The whole document, indented. */
    QByteArray document() const;

private:
    SRules mRules;
    QHash<QString, int> mRuleIndex;
    QJsonArray mResults;
    QJsonArray mFailures;
};

#endif
