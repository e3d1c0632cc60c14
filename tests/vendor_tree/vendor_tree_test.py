#!/usr/bin/env python3
"""scripts/check_vendor_tree.py against copies of the tree with one fault each: every fault fails
the check, and changes that leave the API alone pass."""

import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
CHECKER = ROOT / "scripts" / "check_vendor_tree.py"
PKG = "vendor/kest/hardware/vexil_svc"
API = "service/aidl/aidl_api/vendor.kest.hardware.vexil_svc"


def replace(path, old, new):
    def edit(tree: Path):
        text = (tree / path).read_text()
        assert old in text, f"{old!r} not in {path}"
        (tree / path).write_text(text.replace(old, new, 1))
    return edit


def append(path, text):
    return lambda tree: (tree / path).write_text((tree / path).read_text() + text)


# (name, edit, passes, a word the failure message holds)
CASES = [
    ("untouched tree", lambda tree: None, True, ""),
    ("comment added to a source", replace(f"service/aidl/{PKG}/MipiLogConfig.aidl",
                                          "String channel;", "/* band */ String channel; // x"),
     True, ""),
    ("source reformatted", replace(f"service/aidl/{PKG}/ISysLogControl.aidl",
                                   "int clearLogs();", "int\n    clearLogs (  ) ;"), True, ""),
    ("field added to a source", replace(f"service/aidl/{PKG}/MipiLogConfig.aidl",
                                        "String frequency;", "String frequency;\n    int extra;"),
     False, "MipiLogConfig.aidl differs"),
    ("operations reordered", replace(f"service/aidl/{PKG}/ISysLogControl.aidl",
                                     "int clearLogs();\n    void flushLogs();",
                                     "void flushLogs();\n    int clearLogs();"),
     False, "ISysLogControl.aidl differs"),
    ("enumerator value changed", replace(f"service/aidl/{PKG}/SubsystemType.aidl", "GNSS = 6",
                                         "GNSS = 7"), False, "SubsystemType.aidl differs"),
    ("argument direction changed", replace(f"service/aidl/{PKG}/ISysLogControl.aidl",
                                           "in MipiLogConfig config", "inout MipiLogConfig config"),
     False, "ISysLogControl.aidl differs"),
    ("source without dump", lambda tree: shutil.copy(
        tree / f"service/aidl/{PKG}/MipiLogConfig.aidl",
        tree / f"service/aidl/{PKG}/MipiLogConfig2.aidl"), False, "no dump of"),
    ("current dump edited", replace(f"{API}/current/{PKG}/StorageMedia.aidl", "EXTERNAL = 2",
                                    "EXTERNAL = 3"), False, "StorageMedia.aidl differs"),
    ("frozen dump edited", replace(f"{API}/1/{PKG}/StorageMedia.aidl", "EXTERNAL = 2,",
                                   "EXTERNAL = 2,\n  USB = 3,"), False, "StorageMedia.aidl"),
    ("dump left over", lambda tree: shutil.copy(
        tree / f"{API}/current/{PKG}/StorageMedia.aidl",
        tree / f"{API}/current/{PKG}/OldMedia.aidl"), False, "no such source"),
    ("version not declared", replace("service/aidl/Android.bp", 'version: "1"', 'version: "2"'),
     False, "declares versions"),
    ("unit tests not presubmit", replace("TEST_MAPPING", "presubmit", "postsubmit"), False,
     "not a presubmit test"),
    ("unknown test module", replace("TEST_MAPPING", '"vexilctl_unit_tests"',
                                    '"vexilctl_unit_tests"\n    },\n    {\n      "name": "nosuch"'),
     False, "nosuch is no module"),
    ("TEST_MAPPING not JSON", append("TEST_MAPPING", "}"), False, "TEST_MAPPING"),
    ("bpfmt hook off", replace("PREUPLOAD.cfg", "bpfmt = true", "bpfmt = false"), False,
     "bpfmt is not on"),
    ("clang-format hook gone", replace("PREUPLOAD.cfg", "clang_format = true\n", ""), False,
     "clang_format is not on"),
]


def copy_tree(target: Path):
    shutil.copytree(ROOT / "service" / "aidl", target / "service" / "aidl")
    for name in ("Android.bp", "TEST_MAPPING", "PREUPLOAD.cfg"):
        shutil.copy(ROOT / name, target / name)


class VendorTreeCheck(unittest.TestCase):
    def test_faults(self):
        for name, edit, passes, message in CASES:
            with self.subTest(name), tempfile.TemporaryDirectory() as tmp:
                tree = Path(tmp)
                copy_tree(tree)
                edit(tree)
                done = subprocess.run([sys.executable, str(CHECKER), "--root", str(tree)],
                                      capture_output=True, text=True)
                self.assertEqual(done.returncode == 0, passes, done.stderr)
                self.assertIn(message, done.stderr)

    def test_update_api(self):
        """--update-api rewrites current/ from a changed source; the frozen version then differs
        from the sources, which the check reports."""
        with tempfile.TemporaryDirectory() as tmp:
            tree = Path(tmp)
            copy_tree(tree)
            replace(f"service/aidl/{PKG}/MipiLogConfig.aidl", "String frequency;",
                    "String frequency;\n    int extra;")(tree)
            done = subprocess.run([sys.executable, str(CHECKER), "--root", str(tree),
                                   "--update-api"], capture_output=True, text=True)
            self.assertIn("int extra;",
                          (tree / API / "current" / PKG / "MipiLogConfig.aidl").read_text())
            self.assertNotIn("current/", done.stderr)
            self.assertIn(f"{API}/1/{PKG}/MipiLogConfig.aidl differs", done.stderr)


if __name__ == "__main__":
    unittest.main()
