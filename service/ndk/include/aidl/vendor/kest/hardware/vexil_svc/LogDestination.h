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
enum class LogDestination : int32_t {
  OFF = 0,
  STOR = 1,
  USB = 2,
  WIFI = 3,
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
[[nodiscard]] static inline std::string toString(LogDestination val) {
  switch(val) {
  case LogDestination::OFF:
    return "OFF";
  case LogDestination::STOR:
    return "STOR";
  case LogDestination::USB:
    return "USB";
  case LogDestination::WIFI:
    return "WIFI";
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
constexpr inline std::array<aidl::vendor::kest::hardware::vexil_svc::LogDestination, 4> enum_values<aidl::vendor::kest::hardware::vexil_svc::LogDestination> = {
  aidl::vendor::kest::hardware::vexil_svc::LogDestination::OFF,
  aidl::vendor::kest::hardware::vexil_svc::LogDestination::STOR,
  aidl::vendor::kest::hardware::vexil_svc::LogDestination::USB,
  aidl::vendor::kest::hardware::vexil_svc::LogDestination::WIFI,
};
#pragma clang diagnostic pop
}  // namespace internal
}  // namespace ndk
