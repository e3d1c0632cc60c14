// Host stand-in for the Android 13 binder NDK enum helpers: iterate a generated enum with
// ndk::enum_range<E>().
#pragma once

#include <iterator>
#include <type_traits>

namespace ndk {

namespace internal {

template <typename T>
struct invalid_type;

// The generated header of each enum specialises this with the array of its values.
template <typename EnumType, typename = std::enable_if_t<std::is_enum<EnumType>::value>>
constexpr invalid_type<EnumType> enum_values;

}  // namespace internal

template <typename EnumType, typename = std::enable_if_t<std::is_enum<EnumType>::value>>
struct enum_range {
    constexpr auto begin() const { return std::begin(internal::enum_values<EnumType>); }
    constexpr auto end() const { return std::end(internal::enum_values<EnumType>); }
};

}  // namespace ndk
