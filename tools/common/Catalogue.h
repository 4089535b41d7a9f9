#ifndef TOOLS_CATALOGUE_H
#define TOOLS_CATALOGUE_H

/**
 * Installs the catalogue of the user's language, for the messages of the library and of the tools. It is looked for
 * beside the program, as it is installed, and then where Qt keeps the catalogues of libraries. Without one everything
 * stays English.
 */
void installCatalogue();

#endif
