#ifndef XDDDIFF_VERDICT_H
#define XDDDIFF_VERDICT_H

#include <CXddComparison.h>

/** What all changes together mean. */
struct SVerdict
{
    /** Of these changes, of a comparison. */
    SVerdict(const CXddComparison& comparison, const QList<CXddChange>& changes);

    /** "breaking", "compatible", "editorial" or "same", the same in every language. */
    QString word() const;
    /** "breaking: 3 changes break SDO access and PDO receivers; 14 compatible; revision not raised (0x00010003)" */
    QString text() const;

    int breaking = 0;
    int compatible = 0;
    int editorial = 0;
    unsigned int broken = 0; ///< Whom breaking changes concern, of CXddChange::EConcern
    bool isRevisionRaised = false;
    QString revision;
};

#endif
