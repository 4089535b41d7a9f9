#ifndef MVXXDDTOOLS_SUPPRESSIONS_H
#define MVXXDDTOOLS_SUPPRESSIONS_H

#include <QString>
#include <QStringView>

#include <vector>

/** A rule whose findings in the next line are not to be reported: a comment with "xddcheck-disable-next-line RULE". */
struct SSuppression
{
    int line = 0;   ///< Of the comment
    int hidden = 0; ///< The line that it is about: the first one behind the comment
    QString rule;   ///< May have "*" for any characters
};

/** Where in a comment its suppressions begin; negative where it has none. */
qsizetype suppressionsIn(QStringView comment);

/** Adds those that begin a text: a suppression of each rule up to its end. */
void addSuppressions(QStringView text, int line, int hidden, std::vector<SSuppression>& suppressions);

#endif
