// Soong's analysis of the vexilctl vendor tree, on Soong's own test fixture (the aidl_interface
// registration of aidl_test.go): the project's Android.bp files and sources are placed under
// vendor/kest/vexilctl in the fixture's mock tree. Copied into system/tools/aidl/build by
// scripts/device_build/soong.sh, which passes the project root in VEXILCTL_ROOT and reads the
// module list this test writes to VEXILCTL_MODULES.
package aidl

import (
	"encoding/json"
	"os"
	"path/filepath"
	"sort"
	"strings"
	"testing"

	"android/soong/android"
	"github.com/google/blueprint/proptools"
)

const vexilctlDir = "vendor/kest/vexilctl"

// What the tree's build files use besides the aidl fixture's mock modules.
const vexilctlMockModules = `
cc_library {
	name: "libgtest_main",
	vendor_available: true,
}
cc_library {
	name: "libgtest",
	vendor_available: true,
}
cc_library {
	name: "libclang_rt.fuzzer",
	vendor_available: true,
}
`

// The project's files that a build reads, as mock source files.
func vexilctlFiles(t *testing.T, root string) map[string][]byte {
	files := map[string][]byte{}
	skip := map[string]bool{".git": true, "build": true, "node_modules": true}
	err := filepath.Walk(root, func(path string, info os.FileInfo, err error) error {
		if err != nil {
			return err
		}
		rel, _ := filepath.Rel(root, path)
		if info.IsDir() {
			if skip[rel] {
				return filepath.SkipDir
			}
			return nil
		}
		content, err := os.ReadFile(path)
		if err != nil {
			return err
		}
		files[filepath.Join(vexilctlDir, rel)] = content
		return nil
	})
	if err != nil {
		t.Fatal(err)
	}
	return files
}

// vexilctlModule is what the compile step needs of a C++ module: its sources and own flags.
type vexilctlModule struct {
	Name     string
	Variant  string
	Srcs     []string
	Cflags   []string
	Cppflags []string
	Installs []string
}

func vendorVariant(t *testing.T, ctx *android.TestContext, name string, kind string) string {
	for _, v := range ctx.ModuleVariantsForTests(name) {
		if strings.HasPrefix(v, "android_vendor") && strings.Contains(v, "arm64") &&
			(kind == "" || strings.HasSuffix(v, kind)) {
			return v
		}
	}
	t.Fatalf("%s: no vendor arm64 variant among %v", name, ctx.ModuleVariantsForTests(name))
	return ""
}

func TestVexilctlVendorTree(t *testing.T) {
	root := os.Getenv("VEXILCTL_ROOT")
	if root == "" {
		t.Skip("VEXILCTL_ROOT not set")
	}
	result := _testAidl(t, vexilctlMockModules,
		withFiles(vexilctlFiles(t, root)),
		android.FixtureModifyProductVariables(func(v android.FixtureProductVariables) {
			v.DeviceVndkVersion = proptools.StringPtr("current")
			v.Platform_vndk_version = proptools.StringPtr("33")
		}),
	).RunTest(t)
	ctx := result.TestContext

	// The service package's NDK library as the tool links it.
	ndk := vendorVariant(t, ctx, "vendor.kest.hardware.vexil_svc-V1-ndk", "_shared")
	ctx.ModuleForTests("vendor.kest.hardware.vexil_svc-V1-ndk", ndk)

	// Every C++ module: the sources it compiles, its own flags, where it installs.
	wanted := map[string]struct {
		variant  string
		needs    []string // sources the module must compile
		installs []string // install locations under the product directory
	}{
		"vexilctl": {"", []string{"front/main.cpp", "front/RequestManager.cpp"},
			[]string{"vendor/bin/vexilctl"}},
		"vexilctl_unit_tests": {"", []string{"tests/unit/front_usage_test.cpp"},
			[]string{"data/nativetest64/vendor/vexilctl_unit_tests/vexilctl_unit_tests"}},
		"vexilctl_front_fuzzer":    {"_fuzzer", []string{"fuzz/front_fuzzer.cpp"}, nil},
		"vexilctl_response_fuzzer": {"_fuzzer", []string{"fuzz/response_fuzzer.cpp"}, nil},
	}
	var modules []vexilctlModule
	names := make([]string, 0, len(wanted))
	for name := range wanted {
		names = append(names, name)
	}
	sort.Strings(names)
	for _, name := range names {
		want := wanted[name]
		variant := vendorVariant(t, ctx, name, want.variant)
		m := ctx.ModuleForTests(name, variant)
		module := vexilctlModule{Name: name, Variant: variant}
		for _, out := range m.AllOutputs() {
			if !strings.HasSuffix(out, ".o") || !strings.Contains(out, "/obj/") {
				continue
			}
			params := m.Output(out)
			if params.Input == nil {
				continue
			}
			src := params.Input.String()
			if !strings.HasPrefix(src, vexilctlDir+"/") {
				continue
			}
			module.Srcs = append(module.Srcs, strings.TrimPrefix(src, vexilctlDir+"/"))
			if module.Cflags == nil {
				module.Cflags = ownFlags(params.Args["cFlags"])
				module.Cppflags = ownFlags(params.Args["cppFlags"])
			}
		}
		sort.Strings(module.Srcs)
		for _, need := range want.needs {
			if !android.InList(need, module.Srcs) {
				t.Errorf("%s does not compile %s (compiles %v)", name, need, module.Srcs)
			}
		}
		for _, file := range m.Module().FilesToInstall() {
			module.Installs = append(module.Installs, android.NormalizePathForTesting(file))
		}
		for _, install := range want.installs {
			path := "target/product/test_device/" + install
			if !android.InList(path, module.Installs) {
				t.Errorf("%s is not installed as /%s (installs %v)", name, install, module.Installs)
			}
		}
		modules = append(modules, module)
		if name == "vexilctl_unit_tests" {
			checkGoldenData(t, ctx, m, module)
		}
	}

	if out := os.Getenv("VEXILCTL_MODULES"); out != "" {
		data, _ := json.MarshalIndent(modules, "", "  ")
		if err := os.WriteFile(out, data, 0o644); err != nil {
			t.Fatal(err)
		}
	}
}

// The flags a module gives itself: Soong's own come in as ${config.*} variables, the include
// paths as -I, both left to the compile step.
func ownFlags(args string) []string {
	var own []string
	for _, f := range strings.Fields(args) {
		if !strings.HasPrefix(f, "${") && !strings.HasPrefix(f, "-I") && !strings.HasPrefix(f, "-isystem") {
			own = append(own, f)
		}
	}
	return own
}

// Tradefed runs a gtest from /, and the cc_test's data is installed beside the binary: the golden
// directory the unit tests are compiled with must be where the golden files land.
func checkGoldenData(t *testing.T, ctx *android.TestContext, m android.TestingModule, module vexilctlModule) {
	golden := ""
	for _, f := range module.Cflags {
		if f = strings.Trim(f, "'"); strings.HasPrefix(f, "-DGOLDEN_DIR=") {
			golden = strings.Trim(strings.TrimPrefix(f, "-DGOLDEN_DIR="), `"`)
		}
	}
	if !filepath.IsAbs(golden) {
		golden = filepath.Join("/", golden)
	}
	installDir := "/" + filepath.Dir(strings.TrimPrefix(module.Installs[0], "target/product/test_device/"))
	entries := android.AndroidMkEntriesForTest(t, ctx, m.Module())
	data := entries[0].EntryMap["LOCAL_TEST_DATA"]
	if len(data) == 0 {
		t.Errorf("vexilctl_unit_tests installs no golden files")
	}
	for _, d := range data {
		parts := strings.Split(d, ":") // source prefix, path relative to the module, install dir
		installed := filepath.Join(installDir, parts[1])
		if filepath.Dir(installed) != golden {
			t.Errorf("vexilctl_unit_tests reads its golden files from %s (GOLDEN_DIR run from /), "+
				"but %s is installed as %s", golden, parts[1], installed)
		}
	}
}
