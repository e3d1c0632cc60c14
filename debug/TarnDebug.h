#pragma once

#include <stddef.h>
#include <stdint.h>

#include <string>

#include "service/Request.h"

namespace tarn {

// Where the captures of "dbg" go.
extern const char* const kTarnDebugDir;

// "dbg <type>": captures a system-call trace, a stack dump or the open descriptors of the log
// daemon into a time-stamped file of the capture directory. The type word selects the capture by
// its first letters only ("stracex" still means strace).
class TarnDebug : public Request {
  public:
    explicit TarnDebug(const std::string& type);
    // Captures into another directory than kTarnDebugDir; the tests use it.
    TarnDebug(const std::string& type, const std::string& capture_dir);

    // Runs the capture the type word names; -1 without a message for a word naming none.
    int do_request() override;

    // Creates the capture directory when missing and opens "<dir>/<name>_<date>-<time>.txt" for
    // appending; the descriptor is kept for close_file.
    int open_file(const std::string& name);
    // Closes a descriptor of 1 or above and sets it to -1; a close that fails keeps it.
    int close_file(int& fd);
    // Writes the command as a header, then up to 1001 pieces of its output, to fd.
    int execute_shell_cmd(const char* cmd, int& fd);
    // The pid pidof reports for tarnmodem; 0 when it reports nothing.
    int get_pidof_tarn(int& pid);

    int save_strace_info();
    int save_debuggerd_info();
    int save_fd_info();

    // The descriptor of the open capture file, -1 when none is open.
    int output_fd() const { return m_fd; }

  private:
    // Fills cmd with the shell command that captures from the given pid.
    using CommandFormatter = void (*)(char* cmd, size_t size, int pid);

    // The steps every capture shares: open the file, find the daemon, run the command and close
    // the file. func names the capture in the log lines.
    int capture(const char* func, const char* base_name, bool fd_listing,
                CommandFormatter format_command);

    std::string type_;
    int32_t m_fd = -1;
    std::string capture_dir_;
};

// Folds one line of pidof output into a pid: each character up to a NUL, "\n" or "\r" adds
// (character - '0') to ten times the number so far. Nothing else stops it and nothing is checked,
// so "12 34" gives a meaningless number; one daemon process is assumed. Wraps like 32-bit
// arithmetic on overflow.
int32_t fold_pid(const char* line);

}  // namespace tarn
