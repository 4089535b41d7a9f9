#include "CCommandLine.h"
#include "COutput.h"
#include "CSarifReport.h"
#include "Descriptions.h"
#include "Messages.h"

#include <CXddChecker.h>

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace
{
const QString FORMAT = QStringLiteral("format");
const QString DISABLE = QStringLiteral("disable");
const QString WARNINGS_AS_ERRORS = QStringLiteral("warnings-as-errors");
const QString VERBOSE = QStringLiteral("verbose");
const QString QUIET = QStringLiteral("quiet");
const QString LIST_RULES = QStringLiteral("list-rules");

// The forms of output, by their names on the command line.
enum class EFormat
{
    Text,
    Json,
    Sarif
};
const QStringList FORMATS = {QStringLiteral("text"), QStringLiteral("json"), QStringLiteral("sarif")};

// What the command line asks for.
struct SRequest
{
    EFormat format = EFormat::Text;
    QStringList disabled;
    bool warningsAsErrors = false;
    bool verbose = false;
    bool quiet = false;
};

void showText(const SRequest& request, const QString& fileName, const QList<CXddRemark>& findings, COutput& output)
{
    for (const CXddRemark& finding : request.verbose ? findings : summedUp(findings)) {
        output.writeLine(
            printable(place(fileName, finding.mLine))
            + QStringLiteral("%1: %2 [%3]")
                  .arg(CXddRemark::severityAsStr(finding.mSeverity), printable(finding.mText), finding.mRule));
    }
}

void showJson(const QString& fileName, const QList<CXddRemark>& findings, COutput& output)
{
    const auto number = [](const std::optional<unsigned int>& value) {
        return value ? QJsonValue(qint64(*value)) : QJsonValue();
    };
    for (const CXddRemark& finding : findings) {
        const QJsonObject json = {
            {QStringLiteral("file"), fileName},
            {QStringLiteral("line"), finding.mLine},
            {QStringLiteral("severity"), CXddRemark::severityAsStr(finding.mSeverity)},
            {QStringLiteral("rule"), finding.mRule},
            {QStringLiteral("index"), number(finding.mIndex)},
            {QStringLiteral("subIndex"), number(finding.mSubIndex)},
            {QStringLiteral("text"), finding.mText},
        };
        output.writeLine(printable(QString::fromUtf8(QJsonDocument(json).toJson(QJsonDocument::Compact))));
    }
}

int countOf(const QList<CXddRemark>& findings, CXddRemark::ESeverity severity)
{
    return int(std::count_if(findings.begin(), findings.end(), [severity](const CXddRemark& finding) {
        return finding.mSeverity == severity;
    }));
}

// "drive.xdd: 2 errors, 5 warnings"
QString totals(const QString& fileName, const QList<CXddRemark>& findings)
{
    const int errors = countOf(findings, CXddRemark::SEVERITY_ERROR);
    const int warnings = countOf(findings, CXddRemark::SEVERITY_WARNING);
    const int notes = countOf(findings, CXddRemark::SEVERITY_NOTE);
    QStringList parts = {
        QCoreApplication::translate("xddcheck", "%n error(s)", nullptr, errors),
        QCoreApplication::translate("xddcheck", "%n warning(s)", nullptr, warnings)};
    if (notes > 0) {
        parts << QCoreApplication::translate("xddcheck", "%n note(s)", nullptr, notes);
    }
    return fileName + QLatin1String(": ") + parts.join(QLatin1String(", "));
}

QList<CXddRemark> findingsOf(const SRequest& request, const CXddDocument& document)
{
    QList<CXddRemark> findings;
    for (CXddRemark finding : CXddChecker::check(document)) {
        if (request.disabled.contains(finding.mRule)) {
            continue;
        }
        if (request.warningsAsErrors && finding.mSeverity == CXddRemark::SEVERITY_WARNING) {
            finding.mSeverity = CXddRemark::SEVERITY_ERROR;
        }
        findings << finding;
    }
    return findings;
}

// Checks a file. Returns false when it has errors or cannot be read.
bool checkFile(const SRequest& request, const QString& fileName, CSarifReport& sarif, COutput& output)
{
    const CXddDocument document = readDescription(fileName);
    if (!document.isOpen() && document.failure().mRule.isEmpty()) {
        complainAbout(fileName, document.failure());
        sarif.addFailure(fileName, document.failure().mText);
        return false;
    }
    const QList<CXddRemark> findings = findingsOf(request, document);
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
        reportLine(totals(fileName, findings));
    }
    return countOf(findings, CXddRemark::SEVERITY_ERROR) == 0;
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
    for (const CXddRule& rule : CXddChecker::rules()) {
        lines << QStringLiteral("%1 (%2)\n    %3.\n    %4")
                     .arg(rule.mId, CXddRemark::severityAsStr(rule.mSeverity), rule.mSummary, rule.mReason);
    }
    return print(lines.join(QLatin1Char('\n')));
}

void addOptions(CCommandLine& line)
{
    line.add(
        {FORMAT},
        QCoreApplication::translate(
            "xddcheck", "Print the findings as text, as json (one object per line) or as sarif (2.1.0)."),
        FORMATS.join(QLatin1Char('|')));
    line.add({DISABLE}, QCoreApplication::translate("xddcheck", "Do not apply rules."), QStringLiteral("RULE,..."));
    line.add({WARNINGS_AS_ERRORS}, QCoreApplication::translate("xddcheck", "Treat every warning as an error."));
    line.add({VERBOSE}, QCoreApplication::translate("xddcheck", "Print every finding separately."));
    line.add({QStringLiteral("q"), QUIET}, QCoreApplication::translate("xddcheck", "Do not print totals."));
    line.add({LIST_RULES}, QCoreApplication::translate("xddcheck", "Print the rules, why they matter and what to do."));
}

// What the command line asks for; else the reason why it is refused.
QString readRequest(const CCommandLine& line, SRequest& request)
{
    request.warningsAsErrors = line.isSet(WARNINGS_AS_ERRORS);
    request.verbose = line.isSet(VERBOSE);
    request.quiet = line.isSet(QUIET);
    request.disabled = line.values(DISABLE);
    const QString format = line.isSet(FORMAT) ? line.value(FORMAT) : FORMATS.first();
    request.format = static_cast<EFormat>(FORMATS.indexOf(format));
    if (!FORMATS.contains(format)) {
        return QCoreApplication::translate("xddcheck", "'%1' is not a format.").arg(format);
    }
    const QList<CXddRule> rules = CXddChecker::rules();
    for (const QString& disabled : qAsConst(request.disabled)) {
        const bool isKnown =
            std::any_of(rules.begin(), rules.end(), [&disabled](const CXddRule& rule) { return rule.mId == disabled; });
        if (!isKnown) {
            return QCoreApplication::translate("xddcheck", "'%1' is not a rule.").arg(disabled);
        }
    }
    return line.files().isEmpty() ? QCoreApplication::translate("tools", "No file is named.") : QString();
}

int run(const QStringList& arguments)
{
    CCommandLine line(
        QCoreApplication::translate("xddcheck", "Says what is wrong with CANopen device descriptions."),
        QCoreApplication::translate("xddcheck", "A description; - is standard input."), QStringLiteral("FILE..."));
    addOptions(line);
    if (const std::optional<int> status = line.parse(arguments)) {
        return *status;
    }
    if (line.isSet(LIST_RULES)) {
        return listRules();
    }
    SRequest request;
    const QString refusal = readRequest(line, request);
    return refusal.isEmpty() ? checkAll(request, line.files()) : CCommandLine::refuse(refusal);
}
} // namespace

int main(int argc, char* argv[])
{
    return runTool(argc, argv, QStringLiteral("xddcheck"), run);
}
