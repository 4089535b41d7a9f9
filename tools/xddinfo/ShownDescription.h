#ifndef XDDINFO_SHOWNDESCRIPTION_H
#define XDDINFO_SHOWNDESCRIPTION_H

#include <CXddDocument.h>
#include <CXddEntryTexts.h>
#include <CXddPdos.h>
#include <CXddTexts.h>
#include <ICIso15745.h>

#include <QString>

#include <optional>

/** A description that is to be shown. */
struct SShownDescription
{
    QString fileName; ///< As the user named it
    bool isSample = false;
    CXddDocument document;
    ICIso15745* reader = nullptr;
    QList<CXddPdo> pdos;     ///< Nothing where they are not shown
    unsigned int nodeId = 0; ///< That of the PDOs; 0 where none is known

    /** What the description is called in front of what is shown. */
    QString title() const;
};

/** An object or a sub-object that is to be shown by itself. */
struct SSelectedEntry
{
    CCanOpenObject object;
    std::optional<CCanOpenSubObject> subObject;
};

/** The texts of the entries that are shown, up to a few times the size of the description: many entries can refer to
 * one large parameter. */
class CShownTexts
{
public:
    explicit CShownTexts(const CXddDocument& document);

    /** The texts of an object or sub-object; none where there is no room left for them. */
    CXddEntryTexts of(unsigned int index, std::optional<unsigned int> subIndex = std::nullopt);

    /** Texts that are known already, likewise. */
    CXddEntryTexts limited(const CXddEntryTexts& texts);

    /** True when there were texts without room. */
    bool areLeftOut() const { return mAreLeftOut; }

private:
    CXddTexts mTexts;
    qint64 mLeft; // In characters
    bool mAreLeftOut = false;
};

#endif
