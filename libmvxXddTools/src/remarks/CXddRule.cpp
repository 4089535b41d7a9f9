#include "CXddRule.h"

#include <QStringList>

CXddRule::CXddRule() = default;

bool CXddRule::isNamed(const QString& id, const QString& pattern)
{
    const QStringList parts = pattern.split(QLatin1Char('*'));
    if (parts.size() == 1) {
        return pattern == id;
    }
    // The parts follow each other; the first begins the ID, the last ends it.
    if (!id.startsWith(parts.first())) {
        return false;
    }
    auto at = parts.first().size();
    for (int i = 1; i < parts.size() - 1; ++i) {
        const auto found = id.indexOf(parts[i], at);
        if (found < 0) {
            return false;
        }
        at = found + parts[i].size();
    }
    return id.size() - at >= parts.last().size() && id.endsWith(parts.last());
}
