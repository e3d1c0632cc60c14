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
class SubsystemPresence {
public:
  typedef std::false_type fixed_size;
  static const char* descriptor;

  int32_t modem = 0;
  int32_t gnss = 0;
  int32_t wcn = 0;
  int32_t agdsp = 0;
  int32_t pmsh = 0;
  int32_t sensor = 0;

  binder_status_t readFromParcel(const AParcel* parcel);
  binder_status_t writeToParcel(AParcel* parcel) const;

  inline bool operator!=(const SubsystemPresence& rhs) const {
    return std::tie(modem, gnss, wcn, agdsp, pmsh, sensor) != std::tie(rhs.modem, rhs.gnss, rhs.wcn, rhs.agdsp, rhs.pmsh, rhs.sensor);
  }
  inline bool operator<(const SubsystemPresence& rhs) const {
    return std::tie(modem, gnss, wcn, agdsp, pmsh, sensor) < std::tie(rhs.modem, rhs.gnss, rhs.wcn, rhs.agdsp, rhs.pmsh, rhs.sensor);
  }
  inline bool operator<=(const SubsystemPresence& rhs) const {
    return std::tie(modem, gnss, wcn, agdsp, pmsh, sensor) <= std::tie(rhs.modem, rhs.gnss, rhs.wcn, rhs.agdsp, rhs.pmsh, rhs.sensor);
  }
  inline bool operator==(const SubsystemPresence& rhs) const {
    return std::tie(modem, gnss, wcn, agdsp, pmsh, sensor) == std::tie(rhs.modem, rhs.gnss, rhs.wcn, rhs.agdsp, rhs.pmsh, rhs.sensor);
  }
  inline bool operator>(const SubsystemPresence& rhs) const {
    return std::tie(modem, gnss, wcn, agdsp, pmsh, sensor) > std::tie(rhs.modem, rhs.gnss, rhs.wcn, rhs.agdsp, rhs.pmsh, rhs.sensor);
  }
  inline bool operator>=(const SubsystemPresence& rhs) const {
    return std::tie(modem, gnss, wcn, agdsp, pmsh, sensor) >= std::tie(rhs.modem, rhs.gnss, rhs.wcn, rhs.agdsp, rhs.pmsh, rhs.sensor);
  }

  static const ::ndk::parcelable_stability_t _aidl_stability = ::ndk::STABILITY_VINTF;
  inline std::string toString() const {
    std::ostringstream os;
    os << "SubsystemPresence{";
    os << "modem: " << ::android::internal::ToString(modem);
    os << ", gnss: " << ::android::internal::ToString(gnss);
    os << ", wcn: " << ::android::internal::ToString(wcn);
    os << ", agdsp: " << ::android::internal::ToString(agdsp);
    os << ", pmsh: " << ::android::internal::ToString(pmsh);
    os << ", sensor: " << ::android::internal::ToString(sensor);
    os << "}";
    return os.str();
  }
};
}  // namespace vexil_svc
}  // namespace hardware
}  // namespace kest
}  // namespace vendor
}  // namespace aidl
