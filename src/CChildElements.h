#ifndef MVXISO15745XML_CCHILDELEMENTS_H
#define MVXISO15745XML_CCHILDELEMENTS_H

#include <QDomElement>
#include <QString>

/**
 * The child elements of an element in document order, for a range-based for: those with one name, or all of them.
 * Children of other names in between are passed over, and so are comments and texts.
 */
class CChildElements
{
public:
    /** Every child element of @p parent. */
    explicit CChildElements(const QDomElement& parent)
        : CChildElements(parent, QString())
    {}

    /** The child elements of @p parent with that local name. */
    CChildElements(const QDomElement& parent, const QString& name)
        : mName(name)
        , mFirst(parent.firstChildElement(name))
    {}

    /** Walks from one element to the next; null at the end. */
    class CIterator
    {
    public:
        CIterator(const QDomElement& element, const QString& name)
            : mElement(element)
            , mName(name)
        {}

        const QDomElement& operator*() const { return mElement; }

        CIterator& operator++()
        {
            mElement = mElement.nextSiblingElement(mName);
            return *this;
        }

        bool operator!=(const CIterator& other) const { return mElement != other.mElement; }

    private:
        QDomElement mElement;
        QString mName; // Empty for every name
    };

    CIterator begin() const { return {mFirst, mName}; }

    CIterator end() const { return {QDomElement(), mName}; }

private:
    QString mName;
    QDomElement mFirst;
};

#endif
