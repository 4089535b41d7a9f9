#include "CXddNormalizer.h"

#include "normalize/Normalize.h"

#include <ICIso15745.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryFile>

namespace
{
bool loadCopy(ICIso15745& reader, const QString& fileName, const QByteArray& copy, QString& errorText)
{
    QTemporaryFile file;
    if (!file.open() || file.write(copy) != copy.size() || !file.flush()) {
        errorText = QCoreApplication::translate("mvxXddTools", "Cannot write the temporary file %1: %2")
                        .arg(file.fileName(), file.errorString());
        return false;
    }
    const bool loaded = reader.load(file.fileName(), errorText);
    errorText.replace(file.fileName(), fileName);
    return loaded;
}
} // namespace

bool CXddNormalizer::normalize(
    const QByteArray& description, QByteArray& normalized, QList<CXddChange>& changes, QString& errorText)
{
    return normalizeText(CXmlEdits::ELayout::Indented, description, normalized, changes, errorText)
           == ENormalized::Description;
}

bool CXddNormalizer::load(ICIso15745& reader, const QString& fileName, QList<CXddChange>& changes, QString& errorText)
{
    changes.clear();
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return reader.load(fileName, errorText); // Which says why
    }
    const QByteArray description = file.readAll();
    QByteArray normalized;
    switch (normalizeText(CXmlEdits::ELayout::InLine, description, normalized, changes, errorText)) {
    case ENormalized::Foreign:
        return false;
    case ENormalized::Unreadable:
        return reader.load(fileName, errorText);
    case ENormalized::Description:
        break;
    }
    return normalized == description ? reader.load(fileName, errorText)
                                     : loadCopy(reader, fileName, normalized, errorText);
}

QList<CXddRule> CXddNormalizer::rules()
{
    return normalizeRules();
}
