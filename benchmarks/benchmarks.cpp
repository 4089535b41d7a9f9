#include "CStreamReader.h"
#include "Descriptions.h"

#include <CDomDoc.h>
#include <ICIso15745.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryFile>

#include <benchmark/benchmark.h>
#include <libxml/parser.h>

#include <memory>

#include <malloc.h>

namespace
{
// The file with that many objects; it lives as long as the program.
const QString& fileWith(int objects)
{
    static QMap<int, std::shared_ptr<QTemporaryFile>> files;
    static QMap<int, QString> names;
    if (!files.contains(objects)) {
        const auto file = std::make_shared<QTemporaryFile>();
        if (!file->open() || file->write(descriptionWith(objects)) < 0 || !file->flush()) {
            qFatal("No temporary file");
        }
        files[objects] = file;
        names[objects] = file->fileName();
    }
    return names[objects];
}

void loadInto(ICIso15745& reader, const QString& fileName)
{
    QString error;
    if (!reader.load(fileName, error)) {
        qFatal("%s", qUtf8Printable(error));
    }
}

// The floor: the document alone.
void setContent(QDomDocument& document, const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file, true)) {
        qFatal("Cannot parse %s", qUtf8Printable(fileName));
    }
}

// The file of a row, with the memory of the rows before it given back: what they have freed would otherwise be sorted
// out within this one's time.
QString fileOf(const benchmark::State& state)
{
    malloc_trim(0);
    return fileWith(int(state.range(0)));
}

void bareSetContent(benchmark::State& state)
{
    const QString fileName = fileOf(state);
    for (auto _ : state) {
        QDomDocument document;
        setContent(document, fileName);
    }
}

void load(benchmark::State& state)
{
    const QString fileName = fileOf(state);
    for (auto _ : state) {
        const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
        loadInto(*reader, fileName);
    }
}

void loadSample(benchmark::State& state, const char* name)
{
    malloc_trim(0);
    const QString fileName = QStringLiteral(":/mvxIso15745Xml/xml/") + QString::fromLatin1(name);
    for (auto _ : state) {
        const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
        loadInto(*reader, fileName);
    }
}

void destruction(benchmark::State& state)
{
    const QString fileName = fileOf(state);
    for (auto _ : state) {
        state.PauseTiming();
        std::unique_ptr<ICIso15745> reader(ICIso15745::create());
        loadInto(*reader, fileName);
        state.ResumeTiming();
        reader.reset();
    }
}

void streamReader(benchmark::State& state)
{
    const QString fileName = fileOf(state);
    for (auto _ : state) {
        QFile file(fileName);
        if (!file.open(QIODevice::ReadOnly) || CStreamReader::readObjects(file).size() != state.range(0)) {
            qFatal("Cannot read %s", qUtf8Printable(fileName));
        }
    }
}

// The tree alone, without records.
void libxml2Tree(benchmark::State& state)
{
    const QByteArray fileName = fileOf(state).toLocal8Bit();
    for (auto _ : state) {
        xmlDoc* const document = xmlReadFile(fileName.constData(), nullptr, XML_PARSE_NONET | XML_PARSE_HUGE);
        if (document == nullptr) {
            qFatal("Cannot parse %s", fileName.constData());
        }
        xmlFreeDoc(document);
    }
}

// The tree alone, without records; Python measures itself, so that its start does not count.
void pythonElementTree(benchmark::State& state)
{
    const QString program = QStringLiteral("import sys, time, xml.etree.ElementTree as e\n"
                                           "b = time.perf_counter(); t = e.parse(sys.argv[1]); del t\n"
                                           "print(time.perf_counter() - b)");
    for (auto _ : state) {
        QProcess python;
        python.start(QStringLiteral("python3"), {QStringLiteral("-c"), program, fileWith(int(state.range(0)))});
        if (!python.waitForFinished(-1) || python.exitCode() != 0) {
            state.SkipWithError("no python3");
            return;
        }
        state.SetIterationTime(python.readAllStandardOutput().trimmed().toDouble());
    }
}

// A reader with that many objects of its own making.
std::unique_ptr<ICIso15745> readerWith(int objects)
{
    std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QString error;
    for (int index = 0; index < objects; ++index) {
        reader->addObject(CCanOpenObject(unsigned(index), QStringLiteral("object"), 7), error);
    }
    return reader;
}

void getObj(benchmark::State& state)
{
    const auto reader = readerWith(int(state.range(0)));
    unsigned int index = 0;
    for (auto _ : state) {
        index = (index + 7919) % unsigned(state.range(0));
        benchmark::DoNotOptimize(reader->getObj(index));
    }
}

void getObjList(benchmark::State& state)
{
    const auto reader = readerWith(int(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(reader->getObjList());
    }
}

// The one copy that there is: the map that was taken stays what it was when the dictionary grows.
void addObjectWhileMapIsHeld(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto reader = readerWith(int(state.range(0)));
        const auto before = reader->getObjList();
        QString error;
        state.ResumeTiming();
        reader->addObject(CCanOpenObject(UINT_MAX, QStringLiteral("new"), 7), error);
        state.PauseTiming();
        if (before.size() != state.range(0) || reader->getObjList().size() != before.size() + 1) {
            qFatal("The map was changed");
        }
        reader.reset();
        state.ResumeTiming();
    }
}

void textToAccessType(benchmark::State& state)
{
    const QString text = QStringLiteral("const");
    for (auto _ : state) {
        benchmark::DoNotOptimize(CCanOpenSubObject::accessTypeFromStr(text));
    }
}

void bitRateToText(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(CNetworkCanOpenProfile::baudrateAsStr(CNetworkCanOpenProfile::BAUD_1000_KBPS));
    }
}

void readNumber(benchmark::State& state, const char* text, int base)
{
    QDomDocument document;
    QDomElement element = document.createElement(QStringLiteral("e"));
    const QString name = QStringLiteral("number");
    element.setAttribute(name, QString::fromLatin1(text));
    for (auto _ : state) {
        benchmark::DoNotOptimize(CDomDoc::existingAttributeAsU32(name, element, 0U, base));
    }
}

const std::vector<int64_t> FILE_SIZES = {40, 400, 4000, 16000};
const std::vector<int64_t> DICTIONARY_SIZES = {100, 10000, 100000};

BENCHMARK(bareSetContent)->ArgsProduct({FILE_SIZES})->Unit(benchmark::kMillisecond);
BENCHMARK(load)->ArgsProduct({FILE_SIZES})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(loadSample, fuller, "NLV7315602_v.xdd")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(loadSample, leaner, "NLV7315602_i.xdd")->Unit(benchmark::kMillisecond);
BENCHMARK(destruction)->ArgsProduct({FILE_SIZES})->Unit(benchmark::kMillisecond);
BENCHMARK(streamReader)->ArgsProduct({FILE_SIZES})->Unit(benchmark::kMillisecond);
BENCHMARK(libxml2Tree)->ArgsProduct({FILE_SIZES})->Unit(benchmark::kMillisecond);
BENCHMARK(pythonElementTree)->ArgsProduct({FILE_SIZES})->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(getObj)->ArgsProduct({DICTIONARY_SIZES});
BENCHMARK(getObjList)->ArgsProduct({DICTIONARY_SIZES});
BENCHMARK(addObjectWhileMapIsHeld)->ArgsProduct({DICTIONARY_SIZES})->Iterations(5);
BENCHMARK(textToAccessType);
BENCHMARK(bitRateToText);
BENCHMARK_CAPTURE(readNumber, hexadecimal, "1A00", 16);
BENCHMARK_CAPTURE(readNumber, decimal, "250", 0);
} // namespace

BENCHMARK_MAIN();
