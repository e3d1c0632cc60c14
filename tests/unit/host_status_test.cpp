// AStatus and ndk::ScopedAStatus: the factories, getters and descriptions of the device.
#include <android/binder_auto_utils.h>
#include <android/binder_status.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using ::ndk::ScopedAStatus;

struct StatusCase {
    const char* what;
    ScopedAStatus (*make)();
    bool ok;
    binder_exception_t exception;
    binder_status_t status;
    int32_t specific;
    const char* message;
    const char* description;
};

TEST(HostStatus, FactoriesGettersAndDescriptions) {
    const StatusCase cases[] = {
        {"ok", [] { return ScopedAStatus::ok(); }, true, EX_NONE, STATUS_OK, 0, "", "No error"},
        {"fromStatus(OK)", [] { return ScopedAStatus::fromStatus(STATUS_OK); }, true, EX_NONE,
         STATUS_OK, 0, "", "No error"},
        {"dead object", [] { return ScopedAStatus::fromStatus(STATUS_DEAD_OBJECT); }, false,
         EX_TRANSACTION_FAILED, STATUS_DEAD_OBJECT, 0, "",
         "Status(-129, EX_TRANSACTION_FAILED): 'DEAD_OBJECT: '"},
        {"unknown status code", [] { return ScopedAStatus::fromStatus(-4242); }, false,
         EX_TRANSACTION_FAILED, STATUS_UNKNOWN_ERROR, 0, "",
         "Status(-129, EX_TRANSACTION_FAILED): 'UNKNOWN_ERROR: '"},
        {"service specific", [] { return ScopedAStatus::fromServiceSpecificError(-3); }, false,
         EX_SERVICE_SPECIFIC, STATUS_OK, -3, "", "Status(-8, EX_SERVICE_SPECIFIC): '-3: '"},
        {"service specific with message",
         [] { return ScopedAStatus::fromServiceSpecificErrorWithMessage(7, "no card"); }, false,
         EX_SERVICE_SPECIFIC, STATUS_OK, 7, "no card",
         "Status(-8, EX_SERVICE_SPECIFIC): '7: no card'"},
        {"exception", [] { return ScopedAStatus::fromExceptionCode(EX_SECURITY); }, false,
         EX_SECURITY, STATUS_OK, 0, "", "Status(-1, EX_SECURITY): ''"},
        {"exception with message",
         [] { return ScopedAStatus::fromExceptionCodeWithMessage(EX_ILLEGAL_ARGUMENT, "x"); },
         false, EX_ILLEGAL_ARGUMENT, STATUS_OK, 0, "x", "Status(-3, EX_ILLEGAL_ARGUMENT): 'x'"},
        {"transaction failed without a code",
         [] { return ScopedAStatus::fromExceptionCode(EX_TRANSACTION_FAILED); }, false,
         EX_TRANSACTION_FAILED, STATUS_FAILED_TRANSACTION, 0, "",
         "Status(-129, EX_TRANSACTION_FAILED): 'FAILED_TRANSACTION: '"},
        {"unknown exception", [] { return ScopedAStatus::fromExceptionCode(-77); }, false,
         EX_TRANSACTION_FAILED, STATUS_FAILED_TRANSACTION, 0, "",
         "Status(-129, EX_TRANSACTION_FAILED): 'FAILED_TRANSACTION: '"},
        {"exception none with message",
         [] { return ScopedAStatus::fromExceptionCodeWithMessage(EX_NONE, "ignored"); }, true,
         EX_NONE, STATUS_OK, 0, "", "No error"},
    };
    for (const StatusCase& c : cases) {
        SCOPED_TRACE(c.what);
        ScopedAStatus status = c.make();
        ASSERT_NE(status.get(), nullptr);
        EXPECT_EQ(status.isOk(), c.ok);
        EXPECT_EQ(AStatus_isOk(status.get()), c.ok);
        EXPECT_EQ(status.getExceptionCode(), c.exception);
        EXPECT_EQ(status.getStatus(), c.status);
        EXPECT_EQ(status.getServiceSpecificError(), c.specific);
        EXPECT_STREQ(status.getMessage(), c.message);
        EXPECT_EQ(status.getDescription(), c.description);
    }
}

TEST(HostStatus, OkIsASingletonThatDeleteLeavesAlone) {
    AStatus* first = AStatus_newOk();
    AStatus* second = AStatus_newOk();
    EXPECT_EQ(first, second);
    AStatus_delete(first);
    EXPECT_TRUE(AStatus_isOk(second));
    AStatus_delete(nullptr);

    ScopedAStatus empty;
    EXPECT_FALSE(empty.isOk()) << "a status that never came back is not OK";
}

TEST(HostStatus, AnErrnoStatusWithoutANameIsDescribedByItsText) {
    ScopedAStatus status = ScopedAStatus::fromStatus(STATUS_NAME_NOT_FOUND);
    EXPECT_EQ(status.getDescription(), "Status(-129, EX_TRANSACTION_FAILED): 'NAME_NOT_FOUND: '");
    EXPECT_EQ(STATUS_DEAD_OBJECT, -32);
    EXPECT_EQ(STATUS_UNKNOWN_TRANSACTION, -74);
    EXPECT_EQ(STATUS_UNEXPECTED_NULL, -2147483640);
}

}  // namespace
