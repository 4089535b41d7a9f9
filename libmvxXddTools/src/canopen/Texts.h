#ifndef MVXXDDTOOLS_TEXTS_H
#define MVXXDDTOOLS_TEXTS_H

#include "CXddEntryTexts.h"
#include "canopen/CDescription.h"

#include <QHash>

/** @file
 * Labels, descriptions, units and allowed values: what a description says for people.
 */

/** Labels and descriptions in a list of texts, references replaced by what they name. */
QList<CXddLabel> textsIn(const CXmlElement& list, const CDescription& description);

/** The texts that are not empty, one behind the other. */
QString joinedTexts(QStringList texts, QLatin1String separator);

/** The number of a multiplier or offset; @p otherwise for an empty text, nothing for one that is no number. */
std::optional<double> scaleOf(const QString& text, double otherwise);

/** The texts of the entries of a description. Those of a parameter are read once, whatever refers to it. */
class CTexts
{
public:
    /** @p description has to outlive this object. */
    explicit CTexts(const CDescription& description);

    /** The texts of an entry: its own, then those of its parameter. */
    CXddEntryTexts of(const SEntry& entry);

private:
    CXddEntryTexts ofParameter(const CXmlElement& parameter) const;

    const CDescription& mDescription;
    QHash<int, CXddEntryTexts> mOfParameters; // By where they begin
};

#endif
