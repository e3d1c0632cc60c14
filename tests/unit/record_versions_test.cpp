// Records written by another version of the interface: an older one that ends before fields this
// side knows, or a newer one with a field this side does not know. The reader takes exactly the
// size the record declares, keeps its defaults for the fields the record lacks and never reads
// what follows the record.
#include <aidl/vendor/kest/hardware/vexil_svc/AgdspLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/CellularLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/CellularModemIoSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/ConnectivityLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/MipiLogConfig.h>
#include <aidl/vendor/kest/hardware/vexil_svc/PmSensorHubLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SensorHubLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SubsystemPresence.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SubsystemStorageParam.h>
#include <android/binder_auto_utils.h>
#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

namespace {

using namespace aidl::vendor::kest::hardware::vexil_svc;

// Writes a record whose fields are of the given kinds ('i' int, 's' string): the first `set` of
// them with values of their own, the rest at their defaults. Leaves the parcel at the record's
// start and gives where each field ends, counted from there.
std::vector<int32_t> write_record(AParcel* parcel, const std::string& kinds, size_t set) {
    const int32_t start = AParcel_getDataPosition(parcel);
    AParcel_writeInt32(parcel, 0);
    std::vector<int32_t> ends;
    for (size_t k = 0; k < kinds.size(); ++k) {
        if (kinds[k] == 'i') AParcel_writeInt32(parcel, k < set ? static_cast<int32_t>(k) + 7 : 0);
        if (kinds[k] == 's') AParcel_writeString(parcel, "log", k < set ? 3 : 0);
        ends.push_back(AParcel_getDataPosition(parcel) - start);
    }
    AParcel_setDataPosition(parcel, start);
    AParcel_writeInt32(parcel, ends.back());
    AParcel_setDataPosition(parcel, start);
    return ends;
}

// Makes the size word at the parcel's position claim `size` bytes.
void declare_size(AParcel* parcel, int32_t size) {
    const int32_t start = AParcel_getDataPosition(parcel);
    AParcel_writeInt32(parcel, size);
    AParcel_setDataPosition(parcel, start);
}

template <typename Record>
void reads_every_version(const std::string& kinds) {
    SCOPED_TRACE(Record::descriptor);
    // Every size from the size word alone up to a newer version's record with one field more,
    // also sizes that end inside a field: the fields that start within the record are read, and
    // reading goes on at its end.
    const std::string newer = kinds + "i";
    ndk::ScopedAParcel layout(AParcel_create());
    const std::vector<int32_t> ends = write_record(layout.get(), newer, newer.size());
    for (int32_t size = 4; size <= ends.back(); size += 2) {
        ndk::ScopedAParcel other(AParcel_create()), same(AParcel_create());
        write_record(other.get(), newer, newer.size());
        size_t set = 0;
        while (set < newer.size() && (set == 0 ? 4 : ends[set - 1]) < size) ++set;
        declare_size(other.get(), size);
        write_record(same.get(), kinds, set);
        Record read, expected;
        ASSERT_EQ(expected.readFromParcel(same.get()), STATUS_OK);
        EXPECT_EQ(read.readFromParcel(other.get()), STATUS_OK) << size;
        EXPECT_EQ(read, expected) << size;
        EXPECT_EQ(AParcel_getDataPosition(other.get()), size) << size;
    }
    // Sizes no record can have: shorter than the size word, or ending beyond the largest
    // position (the record here starts one word in). One word less still ends in range.
    for (int32_t size : {0, 3, -4, INT32_MAX, INT32_MAX - 4}) {
        ndk::ScopedAParcel parcel(AParcel_create());
        AParcel_writeInt32(parcel.get(), 0);
        write_record(parcel.get(), kinds, kinds.size());
        declare_size(parcel.get(), size);
        Record read;
        EXPECT_EQ(read.readFromParcel(parcel.get()),
                  size == INT32_MAX - 4 ? STATUS_OK : STATUS_BAD_VALUE)
            << size;
    }
}

TEST(RecordVersions, ReaderTakesTheDeclaredSize) {
    reads_every_version<AgdspLogSettings>("iiiii");
    reads_every_version<CellularLogSettings>("iiiissiiiiiii");
    reads_every_version<CellularModemIoSettings>("iiiiii");
    reads_every_version<ConnectivityLogSettings>("iiiiiii");
    reads_every_version<MipiLogConfig>("sss");
    reads_every_version<PmSensorHubLogSettings>("ii");
    reads_every_version<SensorHubLogSettings>("ii");
    reads_every_version<SubsystemPresence>("iiiiii");
    reads_every_version<SubsystemStorageParam>("iiiii");
}

}  // namespace
