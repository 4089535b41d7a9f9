#ifndef MVXXDDTOOLS_WRITINGS_H
#define MVXXDDTOOLS_WRITINGS_H

#include <CNetworkCanOpenProfile.h>

#include <QDate>
#include <QLatin1String>
#include <QString>
#include <QStringList>

#include <optional>

/** @file
 * What texts of a description mean, in the format's writing and in those that exist beside it.
 */

/** The bases in which the format writes numbers. */
constexpr int DECIMAL = 10;
constexpr int HEXADECIMAL = 16;
/** The base in which the library reads most of them. */
constexpr int BY_PREFIX = 0;

/** How an entry can be accessed. */
enum class EAccess
{
    NotStated,
    ReadOnly,
    WriteOnly,
    ReadWrite,
    Const,
    None, ///< "noAccess" of a parameter
    Unknown
};

/** The access that the "accessType" of an object or sub-object means; capitals and spaces do not matter. */
EAccess accessOfEntry(const QString& text);
/** The access that the "access" of a parameter means, likewise. */
EAccess accessOfParameter(const QString& text);
/** All words of the format for the "access" of a parameter. */
QStringList accessWordsOfParameters();
/** The "accessType" of an access; nothing for one that has none. */
QLatin1String accessText(EAccess access);

bool isReadable(EAccess access); ///< ro, rw or const
bool isWritable(EAccess access); ///< wo or rw

/** Whether, and in which PDOs, an entry can be mapped. */
enum class EMapping
{
    NotStated,
    No,
    Default,
    Optional,
    Transmit,
    Receive,
    Unknown
};

/** The mapping that a "PDOmapping" means; capitals and spaces do not matter. */
EMapping mappingOf(const QString& text);
/** The "PDOmapping" of a mapping; nothing for one that has none. */
QLatin1String mappingText(EMapping mapping);

/** True for an entry that can be mapped. */
bool isMappable(EMapping mapping);

/** The bit rate that a text means, such as "250 Kbps", "250000" or "1 Mbit/s"; BAUD_INVALID for another text. */
CNetworkCanOpenProfile::EBaudrate bitRateOf(const QString& text);

/** The date of a text in a common writing; nothing when it is none or ambiguous. */
std::optional<QDate> dateOf(const QString& text);

/** The flag that a text means: true, false, 1 or 0; nothing for another text. */
std::optional<bool> flagOf(const QString& text);

#endif
