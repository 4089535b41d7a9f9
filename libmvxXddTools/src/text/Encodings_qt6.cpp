#include "text/Encodings.h"

#include <QStringDecoder>
#include <QStringEncoder>

QByteArray encodingName(const QByteArray& name)
{
    const QStringDecoder decoder(name.constData());
    return decoder.isValid() ? QByteArray(decoder.name()) : QByteArray();
}

QString decoded(const QByteArray& bytes, const QByteArray& encoding)
{
    QStringDecoder decoder(encoding.constData(), QStringConverter::Flag::ConvertInitialBom);
    return decoder.decode(bytes);
}

QByteArray encoded(const QString& text, const QByteArray& encoding)
{
    QStringEncoder encoder(encoding.constData());
    return encoder.encode(text);
}
