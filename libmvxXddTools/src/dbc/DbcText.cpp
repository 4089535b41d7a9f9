#include "dbc/DbcText.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace
{
// Who sends and receives what is none of the nodes.
const QString NO_NODE = QStringLiteral("Vector__XXX");

// Marks a CAN-ID of 29 bits.
constexpr unsigned int EXTENDED = 0x80000000U;

// Writes the sections one behind the other, each to its end, with single line feeds.
class CWriter
{
public:
    CWriter(const QVector<SDbcNode>& nodes, const QVector<SDbcMessage>& messages)
        : mNodes(nodes)
        , mMessages(messages)
    {}

    QByteArray text()
    {
        line(QStringLiteral("VERSION \"\""));
        line();
        line(QStringLiteral("NS_ :"));
        line();
        line(QStringLiteral("BS_:"));
        line();
        writeNodes();
        writeMessages();
        writeComments();
        writeAttributes();
        writeValues();
        writeValueTypes();
        return mText;
    }

private:
    void line(const QString& text = QString()) { mText += text.toLatin1() + '\n'; }

    static QString id(const SDbcMessage& message)
    {
        return QString::number(message.canId | (message.isExtended ? EXTENDED : 0U));
    }

    // "SG_ 389 Level", as the sections behind the messages name a signal.
    static QString signalKey(const SDbcMessage& message, const SDbcSignal& signal)
    {
        return QStringLiteral("%1 %2").arg(id(message), signal.name);
    }

    template <typename Visit> void forEachSignal(Visit visit)
    {
        for (const SDbcMessage& message : mMessages) {
            for (const SDbcSignal& signal : message.signalList) {
                visit(message, signal);
            }
        }
    }

    void writeNodes()
    {
        QString names;
        for (const SDbcNode& node : mNodes) {
            names += QLatin1Char(' ') + node.name;
        }
        line(QLatin1String("BU_:") + names);
        line();
    }

    void writeMessages()
    {
        for (const SDbcMessage& message : mMessages) {
            line(QStringLiteral("BO_ %1 %2: %3 %4")
                     .arg(
                         id(message), message.name, QString::number(message.bytes),
                         message.sender.isEmpty() ? NO_NODE : message.sender));
            for (const SDbcSignal& signal : message.signalList) {
                writeSignal(signal);
            }
            line();
        }
    }

    void writeSignal(const SDbcSignal& signal)
    {
        const QString receivers = signal.receivers.isEmpty() ? NO_NODE : signal.receivers.join(QLatin1Char(','));
        line(
            QStringLiteral(" SG_ %1 : %2|%3@1%4 (%5,%6) [%7|%8] \"%9\" ")
                .arg(
                    signal.name, QString::number(signal.start), QString::number(signal.bits),
                    signal.isSigned || signal.isReal ? QStringLiteral("-") : QStringLiteral("+"), signal.factor,
                    signal.offset, signal.minimum, signal.maximum, signal.unit)
            + receivers);
    }

    void writeComments()
    {
        for (const SDbcNode& node : mNodes) {
            line(QStringLiteral("CM_ BU_ %1 \"%2\";").arg(node.name, node.comment));
        }
        for (const SDbcMessage& message : mMessages) {
            line(QStringLiteral("CM_ BO_ %1 \"%2\";").arg(id(message), message.comment));
        }
        forEachSignal([this](const SDbcMessage& message, const SDbcSignal& signal) {
            if (!signal.comment.isEmpty()) {
                line(QStringLiteral("CM_ SG_ %1 \"%2\";").arg(signalKey(message, signal), signal.comment));
            }
        });
    }

    void writeAttributes()
    {
        line(QStringLiteral("BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 2147483647;"));
        line(QStringLiteral("BA_DEF_ SG_ \"SystemSignalLongSymbol\" STRING ;"));
        line(QStringLiteral("BA_DEF_DEF_ \"GenMsgCycleTime\" 0;"));
        line(QStringLiteral("BA_DEF_DEF_ \"SystemSignalLongSymbol\" \"\";"));
        for (const SDbcMessage& message : mMessages) {
            if (message.cycleTime != 0) {
                line(QStringLiteral("BA_ \"GenMsgCycleTime\" BO_ %1 %2;").arg(id(message)).arg(message.cycleTime));
            }
        }
        forEachSignal([this](const SDbcMessage& message, const SDbcSignal& signal) {
            if (!signal.longName.isEmpty()) {
                line(QStringLiteral("BA_ \"SystemSignalLongSymbol\" SG_ %1 \"%2\";")
                         .arg(signalKey(message, signal), signal.longName));
            }
        });
    }

    void writeValues()
    {
        forEachSignal([this](const SDbcMessage& message, const SDbcSignal& signal) {
            QString table;
            for (const QPair<QString, QString>& value : signal.values) {
                table += QStringLiteral(" %1 \"%2\"").arg(value.first, value.second);
            }
            if (!table.isEmpty()) {
                line(QStringLiteral("VAL_ %1%2 ;").arg(signalKey(message, signal), table));
            }
        });
    }

    void writeValueTypes()
    {
        constexpr int bitsOfSingle = 32;
        forEachSignal([this](const SDbcMessage& message, const SDbcSignal& signal) {
            if (signal.isReal) {
                line(QStringLiteral("SIG_VALTYPE_ %1 : %2;")
                         .arg(signalKey(message, signal))
                         .arg(signal.bits == bitsOfSingle ? 1 : 2));
            }
        });
    }

    const QVector<SDbcNode>& mNodes;
    const QVector<SDbcMessage>& mMessages;
    QByteArray mText;
};
} // namespace

QByteArray dbcFile(const QVector<SDbcNode>& nodes, QVector<SDbcMessage> messages)
{
    std::sort(messages.begin(), messages.end(), [](const SDbcMessage& left, const SDbcMessage& right) {
        return std::make_pair(left.isExtended, left.canId) < std::make_pair(right.isExtended, right.canId);
    });
    return CWriter(nodes, messages).text();
}

QString dbcNumber(double number)
{
    constexpr double largest = 1e20;
    constexpr double smallest = 1e-20;
    const double size = std::abs(number);
    const bool isWritable = number == 0 || (size >= smallest && size <= largest);
    return isWritable ? QString::number(number, 'f', QLocale::FloatingPointShortest) : QString();
}
