#include "CCopyCommandLine.h"
#include "Copies.h"
#include "Descriptions.h"
#include "Messages.h"

#include <CXddChecker.h>
#include <CXddNormalizer.h>

#include <QCoreApplication>

namespace
{
const QString CONFORMANT = QStringLiteral("conformant");
const QString LIST_RULES = QStringLiteral("list-rules");

// A copy for programs that use the strict load of the library.
ECopied normalizeFile(const SCopyRequest& request, const QString& fileName)
{
    const CXddDocument document = openDescription(fileName);
    if (!document.isOpen()) {
        return ECopied::No;
    }
    if (request.destination.inPlace && document.form() != CXddDevice::FORM_XDD) {
        complain(QCoreApplication::translate(
                     "xddnormalize",
                     "%1: --in-place does not make an XDD of an EDS. --output writes it to a file of its own, and "
                     "xdd2eds writes a clean EDS.")
                     .arg(fileName));
        return ECopied::No;
    }
    const CXddCopy copy = CXddNormalizer::normalize(document);
    const ECopied written = writeCopy(request, document, copy, false);
    if (written == ECopied::Yes && !copy.mLoads) {
        complain(QCoreApplication::translate("xddnormalize", "%1: The copy does not load, because of what was left.")
                     .arg(fileName));
        return ECopied::WithFault;
    }
    return written;
}

// A copy for publishing.
ECopied conform(const SCopyRequest& request, const QString& fileName)
{
    return conformFile(request, fileName, [](const CXddDocument& document) { return CXddChecker::check(document); });
}

int listRules()
{
    QStringList lines;
    for (const CXddRule& rule : CXddNormalizer::rules()) {
        lines << QStringLiteral("%1\n    %2,\n    %3").arg(rule.mId, rule.mSummary, rule.mReason);
    }
    return print(lines.join(QLatin1Char('\n')));
}

int run(const QStringList& arguments)
{
    CCopyCommandLine line(
        QCoreApplication::translate(
            "xddnormalize",
            "Writes copies of CANopen device descriptions for programs that use the strict load of the library, or for "
            "publishing (--conformant). The copy of an EDS is an XDD."),
        QCoreApplication::translate(
            "xddnormalize",
            "A description; - is standard input. The copy of one goes to standard output unless it is named."),
        QString());
    line.addCopyOptions(
        QCoreApplication::translate("xddnormalize", "Write the copy of the one FILE to OUT; - is standard output."),
        QCoreApplication::translate("xddnormalize", "Write the copies to DIR, named as the files."),
        QCoreApplication::translate("xddnormalize", "Report every change separately."),
        QCoreApplication::translate("xddnormalize", "Report no changes."));
    line.addInPlace(QCoreApplication::translate("xddnormalize", "Change the files themselves."));
    line.add(
        {CONFORMANT},
        QCoreApplication::translate(
            "xddnormalize", "Write copies for publishing: put right what xddcheck finds and has one right writing."));
    line.add(
        {LIST_RULES}, QCoreApplication::translate("xddnormalize", "Print what is changed in a description, and why."));
    if (const std::optional<int> status = line.parse(arguments)) {
        return *status;
    }
    if (line.isSet(LIST_RULES)) {
        return listRules();
    }
    return line.writeCopies(line.isSet(CONFORMANT) ? conform : normalizeFile);
}
} // namespace

int main(int argc, char* argv[])
{
    return runTool(argc, argv, QStringLiteral("xddnormalize"), run);
}
