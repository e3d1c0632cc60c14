// The two usage texts: the error text (usage()) and the manual text ("man"). Both come from one
// list of entries; the manual text leaves out some entries, adds others and words a few lines
// differently. The compiler composes both texts from the list, so a run only writes one of them.
#include <array>
#include <cstddef>
#include <cstdio>

#include "front/RequestManager.h"

namespace tarn {
namespace {

enum class UsageText { error, manual };

// The texts an entry appears in.
enum class Shown { both, error_only, manual_only };

// One description line, with the manual text's wording where it differs.
struct Line {
    constexpr Line() : error(nullptr), manual(nullptr) {}
    constexpr Line(const char* text)  // NOLINT(google-explicit-constructor)
        : error(text), manual(text) {}
    constexpr Line(const char* error_text, const char* manual_text)
        : error(error_text), manual(manual_text) {}
    const char* error;
    const char* manual;
};

constexpr Line differs_in_manual(const char* error_text, const char* manual_text) {
    return Line(error_text, manual_text);
}

// The most description lines an entry has.
constexpr size_t kMaxLines = 6;

struct Entry {
    Shown shown;
    const char* synopsis;
    Line lines[kMaxLines];  // the unused ones stay empty
    bool blank_line_after = true;
};

constexpr const char kAnySubsysLine[] =
    "    <subsys> may be modem, wcn, gnss, pmsh(5G: pm & sensor) or agdsp.";

constexpr Entry kEntries[] = {
    {Shown::both, "  clear  (no arguments)", {"    clear all logs."}},
    {Shown::manual_only,
     "  collect [<subsys1> [<subsys2> ...]]",
     {"    <subsysn> may be one of modem, wcn. If no <subsys> is defined,",
      "    collect logs from all subsystems."}},
    {Shown::manual_only,
     "  enable <subsys1> [<subsys2> ...]",
     {"    save logs to SD for specified subsystems"}},
    {Shown::both,
     "  enevt <subsys>",
     {"    Turn on event log. <subsys> can be one of modem and wcdma."}},
    {Shown::manual_only,
     "  disable <subsys1> [<subsys2> ...]",
     {"    stop saving logs to SD for specified subsystems",
      "    <subsysn> may be modem, wcn, gnss, pmsh(5G: pm & sensor) or agdsp."}},
    {Shown::both, "  flush  (no arguments)", {"    flush all buffered logs."}},
    {Shown::both,
     "  getcpcapacity <subsys> <storage>",
     {"    get max size of specified subsystem for log saving.", kAnySubsysLine,
      "    <storage> maybe internal, external", "    query result format:", "      <size> MB"}},
    {Shown::both,
     "  getfilesize <subsys>",
     {"    get max size of a single log file of specified subsystem.", kAnySubsysLine,
      "    query result format:", "      <size> MB"}},
    {Shown::both,
     "  getoverwrite <subsys>",
     {"    query log files' overwrite state", kAnySubsysLine,
      "    the result format is:", "      overwrite:<state> (e.g., overwrite:enabled)"}},
    {Shown::both,
     "  getcpreset <subsys>",
     {"    query cp reset state", "    <subsys> may be modem or wcn.",
      "    the result format is:", "      <subsys>:<state> (e.g., modem:ON)"}},
    {Shown::both, "  getminidump (no arguments)", {"    get minidump's switch."}},
    {Shown::both,
     "  getstor  (no arguments)",
     {"    get the storage of the highest priority that used.",
      "    <storage> maybe internal, external", "    the result format is:",
      differs_in_manual("      <storage> (data,storage,external) ",
                        "      <storage> (internal or external) ")}},
    {Shown::error_only,
     "  getcprunstate <subsys>",
     {"    query cp run state", "    <subsys> may be modem or wcn.", "    the result format is:",
      "      <subsys>:<state> (e.g.modem:WORKING or modem:NOT WORKING ...so on)"}},
    {Shown::both,
     "  setcpcapacity <subsys> <storage> <size>",
     {"    set max size of specified subsystem for log saving.", kAnySubsysLine,
      "    <storage> maybe internal, external",
      "    <size> should be any positive integer in megabyte(MB).",
      "    If <size> is 0, use all free space."}},
    {Shown::both,
     "  setfilesize <subsys> <size>",
     {"    set max size of a single log file of specified subsystem.", kAnySubsysLine,
      "    <size> should be positive integer in megabyte(MB)."}},
    {Shown::both,
     "  setoverwrite <subsys> <command>",
     {"    enable/disable log files overwrite.", kAnySubsysLine,
      "    <command> may be enable, disable."}},
    {Shown::both,
     "  setcpreset <subsys> <state>",
     {"    set cp reset state", "    <subsys> may be modem or wcn.",
      "    <state> may be on, off or rstdmp(only for wcn)."}},
    {Shown::both,
     "  setstor <storage>",
     {"    set the storage of highest priority to be used.",
      differs_in_manual("    <storage> maybe data,storage,external",
                        "    <storage> maybe internal, external")}},
    {Shown::both, "  setminidump <enable>", {"    <enable> may be on or off."}},
    {Shown::both, "  startevt", {"    start MODEM event log."}},
    {Shown::both,
     "  state <subsys>",
     {"    query log state for specified subsystem.",
      "    query result format:", "      <subsys>:<state> (e.g. modem:on, wcn:off)"}},
    {Shown::both,
     "  crash <subsys>",
     {"    modem or wcn assert manually.", "      <subsys> (e.g. modem, wcn)"}},
    {Shown::both,
     "  setcomp <subsys> <compression>",
     {"    set the compression state of subsystem.", "    <subsys> may be modem, wcn.",
      "    <compression> may be lz4, none."},
     false},
    {Shown::both,
     "  getcomp <subsys>",
     {"    query the compression state of subsystem.", "    <subsys> may be modem, wcn.",
      "    query result format:", "      <subsys>:<compression> (e.g. modem:lz4, wcn:none)"}},
    {Shown::error_only,
     "  setlog <subsys> <logdest>",
     {"    set the save state of subsystem.",
      "    <subsys> may be modem, wcn, gnss, pmsh(5G: pm & sensor), agdsp.",
      "    <logdest> may be off, stor, usb "}},
    {Shown::both, "  getallvexilstate (no arguments) ", {"    get the vexil state(eg on or off). "}},
    {Shown::both,
     "  setvexil <subsys> <command> ",
     {"   enable/disable cp log output ", "   set subsys like <subsys> <command> (e.g modem on) ",
      "   <subsys> may be all, modem, wcn, gnss, pmsh, agdsp.", "   <command> may be on, off"}},
    {Shown::both,
     "  getvexiltopcstate  (no arguments) ",
     {"    get the vexil to pc now state(eg on or off). "}},
    {Shown::both,
     "  setvexiltopc <command> ",
     {"    enable/disable cp log to pc ", "    <command> may be enable, disable."}},
    {Shown::both,
     "  dbg <types>",
     {"    tarnmodem debug tools used in the userdebug version.",
      "    <types> may be strace, debuggerd, fdinfo."}},
    {Shown::both,
     "  setiolimit <subsys> <command> <size>",
     {"    set io limit for specified subsystem ", "    <subsys> may be modem.",
      "    <command> may be avgratio, lograte, bufsize, bufnum, logcommitthreshold, "
      "bufcommitthreshold.",
      "    if command is avgratio, <size> should be any positive integer in percentage(%).",
      "    if command is lograte, <size> should be any positive integer in megabyte per "
      "sec(MB/s).",
      "    if command is bufsize,logcommitthreshold, bufcommitthreshold, <size> should be any "
      "positive integer in kilobyte(KB)."}},
    {Shown::both,
     "  getiolimit <subsys>",
     {differs_in_manual("    get io limit infomation for specified subsystem.",
                        "    get io limit infomation for specified subsystem "),
      "    <subsys> may be modem."}},
};

constexpr bool is_shown(const Entry& entry, UsageText text) {
    switch (entry.shown) {
        case Shown::error_only:
            return text == UsageText::error;
        case Shown::manual_only:
            return text == UsageText::manual;
        case Shown::both:
            break;
    }
    return true;
}

constexpr char kHead[] = "Usage: vexilctl <command> [<arg1> [<arg2> ...]]\n\n<command>\n";
constexpr char kTail[] = "\nExit code: 0 - success, 1 - fail.\n\n";

// Appends text at *at, or only counts its length when out is null.
constexpr void put(const char* text, char* out, size_t* at) {
    for (; *text != '\0'; ++text, ++*at) {
        if (out != nullptr) out[*at] = *text;
    }
}

// Writes the text to out (when out is not null) and returns its length.
constexpr size_t compose(UsageText text, char* out) {
    size_t at = 0;
    put(kHead, out, &at);
    bool blank_line_due = false;
    for (const Entry& entry : kEntries) {
        if (!is_shown(entry, text)) continue;
        if (blank_line_due) put("\n", out, &at);
        put(entry.synopsis, out, &at);
        put("\n", out, &at);
        for (const Line& line : entry.lines) {
            if (line.error == nullptr) break;
            put(text == UsageText::manual ? line.manual : line.error, out, &at);
            put("\n", out, &at);
        }
        blank_line_due = entry.blank_line_after;
    }
    put(kTail, out, &at);
    return at;
}

template <UsageText kText>
constexpr std::array<char, compose(kText, nullptr) + 1> composed() {
    std::array<char, compose(kText, nullptr) + 1> out{};
    compose(kText, out.data());
    return out;
}

constexpr std::array kErrorText = composed<UsageText::error>();
constexpr std::array kManualText = composed<UsageText::manual>();

// The text goes through the formatter as the format itself, so "%)" is the formatter's to
// render, as it always was for these texts.
void print(const char* format) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"
    fprintf(stderr, format);
#pragma GCC diagnostic pop
}

}  // namespace

void RequestManager::usage() {
    print(kErrorText.data());
}

std::shared_ptr<Request> RequestManager::proc_manual() {
    print(kManualText.data());
    return nullptr;
}

}  // namespace tarn
