#include "text/Suppressions.h"

#include <QRegularExpression>
#include <QStringList>

namespace
{
const QString MARK = QStringLiteral("xddcheck-disable-next-line");
} // namespace

qsizetype suppressionsIn(QStringView comment)
{
    return comment.indexOf(MARK);
}

void addSuppressions(QStringView text, int line, int hidden, std::vector<SSuppression>& suppressions)
{
    static const QRegularExpression separators(QStringLiteral("[\\s,]+"));
    const QString rules = text.mid(MARK.size()).toString();
    for (const QString& rule : rules.split(separators, Qt::SkipEmptyParts)) {
        suppressions.push_back({line, hidden, rule});
    }
}
