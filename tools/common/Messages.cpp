#include "Messages.h"

#include <QCoreApplication>
#include <QHash>

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

void complain(const QString& text)
{
    reportLine(QCoreApplication::applicationName() + QLatin1String(": ") + text);
}

void complainAbout(const QString& fileName, const CXddRemark& failure)
{
    const QString text = place(fileName, failure.mLine, failure.mColumn) + failure.mText;
    failure.mLine == 0 ? complain(text) : reportLine(text);
}

void reportLine(const QString& text)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(printable(text)));
}

void reportRemarks(const QString& fileName, const QList<CXddRemark>& remarks)
{
    for (const CXddRemark& remark : remarks) {
        const QString reason = remark.mReason.isEmpty() ? QString() : QLatin1String(", ") + remark.mReason;
        reportLine(place(fileName, remark.mLine) + remark.mText + reason);
    }
}

QList<CXddRemark> summedUp(const QList<CXddRemark>& remarks, int most)
{
    struct SGroup
    {
        int count = 0;
        int lastLine = 0;
        bool isSummedUp = false;
    };
    QHash<QString, SGroup> groups;
    for (const CXddRemark& remark : remarks) {
        SGroup& group = groups[remark.mGroup];
        ++group.count;
        group.lastLine = remark.mLine;
    }
    QList<CXddRemark> summary;
    for (CXddRemark remark : remarks) {
        SGroup& group = groups[remark.mGroup];
        if (group.isSummedUp) {
            continue;
        }
        if (group.count > most) {
            group.isSummedUp = true;
            const int others = group.count - 1;
            QString more = QCoreApplication::translate("tools", "%1, and %n more like this", nullptr, others);
            if (group.lastLine != 0) {
                more = QCoreApplication::translate("tools", "%1, and %n more like this up to line %2", nullptr, others);
            }
            const QString line = QString::number(group.lastLine);
            remark.mText = group.lastLine == 0 ? more.arg(remark.mText) : more.arg(remark.mText, line);
        }
        summary << remark;
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
