#include "html/PageIndex.h"

#include "html/CPageWriter.h"

#include <QUrl>

QByteArray pageIndex(const QList<SIndexRow>& rows, const QString& language)
{
    CHtml html;
    CPageWriter::begin(html, CPageWriter::tr("CANopen devices"), language, QByteArray());
    html.open("main").line().element("h1", CPageWriter::tr("CANopen devices")).line();
    html.open("div", {{"class", QStringLiteral("wide")}}).open("table").open("thead").open("tr");
    const QStringList heads = {CPageWriter::tr("Product"), CPageWriter::tr("Vendor"),      CPageWriter::tr("File"),
                               CPageWriter::tr("Entries"), CPageWriter::tr("PDOs in use"), CPageWriter::tr("Errors"),
                               CPageWriter::tr("Warnings")};
    for (const QString& head : heads) {
        html.element("th", head, {{"scope", QStringLiteral("col")}});
    }
    html.close().close().line().open("tbody").line();
    for (const SIndexRow& row : rows) {
        // In front of a colon there would be a scheme.
        const QString address = QLatin1String("./") + QString::fromLatin1(QUrl::toPercentEncoding(row.fileName));
        html.open("tr").open("td").element("a", cutForPage(row.product), {{"href", address}}).close();
        html.element("td", cutForPage(row.vendor)).element("td", cutForPage(row.source));
        for (const int number : {row.entries, row.pdos, row.errors, row.warnings}) {
            html.element("td", QString::number(number));
        }
        html.close().line();
    }
    html.close().close().close().line().close().line().close().close().line();
    return html.bytes();
}
