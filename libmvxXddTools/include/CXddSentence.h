#ifndef MVXXDDTOOLS_CXDDSENTENCE_H
#define MVXXDDTOOLS_CXDDSENTENCE_H

#include "mvxXddTools_export.h"

#include <QString>

#include <memory>

struct SSentence;

/**
 * What a remark says: words of the library, and what stands in their places. It is put together when it is asked for,
 * in the language that the program has then, so that one remark can be shown in several languages and compared in none.
 * Copies share it.
 *
 * What it repeats of a file is cut after 200 characters, and may contain control characters.
 */
class MVXXDDTOOLS_EXPORT CXddSentence
{
public:
    /** Nothing. */
    CXddSentence();
    /** A text that is the same in every language, such as a message of the system. */
    explicit CXddSentence(const QString& text);
    /** Words with what stands in their places, which the library makes. */
    explicit CXddSentence(SSentence sentence);

    /** True when nothing is said. */
    bool isEmpty() const { return mSentence == nullptr; }

    /** The whole sentence in the language of the program. */
    QString text() const;

    /** The same in English, whatever catalogues are installed, without numbers of lines: what a baseline compares. */
    QString comparable() const;

    /** What sentences that are alike have in common: their words, and the words of the format in them, but not texts
     * and numbers of a file. The same in every language. */
    QString common() const;

    /** True for the same words with the same texts in their places. */
    bool operator==(const CXddSentence& other) const;

private:
    std::shared_ptr<const SSentence> mSentence;
};

#endif
