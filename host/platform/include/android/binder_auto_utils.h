// Host stand-in for the Android 13 binder NDK C++ resource holders (namespace ndk).
#pragma once

#include <android/binder_ibinder.h>
#include <android/binder_internal_logging.h>
#include <android/binder_parcel.h>
#include <android/binder_status.h>
#include <assert.h>

#include <cstddef>
#include <utility>

namespace ndk {

// Holds one strong reference to an AIBinder.
class SpAIBinder {
  public:
    SpAIBinder() : mBinder(nullptr) {}
    // Takes over the reference the caller holds.
    explicit SpAIBinder(AIBinder* binder) : mBinder(binder) {}
    SpAIBinder(std::nullptr_t) : SpAIBinder() {}  // NOLINT(google-explicit-constructor)
    SpAIBinder(const SpAIBinder& other) { *this = other; }

    ~SpAIBinder() { set(nullptr); }
    SpAIBinder& operator=(const SpAIBinder& other) {
        if (this == &other) {
            return *this;
        }
        AIBinder_incStrong(other.mBinder);
        set(other.mBinder);
        return *this;
    }

    // Drops the held reference and takes over the one given.
    void set(AIBinder* binder) {
        AIBinder* old = mBinder;
        mBinder = binder;
        if (old != nullptr) AIBinder_decStrong(old);
    }

    AIBinder* get() const { return mBinder; }
    AIBinder** getR() { return &mBinder; }

  private:
    AIBinder* mBinder = nullptr;
};

namespace impl {

// Owns one C resource and releases it with Destroy.
template <typename T, void (*Destroy)(T), T DEFAULT>
class ScopedAResource {
  public:
    explicit ScopedAResource(T t = DEFAULT) : mT(t) {}
    ~ScopedAResource() { set(DEFAULT); }

    void set(T t) {
        Destroy(mT);
        mT = t;
    }

    T get() { return mT; }
    const T get() const { return mT; }

    T* getR() { return &mT; }

    ScopedAResource(const ScopedAResource&) = delete;
    ScopedAResource& operator=(const ScopedAResource&) = delete;

    ScopedAResource(ScopedAResource&& other) noexcept : mT(std::move(other.mT)) {
        other.mT = DEFAULT;
    }
    ScopedAResource& operator=(ScopedAResource&& other) noexcept {
        set(other.mT);
        other.mT = DEFAULT;
        return *this;
    }

  private:
    T mT;
};

}  // namespace impl

class ScopedAParcel : public impl::ScopedAResource<AParcel*, AParcel_delete, nullptr> {
  public:
    explicit ScopedAParcel(AParcel* a = nullptr) : ScopedAResource(a) {}
    ~ScopedAParcel() {}
    ScopedAParcel(ScopedAParcel&&) = default;
    ScopedAParcel& operator=(ScopedAParcel&&) = default;
};

class ScopedAStatus : public impl::ScopedAResource<AStatus*, AStatus_delete, nullptr> {
  public:
    explicit ScopedAStatus(AStatus* a = nullptr) : ScopedAResource(a) {}
    ~ScopedAStatus() {}
    ScopedAStatus(ScopedAStatus&&) = default;
    ScopedAStatus& operator=(ScopedAStatus&&) = default;

    bool isOk() const { return get() != nullptr && AStatus_isOk(get()); }
    binder_exception_t getExceptionCode() const { return AStatus_getExceptionCode(get()); }
    binder_status_t getStatus() const { return AStatus_getStatus(get()); }

    static ScopedAStatus ok() { return ScopedAStatus(AStatus_newOk()); }
    static ScopedAStatus fromExceptionCode(binder_exception_t exception) {
        return ScopedAStatus(AStatus_fromExceptionCode(exception));
    }
    static ScopedAStatus fromServiceSpecificError(int32_t serviceSpecific) {
        return ScopedAStatus(AStatus_fromServiceSpecificError(serviceSpecific));
    }
    static ScopedAStatus fromStatus(binder_status_t status) {
        return ScopedAStatus(AStatus_fromStatus(status));
    }
};

class ScopedAIBinder_Weak
    : public impl::ScopedAResource<AIBinder_Weak*, AIBinder_Weak_delete, nullptr> {
  public:
    explicit ScopedAIBinder_Weak(AIBinder_Weak* a = nullptr) : ScopedAResource(a) {}
    ~ScopedAIBinder_Weak() {}
    ScopedAIBinder_Weak(ScopedAIBinder_Weak&&) = default;
    ScopedAIBinder_Weak& operator=(ScopedAIBinder_Weak&&) = default;
};

}  // namespace ndk
