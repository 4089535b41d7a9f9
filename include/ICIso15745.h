#ifndef MVXISO15745XML_ICISO15745_H
#define MVXISO15745XML_ICISO15745_H

#include "CCanOpenObject.h"
#include "CDeviceProfile.h"
#include "CNetworkCanOpenProfile.h"
#include "mvxIso15745Xml_export.h"

#include <QMap>
#include <QString>

/**
 * A reader of CANopen device descriptions, and the container of what it has read.
 *
 * Make one with create(), load a file, read the profiles and the object dictionary, delete it:
 *
 * @code
 * const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
 * QString errorText;
 * if (!reader->load(fileName, errorText)) {
 *     qWarning("%s", qUtf8Printable(errorText));
 * }
 * @endcode
 *
 * A reader belongs to one thread at a time; different readers may work on different threads at once.
 */
class MVXISO15745XML_EXPORT ICIso15745
{
public:
    /** Ends the reader and releases everything it has loaded. */
    virtual ~ICIso15745();
    ICIso15745(const ICIso15745&) = delete;
    ICIso15745(ICIso15745&&) = delete;
    ICIso15745& operator=(const ICIso15745&) = delete;
    ICIso15745& operator=(ICIso15745&&) = delete;

    /**
     * Makes a new reader, independent of all others, with default profiles and an empty object dictionary.
     *
     * @return the reader; the caller owns it and ends it with delete. Never null: a failed allocation throws
     *         std::bad_alloc.
     */
    static ICIso15745* create();

    /**
     * Loads a description.
     *
     * Nothing is reset first: fields that the file does not give keep what they held, and objects of an earlier load
     * stay in the dictionary, so that loading the same file twice fails at its first object. Use a new reader for
     * another file. A failed load keeps what was stored before the failure.
     *
     * @param fileName  a file, or a resource path such as ":/mvxIso15745Xml/xml/NLV7315602_v.xdd"
     * @param errorText replaced by one message when the load fails, with the place in the file; without meaning
     *                  otherwise
     * @return true when every profile of the file was read
     */
    virtual bool load(const QString& fileName, QString& errorText) = 0;

    /** Not provided: writes nothing, leaves @p errorText unchanged and returns false. */
    virtual bool save(const QString& fileName, QString& errorText) = 0;

    /**
     * Looks an object up, in logarithmic time.
     *
     * @param index index of the object, such as 0x1018
     * @return a copy of the object with that index, or a default object, whose CCanOpenSubObject::isValid is false,
     *         when there is none
     */
    virtual CCanOpenObject getObj(unsigned int index) = 0;

    /**
     * Stores a copy of an object under its own index.
     *
     * @param object    the object; nothing but its index is tested
     * @param errorText replaced by a message (not translated) when the index is taken, untouched otherwise
     * @return false when there is already an object with that index; the stored one then stays as it was
     */
    virtual bool addObject(const CCanOpenObject& object, QString& errorText) = 0;

    /** The whole object dictionary in ascending order of the index. The copy shares its storage with the dictionary
     * until one of them is changed, so taking it copies no objects. */
    virtual QMap<unsigned int, CCanOpenObject> getObjList() = 0;

    /** The device profile itself, not a copy; the same object at every call, as long as the reader lives. */
    virtual CDeviceProfile& deviceProfile() = 0;

    /** The network profile itself, not a copy; the same object at every call, as long as the reader lives. */
    virtual CNetworkCanOpenProfile& networkProfile() = 0;

protected:
    ICIso15745() = default;
};

#endif
