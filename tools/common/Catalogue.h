#ifndef TOOLS_CATALOGUE_H
#define TOOLS_CATALOGUE_H

#include <QString>

/**
 * Installs the catalogues of the user's language: Qt's own, and that of the library and the tools, which is looked for
 * beside the program, as it is installed, and then where Qt keeps the catalogues of libraries. Where there is none for
 * that language it is the English one.
 */
void installCatalogue();

/** The language of the user, such as "de". */
QString userLanguage();

#endif
