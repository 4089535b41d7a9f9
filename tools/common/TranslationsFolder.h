#ifndef TOOLS_TRANSLATIONSFOLDER_H
#define TOOLS_TRANSLATIONSFOLDER_H

#include <QString>

/** Where Qt keeps its catalogues and those of libraries. */
QString translationsFolder();

#endif
