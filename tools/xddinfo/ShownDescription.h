#ifndef XDDINFO_SHOWNDESCRIPTION_H
#define XDDINFO_SHOWNDESCRIPTION_H

#include <CXddDocument.h>
#include <CXddPdos.h>
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
    QList<CXddPdo> pdos;
};

/** An object or a sub-object that is to be shown by itself. */
struct SSelectedEntry
{
    CCanOpenObject object;
    std::optional<CCanOpenSubObject> subObject;
};

#endif
