#include "html/CDictionaryTables.h"

#include "CCanOpenNames.h"

#include <QRegularExpression>

#include <algorithm>

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
    , mIsLarge(page.entries() >= LARGE)
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
    const auto& objects = page.reader.networkProfile().mObjects;
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
    Objects before;
    Objects ofPdos;
    Objects behind;
    const auto& objects = mPage.reader.networkProfile().mObjects;
    for (auto object = objects.lowerBound(range.first); object != objects.end() && object.key() <= range.last;
         ++object) {
        const bool isOfPdo = object.key() >= FIRST_PDO_OBJECT && object.key() <= LAST_PDO_OBJECT;
        (isOfPdo ? ofPdos : object.key() < FIRST_PDO_OBJECT ? before : behind) << &*object;
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

void CDictionaryTables::writeTables(const Objects& objects)
{
    if (objects.isEmpty()) {
        return;
    }
    beginTable();
    for (const CCanOpenObject* const object : objects) {
        if (mIsLarge && mRows >= CHUNK) {
            endTable();
            beginTable();
        }
        writeObject(*object);
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

void CDictionaryTables::writeObject(const CCanOpenObject& object)
{
    writeRow(object.mIndex, std::nullopt, object, rowId(object.mIndex, std::nullopt));
    mSubIndexes.clear();
    const int count = int(object.mSubObjects.size());
    for (int i = 0; i < count;) {
        int end = i + 1;
        while (end < count && isAlike(object, i, end)) {
            ++end;
        }
        writeSubObject(object, i);
        if (end - i >= MIN_ALIKE) {
            writeFold(object, i + 1, end, tr("%n more like this", nullptr, end - i - 1));
            i = end;
        } else if (++i >= MAX_ROWS_OF_OBJECT && count - i >= MIN_ALIKE) {
            writeFold(object, i, count, tr("%n further sub-object(s)", nullptr, count - i));
            return;
        }
    }
}

// Rows that are folded stand in a table of their own.
void CDictionaryTables::writeFold(const CCanOpenObject& object, int first, int end, const QString& text)
{
    mHtml.open("tr", {{"class", QStringLiteral("in")}});
    mHtml.open("td", {{"class", QStringLiteral("in")}, {"colspan", QStringLiteral("7")}}).open("details");
    mHtml.element("summary", text).line();
    const int rows = mRows;
    const bool isLarge = mIsLarge;
    mIsLarge = false; // A link does not lead exactly into what is not laid out
    beginTable();
    for (int i = first; i < end; ++i) {
        writeSubObject(object, i);
    }
    endTable();
    mIsLarge = isLarge;
    mRows = rows + 1;
    mHtml.close().close().close().line();
}

// A sub-index that is there twice has an ID with a number.
void CDictionaryTables::writeSubObject(const CCanOpenObject& object, int number)
{
    const CCanOpenSubObject& subObject = object.mSubObjects[number];
    const int same = ++mSubIndexes[subObject.mIndex];
    const QString id = rowId(object.mIndex, subObject.mIndex);
    writeRow(object.mIndex, subObject.mIndex, subObject, same == 1 ? id : QStringLiteral("%1-%2").arg(id).arg(same));
}

void CDictionaryTables::writeRow(
    unsigned int index, std::optional<unsigned int> subIndex, const CCanOpenSubObject& entry, const QString& id)
{
    ++mRows;
    const QString address = CCanOpenNames::entry(index, subIndex);
    mHtml.open("tr", {{"id", id}});
    mHtml.open("td").link(id, address).close();
    writeName(index, subIndex, entry);
    mHtml.element("td", CCanOpenNames::type(entry)).element("td", CCanOpenNames::access(entry));
    writePdo(address, entry);
    writeDefault(entry);
    mHtml.element("td", rangeText(entry)).close().line();
}

void CDictionaryTables::writeName(
    unsigned int index, std::optional<unsigned int> subIndex, const CCanOpenSubObject& entry)
{
    mHtml.open("td").text(cutForPage(entry.mName));
    if (!entry.mDenotation.isEmpty()) {
        mHtml.element("p", tr("Denotation: %1").arg(cutForPage(entry.mDenotation)));
    }
    writeTexts(index, subIndex, entry);
    writeMapped(index, subIndex);
    if (mPage.hasFindings) {
        writeFindings(index, subIndex);
    }
    mHtml.close();
}

void CDictionaryTables::writeTexts(
    unsigned int index, std::optional<unsigned int> subIndex, const CCanOpenSubObject& entry)
{
    const CDictionary& dictionary = mPage.description.dictionary();
    const SEntry* const described = subIndex ? dictionary.subObject(index, *subIndex) : dictionary.object(index);
    mUnit.clear();
    if (described == nullptr) {
        return;
    }
    const CXddEntryTexts texts = mTexts.of(*described);
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
            const bool isIn = label.mLanguage.startsWith(mPage.language, Qt::CaseInsensitive);
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
void CDictionaryTables::writeValues(const QList<CXddAllowedValue>& values, const CCanOpenSubObject& entry)
{
    const auto isShown = [&entry](const CXddAllowedValue& value) {
        return !value.mLabels.isEmpty() || value.mLow != entry.mLowLimit || value.mHigh != entry.mHighLimit;
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

void CDictionaryTables::writeMapped(unsigned int index, std::optional<unsigned int> subIndex)
{
    const QString mapped = mMapped.value(CCanOpenNames::entry(index, subIndex));
    if (!mapped.isEmpty()) {
        mHtml.element("p", tr("maps %1").arg(mapped), {{"class", QStringLiteral("soft")}});
    }
}

void CDictionaryTables::writeFindings(unsigned int index, std::optional<unsigned int> subIndex)
{
    const QString address = CCanOpenNames::entry(index, subIndex);
    for (const CXddRemark* const finding : mFindings.value(address)) {
        const QString severity = CXddRemark::severityAsStr(finding->mSeverity);
        mHtml.open("p", {{"class", severity.left(1)}}).element("code", finding->mRule);
        if (mFindingsOfRule.value(finding->mRule) <= MAX_TOLD) {
            mHtml.text(QLatin1Char(' ') + finding->mSentence.text());
        }
        mHtml.close();
    }
}

// What it may be mapped to, or the PDOs that carry it.
void CDictionaryTables::writePdo(const QString& address, const CCanOpenSubObject& entry)
{
    mHtml.open("td").text(CCanOpenNames::mapping(entry));
    for (const QString& pdo : mPdos.value(address)) {
        mHtml.text(QStringLiteral(" ")).link(pdo, pdo);
    }
    mHtml.close();
}

void CDictionaryTables::writeDefault(const CCanOpenSubObject& entry)
{
    mHtml.open("td").text(cutForPage(entry.mDefaultValue));
    if (!entry.mActualValue.isEmpty()) {
        mHtml.text(QStringLiteral(" ")).open("p").element("span", tr("actual"), {{"class", QStringLiteral("soft")}});
        mHtml.text(QLatin1Char(' ') + cutForPage(entry.mActualValue)).close();
    }
    mHtml.close();
}

QString CDictionaryTables::rangeText(const CCanOpenSubObject& entry) const
{
    const QString low = cutForPage(entry.mLowLimit);
    const QString high = cutForPage(entry.mHighLimit);
    const QString range = low.isEmpty() && high.isEmpty() ? QString()
                          : high.isEmpty()                ? QStringLiteral("≥ ") + low
                          : low.isEmpty()                 ? QStringLiteral("≤ ") + high
                                                          : tr("%1 to %2").arg(low, high);
    return mUnit.isEmpty() ? range : QStringLiteral("%1 [%2]").arg(range, mUnit).trimmed();
}

// What the description says of a sub-object, but for numbers.
QString CDictionaryTables::saidOf(unsigned int index, unsigned int subIndex)
{
    const SEntry* const entry = mPage.description.dictionary().subObject(index, subIndex);
    const CXddEntryTexts texts = entry == nullptr ? CXddEntryTexts() : mTexts.of(*entry);
    QString said = CXddLabel::chosen(texts.mUnits, mPage.language);
    for (const QList<CXddLabel>& labels : {texts.mLabels, texts.mDescriptions}) {
        said += QLatin1Char(' ') + withoutDigits(CXddLabel::chosen(labels, mPage.language));
    }
    return texts.mAllowedValues.isEmpty() ? said : QString::number(subIndex); // Values are not compared
}

// Two sub-objects that differ in their numbers at most, and of which nothing more is said.
bool CDictionaryTables::isAlike(const CCanOpenObject& object, int left, int right)
{
    const CCanOpenSubObject& one = object.mSubObjects[left];
    const CCanOpenSubObject& other = object.mSubObjects[right];
    return one.mObjectType == other.mObjectType && one.mDataType == other.mDataType
           && one.mAccessType == other.mAccessType && one.mPdoMapping == other.mPdoMapping
           && one.mDefaultValue == other.mDefaultValue && one.mActualValue == other.mActualValue
           && one.mLowLimit == other.mLowLimit && one.mHighLimit == other.mHighLimit
           && one.mDenotation == other.mDenotation
           && !mFindings.contains(CCanOpenNames::entry(object.mIndex, other.mIndex))
           && !mPdos.contains(CCanOpenNames::entry(object.mIndex, other.mIndex))
           && withoutDigits(one.mName) == withoutDigits(other.mName)
           && (one.mUniqueIdRef == other.mUniqueIdRef
               || saidOf(object.mIndex, one.mIndex) == saidOf(object.mIndex, other.mIndex));
}
