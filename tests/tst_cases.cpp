#include "Description.h"

#include <CXddChecker.h>
#include <CXddEdsWriter.h>
#include <CXddNormalizer.h>

#include <QDirIterator>
#include <QtTest>

#include <functional>
#include <memory>

/*
 * The cases of the files tests/data/NAME.cases. Each changes a sound description and says what comes of that:
 *
 *   base: sound.xdd
 *   what: check
 *
 *   == name of the case
 *   - text of the description, which stands there once
 *   + what takes its place
 *   > a line of the outcome
 *
 * Outcomes are what differs from that of the unchanged description. Started with MVX_RENEW=1, the program writes them
 * into the files instead of comparing them.
 */
class TestCases : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cases_data();
    void cases();
    void foundByEveryRule();
    void manualPages();
};

namespace
{
struct SCase
{
    QString name;
    QVector<QPair<QByteArray, QByteArray>> changes;
    QStringList expected;
};

struct SCaseFile
{
    QString path;
    QString base;
    QString what;
    QVector<SCase> cases;
};

QStringList linesOf(const QByteArray& text)
{
    return QString::fromUtf8(text).split(QLatin1Char('\n'));
}

SCaseFile readCases(const QString& path)
{
    SCaseFile file;
    file.path = path;
    QFile source(path);
    if (!source.open(QIODevice::ReadOnly)) {
        qFatal("Cannot read %s", qPrintable(path));
    }
    QChar previous;
    for (const QString& line : linesOf(source.readAll())) {
        const QByteArray rest = line.mid(2).toUtf8();
        const QChar kind = line.isEmpty() ? QChar() : line.at(0);
        if (line.startsWith(QLatin1String("base: "))) {
            file.base = line.mid(6);
        } else if (line.startsWith(QLatin1String("what: "))) {
            file.what = line.mid(6);
        } else if (line.startsWith(QLatin1String("== "))) {
            file.cases << SCase{line.mid(3), {}, {}};
        } else if (kind == QLatin1Char('-')) {
            if (previous != QLatin1Char('-')) {
                file.cases.last().changes << QPair<QByteArray, QByteArray>(rest, QByteArray());
            } else {
                file.cases.last().changes.last().first += '\n' + rest;
            }
        } else if (kind == QLatin1Char('+')) {
            QByteArray& after = file.cases.last().changes.last().second;
            after += (previous == QLatin1Char('+') ? QByteArray("\n") : QByteArray()) + rest;
        } else if (kind == QLatin1Char('>')) {
            file.cases.last().expected << line.mid(2);
        }
        previous = kind;
    }
    return file;
}

// Why the library does not read a description.
QStringList message(const QByteArray& text)
{
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QString error;
    return loadText(*reader, text, error) ? QStringList() : QStringList{error};
}

// What the library has read, up to a failure.
QStringList loaded(const QByteArray& text)
{
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QString error;
    QStringList lines;
    if (!loadText(*reader, text, error)) {
        lines << error;
    }
    const auto forgetNow = [](auto& profile) {
        if (profile.mFileCreationDate == QDate::currentDate()) {
            profile.mFileCreationDate = QDate();
            profile.mFileCreationTime = QTime();
        }
    };
    forgetNow(reader->deviceProfile());
    forgetNow(reader->networkProfile());
    return lines + dump(*reader);
}

// The changes and the text, which the library then has to read.
QStringList normalized(const QByteArray& text)
{
    QByteArray copy;
    QByteArray again;
    QList<CXddChange> changes;
    QString error;
    if (!CXddNormalizer::normalize(text, copy, changes, error)) {
        return {error};
    }
    QStringList lines;
    for (const CXddChange& change : changes) {
        lines << QStringLiteral("%1: %2 [%3]")
                     .arg(QString::number(change.mLine), change.mWhat, change.mChanged ? change.mRule : change.mReason);
    }
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    if (!loadText(*reader, copy, error)) {
        lines << error;
    }
    if (!CXddNormalizer::normalize(copy, again, changes, error) || again != copy) {
        lines << QStringLiteral("not the same when it is normalized again");
    }
    return lines + linesOf(copy);
}

QStringList checked(const QByteArray& text)
{
    QStringList lines;
    for (const CXddFinding& finding : CXddChecker::check(text)) {
        lines << QStringLiteral("%1: %2: %3 [%4]")
                     .arg(
                         QString::number(finding.mLine), CXddFinding::severityAsStr(finding.mSeverity), finding.mText,
                         finding.mRule);
    }
    return lines;
}

QStringList converted(const QByteArray& text)
{
    CXddEds eds;
    QString error;
    if (!CXddEdsWriter::write(text, eds, error)) {
        return {error};
    }
    QStringList lines;
    for (const CXddLoss& loss : eds.mLosses) {
        lines << QStringLiteral("%1: %2 [%3]").arg(QString::number(loss.mLine), loss.mText, loss.mKind);
    }
    QString section;
    for (const QString& line : linesOf(eds.mText.replace("\r\n", "\n"))) {
        section = line.startsWith(QLatin1Char('[')) ? line : section;
        lines << section + QLatin1Char(' ') + line;
    }
    return lines;
}

QStringList outcome(const SCaseFile& file, const QByteArray& text)
{
    static const QMap<QString, std::function<QStringList(const QByteArray&)>> kinds = {
        {QStringLiteral("message"), message},      {QStringLiteral("load"), loaded},
        {QStringLiteral("normalize"), normalized}, {QStringLiteral("check"), checked},
        {QStringLiteral("eds"), converted},
    };
    return kinds[file.what](text);
}

// Leaves out what is reported in both outcomes, only at another line.
QStringList withoutMoved(const QStringList& lines)
{
    static const QRegularExpression place(QStringLiteral("^[-+]\\d+: "));
    QMap<QString, int> count;
    for (const QString& line : lines) {
        ++count[QString(line).remove(place)];
    }
    QStringList left;
    for (const QString& line : lines) {
        if (count[QString(line).remove(place)] == 1) {
            left << line;
        }
    }
    return left;
}

QStringList outcome(const SCaseFile& file, const SCase& row)
{
    const QByteArray base = testData(file.base);
    QByteArray text = base;
    for (const auto& change : row.changes) {
        text = changed(text, change.first, change.second);
    }
    QStringList lines = withoutMoved(differences(outcome(file, base), outcome(file, text)));
    lines.replaceInStrings(QStringLiteral("\n"), QStringLiteral("\\n"));
    lines.replaceInStrings(QStringLiteral("\r"), QStringLiteral("\\r"));
    lines.replaceInStrings(QRegularExpression(QStringLiteral(" +$")), QString());
    // Of a record every field has a line, so what it holds now says it all.
    return file.what == QLatin1String("load") ? lines.filter(QRegularExpression(QStringLiteral("^\\+"))) : lines;
}

// Compares the rules with what stands between two comments of a manual page, or writes them there.
void comparePage(const QString& name, QStringList rules)
{
    const QString begin = QStringLiteral(".\\\" rules\n");
    const QString end = QStringLiteral(".\\\" end of rules\n");
    QFile file(QStringLiteral(MANUAL_FOLDER "/%1.1").arg(name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QString page = QString::fromUtf8(file.readAll());
    file.close();
    const auto first = page.indexOf(begin) + begin.size();
    const auto last = page.indexOf(end);
    rules.replaceInStrings(QStringLiteral("-"), QStringLiteral("\\-"));
    const QString table = rules.join(QLatin1Char('\n')) + QLatin1Char('\n');
    if (qEnvironmentVariableIsSet("MVX_RENEW")) {
        page.replace(first, last - first, table);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(page.toUtf8()) > 0);
        return;
    }
    const QStringList wrong =
        differences(page.mid(first, last - first).split(QLatin1Char('\n')), table.split(QLatin1Char('\n')));
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1Char('\n'))));
}

void renew(const SCaseFile& file)
{
    QFile source(file.path);
    QStringList lines;
    if (source.open(QIODevice::ReadOnly)) {
        lines = linesOf(source.readAll()).filter(QRegularExpression(QStringLiteral("^(?!>)")));
        source.close();
    }
    for (const SCase& row : file.cases) {
        auto at = lines.indexOf(QStringLiteral("== ") + row.name) + 1;
        while (at < lines.size() && !lines.at(at).isEmpty()) {
            ++at;
        }
        for (const QString& line : outcome(file, row)) {
            lines.insert(at++, QStringLiteral("> ") + line);
        }
    }
    if (!source.open(QIODevice::WriteOnly) || source.write(lines.join(QLatin1Char('\n')).toUtf8()) < 0) {
        qFatal("Cannot write %s", qPrintable(file.path));
    }
}
} // namespace

Q_DECLARE_METATYPE(SCaseFile)
Q_DECLARE_METATYPE(SCase)

void TestCases::cases_data()
{
    QTest::addColumn<SCaseFile>("file");
    QTest::addColumn<SCase>("row");
    QDirIterator paths(
        QStringLiteral(TEST_DATA), {QStringLiteral("*.cases")}, QDir::Files, QDirIterator::Subdirectories);
    while (paths.hasNext()) {
        const SCaseFile file = readCases(paths.next());
        if (qEnvironmentVariableIsSet("MVX_RENEW")) {
            renew(file);
        }
        for (const SCase& row : file.cases) {
            QTest::addRow("%s: %s", qPrintable(QFileInfo(file.path).completeBaseName()), qPrintable(row.name))
                << file << row;
        }
    }
}

void TestCases::cases()
{
    QFETCH(SCaseFile, file);
    QFETCH(SCase, row);
    if (qEnvironmentVariableIsSet("MVX_RENEW")) {
        QTest::qSkip("renewed", __FILE__, __LINE__);
        return;
    }
    const QStringList found = outcome(file, row);
    const QStringList wrong = differences(row.expected, found);
    QVERIFY2(found == row.expected, qPrintable(QStringLiteral("\n") + wrong.join(QLatin1Char('\n'))));
}

// Every rule has a case that it finds something in.
void TestCases::foundByEveryRule()
{
    const QString cases = QString::fromUtf8(testData(QStringLiteral("check/rules.cases")));
    for (const CXddCheckRule& rule : CXddChecker::rules()) {
        QVERIFY2(cases.contains(QStringLiteral(" [%1]\n").arg(rule.mId)), qPrintable(rule.mId));
    }
}

// The tables of rules in the manual pages are those of the code.
void TestCases::manualPages()
{
    QStringList changes;
    for (const CXddRule& rule : CXddNormalizer::rules()) {
        changes << QStringLiteral(".TP\n.B %1\n%2;\n%3.").arg(rule.mId, rule.mSummary, rule.mReason);
    }
    comparePage(QStringLiteral("xddnormalize"), changes);
    QStringList checks;
    for (const CXddCheckRule& rule : CXddChecker::rules()) {
        checks << QStringLiteral(".TP\n.BR %1 \" (%2)\"\n%3.\n%4")
                      .arg(rule.mId, CXddFinding::severityAsStr(rule.mSeverity), rule.mSummary, rule.mReason);
    }
    comparePage(QStringLiteral("xddcheck"), checks);
}

QTEST_GUILESS_MAIN(TestCases)
#include "tst_cases.moc"
