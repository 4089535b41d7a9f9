#include "Catalogue.h"

#include "TranslationsFolder.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>
#include <QTranslator>

namespace
{
// Installs the first catalogue of that name; the application ends it.
void install(const QString& name, const QStringList& folders)
{
    auto* const translator = new QTranslator(QCoreApplication::instance());
    for (const QString& folder : folders) {
        if (translator->load(QLocale(), name, QStringLiteral("_"), folder)) {
            QCoreApplication::installTranslator(translator);
            return;
        }
    }
}
} // namespace

void installCatalogue()
{
    const QString qtFolder = translationsFolder();
    install(QStringLiteral("qtbase"), {qtFolder});
    install(
        QStringLiteral("mvxIso15745Xml"),
        {QCoreApplication::applicationDirPath() + QLatin1String("/" CATALOGUE_FOLDER), qtFolder});
}
