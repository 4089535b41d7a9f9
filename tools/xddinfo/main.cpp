#include "CJsonReport.h"
#include "COutput.h"
#include "CTextReport.h"
#include "CanOpenNames.h"
#include "Catalogue.h"
#include "NormalizedDescription.h"

#include <ICIso15745.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>

#include <csignal>
#include <memory>

namespace
{
enum EExitStatus : int
{
    EXIT_ALL_SHOWN = 0,
    EXIT_NOT_ALL_SHOWN = 1,
    EXIT_USAGE = 2
};

// What the command line asks for.
struct SRequest
{
    QStringList fileNames;
    bool sample = false; // No file was named: the embedded sample is shown
    bool json = false;
    bool normalize = false;
    bool oneObject = false;
    unsigned int objectIndex = 0;
};

QString embeddedSample()
{
    return QStringLiteral(":/mvxIso15745Xml/xml/NLV7315602_v.xdd");
}

// Shows what was asked for of one loaded description. Returns false when there is no such object.
bool show(const SRequest& request, const QString& fileName, ICIso15745& reader, COutput& output)
{
    const QString source =
        request.sample ? QCoreApplication::translate("xddinfo", "Embedded sample %1").arg(fileName) : fileName;
    if (!request.oneObject) {
        request.json ? CJsonReport(output).showDescription(fileName, reader)
                     : CTextReport(output).showDescription(source, reader);
        return true;
    }
    if (!reader.getObjList().contains(request.objectIndex)) {
        complain(QCoreApplication::translate("xddinfo", "%1: There is no object %2.")
                     .arg(fileName, indexText(request.objectIndex)));
        return false;
    }
    const CCanOpenObject object = reader.getObj(request.objectIndex);
    request.json ? CJsonReport(output).showObject(fileName, object) : CTextReport(output).showObject(source, object);
    return true;
}

// Loads a description as xddnormalize would write it, and says so.
bool loadNormalized(ICIso15745& reader, const QString& fileName, QString& errorText)
{
    QFile file(fileName);
    SNormalizedDescription normalized;
    if (!file.open(QIODevice::ReadOnly)) {
        errorText = file.errorString();
        return false;
    }
    if (!normalizeDescription(file.readAll(), normalized, errorText)
        || !loadDescription(reader, normalized.bytes, errorText)) {
        return false;
    }
    complain(QCoreApplication::translate("xddinfo", "%1: Normalized before it was read, with %2 changes.")
                 .arg(fileName, QString::number(normalized.made())));
    return true;
}

bool showFile(const SRequest& request, const QString& fileName, COutput& output)
{
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QString errorText;
    const bool loaded =
        request.normalize ? loadNormalized(*reader, fileName, errorText) : reader->load(fileName, errorText);
    if (!loaded) {
        complain(fileName + QLatin1String(": ") + errorText);
        return false;
    }
    return show(request, fileName, *reader, output);
}

bool finish(COutput& output)
{
    output.finish();
    if (output.errorText().isEmpty()) {
        return true;
    }
    complain(QCoreApplication::translate("xddinfo", "Cannot write: %1").arg(output.errorText()));
    return false;
}

int showAll(const SRequest& request)
{
    COutput output;
    bool ok = true;
    for (int i = 0; i < request.fileNames.size(); ++i) {
        if (!request.json && i > 0) {
            output.writeLine();
        }
        ok = showFile(request, request.fileNames.at(i), output) && ok;
        if (output.failed()) {
            break;
        }
    }
    return finish(output) && ok ? EXIT_ALL_SHOWN : EXIT_NOT_ALL_SHOWN;
}

int refuse(const QString& reason)
{
    complain(reason);
    complain(QCoreApplication::translate("xddinfo", "Try 'xddinfo --help'."));
    return EXIT_USAGE;
}

// For --help and --version, which are results like any other.
int print(const QString& text)
{
    COutput output;
    output.writeLine(text);
    return finish(output) ? EXIT_ALL_SHOWN : EXIT_NOT_ALL_SHOWN;
}

int run(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QCoreApplication::translate("xddinfo", "Shows what is in CANopen device descriptions (ISO 15745 XML, xdd)."));
    const QCommandLineOption help(
        {QStringLiteral("h"), QStringLiteral("help")}, QCoreApplication::translate("xddinfo", "Print this help."));
    const QCommandLineOption version(
        {QStringLiteral("v"), QStringLiteral("version")}, QCoreApplication::translate("xddinfo", "Print the version."));
    const QCommandLineOption json(
        QStringLiteral("json"),
        QCoreApplication::translate("xddinfo", "Print the whole model as JSON, one line for each file."));
    const QCommandLineOption object(
        QStringLiteral("object"),
        QCoreApplication::translate("xddinfo", "Show one object in full; the index is hexadecimal, such as 0x1018."),
        QCoreApplication::translate("xddinfo", "index"));
    const QCommandLineOption normalize(
        QStringLiteral("normalize"),
        QCoreApplication::translate(
            "xddinfo", "Normalize a foreign description before it is read (see xddnormalize)."));
    parser.addOptions({help, version, json, object, normalize});
    parser.addPositionalArgument(
        QStringLiteral("FILE"),
        QCoreApplication::translate("xddinfo", "A description. Without one the embedded sample is shown."),
        QStringLiteral("[FILE...]"));

    if (!parser.parse(arguments)) {
        return refuse(parser.errorText());
    }
    if (parser.isSet(help)) {
        return print(parser.helpText().trimmed());
    }
    if (parser.isSet(version)) {
        return print(QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion());
    }

    SRequest request;
    request.fileNames = parser.positionalArguments();
    request.sample = request.fileNames.isEmpty();
    if (request.sample) {
        request.fileNames << embeddedSample();
    }
    request.json = parser.isSet(json);
    request.normalize = parser.isSet(normalize);
    request.oneObject = parser.isSet(object);
    if (request.oneObject) {
        bool ok = false;
        request.objectIndex = parser.value(object).toUInt(&ok, 16);
        if (!ok) {
            return refuse(QCoreApplication::translate("xddinfo", "'%1' is not an index.").arg(parser.value(object)));
        }
    }
    return showAll(request);
}
} // namespace

int main(int argc, char* argv[])
{
    // A reader that closes the pipe early ends the output with an error, not the program with a signal.
    std::signal(SIGPIPE, SIG_IGN);
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("xddinfo"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TOOL_VERSION));
    installCatalogue();
    return run(QCoreApplication::arguments());
}
