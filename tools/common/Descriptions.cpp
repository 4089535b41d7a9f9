#include "Descriptions.h"

#include "CCommandLine.h"
#include "Messages.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

CXddDocument readDescription(const QString& fileName)
{
    if (fileName != standardStream()) {
        return CXddDocument::openFile(fileName);
    }
    QFile input;
    input.open(stdin, QIODevice::ReadOnly);
    return CXddDocument::open(input, fileName);
}

CXddDocument openDescription(const QString& fileName)
{
    CXddDocument document = readDescription(fileName);
    if (!document.isOpen()) {
        complainAbout(fileName, document.failure());
    }
    return document;
}

bool isXmlFile(const QString& fileName)
{
    constexpr qint64 beginning = 4096;
    QFile file(fileName);
    const bool isVisible = QFileInfo(fileName).isFile() && file.open(QIODevice::ReadOnly);
    return !isVisible || CXddDocument::isXml(file.read(beginning));
}

QStringList descriptionsIn(const QString& folder)
{
    const QStringList endings = {
        QStringLiteral("*.xdd"), QStringLiteral("*.xdc"), QStringLiteral("*.xpd"), QStringLiteral("*.eds"),
        QStringLiteral("*.dcf")};
    QStringList names;
    QDirIterator files(folder, endings, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        names << files.next();
    }
    names.sort();
    return names;
}
