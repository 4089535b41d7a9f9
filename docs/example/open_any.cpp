#include <CXddChecker.h>
#include <CXddEdsWriter.h>
#include <CXddNormalizer.h>
#include <ICIso15745.h>

#include <cstdio>
#include <memory>

int main(int argc, char* argv[])
{
    const QString sample = QStringLiteral(":/mvxIso15745Xml/xml/NLV7315602_i.xdd");
    const CXddDocument document = CXddDocument::openFile(argc > 1 ? QString::fromLocal8Bit(argv[1]) : sample);
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QList<CXddRemark> remarks; // What was supplied, interpreted and left out
    CXddRemark failure;
    if (!CXddNormalizer::load(document, *reader, remarks, failure)) {
        std::fprintf(stderr, "line %d: %s\n", failure.mLine, qUtf8Printable(failure.text()));
        return 1;
    }
    for (const CNetworkCanOpenProfile::EBaudrate rate : reader->networkProfile().mSupportedBaudRates) {
        std::printf("%d kbit/s\n", rate);
    }
    const CCanOpenObject identity = reader->getObj(0x1018);
    for (const CCanOpenSubObject& entry : identity.mSubObjects) {
        std::printf("%s: %s\n", qUtf8Printable(entry.mName), qUtf8Printable(entry.mDefaultValue));
    }
    // The same document is checked and converted without another look at the file.
    std::printf("%d findings\n", int(CXddChecker::check(document).size()));
    std::printf("an EDS of %d bytes\n", int(CXddEdsWriter::write(document).mText.size()));
}
