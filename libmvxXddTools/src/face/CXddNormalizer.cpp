#include "CXddNormalizer.h"

#include "face/CMemoryFile.h"
#include "face/SOpened.h"
#include "normalize/CNormalizeRules.h"

#include <ICIso15745.h>

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
    CRemarks remarks;
    for (const CXddRemark& remark :
         opened.remarksOf({CXddRemark::KIND_CHANGE, CXddRemark::KIND_LEFT, CXddRemark::KIND_LOSS}) + edits.remarks()) {
        remarks.add(remark);
    }
    copy.mRemarks = remarks.inOrder();
    return copy;
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
    if (document.form() != CXddDevice::FORM_XDD) {
        return normalize(document);
    }
    const SOpened& opened = *openedOf(document);
    CXmlEdits edits(opened.tree, CXmlEdits::ELayout::Indented);
    edits.limitTo(findings);
    apply({&CNormalizeRules::conform()}, opened.description, edits);
    CXddCopy copy;
    copy.mText = edits.isEmpty() ? document.bytes() : opened.encoded.encode(edits.result());
    copy.mLoads = edits.isComplete();
    copy.mRemarks = edits.remarks();
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
