#ifndef MVXISO15745XML_CISO15745IMPL_H
#define MVXISO15745XML_CISO15745IMPL_H

#include "CDomDoc.h"
#include "ICIso15745.h"

/**
 * The one implementation of ICIso15745.
 *
 * Loading is a chain of readers, one per element, each named after the element that it is given. A reader returns true
 * when the element was read, and otherwise false with one message in the error text. What was stored before a failure
 * stays. Required items are read with the reporting form of CDomDoc, optional ones with the defaulting or the lookup
 * form.
 */
class CIso15745Impl final : public ICIso15745
{
public:
    CIso15745Impl();

    bool load(const QString& fileName, QString& errorText) override;
    bool save(const QString& fileName, QString& errorText) override;
    CCanOpenObject getObj(unsigned int index) override;
    bool addObject(const CCanOpenObject& object, QString& errorText) override;
    QMap<unsigned int, CCanOpenObject> getObjList() override;
    CDeviceProfile& deviceProfile() override;
    CNetworkCanOpenProfile& networkProfile() override;

private:
    // The file and the container
    bool openFile(const QString& fileName, QString& errorText);
    bool parseRootFromDOM(const QDomElement& root, QString& errorText);
    bool parseIso15745ProfileFromDOM(const QDomElement& profile, QString& errorText);

    // The profile header and the elements that occur in many places
    bool parseProfileHeaderFromDom(const QDomElement& element, CProfileHeader& header, QString& errorText);
    bool parseGLabel(const QDomElement& element, CGLabel& label, QString& errorText);
    bool parseGLabels(const QDomElement& element, CGLabels& labels, QString& errorText);
    bool parseWriteProtectedString(
        const QString& tagName, const QDomElement& parent, CWriteProtectString& value, QString& errorText);
    bool parseWriteProtectedGLables(
        const QString& tagName, const QDomElement& parent, CWriteProtectGLabels& value, QString& errorText);
    void parseVersions(const QDomElement& parent, QList<CVersion>& versions);

    // The device profile
    bool parseDeviceProfileBodyFromDOM(const QDomElement& body, CDeviceProfile& profile, QString& errorText);
    bool parseDeviceIdentityFromDOM(const QDomElement& identity, CDeviceProfile& profile, QString& errorText);
    bool parseDeviceFunctionFromDOM(const QDomElement& function, CDeviceProfile& profile, QString& errorText);
    bool parseDeviceFunctionCapabilitiesFromDOM(
        const QDomElement& capabilities, CDeviceProfile& profile, QString& errorText);
    bool parseDeviceFunctionCharacteristicList(const QDomElement& list, CDeviceProfile& profile, QString& errorText);
    bool parseCharacteristic(const QDomElement& element, CCharacteristic& characteristic, QString& errorText);

    // The network profile
    bool parseNetworkCanOpenProfileBodyFromDOM(
        const QDomElement& body, CNetworkCanOpenProfile& profile, QString& errorText);
    bool parseNetworkApplicationLayersFromDOM(
        const QDomElement& layers, CNetworkCanOpenProfile& profile, QString& errorText);
    bool parseNetworkTransportLayersFromDOM(
        const QDomElement& layers, CNetworkCanOpenProfile& profile, QString& errorText);
    bool parseNetworkBaudRateFromDOM(const QDomElement& baudRate, CNetworkCanOpenProfile& profile, QString& errorText);
    bool parseNetworkManagementFromDOM(
        const QDomElement& management, CNetworkCanOpenProfile& profile, QString& errorText);

    // The object dictionary
    bool parseNetworkCanOpenObjectListFromDOM(
        const QDomElement& list, CNetworkCanOpenProfile& profile, QString& errorText);
    bool parseObjects(const QDomElement& list, CNetworkCanOpenProfile& profile, QString& errorText);
    bool parseCanObjectFromDOM(const QDomElement& element, CCanOpenObject& object, QString& errorText);
    bool parseCanSubObjectFromDOM(const QDomElement& element, CCanOpenSubObject& subObject, QString& errorText);

    CDomDoc mDomDoc;                        // The document of the last file that parsed
    QString mNamespaceUri;                  // Namespace of the root element
    QString mSchemaLocationPrefix;          // Prefix of the root's "schemaLocation", usually "xsi"
    QString mSchemaLocationNamespaceUri;    // Namespace of that attribute
    QString mSchemaLocation;                // Value of that attribute
    CDeviceProfile mDeviceProfile;          // Filled by every profile of the class "Device"
    CNetworkCanOpenProfile mNetworkProfile; // Filled by every profile of the class "CommunicationNetwork"
};

#endif
