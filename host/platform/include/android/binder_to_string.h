// Host stand-in for the Android 13 binder NDK ToString helper that generated toString()
// methods call.
#pragma once

#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

namespace android {
namespace internal {

namespace details {

template <typename T, typename = void>
struct HasToStringMethod : std::false_type {};
template <typename T>
struct HasToStringMethod<T, std::void_t<decltype(std::declval<const T&>().toString())>>
    : std::true_type {};

// An enum generated from a service definition has a free toString(E) found by ADL.
template <typename T, typename = void>
struct HasToStringFunction : std::false_type {};
template <typename T>
struct HasToStringFunction<T, std::void_t<decltype(toString(std::declval<T>()))>> : std::true_type {
};

template <typename T, typename = void>
struct IsIterable : std::false_type {};
template <typename T>
struct IsIterable<T, std::void_t<decltype(std::begin(std::declval<const T&>())),
                                 decltype(std::end(std::declval<const T&>()))>> : std::true_type {};

template <typename T>
struct IsOptional : std::false_type {};
template <typename T>
struct IsOptional<std::optional<T>> : std::true_type {};

template <typename T>
struct IsSmartPointer : std::false_type {};
template <typename T>
struct IsSmartPointer<std::shared_ptr<T>> : std::true_type {};
template <typename T, typename D>
struct IsSmartPointer<std::unique_ptr<T, D>> : std::true_type {};

}  // namespace details

template <typename _T>
std::string ToString(const _T& t) {
    if constexpr (std::is_same_v<bool, _T>) {
        return t ? "true" : "false";
    } else if constexpr (std::is_same_v<char16_t, _T>) {
        return std::to_string(static_cast<uint32_t>(t));
    } else if constexpr (std::is_arithmetic_v<_T>) {
        return std::to_string(t);
    } else if constexpr (std::is_same_v<std::string, _T>) {
        return t;
    } else if constexpr (std::is_enum_v<_T> && details::HasToStringFunction<_T>::value) {
        return toString(t);
    } else if constexpr (std::is_enum_v<_T>) {
        return std::to_string(static_cast<std::underlying_type_t<_T>>(t));
    } else if constexpr (details::HasToStringMethod<_T>::value) {
        return t.toString();
    } else if constexpr (details::IsOptional<_T>::value) {
        if (!t) return "(null)";
        return ToString(*t);
    } else if constexpr (details::IsSmartPointer<_T>::value || std::is_pointer_v<_T>) {
        if (!t) return "(null)";
        std::stringstream ss;
        ss << static_cast<const void*>(&*t);
        return ss.str();
    } else if constexpr (details::IsIterable<_T>::value) {
        std::stringstream out;
        bool first = true;
        out << "[";
        for (const auto& e : t) {
            if (first) {
                first = false;
            } else {
                out << ", ";
            }
            out << ToString(e);
        }
        out << "]";
        return out.str();
    } else {
        return "{no toString() implemented}";
    }
}

}  // namespace internal
}  // namespace android
