#include "CBaseline.h"
#include "COutput.h"
#include "CRuleCommandLine.h"
#include "CSarifReport.h"
#include "Catalogue.h"
#include "ChangeRanges.h"
#include "Descriptions.h"
#include "Files.h"
#include "Messages.h"

#include <CXddComparison.h>
#include <CXddPage.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace
{
const QString ACCEPT_RAISED = QStringLiteral("accept-raised");
const QString CONCERNS = QStringLiteral("concerns");
const QString FAIL_ON = QStringLiteral("fail-on");
const QString GIT = QStringLiteral("git");
const QString HTML = QStringLiteral("html");

// What git gives for a file that came or went.
const QString NO_FILE = QStringLiteral("/dev/null");

// The places of the arguments that git gives: the path, then file, hash and mode of the old and of the new version.
constexpr int GIT_OLD = 1;
constexpr int GIT_NEW = 4;
constexpr int GIT_COUNT = 7;

const SRules& diffRules()
{
    static const SRules rules = {
        CXddComparison::rules(),
        {CXddChange::gradeAsStr(CXddRemark::SEVERITY_NOTE), CXddChange::gradeAsStr(CXddRemark::SEVERITY_WARNING),
         CXddChange::gradeAsStr(CXddRemark::SEVERITY_ERROR)},
        QCoreApplication::translate("xdddiff", "old:"),
        QCoreApplication::translate("xdddiff", "new:")};
    return rules;
}

// A description as it is opened and as messages call it.
struct SFile
{
    QString fileName;
    QString shownName;
};

struct SPair
{
    SFile old;
    SFile now;

    const QString& nameOf(const CXddChange& change) const { return change.mIsOld ? old.shownName : now.shownName; }
};

void showText(const CRuleCommandLine& line, const SPair& files, const QList<CXddChange>& changes, COutput& output)
{
    QList<SChangeRange> ranges;
    if (line.isVerbose()) {
        for (const CXddChange& change : changes) {
            ranges << SChangeRange{change, 0, 0, 1};
        }
    } else {
        ranges = rangesOf(changes);
    }
    for (const SChangeRange& range : qAsConst(ranges)) {
        const CXddChange& change = range.first;
        const QString address = range.address();
        QString text = (address.isEmpty() ? QString() : address + QLatin1String(": ")) + change.mSentence.text();
        if (range.entries > 1) {
            text += QCoreApplication::translate("xdddiff", ", %n entries", nullptr, range.entries);
        }
        output.writeLine(
            printable(place(files.nameOf(change), change.mLine))
            + QStringLiteral("%1: %2 [%3] %4")
                  .arg(
                      line.severityShown(change.mSeverity), printable(text), change.mRule,
                      CXddChange::concernsAsStr(change.mConcerns).join(QLatin1String(", "))));
    }
}

QJsonValue textOrNull(const QString& text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

void showJson(const CRuleCommandLine& line, const SPair& files, const CXddComparison& comparison, COutput& output)
{
    for (const CXddChange& change : line.isQuiet() ? QList<CXddChange>() : comparison.mChanges) {
        QJsonObject json = {
            {QStringLiteral("file"), files.nameOf(change)},
            {QStringLiteral("line"), change.mLine},
            {QStringLiteral("rule"), change.mRule},
            {QStringLiteral("severity"), CXddChange::gradeAsStr(change.mSeverity)},
            {QStringLiteral("concerns"), QJsonArray::fromStringList(CXddChange::concernsAsStr(change.mConcerns))},
            {QStringLiteral("index"), numberOrNull(change.mIndex)},
            {QStringLiteral("subIndex"), numberOrNull(change.mSubIndex)},
            {QStringLiteral("old"), textOrNull(change.mOld)},
            {QStringLiteral("new"), textOrNull(change.mNew)},
            {QStringLiteral("text"), change.text()},
        };
        if (change.mOtherIndex) {
            json[change.mIsOld ? QStringLiteral("movedTo") : QStringLiteral("movedFrom")] = QJsonObject{
                {QStringLiteral("index"), numberOrNull(change.mOtherIndex)},
                {QStringLiteral("subIndex"), numberOrNull(change.mOtherSubIndex)}};
        }
        output.writeLine(jsonLine(json));
    }
    output.writeLine(jsonLine(
        {{QStringLiteral("verdict"), comparison.verdict()},
         {QStringLiteral("breaking"), comparison.count(CXddRemark::SEVERITY_ERROR)},
         {QStringLiteral("compatible"), comparison.count(CXddRemark::SEVERITY_WARNING)},
         {QStringLiteral("editorial"), comparison.count(CXddRemark::SEVERITY_NOTE)},
         {QStringLiteral("revisionRaised"), comparison.mIsRevisionRaised}}));
}

void showSarif(const SPair& files, const QList<CXddChange>& changes, COutput& output)
{
    CSarifReport sarif(diffRules());
    for (const CXddChange& change : changes) {
        sarif.add(files.nameOf(change), change, files.old.shownName, change.mOtherLine);
    }
    output.write(sarif.document());
}

// The changes that are asked for: by rules in force, that concern somebody who is named, and that are not known.
QList<CXddChange> wanted(const CRuleCommandLine& line, const CRuleChoice& choice, const CXddComparison& comparison)
{
    const QStringList words = line.values(CONCERNS);
    QList<CXddChange> wanted;
    for (const CXddChange& change : choice.chosen(comparison.mChanges)) {
        const QStringList concerns = CXddChange::concernsAsStr(change.mConcerns);
        const bool isNamed = std::any_of(
            concerns.begin(), concerns.end(), [&words](const QString& concern) { return words.contains(concern); });
        if (words.isEmpty() || isNamed) {
            wanted << change;
        }
    }
    std::stable_sort(wanted.begin(), wanted.end(), [](const CXddChange& left, const CXddChange& right) {
        return left.mSeverity > right.mSeverity; // Which may have been chosen
    });
    return wanted;
}

int statusOf(const CRuleCommandLine& line, const CXddComparison& comparison)
{
    const int grade = int(diffRules().severities.indexOf(line.value(FAIL_ON)));
    const int least = grade < 0 ? int(CXddRemark::SEVERITY_ERROR) : grade;
    const bool isAccepted = line.isSet(ACCEPT_RAISED) && comparison.mIsRevisionRaised;
    const bool isBroken =
        std::any_of(comparison.mChanges.begin(), comparison.mChanges.end(), [=](const CXddChange& change) {
            const bool passes = isAccepted && change.mSeverity == CXddRemark::SEVERITY_ERROR;
            return change.mSeverity >= least && !passes;
        });
    return isBroken ? EXIT_NOT_ALL_DONE : EXIT_ALL_DONE;
}

// Opens both. Half a comparison is none.
bool open(const SPair& files, CXddDocument& old, CXddDocument& now)
{
    old = readDescription(files.old.fileName);
    now = readDescription(files.now.fileName);
    if (!old.isOpen()) {
        complainAbout(files.old.shownName, old.failure());
    }
    if (!now.isOpen()) {
        complainAbout(files.now.shownName, now.failure());
    }
    return old.isOpen() && now.isOpen();
}

bool writePage(
    const CRuleCommandLine& line, const CXddDocument& old, const CXddDocument& now, const CXddComparison& comparison)
{
    const bool isThere = COtherLanguage(userLanguage()).isThere();
    const QString language = isThere ? userLanguage() : QStringLiteral("en");
    return writeFile(line.value(HTML), CXddPage::compared(old, now, comparison, language));
}

int compareFiles(CRuleCommandLine& line, const SPair& files)
{
    CRuleChoice choice(diffRules());
    const QString settings = line.choose(files.now.fileName, choice);
    if (!settings.isEmpty()) {
        reportLine(settings);
        return EXIT_USAGE;
    }
    CBaseline baseline(line.baseline());
    const QString error = line.baseline().isEmpty() || line.isBaselineWritten() ? QString() : baseline.read();
    if (!error.isEmpty()) {
        complain(error);
        return EXIT_USAGE;
    }
    CXddDocument old;
    CXddDocument now;
    if (!open(files, old, now)) {
        return EXIT_USAGE;
    }
    CXddComparison comparison = CXddComparison::compare(old, now);
    comparison.mChanges = wanted(line, choice, comparison);
    if (line.isBaselineWritten()) {
        baseline.add(files.now.fileName, comparison.mChanges);
        return baseline.write() ? EXIT_ALL_DONE : EXIT_USAGE;
    }
    if (!line.baseline().isEmpty()) {
        comparison.mChanges = baseline.unknown(files.now.fileName, comparison.mChanges);
    }
    if (line.isSet(HTML) && !writePage(line, old, now, comparison)) {
        return EXIT_USAGE;
    }
    COutput output;
    switch (line.format()) {
    case EFormat::Text:
        line.isQuiet() ? void() : showText(line, files, comparison.mChanges, output);
        output.writeLine(printable(comparison.verdictText()));
        break;
    case EFormat::Json:
        showJson(line, files, comparison, output);
        break;
    case EFormat::Sarif:
        showSarif(files, comparison.mChanges, output);
        break;
    }
    return output.finish() ? statusOf(line, comparison) : EXIT_USAGE;
}

// As "git diff" calls it, which ends with any other status than 0.
int compareForGit(CRuleCommandLine& line)
{
    const QStringList arguments = line.files();
    const QString& path = arguments.first();
    const SPair files = {{arguments[GIT_OLD], path}, {arguments[GIT_NEW], path}};
    const bool isGone = files.now.fileName == NO_FILE;
    if (files.old.fileName == NO_FILE || isGone) {
        return print(
            path + QLatin1String(": ")
            + (isGone ? QCoreApplication::translate("xdddiff", "the description is gone")
                      : QCoreApplication::translate("xdddiff", "the description is new")));
    }
    print(QStringLiteral("--- ") + printable(path));
    compareFiles(line, files);
    return EXIT_ALL_DONE;
}

// Why the command line is refused; else empty.
QString refusalOf(const CRuleCommandLine& line)
{
    const QStringList known = CXddChange::concernsAsStr(~0U);
    for (const QString& word : line.values(CONCERNS)) {
        if (!known.contains(word)) {
            return QCoreApplication::translate("tools", "'%1' is none of: %2.")
                .arg(word, known.join(QLatin1String(", ")));
        }
    }
    const QStringList grades = diffRules().severities;
    if (line.isSet(FAIL_ON) && !grades.contains(line.value(FAIL_ON))) {
        return QCoreApplication::translate("tools", "'%1' is none of: %2.")
            .arg(line.value(FAIL_ON), grades.join(QLatin1String(", ")));
    }
    const QStringList files = line.files();
    if (line.isSet(GIT)) {
        return files.size() >= GIT_COUNT ? QString()
                                         : QCoreApplication::translate("xdddiff", "--git takes the arguments of git.");
    }
    if (files.size() != 2) {
        return QCoreApplication::translate("xdddiff", "Two files are compared: OLD and NEW.");
    }
    if (files.count(standardStream()) == 2) {
        return QCoreApplication::translate("xdddiff", "Only one of them can be standard input.");
    }
    return QString();
}

int run(const QStringList& arguments)
{
    CRuleCommandLine line(
        QCoreApplication::translate(
            "xdddiff", "Says what changed between two CANopen device descriptions, and whom it breaks."),
        QCoreApplication::translate("xdddiff", "The earlier and the later description; - is standard input."),
        QStringLiteral("OLD NEW"), diffRules(), QCoreApplication::translate("xdddiff", "Print only the verdict."));
    line.add(
        {CONCERNS},
        QCoreApplication::translate("xdddiff", "Report only what concerns sdo, pdo, configuration or people."),
        QStringLiteral("WORD,..."));
    line.add(
        {FAIL_ON}, QCoreApplication::translate("xdddiff", "End with 1 for compatible or even editorial changes, too."),
        QStringLiteral("GRADE"));
    line.add(
        {ACCEPT_RAISED},
        QCoreApplication::translate("xdddiff", "End with 0 for breaking changes where the revision was raised."));
    line.add(
        {HTML}, QCoreApplication::translate("xdddiff", "Write a page for a review to OUT, too."),
        QStringLiteral("OUT"));
    line.add(
        {GIT}, QCoreApplication::translate("xdddiff", "Take the arguments of an external diff of git; end with 0."));
    if (const std::optional<int> status = line.parseRules(arguments)) {
        return *status;
    }
    const QString refusal = refusalOf(line);
    if (!refusal.isEmpty()) {
        return CCommandLine::refuse(refusal);
    }
    if (line.isSet(GIT)) {
        return compareForGit(line);
    }
    const QStringList files = line.files();
    if (isSameFile(files[0], files[1])) {
        reportLine(QCoreApplication::translate("xdddiff", "%1: This is the same file twice.").arg(files[0]));
    }
    return compareFiles(line, {{files[0], files[0]}, {files[1], files[1]}});
}
} // namespace

int main(int argc, char* argv[])
{
    return runTool(argc, argv, QStringLiteral("xdddiff"), run);
}
