#include "CXddRemark.h"

#include "CCanOpenNames.h"
#include "remarks/CRemarks.h"

CXddRemark::CXddRemark() = default;

QString CXddRemark::severityAsStr(ESeverity severity)
{
    switch (severity) {
    case SEVERITY_ERROR:
        return QStringLiteral("error");
    case SEVERITY_WARNING:
        return QStringLiteral("warning");
    case SEVERITY_NOTE:
        break;
    }
    return QStringLiteral("note");
}

QString CXddRemark::entry() const
{
    return mIndex ? CCanOpenNames::entry(*mIndex, mSubIndex) : QString();
}

QString CXddRemark::text() const
{
    return address() + mSentence.text();
}

QString CXddRemark::comparable() const
{
    return address() + mSentence.comparable();
}

QString CXddRemark::group() const
{
    return mRule + (mIsEntry ? QLatin1String(" entry ") : QLatin1String(" ")) + mSentence.common();
}

QString CXddRemark::address() const
{
    const SPlace place = {mLine, mColumn, mIsEntry, mIsSubObject, mIndex, mSubIndex};
    return mIsEntry ? place.entry() + QLatin1String(": ") : QString();
}
