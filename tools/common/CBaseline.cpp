#include "CBaseline.h"

#include "CCommandLine.h"
#include "Files.h"
#include "Messages.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <numeric>
#include <tuple>

namespace
{
const QString FILE_KEY = QStringLiteral("file");
const QString RULE = QStringLiteral("rule");
const QString ENTRY = QStringLiteral("entry");
const QString TEXT = QStringLiteral("text");
const QString COUNT = QStringLiteral("count");
const QString FINDINGS = QStringLiteral("findings");

// In the order in which they are read best.
QByteArray lineOf(const QString& file, const QString& rule, const QString& entry, const QString& text, int count)
{
    const auto quoted = [](const QString& value) {
        const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
        return array.mid(1, array.size() - 2);
    };
    return "{\"file\": " + quoted(file) + ", \"rule\": " + quoted(rule) + ", \"entry\": " + quoted(entry)
           + ", \"text\": " + quoted(text) + ", \"count\": " + QByteArray::number(count) + "}";
}
} // namespace

bool CBaseline::SKey::operator<(const SKey& other) const
{
    return std::tie(file, entry, rule, text) < std::tie(other.file, other.entry, other.rule, other.text);
}

CBaseline::CBaseline(const QString& fileName)
    : mFileName(fileName)
{}

QString CBaseline::read()
{
    QFile file(mFileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return mFileName + QLatin1String(": ") + file.errorString();
    }
    QJsonParseError error = {};
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    const QJsonValue findings = document.object().value(FINDINGS);
    if (error.error != QJsonParseError::NoError || !findings.isArray()) {
        return QCoreApplication::translate("tools", "%1: This is no baseline.").arg(mFileName);
    }
    const QJsonArray array = findings.toArray();
    for (const auto& value : array) {
        const QJsonObject one = value.toObject();
        const SKey key = {
            one.value(FILE_KEY).toString(), one.value(RULE).toString(), one.value(ENTRY).toString(),
            one.value(TEXT).toString()};
        mFindings[key] += one.value(COUNT).toInt(1);
    }
    return QString();
}

bool CBaseline::write() const
{
    QByteArray text = "{\"findings\": [";
    const char* separator = "\n";
    for (auto finding = mFindings.begin(); finding != mFindings.end(); ++finding) {
        const SKey& key = finding.key();
        text += separator + lineOf(key.file, key.rule, key.entry, key.text, finding.value());
        separator = ",\n";
    }
    return writeFile(mFileName, text + "\n]}\n");
}

int CBaseline::size() const
{
    return std::accumulate(mFindings.begin(), mFindings.end(), 0);
}

int CBaseline::gone() const
{
    int count = 0;
    for (auto finding = mFindings.begin(); finding != mFindings.end(); ++finding) {
        count += mLookedAt.contains(finding.key().file) ? finding.value() : 0;
    }
    return count;
}

CBaseline::SKey CBaseline::keyOf(const QString& description, const CXddRemark& finding) const
{
    return {pathOf(description), finding.mRule, finding.entry(), finding.comparable()};
}

// Relative to the folder of the baseline, so that it holds wherever that is.
QString CBaseline::pathOf(const QString& description) const
{
    return description == standardStream()
               ? description
               : QFileInfo(mFileName).absoluteDir().relativeFilePath(QFileInfo(description).absoluteFilePath());
}
