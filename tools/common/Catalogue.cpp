#include "Catalogue.h"

#include "TranslationsFolder.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>
#include <QTranslator>

#include <memory>

namespace
{
// Installs the first catalogue of that name; the application ends it.
void install(const QString& name, const QStringList& folders)
{
    auto translator = std::make_unique<QTranslator>();
    for (const QString& folder : folders) {
        if (translator->load(QLocale(), name, QStringLiteral("_"), folder)) {
            translator->setParent(QCoreApplication::instance());
            QCoreApplication::installTranslator(translator.release());
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
