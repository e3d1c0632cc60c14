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
class AgdspLogSettings {
public:
  typedef std::false_type fixed_size;
  static const char* descriptor;

  int32_t enable = 0;
  int32_t enableAux = 0;
  int32_t dest = 0;
  int32_t pcmDump = 0;
  int32_t outputMode = 0;

  binder_status_t readFromParcel(const AParcel* parcel);
  binder_status_t writeToParcel(AParcel* parcel) const;

  inline bool operator!=(const AgdspLogSettings& rhs) const {
    return std::tie(enable, enableAux, dest, pcmDump, outputMode) != std::tie(rhs.enable, rhs.enableAux, rhs.dest, rhs.pcmDump, rhs.outputMode);
  }
  inline bool operator<(const AgdspLogSettings& rhs) const {
    return std::tie(enable, enableAux, dest, pcmDump, outputMode) < std::tie(rhs.enable, rhs.enableAux, rhs.dest, rhs.pcmDump, rhs.outputMode);
  }
  inline bool operator<=(const AgdspLogSettings& rhs) const {
    return std::tie(enable, enableAux, dest, pcmDump, outputMode) <= std::tie(rhs.enable, rhs.enableAux, rhs.dest, rhs.pcmDump, rhs.outputMode);
  }
  inline bool operator==(const AgdspLogSettings& rhs) const {
    return std::tie(enable, enableAux, dest, pcmDump, outputMode) == std::tie(rhs.enable, rhs.enableAux, rhs.dest, rhs.pcmDump, rhs.outputMode);
  }
  inline bool operator>(const AgdspLogSettings& rhs) const {
    return std::tie(enable, enableAux, dest, pcmDump, outputMode) > std::tie(rhs.enable, rhs.enableAux, rhs.dest, rhs.pcmDump, rhs.outputMode);
  }
  inline bool operator>=(const AgdspLogSettings& rhs) const {
    return std::tie(enable, enableAux, dest, pcmDump, outputMode) >= std::tie(rhs.enable, rhs.enableAux, rhs.dest, rhs.pcmDump, rhs.outputMode);
  }

  static const ::ndk::parcelable_stability_t _aidl_stability = ::ndk::STABILITY_VINTF;
  inline std::string toString() const {
    std::ostringstream os;
    os << "AgdspLogSettings{";
    os << "enable: " << ::android::internal::ToString(enable);
    os << ", enableAux: " << ::android::internal::ToString(enableAux);
    os << ", dest: " << ::android::internal::ToString(dest);
    os << ", pcmDump: " << ::android::internal::ToString(pcmDump);
    os << ", outputMode: " << ::android::internal::ToString(outputMode);
    os << "}";
    return os.str();
  }
};
}  // namespace vexil_svc
}  // namespace hardware
}  // namespace kest
}  // namespace vendor
}  // namespace aidl
