#include "Verdict.h"

#include <QCoreApplication>

namespace
{
// "SDO access, PDO receivers and stored configuration"
QString whoBreaks(unsigned int concerns)
{
    QStringList parts;
    if ((concerns & CXddChange::CONCERN_SDO) != 0) {
        parts << QCoreApplication::translate("xdddiff", "SDO access");
    }
    if ((concerns & CXddChange::CONCERN_PDO) != 0) {
        parts << QCoreApplication::translate("xdddiff", "PDO receivers");
    }
    if ((concerns & CXddChange::CONCERN_CONFIGURATION) != 0) {
        parts << QCoreApplication::translate("xdddiff", "stored configuration");
    }
    if (parts.isEmpty()) {
        parts << QCoreApplication::translate("xdddiff", "what people rely on");
    }
    const QString last = parts.takeLast();
    return parts.isEmpty()
               ? last
               : QCoreApplication::translate("xdddiff", "%1 and %2").arg(parts.join(QLatin1String(", ")), last);
}
} // namespace

SVerdict::SVerdict(const CXddComparison& comparison, const QList<CXddChange>& changes)
    : isRevisionRaised(comparison.mIsRevisionRaised)
    , revision(comparison.mRevision)
{
    for (const CXddChange& change : changes) {
        if (change.mSeverity == CXddRemark::SEVERITY_ERROR) {
            ++breaking;
            broken |= change.mConcerns;
        } else {
            ++(change.mSeverity == CXddRemark::SEVERITY_WARNING ? compatible : editorial);
        }
    }
}

QString SVerdict::word() const
{
    return breaking > 0     ? CXddChange::gradeAsStr(CXddRemark::SEVERITY_ERROR)
           : compatible > 0 ? CXddChange::gradeAsStr(CXddRemark::SEVERITY_WARNING)
           : editorial > 0  ? CXddChange::gradeAsStr(CXddRemark::SEVERITY_NOTE)
                            : QStringLiteral("same");
}

QString SVerdict::text() const
{
    QStringList parts;
    if (breaking > 0) {
        parts << QCoreApplication::translate("xdddiff", "%n change(s) break %1", nullptr, breaking)
                     .arg(whoBreaks(broken));
    }
    if (compatible > 0) {
        parts << QCoreApplication::translate("xdddiff", "%n compatible", nullptr, compatible);
    }
    if (editorial > 0) {
        parts << QCoreApplication::translate("xdddiff", "%n editorial", nullptr, editorial);
    }
    if (breaking > 0) {
        const QString shown = revision.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(revision);
        parts << (isRevisionRaised ? QCoreApplication::translate("xdddiff", "revision raised")
                                   : QCoreApplication::translate("xdddiff", "revision not raised"))
                     + shown;
    }
    return parts.isEmpty() ? word() : word() + QLatin1String(": ") + parts.join(QLatin1String("; "));
}
