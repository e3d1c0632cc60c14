#!/usr/bin/env python3
"""Compares the host generator's NDK headers with the aidl compiler's: every header the host
generator writes must declare what the real one declares, token for token. Comments, #include
lines, other preprocessor lines, inline function bodies and layout aside."""

import difflib
import re
import sys
from pathlib import Path

COMMENTS = re.compile(r"/\*.*?\*/|//[^\n]*", re.S)
TOKEN = re.compile(r"\w+|\S")


REOPENED = re.compile(r" \} namespace \w+ \{ ")
BODY_AFTER = {")", "const", "override", "final"}


def declarations(path: Path) -> list:
    """The header's declarations, one a line: a function defined inline reads as declared."""
    text = COMMENTS.sub(" ", path.read_text())
    text = "\n".join(line for line in text.splitlines() if not line.lstrip().startswith("#"))
    tokens = TOKEN.findall(text)
    line, i = [], 0
    while i < len(tokens):
        token = tokens[i]
        if token == ":" and line and line[-1] == ")" and i + 1 < len(tokens) and tokens[i + 1] != ":":
            while tokens[i] != "{":  # a constructor's initializer list
                i += 1
            token = "{"
        if token == "{" and line and line[-1] in BODY_AFTER:
            depth = 0
            while True:
                depth += {"{": 1, "}": -1}.get(tokens[i], 0)
                i += 1
                if depth == 0:
                    break
            token = ";"
            i -= 1
        line.append(token)
        i += 1
    # A namespace closed and opened again at once is one namespace.
    text, previous = " ".join(line), None
    while text != previous:
        previous, text = text, REOPENED.sub(" ", text)
    return re.sub(r"([;{}]) ", "\\1\n", text).splitlines()


def main() -> int:
    real, host = Path(sys.argv[1]), Path(sys.argv[2])
    headers = sorted(p.relative_to(host) for p in host.rglob("*.h"))
    if not headers:
        print(f"compare_ndk: no headers under {host}", file=sys.stderr)
        return 1
    failed = 0
    for rel in headers:
        if not (real / rel).exists():
            print(f"compare_ndk: {rel}: the aidl compiler writes no such header", file=sys.stderr)
            failed += 1
            continue
        a, b = declarations(real / rel), declarations(host / rel)
        if a != b:
            diff = difflib.unified_diff(a, b, "aidl", "aidl_ndk_gen.py", n=2, lineterm="")
            print(f"compare_ndk: {rel} differs:\n" + "\n".join(diff), file=sys.stderr)
            failed += 1
    print(f"compare_ndk: {len(headers) - failed} of {len(headers)} headers declare the same API")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
