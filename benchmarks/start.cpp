#include <QDomDocument>
#include <QElapsedTimer>
#include <QFile>

#include <cstdio>

#include <dlfcn.h>

// What loading the library costs a program that already has Qt: static initialisation and resource registration,
// in microseconds, and the memory that is the process's own afterwards, in kilobytes. Usage: start LIBRARY

namespace
{
// Memory that this process alone has written to.
long privateMemory()
{
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("Private_Dirty:")) {
            return line.simplified().split(' ').at(1).toLong();
        }
    }
    return 0;
}
} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: start LIBRARY\n");
        return 2;
    }
    const QDomDocument qtXmlIsThere;
    const long before = privateMemory();
    QElapsedTimer timer;
    timer.start();
    const void* const library = dlopen(argv[1], RTLD_LAZY);
    const qint64 nanoseconds = timer.nsecsElapsed();
    if (library == nullptr) {
        std::fprintf(stderr, "%s\n", dlerror());
        return 1;
    }
    std::printf("%lld %ld\n", nanoseconds / 1000, privateMemory() - before);
    return 0;
}
