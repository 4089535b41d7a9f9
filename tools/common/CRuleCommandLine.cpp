#include "CRuleCommandLine.h"

#include "Messages.h"

#include <QCoreApplication>

#include <unistd.h>

namespace
{
const QString BASELINE = QStringLiteral("baseline");
const QString COLOR = QStringLiteral("color");
const QString CONFIG = QStringLiteral("config");
const QString DISABLE = QStringLiteral("disable");
const QString EXPLAIN = QStringLiteral("explain");
const QString FORMAT = QStringLiteral("format");
const QString LIST_RULES = QStringLiteral("list-rules");
const QString NO_CONFIG = QStringLiteral("no-config");
const QString ONLY = QStringLiteral("only");
const QString SEVERITY = QStringLiteral("severity");
const QString WARNINGS_AS_ERRORS = QStringLiteral("warnings-as-errors");
const QString WRITE_BASELINE = QStringLiteral("write-baseline");
const QStringList COLORS = {QStringLiteral("auto"), QStringLiteral("always"), QStringLiteral("never")};
const QStringList FORMATS = {QStringLiteral("text"), QStringLiteral("json"), QStringLiteral("sarif")};
} // namespace

CRuleCommandLine::CRuleCommandLine(
    const QString& description, const QString& files, const QString& filesSyntax, const SRules& rules,
    const QString& quiet)
    : CCommandLine(description, files, filesSyntax)
    , mRules(rules)
{
    addOptions(quiet);
}

void CRuleCommandLine::addOptions(const QString& quiet)
{
    add({FORMAT}, QCoreApplication::translate("tools", "Print text, json (one object per line) or sarif (2.1.0)."),
        FORMATS.join(QLatin1Char('|')));
    add({ONLY}, QCoreApplication::translate("tools", "Apply these rules only; * stands for any characters."),
        QStringLiteral("RULE,..."));
    add({DISABLE}, QCoreApplication::translate("tools", "Do not apply rules."), QStringLiteral("RULE,..."));
    add({SEVERITY},
        QCoreApplication::translate("tools", "Report what a rule finds as %1.")
            .arg(mRules.severities.join(QLatin1String(", "))),
        QStringLiteral("RULE=WORD,..."));
    add({BASELINE}, QCoreApplication::translate("tools", "Report only what is not in the baseline BASE."),
        QStringLiteral("BASE"));
    add({WRITE_BASELINE},
        QCoreApplication::translate("tools", "Write what is found to the baseline BASE instead of reporting it."),
        QStringLiteral("BASE"));
    add({CONFIG},
        QCoreApplication::translate("tools", "Take the settings of INI, not those of the nearest %1.")
            .arg(CSettings::name()),
        QStringLiteral("INI"));
    add({NO_CONFIG}, QCoreApplication::translate("tools", "Take no settings."));
    add({COLOR},
        QCoreApplication::translate("tools", "Colour severities; auto does so on a terminal, unless NO_COLOR is set."),
        COLORS.join(QLatin1Char('|')));
    addReportOptions(QCoreApplication::translate("tools", "Print everything separately."), quiet);
    add({LIST_RULES},
        QCoreApplication::translate("tools", "Print the rules as they are in force, why they matter and what to do."));
    add({EXPLAIN}, QCoreApplication::translate("tools", "Print what a rule is about, with an example."),
        QStringLiteral("RULE"));
}

void CRuleCommandLine::addWarningsAsErrors(const QString& description)
{
    add({WARNINGS_AS_ERRORS}, description);
}

std::optional<int> CRuleCommandLine::parseRules(const QStringList& arguments)
{
    if (const std::optional<int> status = parse(arguments)) {
        return status;
    }
    if (isSet(EXPLAIN)) {
        return explain();
    }
    const QString formRefusal = readForm();
    const QString refusal = formRefusal.isEmpty() ? readRules() : formRefusal;
    if (!refusal.isEmpty()) {
        return refuse(refusal);
    }
    return isSet(LIST_RULES) ? std::optional<int>(listRules()) : std::nullopt;
}

QString CRuleCommandLine::readForm()
{
    const QString format = isSet(FORMAT) ? value(FORMAT) : FORMATS.first();
    mFormat = static_cast<EFormat>(FORMATS.indexOf(format));
    if (!FORMATS.contains(format)) {
        return QCoreApplication::translate("tools", "'%1' is not a format.").arg(format);
    }
    const QString color = isSet(COLOR) ? value(COLOR) : COLORS.first();
    if (!COLORS.contains(color)) {
        return QCoreApplication::translate("tools", "'%1' is not one of: %2.")
            .arg(color, COLORS.join(QLatin1String(", ")));
    }
    const bool isTerminal = isatty(STDOUT_FILENO) != 0 && qEnvironmentVariableIsEmpty("NO_COLOR");
    mHasColors = color == COLORS[1] || (color == COLORS[0] && isTerminal);
    if (isSet(BASELINE) && isSet(WRITE_BASELINE)) {
        return QCoreApplication::translate("tools", "Only one of --baseline and --write-baseline is allowed.");
    }
    if (isSet(CONFIG)) {
        mSettings.setFile(value(CONFIG));
    }
    if (isSet(NO_CONFIG)) {
        mSettings.setNone();
    }
    return QString();
}

// The rules that the command line names; else the reason why it is refused.
QString CRuleCommandLine::readRules()
{
    CRuleChoice known(mRules);
    QStringList patterns = values(ONLY) + values(DISABLE);
    for (const QString& text : values(SEVERITY)) {
        const QString rule = text.section(QLatin1Char('='), 0, 0);
        const QString word = text.section(QLatin1Char('='), 1);
        if (!known.setSeverity(rule, word)) {
            return QCoreApplication::translate("tools", "'%1' is none of: %2.")
                .arg(word, mRules.severities.join(QLatin1String(", ")));
        }
        patterns << rule;
        mSeverities << qMakePair(rule, word);
    }
    for (const QString& pattern : qAsConst(patterns)) {
        if (!known.isKnown(pattern)) {
            return QCoreApplication::translate("tools", "'%1' is not a rule.").arg(pattern);
        }
    }
    return QString();
}

QString CRuleCommandLine::choose(const QString& fileName, CRuleChoice& choice)
{
    QString error = mSettings.apply(fileName, choice);
    for (const QPair<QString, QString>& severity : qAsConst(mSeverities)) {
        choice.setSeverity(severity.first, severity.second);
    }
    if (isSet(ONLY)) {
        choice.only(values(ONLY));
    }
    for (const QString& pattern : values(DISABLE)) {
        choice.disable(pattern);
    }
    if (isSet(WARNINGS_AS_ERRORS)) {
        choice.raiseWarnings();
    }
    return error;
}

QString CRuleCommandLine::baseline() const
{
    return value(isBaselineWritten() ? WRITE_BASELINE : BASELINE);
}

bool CRuleCommandLine::isBaselineWritten() const
{
    return isSet(WRITE_BASELINE);
}

QString CRuleCommandLine::severityShown(CXddRemark::ESeverity severity) const
{
    QString word = mRules.severities.value(severity);
    if (!mHasColors) {
        return word;
    }
    const char* const color = severity == CXddRemark::SEVERITY_ERROR     ? "31"
                              : severity == CXddRemark::SEVERITY_WARNING ? "35"
                                                                         : "36";
    return QStringLiteral("\x1B[1;%1m%2\x1B[0m").arg(QLatin1String(color), word);
}

QString CRuleCommandLine::shown(const CXddRule& rule, const QString& severity) const
{
    return QStringLiteral("%1 (%2)\n    %3.\n    %4").arg(rule.mId, severity, rule.mSummary, rule.mReason);
}

// The rules as they are in force in the working folder.
int CRuleCommandLine::listRules()
{
    CRuleChoice choice(mRules);
    const QString error = choose(standardStream(), choice);
    if (!error.isEmpty()) {
        reportLine(error);
        return EXIT_USAGE;
    }
    QStringList lines;
    for (const CXddRule& rule : mRules.rules) {
        const std::optional<CXddRemark::ESeverity> severity = choice.severity(rule.mId);
        lines << shown(rule, severity ? mRules.severities.value(*severity) : QStringLiteral("off"));
    }
    return print(lines.join(QLatin1Char('\n')));
}

int CRuleCommandLine::explain() const
{
    const QString id = value(EXPLAIN);
    for (const CXddRule& rule : mRules.rules) {
        if (rule.mId == id) {
            const QString example =
                QStringLiteral("\n\n    %1  %2\n    %3  %4").arg(mRules.wrong, rule.mWrong, mRules.right, rule.mRight);
            return print(shown(rule, mRules.severities.value(rule.mSeverity)) + example);
        }
    }
    return refuse(QCoreApplication::translate("tools", "'%1' is not a rule.").arg(id));
}
