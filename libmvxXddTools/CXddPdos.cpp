#include "CXddPdos.h"

#include "CCanOpenNames.h"
#include "SOpened.h"

namespace
{
QList<CXddPdo> shown(const std::vector<SPdo>& pdos)
{
    QList<CXddPdo> list;
    for (const SPdo& pdo : pdos) {
        CXddPdo added;
        added.mIsTransmit = pdo.direction == EPdoDirection::Transmit;
        added.mNumber = int(pdo.number);
        for (const SPdoField& field : pdo.fields) {
            if (field.isActive && !field.mapsNothing()) {
                CXddPdoField carried;
                carried.mIndex = field.index;
                carried.mSubIndex = field.subIndex;
                carried.mIsSubObject = field.isSubObject();
                carried.mBits = int(field.bits);
                added.mFields << carried;
            }
        }
        list << added;
    }
    return list;
}
} // namespace

CXddPdoField::CXddPdoField() = default;

QString CXddPdoField::entry() const
{
    return CCanOpenNames::entry(mIndex, mIsSubObject ? std::optional<unsigned int>(mSubIndex) : std::nullopt);
}

CXddPdo::CXddPdo() = default;

QList<CXddPdo> CXddPdos::of(const CXddDocument& document)
{
    return shown(openedOf(document).description.pdos());
}

QList<CXddPdo> CXddPdos::of(const QMap<unsigned int, CCanOpenObject>& objects)
{
    const CDictionary dictionary(objects);
    return shown(pdosOf(dictionary));
}
