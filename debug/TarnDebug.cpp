#include "debug/TarnDebug.h"

#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <time.h>
#include <unistd.h>

#include "front/RequestManager.h"
#include "front/TarnLog.h"

namespace tarn {

const char* const kTarnDebugDir = "/data/wyrm/tarndebug";

namespace {

constexpr size_t kCmdSize = 64;        // commands and the header written before their output
constexpr size_t kFileNameSize = 128;  // the capture file's path
constexpr size_t kLineSize = 1024;     // one read of a command's output
constexpr int kMaxReads = 1001;        // reads of output per capture

// popen for reading; on failure the command is named on standard output.
FILE* open_pipe(const char* cmd) {
    FILE* pipe = popen(cmd, "r");
    if (pipe == nullptr) {
        printf("popen %s error\n", cmd);
    }
    return pipe;
}

// Writes the text up to its NUL. A short or failed write loses that piece of the capture only.
void write_text(int fd, const char* text) {
    ssize_t written = write(fd, text, strlen(text));
    (void)written;
}

}  // namespace

std::shared_ptr<Request> RequestManager::proc_tarn_debug(std::shared_ptr<Options> opts) {
    TARN_LOG("%s: proc_tarn_debug\n", "proc_tarn_debug");
    return std::make_shared<TarnDebug>(opts->cmd);
}

TarnDebug::TarnDebug(const std::string& type) : TarnDebug(type, kTarnDebugDir) {}

TarnDebug::TarnDebug(const std::string& type, const std::string& capture_dir)
    : type_(type), capture_dir_(capture_dir) {}

int TarnDebug::do_request() {
    const char* type = type_.c_str();
    if (strncmp(type, "strace", 6) == 0) return save_strace_info();
    if (strncmp(type, "debuggerd", 9) == 0) return save_debuggerd_info();
    if (strncmp(type, "fdinfo", 6) == 0) return save_fd_info();
    return -1;
}

int TarnDebug::open_file(const std::string& name) {
    // Only the last directory is made: its parents belong to the system.
    if (mkdir(capture_dir_.c_str(), 0775) == 0) {
        TARN_LOG("%s: tarndebug director create sucess\n", "open_file");
    } else if (errno == EEXIST) {
        TARN_LOG("%s: tarndebug director exist\n", "open_file");
    } else {
        TARN_LOG("%s: tarndebug director create fail\n", "open_file");
        return -1;
    }

    std::string prefix = capture_dir_ + "/" + name;

    struct tm local;
    time_t now = time(nullptr);
    if (now == static_cast<time_t>(-1) || localtime_r(&now, &local) == nullptr) {
        TARN_LOG_ERRNO("%s: vexilctl debug get time fail, so return", "open_file");
        return -1;
    }

    char file_name[kFileNameSize];
    snprintf(file_name, sizeof(file_name), "%s_%04d%02d%02d-%02d%02d%02d.txt", prefix.c_str(),
             local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
             local.tm_sec);

    // Append: a second capture within the same second adds to the same file.
    m_fd = open(file_name, O_RDWR | O_CREAT | O_APPEND, 0644);
    if (m_fd < 0) {
        TARN_LOG_ERRNO("%s: vexilctl create %s file error", "open_file", file_name);
        return -1;
    }
    return 0;
}

int TarnDebug::close_file(int& fd) {
    // 0 counts as lost too: the capture file is never standard input.
    if (fd < 1) {
        TARN_LOG_ERRNO("%s: m_fd lost, please check", "close_file");
        fd = -1;
        return -1;
    }
    if (close(fd) != 0) {
        TARN_LOG_ERRNO("%s: close file fail", "close_file");
        return -1;
    }
    fd = -1;
    return 0;
}

int TarnDebug::execute_shell_cmd(const char* cmd, int& fd) {
    // The header holds as much of the command as fits its buffer; the command runs whole.
    char header[kCmdSize];
    snprintf(header, sizeof(header), "%s\n\n", cmd);
    write_text(fd, header);

    FILE* pipe = open_pipe(cmd);
    if (pipe == nullptr) return -1;

    char line[kLineSize];
    for (int reads = 0; reads < kMaxReads && fgets(line, sizeof(line), pipe) != nullptr; ++reads) {
        write_text(fd, line);
    }
    pclose(pipe);
    return 0;
}

int TarnDebug::get_pidof_tarn(int& pid) {
    pid = 0;
    char cmd[kCmdSize];
    snprintf(cmd, sizeof(cmd), "%s", "pidof tarnmodem");
    FILE* pipe = open_pipe(cmd);
    if (pipe == nullptr) return -1;

    char line[kLineSize];
    if (fgets(line, sizeof(line), pipe) != nullptr) {
        pid = fold_pid(line);
        // The pid is logged as the unsigned 32-bit value it holds.
        TARN_LOG("%s: pid of tarnmodem is %lu\n", "get_pidof_tarn",
                 static_cast<unsigned long>(static_cast<uint32_t>(pid)));
    }
    pclose(pipe);
    return 0;
}

int TarnDebug::save_strace_info() {
    return capture("save_strace_info", "strace", false, [](char* cmd, size_t size, int pid) {
        snprintf(cmd, size, "./system/bin/strace -p %d", pid);
    });
}

int TarnDebug::save_debuggerd_info() {
    return capture("save_debuggerd_info", "debuggerd", false, [](char* cmd, size_t size, int pid) {
        snprintf(cmd, size, "./system/bin/debuggerd -b %d", pid);
    });
}

int TarnDebug::save_fd_info() {
    return capture("save_fd_info", "fdinfo", true, [](char* cmd, size_t size, int pid) {
        snprintf(cmd, size, "cd /proc/%d/task/%d/fd;ls -lh", pid, pid);
    });
}

int TarnDebug::capture(const char* func, const char* base_name, bool fd_listing,
                       CommandFormatter format_command) {
    if (open_file(base_name) != 0) {
        // The strace capture shares the debuggerd wording.
        if (fd_listing) {
            TARN_LOG_ERRNO("%s: open file fail to save fd info", func);
        } else {
            TARN_LOG_ERRNO("%s: open file fail to save debuggerd info", func);
        }
        return -1;
    }

    int pid = 0;
    if (get_pidof_tarn(pid) != 0) {
        // The capture file stays open until the process ends.
        TARN_LOG_ERRNO("%s: get pid of tarnmodem fail", func);
        return -1;
    }

    char cmd[kCmdSize];
    format_command(cmd, sizeof(cmd), pid);
    // A command that could not run still leaves its header in the file.
    execute_shell_cmd(cmd, m_fd);

    if (close_file(m_fd) != 0) {
        TARN_LOG_ERRNO("%s: close file fail", func);
        return -1;
    }
    return 0;
}

int32_t fold_pid(const char* line) {
    // Characters count as unsigned bytes, as on the device; unsigned arithmetic keeps a long
    // line from overflowing a signed number.
    uint32_t pid = 0;
    for (const char* c = line; *c != '\0' && *c != '\n' && *c != '\r'; ++c) {
        pid = pid * 10u + static_cast<uint32_t>(static_cast<unsigned char>(*c) - '0');
    }
    return static_cast<int32_t>(pid);
}

}  // namespace tarn
