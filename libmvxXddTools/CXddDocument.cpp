#include "CXddDocument.h"

#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "SOpened.h"
#include "remarks/CRemarks.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace NIso15745Tags;

namespace
{
bool anyHas(const std::vector<CXmlElement>& elements, QLatin1String attribute)
{
    return std::any_of(elements.begin(), elements.end(), [&](const CXmlElement& element) {
        return !element.attribute(attribute).trimmed().isEmpty();
    });
}

// A date that is not readable gives none.
bool hasDate(const CDescription& description, EProfile kind)
{
    const QString text = description.body(kind).attribute(ATTR_FILE_CREATION_DATE);
    return CXmlValue::toDate(text) || dateOf(text);
}

// What a text looks like that is neither XML nor another form of a description; nothing for one that may be.
QString foreignText(const QString& text)
{
    const QString beginning = text.left(1000);
    const bool isBinary = std::any_of(beginning.begin(), beginning.end(), [](QChar character) {
        return character < QLatin1Char(' ') && !character.isSpace();
    });
    if (beginning.trimmed().isEmpty()) {
        return CRemarks::tr("The file is empty.");
    }
    if (isBinary) {
        return CRemarks::tr("This is a binary file.");
    }
    const QString firstLine = beginning.trimmed().section(QLatin1Char('\n'), 0, 0).trimmed();
    return firstLine.startsWith(QLatin1Char('<'))
               ? QString()
               : CRemarks::filled(CRemarks::tr("This is not XML: it begins with \"%1\"."), {firstLine});
}
} // namespace

CXddDocument::CXddDocument() = default;

CXddDocument CXddDocument::open(const QByteArray& bytes, const QString& name)
{
    CXddDocument document;
    document.mName = name;
    document.mBytes = bytes;
    CXddRemark& failure = document.mFailure;
    failure.mRule = QStringLiteral("not-well-formed");
    failure.mLine = 1;
    CEncodedText encoded;
    CXmlTree tree;
    if (!encoded.decode(bytes, failure.mText)) {
        return document;
    }
    failure.mText = foreignText(encoded.text());
    if (!failure.mText.isEmpty()) {
        failure.mRule = QStringLiteral("not-a-description");
        return document;
    }
    if (!tree.read(encoded.text(), failure)) {
        return document;
    }
    auto opened = std::make_shared<const SOpened>(std::move(encoded), std::move(tree));
    failure.mRule = QStringLiteral("not-a-description");
    if (opened->description.isCanOpen(failure)) {
        failure = CXddRemark();
        document.mOpened = std::move(opened);
    }
    return document;
}

CXddDocument CXddDocument::open(QIODevice& device, const QString& name)
{
    const QByteArray bytes = device.isOpen() ? device.readAll() : QByteArray();
    const auto* const file = qobject_cast<QFileDevice*>(&device);
    if (device.isOpen() && (file == nullptr || file->error() == QFileDevice::NoError)) {
        return open(bytes, name);
    }
    CXddDocument document;
    document.mName = name;
    document.mFailure.mText = device.errorString();
    return document;
}

CXddDocument CXddDocument::openFile(const QString& fileName)
{
    QFile file(fileName);
    file.open(QIODevice::ReadOnly);
    CXddDocument document = open(file, fileName);
    if (!file.isOpen() && QFileInfo(fileName).isDir()) {
        document.mFailure.mText = CRemarks::tr("This is a folder.");
    }
    return document;
}

bool CXddDocument::isOpen() const
{
    return mOpened != nullptr;
}

CXddRemark CXddDocument::failure() const
{
    return mFailure;
}

QString CXddDocument::name() const
{
    return mName;
}

QByteArray CXddDocument::bytes() const
{
    return mBytes;
}

bool CXddDocument::states(EItem item) const
{
    if (!isOpen()) {
        return true;
    }
    const CDescription& description = mOpened->description;
    const std::vector<CXmlElement> rates = description.bitRates();
    switch (item) {
    case ITEM_DEVICE_CREATION_DATE:
        return hasDate(description, EProfile::Device);
    case ITEM_NETWORK_CREATION_DATE:
        return hasDate(description, EProfile::Network);
    case ITEM_BAUD_RATE:
        return anyHas(rates, ATTR_DEFAULT_VALUE);
    case ITEM_SUPPORTED_BAUD_RATES:
        return std::any_of(rates.begin(), rates.end(), [](const CXmlElement& baudRate) {
            const std::vector<CXmlElement> supported = baudRate.children(TAG_SUPPORTED_BAUD_RATE);
            return std::any_of(supported.begin(), supported.end(), [](const CXmlElement& rate) {
                return bitRateOf(rate.attribute(ATTR_VALUE)) != CNetworkCanOpenProfile::BAUD_INVALID;
            });
        });
    case ITEM_MANDATORY_OBJECTS:
        return anyHas(description.objectLists(), ATTR_MANDATORY_OBJECTS);
    case ITEM_OPTIONAL_OBJECTS:
        return anyHas(description.objectLists(), ATTR_OPTIONAL_OBJECTS);
    case ITEM_MANUFACTURER_OBJECTS:
        break;
    }
    return anyHas(description.objectLists(), ATTR_MANUFACTURER_OBJECTS);
}

const SOpened& openedOf(const CXddDocument& document)
{
    return *document.mOpened;
}
