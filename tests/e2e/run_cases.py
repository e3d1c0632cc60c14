#!/usr/bin/env python3
"""Runs end-to-end case files: the real vexilctl against a fresh tarnmodem per case.

Each case runs in its own network namespace, so the abstract socket names of parallel cases never
meet. Usage:
    run_cases.py --vexilctl BIN --tarnmodem BIN [--golden DIR] [--jobs N] [--only NAME]
                 [--wrap CMD [--slowdown F]] FILE...
Exit status: 0 when every case passed (skipped ones aside), 1 when one failed, 2 on a bad file.
"""

import argparse
import base64
import difflib
import json
import os
import re
import shlex
import subprocess
import sys
import threading
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import sandbox
from caseformat import Case, CaseError, c_quote, parse_file

HERE = Path(__file__).resolve().parent
EXECUTOR = HERE / "execute.py"


def namespace_prefix() -> list:
    """The command that gives a child its own network namespace, or [] when none can be had."""
    candidates = [["unshare", "-n"]] if os.geteuid() == 0 else []
    candidates.append(["unshare", "-rn"])
    for prefix in candidates:
        try:
            if subprocess.run(prefix + ["true"], capture_output=True).returncode == 0:
                return prefix
        except OSError:
            pass
    return []


def spec_of(case: Case, args) -> dict:
    return {
        "tarnmodem": args.tarnmodem,
        "vexilctl": args.vexilctl,
        "wrap": shlex.split(args.wrap or ""),
        "state": case.state,
        "emulator_args": case.emulator_args,
        "raw": [{"target": r.target, "hold": r.hold,
                 "payload": None if r.payload is None else base64.b64encode(r.payload).decode(),
                 "expect": r.expect is not None} for r in case.raw],
        "argv": case.argv,
        "timeout": case.timeout * args.slowdown,
        "emulator_gone": case.emulator_gone,
        "reload": case.reload,
        "sandbox": sandbox.spec_of(case),
    }


def run_case(case: Case, args, prefix: list) -> dict:
    command = prefix + [sys.executable, "-S", str(EXECUTOR)]
    if case.sandbox is not None:
        command = sandbox.command(prefix, sys.executable)
    done = subprocess.run(command,
                          input=json.dumps(spec_of(case, args)).encode(), capture_output=True,
                          timeout=case.timeout * args.slowdown + 60)
    if done.returncode != 0:
        raise RuntimeError("executor failed: " + done.stderr.decode("utf-8", "replace"))
    return json.loads(done.stdout)


def decode(text: str) -> bytes:
    return base64.b64decode(text)


def text_diff(expected: bytes, actual: bytes) -> str:
    exp = [c_quote(line) for line in expected.splitlines(keepends=True)]
    act = [c_quote(line) for line in actual.splitlines(keepends=True)]
    return "\n".join("      " + d for d in difflib.unified_diff(
        exp, act, "expected", "actual", n=2, lineterm=""))


def compare_stream(name: str, matcher, actual: bytes, problems: list):
    if matcher.matches(actual):
        return
    if matcher.regex is not None:
        problems.append(f"{name} does not match {matcher.describe()}\n"
                        f"      actual: {c_quote(actual)}")
    else:
        problems.append(f"{name} differs:\n{text_diff(matcher.exact, actual)}")


def contains_in_order(expected: list, actual: list) -> int:
    """How many of the expected entries were found in order (len(expected) when all)."""
    found = 0
    for entry in actual:
        if found < len(expected) and entry == expected[found]:
            found += 1
    return found


def show_entries(entries: list) -> str:
    return "\n".join("      " + json.dumps(e) for e in entries) or "      (none)"


def check_journal(case: Case, journal: list, problems: list):
    if case.journal is not None and journal != case.journal:
        problems.append("journal differs:\n" + "\n".join(
            "      " + d for d in difflib.unified_diff(
                [json.dumps(e) for e in case.journal], [json.dumps(e) for e in journal],
                "expected", "actual", n=2, lineterm="")))
    if case.journal_has is not None:
        found = contains_in_order(case.journal_has, journal)
        if found < len(case.journal_has):
            problems.append(f"journal lacks, in order, {json.dumps(case.journal_has[found])}\n"
                            f"    journal:\n{show_entries(journal)}")
    for pattern in case.journal_lacks:
        hits = [e for e in journal if re.fullmatch(pattern, str(e.get("op", "")))]
        if hits:
            problems.append(f"journal has an op matching {pattern}:\n{show_entries(hits)}")
    for op in case.no_call_after:
        ops = [e.get("op") for e in journal]
        if op not in ops:
            problems.append(f"journal has no {op} (no-call-after {op})\n"
                            f"    journal:\n{show_entries(journal)}")
        elif ops.index(op) != len(ops) - 1:
            problems.append(f"calls after {op}:\n{show_entries(journal[ops.index(op) + 1:])}")


def check_log(case: Case, log: list, problems: list):
    if not any(r.target == "log" for r in case.raw):
        stray = [e for e in log if e.get("prio") != 6 or e.get("tag") != "VEXILCTL"]
        if stray:
            problems.append(f"log lines without priority 6 and tag VEXILCTL:\n{show_entries(stray)}")
    messages = [e.get("msg", "").encode("utf-8") for e in log]
    if case.log_exact:
        ok = len(messages) == len(case.log) and all(
            m.matches(a) for m, a in zip(case.log, messages))
        if not ok:
            problems.append("log differs:\n      expected:\n" + "\n".join(
                "        " + m.describe() for m in case.log) + "\n      actual:\n" + "\n".join(
                "        " + c_quote(a) for a in messages))
        return
    found = 0
    for actual in messages:
        if found < len(case.log) and case.log[found].matches(actual):
            found += 1
    if found < len(case.log):
        problems.append(f"log lacks, in order, {case.log[found].describe()}\n      log:\n" +
                        ("\n".join("        " + c_quote(a) for a in messages) or "        (none)"))


def judge(case: Case, seen: dict) -> list:
    problems = []
    emu_err = decode(seen["emulator_stderr"])
    if case.emulator_exit is not None and case.emulator_exit != 0:
        if seen["ready"]:
            problems.append(f"tarnmodem got ready; expected exit {case.emulator_exit}")
        elif seen["emulator_exit"] != case.emulator_exit:
            problems.append(f"tarnmodem exit {seen['emulator_exit']}, expected "
                            f"{case.emulator_exit}")
        if case.emulator_stderr is not None:
            compare_stream("tarnmodem stderr", case.emulator_stderr, emu_err, problems)
        return problems
    if not seen["ready"]:
        return [f"tarnmodem never got ready (exit {seen['emulator_exit']})\n"
                f"      stderr: {c_quote(emu_err)}"]
    for raw, result in zip(case.raw, seen["raw"]):
        if result["error"]:
            problems.append(f"raw client of line {raw.line}: {result['error']}")
        elif raw.expect is not None and not raw.expect.matches(decode(result["reply"])):
            problems.append(f"raw client of line {raw.line}: reply {c_quote(decode(result['reply']))}"
                            f", expected {raw.expect.describe()}")
    if case.reload is not None and decode(seen["reload_line"]) != case.reload_line:
        problems.append(f"reload printed {c_quote(decode(seen['reload_line']))}, expected "
                        f"{c_quote(case.reload_line)}")
    if not seen["alive_after_raw"]:
        problems.append("tarnmodem died from the raw clients\n"
                        f"      stderr: {c_quote(emu_err)}")
    if seen["ran"]:
        if seen["timed_out"]:
            problems.append(f"vexilctl did not finish within {case.timeout:g} s")
        elif seen["exit"] != case.exit:
            problems.append(f"exit status {seen['exit']}, expected {case.exit}")
        compare_stream("stdout", case.stdout, decode(seen["stdout"]), problems)
        compare_stream("stderr", case.stderr, decode(seen["stderr"]), problems)
    if case.emulator_gone:
        if seen["alive_after_command"]:
            problems.append("tarnmodem still runs; expected it to be gone")
    else:
        if not seen["alive_after_command"]:
            problems.append(f"tarnmodem ended on its own (exit {seen['emulator_exit']})\n"
                            f"      stderr: {c_quote(emu_err)}")
        elif seen["emulator_exit"] != 0:
            problems.append(f"tarnmodem exit {seen['emulator_exit']} on SIGTERM, expected 0")
    check_journal(case, seen["journal"], problems)
    check_log(case, seen["log"], problems)
    problems += sandbox.judge(case, seen, compare_stream)
    return problems


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--vexilctl", required=True)
    parser.add_argument("--tarnmodem", required=True)
    parser.add_argument("--golden", default=str(HERE.parent / "golden"))
    parser.add_argument("--jobs", type=int, default=os.cpu_count() or 2)
    parser.add_argument("--only", help="run only the case of this name")
    parser.add_argument("--wrap", help="a command line that vexilctl runs under (e.g. valgrind)")
    parser.add_argument("--slowdown", type=float, default=1.0,
                        help="factor for every case's time limit (for a slow --wrap)")
    parser.add_argument("files", nargs="+")
    args = parser.parse_args()

    cases = []
    try:
        for f in args.files:
            cases += parse_file(Path(f), Path(args.golden))
    except (CaseError, OSError) as e:
        print(f"run_cases: {e}", file=sys.stderr)
        return 2
    if args.only:
        cases = [c for c in cases if c.name == args.only]

    prefix = namespace_prefix()
    jobs = args.jobs
    if not prefix:
        print("run_cases: no network namespace available; running cases one at a time",
              file=sys.stderr)
        jobs = 1

    print_lock = threading.Lock()
    counts = {"passed": 0, "failed": 0, "skipped": 0}

    def one(case: Case):
        if case.skip is not None:
            outcome, lines = "skipped", [f"SKIP {case.name}: {case.skip}"]
        else:
            start = time.monotonic()
            try:
                problems = judge(case, run_case(case, args, prefix))
            except (RuntimeError, subprocess.TimeoutExpired, ValueError) as e:
                problems = [str(e)]
            took = time.monotonic() - start
            if problems:
                outcome = "failed"
                lines = [f"FAIL {case.name} ({case.path}:{case.line}, {took:.2f} s)"]
                lines += ["  - " + p for p in problems]
            else:
                outcome, lines = "passed", [f"ok   {case.name} ({took:.2f} s)"]
        with print_lock:
            counts[outcome] += 1
            print("\n".join(lines), flush=True)

    with ThreadPoolExecutor(max_workers=max(1, jobs)) as pool:
        list(pool.map(one, cases))
    print(f"{counts['passed']} passed, {counts['failed']} failed, {counts['skipped']} skipped")
    return 1 if counts["failed"] else 0


if __name__ == "__main__":
    sys.exit(main())
