#ifndef BENCHMARKS_DESCRIPTIONS_H
#define BENCHMARKS_DESCRIPTIONS_H

#include <QByteArray>

/** A description with that many objects of three sub-objects each, written as common tools do. */
QByteArray descriptionWith(int objects);

#endif
