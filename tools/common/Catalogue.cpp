#include "Catalogue.h"

#include "TranslationsFolder.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>
#include <QTranslator>

#include <memory>

namespace
{
// Installs the first catalogue of that name for a language; the application ends it.
bool install(const QString& name, const QLocale& language, const QStringList& folders)
{
    auto translator = std::make_unique<QTranslator>();
    for (const QString& folder : folders) {
        if (translator->load(language, name, QStringLiteral("_"), folder)) {
            translator->setParent(QCoreApplication::instance());
            return QCoreApplication::installTranslator(translator.release());
        }
    }
    return false;
}
} // namespace

void installCatalogue()
{
    const QString qtFolder = translationsFolder();
    const QString name = QStringLiteral("mvxIso15745Xml");
    const QStringList folders = {
        QCoreApplication::applicationDirPath() + QLatin1String("/" CATALOGUE_FOLDER), qtFolder};
    install(QStringLiteral("qtbase"), QLocale(), {qtFolder});
    // English has a catalogue for the plural forms of numbers.
    if (!install(name, QLocale(), folders)) {
        install(name, QLocale(QLocale::English), folders);
    }
}

QString userLanguage()
{
    return QLocale().name().section(QLatin1Char('_'), 0, 0);
}
