#ifndef MVXXDDTOOLS_CHTML_H
#define MVXXDDTOOLS_CHTML_H

#include <QBuffer>
#include <QByteArray>
#include <QString>
#include <QXmlStreamWriter>

#include <initializer_list>
#include <utility>

/**
 * Writes HTML, which no text can break: texts are escaped, and characters that would be invisible, or would change the
 * direction of the text around them, are shown by their numbers.
 */
class CHtml
{
public:
    using Attributes = std::initializer_list<std::pair<const char*, QString>>;

    CHtml();
    CHtml(const CHtml&) = delete;
    CHtml(CHtml&&) = delete;
    CHtml& operator=(const CHtml&) = delete;
    CHtml& operator=(CHtml&&) = delete;
    ~CHtml() = default;

    /** Begins an element; close() ends the last one that is open. Attributes without a value are left out. */
    CHtml& open(const char* tag, Attributes attributes = {});
    CHtml& close();
    /** An element without content. */
    CHtml& empty(const char* tag, Attributes attributes);
    /** A text. */
    CHtml& text(const QString& text);
    /** An element with a text. */
    CHtml& element(const char* tag, const QString& text, Attributes attributes = {});
    /** A link inside of the page. */
    CHtml& link(const QString& id, const QString& text);
    /** A line end, so that the file can be read. */
    CHtml& line();
    /** A style or script, in which nothing is escaped. */
    CHtml& raw(const char* tag, const QByteArray& content);

    /** What has been written. */
    QByteArray bytes() const { return mBuffer.data(); }

private:
    void write(Attributes attributes);

    QBuffer mBuffer;
    QXmlStreamWriter mWriter;
};

/** The value of an attribute that has none, such as "hidden". */
QString noValue();

/** A text without the characters that are shown by their numbers, for places that take no elements. */
QString visibleText(const QString& text);

/** A text of a file as a page shows it: one of more than 200 characters is cut. */
QString cutForPage(const QString& text);

#endif
