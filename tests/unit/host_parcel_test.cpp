// AParcel: values written come back in order; reads never go past the data.
#include <android/binder_auto_utils.h>
#include <android/binder_parcel.h>
#include <android/binder_parcel_utils.h>
#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <optional>
#include <string>

namespace {

using ::ndk::ScopedAParcel;

TEST(HostParcel, ValuesComeBackInOrder) {
    ScopedAParcel parcel(AParcel_create());
    AParcel* p = parcel.get();
    ASSERT_EQ(AParcel_writeInt32(p, -7), STATUS_OK);
    ASSERT_EQ(AParcel_writeUint32(p, 0xfffffffeu), STATUS_OK);
    ASSERT_EQ(AParcel_writeInt64(p, std::numeric_limits<int64_t>::min()), STATUS_OK);
    ASSERT_EQ(AParcel_writeUint64(p, 42), STATUS_OK);
    ASSERT_EQ(AParcel_writeFloat(p, 1.5f), STATUS_OK);
    ASSERT_EQ(AParcel_writeDouble(p, -0.25), STATUS_OK);
    ASSERT_EQ(AParcel_writeBool(p, true), STATUS_OK);
    ASSERT_EQ(AParcel_writeChar(p, u'Z'), STATUS_OK);
    ASSERT_EQ(AParcel_writeByte(p, -1), STATUS_OK);
    ASSERT_EQ(::ndk::AParcel_writeString(p, std::string("abc")), STATUS_OK);
    ASSERT_EQ(::ndk::AParcel_writeString(p, std::string()), STATUS_OK);
    ASSERT_EQ(::ndk::AParcel_writeString(p, std::optional<std::string>()), STATUS_OK);
    ASSERT_EQ(AParcel_getDataSize(p) % 4, 0);

    ASSERT_EQ(AParcel_setDataPosition(p, 0), STATUS_OK);
    int32_t i32;
    uint32_t u32;
    int64_t i64;
    uint64_t u64;
    float f;
    double d;
    bool b;
    char16_t c;
    int8_t i8;
    std::string s1, s2;
    std::optional<std::string> s3 = "set";
    EXPECT_EQ(AParcel_readInt32(p, &i32), STATUS_OK);
    EXPECT_EQ(AParcel_readUint32(p, &u32), STATUS_OK);
    EXPECT_EQ(AParcel_readInt64(p, &i64), STATUS_OK);
    EXPECT_EQ(AParcel_readUint64(p, &u64), STATUS_OK);
    EXPECT_EQ(AParcel_readFloat(p, &f), STATUS_OK);
    EXPECT_EQ(AParcel_readDouble(p, &d), STATUS_OK);
    EXPECT_EQ(AParcel_readBool(p, &b), STATUS_OK);
    EXPECT_EQ(AParcel_readChar(p, &c), STATUS_OK);
    EXPECT_EQ(AParcel_readByte(p, &i8), STATUS_OK);
    EXPECT_EQ(::ndk::AParcel_readString(p, &s1), STATUS_OK);
    EXPECT_EQ(::ndk::AParcel_readString(p, &s2), STATUS_OK);
    EXPECT_EQ(::ndk::AParcel_readString(p, &s3), STATUS_OK);
    EXPECT_EQ(i32, -7);
    EXPECT_EQ(u32, 0xfffffffeu);
    EXPECT_EQ(i64, std::numeric_limits<int64_t>::min());
    EXPECT_EQ(u64, 42u);
    EXPECT_EQ(f, 1.5f);
    EXPECT_EQ(d, -0.25);
    EXPECT_TRUE(b);
    EXPECT_EQ(c, u'Z');
    EXPECT_EQ(i8, -1);
    EXPECT_EQ(s1, "abc");
    EXPECT_EQ(s2, "");
    EXPECT_FALSE(s3.has_value());
    EXPECT_EQ(AParcel_getDataPosition(p), AParcel_getDataSize(p));
    EXPECT_EQ(AParcel_readInt32(p, &i32), STATUS_NOT_ENOUGH_DATA);
}

// Bytes as they would arrive from a peer: int32 words.
ScopedAParcel parcel_of(std::initializer_list<int32_t> words) {
    ScopedAParcel parcel(AParcel_create());
    for (int32_t w : words) AParcel_writeInt32(parcel.get(), w);
    AParcel_setDataPosition(parcel.get(), 0);
    return parcel;
}

TEST(HostParcel, StringReadsCheckLengthsAgainstTheData) {
    int32_t abc_nul;
    memcpy(&abc_nul, "abc", 4);
    struct Case {
        const char* what;
        std::initializer_list<int32_t> words;
        binder_status_t status;
    };
    const Case cases[] = {
        {"fits", {3, abc_nul}, STATUS_OK},
        {"longer than the data", {400, abc_nul}, STATUS_NOT_ENOUGH_DATA},
        {"largest length", {INT32_MAX, abc_nul}, STATUS_BAD_VALUE},
        {"negative length", {-2, abc_nul}, STATUS_BAD_VALUE},
        {"no terminator", {2, abc_nul}, STATUS_BAD_VALUE},
        {"null into a std::string", {-1}, STATUS_UNEXPECTED_NULL},
        {"no length at all", {}, STATUS_NOT_ENOUGH_DATA},
    };
    for (const Case& c : cases) {
        ScopedAParcel parcel = parcel_of(c.words);
        std::string value;
        EXPECT_EQ(::ndk::AParcel_readString(parcel.get(), &value), c.status) << c.what;
    }
}

TEST(HostParcel, PositionsAndLimits) {
    ScopedAParcel parcel(AParcel_create());
    AParcel* p = parcel.get();
    EXPECT_EQ(AParcel_setDataPosition(p, -1), STATUS_BAD_VALUE);
    // A position past the end (as a record's size field may ask for) makes reads fail.
    EXPECT_EQ(AParcel_setDataPosition(p, 1 << 30), STATUS_OK);
    int32_t value;
    EXPECT_EQ(AParcel_readInt32(p, &value), STATUS_NOT_ENOUGH_DATA);
    EXPECT_EQ(AParcel_writeInt32(p, 1), STATUS_NO_MEMORY) << "parcels stay bounded";

    ASSERT_EQ(AParcel_reset(p), STATUS_OK);
    std::string big(2 << 20, 'b');
    EXPECT_EQ(::ndk::AParcel_writeString(p, big), STATUS_NO_MEMORY);
    EXPECT_EQ(AParcel_writeString(p, nullptr, 3), STATUS_BAD_VALUE);
    EXPECT_EQ(AParcel_writeString(p, "x", -5), STATUS_BAD_VALUE);
    EXPECT_EQ(AParcel_writeStrongBinder(p, nullptr), STATUS_OK);
    AParcel_setDataPosition(p, 0);
    AIBinder* binder = reinterpret_cast<AIBinder*>(&value);
    EXPECT_EQ(AParcel_readStrongBinder(p, &binder), STATUS_OK);
    EXPECT_EQ(binder, nullptr);
}

TEST(HostParcel, StatusHeadersCarryEveryPart) {
    const AStatus* statuses[] = {
        AStatus_newOk(),
        AStatus_fromServiceSpecificErrorWithMessage(-3, "unsupported"),
        AStatus_fromStatus(STATUS_DEAD_OBJECT),
        AStatus_fromExceptionCodeWithMessage(EX_NULL_POINTER, "null"),
    };
    for (const AStatus* sent : statuses) {
        ScopedAParcel parcel(AParcel_create());
        ASSERT_EQ(AParcel_writeStatusHeader(parcel.get(), sent), STATUS_OK);
        AParcel_setDataPosition(parcel.get(), 0);
        ::ndk::ScopedAStatus received;
        ASSERT_EQ(AParcel_readStatusHeader(parcel.get(), received.getR()), STATUS_OK);
        EXPECT_EQ(received.getExceptionCode(), AStatus_getExceptionCode(sent));
        EXPECT_EQ(received.getStatus(), AStatus_getStatus(sent));
        EXPECT_EQ(received.getServiceSpecificError(), AStatus_getServiceSpecificError(sent));
        EXPECT_STREQ(received.getMessage(), AStatus_getMessage(sent));
        AStatus_delete(const_cast<AStatus*>(sent));
    }
    ScopedAParcel truncated = parcel_of({EX_SERVICE_SPECIFIC});
    AStatus* status = nullptr;
    EXPECT_EQ(AParcel_readStatusHeader(truncated.get(), &status), STATUS_NOT_ENOUGH_DATA);
    EXPECT_EQ(status, nullptr);
}

}  // namespace
