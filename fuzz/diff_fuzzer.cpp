#include <CXddComparison.h>

#include <cstddef>
#include <cstdint>

// Compares two descriptions, which a byte 0x1E separates; without one a description is compared with itself.

namespace
{
constexpr char SEPARATOR = 0x1E;

void require(bool condition)
{
    if (!condition) {
        __builtin_trap();
    }
}

// How many entries are gone or new, after a look at all that is said.
int countOf(const CXddComparison& comparison, const QString& rule)
{
    int count = 0;
    for (const CXddChange& change : comparison.mChanges) {
        require(change.mLine >= 0 && !change.text().isEmpty() && change.text().size() < 3000);
        require(!change.comparable().isEmpty() && change.mConcerns != 0);
        count += change.mRule == rule ? 1 : 0;
    }
    return count;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const auto separator = bytes.indexOf(SEPARATOR);
    const CXddDocument old = CXddDocument::open(bytes.left(separator));
    const CXddDocument now = separator < 0 ? old : CXddDocument::open(bytes.mid(separator + 1));
    const CXddComparison there = CXddComparison::compare(old, now);
    const CXddComparison back = CXddComparison::compare(now, old);
    require(there.mIsOpen == (old.isOpen() && now.isOpen()));
    require(separator >= 0 || there.mChanges.isEmpty());
    // What is gone on the way there is new on the way back.
    require(countOf(there, QStringLiteral("entry-removed")) == countOf(back, QStringLiteral("entry-added")));
    require(countOf(there, QStringLiteral("entry-added")) == countOf(back, QStringLiteral("entry-removed")));
    return 0;
}
