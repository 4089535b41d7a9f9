#include "html/CPdoCards.h"

#include "CCanOpenNames.h"
#include "canopen/Pdos.h"
#include "names/Hexadecimal.h"

namespace
{
// "0x6041.0": what a field carries; a variable has the sub-index 0.
QString entryKey(const CXddPdoField& field)
{
    return rowId(field.mIndex, field.mSubIndex);
}

// "2", or "2-5" for several bytes.
QString range(int first, int last)
{
    return first == last ? QString::number(first) : QStringLiteral("%1–%2").arg(first).arg(last);
}
} // namespace

CPdoCards::CPdoCards(CHtml& html, const SPage& page)
    : mHtml(html)
    , mPage(page)
{}

void CPdoCards::write()
{
    mHtml.open("section", {{"id", QStringLiteral("pdos")}}).line();
    mHtml.element("h2", tr("Process data")).line();
    if (mPage.pdos.isEmpty()) {
        mHtml.element("p", tr("There are no PDOs.")).line();
    } else {
        mHtml
            .element(
                "p", tr("Byte 0 is sent first; bit 0 of each byte is at its left."),
                {{"class", QStringLiteral("soft")}})
            .line();
        writeDirection(false);
        writeDirection(true);
    }
    mHtml.close().line();
}

void CPdoCards::writeDirection(bool isTransmit)
{
    QList<CXddPdo> mapped;
    QList<CXddPdo> others;
    for (const CXddPdo& pdo : mPage.pdos) {
        if (pdo.mIsTransmit == isTransmit) {
            (pdo.bytes() > 0 || !pdo.mBeyond.isEmpty() ? mapped : others) << pdo;
        }
    }
    if (mapped.isEmpty() && others.isEmpty()) {
        return;
    }
    mHtml.element("h3", isTransmit ? tr("Transmit (from the device)") : tr("Receive (to the device)")).line();
    mHtml.open("div", {{"class", QStringLiteral("cards")}}).line();
    for (const CXddPdo& pdo : qAsConst(mapped)) {
        writeCard(pdo);
    }
    mHtml.close().line();
    writeOthers(others);
}

void CPdoCards::writeCard(const CXddPdo& pdo)
{
    const QString look = (pdo.mIsTransmit ? QStringLiteral("pdo tx") : QStringLiteral("pdo rx"))
                         + (pdo.mIsEnabled ? QString() : QStringLiteral(" off"));
    mHtml.open("div", {{"class", look}, {"id", pdo.name() + mPage.idSuffix}, {"data-pdo", pdo.name()}}).line();
    writeHead(pdo);
    if (pdo.mIsMultiplexed) {
        mHtml.element("p", tr("Multiplexed: its data name the node and the entry that they carry.")).line();
    } else {
        writePicture(pdo);
        writeBeyond(pdo);
        writeLegend(pdo);
    }
    mHtml.close().line();
}

void CPdoCards::writeHead(const CXddPdo& pdo)
{
    constexpr double microseconds = 1000;
    const int node = int(pdo.mNodeId);
    mHtml.element("h4", QStringLiteral("%1 %2").arg(pdo.name().left(4)).arg(pdo.mNumber)).text(QStringLiteral(" "));
    if (pdo.mCanId != 0) {
        mHtml.open("code").element("b", pdo.canIdText());
        if (node == 0 && pdo.mUsesNodeId) {
            const auto canId = [&pdo](unsigned int nodeId) {
                return hexadecimalText(pdo.mCanId + nodeId, pdo.mIsExtended ? 8 : 3);
            };
            mHtml.text(QLatin1Char(' ') + tr("%1 to %2").arg(canId(MIN_NODE_ID), canId(MAX_NODE_ID)));
        }
        mHtml.close();
    }
    if (!pdo.mIsEnabled) {
        mHtml.text(QStringLiteral(" ")).element("b", tr("disabled"), {{"class", QStringLiteral("w")}});
    }
    QStringList facts = {tr("%n byte(s)", nullptr, pdo.bytes())};
    if (pdo.mTransmissionType) {
        facts << tr("%1 (type %2)").arg(pdo.transmissionText(), QString::number(*pdo.mTransmissionType));
    }
    if (pdo.mInhibitTime != 0) {
        facts << tr("inhibit time %1 ms").arg(QString::number(double(pdo.mInhibitTime) / microseconds));
    }
    if (pdo.mEventTimer != 0) {
        facts << (pdo.mIsTransmit ? tr("event timer %1 ms") : tr("deadline %1 ms")).arg(pdo.mEventTimer);
    }
    if (pdo.mSyncStart != 0) {
        facts << tr("SYNC start value %1").arg(pdo.mSyncStart);
    }
    if (pdo.mIsExtended) {
        facts << tr("29 bits");
    }
    if (pdo.mIsTransmit && pdo.mAllowsRtr && pdo.mCanId != 0) {
        facts << tr("RTR allowed");
    }
    mHtml.open("p").text(facts.join(QStringLiteral(" · ")) + QStringLiteral(" · "));
    writeObjects(pdo);
    mHtml.close().line();
}

// Links to the objects that describe it.
void CPdoCards::writeObjects(const CXddPdo& pdo)
{
    QString separator;
    for (const unsigned int index : {pdo.communicationIndex(), pdo.mappingIndex()}) {
        if (mPage.hasRow(index)) {
            mHtml.text(separator).link(rowId(index, std::nullopt), CCanOpenNames::index(index));
            separator = QStringLiteral(", ");
        }
    }
}

void CPdoCards::writePicture(const CXddPdo& pdo)
{
    mHtml.open("ol", {{"class", QStringLiteral("bytes")}, {"aria-hidden", QStringLiteral("true")}});
    for (int byte = 0; byte < MAX_PDO_BYTES; ++byte) {
        mHtml.element("li", byte == 0 ? tr("Byte %1").arg(byte) : QString::number(byte));
    }
    mHtml.close().line().open("ol", {{"class", QStringLiteral("bits")}}).line();
    int used = 0;
    for (int i = 0; i < pdo.mFields.size(); ++i) {
        writeField(pdo.mFields[i], i + 1);
        used += pdo.mFields[i].mBits;
    }
    const int unused = int(MAX_PDO_BITS) - used;
    if (unused > 0) {
        mHtml.open("li", {{"class", QStringLiteral("u w%1").arg(unused)}});
        mHtml.element("span", tr("%n unused bit(s)", nullptr, unused), {{"class", QStringLiteral("h")}}).close().line();
    }
    mHtml.close().line();
}

// Its name and index, or its number in the legend where it is narrow.
void CPdoCards::writeField(const CXddPdoField& field, int number)
{
    const QString tint = field.mKind == CXddPdoField::KIND_DUMMY ? QStringLiteral("u")
                         : !field.mIsDescribed                   ? QStringLiteral("q")
                         : number % 2 == 1                       ? QStringLiteral("a")
                                                                 : QStringLiteral("b");
    mHtml.open(
        "li", {{"class", QStringLiteral("w%1 ").arg(field.mBits) + tint},
               {"data-entry", entryKey(field)},
               {"data-bits", QString::number(field.mBits)}});
    mHtml.element("span", nameOf(field), {{"class", QStringLiteral("l")}});
    mHtml.element("span", field.entry(), {{"class", QStringLiteral("i m")}});
    mHtml.element(
        "span", QString::number(number), {{"class", QStringLiteral("k")}, {"aria-hidden", QStringLiteral("true")}});
    mHtml.close().line();
}

void CPdoCards::writeBeyond(const CXddPdo& pdo)
{
    if (pdo.mBeyond.isEmpty()) {
        return;
    }
    mHtml.open("ul", {{"class", QStringLiteral("over")}}).line();
    for (const CXddPdoField& field : pdo.mBeyond) {
        mHtml.open("li", {{"data-entry", entryKey(field)}, {"data-bits", QString::number(field.mBits)}});
        mHtml.text(tr("Does not fit into 8 bytes:") + QLatin1Char(' '));
        writeEntry(field);
        mHtml.text(QStringLiteral(" ") + nameOf(field)).close().line();
    }
    mHtml.close().line();
}

// Its name; where the sub-objects beside it have the same one, that of its object with the sub-index.
QString CPdoCards::nameOf(const CXddPdoField& field) const
{
    if (field.mKind == CXddPdoField::KIND_DUMMY) {
        return tr("dummy");
    }
    if (field.mName.isEmpty()) {
        return tr("not described");
    }
    const CDictionary& dictionary = mPage.description.dictionary();
    const auto hasName = [&](unsigned int subIndex) {
        const SEntry* const sibling = dictionary.subObject(field.mIndex, subIndex);
        return sibling != nullptr && sibling->name == field.mName;
    };
    const bool isShared = field.mIsSubObject && (hasName(field.mSubIndex - 1) || hasName(field.mSubIndex + 1));
    return isShared ? QStringLiteral("%1 [%2]").arg(cutForPage(field.mObjectName)).arg(field.mSubIndex)
                    : cutForPage(field.mName);
}

void CPdoCards::writeEntry(const CXddPdoField& field)
{
    const bool isSub = field.mIsSubObject;
    const auto subIndex = isSub ? std::optional<unsigned int>(field.mSubIndex) : std::nullopt;
    mHtml.open("code");
    if (field.mIsDescribed && mPage.hasRow(field.mIndex, subIndex)) {
        mHtml.link(rowId(field.mIndex, subIndex), field.entry());
    } else {
        mHtml.text(field.entry());
    }
    mHtml.close();
}

void CPdoCards::writeLegend(const CXddPdo& pdo)
{
    mHtml.open("div", {{"class", QStringLiteral("wide")}}).open("table", {{"class", QStringLiteral("lg")}});
    mHtml.open("thead").open("tr");
    for (const QString& head : {QStringLiteral("#"), tr("Byte"), tr("Bits"), tr("Entry"), tr("Name"), tr("Type")}) {
        mHtml.element("th", head, {{"scope", QStringLiteral("col")}});
    }
    mHtml.close().close().line().open("tbody").line();
    for (int i = 0; i < pdo.mFields.size(); ++i) {
        const CXddPdoField& field = pdo.mFields[i];
        const int last = field.mOffset + field.mBits - 1;
        mHtml.open("tr").element("td", QString::number(i + 1));
        mHtml.element("td", range(field.mOffset / BITS_OF_BYTE, last / BITS_OF_BYTE));
        mHtml.element("td", range(field.mOffset, last)).open("td");
        writeEntry(field);
        const bool isMissing = field.mKind != CXddPdoField::KIND_DUMMY && !field.mIsDescribed;
        mHtml.close().element("td", nameOf(field), {{"class", isMissing ? QStringLiteral("e") : QString()}});
        mHtml.element("td", CCanOpenNames::dataType(field.mDataType)).close().line();
    }
    mHtml.close().close().close().line();
}

void CPdoCards::writeOthers(const QList<CXddPdo>& pdos)
{
    if (pdos.isEmpty()) {
        return;
    }
    mHtml.open("details").element("summary", tr("%n PDO(s) with nothing mapped", nullptr, int(pdos.size()))).line();
    mHtml.open("table", {{"class", QStringLiteral("lg")}}).open("thead").open("tr");
    for (const QString& head : {tr("PDO"), tr("State"), tr("CAN-ID"), tr("Objects")}) {
        mHtml.element("th", head, {{"scope", QStringLiteral("col")}});
    }
    mHtml.close().close().line().open("tbody").line();
    for (const CXddPdo& pdo : pdos) {
        mHtml.open("tr", {{"id", pdo.name()}, {"data-pdo", pdo.name()}});
        mHtml.element("td", QStringLiteral("%1 %2").arg(pdo.name().left(4)).arg(pdo.mNumber));
        mHtml.element("td", pdo.mIsEnabled ? tr("enabled") : tr("disabled"));
        mHtml.open("td").element("code", pdo.mCanId == 0 ? QString() : pdo.canIdText()).close().open("td");
        writeObjects(pdo);
        mHtml.close().close().line();
    }
    mHtml.close().close().close().line();
}
