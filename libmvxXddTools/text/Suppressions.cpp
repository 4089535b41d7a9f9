#include "text/Suppressions.h"

#include <QRegularExpression>

namespace
{
const QString MARK = QStringLiteral("xddcheck-disable-next-line");

// Counts the line ends of a text from one place to the next.
class CLineCounter
{
public:
    explicit CLineCounter(const QString& text)
        : mText(text)
    {}

    // The line of a place, which is not in front of the last one.
    int at(qsizetype place)
    {
        for (; mPlace < place; ++mPlace) {
            mLine += mText.at(int(mPlace)) == QLatin1Char('\n') ? 1 : 0;
        }
        return mLine;
    }

private:
    const QString& mText;
    qsizetype mPlace = 0;
    int mLine = 1;
};

// Each of the rules that stand behind the mark, up to the end of the comment.
void addRules(const QString& rules, int line, int hidden, std::vector<SSuppression>& suppressions)
{
    static const QRegularExpression separators(QStringLiteral("[\\s,]+"));
    for (const QString& rule : rules.split(separators, Qt::SkipEmptyParts)) {
        suppressions.push_back({line, hidden, rule});
    }
}
} // namespace

std::vector<SSuppression> suppressionsInXml(const QString& text)
{
    const QString opening = QStringLiteral("<!--");
    std::vector<SSuppression> suppressions;
    CLineCounter lines(text);
    auto begin = text.contains(MARK) ? text.indexOf(opening) : -1;
    while (begin >= 0) {
        auto end = text.indexOf(QLatin1String("-->"), begin + opening.size());
        end = end < 0 ? text.size() : end;
        const QString comment = text.mid(begin, end - begin);
        const auto mark = comment.indexOf(MARK);
        if (mark >= 0) {
            const int line = lines.at(begin + mark);
            addRules(comment.mid(mark + MARK.size()), line, lines.at(end) + 1, suppressions);
        }
        begin = text.indexOf(opening, end);
    }
    return suppressions;
}

std::vector<SSuppression> suppressionsInIni(const QString& text)
{
    std::vector<SSuppression> suppressions;
    CLineCounter lines(text);
    for (auto mark = text.indexOf(MARK); mark >= 0; mark = text.indexOf(MARK, mark + 1)) {
        const auto begin = text.lastIndexOf(QLatin1Char('\n'), mark) + 1;
        auto end = text.indexOf(QLatin1Char('\n'), mark);
        end = end < 0 ? text.size() : end;
        const QString before = text.mid(begin, mark - begin).trimmed();
        if (before.startsWith(QLatin1Char(';')) || before.startsWith(QLatin1Char('#'))) {
            const auto rules = mark + MARK.size();
            const int line = lines.at(mark);
            addRules(text.mid(rules, end - rules), line, line + 1, suppressions);
        }
    }
    return suppressions;
}
