#ifndef MVXXDDTOOLS_DBCTEXT_H
#define MVXXDDTOOLS_DBCTEXT_H

#include <QByteArray>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

/** @file
 * What a DBC consists of, and how it is written so that all readers take it.
 */

/** A value in a message. All texts are as dbcText() and dbcName() make them. */
struct SDbcSignal
{
    QString name;
    QString longName; ///< The whole name where that is too long; else nothing
    int start = 0;    ///< Number of its lowest bit
    int bits = 0;
    bool isSigned = false;
    bool isReal = false; ///< IEEE 754 of 32 or 64 bits
    QString factor = QStringLiteral("1");
    QString offset = QStringLiteral("0");
    QString minimum = QStringLiteral("0"); ///< 0 with a maximum of 0 where there is no limit
    QString maximum = QStringLiteral("0");
    QString unit;
    QStringList receivers;
    QString comment;
    QVector<QPair<QString, QString>> values; ///< Raw values with what they mean
};

/** A message. */
struct SDbcMessage
{
    unsigned int canId = 0;
    bool isExtended = false;
    QString name;
    int bytes = 0;
    QString sender;             ///< Nothing where it is none of the nodes
    unsigned int cycleTime = 0; ///< In milliseconds; 0 where it has none
    QString comment;
    QVector<SDbcSignal> signalList; ///< In the order of their bits
};

struct SDbcNode
{
    QString name;
    QString comment;
};

/** The file. Messages are sorted by their CAN-IDs, those of 29 bits last. */
QByteArray dbcFile(const QVector<SDbcNode>& nodes, QVector<SDbcMessage> messages);

/** A number without an exponent, which some readers do not take; nothing for one that cannot be written so. */
QString dbcNumber(double number);

#endif
