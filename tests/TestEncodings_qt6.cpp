#include "TestEncodings.h"

#include <QStringEncoder>

// Qt 6.4 has no list of the encodings of ICU, so these are asked for by name.
QList<QByteArray> testEncodings()
{
    QList<QByteArray> known;
    for (const char* name :
         {"UTF-8",       "UTF-16",   "UTF-16LE",   "UTF-16BE",   "UTF-32",      "UTF-32LE",     "UTF-32BE",
          "UTF-7",       "US-ASCII", "ISO-8859-1", "ISO-8859-5", "ISO-8859-15", "windows-1251", "windows-1252",
          "KOI8-R",      "IBM850",   "IBM037",     "IBM500",     "IBM1047",     "Shift_JIS",    "EUC-JP",
          "ISO-2022-JP", "GB18030",  "GBK",        "Big5",       "EUC-KR",      "TIS-620",      "HZ-GB-2312",
          "SCSU",        "BOCU-1",   "CESU-8",     "macintosh"}) {
        if (QStringEncoder(name).isValid()) {
            known << name;
        }
    }
    return known;
}

QByteArray encodedAs(const QByteArray& encoding, const QString& text)
{
    QStringEncoder encoder(encoding.constData());
    return encoder.encode(text);
}
