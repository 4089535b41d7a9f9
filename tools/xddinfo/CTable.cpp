#include "CTable.h"

#include "COutput.h"
#include "Messages.h"

#include <algorithm>
#include <clocale>
#include <cwchar>

namespace
{
// Width of the names of fields, in columns.
constexpr int FIELD_NAME_WIDTH = 24;

// Between two columns.
constexpr int GAP = 2;

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
// The width of a whole line.
int totalOf(const QVector<int>& widths)
{
    int total = 0;
    for (const int width : widths) {
        total += width == 0 ? 0 : width + GAP;
    }
    return total - GAP;
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

void writeField(COutput& output, const QString& indent, const QString& name, const QString& value)
{
    if (!value.isEmpty()) {
        const QString start = indent + name;
        const int gap = std::max(FIELD_NAME_WIDTH - columnsOf(start), 1);
        output.writeLine(start + QString(gap, QLatin1Char(' ')) + printable(value));
    }
}

CTable::CTable(const QVector<SColumn>& columns)
    : mColumns(columns)
{}

void CTable::addRow(const QStringList& row)
{
    mRows << row;
}

bool CTable::fits(int width) const
{
    return width == 0 || totalOf(naturalWidths()) <= width;
}

void CTable::write(COutput& output, int width) const
{
    const QVector<int> columns = widths(width);
    const auto writeRow = [&](const auto& textOf) {
        QString line;
        int end = 0; // Where the columns up to here end
        int used = 0;
        for (int column = 0; column < columns.size(); ++column) {
            if (columns[column] == 0) {
                continue;
            }
            const QString text = width > 0 ? fitted(textOf(column), columns[column]) : textOf(column);
            if (!text.isEmpty()) {
                const int gap = std::max(end - used, used == 0 ? 0 : 1);
                line += QString(gap, QLatin1Char(' ')) + text;
                used += gap + columnsOf(text);
            }
            end += columns[column] + GAP;
        }
        output.writeLine(line);
    };
    writeRow([this](int column) { return mColumns.at(column).head; });
    for (const QStringList& row : mRows) {
        writeRow([&row](int column) { return row.at(column); });
    }
}

// The width of every column; 0 for one without a text.
QVector<int> CTable::naturalWidths() const
{
    QVector<int> widths(mColumns.size(), 0);
    for (const QStringList& row : mRows) {
        for (int column = 0; column < widths.size(); ++column) {
            widths[column] = std::min(std::max(widths[column], columnsOf(row[column])), MAX_WIDTH);
        }
    }
    for (int column = 0; column < widths.size(); ++column) {
        widths[column] = widths[column] == 0 ? 0 : std::max(widths[column], columnsOf(mColumns[column].head));
    }
    return widths;
}

// The width that every column gets; 0 for one that is left out.
QVector<int> CTable::widths(int width) const
{
    QVector<int> widths = naturalWidths();
    for (int column = int(widths.size()) - 1; column >= 0 && width > 0 && totalOf(widths) > width; --column) {
        widths[column] = mColumns[column].isOptional ? 0 : widths[column];
    }
    for (int column = 0; column < widths.size() && width > 0; ++column) {
        const int excess = std::max(totalOf(widths) - width, 0);
        const int least = std::min(mColumns[column].minWidth, widths[column]);
        if (least > 0) {
            widths[column] = std::max(widths[column] - excess, least);
        }
    }
    return widths;
}
