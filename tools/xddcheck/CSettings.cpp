#include "CSettings.h"

#include "CCommandLine.h"
#include "Messages.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>

#include <algorithm>

namespace
{
const QString NAME = QStringLiteral(".xddcheck.ini");
const QString DISABLE_KEY = QStringLiteral("disable");
const QStringList SEVERITIES = {QStringLiteral("error"), QStringLiteral("warning"), QStringLiteral("note")};

// Where a key stands in a file, which QSettings does not tell; 0 where that is not found.
int lineOf(const QStringList& lines, const QString& section, const QString& key)
{
    QString current;
    for (int number = 0; number < lines.size(); ++number) {
        const QString line = lines[number].trimmed();
        if (line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']'))) {
            current = line.mid(1, line.size() - 2);
        } else if (current == section && line.section(QLatin1Char('='), 0, 0).trimmed() == key) {
            return number + 1;
        }
    }
    return 0;
}

// True for a file that a pattern of the settings names.
bool isNamed(const QString& files, const QString& path)
{
    static const QRegularExpression::PatternOptions options = QRegularExpression::DotMatchesEverythingOption;
    const QRegularExpression expression(QRegularExpression::wildcardToRegularExpression(files), options);
    return files.isEmpty() || expression.match(path).hasMatch()
           || expression.match(QFileInfo(path).fileName()).hasMatch();
}
} // namespace

QString CSettings::apply(const QString& fileName, CRuleChoice& choice)
{
    const QString name = fileFor(fileName);
    if (name.isEmpty()) {
        return QString();
    }
    if (!mFiles.contains(name)) {
        mFiles.insert(name, read(name));
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
            found = folder.exists(NAME) ? folder.filePath(NAME) : QString();
        } while (found.isEmpty() && folder.cdUp());
        mFileOfFolder.insert(first, found.isEmpty() ? found : QDir::current().relativeFilePath(found));
    }
    return mFileOfFolder.value(first);
}

CSettings::SFile CSettings::read(const QString& fileName)
{
    SFile file;
    file.folder = QFileInfo(fileName).absolutePath();
    QFile source(fileName);
    if (!source.open(QIODevice::ReadOnly | QIODevice::Text)) {
        file.error = fileName + QLatin1String(": ") + source.errorString();
        return file;
    }
    const QStringList lines = QString::fromUtf8(source.readAll()).split(QLatin1Char('\n'));
    const QSettings settings(fileName, QSettings::IniFormat);
    if (settings.status() != QSettings::NoError) {
        file.error = QCoreApplication::translate("xddcheck", "%1: These are no settings.").arg(fileName);
        return file;
    }
    const CRuleChoice choice;
    for (const QString& whole : settings.allKeys()) {
        const auto slash = whole.lastIndexOf(QLatin1Char('/'));
        SEntry entry;
        entry.files = slash < 0 ? QString() : whole.left(slash);
        entry.key = whole.mid(slash + 1);
        entry.line = lineOf(lines, entry.files, entry.key);
        const QStringList values = settings.value(whole).toStringList();
        for (const QString& text : values.join(QLatin1Char(',')).split(QLatin1Char(','), Qt::SkipEmptyParts)) {
            entry.patterns << text.trimmed();
        }
        const bool isKey = entry.key == DISABLE_KEY || SEVERITIES.contains(entry.key);
        const auto wrong =
            std::find_if(entry.patterns.begin(), entry.patterns.end(), [&choice](const QString& pattern) {
                return !choice.isKnown(pattern);
            });
        if (!isKey || wrong != entry.patterns.end()) {
            file.error =
                place(fileName, entry.line)
                + (isKey ? QCoreApplication::translate("xddcheck", "'%1' is not a rule.").arg(*wrong)
                         : QCoreApplication::translate("xddcheck", "'%1' is not a setting: these are %2.")
                               .arg(entry.key, (QStringList{DISABLE_KEY} + SEVERITIES).join(QLatin1String(", "))));
            return file;
        }
        file.entries << entry;
    }
    std::stable_sort(file.entries.begin(), file.entries.end(), [](const SEntry& left, const SEntry& right) {
        return left.line < right.line;
    });
    return file;
}
