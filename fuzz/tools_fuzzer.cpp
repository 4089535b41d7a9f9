#include <CXddChecker.h>
#include <CXddDbcWriter.h>
#include <CXddEdsWriter.h>
#include <CXddNormalizer.h>
#include <CXddPage.h>
#include <ICIso15745.h>

#include <cstddef>
#include <cstdint>
#include <memory>

// Opens arbitrary bytes, and normalises, loads, checks and converts what they describe to every form. Any file given on
// the command line is taken once, without fuzzing.

namespace
{
void require(bool condition)
{
    if (!condition) {
        __builtin_trap();
    }
}

void requireSound(const QList<CXddRemark>& remarks, int lines)
{
    for (const CXddRemark& remark : remarks) {
        require(remark.mLine >= 0 && remark.mLine <= lines && !remark.text().isEmpty() && remark.text().size() < 3000);
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    // Of an INI file lone carriage returns end lines, too; UTF-32 has four bytes for one of its own.
    const int lines = (int(bytes.count('\n') + bytes.count('\r')) + 1) * 4;
    const CXddDocument document = CXddDocument::open(bytes);
    requireSound(CXddChecker::check(document), lines);
    if (!document.isOpen()) {
        require(!document.failure().text().isEmpty());
        return 0;
    }
    // A second time changes nothing, and what is lost is no more than there is.
    const CXddCopy copy = CXddNormalizer::normalize(document);
    requireSound(copy.mRemarks, lines);
    const CXddDocument again = CXddDocument::open(copy.mText);
    require(again.isOpen() && CXddNormalizer::normalize(again).mText == copy.mText);
    const CXddCopy right = CXddNormalizer::conform(document, CXddChecker::check(document));
    const CXddDocument rightAgain = CXddDocument::open(right.mText);
    require(
        rightAgain.isOpen()
        && CXddNormalizer::conform(rightAgain, CXddChecker::check(rightAgain)).mText == right.mText);
    const CXddEds eds = CXddEdsWriter::write(document);
    requireSound(eds.mLosses, lines);
    require(eds.mIncomplete <= eds.mEntries);
    const CXddEds dcf = CXddEdsWriter::writeDcf(document, document.device().mCommissioning);
    requireSound(dcf.mLosses, lines);
    // What is written is read without a remark, and written again as it is.
    const CXddDocument written = CXddDocument::open(eds.mText);
    require(written.isOpen() && written.remarks().isEmpty() && CXddEdsWriter::write(written).mText == eds.mText);
    document.pdos();
    document.facts(QString());
    for (const CXddEntry& entry : document.entries()) {
        document.texts(entry.mIndex, entry.mSubIndex);
    }
    const CXddDbc dbc = CXddDbcWriter::write({CXddNode(document, 5)}, CXddDbcWriter::OPTION_ALL);
    requireSound(dbc.mRemarks.value(0), lines);
    for (const char character : dbc.mText) {
        require(character == '\n' || (character >= ' ' && character <= '~'));
    }

    const QByteArray page = CXddPage::write(document, {}).mText;
    require(page.count("<script>") == (page.isEmpty() ? 0 : 1));

    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QList<CXddRemark> remarks;
    CXddRemark failure;
    require(CXddNormalizer::load(document, *reader, remarks, failure) || !failure.text().isEmpty());
    requireSound(remarks, lines);
    return 0;
}
