// Soong's analysis of the vexilctl vendor tree, on Soong's own test fixture (the aidl_interface
// registration of aidl_test.go): the project's Android.bp files and sources are placed under
// vendor/kest/vexilctl in the fixture's mock tree, beside the platform libraries it builds
// against, declared as the Android tree declares them. Copied into system/tools/aidl/build by
// scripts/device_build/soong.sh, which passes the project root in VEXILCTL_ROOT, the Android tree
// in VEXILCTL_AOSP, and reads the build actions this test writes to VEXILCTL_ACTIONS.
package aidl

import (
	"encoding/json"
	"os"
	"path/filepath"
	"regexp"
	"sort"
	"strings"
	"testing"

	"android/soong/android"
	"android/soong/cc"
	"github.com/google/blueprint"
	"github.com/google/blueprint/parser"
	"github.com/google/blueprint/proptools"
)

const vexilctlDir = "vendor/kest/vexilctl"

// Platform modules taken by name from the tree's own Android.bp files (the runtime's files are
// read whole: runtime_blueprint_test.go).
var vexilctlTreeModules = map[string][]string{
	"external/googletest/googletest/Android.bp": {"libgtest_defaults", "libgtest_host_defaults",
		"libgtest", "libgtest_main", "libgtest_prod_headers"},
}

// Platform modules whose Android.bp is not in the tree subset, declared as the tree declares
// them as far as vendor code sees them (exported headers, LLNDK or VNDK), available wherever the
// tree's modules that use them are.
var vexilctlPlatformMocks = map[string]string{
	"system/core/libprocessgroup/Android.bp": headerLibrary("libprocessgroup_headers"),
	"system/core/libsystem/Android.bp":       headerLibrary("libsystem_headers"),
	"system/core/libbacktrace/Android.bp":    headerLibrary("libbacktrace_headers"),
	"defaults/vexilctl/Android.bp": `
cc_defaults {
	name: "vexilctl_platform",
	native_bridge_supported: true,
	product_available: true,
	recovery_available: true,
	vendor_available: true,
	min_sdk_version: "29",
	apex_available: ["//apex_available:platform", "//apex_available:anyapex"],
}`,
}

func headerLibrary(name string) string {
	return `cc_library_headers { name: "` + name +
		`", defaults: ["vexilctl_platform"], export_include_dirs: ["include"] }`
}

// The fixture's own C++ mocks that the declarations above replace (libbinder_ndk's NDK stub
// stays).
var vexilctlReplacedMocks = map[string][]string{
	"Android.bp": {"libbinder_ndk", "libcutils", "liblog", "libutils"},
	cc.DefaultCcCommonTestModulesDir + "Android.bp": {"libc", "libm", "libdl",
		"libc++", "libc++_static", "libc++demangle", "crt_defaults", "crtbrand", "crtbegin_so",
		"crtend_so", "crtbegin_static", "crtbegin_dynamic", "crtend_android",
		"note_memtag_heap_async", "note_memtag_heap_sync"},
}

// What the project's build files use that neither the tree subset nor the fixture has.
const vexilctlMockModules = `
cc_library {
	name: "libclang_rt.fuzzer",
	vendor_available: true,
}
`

func moduleName(m *parser.Module) string {
	if p, ok := m.GetProperty("name"); ok {
		if s, ok := p.Value.(*parser.String); ok {
			return s.Value
		}
	}
	return ""
}

func setProperty(m *parser.Module, name string, value parser.Expression) {
	m.RemoveProperty(name)
	m.Properties = append(m.Properties, &parser.Property{Name: name, Value: value})
}

// selectModules rewrites a Blueprint file: its variables, and the modules that keep(name) accepts.
func selectModules(t *testing.T, path string, text []byte, keep func(m *parser.Module) bool) string {
	file, errs := parser.Parse(path, strings.NewReader(string(text)), parser.NewScope(nil))
	if len(errs) > 0 {
		t.Fatalf("%s: %v", path, errs)
	}
	var defs []parser.Definition
	for _, def := range file.Defs {
		if m, ok := def.(*parser.Module); !ok || keep(m) {
			defs = append(defs, def)
		}
	}
	out, err := parser.Print(&parser.File{Name: path, Defs: defs})
	if err != nil {
		t.Fatal(err)
	}
	return string(out)
}

// The platform libraries as the tree declares them, replacing the fixture's mocks.
func vexilctlPlatform(t *testing.T, aosp string) android.FixturePreparer {
	files := map[string]string{}
	for path, names := range vexilctlTreeModules {
		text, err := os.ReadFile(filepath.Join(aosp, path))
		if err != nil {
			t.Fatal(err)
		}
		files[path] = selectModules(t, path, text, func(m *parser.Module) bool {
			// The fixture's toolchain libraries have no host or ramdisk variants, which vendor
			// code does not use (bionic's crt objects and headers need none).
			if !strings.HasPrefix(path, "bionic/") {
				for _, p := range []string{"host_supported", "ramdisk_available", "vendor_ramdisk_available"} {
					m.RemoveProperty(p)
				}
			}
			return android.InList(moduleName(m), names)
		})
	}
	for path, text := range vexilctlPlatformMocks {
		files[path] += text
	}
	var preparers []android.FixturePreparer
	for path, text := range files {
		preparers = append(preparers, android.FixtureAddTextFile(path, text))
	}
	preparers = append(preparers, android.FixtureModifyMockFS(func(fs android.MockFS) {
		for path, names := range vexilctlReplacedMocks {
			fs[path] = []byte(selectModules(t, path, fs[path], func(m *parser.Module) bool {
				return !strings.HasPrefix(m.Type, "cc_") || !android.InList(moduleName(m), names)
			}))
		}
		// The fixture's toolchain prebuilts all name their directory as their file: each gets a
		// file of its own, named as the clang prebuilts name them for arm64.
		path := cc.DefaultCcCommonTestModulesDir + "Android.bp"
		fs[path] = []byte(selectModules(t, path, fs[path], func(m *parser.Module) bool {
			name := moduleName(m)
			switch {
			case name == "toolchain_libs_defaults":
				m.RemoveProperty("srcs")
			case strings.HasPrefix(m.Type, "cc_prebuilt_library_"):
				file := name + ".so"
				if strings.HasSuffix(m.Type, "_static") {
					file = strings.TrimPrefix(name, "prebuilt_") + ".a"
					if strings.HasPrefix(name, "libclang_rt.") {
						file = name + "-aarch64-android.a"
					}
				}
				setProperty(m, "srcs", &parser.List{Values: []parser.Expression{&parser.String{Value: file}}})
			}
			return true
		}))
	}))
	return android.GroupFixturePreparers(preparers...)
}

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
			if skip[rel] || info.Name() == "__pycache__" { // Python's caches beside its scripts
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

// Soong's own flags reach the build actions as ${config.*} variables: a singleton evaluates them
// with the test's configuration.
var vexilctlPctx = android.NewPackageContext("android/soong/aidl/vexilctl")

func init() {
	vexilctlPctx.Import("android/soong/cc/config")
}

var (
	vexilctlVariable  = regexp.MustCompile(`\$\{config\.\w+\}`)
	vexilctlVariables = map[string]string{}
)

type vexilctlVariableSingleton struct{}

func (vexilctlVariableSingleton) GenerateBuildActions(ctx android.SingletonContext) {
	ctx.VisitAllModules(func(m android.Module) {
		if _, ok := m.(*cc.Module); !ok {
			return
		}
		for _, params := range m.BuildParamsForTests() {
			for _, arg := range params.Args {
				for _, name := range vexilctlVariable.FindAllString(arg, -1) {
					if _, done := vexilctlVariables[name]; done {
						continue
					}
					value, err := ctx.Eval(vexilctlPctx, name)
					if err != nil {
						ctx.Errorf("%s: %s", name, err)
					}
					vexilctlVariables[name] = value
				}
			}
		}
	})
}

// vexilctlAction is one build action of Soong's, its paths relative to the tree's root and its
// arguments with Soong's variables evaluated.
type vexilctlAction struct {
	Module    string
	Variant   string
	Rule      string
	Inputs    []string
	Implicits []string
	Outputs   []string
	Args      map[string]string
}

// The actions of a module variant that compile, archive, link or generate stubs.
func moduleActions(m android.TestingModule, name, variant string) []vexilctlAction {
	return ruleActions(m, name, variant, func(rule string) bool {
		return android.InList(rule, []string{"cc", "ar", "ld", "partialLd", "genStubSrc", "strip"})
	})
}

// The actions of a module variant whose rule keep accepts.
func ruleActions(m android.TestingModule, name, variant string, keep func(rule string) bool) []vexilctlAction {
	var actions []vexilctlAction
	seen := map[string]bool{}
	for _, out := range m.AllOutputs() {
		params := m.Output(out)
		rule := params.Rule.String()
		rule = rule[strings.LastIndex(rule, ".")+1:]
		var first string
		if params.Output != nil {
			first = params.Output.String()
		} else {
			first = params.Outputs[0].String()
		}
		if seen[first] || !keep(rule) {
			continue
		}
		seen[first] = true
		action := vexilctlAction{Module: name, Variant: variant, Rule: rule, Args: map[string]string{}}
		paths := func(one android.Path, many android.Paths) []string {
			list := many.Strings()
			if one != nil {
				list = append([]string{one.String()}, list...)
			}
			return list
		}
		action.Inputs = paths(params.Input, params.Inputs)
		action.Implicits = paths(params.Implicit, params.Implicits)
		for _, o := range append(android.WritablePaths{params.Output}, params.Outputs...) {
			if o != nil {
				action.Outputs = append(action.Outputs, o.String())
			}
		}
		for key, arg := range params.Args {
			action.Args[key] = vexilctlVariable.ReplaceAllStringFunc(arg, func(v string) string {
				return vexilctlVariables[v]
			})
		}
		actions = append(actions, action)
	}
	return actions
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

// The build actions of module variants and of everything they depend on for the device.
func closureActions(ctx *android.TestContext, roots []blueprint.Module) []vexilctlAction {
	var actions []vexilctlAction
	seen := map[blueprint.Module]bool{}
	var visit func(m blueprint.Module)
	visit = func(m blueprint.Module) {
		variant := ctx.ModuleSubDir(m)
		if seen[m] || !strings.HasPrefix(variant, "android_vendor") || !strings.Contains(variant, "arm64") {
			return
		}
		seen[m] = true
		name := ctx.ModuleName(m)
		actions = append(actions, moduleActions(ctx.ModuleForTests(name, variant), name, variant)...)
		ctx.VisitDirectDeps(m, visit)
	}
	for _, m := range roots {
		visit(m)
	}
	return actions
}

// What the test checks of a module of the project (each cc_fuzz at least for its variant).
type vexilctlWanted struct {
	variant  string
	needs    []string // sources the module must compile
	installs []string // install locations under the product directory
}

func TestVexilctlVendorTree(t *testing.T) {
	root, aosp := os.Getenv("VEXILCTL_ROOT"), os.Getenv("VEXILCTL_AOSP")
	if root == "" || aosp == "" {
		t.Skip("VEXILCTL_ROOT or VEXILCTL_AOSP not set")
	}
	result := _testAidl(t, vexilctlMockModules,
		withFiles(vexilctlFiles(t, root)),
		vexilctlPlatform(t, aosp),
		runtimePlatform(t, aosp),
		// product_variables (crtbrand's PLATFORM_SDK_VERSION).
		android.PrepareForTestWithVariables,
		// An Android 13 release device: its VNDK version is the platform's, 33.
		android.FixtureModifyProductVariables(func(v android.FixtureProductVariables) {
			v.Platform_sdk_version = intPtr(33)
			v.Platform_sdk_codename = proptools.StringPtr("REL")
			v.Platform_sdk_final = proptools.BoolPtr(true)
			v.Platform_version_active_codenames = []string{}
			v.DeviceVndkVersion = proptools.StringPtr("current")
			v.Platform_vndk_version = proptools.StringPtr("33")
		}),
		android.FixtureRegisterWithContext(func(ctx android.RegistrationContext) {
			ctx.RegisterSingletonType("vexilctl_variables", func() android.Singleton {
				return vexilctlVariableSingleton{}
			})
		}),
	).RunTest(t)
	ctx := result.TestContext

	wanted := map[string]vexilctlWanted{
		"vexilctl": {"", []string{"front/main.cpp", "front/RequestManager.cpp"},
			[]string{"vendor/bin/vexilctl"}},
		"vexilctl_unit_tests": {"", []string{"tests/unit/front_usage_test.cpp"},
			[]string{"data/nativetest64/vendor/vexilctl_unit_tests/vexilctl_unit_tests"}},
		"vexilctl_tool_fuzzer": {"_fuzzer", []string{"tests/fuzz/tool_fuzzer.cpp",
			"tests/fuzz/fuzzed_device.cpp"}, nil},
	}
	for _, name := range vexilctlFuzzers(ctx) {
		if _, known := wanted[name]; !known {
			wanted[name] = vexilctlWanted{variant: "_fuzzer"}
		}
	}
	names := make([]string, 0, len(wanted))
	for name := range wanted {
		names = append(names, name)
	}
	sort.Strings(names)
	var roots []blueprint.Module
	for _, name := range names {
		want := wanted[name]
		variant := vendorVariant(t, ctx, name, want.variant)
		m := ctx.ModuleForTests(name, variant)
		own := moduleActions(m, name, variant)
		roots = append(roots, m.Module())
		var srcs []string
		for _, action := range own {
			if action.Rule == "cc" && strings.HasPrefix(action.Inputs[0], vexilctlDir+"/") {
				srcs = append(srcs, strings.TrimPrefix(action.Inputs[0], vexilctlDir+"/"))
			}
		}
		for _, need := range want.needs {
			if !android.InList(need, srcs) {
				t.Errorf("%s does not compile %s (compiles %v)", name, need, srcs)
			}
		}
		var installs []string
		for _, file := range m.Module().FilesToInstall() {
			installs = append(installs, android.NormalizePathForTesting(file))
		}
		for _, install := range want.installs {
			path := "target/product/test_device/" + install
			if !android.InList(path, installs) {
				t.Errorf("%s is not installed as /%s (installs %v)", name, install, installs)
			}
		}
		if name == "vexilctl_unit_tests" {
			checkGoldenData(t, ctx, m, root, installs)
		}
	}

	writeRuntime(t, ctx)
	if out := os.Getenv("VEXILCTL_ACTIONS"); out != "" {
		data, _ := json.MarshalIndent(struct {
			ApiLevels map[string]int
			Actions   []vexilctlAction
			Aidl      []vexilctlAction
		}{android.GetApiLevelsMap(result.Config), closureActions(ctx, roots),
			vexilctlAidlActions(ctx)}, "", " ")
		if err := os.WriteFile(out, data, 0o644); err != nil {
			t.Fatal(err)
		}
	}
}

// Tradefed runs a gtest from /, and the cc_test's data is installed beside the binary: the golden
// directory the unit tests are compiled with must be where the golden files land.
func checkGoldenData(t *testing.T, ctx *android.TestContext, m android.TestingModule, root string,
	installs []string) {
	golden := ""
	for _, action := range moduleActions(m, "", "") {
		if action.Rule != "cc" {
			continue
		}
		for _, f := range strings.Fields(action.Args["cFlags"]) {
			if f = strings.Trim(f, "'"); strings.HasPrefix(f, "-DGOLDEN_DIR=") {
				golden = strings.Trim(strings.TrimPrefix(f, "-DGOLDEN_DIR="), `"`)
			}
		}
		break
	}
	if !filepath.IsAbs(golden) {
		golden = filepath.Join("/", golden)
	}
	installDir := "/" + filepath.Dir(strings.TrimPrefix(installs[0], "target/product/test_device/"))
	data := testData(t, ctx, m.Module())
	if len(data) == 0 {
		t.Errorf("vexilctl_unit_tests installs no golden files")
	}
	installed := map[string]bool{}
	for _, d := range data {
		parts := strings.Split(d, ":") // source prefix, path relative to the module, install dir
		file := filepath.Join(installDir, parts[1])
		rel, err := filepath.Rel(golden, file)
		if err != nil || strings.HasPrefix(rel, "..") {
			t.Errorf("vexilctl_unit_tests reads its golden files from %s (GOLDEN_DIR run from /), "+
				"but %s is installed as %s", golden, parts[1], file)
		}
		installed[rel] = true
	}
	checkGoldenFilesInstalled(t, root, installDir, golden, installed)
}

// What the unit tests read is the golden directory, subdirectories included: each of its files
// must be among the test's installed data.
func checkGoldenFilesInstalled(t *testing.T, root, installDir, golden string, installed map[string]bool) {
	dir, err := filepath.Rel(installDir, golden)
	if err != nil || strings.HasPrefix(dir, "..") {
		t.Errorf("vexilctl_unit_tests: GOLDEN_DIR %s is not under the test's install directory %s",
			golden, installDir)
		return
	}
	err = filepath.Walk(filepath.Join(root, dir), func(path string, info os.FileInfo, err error) error {
		if err != nil || info.IsDir() {
			return err
		}
		rel, _ := filepath.Rel(filepath.Join(root, dir), path)
		if !installed[rel] {
			t.Errorf("vexilctl_unit_tests does not install %s/%s, which its tests read from %s/%s: "+
				"its data in Android.bp must reach it (\"%s/*\" stops at the directory's own "+
				"files; \"%s/**/*\" takes subdirectories too)", dir, rel, golden, rel, dir, dir)
		}
		return nil
	})
	if err != nil {
		t.Errorf("vexilctl_unit_tests: %v", err)
	}
}

// Every cc_fuzz module of the project, as the analysis found them.
func vexilctlFuzzers(ctx *android.TestContext) []string {
	var names []string
	ctx.VisitAllModules(func(m blueprint.Module) {
		if ctx.ModuleType(m) == "cc_fuzz" && strings.HasPrefix(ctx.ModuleDir(m), vexilctlDir) &&
			!android.InList(ctx.ModuleName(m), names) {
			names = append(names, ctx.ModuleName(m))
		}
	})
	sort.Strings(names)
	return names
}

// The aidl compiler's actions for the project's aidl_interface modules: each backend's
// generation, the API dump and the API and hash checks, with the flags Soong gives them.
func vexilctlAidlActions(ctx *android.TestContext) []vexilctlAction {
	var actions []vexilctlAction
	ctx.VisitAllModules(func(m blueprint.Module) {
		if !strings.HasPrefix(ctx.ModuleDir(m), vexilctlDir) {
			return
		}
		name, variant := ctx.ModuleName(m), ctx.ModuleSubDir(m)
		actions = append(actions, ruleActions(ctx.ModuleForTests(name, variant), name, variant,
			func(rule string) bool {
				return android.InList(rule, []string{"aidlCppRule", "aidlDumpApiRule", "aidlCheckApiRule"})
			})...)
	})
	return actions
}
