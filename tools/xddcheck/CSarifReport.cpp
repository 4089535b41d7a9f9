#include "CSarifReport.h"

#include "Messages.h"

#include <CXddChecker.h>

#include <QCoreApplication>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

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

// The name of a file below the working directory, relative to it, as a reference of a URI.
QString uriOf(const QString& fileName)
{
    const QString relative = QDir::current().relativeFilePath(fileName);
    return QString::fromLatin1(QUrl::toPercentEncoding(relative, QByteArrayLiteral("/")));
}

QJsonArray rules()
{
    QJsonArray rules;
    for (const CXddCheckRule& rule : CXddChecker::rules()) {
        rules.append(QJsonObject{
            {key("id"), rule.mId},
            {key("shortDescription"), message(rule.mSummary)},
            {key("fullDescription"), message(rule.mSummary + QLatin1String(". ") + rule.mReason)},
            {key("help"), message(rule.mReason)},
            {key("defaultConfiguration"), QJsonObject{{key("level"), CXddFinding::severityAsStr(rule.mSeverity)}}},
        });
    }
    return rules;
}
} // namespace

void CSarifReport::add(const QString& fileName, const QList<CXddFinding>& findings)
{
    for (const CXddFinding& finding : findings) {
        const QJsonObject place = {
            {key("artifactLocation"), QJsonObject{{key("uri"), uriOf(fileName)}}},
            {key("region"), QJsonObject{{key("startLine"), finding.mLine}}},
        };
        mResults.append(QJsonObject{
            {key("ruleId"), finding.mRule},
            {key("level"), CXddFinding::severityAsStr(finding.mSeverity)},
            {key("message"), message(finding.mText)},
            {key("locations"), QJsonArray{QJsonObject{{key("physicalLocation"), place}}}},
        });
    }
}

QByteArray CSarifReport::document() const
{
    const QJsonObject driver = {
        {key("name"), QCoreApplication::applicationName()},
        {key("version"), QCoreApplication::applicationVersion()},
        {key("rules"), rules()},
    };
    const QJsonObject run = {
        {key("tool"), QJsonObject{{key("driver"), driver}}},
        {key("columnKind"), key("unicodeCodePoints")},
        {key("results"), mResults},
    };
    return QJsonDocument(QJsonObject{
                             {key("$schema"), key("https://json.schemastore.org/sarif-2.1.0.json")},
                             {key("version"), key("2.1.0")},
                             {key("runs"), QJsonArray{run}},
                         })
        .toJson(QJsonDocument::Indented);
}
