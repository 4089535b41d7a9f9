#include "CXddFinding.h"

CXddFinding::CXddFinding() = default;

QString CXddFinding::severityAsStr(ESeverity severity)
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

CXddCheckRule::CXddCheckRule() = default;
