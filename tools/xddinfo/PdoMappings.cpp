#include "PdoMappings.h"

#include <CCanOpenNames.h>

namespace
{
// CiA 301: the communication parameters of up to 512 PDOs, each with its mapping 0x200 above.
constexpr unsigned int FIRST_RECEIVE_PDO = 0x1400;
constexpr unsigned int FIRST_TRANSMIT_PDO = 0x1800;
constexpr unsigned int MAX_PDOS = 0x200;
constexpr unsigned int MAPPING_OFFSET = 0x200;

// An entry of a mapping: 16 bits index, 8 bits sub-index, 8 bits length.
QString mappedObject(const QString& value)
{
    bool ok = false;
    const unsigned int entry = value.toUInt(&ok, 0);
    if (!ok || entry == 0) {
        return QString();
    }
    const QString index = CCanOpenNames::index(entry >> 16U);
    const unsigned int subIndex = (entry >> 8U) & 0xFFU;
    return subIndex == 0 ? index : index + QLatin1Char(':') + QString::number(subIndex, 16).toUpper();
}

QVector<SPdo> pdosFrom(unsigned int first, const QMap<unsigned int, CCanOpenObject>& objects)
{
    QVector<SPdo> pdos;
    for (auto object = objects.lowerBound(first); object != objects.end() && object.key() < first + MAX_PDOS;
         ++object) {
        SPdo pdo;
        pdo.number = int(object.key() - first) + 1;
        const CCanOpenObject mapping = objects.value(object.key() + MAPPING_OFFSET);
        for (const CCanOpenSubObject& entry : mapping.mSubObjects) {
            const QString mapped =
                mappedObject(entry.mActualValue.isEmpty() ? entry.mDefaultValue : entry.mActualValue);
            if (entry.mIndex > 0 && !mapped.isEmpty()) {
                pdo.mapped << mapped;
            }
        }
        pdos << pdo;
    }
    return pdos;
}
} // namespace

QVector<SPdo> receivePdos(const QMap<unsigned int, CCanOpenObject>& objects)
{
    return pdosFrom(FIRST_RECEIVE_PDO, objects);
}

QVector<SPdo> transmitPdos(const QMap<unsigned int, CCanOpenObject>& objects)
{
    return pdosFrom(FIRST_TRANSMIT_PDO, objects);
}
