#ifndef MVXISO15745XML_TEXTTABLES_H
#define MVXISO15745XML_TEXTTABLES_H

#include <QMap>
#include <QString>
#include <QStringList>

/** @file
 * Conversions between an enumeration and its texts, for the two kinds of table that there are: a list whose index is
 * the enumerator's value, for values that run from 0 without gaps, and a map for all others. An unknown text becomes
 * the invalid enumerator and a value outside the enumeration the invalid text.
 */

template <typename Enum> QString textOf(const QStringList& texts, Enum value, const QString& invalidText)
{
    return texts.value(static_cast<int>(value), invalidText);
}

template <typename Enum> Enum valueOf(const QStringList& texts, const QString& text, Enum invalid)
{
    const auto index = texts.indexOf(text);
    return index < 0 ? invalid : static_cast<Enum>(index);
}

template <typename Enum> QString textOf(const QMap<Enum, QString>& texts, Enum value, const QString& invalidText)
{
    return texts.value(value, invalidText);
}

template <typename Enum> Enum valueOf(const QMap<Enum, QString>& texts, const QString& text, Enum invalid)
{
    return texts.key(text, invalid);
}

#endif
