#ifndef MVXXDDTOOLS_CREMARKS_H
#define MVXXDDTOOLS_CREMARKS_H

#include "CXddRemark.h"
#include "remarks/SSentence.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <initializer_list>
#include <optional>

/** What a remark is about: a place of the file, and an entry of the object dictionary where it is one. */
struct SPlace
{
    int line = 0;
    int column = 0;
    bool isEntry = false;
    bool isSubObject = false;
    std::optional<unsigned int> index = std::nullopt;    ///< Of an entry, where it is readable
    std::optional<unsigned int> subIndex = std::nullopt; ///< Of a sub-object, where it is readable

    /** "0x1018" or "0x2001:0A"; "?" for what is not readable, nothing for a place that is no entry. */
    QString entry() const;
};

/**
 * Collects remarks and puts them in order. All sentences of the library are translated in its context.
 */
class CRemarks
{
    Q_DECLARE_TR_FUNCTIONS(mvxXddTools)

public:
    using Arguments = std::initializer_list<SArgument>;

    /** What the remarks that follow have in common: kind, severity, rule and reason. */
    void setCause(const CXddRemark& cause);
    const CXddRemark& cause() const { return mCause; }

    /** The words of a sentence, to be found by the translators' tools; @p count is what "%n" stands for. */
    static SWords say(const char* text, const char* = nullptr, int count = -1) { return {text, count}; }

    /** A sentence of words with arguments in their places. */
    static CXddSentence filled(const SWords& words, Arguments arguments = {});

    /** Adds a remark about a place. */
    void add(const SPlace& place, const SWords& words, Arguments arguments = {});
    /** Adds a remark that is made already. */
    void add(const CXddRemark& remark);

    /** Something by a rule of its own: it was taken for what it means, was not taken, is only found, or cannot be said
     * in another form. */
    void taken(const SPlace& place, QLatin1String rule, const SWords& words, Arguments arguments = {});
    void left(const SPlace& place, QLatin1String rule, const SWords& words, Arguments arguments = {});
    void found(const SPlace& place, QLatin1String rule, const SWords& words, Arguments arguments = {});
    void lost(const SPlace& place, QLatin1String rule, const SWords& words, Arguments arguments = {});

    /** All remarks in the order of the lines. Two that say the same of one place are one. */
    QList<CXddRemark> inOrder() const;

    /** A text of a file, as a message repeats it: of a megabyte no more than its beginning. */
    static QString cut(const QString& text);

private:
    void add(CXddRemark::EKind kind, const SPlace& place, QLatin1String rule, const SWords& words, Arguments arguments);

    CXddRemark mCause;
    QList<CXddRemark> mRemarks;
};

#endif
