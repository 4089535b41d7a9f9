#include "Description.h"

#include <CXddChecker.h>
#include <CXddComparison.h>
#include <CXddDbcWriter.h>
#include <CXddEdsWriter.h>
#include <CXddNormalizer.h>
#include <CXddPage.h>

#include <QDirIterator>
#include <QtTest>

#include <functional>
#include <memory>

/*
 * The cases of the files tests/data/NAME.cases. Each changes a description and says what comes of that:
 *
 *   # a comment
 *   base: sound.xdd
 *   what: check
 *
 *   == name of the case
 *   - text of the description, which stands there once
 *   + what takes its place, in which \\x1B stands for that byte; without such a line whole lines are taken away
 *   > a line of the outcome
 *
 * Changes in front of the first case are made for all cases, and belong to what they are compared with. Where a file
 * says "replace: TEXT", lines with "+" alone take the place of that text.
 *
 * The outcome is what differs from that of the unchanged description, in order. Numbers of lines that only move are no
 * difference. Of "what: diff" it is what changed from the unchanged description. Started with MVX_RENEW=1, the program
 * writes the outcomes into the files instead of comparing them.
 */
class TestCases : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void files_data();
    void files();
    void cases_data();
    void cases();
    void foundByEveryRule();
    void manualPages();
};

namespace
{
struct SChange
{
    int line = 0; // In the file of cases
    QByteArray before;
    QByteArray after;
};

struct SCase
{
    QString name;
    int line = 0;
    QVector<SChange> changes;
    QStringList expected;
};

struct SCaseFile
{
    QString path;
    QString base;
    QString what;
    QByteArray replaced; // What changes replace that say nothing else
    QVector<SChange> common;
    QVector<SCase> cases;
    QStringList faults;
};

QStringList linesOf(const QByteArray& text)
{
    return QString::fromUtf8(text).split(QLatin1Char('\n'));
}

QString contentOf(const QString& path)
{
    QFile source(path);
    if (!source.open(QIODevice::ReadOnly)) {
        qFatal("Cannot read %s", qPrintable(path));
    }
    return QString::fromUtf8(source.readAll());
}

// A text in which "\\x1B" stands for that byte.
QByteArray withBytes(QByteArray text)
{
    for (auto at = text.indexOf("\\x"); at >= 0; at = text.indexOf("\\x", at + 1)) {
        text.replace(at, 4, QByteArray::fromHex(text.mid(at + 2, 2)));
    }
    return text;
}

// Reads the lines of one change from that line on, and goes behind them.
SChange readChange(const SCaseFile& file, const QStringList& lines, int& number)
{
    const auto readBlock = [&](QChar mark) {
        QStringList block;
        for (; number < lines.size() && lines.at(number).startsWith(mark); ++number) {
            block << lines.at(number).mid(2);
        }
        return block;
    };
    SChange change;
    change.line = number + 1;
    const QStringList before = readBlock(QLatin1Char('-'));
    const bool isReplaced = number < lines.size() && lines.at(number).startsWith(QLatin1Char('+'));
    const QStringList after = readBlock(QLatin1Char('+'));
    change.before = before.isEmpty() ? file.replaced : before.join(QLatin1Char('\n')).toUtf8();
    change.before += isReplaced ? "" : "\n";
    change.after = withBytes(after.join(QLatin1Char('\n')).toUtf8());
    return change;
}

SCaseFile readCases(const QString& path)
{
    SCaseFile file;
    file.path = path;
    const QStringList lines = contentOf(path).split(QLatin1Char('\n'));
    for (int number = 0; number < lines.size();) {
        const QString& line = lines.at(number);
        if (line.startsWith(QLatin1Char('-')) || line.startsWith(QLatin1Char('+'))) {
            const SChange change = readChange(file, lines, number);
            (file.cases.isEmpty() ? file.common : file.cases.last().changes) << change;
            continue;
        }
        ++number;
        if (line.startsWith(QLatin1String("base: "))) {
            file.base = line.mid(6);
        } else if (line.startsWith(QLatin1String("what: "))) {
            file.what = line.mid(6);
        } else if (line.startsWith(QLatin1String("replace: "))) {
            file.replaced = line.mid(9).toUtf8();
        } else if (line.startsWith(QLatin1String("== "))) {
            file.cases << SCase{line.mid(3), number, {}, {}};
        } else if (line.startsWith(QLatin1String("> ")) && !file.cases.isEmpty()) {
            file.cases.last().expected << line.mid(2);
        } else if (!line.isEmpty() && !line.startsWith(QLatin1Char('#'))) {
            file.faults << QStringLiteral("%1:%2: a line without a meaning").arg(path, QString::number(number));
        }
    }
    return file;
}

// A text with changes made. A text that does not stand there once is a fault.
QByteArray withChanges(const SCaseFile& file, QByteArray text, const QVector<SChange>& changes, QStringList& faults)
{
    for (const SChange& change : changes) {
        const int count = int(text.count(change.before));
        if (change.before.isEmpty() || count != 1) {
            faults << QStringLiteral("%1:%2: the text stands there %3 times")
                          .arg(file.path, QString::number(change.line), QString::number(count));
        } else {
            text.replace(change.before, change.after);
        }
    }
    return text;
}

QByteArray baseOf(const SCaseFile& file, QStringList& faults)
{
    return withChanges(file, testData(file.base), file.common, faults);
}

// Where a line of a text stands after changes; one that is changed counts as its first line.
int moved(int line, QByteArray text, const QVector<SChange>& changes)
{
    for (const SChange& change : changes) {
        const int end = int(text.left(text.indexOf(change.before)).count('\n') + change.before.count('\n')) + 1;
        line += line > end || (line == end && change.before.endsWith('\n'))
                    ? int(change.after.count('\n') - change.before.count('\n'))
                    : 0;
        text.replace(change.before, change.after);
    }
    return line;
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

QString shown(const CXddRemark& remark)
{
    const QString kind = remark.mKind == CXddRemark::KIND_LEFT ? remark.mReason.text() : remark.mRule;
    return QStringLiteral("%1: %2 [%3]").arg(QString::number(remark.mLine), remark.text(), kind);
}

QString failureOf(const CXddDocument& document)
{
    return QStringLiteral("%1: %2").arg(QString::number(document.failure().mLine), document.failure().text());
}

// The remarks and the text, which the library then has to read unless something was left.
QStringList normalized(const QByteArray& text)
{
    const CXddDocument document = CXddDocument::open(text);
    if (!document.isOpen()) {
        return {failureOf(document)};
    }
    const CXddCopy copy = CXddNormalizer::normalize(document);
    QStringList lines;
    for (const CXddRemark& remark : copy.mRemarks) {
        lines << shown(remark);
    }
    const CXddDocument again = CXddDocument::open(copy.mText);
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QString error;
    if (CXddNormalizer::loadAsItIs(again, *reader, error) != copy.mLoads) {
        lines << QStringLiteral("loads or not, against what is said: ") + error;
    }
    if (CXddNormalizer::normalize(again).mText != copy.mText) {
        lines << QStringLiteral("not the same when it is normalized again");
    }
    return lines + linesOf(copy.mText);
}

// The remarks and the text of a copy for publishing, in which the checker finds nothing new.
QStringList conformed(const QByteArray& text)
{
    const CXddDocument document = CXddDocument::open(text);
    if (!document.isOpen()) {
        return {failureOf(document)};
    }
    const CXddCopy copy = CXddNormalizer::conform(document, CXddChecker::check(document));
    const CXddDocument again = CXddDocument::open(copy.mText);
    QStringList lines;
    for (const CXddRemark& remark : copy.mRemarks) {
        lines << QStringLiteral("%1: %2 [%3]").arg(QString::number(remark.mLine), remark.text(), remark.mRule);
    }
    if (CXddNormalizer::conform(again, CXddChecker::check(again)).mText != copy.mText) {
        lines << QStringLiteral("not the same when it is put right again");
    }
    QStringList before;
    for (const CXddRemark& finding : CXddChecker::check(document)) {
        before << finding.mRule + finding.entry();
    }
    for (const CXddRemark& finding : CXddChecker::check(again)) {
        if (!before.removeOne(finding.mRule + finding.entry())) {
            lines << QStringLiteral("found in the copy: ") + finding.text();
        }
    }
    return lines + linesOf(copy.mText);
}

// What is left out so that the rest of a description can be loaded, and what then is in the records.
QStringList loadedNormalized(const QByteArray& text)
{
    const CXddDocument document = CXddDocument::open(text);
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QList<CXddRemark> remarks;
    CXddRemark failure;
    QStringList lines;
    if (!CXddNormalizer::load(document, *reader, remarks, failure)) {
        lines << QStringLiteral("%1: %2").arg(QString::number(failure.mLine), failure.text());
    }
    for (const CXddRemark& remark : remarks) {
        if (remark.mKind == CXddRemark::KIND_LEFT) {
            lines << shown(remark);
        }
    }
    return lines + dump(*reader);
}

// What is said of an EDS while it is read, and what is in the records then.
QStringList loadedEds(const QByteArray& text)
{
    const CXddDocument document = CXddDocument::open(text);
    if (!document.isOpen()) {
        return {failureOf(document)};
    }
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    QList<CXddRemark> remarks;
    CXddRemark failure;
    CXddNormalizer::load(document, *reader, remarks, failure);
    QStringList lines = {QStringLiteral("form %1").arg(document.form())};
    for (const CXddRemark& remark : document.remarks()) {
        lines << QStringLiteral("%1: %2").arg(QString::number(remark.mLine), remark.text());
    }
    return lines + dump(*reader);
}

QStringList checked(const QByteArray& text)
{
    QStringList lines;
    for (const CXddRemark& finding : CXddChecker::check(CXddDocument::open(text))) {
        lines << QStringLiteral("%1: %2: %3 [%4]")
                     .arg(
                         QString::number(finding.mLine), CXddRemark::severityAsStr(finding.mSeverity), finding.text(),
                         finding.mRule);
    }
    return lines;
}

QStringList converted(const QByteArray& text)
{
    const CXddDocument document = CXddDocument::open(text);
    if (!document.isOpen()) {
        return {failureOf(document)};
    }
    CXddEds eds = CXddEdsWriter::write(document);
    QStringList lines;
    for (const CXddRemark& loss : eds.mLosses) {
        lines << shown(loss);
    }
    QString section;
    for (const QString& line : linesOf(eds.mText.replace("\r\n", "\n"))) {
        section = line.startsWith(QLatin1Char('[')) ? line : section;
        lines << section + QLatin1Char(' ') + line;
    }
    return lines;
}

// The DBC of one device at node-ID 5, and what is left out.
QStringList dbc(const QByteArray& text)
{
    const CXddDocument document = CXddDocument::open(text, QStringLiteral("bus.xdd"));
    if (!document.isOpen()) {
        return {failureOf(document)};
    }
    const CXddDbc dbc = CXddDbcWriter::write({CXddNode(document, 5)});
    QStringList lines;
    for (const CXddRemark& remark : dbc.mRemarks.value(0)) {
        lines << QStringLiteral("%1: %2").arg(QString::number(remark.mLine), remark.text());
    }
    return lines + linesOf(dbc.mText);
}

QString said(const CXddValue& value)
{
    static const QString origins[] = {
        QStringLiteral("nothing"), QStringLiteral("entry"), QStringLiteral("parameter"), QStringLiteral("array")};
    return value.mOrigin == CXddValue::ORIGIN_NONE ? QString()
                                                   : value.mText + QLatin1Char('@') + origins[value.mOrigin];
}

// What is not nothing of so many properties, each with its name.
QString listed(const QString& name, const QList<QPair<const char*, QString>>& properties)
{
    QString line = name;
    for (const auto& [key, value] : properties) {
        line += value.isEmpty() ? QString() : QStringLiteral(" | %1 %2").arg(QLatin1String(key), value);
    }
    return line;
}

QString numberOrNothing(quint64 number)
{
    return number == 0 ? QString() : QString::number(number);
}

QString flagged(bool isSet)
{
    return isSet ? QStringLiteral("yes") : QString();
}

QString listed(const CXddLabel& label)
{
    return label.mLanguage + QLatin1Char(':') + label.mText;
}

QString listed(const QList<CXddLabel>& labels)
{
    QStringList texts;
    for (const CXddLabel& label : labels) {
        texts << listed(label);
    }
    return texts.join(QLatin1String(", "));
}

QString listed(const CXddEntryTexts& texts)
{
    QStringList values;
    for (const CXddAllowedValue& value : texts.mAllowedValues) {
        values << QStringLiteral("%1..%2 %3").arg(value.mLow, value.mHigh, listed(value.mLabels)).trimmed();
    }
    return listed(
        QString(), {{"labels", listed(texts.mLabels)},
                    {"descriptions", listed(texts.mDescriptions)},
                    {"units", listed(texts.mUnits)},
                    {"URI", texts.mUnitUri},
                    {"multiplier", texts.mMultiplier},
                    {"offset", texts.mOffset},
                    {"values", values.join(QLatin1String("; "))}});
}

QString listed(const QString& name, const CXddPdoField& field)
{
    return listed(
        name + QLatin1Char(' ') + field.entry(), {{"bits", QStringLiteral("%1+%2").arg(field.mOffset).arg(field.mBits)},
                                                  {"kind", QString::number(field.mKind)},
                                                  {"type", numberOrNothing(field.mDataType)},
                                                  {"name", field.fullName()},
                                                  {"range", field.rangeText()}});
}

QStringList listed(const CXddPdo& pdo)
{
    const QString type = pdo.mTransmissionType ? QString::number(*pdo.mTransmissionType) : QString();
    QStringList lines = {listed(
        pdo.name(), {{"CAN-ID", pdo.canIdText()},
                     {"extended", flagged(pdo.mIsExtended)},
                     {"enabled", flagged(pdo.mIsEnabled)},
                     {"by node-ID", flagged(pdo.mUsesNodeId)},
                     {"RTR", flagged(pdo.mAllowsRtr)},
                     {"multiplexed", flagged(pdo.mIsMultiplexed)},
                     {"type", type},
                     {"sent", CXddPdo::transmissionAsStr(pdo.mTransmission)},
                     {"inhibited", numberOrNothing(pdo.mInhibitTime)},
                     {"timer", numberOrNothing(pdo.mEventTimer)},
                     {"SYNC start", numberOrNothing(pdo.mSyncStart)},
                     {"bytes", numberOrNothing(quint64(pdo.bytes()))}})};
    for (const CXddPdoField& field : pdo.mFields) {
        lines << listed(pdo.name(), field);
    }
    for (const CXddPdoField& field : pdo.mBeyond) {
        lines << listed(pdo.name() + QStringLiteral(" beyond"), field);
    }
    for (const CXddRemark& doubt : pdo.mDoubts) {
        lines << QStringLiteral("%1 %2: %3 [%4]")
                     .arg(pdo.name(), CXddRemark::severityAsStr(doubt.mSeverity), doubt.text(), doubt.mRule);
    }
    return lines;
}

QString listed(const CXddDocument& document, const CXddEntry& entry)
{
    const QString texts = listed(document.texts(entry.mIndex, entry.mSubIndex));
    return listed(
               entry.address(), {{"name", entry.fullName()},
                                 {"type", entry.typeText()},
                                 {"access", entry.accessText()},
                                 {"mapping", entry.mappingText()},
                                 {"default", said(entry.mDefaultValue)},
                                 {"actual", said(entry.mActualValue)},
                                 {"in force", entry.value().mText},
                                 {"low", said(entry.mLowLimit)},
                                 {"high", said(entry.mHighLimit)},
                                 {"range", entry.rangeText()}})
           + texts;
}

// What the model says of the device, its entries and its PDOs at node-ID 5, for a reader of German.
QStringList modelled(const QByteArray& text)
{
    const CXddDocument document = CXddDocument::open(text);
    QStringList lines;
    for (const CXddFact& fact : document.facts(QStringLiteral("de-AT")) + document.fileFacts()) {
        lines << fact.mName + QLatin1String(": ") + fact.mValue;
    }
    const CXddDevice device = document.device();
    lines << QStringLiteral("bit rate in force: %1").arg(device.bitRateInForce());
    for (const CXddFeature& feature : device.mGeneralFeatures + device.mMasterFeatures) {
        const std::optional<bool> flag = device.flag(feature.mName);
        lines << QStringLiteral("%1 %2 %3").arg(feature.mName, feature.mText, flag ? flagged(*flag) : QString());
    }
    const CXddCommissioning commissioning = device.mCommissioning;
    lines << listed(
        QStringLiteral("commissioned ") + flagged(device.mIsCommissioned),
        {{"node-ID", numberOrNothing(commissioning.mNodeId)},
         {"name", commissioning.mNodeName},
         {"bit rate", QString::number(commissioning.mBaudrate)},
         {"network", numberOrNothing(commissioning.mNetworkNumber) + commissioning.mNetworkName},
         {"manager", commissioning.mIsManager ? QString::number(int(*commissioning.mIsManager)) : QString()}});
    for (const CXddEntry& entry : document.entries()) {
        lines << listed(document, entry);
    }
    for (const CXddPdo& pdo : document.pdos(5)) {
        lines << listed(pdo);
    }
    return lines;
}

// The lines of a page, without those on the bytes of the file.
QStringList paged(const QByteArray& text)
{
    static const QRegularExpression bytes(QStringLiteral("^<p>(page\\.xdd|SHA-256)"));
    QStringList lines = linesOf(CXddPage::write(CXddDocument::open(text, QStringLiteral("page.xdd")), {}).mText);
    lines.erase(
        std::remove_if(lines.begin(), lines.end(), [](const QString& line) { return bytes.match(line).hasMatch(); }),
        lines.end());
    return lines;
}

// What changed from the base of a case to its text.
QStringList changesOf(const QByteArray& base, const QByteArray& text)
{
    QStringList lines;
    for (const CXddChange& change :
         CXddComparison::compare(CXddDocument::open(base), CXddDocument::open(text)).mChanges) {
        lines << QStringLiteral("%1%2: %3: %4 [%5] %6")
                     .arg(
                         QLatin1String(change.mIsOld ? "old " : ""), QString::number(change.mLine),
                         CXddChange::gradeAsStr(change.mSeverity), change.text(), change.mRule,
                         CXddChange::concernsAsStr(change.mConcerns).join(QLatin1Char(' ')));
    }
    return lines;
}

const QString DIFF = QStringLiteral("diff");

using Kinds = QMap<QString, std::function<QStringList(const QByteArray&)>>;
const Kinds& kinds()
{
    static const Kinds kinds = {
        {QStringLiteral("message"), message},      {QStringLiteral("load"), loaded},
        {QStringLiteral("normalize"), normalized}, {QStringLiteral("load-normalized"), loadedNormalized},
        {QStringLiteral("check"), checked},        {QStringLiteral("eds"), converted},
        {QStringLiteral("load-eds"), loadedEds},   {QStringLiteral("dbc"), dbc},
        {QStringLiteral("conform"), conformed},    {QStringLiteral("model"), modelled},
        {QStringLiteral("page"), paged},           {DIFF, {}},
    };
    return kinds;
}

QStringList outcome(const SCaseFile& file, const SCase& row, QStringList& faults)
{
    static const QRegularExpression place(QStringLiteral("^(\\d+)(?=: )"));
    static const QRegularExpression additions(QStringLiteral("^\\+"));
    const QByteArray base = baseOf(file, faults);
    const QByteArray text = withChanges(file, base, row.changes, faults);
    if (text == base) {
        faults << QStringLiteral("%1:%2: a case without a change").arg(file.path, QString::number(row.line));
    }
    if (!faults.isEmpty()) {
        return {};
    }
    if (file.what == DIFF) {
        return changesOf(base, text);
    }
    const auto outcomeOf = kinds().value(file.what);
    QStringList before = outcomeOf(base);
    for (QString& line : before) {
        const QRegularExpressionMatch match = place.match(line);
        if (match.hasMatch()) {
            line.replace(
                0, match.capturedLength(), QString::number(moved(match.captured().toInt(), base, row.changes)));
        }
    }
    QStringList lines = differences(before, outcomeOf(text));
    lines.replaceInStrings(QStringLiteral("\n"), QStringLiteral("\\n"));
    lines.replaceInStrings(QStringLiteral("\r"), QStringLiteral("\\r"));
    lines.replaceInStrings(QRegularExpression(QStringLiteral(" +$")), QString());
    // Of a record every field has a line, so what it holds now says it all.
    return file.what.startsWith(QLatin1String("load")) ? lines.filter(additions) : lines;
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
    QStringList lines =
        contentOf(file.path).split(QLatin1Char('\n')).filter(QRegularExpression(QStringLiteral("^(?!>)")));
    for (const SCase& row : file.cases) {
        auto at = lines.indexOf(QStringLiteral("== ") + row.name) + 1;
        while (at < lines.size() && !lines.at(at).isEmpty()) {
            ++at;
        }
        QStringList faults;
        for (const QString& line : outcome(file, row, faults)) {
            lines.insert(at++, QStringLiteral("> ") + line);
        }
    }
    QFile source(file.path);
    if (!source.open(QIODevice::WriteOnly) || source.write(lines.join(QLatin1Char('\n')).toUtf8()) < 0) {
        qFatal("Cannot write %s", qPrintable(file.path));
    }
}

QVector<SCaseFile> allFiles()
{
    QVector<SCaseFile> files;
    QDirIterator paths(
        QStringLiteral(TEST_DATA), {QStringLiteral("*.cases")}, QDir::Files, QDirIterator::Subdirectories);
    while (paths.hasNext()) {
        files << readCases(paths.next());
    }
    return files;
}
} // namespace

Q_DECLARE_METATYPE(SCaseFile)
Q_DECLARE_METATYPE(SCase)

void TestCases::files_data()
{
    QTest::addColumn<SCaseFile>("file");
    for (const SCaseFile& file : allFiles()) {
        QTest::newRow(qPrintable(file.path)) << file;
    }
}

// A file of cases says what it means.
void TestCases::files()
{
    QFETCH(SCaseFile, file);
    QStringList faults = file.faults;
    if (!kinds().contains(file.what)) {
        faults << QStringLiteral("%1: \"what: %2\" is not known").arg(file.path, file.what);
    }
    QSet<QString> names;
    for (const SCase& row : file.cases) {
        if (names.contains(row.name)) {
            faults << QStringLiteral("%1:%2: a name that is used already").arg(file.path, QString::number(row.line));
        }
        names << row.name;
    }
    QVERIFY2(faults.isEmpty() && !names.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestCases::cases_data()
{
    QTest::addColumn<SCaseFile>("file");
    QTest::addColumn<SCase>("row");
    for (const SCaseFile& file : allFiles()) {
        if (!kinds().contains(file.what)) {
            continue;
        }
        if (qEnvironmentVariableIsSet("MVX_RENEW")) {
            renew(file);
        }
        for (const SCase& row : file.cases) {
            QTest::addRow(
                "%s/%s:%d: %s", qPrintable(QFileInfo(file.path).dir().dirName()),
                qPrintable(QFileInfo(file.path).fileName()), row.line, qPrintable(row.name))
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
    QStringList faults;
    const QStringList found = outcome(file, row, faults);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
    const QStringList wrong = differences(row.expected, found);
    QVERIFY2(
        found == row.expected,
        qPrintable(
            QStringLiteral("%1:%2:\n%3").arg(file.path, QString::number(row.line), wrong.join(QLatin1Char('\n')))));
}

// Every rule has a case in which it applies.
void TestCases::foundByEveryRule()
{
    const auto look = [](const QString& cases, const QList<CXddRule>& rules) {
        QStringList unused;
        for (const CXddRule& rule : rules) {
            unused << (cases.contains(QStringLiteral(" [%1]\n").arg(rule.mId)) ? QString() : rule.mId);
        }
        unused.removeAll(QString());
        return unused;
    };
    const auto casesIn = [](const char* name) {
        return QString::fromUtf8(testData(QString::fromLatin1(name)));
    };
    QCOMPARE(look(casesIn("check/rules.cases") + casesIn("check/eds.cases"), CXddChecker::rules()), QStringList());
    QCOMPARE(look(casesIn("normalize/rules.cases"), CXddNormalizer::rules()), QStringList());
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
    for (const CXddRule& rule : CXddChecker::rules()) {
        checks << QStringLiteral(".TP\n.BR %1 \" (%2)\"\n%3.\n%4")
                      .arg(rule.mId, CXddRemark::severityAsStr(rule.mSeverity), rule.mSummary, rule.mReason);
    }
    comparePage(QStringLiteral("xddcheck"), checks);
    QStringList differences;
    for (const CXddRule& rule : CXddComparison::rules()) {
        differences << QStringLiteral(".TP\n.BR %1 \" (%2)\"\n%3.\n%4")
                           .arg(rule.mId, CXddChange::gradeAsStr(rule.mSeverity), rule.mSummary, rule.mReason);
    }
    comparePage(QStringLiteral("xdddiff"), differences);
}

QTEST_GUILESS_MAIN(TestCases)
#include "tst_cases.moc"
