#ifndef XDDNORMALIZE_CNORMALIZER_H
#define XDDNORMALIZE_CNORMALIZER_H

#include "CElements.h"
#include "CRules.h"
#include "CStartTag.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

#include <vector>

/** An element that a rule adds. */
struct SNewElement
{
    QString name;
    QString attribute; ///< Its only attribute as written, or nothing
    QString content;   ///< Its text, where it has no children
    std::vector<SNewElement> children = {};
};

/** What was done at one place, or left there. */
struct SChange
{
    ERule rule;
    int line;     ///< Line of the original text, from 1
    QString what; ///< What was done
};

/**
 * Brings a description into the form that the library reads, without changing what it says.
 *
 * Works on the text: it finds the places of elements and attributes and inserts or replaces there. Everything else
 * stays as it is, character by character.
 */
class CNormalizer
{
public:
    /**
     * Normalises a text.
     *
     * @return false, with a message, when the text is no CANopen description; it is then not to be touched
     */
    bool normalize(const QString& text, QString& errorText);

    /** The normalised text; equal to the original when there was nothing to do. */
    QString result() const;

    /** What was done, in the order of the text. */
    QVector<SChange> changes() const;

private:
    // A piece of text that takes the place of another one.
    struct SEdit
    {
        SRange range;
        QString text;
    };

    // The container
    bool isCanOpen(QString& errorText) const;
    void profile(const SElement& profile);

    // The profile header
    void header(const SElement& header, const SElement* body);
    void addMissing(const SElement& parent, const std::vector<SNewElement>& required);
    void classId(const SElement& classId);

    // The device profile
    void fileAttributes(const SElement& body);
    void fileDates(const SElement& body, const CStartTag& tag);
    void deviceFunction(const SElement& body);
    void characteristic(const SElement& list);
    void turnIntoComment(const SElement& element);
    void identity(const SElement* identity, const QStringList& protectedNames);

    // The network profile
    void objectList(const SElement& list);
    void entry(const SElement& entry);
    void parameter(const SElement& entry, const CStartTag& tag);
    QString dataTypeOf(const SElement& described, const QString& objectType, int depth = 0) const;
    void bitRates(const SElement& body);
    QString bitRate(const SElement& element, const QString& attribute);

    // Rules for one attribute
    void readOnly(const SElement& element, const QString& byDefault);
    void number(const SElement& element, const CStartTag& tag, const QString& name, int base, uint highest);
    void spelling(const SElement& element, const CStartTag& tag, const QString& name, const QStringList& texts);

    // Reading the text
    QString raw(SRange range) const;
    QString value(const CStartTag& tag, const QString& name) const;
    QString value(const SElement* element, const QString& name) const;
    bool isPlain(const SElement& element) const;
    QString content(const SElement& element) const;
    QString indentOf(const SElement& element) const;

    // Changing the text
    void report(ERule rule, const SElement& element, const QString& what);
    void replace(SRange range, const QString& text);
    void setAttribute(const CStartTag& tag, const QString& name, const QString& text);
    void addChildren(
        ERule rule, const SElement& parent, const std::vector<SNewElement>& children, const SElement* before = nullptr);
    QString xml(const SNewElement& element, const QString& prefix, const QString& lineStart, const QString& unit) const;

    QString mText;
    QString mNewline;
    CElements mElements;
    QHash<QString, const SElement*> mByUniqueId;
    QVector<SEdit> mEdits;
    QVector<SChange> mChanges;
};

#endif
