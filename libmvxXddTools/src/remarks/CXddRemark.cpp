#include "CXddRemark.h"

#include "CCanOpenNames.h"

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
