// tools/aidl_ndk_gen.py refuses what it does not understand, naming the file and line, and
// never drops a declaration silently.
#include <gtest/gtest.h>
#include <stdio.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const std::string kGenerator = std::string(AIDL_DIR) + "/../../tools/aidl_ndk_gen.py";

// The system interpreter starts several times faster than a version-manager shim.
std::string interpreter() {
    return access("/usr/bin/python3", X_OK) == 0 ? "/usr/bin/python3" : "python3";
}

struct GeneratorRun {
    int status;
    std::string output;
};

// A scratch import root holding .aidl files of package p.q, removed afterwards.
class ScratchPackage {
  public:
    ScratchPackage() {
        char tmpl[] = "/tmp/vexil-aidl-XXXXXX";
        root_ = mkdtemp(tmpl);
        fs::create_directories(root_ / "p" / "q");
    }
    ~ScratchPackage() { fs::remove_all(root_); }

    std::string add(const std::string& relative, const std::string& text) {
        fs::path path = root_ / relative;
        fs::create_directories(path.parent_path());
        std::ofstream(path) << text;
        files_.push_back(path.string());
        return path.string();
    }

    // Starts the generator; finish() collects its output and exit status.
    void start(const std::string& extra = "") {
        std::string command = interpreter() + " " + kGenerator + " -I " + root_.string() + " -o " +
                              (root_ / "out").string() + " " + extra;
        for (const std::string& f : files_) command += " " + f;
        command += " 2>&1";
        pipe_ = popen(command.c_str(), "r");
    }

    GeneratorRun finish() {
        GeneratorRun run{-1, ""};
        if (pipe_ == nullptr) return run;
        char buf[512];
        while (fgets(buf, sizeof(buf), pipe_) != nullptr) run.output += buf;
        int status = pclose(pipe_);
        pipe_ = nullptr;
        run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        return run;
    }

    GeneratorRun generate(const std::string& extra = "") {
        start(extra);
        return finish();
    }

    fs::path root() const { return root_; }

  private:
    fs::path root_;
    std::vector<std::string> files_;
    FILE* pipe_ = nullptr;
};

const char kRecord[] =
    "package p.q;\n@VintfStability\nparcelable Rec {\n    int a;\n    String b;\n}\n";
const char kEnum[] =
    "package p.q;\n@VintfStability\n@Backing(type=\"int\")\nenum Kind { A = 1, B, C = -4 }\n";

struct Refusal {
    const char* what;
    const char* file;  // under p/q/
    const char* text;
    const char* message;  // expected after "<file>:"
};

TEST(AidlGenerator, RefusesWhatItDoesNotUnderstandWithFileAndLine) {
    const Refusal cases[] = {
        {"unknown type", "IFoo.aidl",
         "package p.q;\ninterface IFoo {\n    void f();\n    int g(in Missing m);\n}\n",
         "4: error: unknown type Missing"},
        {"unsupported annotation", "IFoo.aidl",
         "package p.q;\ninterface IFoo {\n    @nullable String f();\n}\n",
         "3: error: annotation @nullable is not supported"},
        {"array field", "Rec.aidl", "package p.q;\nparcelable Rec {\n    int[] values;\n}\n",
         "3: error: arrays and generic types are not supported"},
        {"constant", "IFoo.aidl", "package p.q;\ninterface IFoo {\n  const int X = 1;\n}\n",
         "3: error: const declarations are not supported"},
        {"oneway method", "IFoo.aidl", "package p.q;\ninterface IFoo {\n oneway void f();\n}\n",
         "3: error: oneway declarations are not supported"},
        {"enum without backing", "Kind.aidl", "package p.q;\nenum Kind { A }\n",
         "2: error: enum Kind needs @Backing(type=\"int\")"},
        {"byte backing", "Kind.aidl", "package p.q;\n@Backing(type=\"byte\")\nenum Kind { A }\n",
         "2: error: only @Backing(type=\"int\") is supported"},
        {"out int", "IFoo.aidl", "package p.q;\ninterface IFoo {\n  void f(out int x);\n}\n",
         "3: error: int parameter x can only be an in parameter"},
        {"record without direction", "IFoo.aidl",
         "package p.q;\ninterface IFoo {\n  void f(Plain r);\n}\n",
         "3: error: parameter r needs a direction (in, out or inout)"},
        {"field default", "Rec.aidl", "package p.q;\nparcelable Rec {\n  int a = 3;\n}\n",
         "3: error: field default values are not supported"},
        {"explicit code", "IFoo.aidl", "package p.q;\ninterface IFoo {\n  void f() = 7;\n}\n",
         "3: error: explicit transaction codes are not supported"},
        {"duplicate method", "IFoo.aidl",
         "package p.q;\ninterface IFoo {\n  void f();\n  int f(int x);\n}\n",
         "4: error: method f declared twice or reserved"},
        {"missing semicolon", "IFoo.aidl",
         "package p.q;\ninterface IFoo {\n  void f()\n  void g();\n}\n",
         "4: error: expected ';', found 'void'"},
        {"stray character", "IFoo.aidl", "package p.q;\n#include <x>\n",
         "2: error: unexpected character '#'"},
        {"unterminated comment", "IFoo.aidl", "package p.q;\n/** doc\ninterface IFoo {}\n",
         "2: error: unterminated comment"},
        {"two types", "Rec.aidl", "package p.q;\nparcelable Rec { int a; }\nparcelable X {}\n",
         "3: error: only one type may be declared per file"},
        {"file named otherwise", "Other.aidl", "package p.q;\nparcelable Rec { int a; }\n",
         "2: error: parcelable p.q.Rec must be declared in p/q/Rec.aidl"},
        {"undefined import", "IFoo.aidl",
         "package p.q;\nimport p.q.Gone;\ninterface IFoo { void f(); }\n",
         "2: error: imported type p.q.Gone is not defined"},
        {"interface value", "IFoo.aidl",
         "package p.q;\ninterface IFoo {\n  void f(in IFoo other);\n}\n",
         "3: error: interface-typed values are not supported"},
        {"unstable record in a stable interface", "IFoo.aidl",
         "package p.q;\n@VintfStability\ninterface IFoo {\n  void f(in Plain p);\n}\n",
         "4: error: Plain must be @VintfStability to be used here"},
        {"unstructured parcelable", "Rec.aidl", "package p.q;\nparcelable Rec;\n",
         "2: error: unstructured parcelable declarations are not supported"},
        {"void field", "Rec.aidl", "package p.q;\nparcelable Rec { void a; }\n",
         "2: error: void is only allowed as a return type"},
    };
    // All cases at once: the interpreter's start-up dominates.
    std::vector<std::unique_ptr<ScratchPackage>> packages;
    std::vector<std::string> paths;
    for (const Refusal& c : cases) {
        packages.push_back(std::make_unique<ScratchPackage>());
        ScratchPackage& package = *packages.back();
        package.add("p/q/Rec2.aidl", "package p.q;\nparcelable Rec2 { int a; }\n");
        package.add("p/q/Plain.aidl", "package p.q;\nparcelable Plain { int a; }\n");
        paths.push_back(package.add(std::string("p/q/") + c.file, c.text));
        package.start();
    }
    for (size_t i = 0; i < packages.size(); ++i) {
        SCOPED_TRACE(cases[i].what);
        GeneratorRun run = packages[i]->finish();
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.output, paths[i] + ":" + cases[i].message + "\n");
        EXPECT_FALSE(fs::exists(packages[i]->root() / "out")) << "nothing is written on a refusal";
    }
}

TEST(AidlGenerator, WritesExactlyTheFilesItLists) {
    ScratchPackage package;
    package.add("p/q/Rec.aidl", kRecord);
    package.add("p/q/Kind.aidl", kEnum);
    package.add("p/q/IThing.aidl",
                "package p.q;\n/** An interface. */\n@VintfStability\ninterface IThing {\n"
                "    // comment\n    Kind get(in Kind k, out Rec r, inout Rec io);\n"
                "    String name(in String s, long l, boolean b);\n}\n");
    GeneratorRun listed = package.generate("--list-outputs");
    ASSERT_EQ(listed.status, 0) << listed.output;
    GeneratorRun generated = package.generate();
    ASSERT_EQ(generated.status, 0) << generated.output;
    EXPECT_EQ(generated.output, "");

    std::set<std::string> expected;
    std::istringstream lines(listed.output);
    for (std::string line; std::getline(lines, line);) expected.insert(line);
    std::set<std::string> written;
    for (const auto& entry : fs::recursive_directory_iterator(package.root() / "out")) {
        if (entry.is_regular_file()) written.insert(entry.path().string());
    }
    EXPECT_EQ(written, expected);
    const std::string out = (package.root() / "out").string();
    for (const char* name : {"/include/aidl/p/q/IThing.h", "/include/aidl/p/q/BpThing.h",
                             "/include/aidl/p/q/BnThing.h", "/include/aidl/p/q/Rec.h",
                             "/include/aidl/p/q/Kind.h", "/p/q/IThing.cpp", "/p/q/Rec.cpp"}) {
        EXPECT_EQ(expected.count(out + name), 1u) << name;
    }

    std::ifstream header(out + "/include/aidl/p/q/IThing.h");
    std::stringstream text;
    text << header.rdbuf();
    for (const char* line :
         {"static constexpr uint32_t TRANSACTION_get = FIRST_CALL_TRANSACTION + 0;",
          "static constexpr uint32_t TRANSACTION_name = FIRST_CALL_TRANSACTION + 1;",
          "virtual ::ndk::ScopedAStatus get(::aidl::p::q::Kind in_k, ::aidl::p::q::Rec* out_r, "
          "::aidl::p::q::Rec* in_io, ::aidl::p::q::Kind* _aidl_return) = 0;",
          "virtual ::ndk::ScopedAStatus name(const std::string& in_s, int64_t in_l, bool in_b, "
          "std::string* _aidl_return) = 0;"}) {
        EXPECT_NE(text.str().find(line), std::string::npos) << line;
    }
}

}  // namespace

namespace {

std::string read_file(const fs::path& path) {
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

TEST(AidlGenerator, TakesVersionAndHashFromTheNewestFrozenDump) {
    const char interface[] = "package p.q;\ninterface IThing {\n    void f();\n}\n";
    const std::string header = "out/include/aidl/p/q/IThing.h";
    {
        ScratchPackage package;
        package.add("p/q/IThing.aidl", interface);
        ASSERT_EQ(package.generate().status, 0);
        std::string text = read_file(package.root() / header);
        EXPECT_NE(text.find("static const int32_t version = 1;"), std::string::npos);
        EXPECT_NE(text.find("hash = \"notfrozen\";"), std::string::npos);
    }
    {
        ScratchPackage package;
        package.add("p/q/IThing.aidl", interface);
        std::string newest(40, 'b');
        fs::create_directories(package.root() / "aidl_api/p.q/1");
        fs::create_directories(package.root() / "aidl_api/p.q/2");
        std::ofstream(package.root() / "aidl_api/p.q/1/.hash") << std::string(40, 'a') << "\n";
        std::ofstream(package.root() / "aidl_api/p.q/2/.hash") << std::string(40, 'c') << "\n"
                                                               << newest << "\n";
        ASSERT_EQ(package.generate().status, 0);
        std::string text = read_file(package.root() / header);
        EXPECT_NE(text.find("static const int32_t version = 2;"), std::string::npos);
        EXPECT_NE(text.find("hash = \"" + newest + "\";"), std::string::npos);
    }
    {
        ScratchPackage package;
        package.add("p/q/IThing.aidl", interface);
        fs::create_directories(package.root() / "aidl_api/p.q/1");
        std::ofstream(package.root() / "aidl_api/p.q/1/.hash") << "not a hash\n";
        GeneratorRun run = package.generate();
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.output, (package.root() / "aidl_api/p.q/1/.hash").string() +
                                  ":1: error: expected a 40-digit hex hash\n");
    }
}

}  // namespace
