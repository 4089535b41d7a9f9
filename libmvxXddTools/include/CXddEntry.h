#ifndef MVXXDDTOOLS_CXDDENTRY_H
#define MVXXDDTOOLS_CXDDENTRY_H

#include "mvxXddTools_export.h"

#include <CCanOpenObject.h>

#include <QString>

#include <optional>

/** A value or limit of an entry as the description writes it, and where it comes from. */
class MVXXDDTOOLS_EXPORT CXddValue
{
public:
    /** What states something of an entry. */
    enum EOrigin : int
    {
        ORIGIN_NONE = 0,      ///< Nothing does
        ORIGIN_ENTRY = 1,     ///< The entry itself
        ORIGIN_PARAMETER = 2, ///< The parameter that its "uniqueIDRef" refers to
        ORIGIN_ARRAY = 3      ///< The array whose element it is
    };

    /** A value that is not stated. */
    CXddValue();
    /** A value that something states. */
    CXddValue(const QString& text, EOrigin origin);

    /** True for a value that is stated and not empty: an empty one gives nothing. */
    bool isGiven() const { return !mText.isEmpty(); }

    QString mText;                 ///< As it is written, "$NODEID+0x180"
    EOrigin mOrigin = ORIGIN_NONE; ///< What states it
};

/**
 * An object or sub-object of the object dictionary with what holds for it: what it states itself, else what its
 * parameter states. An element of an array has the data type of the array where it states none.
 */
class MVXXDDTOOLS_EXPORT CXddEntry
{
public:
    /** An entry that is not there. */
    CXddEntry();

    /** True for an entry that a description has. */
    bool isThere() const { return mLine != 0 || mIndex != 0; }
    /** "0x1018" for an object, "0x2001:0A" for a sub-object. */
    QString address() const;
    /** True for what has a value: a sub-object, or an object without sub-objects. */
    bool isVariable() const { return mSubIndex || mSubObjects == 0; }
    /** Its name behind that of its object, "Identity: Vendor-ID"; one of them where they are the same. */
    QString fullName() const;
    /** What kind of entry it is: the data type of a variable, "UNSIGNED32" or short "U32", else the object code. */
    QString typeText(bool isShort = false) const;
    /** "ro", "wo", "rw" or "const"; nothing where no access is known. */
    QString accessText() const;
    /** "no", "default", "optional", "TPDO" or "RPDO"; nothing where none is known. */
    QString mappingText() const;
    /** The value in force: the actual value where one is given, else the default value. */
    const CXddValue& value() const { return mActualValue.isGiven() ? mActualValue : mDefaultValue; }
    /** "0..100"; nothing where the description limits none. */
    QString rangeText() const;

    unsigned int mIndex = 0;                ///< Index of the object
    std::optional<unsigned int> mSubIndex;  ///< Sub-index of a sub-object
    int mLine = 0;                          ///< Line of the file, from 1, in which it begins
    QString mName;                          ///< "name"
    QString mObjectName;                    ///< Name of the object that it belongs to; an object's own
    unsigned int mObjectCode = 0;           ///< "objectType": 7 for a variable; 0 where it is not readable
    int mSubObjects = 0;                    ///< How many sub-objects an object has
    std::optional<unsigned int> mSubNumber; ///< "subNumber": how many it states

    unsigned int mDataType = 0;                                  ///< Index of the data type; 0 where none is known
    CXddValue::EOrigin mDataTypeOrigin = CXddValue::ORIGIN_NONE; ///< What states it
    /** "accessType", or the "access" of its parameter; OBJ_ACCESS_INVALID where none is known. */
    CCanOpenSubObject::EAccessType mAccessType = CCanOpenSubObject::OBJ_ACCESS_INVALID;
    CXddValue::EOrigin mAccessOrigin = CXddValue::ORIGIN_NONE; ///< What states it
    /** "PDOmapping"; OBJ_MAP_INVALID where none is known. */
    CCanOpenSubObject::EPdoMapping mPdoMapping = CCanOpenSubObject::OBJ_MAP_INVALID;

    CXddValue mDefaultValue; ///< "defaultValue"
    CXddValue mActualValue;  ///< "actualValue": what is configured (XDC, DCF)
    CXddValue mLowLimit;     ///< "lowLimit", or the lower end of the only range of its parameter
    CXddValue mHighLimit;    ///< "highLimit" likewise
    /** Lowest value that the limits allow, read with the data type: a raw value in decimal. Empty where they limit none
     * or contradict each other; the end of the type where only the other one is stated. */
    QString mMinimum;
    QString mMaximum; ///< Highest value likewise

    QString mDenotation;        ///< "denotation" (XDC, DCF)
    unsigned int mObjFlags = 0; ///< "objFlags"; 0 where none is stated
    QString mUniqueIdRef;       ///< "uniqueIDRef": ID of its parameter
};

#endif
