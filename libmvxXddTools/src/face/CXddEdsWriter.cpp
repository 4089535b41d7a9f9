#include "CXddEdsWriter.h"

#include "eds/CEdsWriter.h"
#include "face/SOpened.h"

CXddEds::CXddEds() = default;

namespace
{
CXddEds written(const CDescription& description, const CXddCommissioning* commissioning)
{
    const CEdsWriter writer(description, commissioning);
    CXddEds eds;
    eds.mText = writer.bytes();
    eds.mEntries = int(description.dictionary().entries().size());
    eds.mIncomplete = writer.incompleteEntries();
    eds.mLosses = writer.losses();
    return eds;
}
} // namespace

CXddEds CXddEdsWriter::write(const CXddDocument& document)
{
    return written(openedOf(document).description, nullptr);
}

CXddEds CXddEdsWriter::writeDcf(const CXddDocument& document, const CXddCommissioning& commissioning)
{
    return written(openedOf(document).description, &commissioning);
}

CXddCommissioning CXddEdsWriter::commissioning(const CXddDocument& document)
{
    return openedOf(document).description.commissioning();
}
