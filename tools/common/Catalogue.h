#ifndef TOOLS_CATALOGUE_H
#define TOOLS_CATALOGUE_H

#include <QString>

#include <memory>

/**
 * Installs the catalogues of the user's language: Qt's own, and that of the library and the tools, which is looked for
 * beside the program, as it is installed, and then where Qt keeps the catalogues of libraries. Where there is none for
 * that language it is the English one.
 */
void installCatalogue();

/** The language of the user, such as "de". */
QString userLanguage();

class QTranslator;

/** Lets texts be in another language than the user's as long as it lives. */
class COtherLanguage
{
public:
    /** @p language is one such as "de" or "de-AT". */
    explicit COtherLanguage(const QString& language);
    COtherLanguage(const COtherLanguage&) = delete;
    COtherLanguage(COtherLanguage&&) = delete;
    COtherLanguage& operator=(const COtherLanguage&) = delete;
    COtherLanguage& operator=(COtherLanguage&&) = delete;
    ~COtherLanguage();

    /** True when there is a catalogue of that language, or when it is English. */
    bool isThere() const;

private:
    QString mLanguage;
    std::unique_ptr<QTranslator> mTranslator; // Null for English without plural forms of numbers
};

#endif
