#ifndef TOOLS_COUTPUT_H
#define TOOLS_COUTPUT_H

#include <QByteArray>
#include <QString>

/**
 * A text of a file in a form that a terminal only shows: control characters, and characters that change the direction
 * of the text around them, become escapes such as "\u001B".
 */
QString printable(const QString& text);

/** Writes a message to standard error, behind the name of the program. */
void complain(const QString& text);

/** Standard output. Remembers the first error, after which nothing more is written. */
class COutput
{
public:
    /** Writes bytes as they are. */
    void write(const QByteArray& bytes);

    /** Writes a text and a line end in UTF-8. */
    void writeLine(const QString& line = QString());

    /** Writes out what is buffered. To be called once at the end, before the result is asked for. */
    void finish();

    /** True when there is no point in writing more. */
    bool failed() const;

    /** What went wrong; empty when all was written, or when the reader of a pipe has had enough and closed it. */
    QString errorText() const;

private:
    void check(bool ok);

    int mError = 0; // The errno of the first write that failed
};

#endif
