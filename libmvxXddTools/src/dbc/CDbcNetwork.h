#ifndef MVXXDDTOOLS_CDBCNETWORK_H
#define MVXXDDTOOLS_CDBCNETWORK_H

#include "CXddPdo.h"
#include "canopen/CDescription.h"
#include "dbc/DbcNames.h"
#include "dbc/DbcText.h"
#include "remarks/CRemarks.h"

#include <map>
#include <utility>
#include <vector>

/** What of the nodes is written. */
struct SDbcChoice
{
    bool hasDisabled = false; ///< Disabled PDOs as well, under the CAN-IDs that they would have
    bool onlyPdos = false;    ///< Neither EMCY nor heartbeat, NMT and SYNC
};

/** The messages of the nodes of a network. */
class CDbcNetwork
{
public:
    explicit CDbcNetwork(const SDbcChoice& choice);

    /** Adds a node; its description has to outlive this object. @p fileName is what comments call its file. */
    void add(const CDescription& description, const QList<CXddPdo>& pdos, unsigned int nodeId, const QString& fileName);

    /** The whole file. To be called once, behind the nodes. */
    QByteArray text();

    /** What of each node is left out or doubtful. */
    QList<QList<CXddRemark>> remarks() const;

private:
    struct SNode
    {
        SNode(const CDescription& opened, const QList<CXddPdo>& itsPdos, unsigned int id);

        const CDescription& description;
        unsigned int nodeId;
        QString name;
        QString comment;
        CDbcNames names;
        QList<CXddPdo> pdos;
        CRemarks remarks;
    };

    // A message that stands in the file, and what PDOs that come to the same CAN-ID have to know of it.
    struct SEntered
    {
        SDbcMessage message;
        bool isTransmit = false;
        QString by; // The PDO that defines it, "Drive_5_TPDO1"
        CUsedNames names;
        quint64 usedBits = 0;
    };

    using Key = std::pair<bool, unsigned int>; // Of 29 bits or not, and the CAN-ID

    void addPdos(bool isTransmit);
    void addPdo(SNode& node, const CXddPdo& pdo);
    QVector<SDbcSignal> signalsOfPdo(SNode& node, const CXddPdo& pdo);
    static void addSignal(SEntered& entered, SDbcSignal signal);
    void addReceiver(SEntered& entered, SNode& node, const CXddPdo& pdo);
    void remarkPdos(SNode& node) const;

    void addServices();
    void addEmergency(SNode& node);
    void addHeartbeat(SNode& node);
    void addNetworkManagement();
    void addSync();
    void addIfFree(const SDbcMessage& message, SNode* node = nullptr, const SPlace& place = {});
    unsigned int syncCycleOf(const SNode& node) const;

    static void remarkScale(SNode& node, const SPlace& place, const CXddPdoField& field);
    void limitValues(SNode& node, const SPlace& place, QVector<SDbcSignal>& all);

    SDbcChoice mChoice;
    std::vector<SNode> mNodes;
    std::map<Key, SEntered> mMessages;
    int mValuesLeft; // As many values of tables there is room for
};

#endif
