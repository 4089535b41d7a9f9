#include "html/CDictionaryTables.h"

#include "CCanOpenNames.h"

#include <QRegularExpression>

#include <algorithm>
#include <tuple>

namespace
{
// From so many rows on a browser lays out parts of the table only as they come into view.
constexpr int LARGE = 3000;
constexpr int CHUNK = 120;

// So many sub-objects that are alike are folded behind the first, and what follows so many rows of an object.
constexpr int MIN_ALIKE = 6;
constexpr int MAX_ROWS_OF_OBJECT = 40;

// Of one rule as many findings are told at their entries; of more only the rule is.
constexpr int MAX_TOLD = 10;

// Texts up to the size of the file and so many characters are written: many entries can refer to one parameter.
constexpr qint64 LEAST_TEXTS = 100000;

constexpr unsigned int FIRST_PDO_OBJECT = 0x1400;
constexpr unsigned int LAST_PDO_OBJECT = 0x1BFF;

QString withoutDigits(const QString& text)
{
    static const QRegularExpression digits(QStringLiteral("\\d+"));
    return text.left(200).remove(digits);
}
} // namespace

CDictionaryTables::CDictionaryTables(CHtml& html, const SPage& page)
    : mHtml(html)
    , mPage(page)
    , mTexts(page.description)
    , mIsLarge(page.entries.size() >= LARGE)
    , mTextsLeft(page.bytes.size() + LEAST_TEXTS)
{
    for (const CXddPdo& pdo : page.pdos) {
        for (const CXddPdoField& field : pdo.mFields) {
            QStringList& names = mPdos[field.entry()];
            names << (names.contains(pdo.name()) ? QStringList() : QStringList{pdo.name()});
        }
    }
    for (const SPdo& pdo : page.description.pdos()) {
        for (const SPdoField& field : pdo.fields) {
            if (field.isNumber && !field.mapsNothing()) {
                const QString name = field.target == nullptr ? QString() : QLatin1Char(' ') + field.target->name;
                mMapped.insert(field.entry->place().entry(), field.name() + cutForPage(name));
            }
        }
    }
    for (const CXddRemark& finding : page.findings) {
        mFindings[finding.entry()] << &finding;
        ++mFindingsOfRule[finding.mRule];
    }
}

QList<SDictionaryRange> CDictionaryTables::ranges(const SPage& page)
{
    const QList<SDictionaryRange> all = {
        {QStringLiteral("data-types"), tr("Data types"), tr("Data types"), 0, 0xFFF},
        {QStringLiteral("communication"), tr("Communication objects"), tr("Communication"), 0x1000, 0x1FFF},
        {QStringLiteral("manufacturer"), tr("Manufacturer-specific objects"), tr("Manufacturer"), 0x2000, 0x5FFF},
        {QStringLiteral("profile"), tr("Objects of the device profile"), tr("Device profile"), 0x6000, 0x9FFF},
        {QStringLiteral("other"), tr("Other objects"), tr("Other"), 0xA000, 0xFFFFFFFF},
    };
    QList<SDictionaryRange> ranges;
    const QMap<unsigned int, std::size_t>& objects = page.description.dictionary().byIndex();
    for (const SDictionaryRange& range : all) {
        const auto first = objects.lowerBound(range.first);
        if (first != objects.end() && first.key() <= range.last) {
            ranges << range;
        }
    }
    return ranges;
}

void CDictionaryTables::write()
{
    mHtml.open("section", {{"id", QStringLiteral("dictionary")}}).line();
    for (const SDictionaryRange& range : ranges(mPage)) {
        writeRange(range);
    }
    mHtml.element("p", tr("No entry has all these words."), {{"id", QStringLiteral("none")}, {"hidden", noValue()}});
    if (mTextsLeft < 0) {
        mHtml.element("p", tr("Further texts are left out: together they are far longer than the description."));
    }
    mHtml.close().line();
}

// The parameters of PDOs are folded, as the cards show what they mean.
void CDictionaryTables::writeRange(const SDictionaryRange& range)
{
    Rows before;
    Rows ofPdos;
    Rows behind;
    for (const CXddEntry& entry : mPage.entries) {
        if (entry.mIndex >= range.first && entry.mIndex <= range.last) {
            const bool isOfPdo = entry.mIndex >= FIRST_PDO_OBJECT && entry.mIndex <= LAST_PDO_OBJECT;
            (isOfPdo ? ofPdos : entry.mIndex < FIRST_PDO_OBJECT ? before : behind) << &entry;
        }
    }
    mHtml.open("div", {{"class", QStringLiteral("block")}, {"id", range.id}}).line();
    mHtml.element("h2", range.name).line();
    writeTables(before);
    if (!ofPdos.isEmpty()) {
        mHtml.open("details", {{"class", QStringLiteral("grp")}});
        mHtml
            .element(
                "summary", tr("Parameters of PDOs, %1 to %2")
                               .arg(CCanOpenNames::index(FIRST_PDO_OBJECT), CCanOpenNames::index(LAST_PDO_OBJECT)))
            .line();
        writeTables(ofPdos);
        mHtml.close().line();
    }
    writeTables(behind);
    mHtml.close().line();
}

void CDictionaryTables::writeTables(const Rows& rows)
{
    if (rows.isEmpty()) {
        return;
    }
    beginTable();
    for (int first = 0; first < rows.size();) {
        int end = first + 1;
        while (end < rows.size() && rows[end]->mSubIndex) {
            ++end;
        }
        if (mIsLarge && mRows >= CHUNK) {
            endTable();
            beginTable();
        }
        writeObject(rows, first, end);
        first = end;
    }
    endTable();
}

void CDictionaryTables::beginTable()
{
    mHtml.open("div", {{"class", mIsLarge ? QStringLiteral("chunk") : QString()}});
    mHtml.open("table", {{"class", QStringLiteral("od")}}).open("thead").open("tr");
    for (const QString& head :
         {tr("Index"), tr("Name"), tr("Type"), tr("Access"), tr("PDO"), tr("Default"), tr("Range")}) {
        mHtml.element("th", head, {{"scope", QStringLiteral("col")}});
    }
    mHtml.close().close().line().open("tbody").line();
    mRows = 0;
}

void CDictionaryTables::endTable()
{
    mHtml.close().close().close().line();
}

void CDictionaryTables::writeObject(const Rows& rows, int first, int end)
{
    writeRow(*rows[first], rowId(rows[first]->mIndex, std::nullopt));
    mSubIndexes.clear();
    for (int i = first + 1; i < end;) {
        int next = i + 1;
        while (next < end && isAlike(*rows[i], *rows[next])) {
            ++next;
        }
        writeSubObject(*rows[i]);
        if (next - i >= MIN_ALIKE) {
            writeFold(rows, i + 1, next, tr("%n more like this", nullptr, next - i - 1));
            i = next;
        } else if (++i - first > MAX_ROWS_OF_OBJECT && end - i >= MIN_ALIKE) {
            writeFold(rows, i, end, tr("%n further sub-object(s)", nullptr, end - i));
            return;
        }
    }
}

// Rows that are folded stand in a table of their own.
void CDictionaryTables::writeFold(const Rows& rows, int first, int end, const QString& text)
{
    mHtml.open("tr", {{"class", QStringLiteral("in")}});
    mHtml.open("td", {{"class", QStringLiteral("in")}, {"colspan", QStringLiteral("7")}}).open("details");
    mHtml.element("summary", text).line();
    const int before = mRows;
    const bool isLarge = mIsLarge;
    mIsLarge = false; // A link does not lead exactly into what is not laid out
    beginTable();
    for (int i = first; i < end; ++i) {
        writeSubObject(*rows[i]);
    }
    endTable();
    mIsLarge = isLarge;
    mRows = before + 1;
    mHtml.close().close().close().line();
}

// A sub-index that is there twice has an ID with a number.
void CDictionaryTables::writeSubObject(const CXddEntry& entry)
{
    const int same = ++mSubIndexes[*entry.mSubIndex];
    const QString id = rowId(entry.mIndex, entry.mSubIndex);
    writeRow(entry, same == 1 ? id : QStringLiteral("%1-%2").arg(id).arg(same));
}

void CDictionaryTables::writeRow(const CXddEntry& entry, const QString& id)
{
    ++mRows;
    mHtml.open("tr", {{"id", id}});
    mHtml.open("td").link(id, entry.address()).close();
    writeName(entry);
    mHtml.element("td", entry.typeText()).element("td", entry.accessText());
    writePdo(entry);
    writeDefault(entry);
    mHtml.element("td", rangeText(entry)).close().line();
}

void CDictionaryTables::writeName(const CXddEntry& entry)
{
    mHtml.open("td").text(cutForPage(entry.mName));
    if (!entry.mDenotation.isEmpty()) {
        mHtml.element("p", tr("Denotation: %1").arg(cutForPage(entry.mDenotation)));
    }
    writeTexts(entry);
    writeMapped(entry);
    if (mPage.hasFindings) {
        writeFindings(entry);
    }
    mHtml.close();
}

CXddEntryTexts CDictionaryTables::textsOf(const CXddEntry& entry)
{
    const SEntry* const described = mPage.description.dictionary().entry(entry.mIndex, entry.mSubIndex);
    return described == nullptr ? CXddEntryTexts() : mTexts.of(*described);
}

void CDictionaryTables::writeTexts(const CXddEntry& entry)
{
    const CXddEntryTexts texts = textsOf(entry);
    mUnit = cutForPage(CXddLabel::chosen(texts.mUnits, mPage.language));
    mTextsLeft -= texts.characters();
    if (mTextsLeft < 0) {
        return;
    }
    writeLabels(texts.mLabels, entry.mName);
    writeLabels(texts.mDescriptions, entry.mName);
    if (!texts.mMultiplier.isEmpty() || !texts.mOffset.isEmpty()) {
        const auto orElse = [](const QString& text, const char* otherwise) {
            return text.isEmpty() ? QString::fromLatin1(otherwise) : cutForPage(text);
        };
        mHtml.element(
            "p", tr("Physical value: (raw + %1) × %2").arg(orElse(texts.mOffset, "0"), orElse(texts.mMultiplier, "1")));
    }
    writeValues(texts.mAllowedValues, entry);
}

// All languages, those of the page first.
void CDictionaryTables::writeLabels(const QList<CXddLabel>& labels, const QString& except)
{
    for (const bool isChosen : {true, false}) {
        for (const CXddLabel& label : labels) {
            const bool isIn = label.isIn(mPage.language);
            if (isIn == isChosen && label.mText != except) {
                mHtml.element(
                    "p", label.mText,
                    {{"class", QStringLiteral("soft")},
                     {"lang", label.mLanguage.isEmpty() ? QString() : label.mLanguage.left(20)}});
            }
        }
    }
}

// A range without a label that is that of the limits is shown there.
void CDictionaryTables::writeValues(const QList<CXddAllowedValue>& values, const CXddEntry& entry)
{
    const auto isShown = [&entry](const CXddAllowedValue& value) {
        return !value.mLabels.isEmpty() || value.mLow != entry.mLowLimit.mText || value.mHigh != entry.mHighLimit.mText;
    };
    if (std::none_of(values.begin(), values.end(), isShown)) {
        return;
    }
    mHtml.open("ul", {{"class", QStringLiteral("vals")}});
    for (const CXddAllowedValue& value : values) {
        if (!isShown(value)) {
            continue;
        }
        const QString range = value.isSingle() ? value.mLow : tr("%1 to %2").arg(value.mLow, value.mHigh);
        mHtml.open("li").element("code", range);
        mHtml.text(QLatin1Char(' ') + CXddLabel::chosen(value.mLabels, mPage.language)).close();
    }
    mHtml.close();
}

void CDictionaryTables::writeMapped(const CXddEntry& entry)
{
    const QString mapped = mMapped.value(entry.address());
    if (!mapped.isEmpty()) {
        mHtml.element("p", tr("maps %1").arg(mapped), {{"class", QStringLiteral("soft")}});
    }
}

void CDictionaryTables::writeFindings(const CXddEntry& entry)
{
    for (const CXddRemark* const finding : mFindings.value(entry.address())) {
        const QString severity = CXddRemark::severityAsStr(finding->mSeverity);
        mHtml.open("p", {{"class", severity.left(1)}}).element("code", finding->mRule);
        if (mFindingsOfRule.value(finding->mRule) <= MAX_TOLD) {
            mHtml.text(QLatin1Char(' ') + finding->mSentence.text());
        }
        mHtml.close();
    }
}

// What it may be mapped to, or the PDOs that carry it.
void CDictionaryTables::writePdo(const CXddEntry& entry)
{
    mHtml.open("td").text(entry.mappingText());
    for (const QString& pdo : mPdos.value(entry.address())) {
        mHtml.text(QStringLiteral(" ")).link(pdo, pdo);
    }
    mHtml.close();
}

void CDictionaryTables::writeDefault(const CXddEntry& entry)
{
    mHtml.open("td").text(cutForPage(entry.mDefaultValue.mText));
    if (entry.mActualValue.isGiven()) {
        mHtml.text(QStringLiteral(" ")).open("p").element("span", tr("actual"), {{"class", QStringLiteral("soft")}});
        mHtml.text(QLatin1Char(' ') + cutForPage(entry.mActualValue.mText)).close();
    }
    mHtml.close();
}

QString CDictionaryTables::rangeText(const CXddEntry& entry) const
{
    const QString low = cutForPage(entry.mLowLimit.mText);
    const QString high = cutForPage(entry.mHighLimit.mText);
    const QString range = low.isEmpty() && high.isEmpty() ? QString()
                          : high.isEmpty()                ? QStringLiteral("≥ ") + low
                          : low.isEmpty()                 ? QStringLiteral("≤ ") + high
                                                          : tr("%1 to %2").arg(low, high);
    return mUnit.isEmpty() ? range : QStringLiteral("%1 [%2]").arg(range, mUnit).trimmed();
}

// What the description says of a sub-object, but for numbers.
QString CDictionaryTables::saidOf(const CXddEntry& entry)
{
    const CXddEntryTexts texts = textsOf(entry);
    QString said = CXddLabel::chosen(texts.mUnits, mPage.language);
    for (const QList<CXddLabel>& labels : {texts.mLabels, texts.mDescriptions}) {
        said += QLatin1Char(' ') + withoutDigits(CXddLabel::chosen(labels, mPage.language));
    }
    return texts.mAllowedValues.isEmpty() ? said : QString::number(*entry.mSubIndex); // Values are not compared
}

// Two sub-objects that differ in their numbers at most, and of which nothing more is said.
bool CDictionaryTables::isAlike(const CXddEntry& left, const CXddEntry& right)
{
    const auto stated = [](const CXddEntry& entry) {
        return std::make_tuple(
            entry.mObjectCode, entry.mDataType, entry.mAccessType, entry.mPdoMapping, entry.mDefaultValue.mText,
            entry.mActualValue.mText, entry.mLowLimit.mText, entry.mHighLimit.mText, entry.mDenotation,
            withoutDigits(entry.mName));
    };
    return stated(left) == stated(right) && !mFindings.contains(right.address()) && !mPdos.contains(right.address())
           && (left.mUniqueIdRef == right.mUniqueIdRef || saidOf(left) == saidOf(right));
}
