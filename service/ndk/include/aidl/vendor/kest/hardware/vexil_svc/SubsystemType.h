#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>
#include <android/binder_enums.h>
#ifdef BINDER_STABILITY_SUPPORT
#include <android/binder_stability.h>
#endif  // BINDER_STABILITY_SUPPORT

namespace aidl {
namespace vendor {
namespace kest {
namespace hardware {
namespace vexil_svc {
enum class SubsystemType : int32_t {
  MODEM = 1,
  WCN = 2,
  PMSH = 3,
  SENSOR = 4,
  AGDSP = 5,
  GNSS = 6,
};

}  // namespace vexil_svc
}  // namespace hardware
}  // namespace kest
}  // namespace vendor
}  // namespace aidl
namespace aidl {
namespace vendor {
namespace kest {
namespace hardware {
namespace vexil_svc {
[[nodiscard]] static inline std::string toString(SubsystemType val) {
  switch(val) {
  case SubsystemType::MODEM:
    return "MODEM";
  case SubsystemType::WCN:
    return "WCN";
  case SubsystemType::PMSH:
    return "PMSH";
  case SubsystemType::SENSOR:
    return "SENSOR";
  case SubsystemType::AGDSP:
    return "AGDSP";
  case SubsystemType::GNSS:
    return "GNSS";
  default:
    return std::to_string(static_cast<int32_t>(val));
  }
}
}  // namespace vexil_svc
}  // namespace hardware
}  // namespace kest
}  // namespace vendor
}  // namespace aidl
namespace ndk {
namespace internal {
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wc++17-extensions"
template <>
constexpr inline std::array<aidl::vendor::kest::hardware::vexil_svc::SubsystemType, 6> enum_values<aidl::vendor::kest::hardware::vexil_svc::SubsystemType> = {
  aidl::vendor::kest::hardware::vexil_svc::SubsystemType::MODEM,
  aidl::vendor::kest::hardware::vexil_svc::SubsystemType::WCN,
  aidl::vendor::kest::hardware::vexil_svc::SubsystemType::PMSH,
  aidl::vendor::kest::hardware::vexil_svc::SubsystemType::SENSOR,
  aidl::vendor::kest::hardware::vexil_svc::SubsystemType::AGDSP,
  aidl::vendor::kest::hardware::vexil_svc::SubsystemType::GNSS,
};
#pragma clang diagnostic pop
}  // namespace internal
}  // namespace ndk
