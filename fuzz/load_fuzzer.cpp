#include <ICIso15745.h>

#include <cstdint>
#include <memory>

#include <sys/mman.h>
#include <unistd.h>

// Loads arbitrary bytes through the public interface and touches everything that comes back. Any file given on the
// command line is loaded once, without fuzzing.

namespace
{
// A file in memory that is loaded by its name under /proc, because a reader takes nothing but names.
class CMemoryFile
{
public:
    void fill(const std::uint8_t* data, std::size_t size) const
    {
        if (ftruncate(mDescriptor, 0) != 0 || pwrite(mDescriptor, data, size, 0) != static_cast<ssize_t>(size)) {
            __builtin_trap();
        }
    }

    QString name() const { return QStringLiteral("/proc/self/fd/%1").arg(mDescriptor); }

private:
    int mDescriptor = memfd_create("description", 0);
};

void require(bool condition)
{
    if (!condition) {
        __builtin_trap();
    }
}

void touch(const CGLabels& labels)
{
    for (const CGLabel& label : labels) {
        require(CGLabel::gLabelTypeFromStr(CGLabel::gLabelTypeAsStr(label.mType)) == label.mType);
    }
}

void touch(const CDeviceProfile& device)
{
    require(
        CProfileHeader::classIdAsStr(device.mHeader.mProfileClassId)
        != CProfileHeader::iasIfTypAsStr(CProfileHeader::IFT_API));
    require(
        device.mCharacteristic.mCharacteristicName.size() + device.mCharacteristic.mCharacteristicContent.size() >= 0);
    touch(device.mVendorText.mLabels);
    touch(device.mCategory);
    for (const CVersion& version : device.mVersions) {
        require(CVersion::versionTypeFromStr(CVersion::versionTypeAsStr(version.mVersionType)) == version.mVersionType);
    }
}

void touch(const CCanOpenSubObject& entry)
{
    require(
        CCanOpenSubObject::accessTypeFromStr(CCanOpenSubObject::accessTypeAsStr(entry.mAccessType))
        == entry.mAccessType);
    require(
        CCanOpenSubObject::pdoMappingFromStr(CCanOpenSubObject::pdoMappingAsStr(entry.mPdoMapping))
        == entry.mPdoMapping);
    require(entry.isValid() != entry.mName.isEmpty());
}

void touch(ICIso15745& reader)
{
    touch(reader.deviceProfile());
    const QMap<unsigned int, CCanOpenObject> objects = reader.getObjList();
    for (auto object = objects.cbegin(); object != objects.cend(); ++object) {
        require(object->mIndex == object.key());
        touch(*object);
        for (const CCanOpenSubObject& subObject : object->mSubObjects) {
            touch(subObject);
            require(subObject.mSubNumber == 0);
        }
        QString error;
        require(!reader.addObject(reader.getObj(object.key()), error) && !error.isEmpty());
    }
    for (const CNetworkCanOpenProfile::EBaudrate rate : reader.networkProfile().mSupportedBaudRates) {
        require(rate != CNetworkCanOpenProfile::BAUD_INVALID);
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const CMemoryFile file;
    file.fill(data, size);
    const std::unique_ptr<ICIso15745> reader(ICIso15745::create());
    // The second load meets what the first one has stored.
    for (int round = 0; round < 2; ++round) {
        QString error;
        const bool ok = reader->load(file.name(), error);
        require(ok || !error.isEmpty());
        touch(*reader);
    }
    return 0;
}
