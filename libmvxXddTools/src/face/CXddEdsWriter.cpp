#include "CXddEdsWriter.h"

#include "eds/CEdsWriter.h"
#include "face/SOpened.h"

CXddEds::CXddEds() = default;

namespace
{
CXddEds written(const CXddDocument& document, const CXddCommissioning* commissioning)
{
    CXddEds eds;
    if (const SOpened* const opened = openedOf(document)) {
        const CEdsWriter writer(opened->description, commissioning);
        eds.mText = writer.bytes();
        eds.mEntries = int(opened->description.dictionary().entries().size());
        eds.mIncomplete = writer.incompleteEntries();
        CRemarks losses; // What the XDD of an EDS does not say is not said again
        for (const CXddRemark& loss : opened->remarksOf({CXddRemark::KIND_LOSS}) + writer.losses()) {
            losses.add(loss);
        }
        eds.mLosses = losses.inOrder();
    }
    return eds;
}
} // namespace

CXddEds CXddEdsWriter::write(const CXddDocument& document)
{
    return written(document, nullptr);
}

CXddEds CXddEdsWriter::writeDcf(const CXddDocument& document, const CXddCommissioning& commissioning)
{
    return written(document, &commissioning);
}
