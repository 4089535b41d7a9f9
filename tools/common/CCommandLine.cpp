#include "CCommandLine.h"

#include "COutput.h"
#include "Catalogue.h"
#include "Messages.h"

#include <QCoreApplication>

#include <csignal>

const QString& standardStream()
{
    static const QString name = QStringLiteral("-");
    return name;
}

CCommandLine::CCommandLine(const QString& description, const QString& files, const QString& filesSyntax)
    : mHelp({QStringLiteral("h"), QStringLiteral("help")}, QCoreApplication::translate("tools", "Print this help."))
    , mVersion(
          {QStringLiteral("v"), QStringLiteral("version")}, QCoreApplication::translate("tools", "Print the version."))
{
    mParser.setApplicationDescription(description);
    mParser.addOptions({mHelp, mVersion});
    mParser.addPositionalArgument(QStringLiteral("FILE"), files, filesSyntax);
}

QCommandLineOption CCommandLine::add(const QStringList& names, const QString& description, const QString& valueName)
{
    QCommandLineOption option(names, description, valueName);
    mParser.addOption(option);
    return option;
}

std::optional<int> CCommandLine::parse(const QStringList& arguments)
{
    if (!mParser.parse(arguments)) {
        return refuse(mParser.errorText());
    }
    if (mParser.isSet(mHelp)) {
        return print(mParser.helpText().trimmed());
    }
    if (mParser.isSet(mVersion)) {
        return print(QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion());
    }
    if (files().contains(QString())) {
        return refuse(QCoreApplication::translate("tools", "A file name is empty."));
    }
    return std::nullopt;
}

bool CCommandLine::isSet(const QCommandLineOption& option) const
{
    return mParser.isSet(option);
}

QString CCommandLine::value(const QCommandLineOption& option) const
{
    return mParser.value(option);
}

QStringList CCommandLine::values(const QCommandLineOption& option) const
{
    return mParser.values(option);
}

QStringList CCommandLine::files() const
{
    return mParser.positionalArguments();
}

int CCommandLine::refuse(const QString& reason)
{
    complain(reason);
    complain(QCoreApplication::translate("tools", "Try '%1 --help'.").arg(QCoreApplication::applicationName()));
    return EXIT_USAGE;
}

int print(const QString& text)
{
    COutput output;
    output.writeLine(text);
    return output.finish() ? EXIT_ALL_DONE : EXIT_NOT_ALL_DONE;
}

int runTool(int argc, char* argv[], const QString& name, int (*run)(const QStringList& arguments))
{
    // A reader that closes the pipe early ends the output with an error, not the program with a signal.
    std::signal(SIGPIPE, SIG_IGN);
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(name);
    QCoreApplication::setApplicationVersion(QStringLiteral(TOOL_VERSION));
    installCatalogue();
    return run(QCoreApplication::arguments());
}
