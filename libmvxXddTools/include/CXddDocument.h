#ifndef MVXXDDTOOLS_CXDDDOCUMENT_H
#define MVXXDDTOOLS_CXDDDOCUMENT_H

#include "CXddRemark.h"
#include "mvxXddTools_export.h"

#include <QByteArray>
#include <QString>

#include <memory>

class QIODevice;
struct SOpened;

/**
 * A CANopen description, opened once, from which CXddNormalizer loads records, CXddChecker makes findings and
 * CXddEdsWriter writes the INI form.
 *
 * Descriptions are taken as they exist, by their content and whatever their name: XDD and XDC (XML), EDS and DCF (the
 * INI forms of CiA 306), in any encoding that Qt knows, and whether or not they follow their format to the letter. From
 * the INI forms an XDD is made, each element of which keeps the line that it came from; every remark names lines of the
 * file that was opened. The limits for hostile files that the reader keeps are kept here, too.
 *
 * A document never changes, copies share it, and it may be used by several threads.
 */
class MVXXDDTOOLS_EXPORT CXddDocument
{
public:
    /** The form in which a description is written. */
    enum EForm : int
    {
        FORM_NONE = 0, ///< Not open
        FORM_XDD = 1,  ///< XML of ISO 15745 (XDD, XDC)
        FORM_EDS = 2,  ///< INI form of CiA 306
        FORM_DCF = 3   ///< INI form with what is configured
    };

    /** Optional items of which a record holds a default when they are absent. */
    enum EItem : int
    {
        ITEM_DEVICE_CREATION_DATE = 0,  ///< "fileCreationDate" of the device profile
        ITEM_NETWORK_CREATION_DATE = 1, ///< "fileCreationDate" of the network profile
        ITEM_BAUD_RATE = 2,             ///< "defaultValue" of "baudRate"
        ITEM_SUPPORTED_BAUD_RATES = 3,  ///< a "supportedBaudRate"
        ITEM_MANDATORY_OBJECTS = 4,     ///< "mandatoryObjects"
        ITEM_OPTIONAL_OBJECTS = 5,      ///< "optionalObjects"
        ITEM_MANUFACTURER_OBJECTS = 6   ///< "manufacturerObjects"
    };

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
    EForm form() const;

    /** What of the file was taken in another meaning than it is written, or was left out, in the order of the lines;
     * CXddChecker also has what is only wrong. */
    QList<CXddRemark> remarks() const;

    /** The name that it was opened with. */
    QString name() const;

    /** The bytes that it was opened from. */
    QByteArray bytes() const;

    /** True when the description states an item itself, readably; a record cannot tell that from a default. Of a
     * document that is not open everything counts as stated. */
    bool states(EItem item) const;

private:
    friend const SOpened& openedOf(const CXddDocument& document);

    QString mName;
    QByteArray mBytes;
    CXddRemark mFailure;
    std::shared_ptr<const SOpened> mOpened;
};

#endif
