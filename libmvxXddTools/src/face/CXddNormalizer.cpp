#include "CXddNormalizer.h"

#include "check/CCheckRules.h"
#include "face/CMemoryFile.h"
#include "face/SOpened.h"
#include "normalize/CNormalizeRules.h"

#include <ICIso15745.h>

#include <QSet>

#include <algorithm>
#include <iterator>

namespace
{
std::vector<const NormalizeRules*> normalizeRuleTables()
{
    return {
        &CNormalizeRules::header(), &CNormalizeRules::device(), &CNormalizeRules::dictionary(),
        &CNormalizeRules::bitRate()};
}

void apply(const std::vector<const NormalizeRules*>& tables, const CDescription& description, CXmlEdits& edits)
{
    for (const NormalizeRules* const table : tables) {
        for (const SNormalizeRule& rule : *table) {
            edits.setCause(rule);
            rule.apply(description, edits);
        }
    }
}

// What was taken otherwise or left out while the file was read, and what was done with it then, in order.
QList<CXddRemark> withRemarks(const SOpened& opened, const QList<CXddRemark>& others)
{
    CRemarks remarks;
    for (const CXddRemark& remark :
         opened.remarksOf({CXddRemark::KIND_CHANGE, CXddRemark::KIND_LEFT, CXddRemark::KIND_LOSS}) + others) {
        remarks.add(remark);
    }
    return remarks.inOrder();
}

CXddCopy copyOf(const CXddDocument& document, CXmlEdits::ELayout layout)
{
    CXddCopy copy;
    const SOpened* const found = openedOf(document);
    if (found == nullptr) {
        copy.mLoads = false;
        return copy;
    }
    const SOpened& opened = *found;
    CXmlEdits edits(opened.tree, layout);
    apply(normalizeRuleTables(), opened.description, edits);
    if (layout == CXmlEdits::ELayout::Indented) {
        edits.onlyRecord();
    }
    apply({&CNormalizeRules::load()}, opened.description, edits);
    const bool isSame = edits.isEmpty() && document.form() == CXddDevice::FORM_XDD;
    copy.mText = isSame ? document.bytes() : opened.encoded.encode(edits.result());
    copy.mLoads = edits.isComplete();
    copy.mRemarks = withRemarks(opened, edits.remarks());
    return copy;
}

// The remarks without those on how XML is written, which an EDS is not.
QList<CXddRemark> withoutXml(const QList<CXddRemark>& remarks)
{
    QSet<QString> rules;
    for (const SCheckRule& rule : CCheckRules::form()) {
        rules << QLatin1String(rule.id);
    }
    QList<CXddRemark> others;
    std::copy_if(remarks.begin(), remarks.end(), std::back_inserter(others), [&rules](const CXddRemark& remark) {
        return !rules.contains(remark.mRule);
    });
    return others;
}

// Messages name the file by the name that the user knows.
bool loadBytes(const QByteArray& bytes, const QString& name, ICIso15745& reader, QString& errorText)
{
    const CMemoryFile file(bytes);
    if (file.name().isEmpty()) {
        errorText =
            CRemarks::filled(CRemarks::say("There is no memory for a copy of %1: %2"), {name, file.errorText()}).text();
        return false;
    }
    const bool loaded = reader.load(file.name(), errorText);
    const auto place = errorText.indexOf(file.name());
    if (!loaded && place >= 0) {
        errorText.replace(place, file.name().size(), name);
    }
    return loaded;
}
} // namespace

CXddCopy::CXddCopy() = default;

CXddCopy CXddNormalizer::normalize(const CXddDocument& document)
{
    return copyOf(document, CXmlEdits::ELayout::Indented);
}

CXddCopy CXddNormalizer::conform(const CXddDocument& document, const QList<CXddRemark>& findings)
{
    const SOpened* const opened = openedOf(document);
    if (opened == nullptr) {
        return normalize(document);
    }
    CXmlEdits edits(opened->tree, CXmlEdits::ELayout::Indented);
    if (opened->description.isXdd()) {
        edits.limitTo(findings);
    }
    apply({&CNormalizeRules::conform()}, opened->description, edits);
    CXddCopy copy;
    const bool isSame = edits.isEmpty() && opened->description.isXdd();
    copy.mText = isSame ? document.bytes() : opened->encoded.encode(edits.result());
    copy.mLoads = edits.isComplete();
    copy.mRemarks = opened->description.isXdd() ? edits.remarks() : withRemarks(*opened, withoutXml(edits.remarks()));
    return copy;
}

bool CXddNormalizer::load(
    const CXddDocument& document, ICIso15745& reader, QList<CXddRemark>& remarks, CXddRemark& failure)
{
    remarks.clear();
    failure = document.failure();
    if (!document.isOpen()) {
        return false;
    }
    const CXddCopy copy = copyOf(document, CXmlEdits::ELayout::InLine);
    remarks = copy.mRemarks;
    failure.mLine = openedOf(document)->tree.root().line();
    QString errorText;
    const bool isLoaded = loadBytes(copy.mText, document.name(), reader, errorText);
    failure.mSentence = CXddSentence(errorText);
    return isLoaded;
}

bool CXddNormalizer::loadAsItIs(const CXddDocument& document, ICIso15745& reader, QString& errorText)
{
    return loadBytes(document.bytes(), document.name(), reader, errorText);
}

QList<CXddRule> CXddNormalizer::rules()
{
    return shownRules(normalizeRuleTables());
}
