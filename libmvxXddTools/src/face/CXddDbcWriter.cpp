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
        network.add(openedOf(node.mDocument).description, node.mNodeId, QFileInfo(node.mDocument.name()).fileName());
    }
    CXddDbc dbc;
    dbc.mText = network.text();
    dbc.mRemarks = network.remarks();
    return dbc;
}
