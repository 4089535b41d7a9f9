#include "CXddPdos.h"

#include "SOpened.h"
#include "canopen/PdoLayout.h"
#include "canopen/Texts.h"

QList<CXddPdo> CXddPdos::of(const CXddDocument& document, unsigned int nodeId)
{
    const CDescription& description = openedOf(document).description;
    QList<CXddPdo> layout;
    for (const SPdo& pdo : description.pdos()) {
        layout << layoutOf(pdo, description.dictionary(), nodeId);
        for (CXddPdoField& field : layout.last().mFields) {
            const SEntry* const entry = description.dictionary().variable(field.mIndex, field.mSubIndex);
            field.mTexts = entry == nullptr ? CXddEntryTexts() : textsOf(*entry, description);
        }
    }
    return layout;
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
