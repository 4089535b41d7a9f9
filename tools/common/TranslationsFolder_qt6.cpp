#include "TranslationsFolder.h"

#include <QLibraryInfo>

QString translationsFolder()
{
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
}
