#include "html/CPageWriter.h"

#include "NIso15745Tags.h"
#include "canopen/Texts.h"
#include "html/CDictionaryTables.h"
#include "html/CPdoCards.h"
#include "names/Hexadecimal.h"
#include "names/NEdsWords.h"
#include "names/NFormatWords.h"

#include <QCryptographicHash>
#include <QFile>

#include <algorithm>

using namespace NIso15745Tags;
using namespace NFormatWords;

namespace
{
// Of one rule as many findings are shown without unfolding them.
constexpr int MAX_UNFOLDED = 5;

// Findings are listed up to the size of the file and so many characters; a line of two characters can have one.
constexpr qint64 LEAST_FINDINGS = 50000;
constexpr qint64 FINDING_MARKUP = 120;

QByteArray resource(const char* name)
{
    QFile file(QStringLiteral(":/mvxXddTools/html/") + QString::fromLatin1(name));
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

// How a policy names a style or script.
QString hashOf(const QByteArray& content)
{
    const QByteArray hash = QCryptographicHash::hash(content, QCryptographicHash::Sha256).toBase64();
    return QStringLiteral("'sha256-%1'").arg(QString::fromLatin1(hash));
}
} // namespace

QString SPage::title() const
{
    const QString product = device.mDeviceProfile.identity(TAG_PRODUCT_NAME).simplified();
    return cutForPage(product.isEmpty() ? fileName : product);
}

int SPage::count(CXddRemark::ESeverity severity) const
{
    return int(std::count_if(findings.begin(), findings.end(), [severity](const CXddRemark& finding) {
        return finding.mSeverity == severity;
    }));
}

int SPage::objects() const
{
    return int(std::count_if(entries.begin(), entries.end(), [](const CXddEntry& entry) { return !entry.mSubIndex; }));
}

bool SPage::hasRow(unsigned int index, std::optional<unsigned int> subIndex) const
{
    return rows != nullptr ? rows->contains(rowId(index, subIndex)) : description.dictionary().object(index) != nullptr;
}

QString rowId(unsigned int index, std::optional<unsigned int> subIndex)
{
    const QString object = hexadecimalText(index, 4);
    return subIndex ? object + QLatin1Char('.') + hexadecimalDigits(*subIndex, 1) : object;
}

CPageWriter::CPageWriter(const SPage& page)
    : mPage(page)
    , mFindingsLeft(page.bytes.size() + LEAST_FINDINGS)
{}

QByteArray CPageWriter::bytes()
{
    const QByteArray script = resource("page.js");
    begin(mHtml, mPage.title(), mPage.language, script);
    writeHeader();
    writeNavigation();
    mHtml.open("main").line();
    writeDevice();
    if (mPage.hasFindings && !mPage.findings.isEmpty()) {
        writeFindings();
    }
    CPdoCards(mHtml, mPage).write();
    CDictionaryTables(mHtml, mPage).write();
    mHtml.close().line();
    writeFooter();
    mHtml.raw("script", script).line();
    mHtml.close().close().line();
    return mHtml.bytes();
}

void CPageWriter::begin(CHtml& html, const QString& title, const QString& language, const QByteArray& script)
{
    const QByteArray css = style();
    QString policy =
        QStringLiteral("default-src 'none'; style-src %1; base-uri 'none'; form-action 'none'").arg(hashOf(css));
    if (!script.isEmpty()) {
        policy += QStringLiteral("; script-src ") + hashOf(script);
    }
    html.line().open("html", {{"lang", language}}).line().open("head").line();
    html.empty("meta", {{"charset", QStringLiteral("utf-8")}}).line();
    html.empty("meta", {{"http-equiv", QStringLiteral("Content-Security-Policy")}, {"content", policy}}).line();
    html.empty(
            "meta",
            {{"name", QStringLiteral("viewport")}, {"content", QStringLiteral("width=device-width, initial-scale=1")}})
        .line();
    html.element("title", visibleText(title)).line();
    html.raw("style", css).line().close().line().open("body").line();
}

QString CPageWriter::classOf(CXddRemark::ESeverity severity)
{
    return CXddRemark::severityAsStr(severity).left(1);
}

QByteArray CPageWriter::style()
{
    return resource("page.css");
}

void CPageWriter::writeHeader()
{
    const CXddProfile& profile = mPage.device.mDeviceProfile;
    const QString orderNumber = cutForPage(profile.identity(TAG_ORDER_NUMBER));
    const QString maker = joinedTexts(
        {cutForPage(profile.identity(TAG_VENDOR_NAME)),
         orderNumber.isEmpty() ? QString() : tr("order number %1").arg(orderNumber)},
        QLatin1String(" \xB7 ")); // Of Latin-1: a middle dot
    const QString product = cutForPage(profile.identityTexts(TAG_PRODUCT_TEXT, mPage.language));
    mHtml.open("header").line();
    mHtml.element("h1", mPage.title()).line();
    if (!maker.isEmpty()) {
        mHtml.element("p", maker, {{"class", QStringLiteral("soft")}}).line();
    }
    if (!product.isEmpty()) {
        mHtml.element("p", product, {{"class", QStringLiteral("soft")}}).line();
    }
    writeTiles();
    mHtml.close().line();
}

void CPageWriter::writeTiles()
{
    const auto tile = [this](int number, const QString& whole, const QString& name, const QString& kind) {
        mHtml.open("li", {{"class", kind}}).open("b").text(QString::number(number) + whole).close();
        mHtml.text(name).close().line();
    };
    const auto pdos = [this](bool isTransmit, bool isMapped) {
        return int(std::count_if(mPage.pdos.begin(), mPage.pdos.end(), [=](const CXddPdo& pdo) {
            return pdo.mIsTransmit == isTransmit && (!isMapped || pdo.isInUse());
        }));
    };
    const auto ofAll = [](int all) {
        return QLatin1Char(' ') + tr("of %1").arg(all);
    };
    mHtml.open("ul", {{"class", QStringLiteral("tiles")}}).line();
    tile(mPage.objects(), QString(), tr("objects"), QString());
    tile(int(mPage.entries.size()), QString(), tr("entries"), QString());
    tile(pdos(false, true), ofAll(pdos(false, false)), tr("receive PDOs in use"), QString());
    tile(pdos(true, true), ofAll(pdos(true, false)), tr("transmit PDOs in use"), QString());
    if (mPage.hasFindings) {
        const std::pair<CXddRemark::ESeverity, QString> kinds[] = {
            {CXddRemark::SEVERITY_ERROR, tr("errors")},
            {CXddRemark::SEVERITY_WARNING, tr("warnings")},
            {CXddRemark::SEVERITY_NOTE, tr("notes")}};
        for (const auto& [severity, name] : kinds) {
            if (mPage.count(severity) > 0) {
                tile(mPage.count(severity), QString(), name, classOf(severity));
            }
        }
    }
    mHtml.close().line();
}

// The filter is shown by the script, without which it could do nothing.
void CPageWriter::writeNavigation()
{
    mHtml.open("nav", {{"aria-label", tr("Sections")}}).line().open("div").line();
    mHtml.link(QStringLiteral("device"), tr("Device")).line();
    if (mPage.hasFindings && !mPage.findings.isEmpty()) {
        mHtml.link(QStringLiteral("findings"), tr("Findings")).line();
    }
    mHtml.link(QStringLiteral("pdos"), tr("Process data")).line();
    for (const SDictionaryRange& range : CDictionaryTables::ranges(mPage)) {
        mHtml.link(range.id, range.shortName).line();
    }
    mHtml.close().line();
    const QString hint = tr("Filter: 6041, name, type ... ( / )");
    mHtml.open("form", {{"role", QStringLiteral("search")}, {"hidden", noValue()}}).line();
    mHtml.empty(
        "input", {{"type", QStringLiteral("search")},
                  {"aria-label", tr("Filter the object dictionary")},
                  {"placeholder", hint}});
    mHtml.close().line().open("label");
    mHtml.empty(
        "input",
        {{"type", QStringLiteral("checkbox")}, {"id", QStringLiteral("subs")}, {"checked", QStringLiteral("checked")}});
    mHtml.text(QLatin1Char(' ') + tr("sub-objects")).close().line();
    mHtml.close().line();
}

void CPageWriter::writeDevice()
{
    const auto writeFacts = [this](const QList<CXddFact>& facts) {
        for (const CXddFact& fact : facts) {
            mHtml.element("dt", fact.mName).element("dd", cutForPage(fact.mValue)).line();
        }
    };
    mHtml.open("section", {{"id", QStringLiteral("device")}}).line();
    mHtml.element("h2", tr("Device")).line();
    mHtml.open("div", {{"class", QStringLiteral("two")}}).line().open("dl").line();
    writeFacts(mPage.facts);
    mHtml.close().line().open("dl").line();
    writeFacts(mPage.fileFacts);
    writeFeatures();
    writeBitRates();
    mHtml.close().line().close().line().close().line();
}

void CPageWriter::writeFeatures()
{
    const std::pair<QLatin1String, QString> all[] = {
        {ATTR_BOOT_UP_SLAVE, tr("boot-up slave")},
        {ATTR_BOOT_UP_MASTER, tr("boot-up master")},
        {ATTR_LSS_SLAVE, tr("LSS slave")},
        {ATTR_GROUP_MESSAGING, tr("group messaging")},
    };
    QStringList features;
    for (const auto& [name, text] : all) {
        features << (mPage.device.flag(name).value_or(false) ? text : QString());
    }
    const auto write = [this](const QString& name, const QString& text) {
        if (!text.isEmpty()) {
            mHtml.element("dt", name).element("dd", text).line();
        }
    };
    write(tr("Features"), joinedTexts(features, QLatin1String(", ")));
    write(tr("PDO granularity"), cutForPage(mPage.device.feature(ATTR_GRANULARITY).trimmed()));
}

// Those that are not supported as well. Only a bit rate that is stated is marked as the default.
void CPageWriter::writeBitRates()
{
    const CXddDevice& device = mPage.device;
    if (device.mBitRates.isEmpty()) {
        return;
    }
    using Network = CNetworkCanOpenProfile;
    QList<int> rates(NEdsWords::BAUD_RATES.begin(), NEdsWords::BAUD_RATES.end());
    for (const Network::EBaudrate rate : device.mBitRates + QList<Network::EBaudrate>{device.mDefaultBitRate}) {
        if (!rates.contains(int(rate)) && rate > Network::BAUD_AUTO) {
            rates << int(rate);
        }
    }
    std::sort(rates.begin(), rates.end());
    mHtml.element("dt", tr("Bit rates (kbit/s)")).open("dd").open("ul", {{"class", QStringLiteral("rates")}});
    for (const int rate : qAsConst(rates)) {
        const bool isDefault = rate == int(device.mDefaultBitRate);
        const bool isThere = device.mBitRates.contains(static_cast<Network::EBaudrate>(rate));
        mHtml.open("li", {{"class", isThere ? QStringLiteral("y") : QString()}});
        mHtml.text(isThere ? QStringLiteral("✓ ") : QStringLiteral("– "));
        mHtml.element(
            "span", isThere ? QString() : tr("not supported:") + QLatin1Char(' '), {{"class", QStringLiteral("h")}});
        mHtml.text(isDefault ? tr("%1 (default)").arg(rate) : QString::number(rate)).close();
    }
    if (device.mBitRates.contains(Network::BAUD_AUTO)) {
        mHtml.element("li", QStringLiteral("✓ ") + tr("automatic"), {{"class", QStringLiteral("y")}});
    }
    mHtml.close().close().line();
}

void CPageWriter::writeFindings()
{
    QMap<std::pair<int, QString>, QList<CXddRemark>> groups; // The worst first
    for (const CXddRemark& finding : mPage.findings) {
        groups[{-int(finding.mSeverity), finding.mRule}] << finding;
    }
    mHtml.open("section", {{"id", QStringLiteral("findings")}}).line();
    mHtml.element("h2", tr("Findings of the checker")).line();
    for (const QList<CXddRemark>& group : groups) {
        writeGroup(group);
    }
    mHtml.close().line();
}

void CPageWriter::writeGroup(const QList<CXddRemark>& group)
{
    const CXddRemark& first = group.first();
    mHtml.open("details", {{"open", group.size() > MAX_UNFOLDED ? QString() : noValue()}}).open("summary");
    mHtml.element("b", CXddRemark::severityAsStr(first.mSeverity), {{"class", classOf(first.mSeverity)}});
    mHtml.text(QStringLiteral(" ")).element("code", first.mRule);
    mHtml.text(QStringLiteral(" %1×").arg(group.size())).close();
    mHtml.open("ul", {{"class", QStringLiteral("fs")}}).line();
    for (int i = 0; i < group.size(); ++i) {
        if (mFindingsLeft < 0) {
            mHtml.element("li", tr("and %n more", nullptr, int(group.size()) - i)).line();
            break;
        }
        const CXddRemark& finding = group[i];
        const bool hasRow = finding.mIndex && mPage.hasRow(*finding.mIndex);
        mHtml.open("li");
        const QString text = hasRow ? QLatin1String(": ") + finding.mSentence.text() : finding.text();
        mFindingsLeft -= FINDING_MARKUP + text.size();
        if (hasRow) {
            mHtml.open("code").link(rowId(*finding.mIndex, finding.mSubIndex), finding.entry()).close();
        }
        mHtml.text(text + QLatin1Char(' '));
        if (finding.mLine > 0) {
            mHtml.element("span", tr("line %1").arg(finding.mLine), {{"class", QStringLiteral("soft")}});
        }
        mHtml.close().line();
    }
    mHtml.close().close().line();
}

void CPageWriter::writeFooter()
{
    const QByteArray hash = QCryptographicHash::hash(mPage.bytes, QCryptographicHash::Sha256).toHex();
    mHtml.open("footer").line();
    mHtml.element("p", tr("%1, %2 bytes").arg(cutForPage(mPage.fileName), QString::number(mPage.bytes.size()))).line();
    mHtml.open("p").text(QStringLiteral("SHA-256 ")).element("code", QString::fromLatin1(hash)).close().line();
    mHtml.close().line();
}
