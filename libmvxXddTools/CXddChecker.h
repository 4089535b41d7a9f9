#ifndef MVXXDDTOOLS_CXDDCHECKER_H
#define MVXXDDTOOLS_CXDDCHECKER_H

#include "CXddFinding.h"
#include "mvxXddTools_export.h"

#include <QByteArray>
#include <QList>

/**
 * Says what is wrong with a CANopen description: what makes some tool misread or refuse it, and what was probably not
 * meant. xddcheck(1) has the rules.
 *
 * The functions keep no state and may run on any thread. They keep the limits for hostile files that the library keeps.
 */
class MVXXDDTOOLS_EXPORT CXddChecker
{
public:
    /** Checks the bytes of a description, in any encoding that Qt knows. Returns what was found in the order of the
     * lines; for a text that is not well-formed or no CANopen description, that alone. */
    static QList<CXddFinding> check(const QByteArray& description);

    /** The rules, in the order of the manual. */
    static QList<CXddCheckRule> rules();
};

#endif
