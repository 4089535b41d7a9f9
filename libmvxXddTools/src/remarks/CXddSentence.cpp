#include "CXddSentence.h"

#include "remarks/CRemarks.h"
#include "remarks/SSentence.h"

#include <cstdint>
#include <cstring>

namespace
{
// Words of a sentence with the texts that `textOf` gives for its arguments in the places of their "%1" to "%9"; a null
// text leaves the place as it is.
template <typename TextOf>
QString filledIn(const QString& words, const std::vector<SArgument>& arguments, TextOf textOf)
{
    using Size = decltype(words.size());
    QString result;
    Size begin = 0; // Of what is not copied yet
    for (Size i = words.indexOf(QLatin1Char('%')); i >= 0; i = words.indexOf(QLatin1Char('%'), i + 1)) {
        const auto number = i + 1 < words.size() ? std::size_t(words.at(i + 1).unicode() - '1') : SIZE_MAX;
        const QString text = number < arguments.size() ? textOf(arguments[number]) : QString();
        if (!text.isNull()) {
            result.append(words.constData() + begin, i - begin);
            result += text;
            begin = i + 2;
        }
    }
    return result.append(words.constData() + begin, words.size() - begin);
}

bool isSameText(const char* left, const char* right)
{
    return left == right || (left != nullptr && right != nullptr && std::strcmp(left, right) == 0);
}
} // namespace

SArgument::SArgument(QLatin1String word)
    : text(word)
    , isWord(true)
{}

SArgument::SArgument(const QString& shown)
    : text(shown.isNull() ? QStringLiteral("") : CRemarks::cut(shown))
{}

SArgument::SArgument(const CXddSentence& inside)
    : sentence(inside)
{}

SArgument::SArgument(quint64 number)
    : text(QString::number(number))
{}

SArgument::SArgument(int number)
    : text(QString::number(number))
{}

SArgument::SArgument(unsigned int number)
    : text(QString::number(number))
{}

SArgument SArgument::word(const QString& text)
{
    SArgument argument{QLatin1String("")};
    argument.text = text;
    return argument;
}

SArgument SArgument::line(int number)
{
    SArgument argument(number);
    argument.isLine = true;
    return argument;
}

SArgument SArgument::asWord() const
{
    SArgument argument = *this;
    argument.isWord = true;
    return argument;
}

bool SArgument::operator==(const SArgument& other) const
{
    return text == other.text && sentence == other.sentence;
}

CXddSentence::CXddSentence() = default;

CXddSentence::CXddSentence(const QString& text)
    : CXddSentence(SSentence{{"%1"}, {text}})
{}

CXddSentence::CXddSentence(SSentence sentence)
    : mSentence(std::make_shared<const SSentence>(std::move(sentence)))
{}

QString CXddSentence::text() const
{
    if (isEmpty()) {
        return QString();
    }
    return filledIn(
        CRemarks::tr(mSentence->words.text, nullptr, mSentence->words.count), mSentence->arguments,
        [](const SArgument& argument) {
            return argument.sentence.isEmpty() ? argument.text : argument.sentence.text();
        });
}

QString CXddSentence::comparable() const
{
    if (isEmpty()) {
        return QString();
    }
    QString words = QString::fromUtf8(mSentence->words.text);
    words.replace(QLatin1String("%n"), QString::number(mSentence->words.count));
    for (std::size_t i = 0; i < mSentence->arguments.size(); ++i) {
        if (mSentence->arguments[i].isLine) {
            words.remove(QStringLiteral(" %%1").arg(i + 1));
        }
    }
    return filledIn(words, mSentence->arguments, [](const SArgument& argument) {
        return argument.sentence.isEmpty() ? argument.text : argument.sentence.comparable();
    });
}

QString CXddSentence::common() const
{
    if (isEmpty()) {
        return QString();
    }
    return filledIn(QString::fromUtf8(mSentence->words.text), mSentence->arguments, [](const SArgument& argument) {
        return !argument.isWord              ? QString()
               : argument.sentence.isEmpty() ? argument.text
                                             : argument.sentence.comparable();
    });
}

bool CXddSentence::operator==(const CXddSentence& other) const
{
    if (mSentence == other.mSentence || isEmpty() || other.isEmpty()) {
        return mSentence == other.mSentence;
    }
    return isSameText(mSentence->words.text, other.mSentence->words.text)
           && mSentence->words.count == other.mSentence->words.count
           && mSentence->arguments == other.mSentence->arguments;
}
