#include "CXddComparison.h"

#include "canopen/Device.h"
#include "canopen/PdoLayout.h"
#include "diff/CChanges.h"
#include "face/SOpened.h"
#include "names/Hexadecimal.h"
#include "remarks/SRule.h"

#include <algorithm>
#include <memory>

namespace
{
bool hasActualValue(const CDictionary& dictionary)
{
    const std::vector<SEntry>& entries = dictionary.entries();
    return std::any_of(entries.begin(), entries.end(), [](const SEntry& entry) { return entry.actualValue.isGiven(); });
}

bool isConfigured(const CDescription& description)
{
    return description.form() == CXddDevice::FORM_DCF || hasActualValue(description.dictionary());
}

// What was said, while an EDS was read, of objects in other lists than the one for their index.
QHash<unsigned int, QString> otherLists(const QList<CXddRemark>& remarks)
{
    QHash<unsigned int, QString> lists;
    for (const CXddRemark& remark : remarks) {
        const bool isOfList =
            remark.mRule == QLatin1String("wrong-list") || remark.mRule == QLatin1String("section-not-listed");
        if (isOfList && remark.mIndex) {
            lists.insert(*remark.mIndex, remark.comparable());
        }
    }
    return lists;
}

// One side, with the dictionary without what is configured where the other side is not.
struct SHeld
{
    SHeld(const SOpened& opened, bool withConfiguration)
        : texts(opened.description)
        , defaults(
              withConfiguration || !hasActualValue(opened.description.dictionary())
                  ? nullptr
                  : std::make_unique<CDictionary>(opened.description.dictionary().withoutActualValues()))
        , side{
              opened.description,
              texts,
              deviceOf(opened.description),
              defaults ? *defaults : opened.description.dictionary(),
              {},
              otherLists(opened.remarks),
              isConfigured(opened.description)}
    {
        side.pdos = layoutsOf(pdosOf(side.dictionary), side.dictionary, texts, 0);
    }

    CTexts texts;
    std::unique_ptr<CDictionary> defaults;
    SSide side;
};
} // namespace

CXddComparison::CXddComparison() = default;

CXddComparison CXddComparison::compare(const CXddDocument& old, const CXddDocument& now)
{
    const SOpened* const before = openedOf(old);
    const SOpened* const after = openedOf(now);
    CXddComparison comparison;
    if (before == nullptr || after == nullptr) {
        return comparison;
    }
    const bool areConfigured = isConfigured(before->description) && isConfigured(after->description);
    const SHeld oldSide(*before, areConfigured);
    const SHeld newSide(*after, areConfigured);
    const SSides sides = {oldSide.side, newSide.side};
    CChanges changes;
    compareDevices(sides, changes);
    comparePdos(sides, changes); // What they say need not be said of entries
    compareDictionaries(sides, changes);
    comparison.mIsOpen = true;
    comparison.mIsRevisionRaised = isRevisionRaised(sides);
    const std::optional<unsigned int> revision = newSide.side.device.mRevisionNumber;
    comparison.mRevision = revision ? hexadecimalText(*revision, 8) : newSide.side.device.mDeviceProfile.mFileVersion;
    if (changes.has(CXddRemark::SEVERITY_ERROR) && !comparison.mIsRevisionRaised) {
        changes.add(
            QLatin1String("revision-not-raised"), nullptr, nullptr,
            comparison.mRevision.isEmpty() ? CRemarks::say("the revision is not raised")
                                           : CRemarks::say("the revision is not raised: %2"),
            {comparison.mRevision, comparison.mRevision});
    }
    comparison.mChanges = changes.inOrder();
    return comparison;
}

int CXddComparison::count(CXddRemark::ESeverity severity) const
{
    return int(std::count_if(mChanges.begin(), mChanges.end(), [severity](const CXddChange& change) {
        return change.mSeverity == severity;
    }));
}

QString CXddComparison::verdict() const
{
    CXddRemark::ESeverity worst = CXddRemark::SEVERITY_NOTE;
    for (const CXddChange& change : mChanges) {
        worst = std::max(worst, change.mSeverity);
    }
    return mChanges.isEmpty() ? QStringLiteral("same") : CXddChange::gradeAsStr(worst);
}

QString CXddComparison::concernsText(unsigned int concerns)
{
    const std::pair<unsigned int, QString> all[] = {
        {CXddChange::CONCERN_SDO, CRemarks::tr("SDO access")},
        {CXddChange::CONCERN_PDO, CRemarks::tr("PDO receivers")},
        {CXddChange::CONCERN_CONFIGURATION, CRemarks::tr("stored configuration")}};
    QStringList parts;
    for (const auto& [concern, text] : all) {
        parts << ((concerns & concern) != 0 ? QStringList{text} : QStringList());
    }
    if (parts.isEmpty()) {
        return CRemarks::tr("what people rely on");
    }
    const QString last = parts.takeLast();
    return parts.isEmpty() ? last : CRemarks::tr("%1 and %2").arg(parts.join(QLatin1String(", ")), last);
}

QString CXddComparison::verdictText() const
{
    unsigned int broken = 0;
    for (const CXddChange& change : mChanges) {
        broken |= change.mSeverity == CXddRemark::SEVERITY_ERROR ? change.mConcerns : 0;
    }
    const int breaking = count(CXddRemark::SEVERITY_ERROR);
    const int compatible = count(CXddRemark::SEVERITY_WARNING);
    const int editorial = count(CXddRemark::SEVERITY_NOTE);
    QStringList parts;
    if (breaking > 0) {
        parts << CRemarks::tr("%n change(s) break %1", nullptr, breaking).arg(concernsText(broken));
    }
    if (compatible > 0) {
        parts << CRemarks::tr("%n compatible", nullptr, compatible);
    }
    if (editorial > 0) {
        parts << CRemarks::tr("%n editorial", nullptr, editorial);
    }
    if (breaking > 0) {
        parts << (mIsRevisionRaised ? CRemarks::tr("revision raised") : CRemarks::tr("revision not raised"))
                     + (mRevision.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(mRevision));
    }
    return parts.isEmpty() ? verdict() : verdict() + QLatin1String(": ") + parts.join(QLatin1String("; "));
}

QList<CXddRule> CXddComparison::rules()
{
    return shownRules(CDiffRules::tables());
}
