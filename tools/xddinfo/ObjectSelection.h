#ifndef XDDINFO_OBJECTSELECTION_H
#define XDDINFO_OBJECTSELECTION_H

#include <QString>

#include <optional>

/** Objects that the user has named: one, a range, or one sub-object. */
struct SObjectSelection
{
    unsigned int first = 0;
    unsigned int last = 0; ///< The same as first unless it is a range
    std::optional<unsigned int> subIndex = std::nullopt;

    /** How the objects are called in a message. */
    QString text() const;
};

/** Understands "1018", "0x1018", "1018h", "0x1018:1", "0x1018sub1" and "0x1800-0x1803", all in hexadecimal; nothing for
 * any other text. */
std::optional<SObjectSelection> objectSelection(const QString& text);

#endif
