#ifndef MVXXDDTOOLS_CEDSDOCUMENT_H
#define MVXXDDTOOLS_CEDSDOCUMENT_H

#include "CXddStated.h"
#include "canopen/CDictionary.h"
#include "eds/CEdsReport.h"
#include "eds/CEdsSections.h"

#include <QMap>

/** The INI form of one normalised description. */
class CEdsDocument
{
public:
    /** Writes a description; @p stated is what it stated before it was normalised. */
    CEdsDocument(const CDescription& description, const CDictionary& dictionary, const CXddStated& stated);

    QByteArray bytes() const;
    const CEdsReport& report() const;

private:
    // Objects that are written, each with its sub-objects in their order.
    struct SObject
    {
        const SDictionaryEntry* entry = nullptr;
        QMap<unsigned int, const SDictionaryEntry*> subObjects;
    };

    void chooseObjects();
    void chooseSubObjects(SObject& object);
    bool isSayable(const SDictionaryEntry& object);

    void fileInfo(const CXddStated& stated);
    void deviceInfo(const CXddStated& stated);
    void bitRates();
    void features();
    void dummyUsage();
    void objectLists();
    void object(const SObject& object);
    void composed(const SObject& object);
    void variable(const SDictionaryEntry& entry, unsigned int arrayType);

    void parameterName(const SDictionaryEntry& entry);
    void dataType(const SDictionaryEntry& entry, unsigned int type);
    void access(const SDictionaryEntry& entry);
    void value(const SDictionaryEntry& entry, const QString& key, const SStated& stated, unsigned int type);
    void limits(const SDictionaryEntry& entry, unsigned int type);
    void objFlags(const SDictionaryEntry& entry);
    void plainText(const QString& key, const CXmlElement& element, const QString& text);
    void reportText(const SEdsText& text, const CXmlElement& element, const SDictionaryEntry* entry);
    QString identityNumber(QLatin1String name, unsigned int subIndex) const;

    const CDescription& mDescription;
    const CDictionary& mDictionary;
    CXmlElement mDeviceBody;
    CXmlElement mNetworkBody;
    QMap<unsigned int, SObject> mObjects;
    CEdsSections mSections;
    CEdsReport mReport;
};

#endif
