#include "Catalogue.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStringList>
#include <QTranslator>

void installCatalogue()
{
    const QStringList folders = {
        QCoreApplication::applicationDirPath() + QLatin1String("/" CATALOGUE_FOLDER),
        QLibraryInfo::location(QLibraryInfo::TranslationsPath),
    };
    auto* const translator = new QTranslator(QCoreApplication::instance());
    for (const QString& folder : folders) {
        if (translator->load(QLocale(), QStringLiteral("mvxIso15745Xml"), QStringLiteral("_"), folder)) {
            QCoreApplication::installTranslator(translator);
            return;
        }
    }
}
