#ifndef XDDINFO_CTABLE_H
#define XDDINFO_CTABLE_H

#include <QStringList>
#include <QVector>

class COutput;

/** The number of columns that a text takes on a terminal: characters of East Asian scripts take two. */
int columnsOf(const QString& text);

/** A table of texts, each column as wide as its widest text. Columns without a text are left out. */
class CTable
{
public:
    explicit CTable(const QStringList& head);

    void addRow(const QStringList& row);

    /** Writes the table, not wider than that many columns: texts that do not fit end in "...". 0 writes all of them
     * whole. */
    void write(COutput& output, int width) const;

private:
    QVector<int> widths(int width) const;

    QVector<QStringList> mRows; // The first one is the head
};

#endif
