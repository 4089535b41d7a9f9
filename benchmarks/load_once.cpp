#include "Descriptions.h"

#include <CXddChecker.h>
#include <CXddNormalizer.h>
#include <ICIso15745.h>

#include <QDomDocument>
#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

#include <sys/resource.h>

// Measures loading against parsing alone. Usage:
//   load_once write OBJECTS FILE        writes a description
//   load_once (floor|load|open|check) TIMES FILE
//                                       parses it, loads it, loads it normalised, or checks it so often, for callgrind
//                                       and for the peak of memory
//   load_once pairs TIMES FILE          does both in turn and prints the median ratio of their times

namespace
{
void parse(const QString& fileName)
{
    QFile file(fileName);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file, true)) {
        qFatal("Cannot parse %s", qUtf8Printable(fileName));
    }
}

void load(const QString& fileName)
{
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QString error;
    if (!reader->load(fileName, error)) {
        qFatal("%s", qUtf8Printable(error));
    }
}

void openAny(const QString& fileName)
{
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QList<CXddRemark> remarks;
    CXddRemark failure;
    if (!CXddNormalizer::load(CXddDocument::openFile(fileName), *reader, remarks, failure)) {
        qFatal("%s", qUtf8Printable(failure.mText));
    }
}

void check(const QString& fileName)
{
    if (CXddChecker::check(CXddDocument::openFile(fileName)).isEmpty()) {
        qFatal("Nothing found in %s, where mandatory objects are missing", qUtf8Printable(fileName));
    }
}

template <typename Work> qint64 nanoseconds(Work work, const QString& fileName)
{
    QElapsedTimer timer;
    timer.start();
    work(fileName);
    return timer.nsecsElapsed();
}

double medianRatio(int times, const QString& fileName)
{
    std::vector<double> ratios;
    for (int i = 0; i < times; ++i) {
        const qint64 floor = nanoseconds(parse, fileName);
        ratios.push_back(double(nanoseconds(load, fileName)) / double(floor));
    }
    std::nth_element(ratios.begin(), ratios.begin() + times / 2, ratios.end());
    return ratios[std::size_t(times / 2)];
}
} // namespace

int main(int argc, char* argv[])
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: load_once (write|floor|load|open|check|pairs) NUMBER FILE\n");
        return 2;
    }
    const QByteArray what = argv[1];
    const int number = QByteArray(argv[2]).toInt();
    const QString fileName = QString::fromLocal8Bit(argv[3]);
    if (what == "write") {
        QFile file(fileName);
        return file.open(QIODevice::WriteOnly) && file.write(descriptionWith(number)) > 0 ? 0 : 1;
    }
    if (what == "pairs") {
        std::printf("%.3f\n", medianRatio(number, fileName));
        return 0;
    }
    const auto work = what == "load" ? load : what == "open" ? openAny : what == "check" ? check : parse;
    for (int i = 0; i < number; ++i) {
        work(fileName);
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%ld\n", usage.ru_maxrss);
    return 0;
}
