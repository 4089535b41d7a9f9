#include "CCopyCommandLine.h"
#include "Descriptions.h"
#include "Files.h"
#include "Messages.h"

#include <CXddEdsWriter.h>

#include <QCoreApplication>

namespace
{
const QString DCF = QStringLiteral("dcf");
const QString NODE_NAME = QStringLiteral("node-name");
const QString BIT_RATE = QStringLiteral("bit-rate");

// What a DCF is to say of its node; an EDS where nothing is asked for.
struct SNode
{
    bool isAskedFor = false;
    CXddCommissioning stated; // What is given here, which comes before what the description states
};

// One line for each kind of loss, with its first place.
void reportLosses(const SCopyRequest& request, const QString& fileName, const CXddEds& eds)
{
    reportRemarks(fileName, eds.mLosses, request.verbose ? EACH : 1);
    const QString entries =
        QCoreApplication::translate("xdd2eds", "%1: %n entry(s)", nullptr, eds.mEntries).arg(fileName);
    reportLine(
        eds.mIncomplete == 0
            ? entries
            : QCoreApplication::translate("xdd2eds", "%1, %n of them not fully represented", nullptr, eds.mIncomplete)
                  .arg(entries));
}

CXddCommissioning commissioning(const CXddDocument& document, const CXddCommissioning& given)
{
    CXddCommissioning node = document.device().mCommissioning;
    node.mNodeId = given.mNodeId != 0 ? given.mNodeId : node.mNodeId;
    node.mNodeName = given.mNodeName.isEmpty() ? node.mNodeName : given.mNodeName;
    node.mBaudrate = given.mBaudrate != CNetworkCanOpenProfile::BAUD_INVALID ? given.mBaudrate : node.mBaudrate;
    return node;
}

ECopied convertFile(const SNode& node, const SCopyRequest& request, const QString& fileName)
{
    const CXddDocument document = openDescription(fileName);
    if (!document.isOpen()) {
        return ECopied::No;
    }
    const CXddCommissioning configured = commissioning(document, node.stated);
    if (node.isAskedFor && configured.mNodeId == 0) {
        complain(QCoreApplication::translate("xdd2eds", "%1: It states no node-ID; --dcf needs --node-id here.")
                     .arg(fileName));
        return ECopied::No;
    }
    const CXddEds eds =
        node.isAskedFor ? CXddEdsWriter::writeDcf(document, configured) : CXddEdsWriter::write(document);
    if (!request.quiet) {
        reportRemarks(fileName, document.remarks(), request.verbose ? EACH : 1);
        reportLosses(request, fileName, eds);
    }
    return request.dryRun || writeFile(request.destination.of(fileName), eds.mText) ? ECopied::Yes : ECopied::No;
}

// Why the options do not go together; nothing where they do.
QString refusal(const CCopyCommandLine& line, const SNode& node)
{
    const bool isOfOne = line.nodeId() != 0 || line.isSet(NODE_NAME);
    if (!node.isAskedFor && (isOfOne || line.isSet(BIT_RATE))) {
        return QCoreApplication::translate("xdd2eds", "--node-id, --node-name and --bit-rate need --dcf.");
    }
    if (isOfOne && line.files().size() > 1) {
        return QCoreApplication::translate("xdd2eds", "--node-id and --node-name are those of one FILE.");
    }
    if (line.isSet(BIT_RATE) && node.stated.mBaudrate <= CNetworkCanOpenProfile::BAUD_AUTO) {
        return QCoreApplication::translate("xdd2eds", "\"%1\" is not a bit rate of CANopen.").arg(line.value(BIT_RATE));
    }
    return QString();
}

int run(const QStringList& arguments)
{
    CCopyCommandLine line(
        QCoreApplication::translate(
            "xdd2eds", "Writes CANopen device descriptions in the INI forms (EDS and DCF, CiA 306)."),
        QCoreApplication::translate(
            "xdd2eds",
            "A description; - is standard input. The EDS of one goes to standard output unless it is named."),
        QStringLiteral(".eds"));
    line.addCopyOptions(
        QCoreApplication::translate("xdd2eds", "Write the EDS of the one FILE to OUT; - is standard output."),
        QCoreApplication::translate("xdd2eds", "Write the EDS files to DIR, named as the files with .eds or .dcf."),
        QCoreApplication::translate("xdd2eds", "Report every loss separately."),
        QCoreApplication::translate("xdd2eds", "Report nothing."));
    line.add({DCF}, QCoreApplication::translate("xdd2eds", "Write a DCF, with actual values and what is configured."));
    line.addNodeId(QCoreApplication::translate(
        "xdd2eds", "The node-ID of the DCF; without it the one that the description states."));
    line.add(
        {NODE_NAME}, QCoreApplication::translate("xdd2eds", "The name of the node of the DCF."),
        QStringLiteral("NAME"));
    line.add(
        {BIT_RATE}, QCoreApplication::translate("xdd2eds", "The bit rate of the DCF in kbit/s."),
        QStringLiteral("RATE"));
    if (const std::optional<int> status = line.parse(arguments)) {
        return *status;
    }
    SNode node;
    node.isAskedFor = line.isSet(DCF);
    node.stated.mNodeId = line.nodeId();
    node.stated.mNodeName = line.value(NODE_NAME);
    node.stated.mBaudrate = CNetworkCanOpenProfile::baudrateFromStr(line.value(BIT_RATE) + QLatin1String(" Kbps"));
    const QString reason = refusal(line, node);
    if (!reason.isEmpty()) {
        return CCommandLine::refuse(reason);
    }
    if (node.isAskedFor) {
        line.setSuffix(QStringLiteral(".dcf"));
    }
    return line.writeCopies(
        [&node](const SCopyRequest& request, const QString& fileName) { return convertFile(node, request, fileName); });
}
} // namespace

int main(int argc, char* argv[])
{
    return runTool(argc, argv, QStringLiteral("xdd2eds"), run);
}
