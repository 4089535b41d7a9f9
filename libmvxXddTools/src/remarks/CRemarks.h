#ifndef MVXXDDTOOLS_CREMARKS_H
#define MVXXDDTOOLS_CREMARKS_H

#include "CXddRemark.h"

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

/** What takes the place of a "%1" in the sentence of a remark. */
struct SArgument
{
    SArgument(QLatin1String word); ///< A word of the format, which remarks that are alike have in common
    SArgument(const QString& text);
    SArgument(quint64 number);
    SArgument(int number);
    SArgument(unsigned int number);

    /** Several words of the format. */
    static SArgument word(const QString& text);

    QString shown; ///< No text of a file is longer than 200 characters here
    bool isWord = false;
};

/**
 * Collects remarks. All sentences of the library are translated in its context, and filled, cut and put in order here.
 */
class CRemarks
{
    Q_DECLARE_TR_FUNCTIONS(mvxXddTools)

public:
    using Arguments = std::initializer_list<SArgument>;

    /** What the remarks that follow have in common: kind, severity, rule and reason. */
    void setCause(const CXddRemark& cause);
    const CXddRemark& cause() const { return mCause; }

    /** Adds a remark; the name of an entry is put in front of the sentence. */
    void add(const SPlace& place, const QString& sentence, Arguments arguments = {});
    /** Adds a remark that is made already. */
    void add(const CXddRemark& remark);

    /** Something by a rule of its own: it was taken for what it means, was not taken, or is only found. */
    void taken(const SPlace& place, QLatin1String rule, const QString& sentence, Arguments arguments = {});
    void left(const SPlace& place, QLatin1String rule, const QString& sentence, Arguments arguments = {});
    void found(const SPlace& place, QLatin1String rule, const QString& sentence, Arguments arguments = {});

    /** All remarks in the order of the lines. Two that say the same of one place are one. */
    QList<CXddRemark> inOrder() const;

    /** A translated sentence with its arguments in place. */
    static QString filled(const QString& sentence, Arguments arguments);

    /** A text of a file, as a message repeats it: of a megabyte no more than its beginning. */
    static QString cut(const QString& text);

private:
    void add(
        CXddRemark::EKind kind, const SPlace& place, QLatin1String rule, const QString& sentence, Arguments arguments);

    CXddRemark mCause;
    QList<CXddRemark> mRemarks;
};

#endif
