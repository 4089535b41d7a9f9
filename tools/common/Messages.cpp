#include "Messages.h"

#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QRegularExpression>

#include <cstdio>

namespace
{
bool drivesTerminal(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

// The line that a message of the library or of the text side names, in the language of the user; 0 for none.
int lineIn(const QString& message)
{
    const QString form = QCoreApplication::translate("tools", "line %1", "as in the library's messages");
    const QRegularExpression named(
        QLatin1String("\\b")
        + QRegularExpression::escape(form).replace(QLatin1String("\\%1"), QLatin1String("(\\d+)")));
    return named.match(message).captured(1).toInt();
}
} // namespace

QString printable(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar character : text) {
        if (drivesTerminal(character)) {
            result += QStringLiteral("\\u%1").arg(uint(character.unicode()), 4, 16, QLatin1Char('0'));
        } else {
            result += character;
        }
    }
    return result;
}

void complain(const QString& text)
{
    reportLine(QCoreApplication::applicationName() + QLatin1String(": ") + text);
}

void complainAbout(const QString& fileName, const QString& message)
{
    // The message about a file that does not parse begins with its name, which stands in front of it anyway.
    const QString native = QDir::toNativeSeparators(fileName);
    const QString readFile =
        QCoreApplication::translate("CIso15745Impl", "Read file \"%1\": Parse error at line %2, column %3: %4");
    const QString beginning = readFile.left(readFile.indexOf(QLatin1String("%2"))).replace(QLatin1String("%1"), native);
    const QString rest = readFile.mid(readFile.indexOf(QLatin1String("%1")) + 2);
    const QString parseError = rest.mid(2, rest.indexOf(QLatin1String("%2")) - 2).trimmed();
    QString text = message;
    if (text.startsWith(beginning)) {
        text = parseError + QLatin1Char(' ') + text.mid(beginning.size());
    }
    const int line = lineIn(text);
    if (line > 0) {
        reportLine(place(fileName, line) + text);
    } else if (
        text.contains(QLatin1Char('"') + native + QLatin1Char('"'))
        || text.contains(QLatin1Char(' ') + native + QLatin1String(": "))) {
        complain(text);
    } else {
        complain(fileName + QLatin1String(": ") + text);
    }
}

void reportLine(const QString& text)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(printable(text)));
}

QVector<SReportLine> summedUp(const QVector<SReportLine>& lines, int most)
{
    QHash<QString, QVector<int>> linesOf;
    for (const SReportLine& line : lines) {
        linesOf[line.group] << line.line;
    }
    QHash<QString, bool> isSummedUp;
    QVector<SReportLine> summary;
    for (SReportLine line : lines) {
        const QVector<int>& alike = linesOf[line.group];
        if (alike.size() > most) {
            if (isSummedUp.value(line.group)) {
                continue;
            }
            isSummedUp[line.group] = true;
            line.text = QCoreApplication::translate("tools", "%1, and %2 more like this up to line %3")
                            .arg(line.text, QString::number(alike.size() - 1), QString::number(alike.last()));
        }
        summary << line;
    }
    return summary;
}

QString place(const QString& fileName, int line)
{
    return QStringLiteral("%1:%2: ").arg(fileName, QString::number(line));
}
