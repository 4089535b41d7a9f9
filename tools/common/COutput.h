#ifndef TOOLS_COUTPUT_H
#define TOOLS_COUTPUT_H

#include <QByteArray>
#include <QString>

/** Standard output. Remembers the first error, after which nothing more is written. */
class COutput
{
public:
    /** Writes bytes as they are. */
    void write(const QByteArray& bytes);

    /** Writes a text and a line end in UTF-8. */
    void writeLine(const QString& line = QString());

    /** Writes out what is buffered, so that it stands in front of messages that follow. */
    void flush();

    /** Writes out what is buffered, and says what went wrong. To be called once at the end. Returns true when all was
     * written, or when the reader of a pipe has had enough and closed it. */
    bool finish();

    /** True when there is no point in writing more. */
    bool failed() const { return mError != 0; }

private:
    void check(bool ok);

    int mError = 0; // The errno of the first write that failed
};

#endif
