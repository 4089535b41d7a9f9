#ifndef BENCHMARKS_CSTREAMREADER_H
#define BENCHMARKS_CSTREAMREADER_H

#include <ICIso15745.h>

class QIODevice;

/**
 * What a program would write itself to get at the object dictionary: Qt's stream reader into the same records, without
 * a document, without messages and without the profiles' other fields.
 */
class CStreamReader
{
public:
    /** Reads the objects of a description. */
    static QMap<unsigned int, CCanOpenObject> readObjects(QIODevice& device);
};

#endif
