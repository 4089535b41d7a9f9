#include "CXddDocument.h"

#include "CXmlValue.h"
#include "NIso15745Tags.h"
#include "eds/CEdsReader.h"
#include "face/SOpened.h"
#include "remarks/CRemarks.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstring>
#include <iterator>

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

// Why a text cannot be one of sections, whatever it says; nothing for one that can.
CXddSentence foreignText(const QString& text)
{
    if (text.trimmed().isEmpty()) {
        return CRemarks::filled(CRemarks::say("The file is empty."));
    }
    return text.contains(QChar(0)) ? CRemarks::filled(CRemarks::say("This is a binary file.")) : CXddSentence();
}

// Reads an XDD. Returns null with the failure.
std::shared_ptr<SOpened> openXdd(const QByteArray& bytes, CXddRemark& failure)
{
    CEncodedText encoded;
    CXmlTree tree;
    failure.mRule = QStringLiteral("not-well-formed");
    if (!encoded.decode(bytes, failure.mSentence) || !tree.read(encoded.text(), failure)) {
        return nullptr;
    }
    auto opened = std::make_shared<SOpened>(std::move(encoded), std::move(tree), EForm::Xdd);
    opened->suppressions = opened->tree.suppressions();
    failure.mRule = QStringLiteral("not-a-description");
    return opened->description.isCanOpen(failure) ? opened : nullptr;
}

// Makes an XDD of an EDS. Returns null with the failure.
std::shared_ptr<SOpened> openEds(const QByteArray& bytes, CXddRemark& failure)
{
    CEncodedText encoded;
    CXmlTree tree;
    CRemarks remarks;
    const QByteArray encoding = encoded.decodePlain(bytes);
    failure.mRule = QStringLiteral("not-a-description");
    failure.mSentence = foreignText(encoded.text());
    if (!failure.mSentence.isEmpty()) {
        return nullptr;
    }
    if (!encoding.isEmpty()) {
        remarks.taken(
            {1}, QLatin1String("eds-encoding"), CRemarks::say("the text is neither ASCII nor UTF-8 and is taken as %1"),
            {QString::fromLatin1(encoding)});
    }
    CEdsReader reader(remarks);
    if (!reader.read(encoded.text(), failure)) {
        return nullptr;
    }
    encoded.setText(reader.xdd().text());
    if (!tree.readWritten(encoded.text(), reader.xdd().lines(), failure)) {
        return nullptr;
    }
    auto opened =
        std::make_shared<SOpened>(std::move(encoded), std::move(tree), reader.isDcf() ? EForm::Dcf : EForm::Eds);
    opened->suppressions = reader.suppressions();
    opened->remarks = remarks.inOrder();
    return opened;
}
} // namespace

CXddDocument::CXddDocument() = default;

// The first character, in whatever encoding of Unicode, opens a tag.
bool CXddDocument::isXml(const QByteArray& beginning)
{
    const auto* const first = std::find_if(beginning.begin(), beginning.end(), [](char byte) {
        return std::strchr("\xEF\xBB\xBF\xFE\xFF \t\r\n", byte) == nullptr; // Marks and spaces; it finds NUL as well
    });
    return first != beginning.end() && *first == '<';
}

CXddDocument CXddDocument::open(const QByteArray& bytes, const QString& name)
{
    CXddDocument document;
    document.mName = name;
    document.mBytes = bytes;
    document.mFailure.mLine = 1;
    document.mOpened = isXml(bytes) ? openXdd(bytes, document.mFailure) : openEds(bytes, document.mFailure);
    if (document.isOpen()) {
        document.mFailure = CXddRemark();
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
    document.mFailure.mSentence = CXddSentence(device.errorString());
    return document;
}

CXddDocument CXddDocument::openFile(const QString& fileName)
{
    QFile file(fileName);
    file.open(QIODevice::ReadOnly);
    CXddDocument document = open(file, fileName);
    if (!file.isOpen() && QFileInfo(fileName).isDir()) {
        document.mFailure.mSentence = CRemarks::filled(CRemarks::say("This is a folder."));
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

CXddDocument::EForm CXddDocument::form() const
{
    if (!isOpen()) {
        return FORM_NONE;
    }
    switch (mOpened->description.form()) {
    case ::EForm::Eds:
        return FORM_EDS;
    case ::EForm::Dcf:
        return FORM_DCF;
    case ::EForm::Xdd:
        break;
    }
    return FORM_XDD;
}

QList<CXddRemark> CXddDocument::remarks() const
{
    QList<CXddRemark> remarks;
    if (isOpen()) {
        std::copy_if(
            mOpened->remarks.begin(), mOpened->remarks.end(), std::back_inserter(remarks),
            [](const CXddRemark& remark) { return remark.mKind != CXddRemark::KIND_FINDING; });
    }
    return remarks;
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
