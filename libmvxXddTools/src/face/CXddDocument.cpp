#include "CXddDocument.h"

#include "canopen/Device.h"
#include "canopen/PdoLayout.h"
#include "eds/CEdsReader.h"
#include "face/SOpened.h"
#include "remarks/CRemarks.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace
{
// Why a text cannot be one of sections, whatever it says; nothing for one that can.
CXddSentence foreignText(const QString& text)
{
    if (text.trimmed().isEmpty()) {
        return CRemarks::filled(CRemarks::say("The file is empty."));
    }
    return text.contains(QChar(0)) ? CRemarks::filled(CRemarks::say("This is a binary file.")) : CXddSentence();
}

// Reads an XDD. Returns null with the failure.
std::unique_ptr<SOpened> openXdd(const QByteArray& bytes, CXddRemark& failure)
{
    CEncodedText encoded;
    CXmlTree tree;
    failure.mRule = QStringLiteral("not-well-formed");
    if (!encoded.decode(bytes, failure.mSentence) || !tree.read(encoded.text(), failure)) {
        return nullptr;
    }
    auto opened = std::make_unique<SOpened>(std::move(encoded), std::move(tree), CXddDevice::FORM_XDD);
    opened->suppressions = opened->tree.suppressions();
    failure.mRule = QStringLiteral("not-a-description");
    return opened->description.isCanOpen(failure) ? std::move(opened) : nullptr;
}

// Makes an XDD of an EDS. Returns null with the failure.
std::unique_ptr<SOpened> openEds(const QByteArray& bytes, CXddRemark& failure)
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
    if (!tree.readWritten(encoded.text(), reader.xdd().lines(), reader.xdd().attributeLines(), failure)) {
        return nullptr;
    }
    auto opened = std::make_unique<SOpened>(
        std::move(encoded), std::move(tree), reader.isDcf() ? CXddDevice::FORM_DCF : CXddDevice::FORM_EDS,
        reader.extras());
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
    const auto made = std::make_shared<SDocument>();
    made->name = name;
    made->bytes = bytes;
    made->failure.mLine = 1;
    made->opened = isXml(bytes) ? openXdd(bytes, made->failure) : openEds(bytes, made->failure);
    if (made->opened) {
        made->failure = CXddRemark();
    }
    CXddDocument document;
    document.mDocument = made;
    return document;
}

CXddDocument CXddDocument::open(QIODevice& device, const QString& name)
{
    const QByteArray bytes = device.isOpen() ? device.readAll() : QByteArray();
    const auto* const file = qobject_cast<QFileDevice*>(&device);
    if (device.isOpen() && (file == nullptr || file->error() == QFileDevice::NoError)) {
        return open(bytes, name);
    }
    const bool isFolder = !device.isOpen() && file != nullptr && QFileInfo(file->fileName()).isDir();
    const auto made = std::make_shared<SDocument>();
    made->name = name;
    made->failure.mSentence =
        isFolder ? CRemarks::filled(CRemarks::say("This is a folder.")) : CXddSentence(device.errorString());
    CXddDocument document;
    document.mDocument = made;
    return document;
}

CXddDocument CXddDocument::openFile(const QString& fileName)
{
    QFile file(fileName);
    file.open(QIODevice::ReadOnly);
    return open(file, fileName);
}

bool CXddDocument::isOpen() const
{
    return openedOf(*this) != nullptr;
}

CXddRemark CXddDocument::failure() const
{
    return mDocument ? mDocument->failure : CXddRemark();
}

CXddDevice::EForm CXddDocument::form() const
{
    const SOpened* const opened = openedOf(*this);
    return opened == nullptr ? CXddDevice::FORM_NONE : opened->description.form();
}

QList<CXddRemark> CXddDocument::remarks() const
{
    const SOpened* const opened = openedOf(*this);
    return opened == nullptr ? QList<CXddRemark>()
                             : opened->remarksOf({CXddRemark::KIND_CHANGE, CXddRemark::KIND_LEFT});
}

QString CXddDocument::name() const
{
    return mDocument ? mDocument->name : QString();
}

QByteArray CXddDocument::bytes() const
{
    return mDocument ? mDocument->bytes : QByteArray();
}

CXddDevice CXddDocument::device() const
{
    const SOpened* const opened = openedOf(*this);
    return opened == nullptr ? CXddDevice() : deviceOf(opened->description);
}

QList<CXddFact> CXddDocument::facts(const QString& language) const
{
    const SOpened* const opened = openedOf(*this);
    return opened == nullptr ? QList<CXddFact>() : factsOf(device(), opened->description.dictionary(), language);
}

QList<CXddFact> CXddDocument::fileFacts() const
{
    return fileFactsOf(device());
}

QList<CXddEntry> CXddDocument::entries() const
{
    const SOpened* const opened = openedOf(*this);
    return opened == nullptr ? QList<CXddEntry>() : shownEntries(opened->description.dictionary());
}

QList<CXddRemark> CXddDocument::leftOut() const
{
    const SOpened* const opened = openedOf(*this);
    return opened == nullptr ? QList<CXddRemark>() : leftOutOf(opened->description.dictionary());
}

CXddEntry CXddDocument::entry(unsigned int index, std::optional<unsigned int> subIndex) const
{
    const SOpened* const opened = openedOf(*this);
    const SEntry* const found = opened == nullptr ? nullptr : opened->description.dictionary().entry(index, subIndex);
    return found == nullptr ? CXddEntry() : shownEntry(*found, opened->description.dictionary());
}

CXddEntryTexts CXddDocument::texts(unsigned int index, std::optional<unsigned int> subIndex) const
{
    const SOpened* const opened = openedOf(*this);
    const SEntry* const found = opened == nullptr ? nullptr : opened->description.dictionary().entry(index, subIndex);
    if (found == nullptr) {
        return {};
    }
    const QMutexLocker lock(&opened->textsLock);
    return opened->texts.of(*found);
}

QList<CXddPdo> CXddDocument::pdos(unsigned int nodeId) const
{
    const SOpened* const opened = openedOf(*this);
    if (opened == nullptr) {
        return {};
    }
    const QMutexLocker lock(&opened->textsLock);
    return layoutsOf(opened->description, opened->texts, nodeId);
}

QList<CXddRemark> SOpened::remarksOf(std::initializer_list<CXddRemark::EKind> kinds) const
{
    QList<CXddRemark> found;
    std::copy_if(remarks.begin(), remarks.end(), std::back_inserter(found), [&kinds](const CXddRemark& remark) {
        return std::find(kinds.begin(), kinds.end(), remark.mKind) != kinds.end();
    });
    return found;
}

const SOpened* openedOf(const CXddDocument& document)
{
    return document.mDocument ? document.mDocument->opened.get() : nullptr;
}
