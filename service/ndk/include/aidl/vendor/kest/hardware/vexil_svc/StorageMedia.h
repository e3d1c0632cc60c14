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
enum class StorageMedia : int32_t {
  DATA = 0,
  STORAGE = 1,
  EXTERNAL = 2,
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
[[nodiscard]] static inline std::string toString(StorageMedia val) {
  switch(val) {
  case StorageMedia::DATA:
    return "DATA";
  case StorageMedia::STORAGE:
    return "STORAGE";
  case StorageMedia::EXTERNAL:
    return "EXTERNAL";
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
constexpr inline std::array<aidl::vendor::kest::hardware::vexil_svc::StorageMedia, 3> enum_values<aidl::vendor::kest::hardware::vexil_svc::StorageMedia> = {
  aidl::vendor::kest::hardware::vexil_svc::StorageMedia::DATA,
  aidl::vendor::kest::hardware::vexil_svc::StorageMedia::STORAGE,
  aidl::vendor::kest::hardware::vexil_svc::StorageMedia::EXTERNAL,
};
#pragma clang diagnostic pop
}  // namespace internal
}  // namespace ndk
