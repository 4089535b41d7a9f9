#include "CTextReport.h"

#include "COutput.h"
#include "CTable.h"
#include "Catalogue.h"
#include "Messages.h"

#include <CCanOpenNames.h>

#include <algorithm>

namespace
{
// As many PDOs of one direction are shown with what they map; a device can have 512.
constexpr int MAX_SHOWN_PDOS = 16;

// A bit rate in kbit/s.
QString rateShown(CNetworkCanOpenProfile::EBaudrate rate)
{
    switch (rate) {
    case CNetworkCanOpenProfile::BAUD_INVALID:
        return QString();
    case CNetworkCanOpenProfile::BAUD_AUTO:
        return QCoreApplication::translate("xddinfo", "automatic");
    default:
        return QCoreApplication::translate("xddinfo", "%1 kbit/s").arg(static_cast<int>(rate));
    }
}

CTable dictionaryTable(const QList<CXddEntry>& entries, bool isShort)
{
    CTable table({
        {CTextReport::tr("Index")},
        {CTextReport::tr("Name"), 16},
        {CTextReport::tr("Type")},
        {CTextReport::tr("Access")},
        {CTextReport::tr("PDO")},
        {CTextReport::tr("Default"), 8},
        {CTextReport::tr("Actual"), 8},
        {CTextReport::tr("Low"), 8, true},
        {CTextReport::tr("High"), 8, true},
    });
    for (const CXddEntry& entry : entries) {
        table.addRow(
            {entry.address(), (entry.mSubIndex ? QStringLiteral("  ") : QString()) + printable(entry.mName),
             entry.typeText(isShort), entry.accessText(), entry.mappingText(), printable(entry.mDefaultValue.mText),
             printable(entry.mActualValue.mText), printable(entry.mLowLimit.mText), printable(entry.mHighLimit.mText)});
    }
    return table;
}
} // namespace

CTextReport::CTextReport(COutput& output, int width)
    : mOutput(output)
    , mWidth(width)
{}

void CTextReport::showDescription(const SShownDescription& description)
{
    const CXddDevice& device = description.device;
    const QList<CXddPdo> pdos = description.document.pdos();
    showSource(description);
    showFacts(description.facts);
    const QList<CXddFact> files = description.document.fileFacts();
    if (!files.isEmpty()) {
        mOutput.writeLine();
        showFacts(files);
    }
    mOutput.writeLine();
    showBitRates(device);
    showPdos(tr("Receive PDOs"), pdos, false);
    showPdos(tr("Transmit PDOs"), pdos, true);
    mOutput.writeLine();
    showCount(tr("Mandatory objects"), device.mMandatoryObjects);
    showCount(tr("Optional objects"), device.mOptionalObjects);
    showCount(tr("Manufacturer objects"), device.mManufacturerObjects);
    mOutput.writeLine();
    showDictionary(description.entries);
}

void CTextReport::showEntries(const SShownDescription& description, const QVector<int>& selected)
{
    showSource(description);
    CShownTexts texts(description.document);
    bool isFirst = true;
    for (const int number : selected) {
        if (!isFirst) {
            mOutput.writeLine();
        }
        isFirst = false;
        showEntry(description.entries[number], QString(), texts);
        const int end = description.entries[number].mSubIndex ? number : description.endOf(number);
        for (int subObject = number + 1; subObject < end; ++subObject) {
            showEntry(description.entries[subObject], QStringLiteral("  "), texts);
        }
    }
    if (texts.areLeftOut()) {
        mOutput.writeLine();
        mOutput.writeLine(tr("Further texts are left out: together they are far longer than the description."));
    }
}

void CTextReport::showSource(const SShownDescription& description)
{
    mOutput.writeLine(printable(description.title()));
    mOutput.writeLine();
}

void CTextReport::showFacts(const QList<CXddFact>& facts)
{
    for (const CXddFact& fact : facts) {
        showField(QString(), fact.mName, fact.mValue);
    }
}

void CTextReport::showBitRates(const CXddDevice& device)
{
    QStringList supported;
    for (const CNetworkCanOpenProfile::EBaudrate rate : device.mBitRates) {
        supported << rateShown(rate);
    }
    const QString rate = rateShown(device.bitRateInForce());
    const bool isOfFormat =
        device.mForm == CXddDevice::FORM_XDD && device.mDefaultBitRate == CNetworkCanOpenProfile::BAUD_INVALID;
    showField(
        QString(), tr("Default bit rate"), isOfFormat ? tr("%1 (not stated; the format's default)").arg(rate) : rate);
    showField(QString(), tr("Supported bit rates"), supported.join(QLatin1String(", ")));
}

void CTextReport::showPdos(const QString& name, const QList<CXddPdo>& pdos, bool isTransmit)
{
    QList<CXddPdo> mapped;
    int count = 0;
    for (const CXddPdo& pdo : pdos) {
        if (pdo.mIsTransmit == isTransmit) {
            ++count;
            mapped << (pdo.mFields.isEmpty() ? QList<CXddPdo>() : QList<CXddPdo>{pdo});
        }
    }
    showField(QString(), name, QString::number(count));
    for (const CXddPdo& pdo : mapped.mid(0, MAX_SHOWN_PDOS)) {
        QStringList entries;
        for (const CXddPdoField& field : pdo.mFields) {
            entries << field.entry();
        }
        showField(QStringLiteral("  "), tr("PDO %1").arg(pdo.mNumber), entries.join(QLatin1String(", ")));
    }
    const auto more = mapped.size() - MAX_SHOWN_PDOS;
    showField(QStringLiteral("  "), tr("more"), more <= 0 ? QString() : QString::number(more));
}

void CTextReport::showCount(const QString& name, const CXddCount& count)
{
    const QString found = QString::number(count.mFound);
    showField(
        QString(), name,
        count.mStated.value_or(count.mFound) == count.mFound
            ? found
            : tr("%1 (the file states %2)").arg(found, QString::number(*count.mStated)));
}

// With short names of data types where the long ones do not fit.
void CTextReport::showDictionary(const QList<CXddEntry>& entries)
{
    const CTable table = dictionaryTable(entries, false);
    (table.fits(mWidth) ? table : dictionaryTable(entries, true)).write(mOutput, mWidth);
}

void CTextReport::showEntry(const CXddEntry& entry, const QString& indent, CShownTexts& texts)
{
    const QString inner = indent + QLatin1String("  ");
    mOutput.writeLine(indent + (entry.mSubIndex ? tr("Sub-object %1") : tr("Object %1")).arg(entry.address()));
    showField(inner, tr("Name"), entry.mName);
    showField(inner, tr("Object"), CCanOpenNames::objectCode(entry.mObjectCode));
    showField(inner, tr("Data type"), CCanOpenNames::dataType(entry.mDataType));
    showField(inner, tr("Access"), entry.accessText());
    showField(inner, tr("PDO mapping"), entry.mappingText());
    showField(inner, tr("Default value"), entry.mDefaultValue.mText);
    showField(inner, tr("Actual value"), entry.mActualValue.mText);
    showField(inner, tr("Low limit"), entry.mLowLimit.mText);
    showField(inner, tr("High limit"), entry.mHighLimit.mText);
    showField(inner, tr("Denotation"), entry.mDenotation);
    showField(
        inner, tr("Flags"),
        entry.mObjFlags == 0 ? QString() : QStringLiteral("0x") + QString::number(entry.mObjFlags, 16).toUpper());
    showField(inner, tr("Parameter"), entry.mUniqueIdRef);
    showTexts(texts.of(entry), inner);
    const unsigned int stated = entry.mSubIndex ? 0 : entry.mSubNumber.value_or(0);
    showField(inner, tr("Stated sub-objects"), stated == 0 ? QString() : QString::number(stated));
}

// What the description says of an entry for people.
void CTextReport::showTexts(const CXddEntryTexts& texts, const QString& indent)
{
    const QString language = userLanguage();
    showField(indent, tr("Label"), CXddLabel::chosen(texts.mLabels, language));
    showField(indent, tr("Description"), CXddLabel::chosen(texts.mDescriptions, language));
    showField(
        indent, tr("Unit"), (CXddLabel::chosen(texts.mUnits, language) + QLatin1Char(' ') + texts.mUnitUri).trimmed());
    showField(indent, tr("Multiplier"), texts.mMultiplier);
    showField(indent, tr("Offset"), texts.mOffset);
    for (const CXddAllowedValue& value : texts.mAllowedValues) {
        const QString range = value.isSingle() ? value.mLow : value.mLow + QLatin1String("..") + value.mHigh;
        showField(
            indent, tr("Allowed value"),
            (range + QLatin1String("  ") + CXddLabel::chosen(value.mLabels, language)).trimmed());
    }
}

void CTextReport::showField(const QString& indent, const QString& name, const QString& value)
{
    writeField(mOutput, indent, name, value);
}
