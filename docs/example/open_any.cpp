#include <CXddChecker.h>
#include <CXddEdsWriter.h>

#include <cstdio>

int main(int argc, char* argv[])
{
    const QString sample = QStringLiteral(":/mvxIso15745Xml/xml/NLV7315602_i.xdd");
    const CXddDocument document = CXddDocument::openFile(argc > 1 ? QString::fromLocal8Bit(argv[1]) : sample);
    if (!document.isOpen()) {
        std::fprintf(stderr, "line %d: %s\n", document.failure().mLine, qUtf8Printable(document.failure().text()));
        return 1;
    }
    // The object dictionary: the value in force of each entry with its unit, and the values that it may have.
    for (const CXddEntry& entry : document.entries()) {
        const CXddEntryTexts texts = document.texts(entry.mIndex, entry.mSubIndex);
        const QString unit = CXddLabel::chosen(texts.mUnits, QStringLiteral("en"));
        std::printf(
            "%s %s: %s %s %s\n", qUtf8Printable(entry.address()), qUtf8Printable(entry.fullName()),
            qUtf8Printable(entry.typeText()), qUtf8Printable(entry.value().mText), qUtf8Printable(unit));
        for (const CXddAllowedValue& value : texts.mAllowedValues) {
            const QString label = CXddLabel::chosen(value.mLabels, QStringLiteral("en"));
            std::printf(
                "  %s to %s: %s\n", qUtf8Printable(value.mLow), qUtf8Printable(value.mHigh), qUtf8Printable(label));
        }
    }
    // What node 5 sends and receives.
    for (const CXddPdo& pdo : document.pdos(5)) {
        std::printf("%s %s, %d bytes\n", qUtf8Printable(pdo.name()), qUtf8Printable(pdo.canIdText()), pdo.bytes());
        for (const CXddPdoField& field : pdo.mFields) {
            std::printf("  bit %d: %d bits, %s\n", field.mOffset, field.mBits, qUtf8Printable(field.fullName()));
        }
    }
    std::printf("%d findings\n", int(CXddChecker::check(document).size()));
    std::printf("an EDS of %d bytes\n", int(CXddEdsWriter::write(document).mText.size()));
}
