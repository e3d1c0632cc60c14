#!/usr/bin/env python3
"""tools/aidl_ndk_gen.py refuses what it does not understand, naming the file and line, and writes
nothing then: one row for each kind of refusal (type, annotation, declaration, syntax, file layout,
stability). What it writes for the service's own interface is compared with the Android aidl
compiler's output by the device-build check."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

GENERATOR = Path(__file__).resolve().parents[2] / "tools" / "aidl_ndk_gen.py"

# (what, file under p/q/, its text, message after "<file>:")
CASES = [
    ("unknown type", "IFoo.aidl",
     "package p.q;\ninterface IFoo {\n    void f();\n    int g(in Missing m);\n}\n",
     "4: error: unknown type Missing"),
    ("unsupported annotation", "IFoo.aidl",
     "package p.q;\ninterface IFoo {\n    @nullable String f();\n}\n",
     "3: error: annotation @nullable is not supported"),
    ("array field", "Rec.aidl", "package p.q;\nparcelable Rec {\n    int[] values;\n}\n",
     "3: error: arrays and generic types are not supported"),
    ("oneway method", "IFoo.aidl", "package p.q;\ninterface IFoo {\n oneway void f();\n}\n",
     "3: error: oneway declarations are not supported"),
    ("missing semicolon", "IFoo.aidl",
     "package p.q;\ninterface IFoo {\n  void f()\n  void g();\n}\n",
     "4: error: expected ';', found 'void'"),
    ("unterminated comment", "IFoo.aidl", "package p.q;\n/** doc\ninterface IFoo {}\n",
     "2: error: unterminated comment"),
    ("file named otherwise", "Other.aidl", "package p.q;\nparcelable Rec { int a; }\n",
     "2: error: parcelable p.q.Rec must be declared in p/q/Rec.aidl"),
    ("unstable record in a stable interface", "IFoo.aidl",
     "package p.q;\n@VintfStability\ninterface IFoo {\n  void f(in Plain p);\n}\n",
     "4: error: Plain must be @VintfStability to be used here"),
]


class Refusals(unittest.TestCase):
    def test_refusals(self):
        for what, name, text, message in CASES:
            with self.subTest(what), tempfile.TemporaryDirectory() as tmp:
                package = Path(tmp) / "p" / "q"
                package.mkdir(parents=True)
                (package / "Rec2.aidl").write_text("package p.q;\nparcelable Rec2 { int a; }\n")
                (package / "Plain.aidl").write_text("package p.q;\nparcelable Plain { int a; }\n")
                source = package / name
                source.write_text(text)
                files = [str(package / f) for f in ("Rec2.aidl", "Plain.aidl", name)]
                done = subprocess.run([sys.executable, str(GENERATOR), "-I", tmp, "-o",
                                       f"{tmp}/out", *files], capture_output=True, text=True)
                self.assertEqual(done.returncode, 1)
                self.assertEqual(done.stdout + done.stderr, f"{source}:{message}\n")
                self.assertFalse((Path(tmp) / "out").exists(), "nothing is written on a refusal")


if __name__ == "__main__":
    unittest.main()
