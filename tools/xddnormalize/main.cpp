#include "COutput.h"
#include "Catalogue.h"
#include "NormalizedDescription.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSaveFile>

#include <csignal>
#include <cstdio>
#include <memory>

namespace
{
enum EExitStatus : int
{
    EXIT_ALL_LOAD = 0,
    EXIT_NOT_ALL_LOAD = 1,
    EXIT_USAGE = 2
};

// A rule that applies more often than this in one file is summed up in one line.
constexpr int MAX_SINGLE_REPORTS = 10;

const QString STANDARD_STREAM = QStringLiteral("-");

// What the command line asks for.
struct SRequest
{
    QStringList fileNames;
    QString output;    // A file, or "-" for standard output
    QString outputDir; // A folder, which takes precedence
    bool inPlace = false;
    bool dryRun = false;
    bool verbose = false;
    bool quiet = false;
};

void reportLine(const QString& text)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(printable(text)));
}

QString place(const QString& fileName, int line)
{
    return QStringLiteral("%1:%2: ").arg(fileName, QString::number(line));
}

void reportChanges(const SRequest& request, const QString& fileName, const SNormalizedDescription& normalized)
{
    const QVector<SChange>& changes = normalized.changes;
    QMap<ERule, QVector<SChange>> byRule;
    for (const SChange& change : changes) {
        byRule[change.rule] << change;
    }
    QMap<ERule, int> reported;
    for (const SChange& change : changes) {
        const QVector<SChange>& alike = byRule[change.rule];
        const bool summedUp = alike.size() > MAX_SINGLE_REPORTS && !request.verbose;
        QString what = change.what;
        if (summedUp && ++reported[change.rule] > 1) {
            continue;
        }
        if (summedUp) {
            what = QCoreApplication::translate("xddnormalize", "%1, and %2 more like this up to line %3")
                       .arg(what, QString::number(alike.size() - 1), QString::number(alike.last().line));
        }
        reportLine(place(fileName, change.line) + what + QLatin1String(", ") + reasonOf(change.rule));
    }
    reportLine(QCoreApplication::translate("xddnormalize", "%1: %2 changes")
                   .arg(fileName, QString::number(normalized.made())));
}

bool readAll(const QString& fileName, QByteArray& bytes, QString& errorText)
{
    QFile file;
    bool open = false;
    if (fileName == STANDARD_STREAM) {
        open = file.open(stdin, QIODevice::ReadOnly);
    } else {
        file.setFileName(fileName);
        open = file.open(QIODevice::ReadOnly);
    }
    if (open) {
        bytes = file.readAll();
    }
    errorText = file.errorString();
    return open && file.error() == QFileDevice::NoError;
}

// Writes a file whole or not at all.
bool writeAll(const QString& fileName, const QByteArray& bytes, QString& errorText)
{
    if (fileName == STANDARD_STREAM) {
        COutput output;
        output.write(bytes);
        output.finish();
        errorText = output.errorText();
        return errorText.isEmpty();
    }
    const QFileInfo info(fileName);
    if (info.exists() && !info.isFile()) { // A device or a pipe is written to, not replaced by a file.
        QFile device(fileName);
        const bool ok = device.open(QIODevice::WriteOnly) && device.write(bytes) == bytes.size() && device.flush();
        errorText = device.errorString();
        return ok;
    }
    QSaveFile file(fileName);
    const bool ok = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    errorText = file.errorString();
    return ok;
}

// Where the copy of a file goes to.
QString outputOf(const SRequest& request, const QString& fileName)
{
    if (request.inPlace) {
        return fileName;
    }
    if (!request.outputDir.isEmpty()) {
        return QDir(request.outputDir).filePath(QFileInfo(fileName).fileName());
    }
    return request.output;
}

bool isSameFile(const QString& left, const QString& right)
{
    const QString path = QFileInfo(left).canonicalFilePath();
    return !path.isEmpty() && path == QFileInfo(right).canonicalFilePath();
}

bool normalizeFile(const SRequest& request, const QString& fileName)
{
    QByteArray bytes;
    SNormalizedDescription normalized;
    QString errorText;
    if (!readAll(fileName, bytes, errorText) || !normalizeDescription(bytes, normalized, errorText)) {
        complain(fileName + QLatin1String(": ") + errorText);
        return false;
    }
    if (!request.quiet) {
        reportChanges(request, fileName, normalized);
    }
    const QString output = outputOf(request, fileName);
    const bool needed = !request.dryRun && (!request.inPlace || normalized.bytes != bytes);
    if (needed && !writeAll(output, normalized.bytes, errorText)) {
        complain(QCoreApplication::translate("xddnormalize", "%1: Cannot write: %2").arg(output, errorText));
        return false;
    }
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    if (!loadDescription(*reader, normalized.bytes, errorText)) {
        complain(
            QCoreApplication::translate("xddnormalize", "%1: It still does not load: %2").arg(fileName, errorText));
        return false;
    }
    return true;
}

int refuse(const QString& reason)
{
    complain(reason);
    complain(QCoreApplication::translate("xddnormalize", "Try 'xddnormalize --help'."));
    return EXIT_USAGE;
}

int normalizeAll(const SRequest& request)
{
    for (const QString& fileName : request.fileNames) {
        if (!request.inPlace && !request.dryRun && isSameFile(fileName, outputOf(request, fileName))) {
            return refuse(QCoreApplication::translate("xddnormalize", "%1 would be overwritten; --in-place does that.")
                              .arg(fileName));
        }
        if (request.inPlace && fileName == STANDARD_STREAM) {
            return refuse(QCoreApplication::translate("xddnormalize", "Standard input cannot be changed in place."));
        }
    }
    bool ok = true;
    for (const QString& fileName : request.fileNames) {
        ok = normalizeFile(request, fileName) && ok;
    }
    return ok ? EXIT_ALL_LOAD : EXIT_NOT_ALL_LOAD;
}

int print(const QString& text)
{
    QString errorText;
    if (!writeAll(STANDARD_STREAM, text.toUtf8() + '\n', errorText)) {
        complain(errorText);
        return EXIT_NOT_ALL_LOAD;
    }
    return EXIT_ALL_LOAD;
}

QCommandLineOption option(const QStringList& names, const QString& description, const QString& valueName = QString())
{
    return {names, description, valueName};
}

// The options, made when the catalogue of the user's language is there.
struct SOptions
{
    QCommandLineOption help = option(
        {QStringLiteral("h"), QStringLiteral("help")}, QCoreApplication::translate("xddnormalize", "Print this help."));
    QCommandLineOption version = option(
        {QStringLiteral("v"), QStringLiteral("version")},
        QCoreApplication::translate("xddnormalize", "Print the version."));
    QCommandLineOption output = option(
        {QStringLiteral("o"), QStringLiteral("output")},
        QCoreApplication::translate("xddnormalize", "Write the copy of the one FILE to OUT; - is standard output."),
        QStringLiteral("OUT"));
    QCommandLineOption outputDir = option(
        {QStringLiteral("output-dir")},
        QCoreApplication::translate("xddnormalize", "Write the copies under the names of the files to DIR."),
        QStringLiteral("DIR"));
    QCommandLineOption inPlace = option(
        {QStringLiteral("in-place")}, QCoreApplication::translate("xddnormalize", "Change the files themselves."));
    QCommandLineOption dryRun =
        option({QStringLiteral("dry-run")}, QCoreApplication::translate("xddnormalize", "Write nothing, only report."));
    QCommandLineOption verbose = option(
        {QStringLiteral("verbose")}, QCoreApplication::translate("xddnormalize", "Report every change by itself."));
    QCommandLineOption quiet =
        option({QStringLiteral("quiet")}, QCoreApplication::translate("xddnormalize", "Report no changes."));
};

// What the options ask for; a reason to refuse them, or nothing.
QString understand(const QCommandLineParser& parser, const SOptions& options, SRequest& request)
{
    request.fileNames = parser.positionalArguments();
    request.output = parser.isSet(options.output) ? parser.value(options.output) : STANDARD_STREAM;
    request.outputDir = parser.value(options.outputDir);
    request.inPlace = parser.isSet(options.inPlace);
    request.dryRun = parser.isSet(options.dryRun);
    request.verbose = parser.isSet(options.verbose);
    request.quiet = parser.isSet(options.quiet);
    const int destinations =
        int(parser.isSet(options.output)) + int(parser.isSet(options.outputDir)) + int(request.inPlace);
    if (request.fileNames.isEmpty()) {
        return QCoreApplication::translate("xddnormalize", "No file is named.");
    }
    if (destinations > 1) {
        return QCoreApplication::translate(
            "xddnormalize", "Only one of --output, --output-dir and --in-place can be meant.");
    }
    if (request.fileNames.size() > 1 && !request.dryRun && request.outputDir.isEmpty() && !request.inPlace) {
        return QCoreApplication::translate("xddnormalize", "Several files need --output-dir or --in-place.");
    }
    return QString();
}

int run(const QStringList& arguments)
{
    const SOptions options;
    QCommandLineParser parser;
    parser.setApplicationDescription(QCoreApplication::translate(
        "xddnormalize", "Writes copies of CANopen device descriptions in the form that the library reads."));
    parser.addOptions(
        {options.help, options.version, options.output, options.outputDir, options.inPlace, options.dryRun,
         options.verbose, options.quiet});
    parser.addPositionalArgument(
        QStringLiteral("FILE"),
        QCoreApplication::translate(
            "xddnormalize", "A description; - is standard input. The copy of one goes to standard output by itself."),
        QStringLiteral("FILE..."));
    if (!parser.parse(arguments)) {
        return refuse(parser.errorText());
    }
    if (parser.isSet(options.help)) {
        return print(parser.helpText().trimmed());
    }
    if (parser.isSet(options.version)) {
        return print(QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion());
    }
    SRequest request;
    const QString reason = understand(parser, options, request);
    return reason.isEmpty() ? normalizeAll(request) : refuse(reason);
}
} // namespace

int main(int argc, char* argv[])
{
    // A reader that closes the pipe early ends the output with an error, not the program with a signal.
    std::signal(SIGPIPE, SIG_IGN);
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("xddnormalize"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TOOL_VERSION));
    installCatalogue();
    return run(QCoreApplication::arguments());
}
