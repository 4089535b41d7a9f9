#include "CTextReport.h"

#include "COutput.h"
#include "CTable.h"
#include "Catalogue.h"
#include "Messages.h"

#include <CXddFacts.h>

#include <algorithm>

namespace
{
// As many PDOs of one direction are shown with what they map; a device can have 512.
constexpr int MAX_SHOWN_PDOS = 16;

QString joined(const QStringList& texts, const QString& separator)
{
    QStringList stated = texts;
    stated.removeAll(QString());
    return stated.join(separator);
}

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

CTable dictionaryTable(const QMap<unsigned int, CCanOpenObject>& objects, bool isShort)
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
    const auto addRow = [&](const QString& address, const QString& indent, const CCanOpenSubObject& entry) {
        table.addRow(
            {address, indent + printable(entry.mName), CCanOpenNames::type(entry, isShort),
             CCanOpenNames::access(entry), CCanOpenNames::mapping(entry), printable(entry.mDefaultValue),
             printable(entry.mActualValue), printable(entry.mLowLimit), printable(entry.mHighLimit)});
    };
    for (const CCanOpenObject& object : objects) {
        addRow(CCanOpenNames::entry(object.mIndex), QString(), object);
        for (const CCanOpenSubObject& subObject : object.mSubObjects) {
            addRow(CCanOpenNames::entry(object.mIndex, subObject.mIndex), QStringLiteral("  "), subObject);
        }
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
    const CNetworkCanOpenProfile& network = description.reader->networkProfile();
    showSource(description);
    showFacts(CXddFacts::identity(*description.reader, userLanguage()));
    const QList<CXddFact> files = CXddFacts::files(*description.reader, description.document);
    if (!files.isEmpty()) {
        mOutput.writeLine();
        showFacts(files);
    }
    mOutput.writeLine();
    showBitRates(description);
    showPdos(tr("Receive PDOs"), description.pdos, false);
    showPdos(tr("Transmit PDOs"), description.pdos, true);
    mOutput.writeLine();
    using Kind = CCanOpenNames::EObjectKind;
    const auto isStated = [&description](CXddDocument::EItem item) {
        return description.document.states(item);
    };
    showCount(
        tr("Mandatory objects"), isStated(CXddDocument::ITEM_MANDATORY_OBJECTS), network.mMandatoryObjects,
        Kind::Mandatory, network.mObjects);
    showCount(
        tr("Optional objects"), isStated(CXddDocument::ITEM_OPTIONAL_OBJECTS), network.mOptionalObjects, Kind::Optional,
        network.mObjects);
    showCount(
        tr("Manufacturer objects"), isStated(CXddDocument::ITEM_MANUFACTURER_OBJECTS), network.mManufacturerObjects,
        Kind::Manufacturer, network.mObjects);
    mOutput.writeLine();
    showDictionary(network.mObjects);
}

void CTextReport::showEntries(const SShownDescription& description, const QVector<SSelectedEntry>& entries)
{
    showSource(description);
    CShownTexts texts(description.document);
    bool isFirst = true;
    for (const SSelectedEntry& entry : entries) {
        if (!isFirst) {
            mOutput.writeLine();
        }
        isFirst = false;
        if (entry.subObject) {
            showSubObject(entry.object, *entry.subObject, QString(), texts);
            continue;
        }
        mOutput.writeLine(tr("Object %1").arg(CCanOpenNames::entry(entry.object.mIndex)));
        showFields(entry.object, QStringLiteral("  "));
        showTexts(texts.of(entry.object.mIndex), QStringLiteral("  "));
        showField(
            QStringLiteral("  "), tr("Stated sub-objects"),
            entry.object.mSubNumber == 0 ? QString() : QString::number(entry.object.mSubNumber));
        for (const CCanOpenSubObject& subObject : entry.object.mSubObjects) {
            showSubObject(entry.object, subObject, QStringLiteral("  "), texts);
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

void CTextReport::showBitRates(const SShownDescription& description)
{
    const CNetworkCanOpenProfile& network = description.reader->networkProfile();
    const QString supplied = tr("%1 (not stated; the format's default)");
    QStringList supported;
    for (const CNetworkCanOpenProfile::EBaudrate rate : network.mSupportedBaudRates) {
        supported << rateShown(rate);
    }
    const QString rate = rateShown(network.mBaudRate);
    showField(
        QString(), tr("Default bit rate"),
        rate.isEmpty() || description.document.states(CXddDocument::ITEM_BAUD_RATE) ? rate : supplied.arg(rate));
    if (description.document.states(CXddDocument::ITEM_SUPPORTED_BAUD_RATES)) {
        showField(QString(), tr("Supported bit rates"), supported.join(QLatin1String(", ")));
    }
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

void CTextReport::showCount(
    const QString& name, bool isStated, unsigned int stated, CCanOpenNames::EObjectKind kind,
    const QMap<unsigned int, CCanOpenObject>& objects)
{
    int found = 0;
    for (auto object = objects.cbegin(); object != objects.cend(); ++object) {
        found += CCanOpenNames::objectKind(object.key()) == kind ? 1 : 0;
    }
    const bool agree = unsigned(found) == stated;
    showField(
        QString(), name,
        !isStated || agree ? QString::number(found)
                           : tr("%1 (the file states %2)").arg(QString::number(found), QString::number(stated)));
}

// With short names of data types where the long ones do not fit.
void CTextReport::showDictionary(const QMap<unsigned int, CCanOpenObject>& objects)
{
    const CTable table = dictionaryTable(objects, false);
    (table.fits(mWidth) ? table : dictionaryTable(objects, true)).write(mOutput, mWidth);
}

void CTextReport::showSubObject(
    const CCanOpenObject& object, const CCanOpenSubObject& subObject, const QString& indent, CShownTexts& texts)
{
    mOutput.writeLine(indent + tr("Sub-object %1").arg(CCanOpenNames::entry(object.mIndex, subObject.mIndex)));
    showFields(subObject, indent + QLatin1String("  "));
    showTexts(texts.of(object.mIndex, subObject.mIndex), indent + QLatin1String("  "));
}

void CTextReport::showFields(const CCanOpenSubObject& entry, const QString& indent)
{
    showField(indent, tr("Name"), entry.mName);
    showField(indent, tr("Object"), CCanOpenNames::objectCode(entry.mObjectType));
    showField(indent, tr("Data type"), CCanOpenNames::dataType(entry.mDataType));
    showField(indent, tr("Access"), CCanOpenNames::access(entry));
    showField(indent, tr("PDO mapping"), CCanOpenNames::mapping(entry));
    showField(indent, tr("Default value"), entry.mDefaultValue);
    showField(indent, tr("Actual value"), entry.mActualValue);
    showField(indent, tr("Low limit"), entry.mLowLimit);
    showField(indent, tr("High limit"), entry.mHighLimit);
    showField(indent, tr("Denotation"), entry.mDenotation);
    showField(
        indent, tr("Flags"),
        entry.mObjFlags == 0 ? QString() : QStringLiteral("0x") + QString::number(entry.mObjFlags, 16).toUpper());
    showField(indent, tr("Parameter"), entry.mUniqueIdRef);
}

// What the description says of an entry for people.
void CTextReport::showTexts(const CXddEntryTexts& texts, const QString& indent)
{
    const QString language = userLanguage();
    showField(indent, tr("Label"), CXddLabel::chosen(texts.mLabels, language));
    showField(indent, tr("Description"), CXddLabel::chosen(texts.mDescriptions, language));
    showField(
        indent, tr("Unit"), joined({CXddLabel::chosen(texts.mUnits, language), texts.mUnitUri}, QStringLiteral(" ")));
    showField(indent, tr("Multiplier"), texts.mMultiplier);
    showField(indent, tr("Offset"), texts.mOffset);
    for (const CXddAllowedValue& value : texts.mAllowedValues) {
        const QString range = value.isSingle() ? value.mLow : value.mLow + QLatin1String("..") + value.mHigh;
        showField(
            indent, tr("Allowed value"),
            joined({range, CXddLabel::chosen(value.mLabels, language)}, QStringLiteral("  ")));
    }
}

void CTextReport::showField(const QString& indent, const QString& name, const QString& value)
{
    writeField(mOutput, indent, name, value);
}
