#ifndef MVXXDDTOOLS_CFINDINGS_H
#define MVXXDDTOOLS_CFINDINGS_H

#include "CXddFinding.h"
#include "canopen/CDictionary.h"

#include <QCoreApplication>
#include <QList>

struct SCheckRule;

/** What the rules have found. */
class CFindings
{
    Q_DECLARE_TR_FUNCTIONS(CFindings)

public:
    /** The rule whose findings follow. */
    void setRule(const SCheckRule& rule);

    /** Something is wrong with an element. */
    void add(const CXmlElement& element, const QString& text);
    /** Something is wrong with an entry, whose name is put in front of the text. */
    void add(const SDictionaryEntry& entry, const QString& text);
    /** Something is wrong at a line. */
    void addAt(int line, const QString& text);

    /** All findings in the order of the lines. */
    QList<CXddFinding> inOrder() const;

    /** A text in quotes, with the line of the element that states it unless that is the given one. */
    static QString quoted(const SStated& stated, const CXmlElement& element);

private:
    CXddFinding mCause; // What the findings of the rule have in common
    QList<CXddFinding> mFindings;
};

#endif
