#include "CCommandLine.h"
#include "Descriptions.h"
#include "Files.h"
#include "Messages.h"

#include <CXddDbcWriter.h>
#include <CXddEdsWriter.h>

#include <QCoreApplication>
#include <QRegularExpression>

namespace
{
const QString ALL = QStringLiteral("all");
const QString OUTPUT = QStringLiteral("output");
const QString PDOS_ONLY = QStringLiteral("pdos-only");

// A device as the command line names it.
struct SNamedNode
{
    QString fileName;
    unsigned int nodeId = 0; // 0 where none is given
};

// What the command line asks for.
struct SRequest
{
    QVector<SNamedNode> nodes;
    QString output;
    int options = CXddDbcWriter::OPTION_NONE;
    bool quiet = false;
    bool verbose = false;
};

QString notANodeId(const QString& fileName, const QString& text)
{
    return QCoreApplication::translate("xdd2dbc", "%1: \"%2\" is not a node-ID: these are 1 to 127.")
        .arg(fileName, text);
}

// Understands FILE:N; else says why not.
QString readNode(const QString& argument, SNamedNode& node)
{
    static const QRegularExpression form(
        QStringLiteral("^(.+):(-?[0-9]*|0x[0-9a-f]*)$"), QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(argument);
    node.fileName = match.hasMatch() ? match.captured(1) : argument;
    node.nodeId = nodeIdFrom(match.captured(2));
    return match.hasMatch() && node.nodeId == 0 ? notANodeId(node.fileName, match.captured(2)) : QString();
}

// What the command line asks for; else the reason why it is refused.
QString readRequest(const CCommandLine& line, SRequest& request)
{
    request.output = line.isSet(OUTPUT) ? line.value(OUTPUT) : standardStream();
    request.options |= line.isSet(ALL) ? CXddDbcWriter::OPTION_ALL : 0;
    request.options |= line.isSet(PDOS_ONLY) ? CXddDbcWriter::OPTION_ONLY_PDOS : 0;
    request.quiet = line.isQuiet();
    request.verbose = line.isVerbose();
    for (const QString& argument : line.files()) {
        SNamedNode node;
        QString refusal = readNode(argument, node);
        if (!refusal.isEmpty()) {
            return refusal;
        }
        if (isSameFile(node.fileName, request.output)) {
            return QCoreApplication::translate("tools", "%1 would be overwritten.").arg(node.fileName);
        }
        request.nodes << node;
    }
    return request.nodes.isEmpty() ? QCoreApplication::translate("tools", "No file is named.") : QString();
}

// Opens the descriptions. Returns false when one of them cannot be read, after saying why.
bool openNodes(const SRequest& request, QList<CXddNode>& nodes)
{
    bool ok = true;
    for (const SNamedNode& node : request.nodes) {
        const CXddDocument document = openDescription(node.fileName);
        ok = ok && document.isOpen();
        if (document.isOpen()) {
            const unsigned int stated = document.device().mCommissioning.mNodeId;
            nodes << CXddNode(document, node.nodeId != 0 ? node.nodeId : stated);
        }
    }
    return ok;
}

// Why there cannot be a network of these nodes; nothing where there can.
QString refusalOf(const QList<CXddNode>& nodes)
{
    QHash<unsigned int, QString> fileNames;
    for (const CXddNode& node : nodes) {
        const QString fileName = node.mDocument.name();
        if (node.mNodeId == 0) {
            return QCoreApplication::translate(
                       "xdd2dbc", "%1: It states no node-ID; name it behind the file, as in %1:5.")
                .arg(fileName);
        }
        if (fileNames.contains(node.mNodeId)) {
            return QCoreApplication::translate("xdd2dbc", "%1 and %2 have the same node-ID %3.")
                .arg(fileNames.value(node.mNodeId), fileName, QString::number(node.mNodeId));
        }
        fileNames.insert(node.mNodeId, fileName);
    }
    return QString();
}

void report(const SRequest& request, const QList<CXddNode>& nodes, const CXddDbc& dbc)
{
    for (int i = 0; i < nodes.size(); ++i) {
        const QList<CXddRemark> remarks = nodes[i].mDocument.remarks() + dbc.mRemarks[i];
        reportRemarks(nodes[i].mDocument.name(), remarks, request.verbose ? EACH : MOST);
    }
}

int run(const QStringList& arguments)
{
    CCommandLine line(
        QCoreApplication::translate(
            "xdd2dbc", "Writes what CANopen devices send and receive as a DBC, for bus analysers and loggers."),
        QCoreApplication::translate(
            "xdd2dbc",
            "A description and the node-ID of the device, which an XDC or DCF may state; - is standard input."),
        QStringLiteral("FILE:N..."));
    line.add(
        {QStringLiteral("o"), OUTPUT},
        QCoreApplication::translate("xdd2dbc", "Write the DBC to OUT; else it goes to standard output."),
        QStringLiteral("OUT"));
    line.add({ALL}, QCoreApplication::translate("xdd2dbc", "Take disabled PDOs as well."));
    line.add(
        {PDOS_ONLY},
        QCoreApplication::translate("xdd2dbc", "Leave out emergency and heartbeat messages, NMT and SYNC."));
    line.addReportOptions(
        QCoreApplication::translate("xdd2dbc", "Report everything separately."),
        QCoreApplication::translate("xdd2dbc", "Report nothing."));
    if (const std::optional<int> status = line.parse(arguments)) {
        return *status;
    }
    SRequest request;
    QString refusal = readRequest(line, request);
    if (!refusal.isEmpty()) {
        return CCommandLine::refuse(refusal);
    }
    QList<CXddNode> nodes;
    const bool areOpen = openNodes(request, nodes);
    refusal = refusalOf(nodes);
    if (!refusal.isEmpty()) {
        return CCommandLine::refuse(refusal);
    }
    if (!areOpen) {
        return EXIT_NOT_ALL_DONE;
    }
    const CXddDbc dbc = CXddDbcWriter::write(nodes, request.options);
    if (!request.quiet) {
        report(request, nodes, dbc);
    }
    return writeFile(request.output, dbc.mText) ? EXIT_ALL_DONE : EXIT_NOT_ALL_DONE;
}
} // namespace

int main(int argc, char* argv[])
{
    return runTool(argc, argv, QStringLiteral("xdd2dbc"), run);
}
