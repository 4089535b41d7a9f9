#include "eds/CEdsFile.h"

#include <algorithm>

namespace
{
// Longest line that is read, in characters. The form allows 255; the longest one published has some thousand.
constexpr int MAX_LINE = 65536;

// Most sections of a file and most keys of a section, which are more than indexes of 16 bits need.
constexpr std::size_t MAX_SECTIONS = 500000;
constexpr std::size_t MAX_KEYS = 100000;

// A section with more keys than that looks them up.
constexpr std::size_t FEW_KEYS = 32;

bool isLineEnd(QChar character)
{
    return character == QLatin1Char('\n') || character == QLatin1Char('\r');
}
} // namespace

const SEdsKey* SEdsSection::key(QLatin1String wanted) const
{
    const auto found = std::find_if(keys.begin(), keys.end(), [wanted](const SEdsKey& key) { return key.is(wanted); });
    return found == keys.end() ? nullptr : &*found;
}

const SEdsKey* SEdsSection::given(QLatin1String wanted) const
{
    const SEdsKey* const found = key(wanted);
    return found == nullptr || found->value.isEmpty() ? nullptr : found;
}

bool CEdsFile::read(const QString& text, CRemarks& remarks, CXddRemark& failure)
{
    mText = text;
    int line = 0;
    const auto refuse = [&](const SWords& words, std::size_t limit) {
        failure.mLine = line;
        failure.mSentence = CRemarks::filled(words, {quint64(limit)});
        return false;
    };
    const QStringView all(mText);
    const auto* const last = all.end();
    for (const auto* begin = all.begin(); begin != last;) {
        ++line;
        const auto* const end = std::find_if(begin, last, isLineEnd);
        if (end - begin > MAX_LINE) {
            return refuse(CRemarks::say("a line has more than %1 characters"), MAX_LINE);
        }
        readLine(QStringView(begin, end).trimmed(), line, remarks);
        if (mSections.size() > MAX_SECTIONS) {
            return refuse(CRemarks::say("the file has more than %1 sections"), MAX_SECTIONS);
        }
        if (mCurrent >= 0 && mSections[std::size_t(mCurrent)].keys.size() > MAX_KEYS) {
            return refuse(CRemarks::say("a section has more than %1 keys"), MAX_KEYS);
        }
        const bool isPair = last - end > 1 && end[0] == QLatin1Char('\r') && end[1] == QLatin1Char('\n');
        begin = end == last ? last : end + (isPair ? 2 : 1);
    }
    return true;
}

const SEdsSection* CEdsFile::find(QLatin1String name) const
{
    const auto found = mByName.constFind(QString(name).toLower());
    return found == mByName.constEnd() ? nullptr : &mSections[std::size_t(*found)];
}

const SEdsSection& CEdsFile::section(QLatin1String name) const
{
    static const SEdsSection none;
    const SEdsSection* const found = find(name);
    return found == nullptr ? none : *found;
}

void CEdsFile::readLine(QStringView text, int line, CRemarks& remarks)
{
    if (text.isEmpty()) {
        return;
    }
    if (text.front() == QLatin1Char(';') || text.front() == QLatin1Char('#')) {
        const auto mark = suppressionsIn(text);
        if (mark >= 0) {
            addSuppressions(text.mid(mark), line, line + 1, mSuppressions);
        }
        return;
    }
    const auto bracket = text.front() == QLatin1Char('[') ? text.indexOf(QLatin1Char(']')) : -1;
    const auto equals = text.indexOf(QLatin1Char('='));
    if (bracket > 0) {
        beginSection(text.mid(1, bracket - 1).trimmed(), line, remarks);
    } else if (equals > 0 && mCurrent >= 0) {
        addKey({text.left(equals).trimmed(), text.mid(equals + 1).trimmed(), line}, remarks);
    } else {
        remarks.left(
            {line}, QLatin1String("eds-line"), CRemarks::say("\"%1\" is neither a section, a key nor a comment"),
            {text.toString()});
    }
}

void CEdsFile::beginSection(QStringView name, int line, CRemarks& remarks)
{
    const QString key = name.toString().toLower();
    mKeys.clear();
    const auto known = mByName.constFind(key);
    if (known != mByName.constEnd()) {
        mCurrent = *known;
        remarks.taken(
            {line}, QLatin1String("section-twice"), CRemarks::say("section [%1] duplicates line %2"),
            {name.toString(), SArgument::line(mSections[std::size_t(mCurrent)].line)});
        return;
    }
    mCurrent = int(mSections.size());
    mByName.insert(key, mCurrent);
    mSections.push_back({name, line});
}

void CEdsFile::addKey(const SEdsKey& key, CRemarks& remarks)
{
    std::vector<SEdsKey>& keys = mSections[std::size_t(mCurrent)].keys;
    const auto lower = [](const SEdsKey& one) {
        return one.name.toString().toLower();
    };
    if (mKeys.isEmpty() && keys.size() >= FEW_KEYS) {
        for (const SEdsKey& known : keys) {
            mKeys << lower(known);
        }
    }
    const bool isKnown =
        mKeys.isEmpty() ? std::any_of(
            keys.begin(), keys.end(),
            [&key](const SEdsKey& known) {
                return known.name.size() == key.name.size() && known.name.compare(key.name, Qt::CaseInsensitive) == 0;
            })
                        : mKeys.contains(lower(key));
    if (isKnown) {
        remarks.left(
            {key.line}, QLatin1String("key-twice"),
            CRemarks::say("key %1 is in its section already: \"%2\" is not taken"),
            {key.name.toString(), key.value.toString()});
        return;
    }
    if (!mKeys.isEmpty()) {
        mKeys << lower(key);
    }
    keys.push_back(key);
}
