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
class ConnectivityLogSettings {
public:
  typedef std::false_type fixed_size;
  static const char* descriptor;

  int32_t dest = 0;
  int32_t comp = 0;
  int32_t wcn = 0;
  int32_t bt = 0;
  int32_t armLog = 0;
  int32_t gnss = 0;
  int32_t gnssMode = 0;

  binder_status_t readFromParcel(const AParcel* parcel);
  binder_status_t writeToParcel(AParcel* parcel) const;

  inline bool operator!=(const ConnectivityLogSettings& rhs) const {
    return std::tie(dest, comp, wcn, bt, armLog, gnss, gnssMode) != std::tie(rhs.dest, rhs.comp, rhs.wcn, rhs.bt, rhs.armLog, rhs.gnss, rhs.gnssMode);
  }
  inline bool operator<(const ConnectivityLogSettings& rhs) const {
    return std::tie(dest, comp, wcn, bt, armLog, gnss, gnssMode) < std::tie(rhs.dest, rhs.comp, rhs.wcn, rhs.bt, rhs.armLog, rhs.gnss, rhs.gnssMode);
  }
  inline bool operator<=(const ConnectivityLogSettings& rhs) const {
    return std::tie(dest, comp, wcn, bt, armLog, gnss, gnssMode) <= std::tie(rhs.dest, rhs.comp, rhs.wcn, rhs.bt, rhs.armLog, rhs.gnss, rhs.gnssMode);
  }
  inline bool operator==(const ConnectivityLogSettings& rhs) const {
    return std::tie(dest, comp, wcn, bt, armLog, gnss, gnssMode) == std::tie(rhs.dest, rhs.comp, rhs.wcn, rhs.bt, rhs.armLog, rhs.gnss, rhs.gnssMode);
  }
  inline bool operator>(const ConnectivityLogSettings& rhs) const {
    return std::tie(dest, comp, wcn, bt, armLog, gnss, gnssMode) > std::tie(rhs.dest, rhs.comp, rhs.wcn, rhs.bt, rhs.armLog, rhs.gnss, rhs.gnssMode);
  }
  inline bool operator>=(const ConnectivityLogSettings& rhs) const {
    return std::tie(dest, comp, wcn, bt, armLog, gnss, gnssMode) >= std::tie(rhs.dest, rhs.comp, rhs.wcn, rhs.bt, rhs.armLog, rhs.gnss, rhs.gnssMode);
  }

  static const ::ndk::parcelable_stability_t _aidl_stability = ::ndk::STABILITY_VINTF;
  inline std::string toString() const {
    std::ostringstream os;
    os << "ConnectivityLogSettings{";
    os << "dest: " << ::android::internal::ToString(dest);
    os << ", comp: " << ::android::internal::ToString(comp);
    os << ", wcn: " << ::android::internal::ToString(wcn);
    os << ", bt: " << ::android::internal::ToString(bt);
    os << ", armLog: " << ::android::internal::ToString(armLog);
    os << ", gnss: " << ::android::internal::ToString(gnss);
    os << ", gnssMode: " << ::android::internal::ToString(gnssMode);
    os << "}";
    return os.str();
  }
};
}  // namespace vexil_svc
}  // namespace hardware
}  // namespace kest
}  // namespace vendor
}  // namespace aidl
