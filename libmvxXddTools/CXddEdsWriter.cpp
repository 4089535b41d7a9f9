#include "CXddEdsWriter.h"

#include "CXddNormalizer.h"
#include "canopen/CDescription.h"
#include "canopen/CDictionary.h"
#include "eds/CEdsDocument.h"
#include "normalize/Normalize.h"
#include "text/CEncodedText.h"
#include "text/CXmlText.h"

CXddLoss::CXddLoss() = default;

CXddEds::CXddEds() = default;

bool CXddEdsWriter::write(const QByteArray& description, CXddEds& eds, QString& errorText)
{
    QByteArray normalized;
    QList<CXddChange> changes;
    // Without new lines, so that what is lost is reported with the lines of the original.
    if (normalizeText(CXmlEdits::ELayout::InLine, description, normalized, changes, errorText)
        != ENormalized::Description) {
        return false;
    }
    CEncodedText encoded;
    CXmlText text;
    CXmlText::SError error;
    if (!encoded.decode(normalized, errorText)) {
        return false;
    }
    if (!text.read(encoded.text(), error)) {
        errorText = error.message;
        return false;
    }
    const CDescription read(text);
    const CDictionary dictionary(read);
    const CEdsDocument document(read, dictionary, CXddStated::in(description));
    eds.mText = document.bytes();
    eds.mEntries = int(dictionary.entries().size());
    eds.mIncomplete = document.report().incompleteEntries();
    eds.mLosses = document.report().losses();
    return true;
}
