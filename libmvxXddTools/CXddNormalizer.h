#ifndef MVXXDDTOOLS_CXDDNORMALIZER_H
#define MVXXDDTOOLS_CXDDNORMALIZER_H

#include "CXddChange.h"
#include "CXddRule.h"
#include "mvxXddTools_export.h"

#include <QByteArray>
#include <QList>
#include <QString>

class ICIso15745;

/**
 * Opens the CANopen descriptions that exist.
 *
 * Most descriptions rely on defaults, write hexadecimal numbers without a prefix, or keep data types in parameters.
 * ICIso15745::load refuses these, or reads something else than they mean. The functions here bring a description into
 * the form that the library reads without changing what it says: the text stays as it is, character by character, but
 * for insertions and replaced values, each of which is reported. xddnormalize(1) has the rules.
 *
 * The functions keep no state and may run on any thread. They keep the limits for hostile files that the library keeps.
 */
class MVXXDDTOOLS_EXPORT CXddNormalizer
{
public:
    /**
     * Normalises the bytes of a description, in any encoding that Qt knows.
     *
     * @param description the whole file
     * @param normalized  replaced by the whole file in the form that the library reads, in the same encoding; equal to
     *                    @p description when there was nothing to do
     * @param changes     replaced by what was done and what was left, in the order of the text
     * @param errorText   replaced by one message when the result is false; untouched otherwise
     * @return false when the text is not well-formed XML or no CANopen description; nothing but @p errorText is then
     *         changed
     */
    static bool normalize(
        const QByteArray& description, QByteArray& normalized, QList<CXddChange>& changes, QString& errorText);

    /**
     * Loads a description as ICIso15745::load does, normalised. A file that needs no change is loaded as it is; of any
     * other a normalised copy is loaded from a temporary file.
     *
     * @param reader    the reader to load into
     * @param fileName  a file, or a resource path
     * @param changes   replaced by what was done and what was left, in the order of the text; empty when the file was
     *                  loaded as it is
     * @param errorText replaced by one message when the load fails, with the lines of the file @p fileName; without
     *                  meaning otherwise
     * @return true when every profile of the file was read
     */
    static bool load(ICIso15745& reader, const QString& fileName, QList<CXddChange>& changes, QString& errorText);

    /** The rules by which a description is normalised, in the order in which they are applied. */
    static QList<CXddRule> rules();
};

#endif
