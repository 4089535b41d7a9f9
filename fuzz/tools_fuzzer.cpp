#include <CXddChecker.h>
#include <CXddEdsWriter.h>
#include <CXddNormalizer.h>
#include <CXddStated.h>

#include <cstddef>
#include <cstdint>

// Normalises, checks and converts arbitrary bytes. Any file given on the command line is taken once, without fuzzing.

namespace
{
void require(bool condition)
{
    if (!condition) {
        __builtin_trap();
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const int lines = int(bytes.count('\n')) + 1;
    for (const CXddFinding& finding : CXddChecker::check(bytes)) {
        require(finding.mLine >= 1 && finding.mLine <= lines * 4 && !finding.mText.isEmpty()); // UTF-32 has fewer bytes
    }
    CXddStated::in(bytes);

    QByteArray normalized;
    QList<CXddChange> changes;
    QString error;
    CXddEds eds;
    QString edsError;
    const bool isDescription = CXddNormalizer::normalize(bytes, normalized, changes, error);
    require(CXddEdsWriter::write(bytes, eds, edsError) == isDescription);
    if (isDescription) {
        // A second time changes nothing, and what is lost is no more than there is.
        QByteArray again;
        require(CXddNormalizer::normalize(normalized, again, changes, error) && again == normalized);
        require(eds.mIncomplete <= eds.mEntries);
    } else {
        require(!error.isEmpty() && normalized.isEmpty());
    }
    return 0;
}
