#include "CXddPage.h"

#include "CXddChecker.h"
#include "face/SOpened.h"
#include "html/CComparisonWriter.h"
#include "html/CPageWriter.h"

#include <QFileInfo>
#include <QUrl>

#include <algorithm>

CXddPage::CXddPage() = default;

CXddPage CXddPage::write(const CXddDocument& document, const SOptions& options)
{
    CXddPage result;
    result.mSource = QFileInfo(document.name()).fileName();
    result.mFailure = document.failure();
    const SOpened* const opened = openedOf(document);
    if (opened == nullptr) {
        return result;
    }
    SPage page{opened->description, result.mSource,    document.bytes(), CXddLabel::languageTag(options.mLanguage),
               document.device(),   document.entries()};
    page.hasFindings = options.mHasFindings;
    page.facts = document.facts(page.language);
    page.fileFacts = document.fileFacts();
    page.pdos = document.pdos(options.mNodeId);
    page.findings = CXddChecker::check(document);
    result.mText = CPageWriter(page).bytes();
    result.mProduct = page.title();
    result.mVendor = page.device.mDeviceProfile.identity(QStringLiteral("vendorName"));
    result.mEntries = int(page.entries.size());
    result.mPdos =
        int(std::count_if(page.pdos.begin(), page.pdos.end(), [](const CXddPdo& pdo) { return pdo.isInUse(); }));
    result.mErrors = page.count(CXddRemark::SEVERITY_ERROR);
    result.mWarnings = page.count(CXddRemark::SEVERITY_WARNING);
    return result;
}

QByteArray CXddPage::compared(
    const CXddDocument& old, const CXddDocument& now, const CXddComparison& comparison, const QString& language)
{
    const SOpened* const before = openedOf(old);
    const SOpened* const after = openedOf(now);
    if (before == nullptr || after == nullptr) {
        return {};
    }
    const QString tag = CXddLabel::languageTag(language);
    const auto pageOf = [&tag](const SOpened& opened, const CXddDocument& document) {
        SPage page{opened.description, QFileInfo(document.name()).fileName(), {}, tag, document.device(), {}};
        page.pdos = document.pdos();
        return page;
    };
    SPage oldPage = pageOf(*before, old);
    SPage newPage = pageOf(*after, now);
    QStringList concerns;
    for (const unsigned int concern :
         {CXddChange::CONCERN_SDO, CXddChange::CONCERN_PDO, CXddChange::CONCERN_CONFIGURATION,
          CXddChange::CONCERN_PEOPLE}) {
        concerns << CXddComparison::concernsText(concern);
    }
    const SComparisonPage page = {oldPage, newPage, comparison.mChanges, comparison.verdictText(), concerns};
    return CComparisonWriter(page).bytes();
}

QByteArray CXddPage::index(const QList<CXddPage>& pages, const QString& language)
{
    CHtml html;
    CPageWriter::begin(html, CPageWriter::tr("CANopen devices"), CXddLabel::languageTag(language), QByteArray());
    html.open("main").line().element("h1", CPageWriter::tr("CANopen devices")).line();
    html.open("div", {{"class", QStringLiteral("wide")}}).open("table").open("thead").open("tr");
    for (const QString& head :
         {CPageWriter::tr("Product"), CPageWriter::tr("Vendor"), CPageWriter::tr("File"), CPageWriter::tr("Entries"),
          CPageWriter::tr("PDOs in use"), CPageWriter::tr("Errors"), CPageWriter::tr("Warnings")}) {
        html.element("th", head, {{"scope", QStringLiteral("col")}});
    }
    html.close().close().line().open("tbody").line();
    for (const CXddPage& page : pages) {
        // In front of a colon there would be a scheme.
        const QString address = QLatin1String("./") + QString::fromLatin1(QUrl::toPercentEncoding(page.mFileName));
        html.open("tr").open("td").element("a", cutForPage(page.mProduct), {{"href", address}}).close();
        html.element("td", cutForPage(page.mVendor)).element("td", cutForPage(page.mSource));
        for (const int number : {page.mEntries, page.mPdos, page.mErrors, page.mWarnings}) {
            html.element("td", QString::number(number));
        }
        html.close().line();
    }
    html.close().close().close().line().close().line().close().close().line();
    return html.bytes();
}
