#include "TestEncodings.h"

#include <QTextCodec>

QList<QByteArray> testEncodings()
{
    return QTextCodec::availableCodecs();
}

QByteArray encodedAs(const QByteArray& encoding, const QString& text)
{
    return QTextCodec::codecForName(encoding)->fromUnicode(text);
}
