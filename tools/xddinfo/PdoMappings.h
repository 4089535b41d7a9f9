#ifndef XDDINFO_PDOMAPPINGS_H
#define XDDINFO_PDOMAPPINGS_H

#include <ICIso15745.h>

#include <QStringList>
#include <QVector>

/** One process data object and what it carries in the device as it comes. */
struct SPdo
{
    int number = 0;          ///< From 1
    QStringList mapped = {}; ///< The objects that it maps, such as "0x6200:1"
};

/** The receive PDOs of a dictionary. */
QVector<SPdo> receivePdos(const QMap<unsigned int, CCanOpenObject>& objects);

/** The transmit PDOs of a dictionary. */
QVector<SPdo> transmitPdos(const QMap<unsigned int, CCanOpenObject>& objects);

#endif
