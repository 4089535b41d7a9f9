#include "CCommandLine.h"
#include "COutput.h"
#include "CSarifReport.h"
#include "Files.h"
#include "Messages.h"

#include <CXddChecker.h>

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>

namespace
{
enum class EFormat
{
    Text,
    Json,
    Sarif
};

// What the command line asks for.
struct SRequest
{
    EFormat format = EFormat::Text;
    QSet<QString> disabled;
    bool warningsAsErrors = false;
    bool verbose = false;
    bool quiet = false;
};

void showText(const SRequest& request, const QString& fileName, const QList<CXddFinding>& findings, COutput& output)
{
    QVector<SReportLine> report;
    for (const CXddFinding& finding : findings) {
        report << SReportLine{
            finding.mLine, finding.mRule,
            QStringLiteral("%1: %2").arg(CXddFinding::severityAsStr(finding.mSeverity), finding.mText),
            QStringLiteral(" [%1]").arg(finding.mRule)};
    }
    for (const SReportLine& line : request.verbose ? report : summedUp(report)) {
        output.writeLine(printable(place(fileName, line.line) + line.text + line.ending));
    }
}

void showJson(const QString& fileName, const QList<CXddFinding>& findings, COutput& output)
{
    const auto number = [](const std::optional<unsigned int>& value) {
        return value ? QJsonValue(qint64(*value)) : QJsonValue();
    };
    for (const CXddFinding& finding : findings) {
        const QJsonObject json = {
            {QStringLiteral("file"), fileName},
            {QStringLiteral("line"), finding.mLine},
            {QStringLiteral("severity"), CXddFinding::severityAsStr(finding.mSeverity)},
            {QStringLiteral("rule"), finding.mRule},
            {QStringLiteral("index"), number(finding.mIndex)},
            {QStringLiteral("subIndex"), number(finding.mSubIndex)},
            {QStringLiteral("text"), finding.mText},
        };
        output.writeLine(printable(QString::fromUtf8(QJsonDocument(json).toJson(QJsonDocument::Compact))));
    }
}

int countOf(const QList<CXddFinding>& findings, CXddFinding::ESeverity severity)
{
    return int(std::count_if(findings.begin(), findings.end(), [severity](const CXddFinding& finding) {
        return finding.mSeverity == severity;
    }));
}

// "drive.xdd: 2 errors, 5 warnings"
QString sums(const QString& fileName, const QList<CXddFinding>& findings)
{
    const int errors = countOf(findings, CXddFinding::SEVERITY_ERROR);
    const int warnings = countOf(findings, CXddFinding::SEVERITY_WARNING);
    const int notes = countOf(findings, CXddFinding::SEVERITY_NOTE);
    QStringList parts = {
        errors == 1 ? QCoreApplication::translate("xddcheck", "1 error")
                    : QCoreApplication::translate("xddcheck", "%1 errors").arg(errors),
        warnings == 1 ? QCoreApplication::translate("xddcheck", "1 warning")
                      : QCoreApplication::translate("xddcheck", "%1 warnings").arg(warnings)};
    if (notes > 0) {
        parts
            << (notes == 1 ? QCoreApplication::translate("xddcheck", "1 note")
                           : QCoreApplication::translate("xddcheck", "%1 notes").arg(notes));
    }
    return fileName + QLatin1String(": ") + parts.join(QLatin1String(", "));
}

// Checks a file. Returns false when it has errors or cannot be read.
bool checkFile(const SRequest& request, const QString& fileName, CSarifReport& sarif, COutput& output)
{
    QByteArray bytes;
    QString errorText;
    if (!readFile(fileName, bytes, errorText)) {
        complainAbout(fileName, errorText);
        return false;
    }
    QList<CXddFinding> findings;
    for (CXddFinding finding : CXddChecker::check(bytes)) {
        if (request.disabled.contains(finding.mRule)) {
            continue;
        }
        if (request.warningsAsErrors && finding.mSeverity == CXddFinding::SEVERITY_WARNING) {
            finding.mSeverity = CXddFinding::SEVERITY_ERROR;
        }
        findings << finding;
    }
    switch (request.format) {
    case EFormat::Text:
        showText(request, fileName, findings, output);
        break;
    case EFormat::Json:
        showJson(fileName, findings, output);
        break;
    case EFormat::Sarif:
        sarif.add(fileName, findings);
        break;
    }
    output.flush();
    if (!request.quiet) {
        reportLine(sums(fileName, findings));
    }
    return countOf(findings, CXddFinding::SEVERITY_ERROR) == 0;
}

int checkAll(const SRequest& request, const QStringList& fileNames)
{
    COutput output;
    CSarifReport sarif;
    bool ok = true;
    for (const QString& fileName : fileNames) {
        ok = checkFile(request, fileName, sarif, output) && ok;
    }
    if (request.format == EFormat::Sarif) {
        output.write(sarif.document());
    }
    return output.finish() && ok ? EXIT_ALL_DONE : EXIT_NOT_ALL_DONE;
}

int listRules()
{
    QStringList lines;
    for (const CXddCheckRule& rule : CXddChecker::rules()) {
        lines << QStringLiteral("%1 (%2)\n    %3.\n    %4")
                     .arg(rule.mId, CXddFinding::severityAsStr(rule.mSeverity), rule.mSummary, rule.mReason);
    }
    return print(lines.join(QLatin1Char('\n')));
}

// The rules that are to be left out; a name that is none of them is returned instead.
QString disabledRules(const QStringList& values, QSet<QString>& disabled)
{
    QSet<QString> known;
    for (const CXddCheckRule& rule : CXddChecker::rules()) {
        known << rule.mId;
    }
    for (const QString& value : values) {
        for (const QString& name : value.split(QLatin1Char(','))) {
            if (!known.contains(name)) {
                return name;
            }
            disabled << name;
        }
    }
    return QString();
}

int run(const QStringList& arguments)
{
    CCommandLine line(
        QCoreApplication::translate("xddcheck", "Says what is wrong with CANopen device descriptions."),
        QCoreApplication::translate("xddcheck", "A description; - is standard input."), QStringLiteral("FILE..."));
    const auto format = line.add(
        {QStringLiteral("format")},
        QCoreApplication::translate(
            "xddcheck", "Print the findings as text, as json (one object on each line) or as sarif (2.1.0)."),
        QStringLiteral("text|json|sarif"));
    const auto disable = line.add(
        {QStringLiteral("disable")}, QCoreApplication::translate("xddcheck", "Leave rules out."),
        QStringLiteral("RULE,..."));
    const auto warnings = line.add(
        {QStringLiteral("warnings-as-errors")},
        QCoreApplication::translate("xddcheck", "Take every warning for an error."));
    const auto verbose = line.add(
        {QStringLiteral("verbose")}, QCoreApplication::translate("xddcheck", "Print every finding by itself."));
    const auto quiet = line.add(
        {QStringLiteral("q"), QStringLiteral("quiet")},
        QCoreApplication::translate("xddcheck", "Print no sums on standard error."));
    const auto rules = line.add(
        {QStringLiteral("list-rules")},
        QCoreApplication::translate("xddcheck", "Print the rules, why they matter and what to do."));
    if (const std::optional<int> status = line.parse(arguments)) {
        return *status;
    }
    if (line.isSet(rules)) {
        return listRules();
    }
    if (line.files().isEmpty()) {
        return CCommandLine::refuse(QCoreApplication::translate("tools", "No file is named."));
    }
    SRequest request;
    request.warningsAsErrors = line.isSet(warnings);
    request.verbose = line.isSet(verbose);
    request.quiet = line.isSet(quiet);
    const QStringList formats = {QStringLiteral("text"), QStringLiteral("json"), QStringLiteral("sarif")};
    if (line.isSet(format)) {
        const int number = int(formats.indexOf(line.value(format)));
        if (number < 0) {
            return CCommandLine::refuse(
                QCoreApplication::translate("xddcheck", "'%1' is no format.").arg(line.value(format)));
        }
        request.format = static_cast<EFormat>(number);
    }
    const QString unknown = disabledRules(line.values(disable), request.disabled);
    if (!unknown.isNull()) {
        return CCommandLine::refuse(QCoreApplication::translate("xddcheck", "'%1' is no rule.").arg(unknown));
    }
    return checkAll(request, line.files());
}
} // namespace

int main(int argc, char* argv[])
{
    return runTool(argc, argv, QStringLiteral("xddcheck"), run);
}
