#ifndef MVXXDDTOOLS_CXDDCHECKER_H
#define MVXXDDTOOLS_CXDDCHECKER_H

#include "CXddDocument.h"
#include "CXddRule.h"
#include "mvxXddTools_export.h"

#include <QList>
#include <QStringList>

/**
 * Says what is wrong with a CANopen description: what makes some tool misread or refuse it, and what was probably not
 * meant. xddcheck(1) has the rules. The functions keep no state and may run on any thread.
 */
class MVXXDDTOOLS_EXPORT CXddChecker
{
public:
    /** What is wrong with a description, in the order of the lines. Of a document that is not open that is why. Rules
     * that are disabled, by their IDs, are not applied; what they would have said in place of others is said by those.
     */
    static QList<CXddRemark> check(const CXddDocument& document, const QStringList& disabledRules = {});

    /** The rules, in the order of the manual. */
    static QList<CXddRule> rules();
};

#endif
