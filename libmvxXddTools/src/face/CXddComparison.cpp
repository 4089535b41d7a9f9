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
            QLatin1String("revision-not-raised"), nullptr, nullptr, CRemarks::say("the revision is not raised: %2"),
            {comparison.mRevision, comparison.mRevision});
    }
    comparison.mChanges = changes.inOrder();
    return comparison;
}

QList<CXddRule> CXddComparison::rules()
{
    return shownRules(CDiffRules::tables());
}
