#include "CXddChange.h"

CXddChange::CXddChange()
{
    mKind = KIND_DIFFERENCE;
}

QString CXddChange::gradeAsStr(ESeverity severity)
{
    switch (severity) {
    case SEVERITY_ERROR:
        return QStringLiteral("breaking");
    case SEVERITY_WARNING:
        return QStringLiteral("compatible");
    case SEVERITY_NOTE:
        break;
    }
    return QStringLiteral("editorial");
}

QStringList CXddChange::concernsAsStr(unsigned int concerns)
{
    static const QStringList words = {
        QStringLiteral("sdo"), QStringLiteral("pdo"), QStringLiteral("configuration"), QStringLiteral("people")};
    QStringList found;
    for (int bit = 0; bit < words.size(); ++bit) {
        if ((concerns & (1U << unsigned(bit))) != 0) {
            found << words[bit];
        }
    }
    return found;
}
