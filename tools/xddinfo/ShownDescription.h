#ifndef XDDINFO_SHOWNDESCRIPTION_H
#define XDDINFO_SHOWNDESCRIPTION_H

#include <CXddDocument.h>

#include <QList>
#include <QString>

#include <optional>

class ICIso15745;

/** A description that is to be shown. */
struct SShownDescription
{
    /** Shows what a document says. */
    SShownDescription(const QString& name, const CXddDocument& opened);
    /** Shows what the library itself has read, to the letter. */
    SShownDescription(const QString& name, const CXddDocument& opened, ICIso15745& reader);

    QString fileName; ///< As the user named it
    bool isSample = false;
    CXddDocument document;
    CXddDevice device;
    QList<CXddEntry> entries;
    QList<CXddFact> facts;

    /** What the description is called in front of what is shown. */
    QString title() const;
    /** The number of the entry behind the sub-objects of an object, which has that number. */
    int endOf(int object) const;
};

/** The texts of the entries that are shown, up to a few times the size of the description: many entries can refer to
 * one large parameter. */
class CShownTexts
{
public:
    explicit CShownTexts(const CXddDocument& document);

    /** The texts of an entry; none where there is no room left for them. */
    CXddEntryTexts of(const CXddEntry& entry);
    /** Texts that are known already, likewise. */
    CXddEntryTexts limited(const CXddEntryTexts& texts);
    /** True when there were texts without room. */
    bool areLeftOut() const { return mAreLeftOut; }

private:
    CXddDocument mDocument;
    qint64 mLeft; // In characters
    bool mAreLeftOut = false;
};

#endif
