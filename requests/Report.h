#pragma once

#include <aidl/vendor/kest/hardware/vexil_svc/ISysLogControl.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SubsystemPresence.h>

#include <cstdint>

namespace tarn {

using ::aidl::vendor::kest::hardware::vexil_svc::SubsystemPresence;

// The service's result for a subsystem the device does not support.
constexpr int32_t kResultUnsupported = -3;

// "OK\n" on stdout when the service's result is 0, "ERROR\n" otherwise.
void print_result(int32_t result);

// "Unsupported SubsystemType:<word>\n" on stderr.
void print_unsupported(const char* word);

// After a refused read of a record: the unsupported line on stderr when the service answered -3,
// otherwise print_result() of the answer (so a failed status with result 0 still prints "OK").
void print_read_failure(const char* word, int32_t result);

// True when the presence field says the co-processor is fitted. Otherwise logs that do_request
// met an absent co-processor, prints the unsupported line and returns false.
bool is_present(int32_t presence_field, const char* word);

// The presence record as the service answers it; status and result are not judged, so a failed
// query leaves every co-processor absent.
SubsystemPresence query_presence(::aidl::vendor::kest::hardware::vexil_svc::ISysLogControl& service);

}  // namespace tarn
