#include "dbc/DbcNames.h"

#include "names/Hexadecimal.h"

#include <array>

namespace
{
// As much of a name of an entry is looked at.
constexpr int MAX_LONG_NAME = 200;

constexpr QLatin1Char UNDERSCORE('_');

// Words that a reader of the format takes for something else than a name, in lower case.
const QSet<QString>& keywords()
{
    static const QSet<QString> words = [] {
        const QString all = QStringLiteral(
            "version ns_ ns_desc_ cm_ ba_def_ ba_ val_ cat_def_ cat_ filter ba_def_def_ ev_data_ envvar_data_ sgtype_ "
            "sgtype_val_ ba_def_sgtype_ ba_sgtype_ sig_type_ref_ val_table_ sig_group_ sig_valtype_ sigtype_valtype_ "
            "bo_tx_bu_ ba_def_rel_ ba_rel_ ba_def_def_rel_ bu_sg_rel_ bu_ev_rel_ bu_bo_rel_ sg_mul_val_ bs_ bu_ bo_ "
            "sg_ ev_ int hex float string enum vector__xxx vector__independent_sig_msg");
        const QStringList list = all.split(QLatin1Char(' '));
        return QSet<QString>(list.begin(), list.end());
    }();
    return words;
}

// What is written for characters that do not become a letter by leaving their marks out.
QString replacement(uint character)
{
    struct SLetters
    {
        uint character;
        const char* letters;
    };
    static constexpr std::array<SLetters, 12> letters = {{
        {0xB0, "deg"},
        {0xB5, "u"},
        {0x3BC, "u"},
        {0x3A9, "Ohm"},
        {0x2126, "Ohm"},
        {0xDF, "ss"},
        {0xC6, "AE"},
        {0xE6, "ae"},
        {0xD8, "O"},
        {0xF8, "o"},
        {0x2013, "-"},
        {0x2014, "-"},
    }};
    for (const SLetters& row : letters) {
        if (row.character == character) {
            return QString::fromLatin1(row.letters);
        }
    }
    return QStringLiteral("?");
}

// A text in ASCII, in which a blank stands for every control character.
QString folded(const QString& text)
{
    QString result;
    for (const uint character : text.toUcs4()) {
        if (character < 0x80) {
            result += character < 0x20 || character == 0x7F ? QLatin1Char(' ') : QLatin1Char(char(character));
            continue;
        }
        const QString own = replacement(character);
        const char32_t code = character;
        const QString parts = QString::fromUcs4(&code, 1).normalized(QString::NormalizationForm_KD);
        const bool isLetter = own == QLatin1String("?") && parts.at(0).unicode() < 0x80;
        result += isLetter ? QString(parts.at(0)) : own;
    }
    return result;
}

bool isNameCharacter(QChar character)
{
    return character.unicode() < 0x80 && character.isLetterOrNumber();
}
} // namespace

QString dbcText(const QString& text)
{
    QString result = folded(text).simplified();
    result.replace(QLatin1Char('"'), QLatin1Char('\''));
    return result.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

QString dbcName(const QString& text)
{
    QString name;
    for (const QChar character : folded(text)) {
        if (isNameCharacter(character)) {
            name += character;
        } else if (!name.isEmpty() && !name.endsWith(UNDERSCORE)) {
            name += UNDERSCORE;
        }
    }
    name = shortened(name, int(name.size()));
    if (name.isEmpty()) {
        return name;
    }
    return name.at(0).isDigit() ? UNDERSCORE + name : keywords().contains(name.toLower()) ? name + UNDERSCORE : name;
}

QString shortened(const QString& name, int length)
{
    QString beginning = name.left(length);
    while (beginning.endsWith(UNDERSCORE)) {
        beginning.chop(1);
    }
    return beginning;
}

CDbcNames::CDbcNames(const CDictionary& dictionary)
    : mDictionary(dictionary)
{
    for (const SEntry& entry : dictionary.entries()) {
        if (entry.isVariable()) {
            for (const SDbcName& candidate : candidates(dictionary.objectOf(entry).name.left(MAX_LONG_NAME), entry)) {
                ++mCounts[candidate.name.toLower()];
            }
        }
    }
}

SDbcName CDbcNames::of(const SEntry& entry) const
{
    for (const SDbcName& candidate : candidates(mDictionary.objectOf(entry).name.left(MAX_LONG_NAME), entry)) {
        if (mCounts.value(candidate.name.toLower()) == 1) {
            return candidate;
        }
    }
    return byIndex(entry.index.value_or(0), entry.isSubObject, entry.subIndex.value_or(0));
}

SDbcName CDbcNames::byIndex(unsigned int index, bool isSubObject, unsigned int subIndex)
{
    const QString end = isSubObject ? UNDERSCORE + hexadecimalDigits(subIndex, 2) : QString();
    return {QLatin1String("Index_") + hexadecimalDigits(index, 4) + end, QString()};
}

// The object's part is what is made shorter.
QVector<SDbcName> CDbcNames::candidates(const QString& object, const SEntry& entry)
{
    const QString own = dbcName(entry.name.left(MAX_LONG_NAME));
    if (own.isEmpty()) {
        return {};
    }
    const auto named = [&own](const QString& front, const QString& end) {
        const QString whole = (front.isEmpty() ? own : dbcName(front + UNDERSCORE + own)) + end;
        if (whole.size() <= MAX_DBC_NAME) {
            return SDbcName{whole, QString()};
        }
        const int room = MAX_DBC_NAME - int(own.size() + end.size()) - 1;
        const QString beginning = front.isEmpty() ? QString() : shortened(dbcName(front), room);
        const bool hasRoom = room > 0 && !beginning.isEmpty();
        return SDbcName{
            (hasRoom ? beginning + UNDERSCORE + own : shortened(own, MAX_DBC_NAME - int(end.size()))) + end, whole};
    };
    if (!entry.isSubObject) {
        return {
            named(QString(), QString()), named(QString(), UNDERSCORE + hexadecimalDigits(entry.index.value_or(0), 4))};
    }
    const QString subIndex = UNDERSCORE + hexadecimalDigits(entry.subIndex.value_or(0), 2);
    return {named(QString(), QString()), named(object, QString()), named(object, subIndex)};
}

QString CUsedNames::unique(const QString& name)
{
    QString result = name;
    for (int number = 2; mUsed.contains(result.toLower()); ++number) {
        const QString end = UNDERSCORE + QString::number(number);
        result = shortened(name, MAX_DBC_NAME - int(end.size())) + end;
    }
    mUsed.insert(result.toLower());
    return result;
}
