#include "html/CComparisonWriter.h"

#include "canopen/Pdos.h"
#include "html/CPageWriter.h"
#include "html/CPdoCards.h"

#include <algorithm>

namespace
{
// Of a kind of changes as many are listed.
constexpr int MAX_ROWS = 2000;

QString rowOf(const CXddChange& change)
{
    return change.mIndex ? rowId(*change.mIndex, change.mSubIndex) : QString();
}
} // namespace

CComparisonWriter::CComparisonWriter(const SComparisonPage& page)
    : mPage(page)
{
    for (const CXddChange& change : page.changes) {
        mRows << rowOf(change);
    }
    mPage.old.rows = &mRows;
    mPage.now.rows = &mRows;
    mPage.old.idSuffix = QStringLiteral("-old");
}

QByteArray CComparisonWriter::bytes()
{
    const QString title = tr("%1: changes").arg(mPage.now.title());
    CPageWriter::begin(mHtml, title, mPage.now.language, QByteArray());
    mHtml.open("header").line().element("h1", title).line();
    mHtml
        .element(
            "p", cutForPage(mPage.old.fileName) + QStringLiteral(" → ") + cutForPage(mPage.now.fileName),
            {{"class", QStringLiteral("soft")}})
        .line();
    mHtml.open("p", {{"id", QStringLiteral("verdict")}}).element("b", mPage.verdict).close().line();
    mHtml.close().line().open("main").line();
    writeChanges();
    writePdos();
    mHtml.close().line().close().close().line();
    return mHtml.bytes();
}

void CComparisonWriter::writeChanges()
{
    const auto select = [this](CXddRemark::ESeverity severity, unsigned int concern) {
        QList<const CXddChange*> selected;
        for (const CXddChange& change : mPage.changes) {
            if (change.mSeverity == severity && (change.mConcerns & concern) != 0) {
                selected << &change;
            }
        }
        return selected;
    };
    for (int concern = 0; concern < mPage.concerns.size(); ++concern) {
        writeSection(
            tr("Breaks %1").arg(mPage.concerns[concern]), select(CXddRemark::SEVERITY_ERROR, 1U << unsigned(concern)));
    }
    writeSection(tr("Compatible"), select(CXddRemark::SEVERITY_WARNING, ~0U));
    writeSection(tr("Editorial"), select(CXddRemark::SEVERITY_NOTE, ~0U));
}

void CComparisonWriter::writeSection(const QString& title, const QList<const CXddChange*>& changes)
{
    if (changes.isEmpty()) {
        return;
    }
    mHtml.open("section").line().element("h2", title).line();
    mHtml.open("div", {{"class", QStringLiteral("wide")}}).open("table", {{"class", QStringLiteral("lg")}});
    mHtml.open("thead").open("tr");
    for (const QString& head : {tr("Entry"), tr("Change"), tr("Rule"), tr("Line")}) {
        mHtml.element("th", head, {{"scope", QStringLiteral("col")}});
    }
    mHtml.close().close().line().open("tbody").line();
    const int rows = std::min(int(changes.size()), MAX_ROWS);
    for (int row = 0; row < rows; ++row) {
        writeRow(*changes[row]);
    }
    mHtml.close().close().close().line();
    if (rows < changes.size()) {
        mHtml.element("p", tr("and %n more", nullptr, int(changes.size()) - rows)).line();
    }
    mHtml.close().line();
}

void CComparisonWriter::writeRow(const CXddChange& change)
{
    const QString id = rowOf(change);
    const bool isFirst = !id.isEmpty() && !mWritten.contains(id);
    mWritten << id;
    mHtml.open("tr", {{"id", isFirst ? id : QString()}}).open("td").element("code", change.entry()).close();
    mHtml.element("td", change.mSentence.text()).open("td");
    mHtml.element("code", change.mRule, {{"class", CPageWriter::classOf(change.mSeverity)}}).close();
    const QString line = change.mLine == 0 ? QString() : QString::number(change.mLine);
    mHtml.element("td", change.mIsOld ? tr("%1 (old)").arg(line) : line).close().line();
}

// Each PDO in which something changed, before and after.
void CComparisonWriter::writePdos()
{
    QStringList names;
    for (const CXddChange& change : mPage.changes) {
        const unsigned int index = change.mIndex.value_or(0);
        const bool isTransmit = communicationDirection(index) == EPdoDirection::Transmit
                                || mappingDirection(index) == EPdoDirection::Transmit;
        if (change.mRule.startsWith(QLatin1String("pdo-"))
            && (communicationDirection(index) || mappingDirection(index))) {
            names << QLatin1String(isTransmit ? "TPDO" : "RPDO") + QString::number(index % PDO_COUNT + 1);
        }
    }
    names.removeDuplicates();
    if (names.isEmpty()) {
        return;
    }
    mHtml.open("section", {{"id", QStringLiteral("pdos")}}).line();
    mHtml.element("h2", tr("Process data before and after")).line();
    for (const QString& name : qAsConst(names)) {
        mHtml.open("div", {{"class", QStringLiteral("two")}}).line();
        writeCard(mPage.old, mPage.old.pdos, name, tr("Before"));
        writeCard(mPage.now, mPage.now.pdos, name, tr("After"));
        mHtml.close().line();
    }
    mHtml.close().line();
}

void CComparisonWriter::writeCard(
    const SPage& page, const QList<CXddPdo>& pdos, const QString& name, const QString& title)
{
    for (const CXddPdo& pdo : pdos) {
        if (pdo.name() == name) {
            mHtml.open("div").element("h3", title).line();
            CPdoCards(mHtml, page).writeCard(pdo);
            mHtml.close().line();
        }
    }
}
