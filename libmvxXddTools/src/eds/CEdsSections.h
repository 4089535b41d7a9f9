#ifndef MVXXDDTOOLS_CEDSSECTIONS_H
#define MVXXDDTOOLS_CEDSSECTIONS_H

#include "eds/EdsValues.h"

#include <QByteArray>
#include <QString>

/** Sections with their keys, as they are written to a file. */
class CEdsSections
{
public:
    void begin(const QString& name);

    /** A key with a value that is written as it is; nothing for an empty value. */
    void key(const QString& name, const QString& value);

    /** A key with a text, which may be empty, or with the part of it that fits into a line. Returns what had to be
     * changed. */
    SEdsText text(const QString& name, const QString& value);

    QByteArray bytes() const { return mText.toUtf8(); }

private:
    void line(const QString& name, const QString& value);

    QString mText;
};

#endif
