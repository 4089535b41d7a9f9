#include <CXddNormalizer.h>
#include <ICIso15745.h>

#include <cstdio>
#include <memory>

int main(int argc, char* argv[])
{
    const QString sample = QStringLiteral(":/mvxIso15745Xml/xml/NLV7315602_i.xdd");
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QList<CXddChange> changes;
    QString error;
    if (!CXddNormalizer::load(*reader, argc > 1 ? QString::fromLocal8Bit(argv[1]) : sample, changes, error)) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(error));
        return 1;
    }
    for (const CNetworkCanOpenProfile::EBaudrate rate : reader->networkProfile().mSupportedBaudRates) {
        std::printf("%d kbit/s\n", rate);
    }
    const CCanOpenObject identity = reader->getObj(0x1018);
    for (const CCanOpenSubObject& entry : identity.mSubObjects) {
        std::printf("%s: %s\n", qUtf8Printable(entry.mName), qUtf8Printable(entry.mDefaultValue));
    }
}
