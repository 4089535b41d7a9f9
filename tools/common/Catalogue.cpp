#include "Catalogue.h"

#include "TranslationsFolder.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>
#include <QTranslator>

namespace
{
const QString NAME = QStringLiteral("mvxIso15745Xml");

// Where the catalogue of the tools is looked for.
QStringList folders()
{
    return {QCoreApplication::applicationDirPath() + QLatin1String("/" CATALOGUE_FOLDER), translationsFolder()};
}

// The first catalogue of that name for a language, or null.
std::unique_ptr<QTranslator> load(const QString& name, const QLocale& language, const QStringList& folders)
{
    auto translator = std::make_unique<QTranslator>();
    for (const QString& folder : folders) {
        if (translator->load(language, name, QStringLiteral("_"), folder)) {
            return translator;
        }
    }
    return nullptr;
}

// The catalogue of the user's language; null where there is none.
QTranslator*& userCatalogue()
{
    static QTranslator* catalogue = nullptr;
    return catalogue;
}

// Installs a catalogue, which the application ends, and returns it.
QTranslator* install(std::unique_ptr<QTranslator> translator)
{
    if (translator) {
        translator->setParent(QCoreApplication::instance());
        QCoreApplication::installTranslator(translator.get());
    }
    return translator.release();
}
} // namespace

void installCatalogue()
{
    install(load(QStringLiteral("qtbase"), QLocale(), {translationsFolder()}));
    // English has a catalogue for the plural forms of numbers.
    std::unique_ptr<QTranslator> own = load(NAME, QLocale(), folders());
    userCatalogue() = install(own ? std::move(own) : load(NAME, QLocale(QLocale::English), folders()));
}

QString userLanguage()
{
    return QLocale().name().section(QLatin1Char('_'), 0, 0);
}

// A text that a catalogue does not have would be looked up in the one before it, so that has to go.
COtherLanguage::COtherLanguage(const QString& language)
    : mLanguage(language)
    , mTranslator(load(NAME, QLocale(language), folders()))
{
    if (userCatalogue() != nullptr) {
        QCoreApplication::removeTranslator(userCatalogue());
    }
    if (mTranslator) {
        QCoreApplication::installTranslator(mTranslator.get());
    }
}

COtherLanguage::~COtherLanguage()
{
    if (mTranslator) {
        QCoreApplication::removeTranslator(mTranslator.get());
    }
    if (userCatalogue() != nullptr) {
        QCoreApplication::installTranslator(userCatalogue());
    }
}

bool COtherLanguage::isThere() const
{
    return mTranslator != nullptr || QLocale(mLanguage).language() == QLocale::English;
}
