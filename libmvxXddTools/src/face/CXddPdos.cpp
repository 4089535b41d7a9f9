#include "CXddPdos.h"

#include "canopen/PdoLayout.h"
#include "face/SOpened.h"

QList<CXddPdo> CXddPdos::of(const CXddDocument& document, unsigned int nodeId)
{
    return layoutsOf(openedOf(document).description, nodeId);
}

QList<CXddPdo> CXddPdos::of(const QMap<unsigned int, CCanOpenObject>& objects, unsigned int nodeId)
{
    const CDictionary dictionary(objects);
    QList<CXddPdo> layout;
    for (const SPdo& pdo : pdosOf(dictionary)) {
        layout << layoutOf(pdo, dictionary, nodeId);
    }
    return layout;
}
