// Android 13's runtime as a vendor program loads it, analysed by Soong from the tree's own
// Android.bp files on the same fixture as the project (vexilctl_blueprint_test.go): the dynamic
// linker, bionic, liblog, libvndksupport (system side), libc++, libcutils, libutils and libbase
// (the VNDK's vendor variants) and everything they link. Their build actions go to
// VEXILCTL_RUNTIME (runtime.json) for soong_ninja.py's runtime step.
package aidl

import (
	"encoding/json"
	"os"
	"path/filepath"
	"sort"
	"strings"
	"testing"

	"android/soong/android"
	"github.com/google/blueprint"
	"github.com/google/blueprint/parser"
	"github.com/google/blueprint/proptools"
)

// The runtime's Android.bp files, read whole: every module of a type that builds device code.
var runtimeFiles = []string{
	"bionic/libc/Android.bp",
	"bionic/libc/async_safe/Android.bp",
	"bionic/libc/system_properties/Android.bp",
	"bionic/libc/tools/Android.bp",
	"bionic/libdl/Android.bp",
	"bionic/libm/Android.bp",
	"bionic/linker/Android.bp",
	"external/arm-optimized-routines/Android.bp",
	"external/gwp_asan/Android.bp",
	"external/jemalloc_new/Android.bp",
	"external/libcxx/Android.bp",
	"external/libcxxabi/Android.bp",
	"external/zlib/Android.bp",
	"system/core/libcutils/Android.bp",
	"system/core/libutils/Android.bp",
	"system/core/libvndksupport/Android.bp",
	"system/core/property_service/libpropertyinfoparser/Android.bp",
	"system/libbase/Android.bp",
	"system/libziparchive/Android.bp",
	"system/logging/liblog/Android.bp",
}

// The projects of those files, whose other files the fixture's tree holds (the globs of srcs
// need them; their contents are not read).
var runtimeProjects = []string{"bionic", "external/arm-optimized-routines", "external/gwp_asan",
	"external/jemalloc_new", "external/libcxx", "external/libcxxabi", "external/zlib",
	"system/core", "system/libbase", "system/libziparchive", "system/logging"}

// Module types that build the runtime; tests, benchmarks, fuzzers, host tools and the NDK's
// packaging are left out.
var runtimeModuleTypes = []string{"cc_binary", "cc_defaults", "cc_genrule", "cc_library",
	"cc_library_headers", "cc_library_shared", "cc_library_static", "cc_object", "filegroup",
	"genrule"}

// Variants the fixture's toolchain modules do not have, which the device's runtime does not use.
var runtimeDroppedProperties = []string{"host_supported", "ramdisk_available",
	"vendor_ramdisk_available", "recovery_available", "native_bridge_supported"}

// What the runtime links that is not in the tree subset, declared as the tree declares it.
var runtimeMocks = map[string]string{
	// bionic/tools/Android.bp (only the script itself is in the subset).
	"bionic/tools/Android.bp": `
filegroup {
	name: "bionic-generate-version-script",
	srcs: ["generate-version-script.py"],
}`,
	// The clang prebuilts' LLVM libunwind as libc.so links it whole, its symbols exported (the
	// global --exclude-libs=libunwind.a hides those of libunwind.a).
	"prebuilts/clang/host/linux-x86/Android.bp": `
cc_prebuilt_library_static {
	name: "libunwind-exported",
	defaults: ["toolchain_libs_defaults"],
	srcs: ["libunwind-exported.a"],
}`,
	// external/fmtlib: libbase links it whole, and nothing built here calls it.
	"external/fmtlib/Android.bp": `
cc_library_static {
	name: "fmtlib",
	defaults: ["vexilctl_platform"],
	vndk: {
		enabled: true,
		support_system_process: true,
	},
	stl: "none",
}
cc_library_headers {
	name: "fmtlib_headers",
	defaults: ["vexilctl_platform"],
}`,
	// The binder NDK: the host rig's transport compiled as libbinder_ndk, declared as the tree
	// declares the real one (LLNDK, exported headers, version script), from the project's
	// host/platform sources. It implements part of the NDK: the version script exports what it
	// defines (--undefined-version after the global --no-undefined-version).
	"frameworks/native/libs/binder/ndk/Android.bp": `
cc_library {
	name: "libbinder_ndk",
	llndk: {
		symbol_file: "libbinder_ndk.map.txt",
	},
	export_include_dirs: ["include_cpp", "include_ndk", "include_platform"],
	cflags: ["-Wall", "-Wextra", "-Werror"],
	srcs: [":vexilctl_host_binder_ndk"],
	include_dirs: ["` + vexilctlDir + `"],
	ldflags: ["-Wl,--undefined-version"],
	target: {
		linux: {
			version_script: "libbinder_ndk.map.txt",
		},
	},
	stubs: {
		symbol_file: "libbinder_ndk.map.txt",
		versions: ["29", "30"],
	},
}`,
	// The lists of LLNDK, VNDK-SP, VNDK-core and VNDK-private libraries that the device's linker
	// configuration is written from (build/make/target/product/gsi/Android.bp).
	"build/make/target/product/gsi/Android.bp": `
llndk_libraries_txt { name: "llndk.libraries.txt" }
vndksp_libraries_txt { name: "vndksp.libraries.txt" }
vndkcore_libraries_txt { name: "vndkcore.libraries.txt" }
vndkprivate_libraries_txt { name: "vndkprivate.libraries.txt" }`,
	vexilctlDir + "/host/platform/Android.bp": `
filegroup {
	name: "vexilctl_host_binder_ndk",
	srcs: ["src/binder/*.cpp", "src/local_socket.cpp"],
}`,
}

// Edits of tree modules that link what the subset lacks.
func editRuntimeModule(path string, m *parser.Module) {
	// debuggerd's fallback handler (system/core/debuggerd) is not in the tree: the linker links
	// the stub that its linux_bionic build links instead.
	if path == "bionic/linker/Android.bp" && moduleName(m) == "linker" {
		target, _ := m.GetProperty("target")
		for _, os := range target.Value.(*parser.Map).Properties {
			if os.Name == "android" {
				android := os.Value.(*parser.Map)
				android.RemoveProperty("srcs")
				libs, _ := android.GetProperty("static_libs")
				list := libs.Value.(*parser.List)
				var kept []parser.Expression
				for _, v := range list.Values {
					if v.(*parser.String).Value != "libdebuggerd_handler_fallback" {
						kept = append(kept, v)
					}
				}
				list.Values = append(kept, &parser.String{Value: "liblinker_debuggerd_stub"})
			}
		}
	}
}

// The runtime's modules and everything beneath them, as files of the fixture's tree: the
// Android.bp files filtered as above, the mocks, and the other files of their projects.
func runtimePlatform(t *testing.T, aosp string) android.FixturePreparer {
	files := android.MockFS{}
	for _, path := range runtimeFiles {
		text, err := os.ReadFile(filepath.Join(aosp, path))
		if err != nil {
			t.Fatal(err)
		}
		files[path] = []byte(selectModules(t, path, text, func(m *parser.Module) bool {
			if !android.InList(m.Type, runtimeModuleTypes) {
				return false
			}
			for _, p := range runtimeDroppedProperties {
				m.RemoveProperty(p)
			}
			editRuntimeModule(path, m)
			return true
		}))
	}
	for _, project := range runtimeProjects {
		top := filepath.Join(aosp, project)
		err := filepath.Walk(top, func(p string, info os.FileInfo, err error) error {
			if err == nil && !info.IsDir() && info.Name() != "Android.bp" {
				rel, _ := filepath.Rel(aosp, p)
				files[rel] = nil
			}
			return err
		})
		if err != nil {
			t.Fatal(err)
		}
	}
	for path, text := range runtimeMocks {
		files[path] = []byte(text)
	}
	// The messages the aidl_interface modules' API checks print, which the fixture's tree lacks
	// (a missing file is a missing dependency here).
	messages, _ := filepath.Glob(filepath.Join(aosp, "system/tools/aidl/build/message_check_*.txt"))
	for _, path := range messages {
		rel, _ := filepath.Rel(aosp, path)
		files[rel] = nil
	}
	// system/core/include, in every platform module's include path, is a directory of links to
	// the libraries' headers in a checkout; the runtime's sources read two of them.
	for link, target := range map[string]string{"utils": "libutils/include/utils",
		"system": "libsystem/include/system"} {
		for path := range files {
			if rel := strings.TrimPrefix(path, "system/core/"+target+"/"); rel != path {
				files["system/core/include/"+link+"/"+rel] = nil
			}
		}
	}
	return android.GroupFixturePreparers(
		files.AddToFixture(),
		// A full-Treble device, as every device launched since Android 8 is (bionic's popen then
		// runs /vendor/bin/sh for a program under /vendor).
		android.FixtureModifyProductVariables(func(v android.FixtureProductVariables) {
			v.Treble_linker_namespaces = proptools.BoolPtr(true)
		}),
		// Modules of the whole files that the runtime never builds may name what the subset
		// lacks; a module the runtime builds may not (runtimeClosure fails on it).
		android.PrepareForTestWithAllowMissingDependencies,
	)
}

// The runtime a vendor binary loads: the system side (in its own namespace on a device) and the
// VNDK libraries, built as their vendor variants; and the project's vendor modules.
var (
	runtimeSystemModules = []string{"linker", "ld-android", "libc", "libm", "libdl",
		"libdl_android", "liblog", "libvndksupport", "libbinder_ndk", "libc++"}
	runtimeVndkModules   = []string{"libc++", "libcutils", "libutils", "libbase"}
	runtimeVendorModules = []string{"vexilctl", "vexilctl_unit_tests",
		"vendor.kest.hardware.vexil_svc-V1-ndk"}
)

// runtimeModule is one library or binary of the image: the file its link writes (unstripped),
// the file its strip step writes, where Soong installs it, and its test data (installed path
// relative to the module's directory, to source path).
type runtimeModule struct {
	Module   string
	Variant  string
	Linked   string
	Stripped string
	Installs []string
	Data     map[string]string `json:",omitempty"`
}

func runtimeVariant(t *testing.T, ctx *android.TestContext, name, prefix string) string {
	variants := ctx.ModuleVariantsForTests(name)
	for _, suffix := range []string{"_shared", ""} {
		for _, v := range variants {
			if v == prefix+"_arm64_armv8-a"+suffix {
				return v
			}
		}
	}
	t.Fatalf("%s: no %s arm64 variant among %v", name, prefix, variants)
	return ""
}

// checkResolved fails the test for each module variant beneath the arm64 ones of roots (arm64,
// or of no architecture: genrules) whose build Soong turned into an error: one that depends on
// what neither the tree nor the fixture has (allowed for the modules of the runtime's whole files
// that nothing here builds).
func checkResolved(t *testing.T, ctx *android.TestContext, roots []blueprint.Module) {
	seen := map[blueprint.Module]bool{}
	var visit func(m blueprint.Module)
	visit = func(m blueprint.Module) {
		variant := ctx.ModuleSubDir(m)
		if seen[m] || variant != "" && !strings.Contains(variant, "_arm64_") {
			return
		}
		seen[m] = true
		name := ctx.ModuleName(m)
		tm := ctx.ModuleForTests(name, variant)
		for _, out := range tm.AllOutputs() {
			if params := tm.Output(out); params.Rule == android.ErrorRule {
				t.Errorf("%s (%s): %s", name, variant, params.Args["error"])
				return
			}
		}
		ctx.VisitDirectDeps(m, visit)
	}
	for _, m := range roots {
		if strings.Contains(ctx.ModuleSubDir(m), "_arm64_") {
			visit(m)
		}
	}
}

// The project's modules, every variant (checkResolved takes the arm64 ones).
func projectModules(ctx *android.TestContext) []blueprint.Module {
	var modules []blueprint.Module
	ctx.VisitAllModules(func(m blueprint.Module) {
		if dir := ctx.ModuleDir(m); dir == vexilctlDir || strings.HasPrefix(dir, vexilctlDir+"/") {
			modules = append(modules, m)
		}
	})
	return modules
}

// The build actions of the runtime modules and of everything they build from, each module
// variant once.
func runtimeClosure(t *testing.T, ctx *android.TestContext,
	roots []blueprint.Module) []vexilctlAction {
	var actions []vexilctlAction
	seen := map[blueprint.Module]bool{}
	var visit func(m blueprint.Module, family string)
	visit = func(m blueprint.Module, family string) {
		variant := ctx.ModuleSubDir(m)
		if seen[m] || (variant != "" && !strings.HasPrefix(variant, family)) {
			return
		}
		seen[m] = true
		name := ctx.ModuleName(m)
		tm := ctx.ModuleForTests(name, variant)
		// What an action must wait for (generated headers) is as much its input as its sources.
		for _, action := range moduleActions(tm, name, variant) {
			action.Implicits = append(action.Implicits, tm.Output(action.Outputs[0]).OrderOnly.Strings()...)
			actions = append(actions, action)
		}
		actions = append(actions, runtimeOnlyActions(t, tm, name, variant)...)
		ctx.VisitDirectDeps(m, func(dep blueprint.Module) { visit(dep, family) })
	}
	for _, m := range roots {
		family := ctx.ModuleSubDir(m)
		family = family[:strings.Index(family, "_arm64")]
		visit(m, family)
	}
	return actions
}

// The actions of a module variant that moduleActions leaves out: genrules, which run their
// commands in sbox (the action carries sbox's command line and its manifest), archives with
// libraries linked whole, the prefixing of the linker's symbols, and bionic's headers as the
// versioner gives them to vendor code.
func runtimeOnlyActions(t *testing.T, m android.TestingModule,
	name, variant string) []vexilctlAction {
	var actions []vexilctlAction
	seen := map[string]bool{}
	for _, out := range m.AllOutputs() {
		params := m.Output(out)
		if params.Output == nil || params.Rule == nil {
			continue
		}
		first := params.Output.String()
		command := params.RuleParams.Command
		rule := params.Rule.String()
		rule = rule[strings.LastIndex(rule, ".")+1:]
		i := strings.Index(command, " --manifest ")
		sbox := strings.Contains(command, "/sbox ") && i >= 0
		kept := []string{"prefixSymbols", "arWithLibs", "versionBionicHeaders"}
		if seen[first] || !(android.InList(rule, kept) || sbox) {
			continue
		}
		seen[first] = true
		action := vexilctlAction{Module: name, Variant: variant, Rule: rule, Args: params.Args}
		if sbox {
			manifest := strings.Fields(command[i+len(" --manifest "):])[0]
			action.Rule = "sbox"
			action.Args = map[string]string{"command": command, "manifest": manifest,
				"content": android.ContentFromFileRuleForTests(t, m.Output(manifest))}
		}
		inputs := append(android.Paths{params.Input}, params.Inputs...)
		for _, p := range append(inputs, params.Implicits...) {
			if p != nil {
				action.Inputs = append(action.Inputs, p.String())
			}
		}
		for _, o := range append(android.WritablePaths{params.Output}, params.ImplicitOutputs...) {
			action.Outputs = append(action.Outputs, o.String())
		}
		actions = append(actions, action)
	}
	return actions
}

var testDataSeen = map[blueprint.Module][]string{}

// testData is a module's LOCAL_TEST_DATA ("source prefix:path relative to the module"), which
// Soong's cc modules give out once per module.
func testData(t *testing.T, ctx *android.TestContext, m blueprint.Module) []string {
	if _, done := testDataSeen[m]; !done {
		entries := android.AndroidMkEntriesForTest(t, ctx, m.(android.Module))
		testDataSeen[m] = entries[0].EntryMap["LOCAL_TEST_DATA"]
	}
	return testDataSeen[m]
}

// writeRuntime writes the runtime's build actions and modules to VEXILCTL_RUNTIME.
// The project's modules and the runtime's are checked for what the tree lacks whether or not
// they are written.
func writeRuntime(t *testing.T, ctx *android.TestContext) {
	var roots []blueprint.Module
	var modules []runtimeModule
	for family, names := range map[string][]string{"android": runtimeSystemModules,
		"android_vendor.33": append(runtimeVndkModules, runtimeVendorModules...)} {
		for _, name := range names {
			variant := runtimeVariant(t, ctx, name, family)
			m := ctx.ModuleForTests(name, variant)
			if !android.InList(name, runtimeVendorModules) {
				roots = append(roots, m.Module())
			}
			module := runtimeModule{Module: name, Variant: variant}
			// What the module's strip step reads: the file as linked (and, for the linker, with
			// its symbols prefixed).
			for _, action := range moduleActions(m, name, variant) {
				if action.Rule == "strip" {
					module.Linked, module.Stripped = action.Inputs[0], action.Outputs[0]
				}
			}
			for _, file := range m.Module().FilesToInstall() {
				module.Installs = append(module.Installs, android.NormalizePathForTesting(file))
			}
			for _, d := range testData(t, ctx, m.Module()) {
				parts := strings.Split(d, ":") // source prefix, path relative to the module
				if module.Data == nil {
					module.Data = map[string]string{}
				}
				module.Data[parts[1]] = filepath.Join(parts[0], parts[1])
			}
			modules = append(modules, module)
		}
	}
	checkResolved(t, ctx, append(roots, projectModules(ctx)...))
	out := os.Getenv("VEXILCTL_RUNTIME")
	if out == "" {
		return
	}
	sort.Slice(modules, func(i, j int) bool { return modules[i].Module < modules[j].Module })
	lists := map[string][]string{}
	for _, name := range []string{"llndk", "vndksp", "vndkcore", "vndkprivate"} {
		s := ctx.SingletonForTests(name + "_libraries_txt")
		content := android.ContentFromFileRuleForTests(t, s.Output(name+".libraries.33.txt"))
		lists[name] = strings.Fields(content)
	}
	data, _ := json.MarshalIndent(struct {
		Modules   []runtimeModule
		Libraries map[string][]string
		Actions   []vexilctlAction
	}{modules, lists, runtimeClosure(t, ctx, roots)}, "", " ")
	if err := os.WriteFile(out, data, 0o644); err != nil {
		t.Fatal(err)
	}
}
