#include "TranslationsFolder.h"

#include <QLibraryInfo>

QString translationsFolder()
{
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
}
