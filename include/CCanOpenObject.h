#ifndef MVXISO15745XML_CCANOPENOBJECT_H
#define MVXISO15745XML_CCANOPENOBJECT_H

#include "mvxIso15745Xml_export.h"

#include <QList>
#include <QMap>
#include <QString>

/**
 * A sub-object of the object dictionary: one "CANopenSubObject". It is also the common part of every object.
 *
 * Numbers that identify the entry are integers; limits and values stay the texts of the file, neither converted nor
 * compared with the data type. "index"/"subIndex", "name" and "objectType" are required and fail the load when they
 * are missing or do not convert; every other attribute falls back to the default given at its field.
 */
class MVXISO15745XML_EXPORT CCanOpenSubObject
{
public:
    /** Access right, the attribute "accessType", as seen from the CANopen network. */
    enum EAccessType : int
    {
        OBJ_ACCESS_RO = 0,       ///< "ro", read only
        OBJ_ACCESS_WO = 1,       ///< "wo", write only
        OBJ_ACCESS_RW = 2,       ///< "rw", read and write
        OBJ_ACCESS_CONST = 3,    ///< "const", read only and never changing
        OBJ_ACCESS_INVALID = 255 ///< absent, or any other text
    };

    /** Whether and how the entry may be mapped into a process data object, the attribute "PDOmapping". */
    enum EPdoMapping : int
    {
        OBJ_MAP_NO = 0,       ///< "no", not mappable
        OBJ_MAP_DEFAULT = 1,  ///< "default", mapped by default
        OBJ_MAP_OPTIONAL = 2, ///< "optional", may be mapped
        OBJ_MAP_TPDO = 3,     ///< "TPDO", may be mapped into a transmit PDO only
        OBJ_MAP_RPDO = 4,     ///< "RPDO", may be mapped into a receive PDO only
        OBJ_MAP_INVALID = 255 ///< absent, or any other text
    };

    /** An entry with the defaults given at the fields; isValid() is false. */
    CCanOpenSubObject();

    /** An entry with the given index, name and object code, and the defaults elsewhere. */
    CCanOpenSubObject(unsigned int index, QString const& name, unsigned char objectType);

    /** True when the name is not empty. Tells a stored object from the default one that
     * ICIso15745::getObj returns for an index that is not in the dictionary. */
    bool isValid() const;

    /** The text of an access type; mInvalidStr for OBJ_ACCESS_INVALID and for a value outside the enumeration. */
    static QString accessTypeAsStr(EAccessType accessType);

    /** The access type of a text, compared exactly; OBJ_ACCESS_INVALID for an unknown text. */
    static EAccessType accessTypeFromStr(QString const& text);

    /** The text of a PDO mapping; mInvalidStr for OBJ_MAP_INVALID and for a value outside the enumeration. */
    static QString pdoMappingAsStr(EPdoMapping pdoMapping);

    /** The PDO mapping of a text, compared exactly; OBJ_MAP_INVALID for an unknown text. */
    static EPdoMapping pdoMappingFromStr(QString const& text);

    /** A new map from every EAccessType to its text; equal to mAccessTypeTexts. */
    static QMap<EAccessType, QString> createAccessMap();

    /** A new map from every EPdoMapping to its text; equal to mPdoMappingTexts. */
    static QMap<EPdoMapping, QString> createMappingMap();

    /** "_invalid_", the text of the invalid enumerators. */
    static const QString mInvalidStr;

    /** The text of every EPdoMapping. */
    static const QMap<EPdoMapping, QString> mPdoMappingTexts;

    /** The text of every EAccessType. */
    static const QMap<EAccessType, QString> mAccessTypeTexts;

    /** "subIndex" of a sub-object (CANopen: 0 to 0xFF) or "index" of an object (CANopen: 0 to 0xFFFF), written in
     * hexadecimal. Stored as read, without a range test. */
    unsigned int mIndex = 0;
    QString mName;                 ///< "name", may be empty
    unsigned char mObjectType = 0; ///< "objectType", the CiA 301 object code: 7 VAR, 8 ARRAY, 9 RECORD and so on
    /** "dataType", index of the data type in the object dictionary (CiA 301: 5 UNSIGNED8, 7 UNSIGNED32 and so on).
     * Read by the prefix of its digits: "0007" is 7, "0010" is octal and 8, "0009" does not convert and is 0. */
    unsigned char mDataType = 0;
    QString mLowLimit;                            ///< "lowLimit", lowest allowed value
    QString mHighLimit;                           ///< "highLimit", highest allowed value
    EAccessType mAccessType = OBJ_ACCESS_INVALID; ///< "accessType"
    QString mDefaultValue;                        ///< "defaultValue", value after reset to defaults
    QString mActualValue;                         ///< "actualValue", value configured for one device
    QString mDenotation;                          ///< "denotation", name of the entry in one device's application
    EPdoMapping mPdoMapping = OBJ_MAP_INVALID;    ///< "PDOmapping"
    unsigned int mObjFlags = 0;                   ///< "objFlags", bit field written in hexadecimal
    /** "uniqueIDRef", unique ID of the "parameter" in the device profile that describes the entry. */
    QString mUniqueIdRef;
    /** "subNumber" of an object, the number of sub-objects that the file announces; may differ from the number found.
     * Always 0 in a sub-object. */
    unsigned char mSubNumber = 0;
};

/** An object of the object dictionary: one "CANopenObject" with its sub-objects. */
class MVXISO15745XML_EXPORT CCanOpenObject : public CCanOpenSubObject
{
public:
    /** An object with the defaults of CCanOpenSubObject and no sub-objects. */
    CCanOpenObject();

    /** An object with the given index, name and object code, the defaults elsewhere and no sub-objects. */
    CCanOpenObject(unsigned int index, QString const& name, unsigned char objectType);

    /** Every "CANopenSubObject" in document order; sub-indexes are not tested and may repeat. */
    QList<CCanOpenSubObject> mSubObjects;
};

#endif
