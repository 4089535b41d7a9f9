#include "remarks/CRemarks.h"

#include "CCanOpenNames.h"

#include <algorithm>
#include <cstdint>

namespace
{
// Longest text of a file that a message repeats, in characters.
constexpr int MAX_QUOTED_LENGTH = 200;

// The sentence with the arguments for which `fills` holds in the places of their "%1" to "%9".
template <typename Fills> QString replaced(const QString& sentence, CRemarks::Arguments arguments, Fills fills)
{
    using Size = decltype(sentence.size());
    QString text;
    Size begin = 0; // Of what is not copied yet
    for (Size i = sentence.indexOf(QLatin1Char('%')); i >= 0; i = sentence.indexOf(QLatin1Char('%'), i + 1)) {
        const auto number = i + 1 < sentence.size() ? std::size_t(sentence.at(i + 1).unicode() - '1') : SIZE_MAX;
        if (number < arguments.size() && fills(arguments.begin()[number])) {
            text.append(sentence.constData() + begin, i - begin);
            text += arguments.begin()[number].shown;
            begin = i + 2;
        }
    }
    return text.append(sentence.constData() + begin, sentence.size() - begin);
}
} // namespace

QString SPlace::entry() const
{
    if (!isEntry) {
        return QString();
    }
    QString object = index ? CCanOpenNames::entry(*index) : QStringLiteral("?");
    if (!isSubObject) {
        return object;
    }
    return index && subIndex ? CCanOpenNames::entry(*index, subIndex) : object + QLatin1String(":?");
}

SArgument::SArgument(QLatin1String word)
    : shown(word)
    , isWord(true)
{}

SArgument::SArgument(const QString& text)
    : shown(CRemarks::cut(text))
{}

SArgument::SArgument(quint64 number)
    : shown(QString::number(number))
{}

SArgument::SArgument(int number)
    : shown(QString::number(number))
{}

SArgument::SArgument(unsigned int number)
    : shown(QString::number(number))
{}

SArgument SArgument::word(const QString& text)
{
    SArgument argument{QString()};
    argument.shown = text;
    argument.isWord = true;
    return argument;
}

void CRemarks::setCause(const CXddRemark& cause)
{
    mCause = cause;
}

void CRemarks::add(const SPlace& place, const QString& sentence, Arguments arguments)
{
    mRemarks << mCause;
    CXddRemark& remark = mRemarks.last();
    remark.mLine = place.line;
    remark.mColumn = place.column;
    remark.mIndex = place.index;
    remark.mSubIndex = place.subIndex;
    const QString text = filled(sentence, arguments);
    remark.mText = place.isEntry ? QStringLiteral("%1: ").arg(place.entry()) + text : text;
    const QString words = replaced(sentence, arguments, [](const SArgument& argument) { return argument.isWord; });
    remark.mGroup = mCause.mRule + (place.isEntry ? QLatin1String(" entry ") : QLatin1String(" ")) + words;
}

void CRemarks::add(const CXddRemark& remark)
{
    mRemarks << remark;
}

void CRemarks::taken(const SPlace& place, QLatin1String rule, const QString& sentence, Arguments arguments)
{
    add(CXddRemark::KIND_CHANGE, place, rule, sentence, arguments);
}

void CRemarks::left(const SPlace& place, QLatin1String rule, const QString& sentence, Arguments arguments)
{
    add(CXddRemark::KIND_LEFT, place, rule, sentence, arguments);
}

void CRemarks::found(const SPlace& place, QLatin1String rule, const QString& sentence, Arguments arguments)
{
    add(CXddRemark::KIND_FINDING, place, rule, sentence, arguments);
}

void CRemarks::add(
    CXddRemark::EKind kind, const SPlace& place, QLatin1String rule, const QString& sentence, Arguments arguments)
{
    CXddRemark cause;
    cause.mKind = kind;
    cause.mSeverity = CXddRemark::SEVERITY_WARNING;
    cause.mRule = rule;
    setCause(cause);
    add(place, sentence, arguments);
}

QList<CXddRemark> CRemarks::inOrder() const
{
    QList<CXddRemark> remarks = mRemarks;
    std::stable_sort(remarks.begin(), remarks.end(), [](const CXddRemark& left, const CXddRemark& right) {
        return left.mLine < right.mLine;
    });
    const auto isSame = [](const CXddRemark& left, const CXddRemark& right) {
        return left.mLine == right.mLine && left.mColumn == right.mColumn && left.mRule == right.mRule
               && left.mText == right.mText;
    };
    remarks.erase(std::unique(remarks.begin(), remarks.end(), isSame), remarks.end());
    return remarks;
}

QString CRemarks::filled(const QString& sentence, Arguments arguments)
{
    return replaced(sentence, arguments, [](const SArgument&) { return true; });
}

QString CRemarks::cut(const QString& text)
{
    if (text.size() <= MAX_QUOTED_LENGTH) {
        return text;
    }
    const bool isSplit = text.at(MAX_QUOTED_LENGTH - 1).isHighSurrogate();
    return text.left(isSplit ? MAX_QUOTED_LENGTH - 1 : MAX_QUOTED_LENGTH) + QLatin1String("...");
}
