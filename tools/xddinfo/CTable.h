#ifndef XDDINFO_CTABLE_H
#define XDDINFO_CTABLE_H

#include <QStringList>
#include <QVector>

class COutput;

/** The number of columns that a text takes on a terminal: characters of East Asian scripts take two. */
int columnsOf(const QString& text);

/** Writes a name and its value below each other's; a field without a value is left out. */
void writeField(COutput& output, const QString& indent, const QString& name, const QString& value);

/** A column of a table. */
struct SColumn
{
    QString head;
    int minWidth = 0; ///< It is not made narrower than this to fit a terminal; 0 for one that is never made narrower
    bool isOptional = false; ///< It is left out where the terminal is too narrow
};

/** A table of texts, each column as wide as its widest text. Columns without a text are left out. */
class CTable
{
public:
    explicit CTable(const QVector<SColumn>& columns);

    void addRow(const QStringList& row);

    /** True when nothing has to be left out or cut to fit into that many columns of a terminal. */
    bool fits(int width) const;

    /** Writes the table, not wider than that many columns: optional columns are left out first, then columns are made
     * narrower from the left, and texts that do not fit end in "...". 0 writes all of them whole. */
    void write(COutput& output, int width) const;

private:
    QVector<int> naturalWidths() const;
    QVector<int> widths(int width) const;

    QVector<SColumn> mColumns;
    QVector<QStringList> mRows;
};

#endif
