#include <gtest/gtest.h>

#include <cctype>
#include <ostream>
#include <string>
#include <vector>

#include "front/ArgumentClassifier.h"
#include "front/ArgumentWords.h"
#include "front/Options.h"
#include "tests/unit/front_test_support.h"

namespace tarn {
namespace {

using test::CommandLine;

// What the classifier writes to stderr.
enum class Complaint { none, missing_argument, missing_argument_and_usage };

// The fields that differ from a fresh Options, in field order.
std::string describe(const Options& opts) {
    std::string out;
    auto field = [&out](const char* name, const std::string& value) {
        if (value.empty()) return;
        if (!out.empty()) out += ' ';
        out += std::string(name) + "=" + value;
    };
    std::string subsystems;
    for (const std::string& word : opts.subsystems) {
        subsystems += (subsystems.empty() ? "" : ",") + word;
    }
    field("subsystems", subsystems);
    field("storage", opts.storage);
    field("cmd", opts.cmd);
    field("logdest", opts.logdest);
    field("number", opts.number == 0 ? "" : std::to_string(opts.number));
    field("param1", opts.param1);
    field("param2", opts.param2);
    return out;
}

struct ClassifyCase {
    std::vector<std::string> words;  // the command word and its arguments
    int status;
    std::string options;  // as describe() writes them; only checked when accepted
    Complaint complaint;
};

// How gtest shows a case in its output: the command line, not a byte dump.
void PrintTo(const ClassifyCase& c, std::ostream* out) {
    *out << "vexilctl";
    for (const std::string& word : c.words) *out << " '" << word << "'";
}

const ClassifyCase kClassifyCases[] = {
    // A command word alone reaches its handler, whatever the command.
    {{"flush"}, 0, "", Complaint::none},
    {{"setmipilog"}, 0, "", Complaint::none},
    {{"setvexil"}, 0, "", Complaint::none},
    {{"clear"}, 0, "", Complaint::none},
    // Classified words.
    {{"man", "extra"}, 1, "", Complaint::missing_argument_and_usage},
    {{"flush", "12"}, 0, "number=12", Complaint::none},
    {{"flush", "x"}, 1, "", Complaint::missing_argument_and_usage},
    {{"getcpcapacity", "modem", "internal"}, 0, "subsystems=modem storage=internal", Complaint::none},
    {{"state", "modem", "wcn"}, 0, "subsystems=modem,wcn", Complaint::none},
    {{"state", "modem", "modem", "all", "pm"}, 0, "subsystems=modem,modem,all,pm", Complaint::none},
    {{"setcpcapacity", "wcn", "external", "internal", "20", "30"},
     0,
     "subsystems=wcn storage=internal number=30",
     Complaint::none},
    {{"setoverwrite", "gnss", "enable", "disable"}, 0, "subsystems=gnss cmd=disable", Complaint::none},
    {{"setiolimit", "modem", "bufcommitthreshold", "64"},
     0,
     "subsystems=modem cmd=bufcommitthreshold number=64",
     Complaint::none},
    {{"dbg", "strace"}, 0, "cmd=strace", Complaint::none},
    // Numbers: digits only; an empty word is 0; a sign or a blank is refused.
    {{"state", ""}, 0, "", Complaint::none},
    {{"setfilesize", "modem", "7", ""}, 0, "subsystems=modem", Complaint::none},
    {{"setfilesize", "modem", "007"}, 0, "subsystems=modem number=7", Complaint::none},
    {{"setfilesize", "modem", "-5"}, 1, "", Complaint::missing_argument_and_usage},
    {{"setfilesize", "modem", "+5"}, 1, "", Complaint::missing_argument_and_usage},
    {{"setfilesize", "modem", " 5"}, 1, "", Complaint::missing_argument_and_usage},
    {{"setfilesize", "modem", "5MB"}, 1, "", Complaint::missing_argument_and_usage},
    {{"setfilesize", "modem", "1.5"}, 1, "", Complaint::missing_argument_and_usage},
    {{"setfilesize", "modem", "\xd9\xa1"}, 1, "", Complaint::missing_argument_and_usage},
    {{"setfilesize", "modem", "99999999999999999999"},
     0,
     "subsystems=modem number=9223372036854775807",
     Complaint::none},
    // Words match exactly.
    {{"state", "Modem"}, 1, "", Complaint::missing_argument_and_usage},
    {{"state", "modem "}, 1, "", Complaint::missing_argument_and_usage},
    {{"state", "mode"}, 1, "", Complaint::missing_argument_and_usage},
    // A log destination ends the classification; nothing after it is looked at.
    {{"setlog", "modem", "off", "anything", "-1"}, 0, "subsystems=modem logdest=off", Complaint::none},
    {{"setlog", "wcn", "wifi", "gnss"}, 0, "subsystems=wcn logdest=wifi", Complaint::none},
    {{"setlog", "modem", "bogus", "stor"}, 1, "", Complaint::missing_argument_and_usage},
    // Commands that take their first argument by position, unchecked.
    {{"clear", "skipboot", "x"}, 0, "cmd=skipboot", Complaint::none},
    {{"clear", "-1"}, 0, "cmd=-1", Complaint::none},
    {{"setlogpath", "/data/log dir", "more"}, 0, "cmd=/data/log dir", Complaint::none},
    {{"getmipilog", "x"}, 0, "cmd=x", Complaint::none},
    {{"setminidump", "on"}, 0, "cmd=on", Complaint::none},
    // setmipilog takes exactly three arguments and complains without the usage text.
    {{"setmipilog", "a", "b", "c"}, 0, "cmd=a param1=b param2=c", Complaint::none},
    {{"setmipilog", "a", "b"}, 1, "", Complaint::missing_argument},
    {{"setmipilog", "a", "b", "c", "d"}, 1, "", Complaint::missing_argument},
    // setvexil and setcpreset: a subsystem word, then one more argument.
    {{"setvexil", "all", "on"}, 0, "subsystems=all cmd=on", Complaint::none},
    {{"setvexil", "on", "all"}, 1, "", Complaint::missing_argument_and_usage},
    {{"setvexil", "modem"}, 1, "", Complaint::missing_argument_and_usage},
    {{"setvexil", "modem", "on", "x"}, 1, "", Complaint::missing_argument_and_usage},
    {{"setcpreset", "pm", "on"}, 0, "subsystems=pm cmd=on", Complaint::none},
    {{"setcpreset", "wcn", "whatever"}, 0, "subsystems=wcn cmd=whatever", Complaint::none},
};

class ClassifierTest : public testing::TestWithParam<ClassifyCase> {
  protected:
    const ArgumentWords words_{kSubsysWords, kStorageWords, kArgWords, kLogdestWords};
};

TEST_P(ClassifierTest, StatusOptionsAndComplaint) {
    const ClassifyCase& c = GetParam();
    CommandLine line(c.words);
    Options opts;

    testing::internal::CaptureStderr();
    const int status = classify_arguments(line.argc(), line.argv(), words_, opts);
    const std::string complaint = testing::internal::GetCapturedStderr();

    EXPECT_EQ(status, c.status);
    const std::string missing = c.complaint == Complaint::none ? "" : "Missing argument.\n";
    EXPECT_EQ(complaint, c.complaint == Complaint::missing_argument_and_usage
                             ? missing + test::error_usage_text()
                             : missing);
    if (c.status == 0) {
        EXPECT_EQ(describe(opts), c.options);
    }
}

// The case's index and words, as far as they are letters and digits.
std::string case_name(const testing::TestParamInfo<ClassifyCase>& info) {
    std::string name = std::to_string(info.index);
    for (const std::string& word : info.param.words) {
        name += '_';
        for (char ch : word) name += isalnum(static_cast<unsigned char>(ch)) ? ch : 'X';
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(Table, ClassifierTest, testing::ValuesIn(kClassifyCases), case_name);

}  // namespace
}  // namespace tarn
