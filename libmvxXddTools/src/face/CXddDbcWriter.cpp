#include "CXddDbcWriter.h"

#include "dbc/CDbcNetwork.h"
#include "face/SOpened.h"

#include <QFileInfo>

CXddNode::CXddNode() = default;

CXddNode::CXddNode(const CXddDocument& document, unsigned int nodeId)
    : mDocument(document)
    , mNodeId(nodeId)
{}

CXddDbc::CXddDbc() = default;

CXddDbc CXddDbcWriter::write(const QList<CXddNode>& nodes, int options)
{
    CDbcNetwork network({(options & OPTION_ALL) != 0, (options & OPTION_ONLY_PDOS) != 0});
    for (const CXddNode& node : nodes) {
        if (const SOpened* const opened = openedOf(node.mDocument)) {
            const QString fileName = QFileInfo(node.mDocument.name()).fileName();
            network.add(opened->description, node.mDocument.pdos(node.mNodeId), node.mNodeId, fileName);
        }
    }
    CXddDbc dbc;
    dbc.mText = network.text();
    QList<QList<CXddRemark>> remarks = network.remarks();
    for (const CXddNode& node : nodes) {
        dbc.mRemarks << (node.mDocument.isOpen() ? remarks.takeFirst() : QList<CXddRemark>());
    }
    return dbc;
}
