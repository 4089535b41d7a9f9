#include "CXddPage.h"

#include "CXddChecker.h"
#include "CXddFacts.h"
#include "CXddNormalizer.h"
#include "canopen/PdoLayout.h"
#include "face/SOpened.h"
#include "html/CPageWriter.h"
#include "html/PageIndex.h"

#include <QFileInfo>

#include <algorithm>

CXddPage::CXddPage() = default;

CXddPage CXddPage::write(const CXddDocument& document, const SOptions& options)
{
    CXddPage result;
    result.mSource = QFileInfo(document.name()).fileName();
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QList<CXddRemark> remarks;
    if (!CXddNormalizer::load(document, *reader, remarks, result.mFailure)) {
        return result;
    }
    const CDescription& description = openedOf(document).description;
    SPage page{*reader, description, result.mSource, document.bytes(), options.mLanguage};
    page.nodeId = options.mNodeId != 0 ? options.mNodeId : description.commissioning().mNodeId;
    page.hasFindings = options.mHasFindings;
    page.statesBitRates = document.states(CXddDocument::ITEM_SUPPORTED_BAUD_RATES);
    page.identity = CXddFacts::identity(*reader, options.mLanguage);
    page.files = CXddFacts::files(*reader, document);
    page.pdos = layoutsOf(description, page.nodeId);
    page.findings = CXddChecker::check(document);
    result.mText = CPageWriter(page).bytes();
    result.mProduct = page.title();
    result.mVendor = reader->deviceProfile().mVendorName.mValue;
    result.mEntries = page.entries();
    result.mPdos = int(std::count_if(
        page.pdos.begin(), page.pdos.end(), [](const CXddPdo& pdo) { return pdo.mIsEnabled && pdo.bytes() > 0; }));
    result.mErrors = page.count(CXddRemark::SEVERITY_ERROR);
    result.mWarnings = page.count(CXddRemark::SEVERITY_WARNING);
    return result;
}

QByteArray CXddPage::index(const QList<CXddPage>& pages, const QString& language)
{
    QList<SIndexRow> rows;
    for (const CXddPage& page : pages) {
        rows << SIndexRow{page.mFileName, page.mSource, page.mProduct, page.mVendor,
                          page.mEntries,  page.mPdos,   page.mErrors,  page.mWarnings};
    }
    return pageIndex(rows, language);
}
