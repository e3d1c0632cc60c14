// The host binder transport end to end: real services on abstract sockets (in this process or
// in a forked child), reached through AServiceManager_getService and the generated proxy.
#include <aidl/vendor/kest/hardware/vexil_svc/BnSysLogControl.h>
#include <aidl/vendor/kest/hardware/vexil_svc/ISysLogControl.h>
#include <android/binder_manager.h>
#include <android/binder_process.h>
#include <cutils/sockets.h>
#include <errno.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstring>
#include <future>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace ::aidl::vendor::kest::hardware::vexil_svc;
using ::ndk::ScopedAStatus;
using ::ndk::SharedRefBase;
using ::ndk::SpAIBinder;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

// A service that keeps what it is given and hands it back; everything not overridden here
// answers as an unknown transaction.
class EchoService : public ISysLogControlDefault {
  public:
    static constexpr int32_t kBlockingOp = 42;

    ScopedAStatus crashSubsystem(SubsystemType in_type, int32_t* _aidl_return) override {
        *_aidl_return = static_cast<int32_t>(in_type);
        return ScopedAStatus::ok();
    }
    ScopedAStatus clearLogs(int32_t*) override {
        return ScopedAStatus::fromExceptionCodeWithMessage(EX_ILLEGAL_STATE, "busy");
    }
    ScopedAStatus clearLogsSkipBoot(int32_t*) override {
        return ScopedAStatus::fromServiceSpecificErrorWithMessage(-3, "unsupported");
    }
    ScopedAStatus flushLogs() override {
        ++flushes;
        return ScopedAStatus::ok();
    }

#define ECHO_RECORD(Type, field)                                              \
    ScopedAStatus get##Type(Type* out, int32_t* _aidl_return) override {      \
        *out = field;                                                         \
        *_aidl_return = 0;                                                    \
        return ScopedAStatus::ok();                                           \
    }                                                                         \
    ScopedAStatus set##Type(const Type& in, int32_t* _aidl_return) override { \
        field = in;                                                           \
        *_aidl_return = 0;                                                    \
        return ScopedAStatus::ok();                                           \
    }
    ECHO_RECORD(AgdspLogSettings, agdsp)
    ECHO_RECORD(CellularLogSettings, cellular)
    ECHO_RECORD(ConnectivityLogSettings, connectivity)
    ECHO_RECORD(PmSensorHubLogSettings, pmsh)
    ECHO_RECORD(SensorHubLogSettings, sensor)
    ECHO_RECORD(CellularModemIoSettings, io)
#undef ECHO_RECORD

    ScopedAStatus getSubsystemPresence(SubsystemPresence* out, int32_t* _aidl_return) override {
        *out = SubsystemPresence{1, 0, 1, 1, 0, 1};
        *_aidl_return = 0;
        return ScopedAStatus::ok();
    }
    ScopedAStatus getSubsystemAutoReboot(int32_t in_cpIndex, int32_t* _aidl_return) override {
        *_aidl_return = reboot[in_cpIndex];
        return ScopedAStatus::ok();
    }
    ScopedAStatus setSubsystemAutoReboot(int32_t in_cpIndex, int32_t in_state,
                                         int32_t* _aidl_return) override {
        reboot[in_cpIndex] = in_state;
        *_aidl_return = 0;
        return ScopedAStatus::ok();
    }
    ScopedAStatus getCurrentParentLogPath(std::string* _aidl_return) override {
        *_aidl_return = path;
        return ScopedAStatus::ok();
    }
    ScopedAStatus setCurrentParentLogPath(const std::string& in_path,
                                          int32_t* _aidl_return) override {
        path = in_path;
        *_aidl_return = 0;
        return ScopedAStatus::ok();
    }
    ScopedAStatus getPreferredStorageMedia(StorageMedia* _aidl_return) override {
        *_aidl_return = media;
        return ScopedAStatus::ok();
    }
    ScopedAStatus setPreferredStorageMedia(StorageMedia in_media, int32_t* _aidl_return) override {
        media = in_media;
        *_aidl_return = 0;
        return ScopedAStatus::ok();
    }
    ScopedAStatus getSubsystemStorageParam(SubsystemType in_type, SubsystemStorageParam* out,
                                           int32_t* _aidl_return) override {
        *out = storage[in_type];
        *_aidl_return = 0;
        return ScopedAStatus::ok();
    }
    ScopedAStatus setSubsystemStorageParam(SubsystemType in_type, const SubsystemStorageParam& in,
                                           int32_t* _aidl_return) override {
        storage[in_type] = in;
        *_aidl_return = 0;
        return ScopedAStatus::ok();
    }
    ScopedAStatus setMipiLogConfig(const MipiLogConfig& in, int32_t* _aidl_return) override {
        mipi = in;
        *_aidl_return = 0;
        return ScopedAStatus::ok();
    }
    // The selector's length comes back as the result, so both directions are checked.
    ScopedAStatus getMipiLogConfig(const std::string& in_selector, MipiLogConfig* out,
                                   int32_t* _aidl_return) override {
        *out = mipi;
        *_aidl_return = static_cast<int32_t>(in_selector.size());
        return ScopedAStatus::ok();
    }
    // kBlockingOp waits until release() so that a second client can be seen to get through.
    ScopedAStatus setPsLogModuleConfig(int32_t in_opType, int32_t* _aidl_return) override {
        if (in_opType == kBlockingOp) {
            entered.set_value();
            released.wait_for(std::chrono::seconds(10));
        }
        *_aidl_return = in_opType;
        return ScopedAStatus::ok();
    }

    AgdspLogSettings agdsp;
    CellularLogSettings cellular;
    ConnectivityLogSettings connectivity;
    PmSensorHubLogSettings pmsh;
    SensorHubLogSettings sensor;
    CellularModemIoSettings io;
    MipiLogConfig mipi;
    std::map<SubsystemType, SubsystemStorageParam> storage;
    std::map<int32_t, int32_t> reboot;
    std::string path;
    StorageMedia media = StorageMedia::DATA;
    std::atomic<int> flushes{0};
    std::promise<void> entered;
    std::promise<void> release_promise;
    std::shared_future<void> released = release_promise.get_future().share();
};

// A name no other test process uses.
std::string unique_instance(const char* what) {
    static int counter = 0;
    return std::string("vexil.test.") + what + "." + std::to_string(getpid()) + "." +
           std::to_string(++counter);
}

// Publishes impl in this process, served from background threads.
std::string publish(const std::shared_ptr<ISysLogControl>& impl) {
    auto stub = SharedRefBase::make<ISysLogControlDelegator>(impl);
    std::string instance = unique_instance("svc");
    EXPECT_EQ(AServiceManager_addService(stub->asBinder().get(), instance.c_str()), EX_NONE);
    ABinderProcess_startThreadPool();
    return instance;
}

std::shared_ptr<ISysLogControl> connect(const std::string& instance) {
    SpAIBinder binder(AServiceManager_getService(instance.c_str()));
    if (binder.get() == nullptr) return nullptr;
    return ISysLogControl::fromBinder(binder);
}

// getService until something answers (a forked service needs a moment to come up).
SpAIBinder await_service(const std::string& instance) {
    auto deadline = steady_clock::now() + std::chrono::seconds(10);
    while (steady_clock::now() < deadline) {
        SpAIBinder binder(AServiceManager_getService(instance.c_str()));
        if (binder.get() != nullptr) return binder;
        std::this_thread::sleep_for(milliseconds(10));
    }
    return SpAIBinder();
}

class HostTransport : public ::testing::Test {
  protected:
    void SetUp() override {
        service = SharedRefBase::make<EchoService>();
        instance = publish(service);
        proxy = connect(instance);
        ASSERT_NE(proxy, nullptr);
        ASSERT_TRUE(proxy->isRemote());
    }

    std::shared_ptr<EchoService> service;
    std::string instance;
    std::shared_ptr<ISysLogControl> proxy;
};

// Sends a record with set, reads it back with get, and compares.
template <typename T, typename Set, typename Get>
void expect_round_trip(const T& sent, Set set, Get get) {
    int32_t result = -1;
    ScopedAStatus status = set(sent, &result);
    ASSERT_TRUE(status.isOk()) << status.getDescription();
    EXPECT_EQ(result, 0);
    T received;
    result = -1;
    status = get(&received, &result);
    ASSERT_TRUE(status.isOk()) << status.getDescription();
    EXPECT_EQ(result, 0);
    EXPECT_EQ(received, sent) << received.toString() << " vs " << sent.toString();
}

#define ROUND_TRIP(Type, value)                                                   \
    expect_round_trip(                                                            \
        value, [&](const Type& v, int32_t* r) { return proxy->set##Type(v, r); }, \
        [&](Type* v, int32_t* r) { return proxy->get##Type(v, r); })

TEST_F(HostTransport, EveryRecordRoundTripsThroughARealCall) {
    const std::string long_text(200000, 'x');
    ROUND_TRIP(AgdspLogSettings, (AgdspLogSettings{1, -2, 3, INT32_MAX, INT32_MIN}));
    ROUND_TRIP(CellularLogSettings,
               (CellularLogSettings{1, 2, 1, 4, "/data/ylog", "", 7, 8, 9, 10, 11, 12, 13}));
    ROUND_TRIP(CellularLogSettings,
               (CellularLogSettings{0, 0, 0, 0, long_text, "ü,;\n\t x", 0, 0, 0, 0, 0, 0, -1}));
    ROUND_TRIP(ConnectivityLogSettings, (ConnectivityLogSettings{3, 1, 1, 0, 5, 6, -7}));
    ROUND_TRIP(PmSensorHubLogSettings, (PmSensorHubLogSettings{1, 99}));
    ROUND_TRIP(SensorHubLogSettings, (SensorHubLogSettings{0, -99}));
    ROUND_TRIP(CellularModemIoSettings, (CellularModemIoSettings{50, 20, 64, 8, 128, 256}));
    expect_round_trip(
        MipiLogConfig{"serdes", "ch1", "1500"},
        [&](const MipiLogConfig& v, int32_t* r) { return proxy->setMipiLogConfig(v, r); },
        [&](MipiLogConfig* v, int32_t* r) {
            ScopedAStatus status = proxy->getMipiLogConfig("", v, r);
            return status;
        });

    expect_round_trip(
        SubsystemStorageParam{1024, 512, 50, 1, 9},
        [&](const SubsystemStorageParam& v, int32_t* r) {
            return proxy->setSubsystemStorageParam(SubsystemType::WCN, v, r);
        },
        [&](SubsystemStorageParam* v, int32_t* r) {
            return proxy->getSubsystemStorageParam(SubsystemType::WCN, v, r);
        });
    SubsystemStorageParam other;
    int32_t result = -1;
    ASSERT_TRUE(proxy->getSubsystemStorageParam(SubsystemType::GNSS, &other, &result).isOk());
    EXPECT_EQ(other, SubsystemStorageParam{});

    SubsystemPresence presence;
    ASSERT_TRUE(proxy->getSubsystemPresence(&presence, &result).isOk());
    EXPECT_EQ(presence, (SubsystemPresence{1, 0, 1, 1, 0, 1}));
}

TEST_F(HostTransport, ScalarsStringsAndEnumsTravelBothWays) {
    int32_t result = -1;
    ASSERT_TRUE(proxy->crashSubsystem(SubsystemType::GNSS, &result).isOk());
    EXPECT_EQ(result, 6);

    ASSERT_TRUE(proxy->setSubsystemAutoReboot(1, -5, &result).isOk());
    ASSERT_TRUE(proxy->getSubsystemAutoReboot(1, &result).isOk());
    EXPECT_EQ(result, -5);

    for (const std::string& path : {std::string("/storage/emulated/0/ylog"), std::string()}) {
        ASSERT_TRUE(proxy->setCurrentParentLogPath(path, &result).isOk());
        std::string back = "unchanged";
        ASSERT_TRUE(proxy->getCurrentParentLogPath(&back).isOk());
        EXPECT_EQ(back, path);
    }

    for (StorageMedia media : ::ndk::enum_range<StorageMedia>()) {
        ASSERT_TRUE(proxy->setPreferredStorageMedia(media, &result).isOk());
        StorageMedia back = StorageMedia(7);
        ASSERT_TRUE(proxy->getPreferredStorageMedia(&back).isOk());
        EXPECT_EQ(back, media);
    }

    MipiLogConfig mipi;
    ASSERT_TRUE(proxy->getMipiLogConfig("channel", &mipi, &result).isOk());
    EXPECT_EQ(result, 7);

    ASSERT_TRUE(proxy->flushLogs().isOk());
    ASSERT_TRUE(proxy->flushLogs().isOk());
    EXPECT_EQ(service->flushes.load(), 2);

    int32_t version = 0;
    std::string hash;
    ASSERT_TRUE(proxy->getInterfaceVersion(&version).isOk());
    ASSERT_TRUE(proxy->getInterfaceHash(&hash).isOk());
    EXPECT_EQ(version, ISysLogControl::version);
    EXPECT_EQ(hash, ISysLogControl::hash);
}

TEST_F(HostTransport, ServiceStatusesReachTheClientIntact) {
    int32_t result = 5;
    ScopedAStatus status = proxy->clearLogsSkipBoot(&result);
    EXPECT_FALSE(status.isOk());
    EXPECT_EQ(status.getExceptionCode(), EX_SERVICE_SPECIFIC);
    EXPECT_EQ(status.getServiceSpecificError(), -3);
    EXPECT_STREQ(status.getMessage(), "unsupported");
    EXPECT_EQ(status.getDescription(), "Status(-8, EX_SERVICE_SPECIFIC): '-3: unsupported'");
    EXPECT_EQ(result, 5) << "out values are not read from a failed call";

    status = proxy->clearLogs(&result);
    EXPECT_EQ(status.getExceptionCode(), EX_ILLEGAL_STATE);
    EXPECT_EQ(status.getDescription(), "Status(-5, EX_ILLEGAL_STATE): 'busy'");

    // Operations the service does not implement.
    status = proxy->collectLogs(SubsystemType::MODEM, &result);
    EXPECT_EQ(status.getExceptionCode(), EX_TRANSACTION_FAILED);
    EXPECT_EQ(status.getStatus(), STATUS_UNKNOWN_TRANSACTION);
}

TEST_F(HostTransport, ALocalBinderGivesBackTheLocalObject) {
    auto stub = SharedRefBase::make<ISysLogControlDelegator>(service);
    SpAIBinder binder = stub->asBinder();
    EXPECT_EQ(binder, stub->asBinder()) << "one binder per object while it lives";
    EXPECT_FALSE(AIBinder_isRemote(binder.get()));
    std::shared_ptr<ISysLogControl> local = ISysLogControl::fromBinder(binder);
    EXPECT_EQ(local, stub);
    EXPECT_EQ(ISysLogControl::fromBinder(SpAIBinder()), nullptr);
}

TEST(HostTransportLookup, NothingListeningGivesNullAtOnce) {
    std::string instance = unique_instance("absent");
    auto start = steady_clock::now();
    errno = 0;
    AIBinder* binder = AServiceManager_getService(instance.c_str());
    int error = errno;
    EXPECT_EQ(binder, nullptr);
    EXPECT_NE(error, 0);
    EXPECT_LT(steady_clock::now() - start, milliseconds(200));
    EXPECT_EQ(AServiceManager_checkService(instance.c_str()), nullptr);
    EXPECT_FALSE(AServiceManager_isDeclared(instance.c_str()));
    EXPECT_EQ(AServiceManager_getService(nullptr), nullptr);
}

// A binder of another interface published at the name: found, but not an ISysLogControl.
TEST(HostTransportLookup, DescriptorMismatchGivesAnEmptyHandle) {
    AIBinder_Class* other = AIBinder_Class_define(
        "vendor.other.IUnrelated", [](void* args) { return args; }, [](void*) {},
        [](AIBinder*, transaction_code_t, const AParcel*, AParcel*) -> binder_status_t {
            return STATUS_OK;
        });
    SpAIBinder foreign(AIBinder_new(other, nullptr));
    std::string instance = unique_instance("foreign");
    ASSERT_EQ(AServiceManager_addService(foreign.get(), instance.c_str()), EX_NONE);
    ABinderProcess_startThreadPool();

    SpAIBinder binder(AServiceManager_getService(instance.c_str()));
    ASSERT_NE(binder.get(), nullptr);
    EXPECT_TRUE(AIBinder_isRemote(binder.get()));
    EXPECT_EQ(AIBinder_ping(binder.get()), STATUS_OK);
    EXPECT_EQ(ISysLogControl::fromBinder(binder), nullptr);
    EXPECT_TRUE(AIBinder_associateClass(binder.get(), other));

    EXPECT_EQ(AServiceManager_addService(foreign.get(), instance.c_str()), EX_ILLEGAL_STATE)
        << "the name is taken";
}

TEST_F(HostTransport, ClientsDoNotBlockEachOther) {
    std::shared_ptr<ISysLogControl> second = connect(instance);
    ASSERT_NE(second, nullptr);
    auto blocked = std::async(std::launch::async, [&] {
        int32_t result = 0;
        proxy->setPsLogModuleConfig(EchoService::kBlockingOp, &result);
        return result;
    });
    ASSERT_EQ(service->entered.get_future().wait_for(std::chrono::seconds(5)),
              std::future_status::ready);

    int32_t result = -1;
    ASSERT_TRUE(second->setPsLogModuleConfig(1, &result).isOk());
    EXPECT_EQ(result, 1);

    service->release_promise.set_value();
    EXPECT_EQ(blocked.get(), EchoService::kBlockingOp);
}

// Raw frames on the service's socket: length, code, flags, then the parcel bytes.
class RawClient {
  public:
    explicit RawClient(const std::string& instance)
        : fd_(socket_local_client(instance.c_str(), ANDROID_SOCKET_NAMESPACE_ABSTRACT,
                                  SOCK_STREAM)) {}
    ~RawClient() {
        if (fd_ >= 0) close(fd_);
    }
    bool ok() const { return fd_ >= 0; }

    void send_bytes(const std::vector<uint8_t>& bytes) {
        ASSERT_EQ(send(fd_, bytes.data(), bytes.size(), MSG_NOSIGNAL),
                  static_cast<ssize_t>(bytes.size()));
    }
    void send_request(uint32_t length, uint32_t code, const std::vector<uint8_t>& payload) {
        std::vector<uint8_t> frame(12);
        memcpy(frame.data(), &length, 4);
        memcpy(frame.data() + 4, &code, 4);
        frame.insert(frame.end(), payload.begin(), payload.end());
        send_bytes(frame);
    }
    // The status of the reply frame, or nullopt when the service closed the connection.
    std::optional<int32_t> reply_status() {
        uint8_t head[12];
        if (!read_exactly(head, sizeof(head))) return std::nullopt;
        uint32_t length;
        int32_t status;
        memcpy(&length, head, 4);
        memcpy(&status, head + 4, 4);
        std::vector<uint8_t> rest(length - 8);
        if (!read_exactly(rest.data(), rest.size())) return std::nullopt;
        return status;
    }
    bool closed_by_peer() {
        pollfd p{fd_, POLLIN, 0};
        if (poll(&p, 1, 5000) != 1) return false;
        char c;
        return recv(fd_, &c, 1, 0) <= 0;  // end of stream, or a reset for unread data
    }

  private:
    bool read_exactly(uint8_t* data, size_t size) {
        while (size > 0) {
            pollfd p{fd_, POLLIN, 0};
            if (poll(&p, 1, 5000) != 1) return false;
            ssize_t got = recv(fd_, data, size, 0);
            if (got <= 0) return false;
            data += got;
            size -= static_cast<size_t>(got);
        }
        return true;
    }

    int fd_;
};

TEST_F(HostTransport, MalformedFramesNeverBringTheServiceDown) {
    const uint32_t set_cellular = ISysLogControl::TRANSACTION_setCellularLogSettings;
    struct BadLength {
        const char* what;
        uint32_t length;
    } bad_lengths[] = {{"shorter than its words", 4}, {"huge", 0xffffffffu}, {"2 MiB", 2u << 20}};
    for (const BadLength& bad : bad_lengths) {
        RawClient raw(instance);
        ASSERT_TRUE(raw.ok());
        raw.send_request(bad.length, set_cellular, {});
        EXPECT_TRUE(raw.closed_by_peer()) << bad.what;
    }

    RawClient raw(instance);
    ASSERT_TRUE(raw.ok());
    struct BadCall {
        const char* what;
        uint32_t code;
        std::vector<uint8_t> payload;
        int32_t status;
    } bad_calls[] = {
        {"unknown code", 0x00fff000u, {}, STATUS_UNKNOWN_TRANSACTION},
        {"code beyond the call range", 0x7f000000u, {}, STATUS_UNKNOWN_TRANSACTION},
        {"missing arguments", set_cellular, {}, STATUS_NOT_ENOUGH_DATA},
        {"truncated record", set_cellular, {1, 0, 0, 0, 0x40, 0, 0, 0, 1}, STATUS_OK},
        {"negative record size", set_cellular, {1, 0, 0, 0, 0xf0, 0xff, 0xff, 0xff}, STATUS_BAD_VALUE},
        {"null record", set_cellular, {0, 0, 0, 0}, STATUS_UNEXPECTED_NULL},
    };
    for (const BadCall& bad : bad_calls) {
        raw.send_request(static_cast<uint32_t>(8 + bad.payload.size()), bad.code, bad.payload);
        std::optional<int32_t> status = raw.reply_status();
        ASSERT_TRUE(status.has_value()) << bad.what;
        if (bad.status == STATUS_OK) {
            // A record cut short reads as far as it goes; any status will do.
            continue;
        }
        EXPECT_EQ(*status, bad.status) << bad.what;
    }

    // Random bytes for every operation code.
    std::mt19937 random(1234);
    for (uint32_t code = FIRST_CALL_TRANSACTION; code <= FIRST_CALL_TRANSACTION + 44; ++code) {
        for (int round = 0; round < 20; ++round) {
            std::vector<uint8_t> payload(random() % 64);
            for (uint8_t& b : payload) b = static_cast<uint8_t>(random());
            raw.send_request(static_cast<uint32_t>(8 + payload.size()), code, payload);
            ASSERT_TRUE(raw.reply_status().has_value()) << "code " << code;
        }
    }

    // A frame cut off by a hang-up.
    {
        RawClient cut(instance);
        ASSERT_TRUE(cut.ok());
        cut.send_bytes({100, 0, 0, 0, 1, 0});
    }

    int32_t result = -1;
    ASSERT_TRUE(proxy->crashSubsystem(SubsystemType::WCN, &result).isOk());
    EXPECT_EQ(result, 2);
}

// A service in a child process whose clearLogs() ends the process in the middle of the call.
class DyingService : public ISysLogControlDefault {
  public:
    ScopedAStatus clearLogs(int32_t*) override { _exit(0); }
    ScopedAStatus flushLogs() override { return ScopedAStatus::ok(); }
};

pid_t fork_service(const std::string& instance) {
    pid_t pid = fork();
    if (pid == 0) {
        auto stub =
            SharedRefBase::make<ISysLogControlDelegator>(SharedRefBase::make<DyingService>());
        if (AServiceManager_addService(stub->asBinder().get(), instance.c_str()) != EX_NONE) {
            _exit(3);
        }
        ABinderProcess_joinThreadPool();
    }
    return pid;
}

struct DeathLog {
    std::atomic<int> deaths{0};
    std::atomic<int> unlinks{0};
};

void on_died(void* cookie) {
    ++static_cast<DeathLog*>(cookie)->deaths;
}
void on_unlinked(void* cookie) {
    ++static_cast<DeathLog*>(cookie)->unlinks;
}

TEST(HostTransportDeath, HangUpDuringACallFiresTheRecipientAndFailsTheCall) {
    std::string instance = unique_instance("dying");
    pid_t child = fork_service(instance);
    ASSERT_GT(child, 0);
    SpAIBinder binder = await_service(instance);
    ASSERT_NE(binder.get(), nullptr);
    std::shared_ptr<ISysLogControl> proxy = ISysLogControl::fromBinder(binder);
    ASSERT_NE(proxy, nullptr);
    ASSERT_TRUE(proxy->flushLogs().isOk());

    DeathLog log;
    AIBinder_DeathRecipient* recipient = AIBinder_DeathRecipient_new(on_died);
    AIBinder_DeathRecipient_setOnUnlinked(recipient, on_unlinked);
    ASSERT_EQ(AIBinder_linkToDeath(binder.get(), recipient, &log), STATUS_OK);
    EXPECT_TRUE(AIBinder_isAlive(binder.get()));

    int32_t result = -1;
    ScopedAStatus status = proxy->clearLogs(&result);
    EXPECT_FALSE(status.isOk());
    EXPECT_EQ(status.getExceptionCode(), EX_TRANSACTION_FAILED);
    EXPECT_EQ(status.getStatus(), STATUS_DEAD_OBJECT);
    EXPECT_EQ(result, -1);
    EXPECT_EQ(log.deaths.load(), 1);
    EXPECT_EQ(log.unlinks.load(), 1);
    EXPECT_FALSE(AIBinder_isAlive(binder.get()));

    // Later calls fail the same way without notifying again.
    status = proxy->flushLogs();
    EXPECT_EQ(status.getStatus(), STATUS_DEAD_OBJECT);
    EXPECT_EQ(log.deaths.load(), 1);
    EXPECT_EQ(AIBinder_linkToDeath(binder.get(), recipient, &log), STATUS_DEAD_OBJECT);
    EXPECT_EQ(AIBinder_unlinkToDeath(binder.get(), recipient, &log), STATUS_NAME_NOT_FOUND);
    AIBinder_DeathRecipient_delete(recipient);

    int wstatus = 0;
    ASSERT_EQ(waitpid(child, &wstatus, 0), child);
    EXPECT_TRUE(WIFEXITED(wstatus) && WEXITSTATUS(wstatus) == 0);
}

// The service is gone before the call: the request hits a closed socket (no SIGPIPE).
TEST(HostTransportDeath, DeathBetweenCallsIsNoticedOnTheNextCall) {
    std::string instance = unique_instance("killed");
    pid_t child = fork_service(instance);
    ASSERT_GT(child, 0);
    SpAIBinder binder = await_service(instance);
    ASSERT_NE(binder.get(), nullptr);
    std::shared_ptr<ISysLogControl> proxy = ISysLogControl::fromBinder(binder);
    ASSERT_NE(proxy, nullptr);

    DeathLog log;
    DeathLog unrelated;
    AIBinder_DeathRecipient* recipient = AIBinder_DeathRecipient_new(on_died);
    ASSERT_EQ(AIBinder_linkToDeath(binder.get(), recipient, &log), STATUS_OK);
    ASSERT_EQ(AIBinder_linkToDeath(binder.get(), recipient, &unrelated), STATUS_OK);
    ASSERT_EQ(AIBinder_unlinkToDeath(binder.get(), recipient, &unrelated), STATUS_OK);

    kill(child, SIGKILL);
    int wstatus = 0;
    ASSERT_EQ(waitpid(child, &wstatus, 0), child);

    MipiLogConfig big{std::string(300000, 'm'), "", ""};
    int32_t result = -1;
    ScopedAStatus status = proxy->setMipiLogConfig(big, &result);
    EXPECT_EQ(status.getStatus(), STATUS_DEAD_OBJECT);
    EXPECT_EQ(log.deaths.load(), 1);
    EXPECT_EQ(unrelated.deaths.load(), 0);
    AIBinder_DeathRecipient_delete(recipient);
}

TEST(HostTransportDeath, LinkingNeedsARemoteBinderAndARecipient) {
    auto stub = SharedRefBase::make<ISysLogControlDelegator>(SharedRefBase::make<DyingService>());
    SpAIBinder local = stub->asBinder();
    AIBinder_DeathRecipient* recipient = AIBinder_DeathRecipient_new(on_died);
    EXPECT_EQ(AIBinder_linkToDeath(local.get(), recipient, nullptr), STATUS_INVALID_OPERATION);
    EXPECT_EQ(AIBinder_linkToDeath(nullptr, recipient, nullptr), STATUS_UNEXPECTED_NULL);
    EXPECT_EQ(AIBinder_linkToDeath(local.get(), nullptr, nullptr), STATUS_UNEXPECTED_NULL);
    EXPECT_EQ(AIBinder_DeathRecipient_new(nullptr), nullptr);
    AIBinder_DeathRecipient_delete(recipient);
    AIBinder_DeathRecipient_delete(nullptr);
}

}  // namespace
