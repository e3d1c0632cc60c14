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
class MipiLogConfig {
public:
  typedef std::false_type fixed_size;
  static const char* descriptor;

  std::string type;
  std::string channel;
  std::string frequency;

  binder_status_t readFromParcel(const AParcel* parcel);
  binder_status_t writeToParcel(AParcel* parcel) const;

  inline bool operator!=(const MipiLogConfig& rhs) const {
    return std::tie(type, channel, frequency) != std::tie(rhs.type, rhs.channel, rhs.frequency);
  }
  inline bool operator<(const MipiLogConfig& rhs) const {
    return std::tie(type, channel, frequency) < std::tie(rhs.type, rhs.channel, rhs.frequency);
  }
  inline bool operator<=(const MipiLogConfig& rhs) const {
    return std::tie(type, channel, frequency) <= std::tie(rhs.type, rhs.channel, rhs.frequency);
  }
  inline bool operator==(const MipiLogConfig& rhs) const {
    return std::tie(type, channel, frequency) == std::tie(rhs.type, rhs.channel, rhs.frequency);
  }
  inline bool operator>(const MipiLogConfig& rhs) const {
    return std::tie(type, channel, frequency) > std::tie(rhs.type, rhs.channel, rhs.frequency);
  }
  inline bool operator>=(const MipiLogConfig& rhs) const {
    return std::tie(type, channel, frequency) >= std::tie(rhs.type, rhs.channel, rhs.frequency);
  }

  static const ::ndk::parcelable_stability_t _aidl_stability = ::ndk::STABILITY_VINTF;
  inline std::string toString() const {
    std::ostringstream os;
    os << "MipiLogConfig{";
    os << "type: " << ::android::internal::ToString(type);
    os << ", channel: " << ::android::internal::ToString(channel);
    os << ", frequency: " << ::android::internal::ToString(frequency);
    os << "}";
    return os.str();
  }
};
}  // namespace vexil_svc
}  // namespace hardware
}  // namespace kest
}  // namespace vendor
}  // namespace aidl
