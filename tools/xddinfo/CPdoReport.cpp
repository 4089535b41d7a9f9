#include "CPdoReport.h"

#include "COutput.h"
#include "CTable.h"
#include "Catalogue.h"
#include "Messages.h"

#include <CCanOpenNames.h>
#include <CXddEntryTexts.h>

#include <QLocale>

namespace
{
constexpr int BITS_OF_BYTE = 8;
constexpr int MAX_BYTES = 8;

const QString INDENT = QStringLiteral("  ");

// What stands for a field in the picture: there are as many as a PDO has bits.
QChar letterOf(int field)
{
    return QLatin1Char("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+*"[field % 64]);
}

QString timeText(double milliseconds)
{
    return CPdoReport::tr("%1 ms").arg(QString::number(milliseconds, 'f', QLocale::FloatingPointShortest));
}

// "2" for a field that begins with byte 2, "2.4" for one that begins with bit 4 of it.
QString placeText(const CXddPdoField& field)
{
    const QString byte = QString::number(field.mOffset / BITS_OF_BYTE);
    const int bit = field.mOffset % BITS_OF_BYTE;
    return bit == 0 ? byte : QStringLiteral("%1.%2").arg(byte).arg(bit);
}

QString nameText(const CXddPdoField& field)
{
    const QString name = field.fullName();
    return field.mKind == CXddPdoField::KIND_DUMMY ? CPdoReport::tr("(dummy)")
           : name.isEmpty()                        ? CPdoReport::tr("(not described)")
                                                   : name;
}

// The numbers of PDOs, those that follow each other as a range: "1, 5-8".
QString numbersText(const QList<int>& numbers)
{
    QStringList ranges;
    for (int first = 0; first < numbers.size();) {
        int last = first;
        while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) {
            ++last;
        }
        ranges
            << (first == last ? QString::number(numbers[first])
                              : QStringLiteral("%1-%2").arg(numbers[first]).arg(numbers[last]));
        first = last + 1;
    }
    return ranges.join(QLatin1String(", "));
}
} // namespace

CPdoReport::CPdoReport(COutput& output, int width)
    : mOutput(output)
    , mWidth(width)
{}

void CPdoReport::show(const SShownDescription& description, const QList<CXddPdo>& pdos)
{
    mOutput.writeLine(printable(description.title()));
    for (const CXddPdo& pdo : pdos) {
        if (!pdo.mFields.isEmpty() || pdo.mIsMultiplexed) {
            showPdo(pdo);
        }
    }
    mOutput.writeLine();
    showEmpty(pdos, tr("Enabled, maps nothing"), true);
    showEmpty(pdos, tr("Disabled, maps nothing"), false);
    if (pdos.isEmpty()) {
        mOutput.writeLine(tr("There are no PDOs."));
    }
}

void CPdoReport::showPdo(const CXddPdo& pdo)
{
    mOutput.writeLine();
    const QString state = pdo.mIsEnabled    ? pdo.canIdText()
                          : pdo.mCanId != 0 ? tr("disabled (%1)").arg(pdo.canIdText())
                                            : tr("disabled");
    mOutput.writeLine(QStringLiteral("%1  %2").arg(pdo.name(), state));
    writeField(mOutput, INDENT, tr("Length"), tr("%n byte(s)", nullptr, pdo.bytes()));
    showTimes(pdo);
    if (pdo.mIsMultiplexed) {
        mOutput.writeLine(INDENT + tr("Multiplexed: its data name the node and the entry that they carry."));
        return;
    }
    showPicture(pdo);
    showFields(pdo);
}

void CPdoReport::showTimes(const CXddPdo& pdo)
{
    constexpr double microseconds = 1000;
    const auto timeOf = [](double milliseconds) {
        return milliseconds > 0 ? timeText(milliseconds) : QString();
    };
    if (pdo.mTransmissionType) {
        writeField(
            mOutput, INDENT, tr("Transmission type"),
            tr("%1, %2").arg(QString::number(*pdo.mTransmissionType), pdo.transmissionText()));
    }
    writeField(mOutput, INDENT, tr("Inhibit time"), timeOf(double(pdo.mInhibitTime) / microseconds));
    writeField(mOutput, INDENT, pdo.mIsTransmit ? tr("Event timer") : tr("Deadline"), timeOf(pdo.mEventTimer));
    writeField(
        mOutput, INDENT, tr("SYNC start value"), pdo.mSyncStart == 0 ? QString() : QString::number(pdo.mSyncStart));
}

// A character for each bit, the lowest bit of each byte first, as they are counted in a mapping.
void CPdoReport::showPicture(const CXddPdo& pdo)
{
    QString bits(MAX_BYTES * BITS_OF_BYTE, QLatin1Char('.'));
    for (int i = 0; i < pdo.mFields.size(); ++i) {
        const CXddPdoField& field = pdo.mFields[i];
        const QChar letter = field.mKind == CXddPdoField::KIND_DUMMY ? QLatin1Char('-') : letterOf(i);
        bits.replace(field.mOffset, field.mBits, QString(field.mBits, letter));
    }
    QStringList heads;
    QStringList bytes;
    for (int byte = 0; byte < MAX_BYTES; ++byte) {
        heads << QString::number(byte).leftJustified(BITS_OF_BYTE);
        bytes << bits.mid(byte * BITS_OF_BYTE, BITS_OF_BYTE);
    }
    mOutput.writeLine(INDENT + heads.join(QLatin1Char(' ')).trimmed());
    mOutput.writeLine(INDENT + bytes.join(QLatin1Char(' ')));
}

void CPdoReport::showFields(const CXddPdo& pdo)
{
    CTable table(
        {{INDENT},
         {tr("Byte")},
         {tr("Bits")},
         {tr("Entry")},
         {tr("Name"), 16},
         {tr("Type")},
         {tr("Range"), 8, true},
         {tr("Unit"), 4, true}});
    for (int i = 0; i < pdo.mFields.size(); ++i) {
        const CXddPdoField& field = pdo.mFields[i];
        const QChar letter = field.mKind == CXddPdoField::KIND_DUMMY ? QLatin1Char('-') : letterOf(i);
        table.addRow(
            {INDENT + letter, placeText(field), QString::number(field.mBits), field.entry(), printable(nameText(field)),
             CCanOpenNames::dataType(field.mDataType), field.rangeText(),
             printable(CXddLabel::chosen(field.mTexts.mUnits, userLanguage()))});
    }
    table.write(mOutput, mWidth);
}

void CPdoReport::showEmpty(const QList<CXddPdo>& pdos, const QString& name, bool areEnabled)
{
    QStringList texts;
    for (const bool isTransmit : {false, true}) {
        QList<int> numbers;
        for (const CXddPdo& pdo : pdos) {
            if (pdo.mIsTransmit == isTransmit && pdo.mIsEnabled == areEnabled && pdo.mFields.isEmpty()
                && !pdo.mIsMultiplexed) {
                numbers << pdo.mNumber;
            }
        }
        if (!numbers.isEmpty()) {
            texts << QLatin1String(isTransmit ? "TPDO " : "RPDO ") + numbersText(numbers);
        }
    }
    writeField(mOutput, QString(), name, texts.join(QLatin1String(", ")));
}
