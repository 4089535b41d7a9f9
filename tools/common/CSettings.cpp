#include "CSettings.h"

#include "CCommandLine.h"
#include "Messages.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace
{
const QString DISABLE_KEY = QStringLiteral("disable");

// True for a file that a pattern of the settings names.
bool isNamed(const QString& files, const QString& path)
{
    static const QRegularExpression::PatternOptions options = QRegularExpression::DotMatchesEverythingOption;
    const QRegularExpression expression(QRegularExpression::wildcardToRegularExpression(files), options);
    return files.isEmpty() || expression.match(path).hasMatch()
           || expression.match(QFileInfo(path).fileName()).hasMatch();
}
} // namespace

QString CSettings::name()
{
    return QStringLiteral(".%1.ini").arg(QCoreApplication::applicationName());
}

QString CSettings::apply(const QString& fileName, CRuleChoice& choice)
{
    const QString name = fileFor(fileName);
    if (name.isEmpty()) {
        return QString();
    }
    if (!mFiles.contains(name)) {
        mFiles.insert(name, read(name, choice));
    }
    const SFile file = mFiles.value(name);
    if (!file.error.isEmpty()) {
        return file.error;
    }
    const QString path = QDir(file.folder).relativeFilePath(QFileInfo(fileName).absoluteFilePath());
    for (const SEntry& entry : file.entries) {
        for (const QString& pattern : isNamed(entry.files, path) ? entry.patterns : QStringList()) {
            if (entry.key == DISABLE_KEY) {
                choice.disable(pattern);
            } else {
                choice.setSeverity(pattern, entry.key);
            }
        }
    }
    return QString();
}

// The settings of the folder of a description or above it; of standard input those of the working folder.
QString CSettings::fileFor(const QString& fileName)
{
    if (mIsNone || !mFileName.isEmpty()) {
        return mIsNone ? QString() : mFileName;
    }
    QDir folder = fileName == standardStream() ? QDir::current() : QFileInfo(fileName).absoluteDir();
    const QString first = folder.path();
    if (!mFileOfFolder.contains(first)) {
        QString found;
        do {
            found = folder.exists(name()) ? folder.filePath(name()) : QString();
        } while (found.isEmpty() && folder.cdUp());
        mFileOfFolder.insert(first, found.isEmpty() ? found : QDir::current().relativeFilePath(found));
    }
    return mFileOfFolder.value(first);
}

CSettings::SFile CSettings::read(const QString& fileName, const CRuleChoice& known)
{
    SFile file;
    file.folder = QFileInfo(fileName).absolutePath();
    QFile source(fileName);
    if (!source.open(QIODevice::ReadOnly | QIODevice::Text)) {
        file.error = fileName + QLatin1String(": ") + source.errorString();
        return file;
    }
    const QStringList lines = QString::fromUtf8(source.readAll()).split(QLatin1Char('\n'));
    QString files;
    for (int number = 0; number < lines.size() && file.error.isEmpty(); ++number) {
        const QString line = lines[number].trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char(';')) || line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        if (line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']'))) {
            files = line.mid(1, line.size() - 2).trimmed();
            continue;
        }
        SEntry entry = {files, line.section(QLatin1Char('='), 0, 0).trimmed(), {}};
        for (const QString& pattern : line.section(QLatin1Char('='), 1).split(QLatin1Char(','))) {
            entry.patterns << pattern.trimmed();
        }
        entry.patterns.removeAll(QString());
        const QString fault = line.contains(QLatin1Char('=')) ? faultOf(entry, known)
                                                              : QCoreApplication::translate(
                                                                    "tools", "\"%1\" is neither a section, a key "
                                                                             "with \"=\" nor a comment.")
                                                                    .arg(line);
        file.error = fault.isEmpty() ? fault : place(fileName, number + 1) + fault;
        file.entries << entry;
    }
    return file;
}

// Why a line cannot be understood; else empty.
QString CSettings::faultOf(const SEntry& entry, const CRuleChoice& known)
{
    if (entry.key != DISABLE_KEY && !known.rules().severities.contains(entry.key)) {
        return QCoreApplication::translate("tools", "'%1' is not a setting: these are %2.")
            .arg(entry.key, (QStringList{DISABLE_KEY} + known.rules().severities).join(QLatin1String(", ")));
    }
    for (const QString& pattern : entry.patterns) {
        if (!known.isKnown(pattern)) {
            return QCoreApplication::translate("tools", "'%1' is not a rule.").arg(pattern);
        }
    }
    return QString();
}
