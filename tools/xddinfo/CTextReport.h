#ifndef XDDINFO_CTEXTREPORT_H
#define XDDINFO_CTEXTREPORT_H

#include <ICIso15745.h>

#include <QCoreApplication>
#include <QStringList>

class COutput;

/** Shows a loaded description to a person. */
class CTextReport
{
    Q_DECLARE_TR_FUNCTIONS(xddinfo)

public:
    explicit CTextReport(COutput& output);

    /** Shows the identity, the file attributes, the bit rates and the object dictionary. @p source says where the
     * description came from. */
    void showDescription(const QString& source, ICIso15745& reader);

    /** Shows every field of one object and of its sub-objects. */
    void showObject(const QString& source, const CCanOpenObject& object);

private:
    void showIdentity(const CDeviceProfile& device);
    void showBitRates(const CNetworkCanOpenProfile& network);
    void showCounts(const CNetworkCanOpenProfile& network);
    void showDictionary(const QMap<unsigned int, CCanOpenObject>& objects);
    void showFields(const CCanOpenSubObject& entry, const QString& indent);
    void showField(const QString& indent, const QString& name, const QString& value);

    COutput& mOutput;
};

#endif
