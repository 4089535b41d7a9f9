#include "remarks/CRemarks.h"

#include "CCanOpenNames.h"

#include <algorithm>
#include <cstdint>

namespace
{
// Longest text of a file that a message repeats, in characters.
constexpr int MAX_QUOTED_LENGTH = 200;
} // namespace

QString SPlace::entry() const
{
    if (!isEntry) {
        return QString();
    }
    const QString object = index ? CCanOpenNames::entry(*index) : QStringLiteral("?");
    return !isSubObject        ? object
           : index && subIndex ? CCanOpenNames::entry(*index, subIndex)
                               : object + QLatin1String(":?");
}

void CRemarks::setCause(const CXddRemark& cause)
{
    mCause = cause;
}

CXddSentence CRemarks::filled(const SWords& words, Arguments arguments)
{
    return CXddSentence(SSentence{words, arguments});
}

void CRemarks::add(const SPlace& place, const SWords& words, Arguments arguments)
{
    mRemarks << mCause;
    CXddRemark& remark = mRemarks.last();
    remark.mLine = place.line;
    remark.mColumn = place.column;
    remark.mIsEntry = place.isEntry;
    remark.mIsSubObject = place.isSubObject;
    remark.mIndex = place.index;
    remark.mSubIndex = place.subIndex;
    remark.mSentence = filled(words, arguments);
}

void CRemarks::add(const CXddRemark& remark)
{
    mRemarks << remark;
}

void CRemarks::taken(const SPlace& place, QLatin1String rule, const SWords& words, Arguments arguments)
{
    add(CXddRemark::KIND_CHANGE, place, rule, words, arguments);
}

void CRemarks::left(const SPlace& place, QLatin1String rule, const SWords& words, Arguments arguments)
{
    add(CXddRemark::KIND_LEFT, place, rule, words, arguments);
}

void CRemarks::found(const SPlace& place, QLatin1String rule, const SWords& words, Arguments arguments)
{
    add(CXddRemark::KIND_FINDING, place, rule, words, arguments);
}

void CRemarks::lost(const SPlace& place, QLatin1String rule, const SWords& words, Arguments arguments)
{
    add(CXddRemark::KIND_LOSS, place, rule, words, arguments);
}

void CRemarks::add(
    CXddRemark::EKind kind, const SPlace& place, QLatin1String rule, const SWords& words, Arguments arguments)
{
    CXddRemark cause;
    cause.mKind = kind;
    cause.mSeverity = CXddRemark::SEVERITY_WARNING;
    cause.mRule = rule;
    setCause(cause);
    add(place, words, arguments);
}

QList<CXddRemark> CRemarks::inOrder() const
{
    QList<CXddRemark> remarks = mRemarks;
    std::stable_sort(remarks.begin(), remarks.end(), [](const CXddRemark& left, const CXddRemark& right) {
        return left.mLine < right.mLine;
    });
    const auto isSame = [](const CXddRemark& left, const CXddRemark& right) {
        return left.mLine == right.mLine && left.mColumn == right.mColumn && left.mRule == right.mRule
               && left.mIndex == right.mIndex && left.mSubIndex == right.mSubIndex && left.mSentence == right.mSentence;
    };
    remarks.erase(std::unique(remarks.begin(), remarks.end(), isSame), remarks.end());
    return remarks;
}

QString CRemarks::cut(const QString& text)
{
    if (text.size() <= MAX_QUOTED_LENGTH) {
        return text;
    }
    const bool isSplit = text.at(MAX_QUOTED_LENGTH - 1).isHighSurrogate();
    return text.left(isSplit ? MAX_QUOTED_LENGTH - 1 : MAX_QUOTED_LENGTH) + QLatin1String("...");
}
