#include "Catalogue.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStringList>
#include <QTranslator>

#include <memory>

void installCatalogue()
{
    const QStringList folders = {
        QCoreApplication::applicationDirPath() + QLatin1String("/" CATALOGUE_FOLDER),
        QLibraryInfo::location(QLibraryInfo::TranslationsPath),
    };
    auto translator = std::make_unique<QTranslator>();
    for (const QString& folder : folders) {
        if (translator->load(QLocale(), QStringLiteral("mvxIso15745Xml"), QStringLiteral("_"), folder)) {
            translator->setParent(QCoreApplication::instance()); // Which installs it, and ends it
            QCoreApplication::installTranslator(translator.release());
            return;
        }
    }
}
