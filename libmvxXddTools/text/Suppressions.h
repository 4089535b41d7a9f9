#ifndef MVXXDDTOOLS_SUPPRESSIONS_H
#define MVXXDDTOOLS_SUPPRESSIONS_H

#include <QString>

#include <vector>

/** A rule whose findings in the next line are not to be reported: a comment with "xddcheck-disable-next-line RULE". */
struct SSuppression
{
    int line = 0;   ///< Of the comment
    int hidden = 0; ///< The line that it is about: the first one behind the comment
    QString rule;   ///< May have "*" for any characters
};

/** The suppressions in the comments of an XML text. */
std::vector<SSuppression> suppressionsInXml(const QString& text);

/** The suppressions in the comments of an INI text. */
std::vector<SSuppression> suppressionsInIni(const QString& text);

#endif
