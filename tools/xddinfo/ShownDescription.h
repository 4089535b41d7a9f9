#ifndef XDDINFO_SHOWNDESCRIPTION_H
#define XDDINFO_SHOWNDESCRIPTION_H

#include <CXddStated.h>
#include <ICIso15745.h>

#include <QString>

#include <optional>

/** A description that is to be shown. */
struct SShownDescription
{
    QString fileName; ///< As the user named it
    bool isSample = false;
    ICIso15745* reader = nullptr;
    CXddStated stated;
};

/** An object or a sub-object that is to be shown by itself. */
struct SShownEntry
{
    CCanOpenObject object;
    std::optional<CCanOpenSubObject> subObject;
};

#endif
