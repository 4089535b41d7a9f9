#include "CBaseline.h"
#include "COutput.h"
#include "CRuleCommandLine.h"
#include "CSarifReport.h"
#include "Copies.h"
#include "Descriptions.h"
#include "Messages.h"

#include <CXddChecker.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonObject>

#include <algorithm>
#include <memory>

namespace
{
const QString FIX = QStringLiteral("fix");

const SRules& checkRules()
{
    static const SRules rules = {
        CXddChecker::rules(),
        {QStringLiteral("note"), QStringLiteral("warning"), QStringLiteral("error")},
        QCoreApplication::translate("xddcheck", "wrong:"),
        QCoreApplication::translate("xddcheck", "right:")};
    return rules;
}

// Where findings go to, and what is known of earlier ones.
struct SOutputs
{
    COutput output;
    CSarifReport sarif = CSarifReport(checkRules());
    std::unique_ptr<CBaseline> baseline; // Null where none is asked for
    QStringList errors;                  // Of settings, each of which is said once
    bool isBaselineWritten = false;      // Else findings are compared with it
};

void showText(const CRuleCommandLine& line, const QString& fileName, const QList<CXddRemark>& findings, COutput& output)
{
    for (const auto& [finding, text] : summedUp(findings, line.isVerbose() ? EACH : MOST)) {
        output.writeLine(
            printable(place(fileName, finding.mLine, finding.mColumn))
            + QStringLiteral("%1: %2 [%3]").arg(line.severityShown(finding.mSeverity), printable(text), finding.mRule));
    }
}

void showJson(const QString& fileName, const QList<CXddRemark>& findings, COutput& output)
{
    for (const CXddRemark& finding : findings) {
        const QJsonObject json = {
            {QStringLiteral("file"), fileName},
            {QStringLiteral("line"), finding.mLine},
            {QStringLiteral("column"), finding.mColumn == 0 ? QJsonValue() : QJsonValue(finding.mColumn)},
            {QStringLiteral("severity"), CXddRemark::severityAsStr(finding.mSeverity)},
            {QStringLiteral("rule"), finding.mRule},
            {QStringLiteral("index"), numberOrNull(finding.mIndex)},
            {QStringLiteral("subIndex"), numberOrNull(finding.mSubIndex)},
            {QStringLiteral("text"), finding.text()},
        };
        output.writeLine(jsonLine(json));
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
bool fix(const CRuleCommandLine& line, const QString& fileName, const CRuleChoice& choice, const SOutputs& outputs)
{
    SCopyRequest copy;
    copy.destination.inPlace = true;
    copy.verbose = line.isVerbose();
    copy.quiet = line.isQuiet();
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
bool checkFile(CRuleCommandLine& line, const QString& fileName, SOutputs& outputs, SCounts& counts)
{
    CRuleChoice choice(checkRules());
    const QString error = line.choose(fileName, choice);
    if (!error.isEmpty()) {
        outputs.errors.contains(error) ? void() : reportLine(error);
        outputs.errors << error;
        return false;
    }
    const bool isFixed = !line.isSet(FIX) || fix(line, fileName, choice, outputs);
    const CXddDocument document = readDescription(fileName);
    if (!document.isOpen() && document.failure().mRule.isEmpty()) {
        complainAbout(fileName, document.failure());
        outputs.sarif.addFailure(fileName, document.failure().text());
        return false;
    }
    const QList<CXddRemark> findings = compared(outputs, fileName, findingsOf(document, choice));
    switch (line.format()) {
    case EFormat::Text:
        showText(line, fileName, findings, outputs.output);
        break;
    case EFormat::Json:
        showJson(fileName, findings, outputs.output);
        break;
    case EFormat::Sarif:
        for (const CXddRemark& finding : findings) {
            outputs.sarif.add(fileName, finding);
        }
        break;
    }
    outputs.output.flush();
    SCounts own;
    own.add(findings);
    counts.add(findings);
    if (!line.isQuiet() && !outputs.isBaselineWritten) {
        reportLine(fileName + QLatin1String(": ") + own.text());
    }
    return own.errors == 0 && isFixed;
}

// What is said of a baseline at the end. Returns false where it could not be written.
bool finishBaseline(const CRuleCommandLine& line, const SOutputs& outputs)
{
    if (!outputs.baseline) {
        return true;
    }
    if (outputs.isBaselineWritten) {
        if (!line.isQuiet()) {
            reportLine(QCoreApplication::translate("xddcheck", "%1: %n finding(s)", nullptr, outputs.baseline->size())
                           .arg(line.baseline()));
        }
        return outputs.baseline->write();
    }
    if (outputs.baseline->gone() > 0) {
        reportLine(QCoreApplication::translate(
                       "xddcheck", "%1: %n finding(s) no longer there; --write-baseline takes them out.", nullptr,
                       outputs.baseline->gone())
                       .arg(line.baseline()));
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

int checkAll(CRuleCommandLine& line)
{
    SOutputs outputs;
    outputs.isBaselineWritten = line.isBaselineWritten();
    if (!line.baseline().isEmpty()) {
        outputs.baseline = std::make_unique<CBaseline>(line.baseline());
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
        ok = checkFile(line, fileName, outputs, counts) && ok;
    }
    if (line.format() == EFormat::Sarif) {
        outputs.output.write(outputs.sarif.document());
    }
    const bool isShown = outputs.output.finish();
    if (!outputs.errors.isEmpty()) {
        return EXIT_USAGE;
    }
    if (files.size() > 1 && !line.isQuiet() && !outputs.isBaselineWritten) {
        reportLine(QCoreApplication::translate("xddcheck", "%n file(s): ", nullptr, int(files.size())) + counts.text());
    }
    ok = finishBaseline(line, outputs) && ok;
    return isShown && ok ? EXIT_ALL_DONE : EXIT_NOT_ALL_DONE;
}

int run(const QStringList& arguments)
{
    CRuleCommandLine line(
        QCoreApplication::translate("xddcheck", "Says what is wrong with CANopen device descriptions."),
        QCoreApplication::translate("xddcheck", "A description, or a folder with descriptions; - is standard input."),
        QStringLiteral("FILE..."), checkRules(), QCoreApplication::translate("xddcheck", "Do not print totals."));
    line.addWarningsAsErrors(QCoreApplication::translate("xddcheck", "Treat every warning as an error."));
    line.add(
        {FIX}, QCoreApplication::translate("xddcheck", "Put right first, in the files, what has one right writing."));
    if (const std::optional<int> status = line.parseRules(arguments)) {
        return *status;
    }
    if (line.files().isEmpty()) {
        return CCommandLine::refuse(QCoreApplication::translate("tools", "No file is named."));
    }
    if (line.isSet(FIX) && line.files().contains(standardStream())) {
        return CCommandLine::refuse(QCoreApplication::translate("tools", "Standard input cannot be changed in place."));
    }
    return checkAll(line);
}
} // namespace

int main(int argc, char* argv[])
{
    return runTool(argc, argv, QStringLiteral("xddcheck"), run);
}
