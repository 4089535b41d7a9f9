#include "Copies.h"

#include "Descriptions.h"
#include "Files.h"
#include "Messages.h"

#include <QCoreApplication>

#include <algorithm>

namespace
{
void reportCopy(const SCopyRequest& request, const QString& fileName, const CXddCopy& copy, bool showsRules)
{
    reportRemarks(fileName, copy.mRemarks, request.verbose ? EACH : MOST, showsRules);
    const auto changes = std::count_if(copy.mRemarks.begin(), copy.mRemarks.end(), [](const CXddRemark& remark) {
        return remark.mKind == CXddRemark::KIND_CHANGE;
    });
    reportLine(QCoreApplication::translate("tools", "%1: %n change(s)", nullptr, int(changes)).arg(fileName));
}
} // namespace

ECopied writeCopy(const SCopyRequest& request, const CXddDocument& document, const CXddCopy& copy, bool showsRules)
{
    const QString fileName = document.name();
    if (!request.quiet) {
        reportCopy(request, fileName, copy, showsRules);
    }
    const bool isNeeded = !request.dryRun && (!request.destination.inPlace || copy.mText != document.bytes());
    return !isNeeded || writeFile(request.destination.of(fileName), copy.mText) ? ECopied::Yes : ECopied::No;
}

ECopied conformFile(const SCopyRequest& request, const QString& fileName, const ChooseFindings& choose)
{
    const CXddDocument document = openDescription(fileName);
    if (!document.isOpen()) {
        return ECopied::No;
    }
    if (request.destination.inPlace && document.form() != CXddDevice::FORM_XDD) {
        complain(QCoreApplication::translate("tools", "%1: An EDS is not put right; xdd2eds writes it clean.")
                     .arg(fileName));
        return ECopied::No;
    }
    return writeCopy(request, document, CXddNormalizer::conform(document, choose(document)), true);
}
