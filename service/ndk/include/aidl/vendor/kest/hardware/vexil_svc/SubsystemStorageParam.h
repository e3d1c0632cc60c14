#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>
#include <android/binder_interface_utils.h>
#include <android/binder_parcelable_utils.h>
#include <android/binder_to_string.h>
#ifdef BINDER_STABILITY_SUPPORT
#include <android/binder_stability.h>
#endif  // BINDER_STABILITY_SUPPORT

namespace aidl {
namespace vendor {
namespace kest {
namespace hardware {
namespace vexil_svc {
class SubsystemStorageParam {
public:
  typedef std::false_type fixed_size;
  static const char* descriptor;

  int32_t externalMaxSize = 0;
  int32_t internalMaxSize = 0;
  int32_t logFileSize = 0;
  int32_t overwrite = 0;
  int32_t fileCount = 0;

  binder_status_t readFromParcel(const AParcel* parcel);
  binder_status_t writeToParcel(AParcel* parcel) const;

  inline bool operator!=(const SubsystemStorageParam& rhs) const {
    return std::tie(externalMaxSize, internalMaxSize, logFileSize, overwrite, fileCount) != std::tie(rhs.externalMaxSize, rhs.internalMaxSize, rhs.logFileSize, rhs.overwrite, rhs.fileCount);
  }
  inline bool operator<(const SubsystemStorageParam& rhs) const {
    return std::tie(externalMaxSize, internalMaxSize, logFileSize, overwrite, fileCount) < std::tie(rhs.externalMaxSize, rhs.internalMaxSize, rhs.logFileSize, rhs.overwrite, rhs.fileCount);
  }
  inline bool operator<=(const SubsystemStorageParam& rhs) const {
    return std::tie(externalMaxSize, internalMaxSize, logFileSize, overwrite, fileCount) <= std::tie(rhs.externalMaxSize, rhs.internalMaxSize, rhs.logFileSize, rhs.overwrite, rhs.fileCount);
  }
  inline bool operator==(const SubsystemStorageParam& rhs) const {
    return std::tie(externalMaxSize, internalMaxSize, logFileSize, overwrite, fileCount) == std::tie(rhs.externalMaxSize, rhs.internalMaxSize, rhs.logFileSize, rhs.overwrite, rhs.fileCount);
  }
  inline bool operator>(const SubsystemStorageParam& rhs) const {
    return std::tie(externalMaxSize, internalMaxSize, logFileSize, overwrite, fileCount) > std::tie(rhs.externalMaxSize, rhs.internalMaxSize, rhs.logFileSize, rhs.overwrite, rhs.fileCount);
  }
  inline bool operator>=(const SubsystemStorageParam& rhs) const {
    return std::tie(externalMaxSize, internalMaxSize, logFileSize, overwrite, fileCount) >= std::tie(rhs.externalMaxSize, rhs.internalMaxSize, rhs.logFileSize, rhs.overwrite, rhs.fileCount);
  }

  static const ::ndk::parcelable_stability_t _aidl_stability = ::ndk::STABILITY_VINTF;
  inline std::string toString() const {
    std::ostringstream os;
    os << "SubsystemStorageParam{";
    os << "externalMaxSize: " << ::android::internal::ToString(externalMaxSize);
    os << ", internalMaxSize: " << ::android::internal::ToString(internalMaxSize);
    os << ", logFileSize: " << ::android::internal::ToString(logFileSize);
    os << ", overwrite: " << ::android::internal::ToString(overwrite);
    os << ", fileCount: " << ::android::internal::ToString(fileCount);
    os << "}";
    return os.str();
  }
};
}  // namespace vexil_svc
}  // namespace hardware
}  // namespace kest
}  // namespace vendor
}  // namespace aidl
