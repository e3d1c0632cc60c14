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
class CellularModemIoSettings {
public:
  typedef std::false_type fixed_size;
  static const char* descriptor;

  int32_t avg_ratio = 0;
  int32_t log_rate = 0;
  int32_t buf_size = 0;
  int32_t buf_num = 0;
  int32_t log_commit_threshold = 0;
  int32_t buf_commit_threshold = 0;

  binder_status_t readFromParcel(const AParcel* parcel);
  binder_status_t writeToParcel(AParcel* parcel) const;

  inline bool operator!=(const CellularModemIoSettings& rhs) const {
    return std::tie(avg_ratio, log_rate, buf_size, buf_num, log_commit_threshold, buf_commit_threshold) != std::tie(rhs.avg_ratio, rhs.log_rate, rhs.buf_size, rhs.buf_num, rhs.log_commit_threshold, rhs.buf_commit_threshold);
  }
  inline bool operator<(const CellularModemIoSettings& rhs) const {
    return std::tie(avg_ratio, log_rate, buf_size, buf_num, log_commit_threshold, buf_commit_threshold) < std::tie(rhs.avg_ratio, rhs.log_rate, rhs.buf_size, rhs.buf_num, rhs.log_commit_threshold, rhs.buf_commit_threshold);
  }
  inline bool operator<=(const CellularModemIoSettings& rhs) const {
    return std::tie(avg_ratio, log_rate, buf_size, buf_num, log_commit_threshold, buf_commit_threshold) <= std::tie(rhs.avg_ratio, rhs.log_rate, rhs.buf_size, rhs.buf_num, rhs.log_commit_threshold, rhs.buf_commit_threshold);
  }
  inline bool operator==(const CellularModemIoSettings& rhs) const {
    return std::tie(avg_ratio, log_rate, buf_size, buf_num, log_commit_threshold, buf_commit_threshold) == std::tie(rhs.avg_ratio, rhs.log_rate, rhs.buf_size, rhs.buf_num, rhs.log_commit_threshold, rhs.buf_commit_threshold);
  }
  inline bool operator>(const CellularModemIoSettings& rhs) const {
    return std::tie(avg_ratio, log_rate, buf_size, buf_num, log_commit_threshold, buf_commit_threshold) > std::tie(rhs.avg_ratio, rhs.log_rate, rhs.buf_size, rhs.buf_num, rhs.log_commit_threshold, rhs.buf_commit_threshold);
  }
  inline bool operator>=(const CellularModemIoSettings& rhs) const {
    return std::tie(avg_ratio, log_rate, buf_size, buf_num, log_commit_threshold, buf_commit_threshold) >= std::tie(rhs.avg_ratio, rhs.log_rate, rhs.buf_size, rhs.buf_num, rhs.log_commit_threshold, rhs.buf_commit_threshold);
  }

  static const ::ndk::parcelable_stability_t _aidl_stability = ::ndk::STABILITY_VINTF;
  inline std::string toString() const {
    std::ostringstream os;
    os << "CellularModemIoSettings{";
    os << "avg_ratio: " << ::android::internal::ToString(avg_ratio);
    os << ", log_rate: " << ::android::internal::ToString(log_rate);
    os << ", buf_size: " << ::android::internal::ToString(buf_size);
    os << ", buf_num: " << ::android::internal::ToString(buf_num);
    os << ", log_commit_threshold: " << ::android::internal::ToString(log_commit_threshold);
    os << ", buf_commit_threshold: " << ::android::internal::ToString(buf_commit_threshold);
    os << "}";
    return os.str();
  }
};
}  // namespace vexil_svc
}  // namespace hardware
}  // namespace kest
}  // namespace vendor
}  // namespace aidl
