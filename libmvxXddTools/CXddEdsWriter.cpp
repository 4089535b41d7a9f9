#include "CXddEdsWriter.h"

#include "SOpened.h"
#include "eds/CEdsWriter.h"

CXddEds::CXddEds() = default;

CXddEds CXddEdsWriter::write(const CXddDocument& document)
{
    const CDescription& description = openedOf(document).description;
    const CEdsWriter writer(description);
    CXddEds eds;
    eds.mText = writer.bytes();
    eds.mEntries = int(description.dictionary().entries().size());
    eds.mIncomplete = writer.incompleteEntries();
    eds.mLosses = writer.losses();
    return eds;
}
