#include "CStreamReader.h"

#include <QXmlStreamReader>

namespace
{
void readEntry(const QXmlStreamAttributes& attributes, QLatin1String indexName, CCanOpenSubObject& entry)
{
    const auto text = [&attributes](const char* name) {
        return attributes.value(QLatin1String(name)).toString();
    };
    entry.mIndex = attributes.value(indexName).toUInt(nullptr, 16);
    entry.mName = text("name");
    entry.mObjectType = static_cast<unsigned char>(attributes.value(QLatin1String("objectType")).toUInt(nullptr, 0));
    entry.mDataType = static_cast<unsigned char>(attributes.value(QLatin1String("dataType")).toUInt(nullptr, 0));
    entry.mLowLimit = text("lowLimit");
    entry.mHighLimit = text("highLimit");
    entry.mAccessType = CCanOpenSubObject::accessTypeFromStr(text("accessType"));
    entry.mDefaultValue = text("defaultValue");
    entry.mActualValue = text("actualValue");
    entry.mDenotation = text("denotation");
    entry.mPdoMapping = CCanOpenSubObject::pdoMappingFromStr(text("PDOmapping"));
    entry.mObjFlags = attributes.value(QLatin1String("objFlags")).toUInt(nullptr, 16);
    entry.mUniqueIdRef = text("uniqueIDRef");
}
} // namespace

QMap<unsigned int, CCanOpenObject> CStreamReader::readObjects(QIODevice& device)
{
    QMap<unsigned int, CCanOpenObject> objects;
    QXmlStreamReader reader(&device);
    CCanOpenObject* current = nullptr;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == QLatin1String("CANopenObject")) {
            CCanOpenObject object;
            readEntry(reader.attributes(), QLatin1String("index"), object);
            object.mSubNumber =
                static_cast<unsigned char>(reader.attributes().value(QLatin1String("subNumber")).toUInt(nullptr, 0));
            current = &objects.insert(object.mIndex, object).value();
        } else if (reader.name() == QLatin1String("CANopenSubObject") && current != nullptr) {
            current->mSubObjects.append(CCanOpenSubObject());
            readEntry(reader.attributes(), QLatin1String("subIndex"), current->mSubObjects.last());
        }
    }
    return objects;
}
