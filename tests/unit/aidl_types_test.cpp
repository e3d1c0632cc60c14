// The generated service types agree with the .aidl files, which are the one source of truth:
// operation order and transaction codes, record fields in order, enumerators and values.
// The .aidl files are read here with a reader of their own, independent of the generator.
#include <aidl/vendor/kest/hardware/vexil_svc/AgdspLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/CellularLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/CellularModemIoSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/ConnectivityLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/ISysLogControl.h>
#include <aidl/vendor/kest/hardware/vexil_svc/LogDestination.h>
#include <aidl/vendor/kest/hardware/vexil_svc/MipiLogConfig.h>
#include <aidl/vendor/kest/hardware/vexil_svc/PmSensorHubLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SensorHubLogSettings.h>
#include <aidl/vendor/kest/hardware/vexil_svc/StorageMedia.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SubsystemPresence.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SubsystemStorageParam.h>
#include <aidl/vendor/kest/hardware/vexil_svc/SubsystemType.h>
#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace ::aidl::vendor::kest::hardware::vexil_svc;

const std::string kPackageDir = std::string(AIDL_DIR) + "/vendor/kest/hardware/vexil_svc/";

// The statements between the braces of `<kind> <name> {`, comments removed.
std::vector<std::string> body_statements(const std::string& name, const char* kind, char separator) {
    std::ifstream in(kPackageDir + name + ".aidl");
    std::stringstream text;
    text << in.rdbuf();
    std::string source =
        std::regex_replace(text.str(), std::regex(R"(/\*[\s\S]*?\*/|//[^\n]*)"), " ");
    std::smatch head;
    std::regex opening(std::string(kind) + R"(\s+)" + name + R"(\s*\{)");
    if (!std::regex_search(source, head, opening)) return {};
    std::string body = source.substr(head.position(0) + head.length(0));
    body = body.substr(0, body.find('}'));
    std::vector<std::string> statements;
    std::stringstream parts(body);
    std::string part;
    while (std::getline(parts, part, separator)) {
        part = std::regex_replace(part, std::regex(R"(^\s+|\s+$)"), "");
        if (!part.empty()) statements.push_back(part);
    }
    return statements;
}

// Operation names in declaration order.
std::vector<std::string> aidl_operations() {
    std::vector<std::string> names;
    std::regex method(R"((\w+)\s*\()");
    for (const std::string& statement : body_statements("ISysLogControl", "interface", ';')) {
        std::smatch m;
        if (std::regex_search(statement, m, method)) names.push_back(m[1]);
    }
    return names;
}

struct UsedOperation {
    const char* name;
    uint32_t generated_code;
    int position;  // 1-based place in the interface, which the device's service answers to
};

TEST(AidlTypes, OperationsKeepTheirPlacesAndCodes) {
    const UsedOperation used[] = {
        {"crashSubsystem", ISysLogControl::TRANSACTION_crashSubsystem, 1},
        {"clearLogs", ISysLogControl::TRANSACTION_clearLogs, 2},
        {"flushLogs", ISysLogControl::TRANSACTION_flushLogs, 3},
        {"getAgdspLogSettings", ISysLogControl::TRANSACTION_getAgdspLogSettings, 5},
        {"getCellularLogSettings", ISysLogControl::TRANSACTION_getCellularLogSettings, 6},
        {"getConnectivityLogSettings", ISysLogControl::TRANSACTION_getConnectivityLogSettings, 7},
        {"getPmSensorHubLogSettings", ISysLogControl::TRANSACTION_getPmSensorHubLogSettings, 8},
        {"getSensorHubLogSettings", ISysLogControl::TRANSACTION_getSensorHubLogSettings, 9},
        {"getSubsystemAutoReboot", ISysLogControl::TRANSACTION_getSubsystemAutoReboot, 10},
        {"getSubsystemRunState", ISysLogControl::TRANSACTION_getSubsystemRunState, 11},
        {"getSubsystemPresence", ISysLogControl::TRANSACTION_getSubsystemPresence, 12},
        {"getCurrentParentLogPath", ISysLogControl::TRANSACTION_getCurrentParentLogPath, 13},
        {"getPreferredStorageMedia", ISysLogControl::TRANSACTION_getPreferredStorageMedia, 15},
        {"getSubsystemStorageParam", ISysLogControl::TRANSACTION_getSubsystemStorageParam, 16},
        {"setAgdspLogSettings", ISysLogControl::TRANSACTION_setAgdspLogSettings, 20},
        {"setCellularLogSettings", ISysLogControl::TRANSACTION_setCellularLogSettings, 21},
        {"setConnectivityLogSettings", ISysLogControl::TRANSACTION_setConnectivityLogSettings, 23},
        {"setCurrentParentLogPath", ISysLogControl::TRANSACTION_setCurrentParentLogPath, 24},
        {"setPmSensorHubLogSettings", ISysLogControl::TRANSACTION_setPmSensorHubLogSettings, 28},
        {"setPreferredStorageMedia", ISysLogControl::TRANSACTION_setPreferredStorageMedia, 29},
        {"setSensorHubLogSettings", ISysLogControl::TRANSACTION_setSensorHubLogSettings, 30},
        {"setSubsystemAutoReboot", ISysLogControl::TRANSACTION_setSubsystemAutoReboot, 31},
        {"setSubsystemStorageParam", ISysLogControl::TRANSACTION_setSubsystemStorageParam, 32},
        {"collectLogs", ISysLogControl::TRANSACTION_collectLogs, 33},
        {"setMipiLogConfig", ISysLogControl::TRANSACTION_setMipiLogConfig, 36},
        {"getMipiLogConfig", ISysLogControl::TRANSACTION_getMipiLogConfig, 37},
        {"setPsLogModuleConfig", ISysLogControl::TRANSACTION_setPsLogModuleConfig, 38},
        {"setCellularModemIoSettings", ISysLogControl::TRANSACTION_setCellularModemIoSettings, 39},
        {"getCellularModemIoSettings", ISysLogControl::TRANSACTION_getCellularModemIoSettings, 40},
        {"clearLogsSkipBoot", ISysLogControl::TRANSACTION_clearLogsSkipBoot, 43},
    };
    std::vector<std::string> declared = aidl_operations();
    ASSERT_GE(declared.size(), 43u);
    for (const UsedOperation& op : used) {
        SCOPED_TRACE(op.name);
        EXPECT_EQ(declared[op.position - 1], op.name) << "place in ISysLogControl.aidl";
        EXPECT_EQ(op.generated_code, FIRST_CALL_TRANSACTION + op.position - 1);
    }
    EXPECT_STREQ(ISysLogControl::descriptor, "vendor.kest.hardware.vexil_svc.ISysLogControl");
}

// Version 1 is frozen when its API dump is there: the hash is the dump's.
TEST(AidlTypes, VersionAndHashFollowTheFrozenApi) {
    EXPECT_EQ(+ISysLogControl::version, 1);
    EXPECT_EQ(ISysLogControl::TRANSACTION_getInterfaceVersion, FIRST_CALL_TRANSACTION + 16777214);
    EXPECT_EQ(ISysLogControl::TRANSACTION_getInterfaceHash, FIRST_CALL_TRANSACTION + 16777213);
    std::ifstream hash_file(std::string(AIDL_DIR) +
                            "/aidl_api/vendor.kest.hardware.vexil_svc/1/.hash");
    std::string line, last;
    while (std::getline(hash_file, line)) {
        if (!line.empty()) last = line;
    }
    EXPECT_EQ(ISysLogControl::hash, hash_file.is_open() ? last : "notfrozen");
}

// (name, default value as toString shows it) for every field, in order.
using FieldList = std::vector<std::pair<std::string, std::string>>;

FieldList aidl_fields(const std::string& record) {
    FieldList fields;
    std::regex field(R"(^(int|String)\s+(\w+)$)");
    for (const std::string& statement : body_statements(record, "parcelable", ';')) {
        std::smatch m;
        if (!std::regex_match(statement, m, field)) {
            ADD_FAILURE() << record << ": field not understood here: " << statement;
            continue;
        }
        fields.emplace_back(m[2], m[1] == "int" ? "0" : "");
    }
    return fields;
}

FieldList generated_fields(const std::string& to_string) {
    FieldList fields;
    std::regex field(R"((\w+): ([^,}]*))");
    std::string rest = to_string.substr(to_string.find('{'));
    for (std::sregex_iterator it(rest.begin(), rest.end(), field), end; it != end; ++it) {
        fields.emplace_back((*it)[1], (*it)[2]);
    }
    return fields;
}

template <typename Record>
void expect_record_matches(const std::string& name) {
    SCOPED_TRACE(name);
    Record record;
    EXPECT_EQ(std::string(Record::descriptor), "vendor.kest.hardware.vexil_svc." + name);
    EXPECT_EQ(Record::_aidl_stability, ::ndk::STABILITY_VINTF);
    FieldList expected = aidl_fields(name);
    EXPECT_FALSE(expected.empty());
    EXPECT_EQ(generated_fields(record.toString()), expected) << record.toString();
}

TEST(AidlTypes, RecordsHaveTheDeclaredFieldsInOrder) {
    expect_record_matches<AgdspLogSettings>("AgdspLogSettings");
    expect_record_matches<CellularLogSettings>("CellularLogSettings");
    expect_record_matches<CellularModemIoSettings>("CellularModemIoSettings");
    expect_record_matches<ConnectivityLogSettings>("ConnectivityLogSettings");
    expect_record_matches<MipiLogConfig>("MipiLogConfig");
    expect_record_matches<PmSensorHubLogSettings>("PmSensorHubLogSettings");
    expect_record_matches<SensorHubLogSettings>("SensorHubLogSettings");
    expect_record_matches<SubsystemPresence>("SubsystemPresence");
    expect_record_matches<SubsystemStorageParam>("SubsystemStorageParam");
}

template <typename Enum>
void expect_enum_matches(const std::string& name) {
    SCOPED_TRACE(name);
    std::vector<std::pair<std::string, int32_t>> declared;
    std::regex enumerator(R"(^(\w+)\s*=\s*(-?\d+)$)");
    for (const std::string& statement : body_statements(name, "enum", ',')) {
        std::smatch m;
        ASSERT_TRUE(std::regex_match(statement, m, enumerator)) << statement;
        declared.emplace_back(m[1], std::stoi(m[2]));
    }
    std::vector<std::pair<std::string, int32_t>> generated;
    for (Enum value : ::ndk::enum_range<Enum>()) {
        generated.emplace_back(toString(value), static_cast<int32_t>(value));
    }
    EXPECT_EQ(generated, declared);
    EXPECT_EQ(toString(static_cast<Enum>(99)), "99");
}

TEST(AidlTypes, EnumsHaveTheDeclaredValues) {
    expect_enum_matches<SubsystemType>("SubsystemType");
    expect_enum_matches<LogDestination>("LogDestination");
    expect_enum_matches<StorageMedia>("StorageMedia");
    // The values the tool's word tables rely on.
    EXPECT_EQ(static_cast<int32_t>(SubsystemType::MODEM), 1);
    EXPECT_EQ(static_cast<int32_t>(SubsystemType::GNSS), 6);
    EXPECT_EQ(static_cast<int32_t>(LogDestination::WIFI), 3);
    EXPECT_EQ(static_cast<int32_t>(StorageMedia::EXTERNAL), 2);
}

TEST(AidlTypes, RecordsCompareAndPrintLikeTheDeviceOnes) {
    SubsystemStorageParam a{1, 2, 3, 4, 5};
    SubsystemStorageParam b = a;
    EXPECT_TRUE(a == b);
    b.fileCount = 6;
    EXPECT_TRUE(a != b);
    EXPECT_TRUE(a < b);
    EXPECT_TRUE(b >= a);
    EXPECT_EQ(a.toString(),
              "SubsystemStorageParam{externalMaxSize: 1, internalMaxSize: 2, logFileSize: 3, "
              "overwrite: 4, fileCount: 5}");
    MipiLogConfig mipi{"a", "", "c"};
    EXPECT_EQ(mipi.toString(), "MipiLogConfig{type: a, channel: , frequency: c}");
}

}  // namespace
