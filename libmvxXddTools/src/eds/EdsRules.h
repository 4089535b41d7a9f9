#ifndef MVXXDDTOOLS_EDSRULES_H
#define MVXXDDTOOLS_EDSRULES_H

#include "eds/CEdsObjects.h"

/** Adds to the remarks what is wrong with a file as an EDS or DCF, beside what its reader meets. The rules are rows of
 * the checker's table. */
void findInEds(const CEdsFile& file, const QMap<unsigned int, SEdsObject>& objects, CRemarks& remarks);

#endif
