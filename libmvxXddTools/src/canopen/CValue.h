#ifndef MVXXDDTOOLS_CVALUE_H
#define MVXXDDTOOLS_CVALUE_H

#include <QLatin1String>
#include <QString>

#include <optional>

/** A whole number of 128 bits in two's complement: no machine type that exists everywhere holds all values of the
 * 64-bit types of CiA 301 and their sums with a node-ID. */
class CInteger
{
public:
    CInteger() = default;
    CInteger(bool isNegative, quint64 magnitude);

    bool isNegative() const { return mHigh < 0; }
    quint64 magnitude() const { return isNegative() ? ~mLow + 1 : mLow; }
    /** Its lower 64 bits, a negative one as two's complement. */
    quint64 bits() const { return mLow; }

    /** The sum with a small number. */
    CInteger plus(unsigned int number) const;

    /** The number as 32 bits without a sign; nothing for any other. */
    std::optional<unsigned int> unsigned32() const;

    /** As a signed decimal number. */
    QString text() const;

    bool operator<(const CInteger& other) const;
    bool operator==(const CInteger& other) const { return mHigh == other.mHigh && mLow == other.mLow; }
    bool operator!=(const CInteger& other) const { return !(*this == other); }

private:
    qint64 mHigh = 0;
    quint64 mLow = 0;
};

/** The node-IDs of a CANopen network. */
constexpr unsigned int MIN_NODE_ID = 1;
constexpr unsigned int MAX_NODE_ID = 127;

/** What stands for the node-ID in a value. */
constexpr QLatin1String NODE_ID("$NODEID", 7);

/**
 * The value of a text of a description, as the data type of its entry makes it: a default or actual value, or a limit.
 *
 * A whole number may depend on the node-ID of the device ("$NODEID+0x180") and then stands for one number for each.
 */
class CValue
{
public:
    /** Reads a text that is not empty; nothing when it is no value of the type. A number that is out of the range of
     * its type is a value. */
    static std::optional<CValue> read(const QString& text, unsigned int dataType);

    /** True for a whole number, a boolean included. */
    bool isInteger() const { return mKind == EKind::Integer; }
    /** True when the value depends on the node-ID. */
    bool usesNodeId() const { return mUsesNodeId; }
    /** True for "N+$NODEID", the other way round than the standard writes it. */
    bool isNodeIdLast() const { return mIsNodeIdLast; }

    /** The whole number with a node-ID of 0; the number itself for one that does not depend on it. */
    CInteger base() const { return mInteger; }
    /** The whole number for a node-ID. */
    CInteger at(unsigned int nodeId) const { return mUsesNodeId ? mInteger.plus(nodeId) : mInteger; }
    /** The whole number as 64 bits, a negative one as two's complement. */
    quint64 bits() const { return mInteger.bits(); }

    /** The real number. */
    double real() const { return mReal; }

    /** The ends of the range of an integer type. */
    static CInteger lowest(unsigned int dataType);
    static CInteger highest(unsigned int dataType);

    /** True when the value lies in the range of its type for every node-ID. */
    bool fits(unsigned int dataType) const;

    /** True when the number is below another one of the same type, for some node-ID. What is no number has no order. */
    bool isBelow(const CValue& other) const;
    /** True for two texts of the same value. */
    bool operator==(const CValue& other) const;

    /** The whole number, as long as it does not depend on the node-ID. */
    std::optional<CInteger> plain() const;

private:
    enum class EKind
    {
        Integer,
        Real,
        Text
    };

    EKind mKind = EKind::Text;
    CInteger mInteger;
    bool mUsesNodeId = false;
    bool mIsNodeIdLast = false;
    double mReal = 0;
    bool mIsPattern = false; // A real number written as its bits, which is not looked at
    QString mText;
};

/** A whole number in the writings of a description without a data type, such as a vendor ID: decimal, or hexadecimal
 * with "0x". */
std::optional<CInteger> readInteger(const QString& text);

#endif
