#!/usr/bin/env python3
"""Runs end-to-end case files: the real vexilctl against a fresh tarnmodem per case.

Each case runs in its own network namespace, so the abstract socket names of parallel cases never
meet. Exit status: 0 when every case passed, 1 when one failed, 2 on a bad file.
"""

import argparse
import difflib
import json
import os
import pickle
import re
import shlex
import subprocess
import sys
import threading
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import sandbox
from caseformat import Case, CaseError, Goldens, c_quote, parse_file

HERE = Path(__file__).resolve().parent
ISOLATED = HERE.parents[1] / "scripts" / "isolated.sh"


def namespace_prefix() -> list:
    """The prefix that runs a case in a network namespace of its own, or [] when none can be made."""
    check = subprocess.run(["bash", str(ISOLATED), "--check"], capture_output=True)
    return ["bash", str(ISOLATED)] if check.returncode == 0 else []


def spec_of(case: Case, args) -> dict:
    return {"case": case, "tarnmodem": os.path.abspath(args.tarnmodem),
            "vexilctl": os.path.abspath(args.vexilctl),
            "wrap": shlex.split(args.wrap or ""), "timeout": case.timeout * args.slowdown,
            "logd": args.logd}


def run_case(case: Case, args, prefix: list) -> dict:
    command = prefix + [sys.executable, "-S", str(HERE / "execute.py")]
    if case.sandbox is not None:
        command = sandbox.command(prefix, sys.executable)
    done = subprocess.run(command, input=pickle.dumps(spec_of(case, args)), capture_output=True,
                          timeout=case.timeout * args.slowdown + 60)
    if done.returncode != 0:
        raise RuntimeError("executor failed: " + done.stderr.decode("utf-8", "replace"))
    return pickle.loads(done.stdout)


def diff(name: str, expected: list, actual: list) -> str:
    return f"{name} differs:\n" + "\n".join("      " + d for d in difflib.unified_diff(
        expected, actual, "expected", "actual", n=2, lineterm=""))


def compare_stream(name: str, matcher, actual: bytes, problems: list):
    if matcher.matches(actual):
        return
    problems.append(f"{name} does not match {matcher.describe()}\n      actual: {c_quote(actual)}"
                    if matcher.regex is not None else diff(name, *(
                        [c_quote(line) for line in text.splitlines(keepends=True)]
                        for text in (matcher.exact, actual))))


def in_order(expected: list, actual: list, same) -> int:
    """How many of the expected items were found in order (len(expected) when all)."""
    found = 0
    for item in actual:
        if found < len(expected) and same(expected[found], item):
            found += 1
    return found


def show(entries: list) -> str:
    return "\n".join("      " + (e if isinstance(e, str) else json.dumps(e))
                     for e in entries) or "      (none)"


def check_journal(case: Case, journal: list, problems: list):
    if case.journal is not None and journal != case.journal:
        problems.append(diff("journal", *([json.dumps(e) for e in entries]
                                          for entries in (case.journal, journal))))
    if case.journal_has is not None:
        found = in_order(case.journal_has, journal, lambda e, a: e == a)
        if found < len(case.journal_has):
            problems.append(f"journal lacks, in order, {json.dumps(case.journal_has[found])}\n"
                            f"    journal:\n{show(journal)}")
    for pattern in case.journal_lacks:
        hits = [e for e in journal if re.fullmatch(pattern, str(e.get("op", "")))]
        if hits:
            problems.append(f"journal has an op matching {pattern}:\n{show(hits)}")
    ops = [e.get("op") for e in journal]
    for op in case.no_call_after:
        if op not in ops or ops.index(op) != len(ops) - 1:
            problems.append(f"journal does not end with its one {op}:\n{show(journal)}")


def check_log(case: Case, log: list, problems: list):
    if not any(r.target == "log" for r in case.raw):
        stray = [e for e in log if e.get("prio") != 6 or e.get("tag") != "VEXILCTL"]
        if stray:
            problems.append(f"log lines without priority 6 and tag VEXILCTL:\n{show(stray)}")
    messages = [e.get("msg", "").encode("utf-8") for e in log]
    found = in_order(case.log, messages, lambda m, a: m.matches(a))
    if found < len(case.log) or (case.log_exact and len(messages) != len(case.log)):
        problems.append(f"log {'differs' if case.log_exact else 'lacks, in order'}: expected\n" +
                        show([m.describe() for m in case.log[0 if case.log_exact else found:]]) +
                        "\n    log:\n" + show([c_quote(a) for a in messages]))


def judge(case: Case, seen: dict) -> list:
    problems = []
    emu_err = seen["emulator_stderr"]
    if case.emulator_exit is not None:
        if seen["ready"] or seen["emulator_exit"] != case.emulator_exit:
            problems.append(f"tarnmodem exit {seen['emulator_exit']} (ready: {seen['ready']}), "
                            f"expected a refusal with exit {case.emulator_exit}")
        if case.emulator_stderr is not None:
            compare_stream("tarnmodem stderr", case.emulator_stderr, emu_err, problems)
        return problems
    if not seen["ready"]:
        return [f"tarnmodem never got ready (exit {seen['emulator_exit']})\n"
                f"      stderr: {c_quote(emu_err)}"]
    for raw, reply in zip(case.raw, seen["raw"]):
        if isinstance(reply, Exception):
            problems.append(f"raw client of line {raw.line}: {reply}")
        elif raw.expect is not None and not raw.expect.matches(reply):
            problems.append(f"raw client of line {raw.line}: reply {c_quote(reply)}, expected "
                            f"{raw.expect.describe()}")
    if case.reload is not None and seen["reload_line"] != case.reload_line:
        problems.append(f"reload printed {c_quote(seen['reload_line'])}, expected "
                        f"{c_quote(case.reload_line)}")
    if not seen["alive_after_raw"]:
        problems.append(f"tarnmodem died from the raw clients\n      stderr: {c_quote(emu_err)}")
    if seen["ran"]:
        if seen["exit"] is None:
            problems.append(f"vexilctl did not finish within {case.timeout:g} s")
        elif seen["exit"] != case.exit:
            problems.append(f"exit status {seen['exit']}, expected {case.exit}")
        compare_stream("stdout", case.stdout, seen["stdout"], problems)
        compare_stream("stderr", case.stderr, seen["stderr"], problems)
    if not seen["alive_after_command"] or seen["emulator_exit"]:
        problems.append(f"tarnmodem ended on its own or not with 0 on SIGTERM (exit "
                        f"{seen['emulator_exit']})\n      stderr: {c_quote(emu_err)}")
    check_journal(case, seen["journal"], problems)
    check_log(case, seen["log"], problems)
    problems += sandbox.judge(case, seen, compare_stream)
    return problems


def run(cases: list, args) -> int:
    """Runs the cases (those named --only, if given) and prints each outcome and the counts."""
    cases = [c for c in cases if args.only in (None, c.name)]
    prefix, failed = namespace_prefix(), []
    if not prefix:
        print("run_cases: no network namespace available; running cases one at a time",
              file=sys.stderr)
    lock = threading.Lock()

    def report(case: Case):
        start = time.monotonic()
        try:
            seen = run_case(case, args, prefix)
            for _ in range(2):  # runs meant for one second that a slow machine spread over two
                if not sandbox.crossed_a_second(case, seen):
                    break
                seen = run_case(case, args, prefix)
            problems = judge(case, seen)
        except (RuntimeError, subprocess.TimeoutExpired, pickle.UnpicklingError, EOFError) as e:
            problems = [str(e)]
        head = f"{case.name} ({case.path}:{case.line}, {time.monotonic() - start:.2f} s)"
        with lock:
            failed.extend([case] if problems else [])
            print("\n".join([f"FAIL {head}"] + ["  - " + p for p in problems]) if problems
                  else f"ok   {head}", flush=True)

    with ThreadPoolExecutor(max_workers=max(1, args.jobs if prefix else 1)) as pool:
        list(pool.map(report, cases))
    print(f"{len(cases) - len(failed)} passed, {len(failed)} failed")
    return 1 if failed else 0


def parser() -> argparse.ArgumentParser:
    p = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    p.add_argument("--vexilctl", required=True)
    p.add_argument("--tarnmodem", required=True)
    p.add_argument("--jobs", type=int, default=os.cpu_count() or 2)
    p.add_argument("--only", help="run only the case of this name")
    p.add_argument("--wrap", help="a command line that vexilctl runs under (e.g. valgrind)")
    p.add_argument("--slowdown", type=float, default=1.0,
                   help="factor for every case's time limit (for a slow --wrap)")
    p.add_argument("--logd", action="store_true",
                   help="vexilctl logs as a device's liblog does: tarnmodem receives logd's format "
                        "at a socket whose path vexilctl finds in VEXIL_LOGDW")
    p.add_argument("--formatter", choices=("glibc", "bionic"), default="glibc",
                   help="the C library whose formatter writes the golden texts for vexilctl")
    return p


def main() -> int:
    p = parser()
    p.add_argument("--golden", default=str(HERE.parent / "golden"))
    p.add_argument("files", nargs="+")
    args = p.parse_args()
    try:
        goldens = Goldens(Path(args.golden), args.formatter)
        cases = [c for f in args.files for c in parse_file(Path(f), goldens)]
    except (CaseError, OSError) as e:
        print(f"run_cases: {e}", file=sys.stderr)
        return 2
    return run(cases, args)


if __name__ == "__main__":
    sys.exit(main())
