#include "CTable.h"

#include "COutput.h"

#include <algorithm>
#include <clocale>
#include <cwchar>

namespace
{
// Between two columns.
constexpr int GAP = 2;

// A column is not made narrower than this to fit a terminal.
constexpr int MIN_WIDTH = 8;

// A column is not made wider than this; a longer text pushes the rest of its line to the right. Descriptions come from
// outside; a name of a megabyte must not become a megabyte in every line.
constexpr int MAX_WIDTH = 120;

int columnsOf(uint character)
{
    // Widths are a property of the characters here, not of the user's locale.
    static const locale_t characters = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    const locale_t previous = characters == nullptr ? nullptr : uselocale(characters);
    const int columns = wcwidth(static_cast<wchar_t>(character));
    if (previous != nullptr) {
        uselocale(previous);
    }
    return columns < 0 ? 1 : columns;
}

// The beginning of a text that fits into that many columns, with dots where something is left out.
QString fitted(const QString& text, int width)
{
    if (::columnsOf(text) <= width) {
        return text;
    }
    const QLatin1String dots("...");
    QString beginning;
    int used = int(dots.size());
    for (const uint character : text.toUcs4()) {
        used += columnsOf(character);
        if (used > width) {
            break;
        }
        const char32_t code = character;
        beginning += QString::fromUcs4(&code, 1);
    }
    return beginning + dots;
}
} // namespace

int columnsOf(const QString& text)
{
    const auto isPlain = [](QChar character) {
        return character.unicode() < 0x80;
    };
    if (std::all_of(text.begin(), text.end(), isPlain)) {
        return int(text.size());
    }
    int columns = 0;
    for (const uint character : text.toUcs4()) {
        columns += columnsOf(character);
    }
    return columns;
}

CTable::CTable(const QStringList& head)
    : mRows{head}
{}

void CTable::addRow(const QStringList& row)
{
    mRows << row;
}

void CTable::write(COutput& output, int width) const
{
    const QVector<int> columns = widths(width);
    for (const QStringList& row : mRows) {
        QString line;
        int end = 0; // Where the columns up to here end
        int used = 0;
        for (int column = 0; column < row.size(); ++column) {
            if (columns[column] == 0) {
                continue;
            }
            const QString text = width > 0 ? fitted(row[column], columns[column]) : row[column];
            if (!text.isEmpty()) {
                const int gap = std::max(end - used, used == 0 ? 0 : 1);
                line += QString(gap, QLatin1Char(' ')) + text;
                used += gap + columnsOf(text);
            }
            end += columns[column] + GAP;
        }
        output.writeLine(line);
    }
}

// The width of every column, 0 for one that is left out. What is too much is taken from the widest, bit by bit.
QVector<int> CTable::widths(int width) const
{
    QVector<int> columns(mRows.first().size(), 0);
    for (int row = 1; row < mRows.size(); ++row) {
        for (int column = 0; column < columns.size(); ++column) {
            columns[column] = std::min(std::max(columns[column], columnsOf(mRows[row][column])), MAX_WIDTH);
        }
    }
    int total = 0;
    for (int column = 0; column < columns.size(); ++column) {
        if (columns[column] > 0) {
            columns[column] = std::max(columns[column], columnsOf(mRows.first()[column]));
            total += columns[column] + GAP;
        }
    }
    for (int excess = width > 0 ? total - GAP - width : 0; excess > 0; --excess) {
        int& widest = *std::max_element(columns.begin(), columns.end());
        if (widest <= MIN_WIDTH) {
            break;
        }
        --widest;
    }
    return columns;
}
