#include "CSarifReport.h"

#include "CCommandLine.h"
#include "Messages.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include <algorithm>

namespace
{
QString key(const char* name)
{
    return QString::fromLatin1(name);
}

QJsonObject message(const QString& text)
{
    return {{key("text"), printable(text)}};
}

// A file below the working directory, relative to it, as a reference of a URI; standard input has none.
QJsonObject artifact(const QString& fileName)
{
    if (fileName == standardStream()) {
        return {{key("description"), message(key("standard input"))}};
    }
    const QString relative = QDir::current().relativeFilePath(fileName);
    return {{key("uri"), QString::fromLatin1(QUrl::toPercentEncoding(relative, QByteArrayLiteral("/")))}};
}

QJsonArray shownRules(const QList<CXddRule>& rules)
{
    QJsonArray shown;
    for (const CXddRule& rule : rules) {
        shown.append(QJsonObject{
            {key("id"), rule.mId},
            {key("shortDescription"), message(rule.mSummary)},
            {key("fullDescription"), message(rule.mSummary + QLatin1String(". ") + rule.mReason)},
            {key("help"), message(rule.mReason)},
            {key("defaultConfiguration"), QJsonObject{{key("level"), CXddRemark::severityAsStr(rule.mSeverity)}}},
        });
    }
    return shown;
}

QJsonObject location(const QString& fileName, const CXddRemark& finding)
{
    QJsonObject region = {{key("startLine"), std::max(finding.mLine, 1)}};
    if (finding.mColumn > 0) {
        region[key("startColumn")] = finding.mColumn;
    }
    const QJsonObject place = {
        {key("artifactLocation"), artifact(fileName)},
        {key("region"), region},
    };
    QJsonObject location = {{key("physicalLocation"), place}};
    if (!finding.entry().isEmpty()) {
        location[key("logicalLocations")] =
            QJsonArray{QJsonObject{{key("fullyQualifiedName"), finding.entry()}, {key("kind"), key("object")}}};
    }
    return location;
}
} // namespace

CSarifReport::CSarifReport(const SRules& rules)
    : mRules(rules)
{
    for (int number = 0; number < mRules.rules.size(); ++number) {
        mRuleIndex[mRules.rules.at(number).mId] = number;
    }
}

void CSarifReport::add(const QString& fileName, const CXddRemark& finding)
{
    add(fileName, finding, QString(), 0);
}

void CSarifReport::add(const QString& fileName, const CXddRemark& finding, const QString& relatedFile, int relatedLine)
{
    QJsonObject result = {
        {key("ruleId"), finding.mRule},
        {key("ruleIndex"), mRuleIndex.value(finding.mRule)},
        {key("level"), CXddRemark::severityAsStr(finding.mSeverity)},
        {key("message"), message(finding.text())},
        {key("locations"), QJsonArray{location(fileName, finding)}},
    };
    if (relatedLine > 0) {
        CXddRemark related = finding;
        related.mLine = relatedLine;
        related.mColumn = 0;
        result[key("relatedLocations")] = QJsonArray{location(relatedFile, related)};
    }
    mResults.append(result);
}

void CSarifReport::addFailure(const QString& fileName, const QString& text)
{
    mFailures.append(QJsonObject{
        {key("level"), key("error")},
        {key("message"), message(fileName + QLatin1String(": ") + text)},
    });
}

QByteArray CSarifReport::document() const
{
    const QJsonObject driver = {
        {key("name"), QCoreApplication::applicationName()},
        {key("version"), QCoreApplication::applicationVersion()},
        {key("rules"), shownRules(mRules.rules)},
    };
    const QJsonObject invocation = {
        {key("executionSuccessful"), mFailures.isEmpty()},
        {key("toolExecutionNotifications"), mFailures},
    };
    const QJsonObject run = {
        {key("tool"), QJsonObject{{key("driver"), driver}}},
        {key("columnKind"), key("utf16CodeUnits")},
        {key("invocations"), QJsonArray{invocation}},
        {key("results"), mResults},
    };
    return QJsonDocument(QJsonObject{
                             {key("$schema"), key("https://json.schemastore.org/sarif-2.1.0.json")},
                             {key("version"), key("2.1.0")},
                             {key("runs"), QJsonArray{run}},
                         })
        .toJson(QJsonDocument::Indented);
}
