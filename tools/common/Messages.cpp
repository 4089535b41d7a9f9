#include "Messages.h"

#include <QCoreApplication>
#include <QHash>
#include <QJsonDocument>

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

// Inside of a JSON text an escape means the same as the character, so the document stays what it is.
QString jsonLine(const QJsonObject& object)
{
    return printable(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}

QJsonValue numberOrNull(const std::optional<unsigned int>& number)
{
    return number ? QJsonValue(qint64(*number)) : QJsonValue();
}

void complain(const QString& text)
{
    reportLine(QCoreApplication::applicationName() + QLatin1String(": ") + text);
}

void complainAbout(const QString& fileName, const CXddRemark& failure)
{
    const QString text = place(fileName, failure.mLine, failure.mColumn) + failure.text();
    failure.mLine == 0 ? complain(text) : reportLine(text);
}

void reportLine(const QString& text)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(printable(text)));
}

void reportRemarks(const QString& fileName, const QList<CXddRemark>& remarks, int most, bool showsRules)
{
    for (const STold& told : summedUp(remarks, most)) {
        const QString reason = told.remark.mReason.text();
        const QString behind = showsRules         ? QStringLiteral(" [%1]").arg(told.remark.mRule)
                               : reason.isEmpty() ? QString()
                                                  : QLatin1String(", ") + reason;
        reportLine(place(fileName, told.remark.mLine) + told.text + behind);
    }
}

QList<STold> summedUp(const QList<CXddRemark>& remarks, int most)
{
    struct SGroup
    {
        int count = 0;
        int lastLine = 0;
        bool isSummedUp = false;
    };
    QHash<QString, SGroup> groups;
    for (const CXddRemark& remark : remarks) {
        SGroup& group = groups[remark.group()];
        ++group.count;
        group.lastLine = remark.mLine;
    }
    QList<STold> summary;
    for (const CXddRemark& remark : remarks) {
        SGroup& group = groups[remark.group()];
        if (group.isSummedUp) {
            continue;
        }
        QString text = remark.text();
        if (group.count > most) {
            group.isSummedUp = true;
            const int others = group.count - 1;
            const QString more =
                group.lastLine == 0
                    ? QCoreApplication::translate("tools", "%1, and %n more like this", nullptr, others)
                    : QCoreApplication::translate("tools", "%1, and %n more like this up to line %2", nullptr, others);
            text = group.lastLine == 0 ? more.arg(text) : more.arg(text, QString::number(group.lastLine));
        }
        summary << STold{remark, text};
    }
    return summary;
}

QString place(const QString& fileName, int line, int column)
{
    QString text = fileName;
    for (const int number : {line, line == 0 ? 0 : column}) {
        text += number == 0 ? QString() : QLatin1Char(':') + QString::number(number);
    }
    return text + QLatin1String(": ");
}
