#include "text/Encodings.h"

#include <QTextCodec>

QByteArray encodingName(const QByteArray& name)
{
    const QTextCodec* const codec = QTextCodec::codecForName(name);
    return codec == nullptr ? QByteArray() : codec->name();
}

QString decoded(const QByteArray& bytes, const QByteArray& encoding)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return QTextCodec::codecForName(encoding)->toUnicode(bytes.constData(), bytes.size(), &state);
}

QByteArray encoded(const QString& text, const QByteArray& encoding)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return QTextCodec::codecForName(encoding)->fromUnicode(text.constData(), text.size(), &state);
}
