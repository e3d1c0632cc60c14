// tools/aidl_ndk_gen.py refuses what it does not understand, naming the file and line, and
// writes nothing then: one row for each kind of refusal (type, annotation, declaration, syntax,
// file layout, stability). What it writes for the service's own interface is compared with the
// Android aidl compiler's output by the device-build check.
#include <gtest/gtest.h>
#include <stdio.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <memory>
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
    void start() {
        std::string command = interpreter() + " " + kGenerator + " -I " + root_.string() + " -o " +
                              (root_ / "out").string();
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

    fs::path root() const { return root_; }

  private:
    fs::path root_;
    std::vector<std::string> files_;
    FILE* pipe_ = nullptr;
};

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
        {"oneway method", "IFoo.aidl", "package p.q;\ninterface IFoo {\n oneway void f();\n}\n",
         "3: error: oneway declarations are not supported"},
        {"missing semicolon", "IFoo.aidl",
         "package p.q;\ninterface IFoo {\n  void f()\n  void g();\n}\n",
         "4: error: expected ';', found 'void'"},
        {"unterminated comment", "IFoo.aidl", "package p.q;\n/** doc\ninterface IFoo {}\n",
         "2: error: unterminated comment"},
        {"file named otherwise", "Other.aidl", "package p.q;\nparcelable Rec { int a; }\n",
         "2: error: parcelable p.q.Rec must be declared in p/q/Rec.aidl"},
        {"unstable record in a stable interface", "IFoo.aidl",
         "package p.q;\n@VintfStability\ninterface IFoo {\n  void f(in Plain p);\n}\n",
         "4: error: Plain must be @VintfStability to be used here"},
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

}  // namespace
