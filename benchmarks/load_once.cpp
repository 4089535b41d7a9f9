#include "Descriptions.h"

#include <CXddChecker.h>
#include <CXddComparison.h>
#include <CXddEdsWriter.h>
#include <CXddNormalizer.h>
#include <CXddPage.h>
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
//   load_once (eds|xdd) SOURCE FILE     writes an EDS or a normalised XDD of a description
//   load_once (floor|load|open|check|page|document|compare) TIMES FILE
//                                       parses it, loads it, loads it normalised, checks it, writes its page, only
//                                       opens it, or compares it with FILE.old so often, for callgrind and for the peak
//                                       of memory
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
        qFatal("%s", qUtf8Printable(failure.text()));
    }
}

// Writes the page of a description.
void writePage(const QString& fileName)
{
    if (CXddPage::write(CXddDocument::openFile(fileName), {}).mText.isEmpty()) {
        qFatal("No page of %s", qUtf8Printable(fileName));
    }
}

void check(const QString& fileName)
{
    const CXddDocument document = CXddDocument::openFile(fileName);
    CXddChecker::check(document);
    if (!document.isOpen()) {
        qFatal("Cannot open %s", qUtf8Printable(fileName));
    }
}

void openDocument(const QString& fileName)
{
    if (!CXddDocument::openFile(fileName).isOpen()) {
        qFatal("Cannot open %s", qUtf8Printable(fileName));
    }
}

void compare(const QString& fileName)
{
    const CXddDocument old = CXddDocument::openFile(fileName + QLatin1String(".old"));
    if (!CXddComparison::compare(old, CXddDocument::openFile(fileName)).mIsOpen) {
        qFatal("Cannot open %s or its old version", qUtf8Printable(fileName));
    }
}

bool writeFile(const QString& fileName, const QByteArray& text)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(text) > 0;
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
        std::fprintf(
            stderr, "usage: load_once (write|eds|xdd|floor|load|open|check|page|document|compare|pairs) NUMBER FILE\n");
        return 2;
    }
    const QByteArray what = argv[1];
    const int number = QByteArray(argv[2]).toInt();
    const QString fileName = QString::fromLocal8Bit(argv[3]);
    if (what == "write") {
        return writeFile(fileName, descriptionWith(number)) ? 0 : 1;
    }
    if (what == "eds" || what == "xdd") {
        const CXddDocument source = CXddDocument::openFile(QString::fromLocal8Bit(argv[2]));
        const bool isEds = what == "eds";
        return writeFile(fileName, isEds ? CXddEdsWriter::write(source).mText : CXddNormalizer::normalize(source).mText)
                   ? 0
                   : 1;
    }
    if (what == "pairs") {
        std::printf("%.3f\n", medianRatio(number, fileName));
        return 0;
    }
    const auto work = what == "load"       ? load
                      : what == "open"     ? openAny
                      : what == "check"    ? check
                      : what == "page"     ? writePage
                      : what == "document" ? openDocument
                      : what == "compare"  ? compare
                                           : parse;
    for (int i = 0; i < number; ++i) {
        work(fileName);
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%ld\n", usage.ru_maxrss);
    return 0;
}
