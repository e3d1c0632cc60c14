// The whole tool in this process, as a script or a daemon starts it: the input chooses the
// command line (its words from the command table and the front end's word lists, numbers of
// every size, any bytes), which of standard input, output and error are closed, and every answer
// of the device side (fuzzed_device.h). The tool runs from process_command on, as main() calls
// it; where it ends the process (end_process's hook, the death callback's _exit, wrapped at link
// time) the input ends instead. After each input the rules a script that parses the tool relies
// on are checked, and a broken one aborts with the input kept:
// - the exit status is 1 only for a refused command line, after which nothing reached the device;
// - standard output is empty or one of the command's whole result forms;
// - vexilserver gets at most the one request line;
// - nothing is written to the service after a read that failed, but for the deliberate cases of
//   tests/fault_matrix/fault_matrix.py's table ("write_after");
// - no descriptor or child is left behind (and LeakSanitizer finds no memory left).
#include <aidl/vendor/kest/hardware/vexil_svc/ISysLogControl.h>
#include <android/log.h>
#include <fcntl.h>
#include <signal.h>
#include <stdio.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <iterator>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "debug/TarnDebug.h"
#include "front/ArgumentWords.h"
#include "front/RequestManager.h"
#include "tests/fuzz/fuzzed_device.h"

extern "C" __attribute__((weak)) void __sanitizer_set_report_fd(void* fd);

namespace {

using I = ::aidl::vendor::kest::hardware::vexil_svc::ISysLogControl;

#define DEST "(off|stor|usb|wifi)"
#define NUMBER "-?\\d+"

// The commands with what each may print on standard output, whole (ECMAScript); printing
// nothing is always allowed. getlogpath may also print the path the service answered, as it came.
const struct {
    const char* words;
    const char* output;
} kCommands[] = {
    {"man collect dbg", "$^"},
    {"flush", "OK\n"},
    {"clear crash setlog setcomp setcpcapacity setfilesize setstor setlogpath setoverwrite "
     "setfilenodel setcpreset setminidump setiolimit setmipilog getmipilog",
     "(OK|ERROR)\n"},
    {"state", "OK,(modem: mode:(OFF|ON|EVENT),dest:" DEST "|wcn:(ON|OFF),dest:" DEST
              "|agdsp:(ON|OFF) dest:" DEST "|(pmsh|pm|sensor|gnss):(ON|OFF)\\.)\n"},
    {"getcomp", "OK,(Modem|Connectivity) Log Compression: (lz4|none)\n|ERROR\n"},
    {"getcpcapacity getfilesize", "OK," NUMBER " MB\n|(OK|ERROR)\n"},
    {"getstor", "OK,(data|storage|external) storage\n|ERROR\n"},
    {"getlogpath", "ERROR\n"},
    {"getoverwrite", "OK,overwrite:(enabled|disabled)\\.\n|(OK|ERROR)\n"},
    {"getfilenodel", "(ON|OFF) \n|ERROR\n"},
    {"getcpreset", "(modem|wcn):(OFF|ON|RSTDMP|UNKNOWN)\n|ERROR\n"},
    {"getcprunstate", "(modem|wcn):(WORKING|NOT WORKING|UNKNOW STATE)\n|ERROR\n"},
    {"getminidump", "OK:(on|off)\n|(OK|ERROR)\n"},
    {"getiolimit", "OK, modem: avg_ratio:" NUMBER ", log_rate:" NUMBER "M/s, buf_size:" NUMBER
                   "KB, buf_num:" NUMBER ", log_commit_threshold:" NUMBER
                   "KB, buf_commit_threshold:" NUMBER "KB\n|ERROR\n"},
    {"setlogpscfg", "set log pscfg (success|failed)\n|get logctlservice Error\n"},
    {"setvexil setvexiltopc", "set success\n"},
    {"getallvexilstate", "(on|off|event)\n"},
    {"getvexiltopcstate", "(on|off)\n"},
};

// The reads a command deliberately goes past, still writing (fault_matrix.py's "write_after"),
// with the failures it goes past.
const struct {
    const char* command;
    uint32_t read;
    unsigned failures;
} kWriteAfterFailedRead[] = {
    // The presence record is used as it comes back; only the IO limits judge its answer.
    {"setlog", I::TRANSACTION_getSubsystemPresence,
     fuzz::kStatus | fuzz::kMinusOne | fuzz::kMinusThree | fuzz::kOtherResult},
    {"setiolimit", I::TRANSACTION_getSubsystemPresence, fuzz::kMinusThree | fuzz::kOtherResult},
    // The current path is read for the log only.
    {"setlogpath", I::TRANSACTION_getCurrentParentLogPath, fuzz::kStatus},
    // A refused read of the reset state does not stop the write; -3 (not supported) does.
    {"setcpreset", I::TRANSACTION_getSubsystemAutoReboot, fuzz::kStatus | fuzz::kMinusOne},
};

// Words handlers look for that no list of the front end holds.
const char* const kHandlerWords[] = {"on", "rstdmp", "skipboot"};
// Commands that check how many arguments they get.
const char* const kCounted[] = {"setmipilog", "setvexil", "setcpreset"};
// The descriptors checked for being left behind: a leaked one takes the lowest free number.
constexpr int kCheckedFds = 32;

struct Form {
    std::string command;
    std::regex output;
};
std::vector<Form> forms;
std::vector<const char*> listed_words;
int saved[3];       // the standard descriptors as the fuzzer has them
int output;         // the tool's standard output in a run: a pipe
int captured;       // the pipe's other end
int reports;        // where a broken rule is reported: standard error as the fuzzer started
std::string shown;  // the input's command line, for the report
bool running = false;

struct ProcessEnded {
    int status;
};

[[noreturn]] void end_run(int status) {
    throw ProcessEnded{status};
}

int moved_up(int fd) {
    const int high = fcntl(fd, F_DUPFD_CLOEXEC, fuzz::kHarnessFds);
    close(fd);
    return high;
}

void set_up() {
    tarn::set_process_end_hook(end_run);
    // The tool's standard output is a pipe, buffered as it is on anything but a terminal.
    setvbuf(stdout, nullptr, _IOFBF, BUFSIZ);
    int ends[2];
    if (pipe(ends) != 0) fuzz::fail("no pipe");
    captured = moved_up(ends[0]);
    output = moved_up(ends[1]);
    fcntl(captured, F_SETFL, O_NONBLOCK);
    fcntl(output, F_SETFL, O_NONBLOCK);
    for (int fd = 0; fd < 3; ++fd) saved[fd] = fcntl(fd, F_DUPFD_CLOEXEC, fuzz::kHarnessFds);
    for (const auto& command : kCommands) {
        std::istringstream words(command.words);
        std::string word;
        while (words >> word) forms.push_back({word, std::regex(command.output)});
    }
    const auto add = [](const auto& list) {
        listed_words.insert(listed_words.end(), std::begin(list), std::end(list));
    };
    add(tarn::kSubsysWords);
    add(tarn::kStorageWords);
    add(tarn::kArgWords);
    add(tarn::kLogdestWords);
    fuzz::set_up_device();
    // The log's descriptor is opened by the first line, before any input.
    __android_log_print(ANDROID_LOG_INFO, "tool_fuzzer", "%s", "start");
}

// One argument; `accepted` turns false unless it is a word of the front end's lists or a number.
std::string argument(FuzzedDataProvider& in, bool& accepted) {
    switch (in.ConsumeIntegralInRange(0, 3)) {
        case 0:
            return listed_words[in.ConsumeIntegralInRange<size_t>(0, listed_words.size() - 1)];
        case 1:
            return std::to_string(in.ConsumeIntegral<uint64_t>() >>
                                  in.ConsumeIntegralInRange(0, 63));
        case 2:
            accepted = false;
            return kHandlerWords[in.ConsumeIntegralInRange<size_t>(0, std::size(kHandlerWords) - 1)];
        default:
            accepted = false;
            return in.ConsumeRandomLengthString(24);
    }
}

// The command line: a command word of the table, any word or none, and up to five arguments, as
// the tool sees them (up to a NUL). `accepted`: the front end must take it.
std::vector<std::string> command_line(FuzzedDataProvider& in, bool& accepted) {
    std::vector<std::string> args{"vexilctl"};
    const size_t choice = in.ConsumeIntegralInRange<size_t>(0, forms.size() + 1);
    if (choice < forms.size()) args.push_back(forms[choice].command);
    if (choice == forms.size()) args.push_back(in.ConsumeRandomLengthString(16));
    accepted = choice < forms.size();
    for (int n = in.ConsumeIntegralInRange(0, 5); n > 0; --n)
        args.push_back(argument(in, accepted));
    shown.clear();
    for (std::string& arg : args) {
        arg.resize(strlen(arg.c_str()));
        shown += arg + " ";
    }
    for (const char* counted : kCounted) accepted = accepted && args[1] != counted;
    return args;
}

bool is_open(int fd) {
    return fcntl(fd, F_GETFD) != -1;
}

// Runs the tool on the command line with the standard descriptors in `closed` (bit n: fd n)
// closed; its exit status, and in `out` what it wrote to standard output.
int run(std::vector<std::string>& args, unsigned closed, std::string& out) {
    std::vector<char*> argv;
    for (std::string& arg : args) argv.push_back(arg.data());
    argv.push_back(nullptr);
    for (int fd = 0; fd < 3; ++fd) {
        if ((closed & (1u << fd)) != 0) {
            close(fd);
        } else {
            dup2(fd == 1 ? output : saved[fd], fd);
        }
    }
    int status;
    running = true;
    try {
        status = std::make_shared<tarn::RequestManager>()->process_command(
            static_cast<int>(args.size()), argv.data());
    } catch (const ProcessEnded& ended) {
        status = ended.status;
    }
    running = false;
    fflush(stdout);  // as exit() does
    clearerr(stdout);
    for (int fd = 0; fd < 3; ++fd) dup2(saved[fd], fd);
    char bytes[4096];
    for (ssize_t got; (got = read(captured, bytes, sizeof(bytes))) > 0;) out.append(bytes, got);
    return status;
}

// Whether standard output is one of the command's forms.
bool is_result_form(const std::string& command, const std::string& out,
                    const fuzz::Journal& journal) {
    if (command == "getlogpath" && journal.path &&
        out == "OK,logpath:" + std::string(journal.path->c_str()) + "\n") {
        return true;
    }
    for (const Form& form : forms) {
        if (form.command == command && std::regex_match(out, form.output)) return true;
    }
    return false;
}

// Whether every write of the service came after reads that did not fail, or that the command
// deliberately goes past.
bool writes_after_good_reads(const std::string& command, const fuzz::Journal& journal) {
    const std::vector<fuzz::Call>& calls = journal.calls;
    for (auto write = calls.begin(); write != calls.end(); ++write) {
        if (!write->write) continue;
        for (auto read = calls.begin(); read != write; ++read) {
            bool deliberate = read->failure == 0;
            for (const auto& rule : kWriteAfterFailedRead) {
                deliberate = deliberate || (command == rule.command && read->code == rule.read &&
                                            (rule.failures & read->failure) != 0);
            }
            if (!deliberate) return false;
        }
    }
    return true;
}

}  // namespace

[[noreturn]] void fuzz::fail(const char* rule) {
    for (int fd = 0; fd < 3; ++fd) dup2(saved[fd], fd);
    dprintf(reports, "tool_fuzzer: %s: %s\n", rule, shown.c_str());
    abort();
}

extern "C" [[noreturn]] void __real__exit(int status);
extern "C" [[noreturn]] void __wrap__exit(int status) {
    if (running) throw ProcessEnded{status};
    __real__exit(status);
}

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    // Reports go where standard error is now, whatever an input or -close_fd_mask does to it.
    reports = fcntl(2, F_DUPFD_CLOEXEC, fuzz::kHarnessFds);
    if (__sanitizer_set_report_fd != nullptr) {
        __sanitizer_set_report_fd(reinterpret_cast<void*>(static_cast<intptr_t>(reports)));
    }
    signal(SIGPIPE, [](int) { fuzz::fail("SIGPIPE: the tool wrote to a closed pipe or socket"); });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const bool ready = (set_up(), true);
    (void)ready;
    FuzzedDataProvider in(data, size);
    bool accepted = false;
    std::vector<std::string> args = command_line(in, accepted);
    const std::string command = args.size() > 1 ? args[1] : "";
    // dbg starts shell tools and writes capture files: it runs only where its capture directory
    // cannot be made (the host has no /data/wyrm), up to that failure.
    const std::string captures = tarn::kTarnDebugDir;
    if (command == "dbg" && access(captures.substr(0, captures.rfind('/')).c_str(), F_OK) == 0) {
        return 0;
    }
    const unsigned state = in.ConsumeIntegralInRange(0, 15);
    const unsigned closed = state < 8 ? state : 0;  // half the inputs start with all three open
    // The fuzzer itself opens some between inputs (its symbolizer's pipes).
    bool open_before[kCheckedFds];
    for (int fd = 0; fd < kCheckedFds; ++fd) open_before[fd] = is_open(fd);

    fuzz::start_device(in);
    std::string out;
    const int status = run(args, closed, out);
    const fuzz::Journal& journal = fuzz::end_device();

    if (status != 0 && status != 1) fuzz::fail("an exit status other than 0 and 1");
    if (status == 1 && (journal.lookups != 0 || journal.connections != 0 || !out.empty())) {
        fuzz::fail("the command line was refused, yet the tool went on");
    }
    if (accepted && status != 0) fuzz::fail("a command line of listed words was refused");
    if (!out.empty() && !is_result_form(command, out, journal)) {
        fuzz::fail(("standard output is not the command's result form: " + out).c_str());
    }
    const std::string& sent = journal.sent;
    if (!sent.empty() && (sent.back() != '\n' || sent.find('\n') != sent.size() - 1)) {
        fuzz::fail(("vexilserver got more than one request line: " + sent).c_str());
    }
    if (!writes_after_good_reads(command, journal)) fuzz::fail("a write after a failed read");
    for (int fd = 0; fd < kCheckedFds; ++fd) {
        if (is_open(fd) != open_before[fd]) fuzz::fail("a descriptor left behind");
    }
    siginfo_t child{};
    waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT);
    if (child.si_pid != 0) fuzz::fail("a child left behind");
    return 0;
}
