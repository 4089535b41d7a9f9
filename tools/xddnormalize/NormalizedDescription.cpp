#include "NormalizedDescription.h"

#include "CEncodedText.h"

#include <QTemporaryFile>

#include <algorithm>

int SNormalizedDescription::made() const
{
    return int(std::count_if(
        changes.begin(), changes.end(), [](const SChange& change) { return change.rule != ERule::Left; }));
}

bool normalizeDescription(const QByteArray& original, SNormalizedDescription& normalized, QString& errorText)
{
    CEncodedText encoded;
    CNormalizer normalizer;
    if (!encoded.decode(original, errorText) || !normalizer.normalize(encoded.text(), errorText)) {
        return false;
    }
    normalized.bytes = encoded.encode(normalizer.result());
    normalized.changes = normalizer.changes();
    return true;
}

bool loadDescription(ICIso15745& reader, const QByteArray& bytes, QString& errorText)
{
    QTemporaryFile file;
    if (!file.open() || file.write(bytes) != bytes.size() || !file.flush()) {
        errorText = file.errorString();
        return false;
    }
    return reader.load(file.fileName(), errorText);
}
