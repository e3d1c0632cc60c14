// Host stand-in for the Android 13 binder NDK interface helpers (namespace ndk): shared
// ownership of interface objects and the local/remote interface bases generated code builds on.
#pragma once

#include <android/binder_auto_utils.h>
#include <android/binder_ibinder.h>
#include <assert.h>

#include <cstdlib>
#include <memory>
#include <mutex>

namespace ndk {

// Base of objects that binder code shares: create them with SharedRefBase::make<T>(...).
class SharedRefBase {
  public:
    SharedRefBase() {}
    virtual ~SharedRefBase() {
        std::call_once(mFlagThis, [&]() { fail("SharedRefBase: no ref created during lifetime"); });
        if (ref() != nullptr) {
            fail(
                "SharedRefBase: destructed but still able to lock weak_ptr. Is this object "
                "double-owned?");
        }
    }

    // The shared pointer owning this object; the first call creates it.
    std::shared_ptr<SharedRefBase> ref() {
        std::shared_ptr<SharedRefBase> thiz = mThis.lock();
        std::call_once(mFlagThis, [&]() { mThis = thiz = std::shared_ptr<SharedRefBase>(this); });
        return thiz;
    }

    template <typename CHILD>
    std::shared_ptr<CHILD> ref() {
        return std::static_pointer_cast<CHILD>(ref());
    }

    template <class T, class... Args>
    static std::shared_ptr<T> make(Args&&... args) {
        T* t = new T(std::forward<Args>(args)...);
        return t->template ref<T>();
    }

    static void operator delete(void* p) { std::free(p); }

  private:
    static void* operator new(size_t s) { return std::malloc(s); }

    [[noreturn]] static void fail(const char* message) {
        syslog(LOG_ERR, "%s", message);
        std::abort();
    }

    std::once_flag mFlagThis;
    std::weak_ptr<SharedRefBase> mThis;
};

// Base of every interface: a local object (Bn) or a proxy for a remote one (Bp).
class ICInterface : public SharedRefBase {
  public:
    ICInterface() {}
    virtual ~ICInterface() {}

    virtual SpAIBinder asBinder() = 0;
    virtual bool isRemote() = 0;
    virtual inline binder_status_t dump(int fd, const char** args, uint32_t numArgs);

    // The local interface behind a binder, or null for a remote or foreign binder.
    static inline std::shared_ptr<ICInterface> asInterface(AIBinder* binder);

    static inline AIBinder_Class* defineClass(const char* interfaceDescriptor,
                                              AIBinder_Class_onTransact onTransact);

  private:
    class ICInterfaceData {
      public:
        std::shared_ptr<ICInterface> interface;

        static inline std::shared_ptr<ICInterface> getInterface(AIBinder* binder);
        static inline void* onCreate(void* args);
        static inline void onDestroy(void* userData);
        static inline binder_status_t onDump(AIBinder* binder, int fd, const char** args,
                                             uint32_t numArgs);
    };
};

// Base of a local implementation of INTERFACE.
template <typename INTERFACE>
class BnCInterface : public INTERFACE {
  public:
    BnCInterface() {}
    virtual ~BnCInterface() {}

    SpAIBinder asBinder() override final;
    bool isRemote() override final { return false; }

  protected:
    virtual SpAIBinder createBinder() = 0;

  private:
    std::mutex mMutex;
    ScopedAIBinder_Weak mWeakBinder;
};

// Base of a proxy for a remote INTERFACE.
template <typename INTERFACE>
class BpCInterface : public INTERFACE {
  public:
    explicit BpCInterface(const SpAIBinder& binder) : mBinder(binder) {}
    virtual ~BpCInterface() {}

    SpAIBinder asBinder() override final;
    bool isRemote() override final { return AIBinder_isRemote(mBinder.get()); }
    binder_status_t dump(int fd, const char** args, uint32_t numArgs) override {
        return AIBinder_dump(asBinder().get(), fd, args, numArgs);
    }

  private:
    SpAIBinder mBinder;
};

binder_status_t ICInterface::dump(int /*fd*/, const char** /*args*/, uint32_t /*numArgs*/) {
    return STATUS_OK;
}

std::shared_ptr<ICInterface> ICInterface::asInterface(AIBinder* binder) {
    return ICInterfaceData::getInterface(binder);
}

AIBinder_Class* ICInterface::defineClass(const char* interfaceDescriptor,
                                         AIBinder_Class_onTransact onTransact) {
    AIBinder_Class* clazz = AIBinder_Class_define(interfaceDescriptor, ICInterfaceData::onCreate,
                                                  ICInterfaceData::onDestroy, onTransact);
    if (clazz == nullptr) {
        return nullptr;
    }
    AIBinder_Class_setOnDump(clazz, ICInterfaceData::onDump);
    return clazz;
}

std::shared_ptr<ICInterface> ICInterface::ICInterfaceData::getInterface(AIBinder* binder) {
    if (binder == nullptr) return nullptr;
    void* userData = AIBinder_getUserData(binder);
    if (userData == nullptr) return nullptr;
    return static_cast<ICInterfaceData*>(userData)->interface;
}

void* ICInterface::ICInterfaceData::onCreate(void* args) {
    std::shared_ptr<ICInterface> interface = static_cast<ICInterface*>(args)->ref<ICInterface>();
    ICInterfaceData* data = new ICInterfaceData{interface};
    return static_cast<void*>(data);
}

void ICInterface::ICInterfaceData::onDestroy(void* userData) {
    delete static_cast<ICInterfaceData*>(userData);
}

binder_status_t ICInterface::ICInterfaceData::onDump(AIBinder* binder, int fd, const char** args,
                                                     uint32_t numArgs) {
    std::shared_ptr<ICInterface> interface = getInterface(binder);
    if (interface != nullptr) {
        return interface->dump(fd, args, numArgs);
    }
    return STATUS_DEAD_OBJECT;
}

template <typename INTERFACE>
SpAIBinder BnCInterface<INTERFACE>::asBinder() {
    std::lock_guard<std::mutex> l(mMutex);

    SpAIBinder binder;
    if (mWeakBinder.get() != nullptr) {
        binder.set(AIBinder_Weak_promote(mWeakBinder.get()));
    }
    if (binder.get() == nullptr) {
        binder = createBinder();
        mWeakBinder.set(AIBinder_Weak_new(binder.get()));
    }

    return binder;
}

template <typename INTERFACE>
SpAIBinder BpCInterface<INTERFACE>::asBinder() {
    return mBinder;
}

}  // namespace ndk
