#include "CBaseline.h"
#include "CCommandLine.h"
#include "COutput.h"
#include "CRuleChoice.h"
#include "CSarifReport.h"
#include "CSettings.h"
#include "Catalogue.h"
#include "Copies.h"
#include "Descriptions.h"
#include "Messages.h"

#include <CXddChecker.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <memory>

#include <unistd.h>

namespace
{
const QString BASELINE = QStringLiteral("baseline");
const QString COLOR = QStringLiteral("color");
const QString CONFIG = QStringLiteral("config");
const QString FIX = QStringLiteral("fix");
const QString EXPLAIN = QStringLiteral("explain");
const QString NO_CONFIG = QStringLiteral("no-config");
const QString ONLY = QStringLiteral("only");
const QString SEVERITY = QStringLiteral("severity");
const QString WRITE_BASELINE = QStringLiteral("write-baseline");
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
const QStringList COLORS = {QStringLiteral("auto"), QStringLiteral("always"), QStringLiteral("never")};
const QStringList FORMATS = {QStringLiteral("text"), QStringLiteral("json"), QStringLiteral("sarif")};

// What the command line asks for.
struct SRequest
{
    EFormat format = EFormat::Text;
    QStringList only;
    QStringList disabled;
    QVector<QPair<QString, QString>> severities; // Of rules
    CSettings settings;
    bool warningsAsErrors = false;
    bool verbose = false;
    bool quiet = false;
    bool fixes = false;
    bool hasColors = false;
};

// Where findings go to, and what is known of earlier ones.
struct SOutputs
{
    COutput output;
    CSarifReport sarif;
    std::unique_ptr<CBaseline> baseline; // Null where none is asked for
    QStringList errors;                  // Of settings, each of which is said once
    bool isBaselineWritten = false;      // Else findings are compared with it
};

// A severity, coloured as compilers do it.
QString severityShown(CXddRemark::ESeverity severity, bool hasColors)
{
    QString text = CXddRemark::severityAsStr(severity);
    if (!hasColors) {
        return text;
    }
    const char* const color = severity == CXddRemark::SEVERITY_ERROR     ? "31"
                              : severity == CXddRemark::SEVERITY_WARNING ? "35"
                                                                         : "36";
    return QStringLiteral("\x1B[1;%1m%2\x1B[0m").arg(QLatin1String(color), text);
}

void showText(const SRequest& request, const QString& fileName, const QList<CXddRemark>& findings, COutput& output)
{
    for (const auto& [finding, text] : summedUp(findings, request.verbose ? EACH : MOST)) {
        output.writeLine(
            printable(place(fileName, finding.mLine, finding.mColumn))
            + QStringLiteral("%1: %2 [%3]")
                  .arg(severityShown(finding.mSeverity, request.hasColors), printable(text), finding.mRule));
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
            {QStringLiteral("column"), finding.mColumn == 0 ? QJsonValue() : QJsonValue(finding.mColumn)},
            {QStringLiteral("severity"), CXddRemark::severityAsStr(finding.mSeverity)},
            {QStringLiteral("rule"), finding.mRule},
            {QStringLiteral("index"), number(finding.mIndex)},
            {QStringLiteral("subIndex"), number(finding.mSubIndex)},
            {QStringLiteral("text"), finding.text()},
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

// How many findings there are of each severity.
struct SCounts
{
    int errors = 0;
    int warnings = 0;
    int notes = 0;

    void add(const QList<CXddRemark>& findings)
    {
        errors += countOf(findings, CXddRemark::SEVERITY_ERROR);
        warnings += countOf(findings, CXddRemark::SEVERITY_WARNING);
        notes += countOf(findings, CXddRemark::SEVERITY_NOTE);
    }

    // "2 errors, 5 warnings"
    QString text() const
    {
        QStringList parts = {
            QCoreApplication::translate("xddcheck", "%n error(s)", nullptr, errors),
            QCoreApplication::translate("xddcheck", "%n warning(s)", nullptr, warnings)};
        if (notes > 0) {
            parts << QCoreApplication::translate("xddcheck", "%n note(s)", nullptr, notes);
        }
        return parts.join(QLatin1String(", "));
    }
};

// The rules for a file: those of the settings, then those of the command line. Returns why not where the settings
// cannot be understood.
QString chooseRules(SRequest& request, const QString& fileName, CRuleChoice& choice)
{
    QString error = request.settings.apply(fileName, choice);
    for (const QPair<QString, QString>& severity : qAsConst(request.severities)) {
        choice.setSeverity(severity.first, severity.second);
    }
    if (!request.only.isEmpty()) {
        choice.only(request.only);
    }
    for (const QString& pattern : qAsConst(request.disabled)) {
        choice.disable(pattern);
    }
    if (request.warningsAsErrors) {
        choice.raiseWarnings();
    }
    return error;
}

// Writes down the findings of a file for a baseline, or takes out those that are known.
QList<CXddRemark> compared(SOutputs& outputs, const QString& fileName, const QList<CXddRemark>& findings)
{
    if (!outputs.baseline) {
        return findings;
    }
    if (outputs.isBaselineWritten) {
        outputs.baseline->add(fileName, findings);
        return {};
    }
    return outputs.baseline->unknown(fileName, findings);
}

// What is found in a description by the rules that are in force.
QList<CXddRemark> findingsOf(const CXddDocument& document, const CRuleChoice& choice)
{
    return choice.chosen(CXddChecker::check(document, choice.disabled()));
}

// Puts right, in the file, what would be reported.
bool fix(const SRequest& request, const QString& fileName, const CRuleChoice& choice, const SOutputs& outputs)
{
    SCopyRequest copy;
    copy.destination.inPlace = true;
    copy.verbose = request.verbose;
    copy.quiet = request.quiet;
    const auto choose = [&](const CXddDocument& document) {
        const QList<CXddRemark> findings = findingsOf(document, choice);
        if (!outputs.baseline || outputs.isBaselineWritten) {
            return findings;
        }
        return CBaseline(*outputs.baseline).unknown(fileName, findings);
    };
    return conformFile(copy, fileName, choose) == ECopied::Yes;
}

// Checks a file. Returns false when it has errors or cannot be read.
bool checkFile(SRequest& request, const QString& fileName, SOutputs& outputs, SCounts& counts)
{
    CRuleChoice choice;
    const QString error = chooseRules(request, fileName, choice);
    if (!error.isEmpty()) {
        outputs.errors.contains(error) ? void() : reportLine(error);
        outputs.errors << error;
        return false;
    }
    const bool isFixed = !request.fixes || fix(request, fileName, choice, outputs);
    const CXddDocument document = readDescription(fileName);
    if (!document.isOpen() && document.failure().mRule.isEmpty()) {
        complainAbout(fileName, document.failure());
        outputs.sarif.addFailure(fileName, document.failure().text());
        return false;
    }
    const QList<CXddRemark> findings = compared(outputs, fileName, findingsOf(document, choice));
    switch (request.format) {
    case EFormat::Text:
        showText(request, fileName, findings, outputs.output);
        break;
    case EFormat::Json:
        showJson(fileName, findings, outputs.output);
        break;
    case EFormat::Sarif:
        outputs.sarif.add(fileName, findings);
        break;
    }
    outputs.output.flush();
    SCounts own;
    own.add(findings);
    counts.add(findings);
    if (!request.quiet && !outputs.isBaselineWritten) {
        reportLine(fileName + QLatin1String(": ") + own.text());
    }
    return own.errors == 0 && isFixed;
}

// What is said of a baseline at the end. Returns false where it could not be written.
bool finishBaseline(const SRequest& request, const QString& fileName, const SOutputs& outputs)
{
    if (!outputs.baseline) {
        return true;
    }
    if (outputs.isBaselineWritten) {
        if (!request.quiet) {
            reportLine(QCoreApplication::translate("xddcheck", "%1: %n finding(s)", nullptr, outputs.baseline->size())
                           .arg(fileName));
        }
        return outputs.baseline->write();
    }
    if (outputs.baseline->gone() > 0) {
        reportLine(QCoreApplication::translate(
                       "xddcheck", "%1: %n finding(s) no longer there; --write-baseline takes them out.", nullptr,
                       outputs.baseline->gone())
                       .arg(fileName));
    }
    return true;
}

// The descriptions that are named, and those in folders that are. Complains about folders without any.
QStringList filesOf(const QStringList& names, bool& ok)
{
    QStringList files;
    for (const QString& name : names) {
        const bool isFolder = name != standardStream() && QFileInfo(name).isDir();
        const QStringList found = isFolder ? descriptionsIn(name) : QStringList{name};
        if (found.isEmpty()) {
            complain(QCoreApplication::translate("xddcheck", "There is no description in %1.").arg(name));
            ok = false;
        }
        files += found;
    }
    return files;
}

int checkAll(SRequest& request, const CCommandLine& line)
{
    SOutputs outputs;
    outputs.isBaselineWritten = line.isSet(WRITE_BASELINE);
    const QString baseline = line.value(outputs.isBaselineWritten ? WRITE_BASELINE : BASELINE);
    if (!baseline.isEmpty()) {
        outputs.baseline = std::make_unique<CBaseline>(baseline);
        const QString error = outputs.isBaselineWritten ? QString() : outputs.baseline->read();
        if (!error.isEmpty()) {
            complain(error);
            return EXIT_NOT_ALL_DONE;
        }
    }
    bool ok = true;
    SCounts counts;
    const QStringList files = filesOf(line.files(), ok);
    for (const QString& fileName : files) {
        ok = checkFile(request, fileName, outputs, counts) && ok;
    }
    if (request.format == EFormat::Sarif) {
        outputs.output.write(outputs.sarif.document());
    }
    const bool isShown = outputs.output.finish();
    if (!outputs.errors.isEmpty()) {
        return EXIT_USAGE;
    }
    if (files.size() > 1 && !request.quiet && !outputs.isBaselineWritten) {
        reportLine(QCoreApplication::translate("xddcheck", "%n file(s): ", nullptr, int(files.size())) + counts.text());
    }
    ok = finishBaseline(request, baseline, outputs) && ok;
    return isShown && ok ? EXIT_ALL_DONE : EXIT_NOT_ALL_DONE;
}

QString shown(const CXddRule& rule, const QString& severity)
{
    return QStringLiteral("%1 (%2)\n    %3.\n    %4").arg(rule.mId, severity, rule.mSummary, rule.mReason);
}

// The rules as they are in force in the working folder.
int listRules(SRequest& request)
{
    CRuleChoice choice;
    const QString error = chooseRules(request, standardStream(), choice);
    if (!error.isEmpty()) {
        reportLine(error);
        return EXIT_USAGE;
    }
    QStringList lines;
    for (const CXddRule& rule : choice.rules()) {
        const std::optional<CXddRemark::ESeverity> severity = choice.severity(rule.mId);
        lines << shown(rule, severity ? CXddRemark::severityAsStr(*severity) : QStringLiteral("off"));
    }
    return print(lines.join(QLatin1Char('\n')));
}

int explain(const QString& id)
{
    for (const CXddRule& rule : CXddChecker::rules()) {
        if (rule.mId == id) {
            const QString example = QStringLiteral("\n\n    %1  %2\n    %3  %4")
                                        .arg(
                                            QCoreApplication::translate("xddcheck", "wrong:"), rule.mWrong,
                                            QCoreApplication::translate("xddcheck", "right:"), rule.mRight);
            return print(shown(rule, CXddRemark::severityAsStr(rule.mSeverity)) + example);
        }
    }
    return CCommandLine::refuse(QCoreApplication::translate("xddcheck", "'%1' is not a rule.").arg(id));
}

void addOptions(CCommandLine& line)
{
    line.add(
        {FORMAT},
        QCoreApplication::translate(
            "xddcheck", "Print the findings as text, as json (one object per line) or as sarif (2.1.0)."),
        FORMATS.join(QLatin1Char('|')));
    line.add(
        {ONLY}, QCoreApplication::translate("xddcheck", "Apply these rules only; * stands for any characters."),
        QStringLiteral("RULE,..."));
    line.add({DISABLE}, QCoreApplication::translate("xddcheck", "Do not apply rules."), QStringLiteral("RULE,..."));
    line.add(
        {SEVERITY}, QCoreApplication::translate("xddcheck", "Report the findings of a rule as error, warning or note."),
        QStringLiteral("RULE=WORD,..."));
    line.add({WARNINGS_AS_ERRORS}, QCoreApplication::translate("xddcheck", "Treat every warning as an error."));
    line.add(
        {BASELINE}, QCoreApplication::translate("xddcheck", "Report only what is not in the baseline BASE."),
        QStringLiteral("BASE"));
    line.add(
        {WRITE_BASELINE},
        QCoreApplication::translate("xddcheck", "Write what is found to the baseline BASE instead of reporting it."),
        QStringLiteral("BASE"));
    line.add(
        {CONFIG},
        QCoreApplication::translate("xddcheck", "Take the settings of INI, not those of the nearest .xddcheck.ini."),
        QStringLiteral("INI"));
    line.add({NO_CONFIG}, QCoreApplication::translate("xddcheck", "Take no settings."));
    line.add(
        {COLOR},
        QCoreApplication::translate(
            "xddcheck", "Colour severities; auto does so on a terminal, unless NO_COLOR is set."),
        COLORS.join(QLatin1Char('|')));
    line.add({VERBOSE}, QCoreApplication::translate("xddcheck", "Print every finding separately."));
    line.add({QStringLiteral("q"), QUIET}, QCoreApplication::translate("xddcheck", "Do not print totals."));
    line.add(
        {FIX}, QCoreApplication::translate("xddcheck", "Put right first, in the files, what has one right writing."));
    line.add(
        {LIST_RULES}, QCoreApplication::translate(
                          "xddcheck", "Print the rules as they are in force, why they matter and what to do."));
    line.add(
        {EXPLAIN}, QCoreApplication::translate("xddcheck", "Print what a rule is about, with an example."),
        QStringLiteral("RULE"));
}

// The rules that the command line names; else the reason why it is refused.
QString readRules(const CCommandLine& line, SRequest& request)
{
    CRuleChoice known;
    QStringList patterns = request.only + request.disabled;
    for (const QString& text : line.values(SEVERITY)) {
        const QString rule = text.section(QLatin1Char('='), 0, 0);
        const QString word = text.section(QLatin1Char('='), 1);
        if (!known.setSeverity(rule, word)) {
            return QCoreApplication::translate("xddcheck", "'%1' is no severity: these are error, warning and note.")
                .arg(word);
        }
        patterns << rule;
        request.severities << qMakePair(rule, word);
    }
    for (const QString& pattern : qAsConst(patterns)) {
        if (!known.isKnown(pattern)) {
            return QCoreApplication::translate("xddcheck", "'%1' is not a rule.").arg(pattern);
        }
    }
    return QString();
}

// What the command line asks for; else the reason why it is refused.
QString readRequest(const CCommandLine& line, SRequest& request)
{
    request.warningsAsErrors = line.isSet(WARNINGS_AS_ERRORS);
    request.verbose = line.isSet(VERBOSE);
    request.quiet = line.isSet(QUIET);
    request.fixes = line.isSet(FIX);
    request.only = line.values(ONLY);
    request.disabled = line.values(DISABLE);
    const QString format = line.isSet(FORMAT) ? line.value(FORMAT) : FORMATS.first();
    request.format = static_cast<EFormat>(FORMATS.indexOf(format));
    if (!FORMATS.contains(format)) {
        return QCoreApplication::translate("xddcheck", "'%1' is not a format.").arg(format);
    }
    const QString color = line.isSet(COLOR) ? line.value(COLOR) : COLORS.first();
    if (!COLORS.contains(color)) {
        return QCoreApplication::translate("xddcheck", "'%1' is not one of: %2.")
            .arg(color, COLORS.join(QLatin1String(", ")));
    }
    const bool isTerminal = isatty(STDOUT_FILENO) != 0 && qEnvironmentVariableIsEmpty("NO_COLOR");
    request.hasColors = color == COLORS[1] || (color == COLORS[0] && isTerminal);
    if (line.isSet(BASELINE) && line.isSet(WRITE_BASELINE)) {
        return QCoreApplication::translate("xddcheck", "Only one of --baseline and --write-baseline is allowed.");
    }
    if (line.isSet(CONFIG)) {
        request.settings.setFile(line.value(CONFIG));
    }
    if (line.isSet(NO_CONFIG)) {
        request.settings.setNone();
    }
    return readRules(line, request);
}

int run(const QStringList& arguments)
{
    CCommandLine line(
        QCoreApplication::translate("xddcheck", "Says what is wrong with CANopen device descriptions."),
        QCoreApplication::translate("xddcheck", "A description, or a folder with descriptions; - is standard input."),
        QStringLiteral("FILE..."));
    addOptions(line);
    if (const std::optional<int> status = line.parse(arguments)) {
        return *status;
    }
    if (line.isSet(EXPLAIN)) {
        return explain(line.value(EXPLAIN));
    }
    SRequest request;
    QString refusal = readRequest(line, request);
    if (refusal.isEmpty() && line.files().isEmpty() && !line.isSet(LIST_RULES)) {
        refusal = QCoreApplication::translate("tools", "No file is named.");
    }
    if (refusal.isEmpty() && line.isSet(FIX) && line.files().contains(standardStream())) {
        refusal = QCoreApplication::translate("tools", "Standard input cannot be changed in place.");
    }
    if (!refusal.isEmpty()) {
        return CCommandLine::refuse(refusal);
    }
    return line.isSet(LIST_RULES) ? listRules(request) : checkAll(request, line);
}
} // namespace

int main(int argc, char* argv[])
{
    return runTool(argc, argv, QStringLiteral("xddcheck"), run);
}
