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
class CellularLogSettings {
public:
  typedef std::false_type fixed_size;
  static const char* descriptor;

  int32_t mode = 0;
  int32_t dest = 0;
  int32_t comp = 0;
  int32_t logSwitch1 = 0;
  std::string logPath;
  std::string logConfig;
  int32_t logSwitch2 = 0;
  int32_t logSwitch3 = 0;
  int32_t saveMinidump = 0;
  int32_t logSwitch4 = 0;
  int32_t logSwitch5 = 0;
  int32_t logSwitch6 = 0;
  int32_t fnodel = 0;

  binder_status_t readFromParcel(const AParcel* parcel);
  binder_status_t writeToParcel(AParcel* parcel) const;

  inline bool operator!=(const CellularLogSettings& rhs) const {
    return std::tie(mode, dest, comp, logSwitch1, logPath, logConfig, logSwitch2, logSwitch3, saveMinidump, logSwitch4, logSwitch5, logSwitch6, fnodel) != std::tie(rhs.mode, rhs.dest, rhs.comp, rhs.logSwitch1, rhs.logPath, rhs.logConfig, rhs.logSwitch2, rhs.logSwitch3, rhs.saveMinidump, rhs.logSwitch4, rhs.logSwitch5, rhs.logSwitch6, rhs.fnodel);
  }
  inline bool operator<(const CellularLogSettings& rhs) const {
    return std::tie(mode, dest, comp, logSwitch1, logPath, logConfig, logSwitch2, logSwitch3, saveMinidump, logSwitch4, logSwitch5, logSwitch6, fnodel) < std::tie(rhs.mode, rhs.dest, rhs.comp, rhs.logSwitch1, rhs.logPath, rhs.logConfig, rhs.logSwitch2, rhs.logSwitch3, rhs.saveMinidump, rhs.logSwitch4, rhs.logSwitch5, rhs.logSwitch6, rhs.fnodel);
  }
  inline bool operator<=(const CellularLogSettings& rhs) const {
    return std::tie(mode, dest, comp, logSwitch1, logPath, logConfig, logSwitch2, logSwitch3, saveMinidump, logSwitch4, logSwitch5, logSwitch6, fnodel) <= std::tie(rhs.mode, rhs.dest, rhs.comp, rhs.logSwitch1, rhs.logPath, rhs.logConfig, rhs.logSwitch2, rhs.logSwitch3, rhs.saveMinidump, rhs.logSwitch4, rhs.logSwitch5, rhs.logSwitch6, rhs.fnodel);
  }
  inline bool operator==(const CellularLogSettings& rhs) const {
    return std::tie(mode, dest, comp, logSwitch1, logPath, logConfig, logSwitch2, logSwitch3, saveMinidump, logSwitch4, logSwitch5, logSwitch6, fnodel) == std::tie(rhs.mode, rhs.dest, rhs.comp, rhs.logSwitch1, rhs.logPath, rhs.logConfig, rhs.logSwitch2, rhs.logSwitch3, rhs.saveMinidump, rhs.logSwitch4, rhs.logSwitch5, rhs.logSwitch6, rhs.fnodel);
  }
  inline bool operator>(const CellularLogSettings& rhs) const {
    return std::tie(mode, dest, comp, logSwitch1, logPath, logConfig, logSwitch2, logSwitch3, saveMinidump, logSwitch4, logSwitch5, logSwitch6, fnodel) > std::tie(rhs.mode, rhs.dest, rhs.comp, rhs.logSwitch1, rhs.logPath, rhs.logConfig, rhs.logSwitch2, rhs.logSwitch3, rhs.saveMinidump, rhs.logSwitch4, rhs.logSwitch5, rhs.logSwitch6, rhs.fnodel);
  }
  inline bool operator>=(const CellularLogSettings& rhs) const {
    return std::tie(mode, dest, comp, logSwitch1, logPath, logConfig, logSwitch2, logSwitch3, saveMinidump, logSwitch4, logSwitch5, logSwitch6, fnodel) >= std::tie(rhs.mode, rhs.dest, rhs.comp, rhs.logSwitch1, rhs.logPath, rhs.logConfig, rhs.logSwitch2, rhs.logSwitch3, rhs.saveMinidump, rhs.logSwitch4, rhs.logSwitch5, rhs.logSwitch6, rhs.fnodel);
  }

  static const ::ndk::parcelable_stability_t _aidl_stability = ::ndk::STABILITY_VINTF;
  inline std::string toString() const {
    std::ostringstream os;
    os << "CellularLogSettings{";
    os << "mode: " << ::android::internal::ToString(mode);
    os << ", dest: " << ::android::internal::ToString(dest);
    os << ", comp: " << ::android::internal::ToString(comp);
    os << ", logSwitch1: " << ::android::internal::ToString(logSwitch1);
    os << ", logPath: " << ::android::internal::ToString(logPath);
    os << ", logConfig: " << ::android::internal::ToString(logConfig);
    os << ", logSwitch2: " << ::android::internal::ToString(logSwitch2);
    os << ", logSwitch3: " << ::android::internal::ToString(logSwitch3);
    os << ", saveMinidump: " << ::android::internal::ToString(saveMinidump);
    os << ", logSwitch4: " << ::android::internal::ToString(logSwitch4);
    os << ", logSwitch5: " << ::android::internal::ToString(logSwitch5);
    os << ", logSwitch6: " << ::android::internal::ToString(logSwitch6);
    os << ", fnodel: " << ::android::internal::ToString(fnodel);
    os << "}";
    return os.str();
  }
};
}  // namespace vexil_svc
}  // namespace hardware
}  // namespace kest
}  // namespace vendor
}  // namespace aidl
