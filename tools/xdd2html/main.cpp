#include "CCopyCommandLine.h"
#include "Catalogue.h"
#include "Descriptions.h"
#include "Files.h"
#include "Messages.h"

#include <CXddPage.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace
{
const QString LANG = QStringLiteral("lang");
const QString NO_FINDINGS = QStringLiteral("no-findings");
const QString INDEX = QStringLiteral("index.html");

// Writes the page of a file, and keeps what the index says of it.
ECopied writePage(
    const CXddPage::SOptions& options, const SCopyRequest& request, const QString& fileName, QList<CXddPage>& pages)
{
    const CXddDocument document = openDescription(fileName);
    if (!document.isOpen()) {
        return ECopied::No;
    }
    CXddPage page;
    {
        const COtherLanguage language(options.mLanguage);
        page = CXddPage::write(document, options);
    }
    if (page.mText.isEmpty()) {
        complainAbout(fileName, page.mFailure);
        return ECopied::No;
    }
    const QString copy = request.destination.of(fileName);
    page.mFileName = QFileInfo(copy).fileName();
    if (!request.dryRun && !writeFile(copy, page.mText)) {
        return ECopied::No;
    }
    page.mText.clear(); // The index needs the rest only
    pages << page;
    return ECopied::Yes;
}

// Writes the page that leads to the others of a folder.
bool writeIndex(const SCopyRequest& request, const QString& language, const QList<CXddPage>& pages)
{
    const COtherLanguage other(language);
    return writeFile(QDir(request.destination.outputDir).filePath(INDEX), CXddPage::index(pages, language));
}

int run(const QStringList& arguments)
{
    CCopyCommandLine line(
        QCoreApplication::translate("xdd2html", "Writes CANopen device descriptions as pages for a browser."),
        QCoreApplication::translate(
            "xdd2html",
            "A description; - is standard input. The page of one goes to standard output unless it is named."),
        QStringLiteral(".html"));
    line.addOutputOptions(
        QCoreApplication::translate("xdd2html", "Write the page of the one FILE to OUT; - is standard output."),
        QCoreApplication::translate(
            "xdd2html", "Write the pages to DIR, named as the files with .html, and index.html, which leads to them."));
    line.addNodeId(QCoreApplication::translate(
        "xdd2html", "The node-ID of the CAN-IDs; without it the one that the description states."));
    line.add(
        {LANG}, QCoreApplication::translate("xdd2html", "The language of the pages, en or de; en without it."),
        QStringLiteral("LANG"));
    line.add({NO_FINDINGS}, QCoreApplication::translate("xdd2html", "Leave out what the checker finds."));
    if (const std::optional<int> status = line.parse(arguments)) {
        return *status;
    }
    CXddPage::SOptions options;
    options.mNodeId = line.nodeId();
    options.mHasFindings = !line.isSet(NO_FINDINGS);
    options.mLanguage = line.isSet(LANG) ? line.value(LANG) : options.mLanguage;
    if (!COtherLanguage(options.mLanguage).isThere()) {
        return CCommandLine::refuse(
            QCoreApplication::translate("xdd2html", "There are no pages in the language \"%1\".")
                .arg(options.mLanguage));
    }
    line.keepFree(INDEX);
    QList<CXddPage> pages;
    SCopyRequest asked;
    const int status = line.writeCopies([&](const SCopyRequest& request, const QString& fileName) {
        asked = request;
        return writePage(options, request, fileName, pages);
    });
    const bool hasIndex = !asked.destination.outputDir.isEmpty() && !asked.dryRun && !pages.isEmpty();
    return !hasIndex || writeIndex(asked, options.mLanguage, pages) ? status : EXIT_NOT_ALL_DONE;
}
} // namespace

int main(int argc, char* argv[])
{
    return runTool(argc, argv, QStringLiteral("xdd2html"), run);
}
