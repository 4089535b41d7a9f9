#ifndef TOOLS_CRULECOMMANDLINE_H
#define TOOLS_CRULECOMMANDLINE_H

#include "CCommandLine.h"
#include "CRuleChoice.h"
#include "CSettings.h"

#include <QVector>

/** The forms of output, by their names on the command line. */
enum class EFormat
{
    Text,
    Json,
    Sarif
};

/** The command line of a tool that applies rules: which ones, with what severities, and how what they say is shown. */
class CRuleCommandLine : public CCommandLine
{
public:
    /** @p rules are those of the tool, whose settings are in files with the name ".TOOL.ini"; @p quiet says what
     * --quiet does. */
    CRuleCommandLine(
        const QString& description, const QString& files, const QString& filesSyntax, const SRules& rules,
        const QString& quiet);

    /** Lets warnings count as errors. */
    void addWarningsAsErrors(const QString& description);

    /** Understands the arguments, and does what needs no file: rules are listed or explained. Returns the status to
     * end with when there is nothing more to do. */
    std::optional<int> parseRules(const QStringList& arguments);

    /** The rules for a file: those of the settings, then those of the command line. Returns why not where the settings
     * cannot be understood. */
    QString choose(const QString& fileName, CRuleChoice& choice);

    EFormat format() const { return mFormat; }
    /** True where severities are coloured. */
    bool hasColors() const { return mHasColors; }
    /** The file of the baseline; empty where none is asked for. */
    QString baseline() const;
    /** True when the baseline is written, not compared with. */
    bool isBaselineWritten() const;

    /** A severity, coloured as compilers do it. */
    QString severityShown(CXddRemark::ESeverity severity) const;

private:
    void addOptions(const QString& quiet);
    QString readRules();
    QString readForm();
    QString shown(const CXddRule& rule, const QString& severity) const;
    int listRules();
    int explain() const;

    SRules mRules;
    CSettings mSettings;
    EFormat mFormat = EFormat::Text;
    bool mHasColors = false;
    QVector<QPair<QString, QString>> mSeverities; // Of rules
};

#endif
