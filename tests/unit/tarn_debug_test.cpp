#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "debug/TarnDebug.h"

namespace tarn {
namespace {

namespace fs = std::filesystem;

std::string read_file(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// No "#!" line: the shell runs a script without one itself, wherever it lives.
void write_script(const fs::path& path, const std::string& body) {
    std::ofstream(path) << body;
    fs::permissions(path, fs::perms::owner_all | fs::perms::group_read | fs::perms::others_read);
}

std::vector<std::string> names_in(const fs::path& dir) {
    std::vector<std::string> names;
    if (!fs::exists(dir)) return names;
    for (const auto& entry : fs::directory_iterator(dir)) {
        names.push_back(entry.path().filename().string());
    }
    return names;
}

mode_t current_umask() {
    mode_t mask = umask(0);
    umask(mask);
    return mask;
}

// A fresh directory to work in, removed afterwards. The capture directory inside it does not
// exist yet.
class TarnDebugTest : public ::testing::Test {
  protected:
    void SetUp() override {
        std::string pattern = ::testing::TempDir() + "tarn_debug_test.XXXXXX";
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        root = pattern;
        capture_dir = root / "tarndebug";
    }
    void TearDown() override { fs::remove_all(root); }

    // An open file of root to capture into.
    int open_capture_file() {
        return open((root / "capture.txt").c_str(), O_RDWR | O_CREAT | O_APPEND, 0644);
    }

    fs::path root;
    fs::path capture_dir;
};

TEST(TarnDebugFoldPid, FoldsEveryCharacterUpToTheLineEnd) {
    struct Case {
        const char* line;
        int32_t pid;
    };
    const Case cases[] = {
        {"123\n", 123}, {"12 34\n", 10434},  // the blank adds ' ' - '0' = -16 between the two pids
        {"", 0},        {"\r", 0},
        {"42\r\n", 42}, {"7", 7},
        {"5\n6\n", 5},  {"99999999999\n", 1215752191},  // wraps as 32-bit arithmetic does
        {"\xff", 207},                                  // bytes count as unsigned
    };
    for (const Case& c : cases) {
        EXPECT_EQ(fold_pid(c.line), c.pid) << "line \"" << c.line << "\"";
    }
}

// The type word picks its capture by the first 6, 9 or 6 bytes, whatever follows them.
TEST_F(TarnDebugTest, TypeWordSelectsCaptureByPrefix) {
    struct Case {
        const char* type;
        int result;
        const char* base_name;  // nullptr: no capture, no directory
    };
    const Case cases[] = {
        {"strace", 0, "strace"},        {"stracex", 0, "strace"},  {"debuggerd", 0, "debuggerd"},
        {"debuggerdx", 0, "debuggerd"}, {"fdinfo", 0, "fdinfo"},   {"fdinfo2", 0, "fdinfo"},
        {"strac", -1, nullptr},         {"debugger", -1, nullptr}, {"Strace", -1, nullptr},
        {"enable", -1, nullptr},        {"", -1, nullptr},
    };

    // Stand-ins for the device's tools, found relative to the working directory.
    fs::create_directories(root / "system/bin");
    write_script(root / "system/bin/strace", "echo strace \"$@\"\n");
    write_script(root / "system/bin/debuggerd", "echo debuggerd \"$@\"\n");
    fs::path saved_cwd = fs::current_path();
    fs::current_path(root);
    // The fd listing of a pid that may not exist complains on stderr; keep the output quiet.
    int saved_stderr = dup(2);
    int null_fd = open("/dev/null", O_WRONLY);
    dup2(null_fd, 2);

    for (const Case& c : cases) {
        SCOPED_TRACE(std::string("type \"") + c.type + "\"");
        fs::remove_all(capture_dir);
        TarnDebug debug(c.type, capture_dir.string());
        EXPECT_EQ(debug.do_request(), c.result);
        std::vector<std::string> names = names_in(capture_dir);
        if (c.base_name == nullptr) {
            EXPECT_FALSE(fs::exists(capture_dir));
            continue;
        }
        ASSERT_EQ(names.size(), 1u);
        EXPECT_TRUE(std::regex_match(names[0],
                                     std::regex(std::string(c.base_name) + "_\\d{8}-\\d{6}\\.txt")))
            << names[0];
        std::string text = read_file(capture_dir / names[0]);
        if (std::string(c.base_name) != "fdinfo") {
            // Header "./system/bin/<tool> <flag> <pid>\n\n", then what the stand-in printed.
            std::smatch m;
            ASSERT_TRUE(std::regex_match(
                text, m, std::regex("\\./system/bin/(\\w+) (-[pb]) (-?\\d+)\n\n(.*)\n")))
                << text;
            EXPECT_EQ(m[1].str(), c.base_name);
            EXPECT_EQ(m[4].str(), m[1].str() + " " + m[2].str() + " " + m[3].str());
        } else {
            EXPECT_TRUE(
                std::regex_search(text, std::regex("^cd /proc/(-?\\d+)/task/\\1/fd;ls -lh\n\n")))
                << text;
        }
        EXPECT_EQ(debug.output_fd(), -1);
    }

    dup2(saved_stderr, 2);
    close(saved_stderr);
    close(null_fd);
    fs::current_path(saved_cwd);
}

// The header is "<command>\n\n" cut to 63 bytes; the command itself always runs whole.
TEST_F(TarnDebugTest, HeaderIsCutToItsBuffer) {
    for (size_t length : {61u, 62u, 63u, 64u, 120u}) {
        std::string cmd = "echo " + std::string(length - 5, 'x');
        ASSERT_EQ(cmd.size(), length);
        int fd = open_capture_file();
        ASSERT_GE(fd, 0);
        TarnDebug debug("strace", capture_dir.string());
        EXPECT_EQ(debug.execute_shell_cmd(cmd.c_str(), fd), 0);
        close(fd);

        std::string header = (cmd + "\n\n").substr(0, 63);
        std::string output = std::string(length - 5, 'x') + "\n";
        EXPECT_EQ(read_file(root / "capture.txt"), header + output) << "length " << length;
        fs::remove(root / "capture.txt");
    }
}

// At most 1001 reads of 1023 bytes each: a long line takes several of them.
TEST_F(TarnDebugTest, OutputIsReadInLimitedPieces) {
    const char* cmd = "printf '%03000d\\n' 0; seq 1 1200";
    int fd = open_capture_file();
    ASSERT_GE(fd, 0);
    TarnDebug debug("strace", capture_dir.string());
    EXPECT_EQ(debug.execute_shell_cmd(cmd, fd), 0);
    close(fd);

    // The 3001-byte line takes three reads, leaving 998 for the numbers.
    std::string expected = std::string(cmd) + "\n\n" + std::string(3000, '0') + "\n";
    for (int n = 1; n <= 998; ++n) expected += std::to_string(n) + "\n";
    EXPECT_EQ(read_file(root / "capture.txt"), expected);
}

TEST_F(TarnDebugTest, CloseFileTreatsDescriptorsBelowOneAsLost) {
    TarnDebug debug("fdinfo", capture_dir.string());
    int stdin_flags = fcntl(0, F_GETFD);

    int fd = 0;
    EXPECT_EQ(debug.close_file(fd), -1);
    EXPECT_EQ(fd, -1);
    EXPECT_EQ(fcntl(0, F_GETFD), stdin_flags);  // standard input is left alone

    fd = -1;
    EXPECT_EQ(debug.close_file(fd), -1);
    EXPECT_EQ(fd, -1);

    int open_fd = open_capture_file();
    ASSERT_GE(open_fd, 1);
    fd = open_fd;
    EXPECT_EQ(debug.close_file(fd), 0);
    EXPECT_EQ(fd, -1);
    EXPECT_EQ(fcntl(open_fd, F_GETFD), -1);

    // Closing it again fails and keeps the number.
    fd = open_fd;
    EXPECT_EQ(debug.close_file(fd), -1);
    EXPECT_EQ(fd, open_fd);
}

TEST_F(TarnDebugTest, OpenFileCreatesTimeStampedFileForAppending) {
    mode_t mask = current_umask();
    TarnDebug debug("fdinfo", capture_dir.string());
    time_t before = time(nullptr);
    ASSERT_EQ(debug.open_file("fdinfo"), 0);
    time_t after = time(nullptr);
    int fd = debug.output_fd();
    ASSERT_GE(fd, 0);

    EXPECT_EQ(fs::status(capture_dir).type(), fs::file_type::directory);
    struct stat st;
    ASSERT_EQ(stat(capture_dir.c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0775 & ~mask);

    int flags = fcntl(fd, F_GETFL);
    EXPECT_EQ(flags & O_ACCMODE, O_RDWR);
    EXPECT_TRUE(flags & O_APPEND);

    std::vector<std::string> names = names_in(capture_dir);
    ASSERT_EQ(names.size(), 1u);
    auto stamp = [](time_t t) {
        struct tm local;
        localtime_r(&t, &local);
        char text[32];
        strftime(text, sizeof(text), "%Y%m%d-%H%M%S", &local);
        return std::string(text);
    };
    EXPECT_TRUE(names[0] == "fdinfo_" + stamp(before) + ".txt" ||
                names[0] == "fdinfo_" + stamp(after) + ".txt")
        << names[0];
    ASSERT_EQ(stat((capture_dir / names[0]).c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0644 & ~mask);
    close(fd);

    // An existing directory is reused.
    TarnDebug again("fdinfo", capture_dir.string());
    ASSERT_EQ(again.open_file("strace"), 0);
    close(again.output_fd());
    EXPECT_EQ(names_in(capture_dir).size(), 2u);
}

TEST_F(TarnDebugTest, OpenFileMakesOnlyTheLastDirectory) {
    fs::path deep = root / "missing" / "tarndebug";
    TarnDebug debug("strace", deep.string());
    EXPECT_EQ(debug.open_file("strace"), -1);
    EXPECT_EQ(debug.output_fd(), -1);
    EXPECT_FALSE(fs::exists(root / "missing"));

    // The whole capture fails before any command runs.
    EXPECT_EQ(debug.do_request(), -1);
    EXPECT_FALSE(fs::exists(root / "missing"));
}

}  // namespace
}  // namespace tarn
