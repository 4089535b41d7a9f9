#ifndef MVXXDDTOOLS_SSENTENCE_H
#define MVXXDDTOOLS_SSENTENCE_H

#include "CXddSentence.h"

#include <vector>

/** What takes the place of a "%1" in a sentence. */
struct SArgument
{
    SArgument(QLatin1String word);         ///< A word of the format, which sentences that are alike have in common
    SArgument(const QString& shown);       ///< A text of a file; one of more than 200 characters is cut
    SArgument(const CXddSentence& inside); ///< A sentence inside of another one
    SArgument(quint64 number);
    SArgument(int number);
    SArgument(unsigned int number);

    /** Words of the format. */
    static SArgument word(const QString& text);
    /** The number of a line, which moves when something is inserted above it. */
    static SArgument line(int number);

    /** The same as a word, which sentences that are alike have in common. */
    SArgument asWord() const;

    bool operator==(const SArgument& other) const;

    QString text;
    CXddSentence sentence; ///< Takes precedence
    bool isWord = false;
    bool isLine = false;
};

/** Words in English, which are translated in the context of the library, with "%1" to "%9" and "%n". */
struct SWords
{
    const char* text = nullptr;
    int count = -1; ///< What "%n" stands for; negative where there is none

    bool isEmpty() const { return text == nullptr; }
};

/** What a CXddSentence consists of. */
struct SSentence
{
    SWords words;
    std::vector<SArgument> arguments;
};

#endif
