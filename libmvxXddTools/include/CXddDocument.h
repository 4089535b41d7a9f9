#ifndef MVXXDDTOOLS_CXDDDOCUMENT_H
#define MVXXDDTOOLS_CXDDDOCUMENT_H

#include "CXddDevice.h"
#include "CXddEntry.h"
#include "CXddEntryTexts.h"
#include "CXddFact.h"
#include "CXddPdo.h"
#include "CXddRemark.h"
#include "mvxXddTools_export.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>
#include <optional>

class QIODevice;
struct SDocument;
struct SOpened;

/**
 * A CANopen description, opened once: what it says of its device, of each entry of the object dictionary and of each
 * PDO. CXddChecker says what is wrong with it, CXddNormalizer loads the library's records from it, and other classes
 * write it in other forms.
 *
 * Descriptions are taken as they exist, by their content and whatever their name: XDD and XDC (XML), EDS and DCF (the
 * INI forms of CiA 306), in any encoding that Qt knows, and whether or not they follow their format to the letter. From
 * the INI forms an XDD is made, each element of which keeps the line that it came from; every remark names lines of the
 * file that was opened. The limits for hostile files that the reader keeps are kept here, too.
 *
 * A document never changes, copies share it, and it may be used by several threads. Of one that is not open everything
 * is empty.
 */
class MVXXDDTOOLS_EXPORT CXddDocument
{
public:
    /** A document that is not open. */
    CXddDocument();

    /** True for the beginning of a file in XML. Any other file is taken for one of the INI forms. */
    static bool isXml(const QByteArray& beginning);

    /** Opens the bytes of a description. @p name is what messages call it. */
    static CXddDocument open(const QByteArray& bytes, const QString& name = QString());

    /** Opens what is left to read of an open device, such as standard input. */
    static CXddDocument open(QIODevice& device, const QString& name);

    /** Opens a file, which is read once and may be a pipe, or a resource path. */
    static CXddDocument openFile(const QString& fileName);

    /** True when it holds a CANopen description; otherwise failure() says why not. */
    bool isOpen() const;

    /** Why it is not open, with the line and column where those are known. Its rule is "not-well-formed",
     * "not-a-description", or nothing for a file that cannot be read. */
    CXddRemark failure() const;

    /** The form of the file. */
    CXddDevice::EForm form() const;

    /** What of the file does not mean what it seems to say, or was left out, in the order of the lines; CXddChecker
     * also has what is only wrong. */
    QList<CXddRemark> remarks() const;

    /** The name that it was opened with. */
    QString name() const;

    /** The bytes that it was opened from. */
    QByteArray bytes() const;

    /** What it says of its device as a whole. */
    CXddDevice device() const;

    /** The same for people: vendor, product, versions, profile, revision and serial number. What is not stated is left
     * out. @p language is that in which texts are taken where there are several, such as "de". */
    QList<CXddFact> facts(const QString& language) const;

    /** Name, version and dates of the file for people: one fact where both profiles state the same, else two. */
    QList<CXddFact> fileFacts() const;

    /** The object dictionary: the objects in ascending order, each followed by its sub-objects in the order of the
     * file. What has no readable index is left out, and of two objects with one index the second. */
    QList<CXddEntry> entries() const;

    /** What entries() leaves out or could not understand, and why. */
    QList<CXddRemark> leftOut() const;

    /** One object, or one sub-object of it; with an index of 0 where there is no such entry. */
    CXddEntry entry(unsigned int index, std::optional<unsigned int> subIndex = std::nullopt) const;

    /** What it says of an entry for people: labels, descriptions, unit, scale and allowed values. */
    CXddEntryTexts texts(unsigned int index, std::optional<unsigned int> subIndex = std::nullopt) const;

    /** The PDOs of the device with that node-ID, from 1 to 127: the receive PDOs, then the transmit PDOs, each by its
     * number, disabled and empty ones included. Actual values (XDC, DCF) come before default values. With 0 the node-ID
     * is the one that the description states; where it states none, CAN-IDs are those of node-ID 0. */
    QList<CXddPdo> pdos(unsigned int nodeId = 0) const;

private:
    friend const SOpened* openedOf(const CXddDocument& document);

    std::shared_ptr<const SDocument> mDocument;
};

#endif
