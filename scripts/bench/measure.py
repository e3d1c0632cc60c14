"""Measures vexilctl against its budget and prints one table (started by scripts/bench/run.sh, inside a
network namespace of its own, with the release build directory).

Instructions: whole-process instruction counts under callgrind (the dynamic loader included),
the median of a few runs; they barely move between runs, so the budgets are set on them.
Timing: whole-process wall time with hyperfine, median of many runs. The machine may be shared
and noisy, so the commands run in rounds, each round timing every command once more in a new
order, and a ratio is the median of the rounds' ratios; times are shown, not judged.
Footprint: stripped size of vexilctl, its peak resident memory (/usr/bin/time) for
`state modem`, and the emulator's resident memory before and after a stream of commands.

Exits 1 when a line misses its budget, 2 when the set-up fails.
"""

import argparse
import json
import os
import re
import select
import statistics
import subprocess
import sys
import tempfile

KIB = 1024

# (label, numerator, denominator, instruction budget); a line without a budget explains another.
RATIOS = [
    ("(1) getallvexilstate / C client with the log line", "getallvexilstate", "client_log_line",
     1.25),
    ("(2) state modem / C client with the log line", "state_modem", "client_log_line", 1.35),
    ("(3) argument error / /bin/true", "argument_error", "true", 1.5),
    ("(1') getallvexilstate / minimal C client", "getallvexilstate", "client", None),
]

SIZE_BUDGET_KIB = 223
PEAK_RSS_BUDGET_KIB = 1.6 * KIB
INSTRUCTION_RUNS = 3
EMULATOR_GROWTH_BUDGET_KIB = KIB

# Commands the emulator serves in the memory test: service calls of every shape, vexilserver
# requests, and log lines.
STREAM_COMMANDS = [
    ["state", "modem"],
    ["getallvexilstate"],
    ["setlog", "modem", "stor"],
    ["getcomp", "modem"],
    ["setfilesize", "modem", "100"],
    ["getcpcapacity", "modem", "internal"],
    ["setvexil", "modem", "on"],
    ["getvexiltopcstate"],
    ["getlogpath"],
    ["getiolimit", "modem"],
]


def fail(message):
    print(f"bench: {message}", file=sys.stderr)
    sys.exit(2)


class Emulator:
    """A tarnmodem process, started and ready to serve."""

    def __init__(self, path):
        self.proc = subprocess.Popen(
            [path], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, stdin=subprocess.DEVNULL
        )
        ready, _, _ = select.select([self.proc.stdout], [], [], 10)
        if not ready or self.proc.stdout.readline() != b"ready\n":
            self.stop()
            fail("tarnmodem did not become ready")

    def rss_kib(self):
        with open(f"/proc/{self.proc.pid}/status") as status:
            for line in status:
                if line.startswith("VmRSS:"):
                    return int(line.split()[1])
        fail("no VmRSS for tarnmodem")

    def stop(self):
        self.proc.terminate()
        self.proc.wait()


def commands(build):
    vexilctl = os.path.join(build, "vexilctl")
    return {
        "true": ["/bin/true"],
        "argument_error": [vexilctl, "foo"],
        "client": [os.path.join(build, "scripts", "bench", "vexil_bench_client")],
        "client_log_line": [os.path.join(build, "scripts", "bench", "vexil_bench_client"), "--log-line"],
        "getallvexilstate": [vexilctl, "getallvexilstate"],
        "state_modem": [vexilctl, "state", "modem"],
    }


def check_outputs(cmds):
    """Each timed command must take the path it stands for, not a failure path: the tool's
    commands answer on stdout with nothing on stderr, the argument error is refused."""

    def answers(run):
        return run.returncode == 0 and run.stdout != b"" and run.stderr == b""

    expected = {
        "true": lambda run: run.returncode == 0,
        "argument_error": lambda run: run.returncode == 1 and run.stderr.startswith(b"Usage: "),
        "client": lambda run: run.returncode == 0 and run.stdout.startswith(b"OK "),
        "client_log_line": lambda run: run.returncode == 0 and run.stdout.startswith(b"OK "),
        "getallvexilstate": answers,
        "state_modem": lambda run: answers(run) and run.stdout.startswith(b"OK,modem:"),
    }
    for name, argv in cmds.items():
        run = subprocess.run(argv, capture_output=True)
        if not expected[name](run):
            fail(f"{' '.join(argv)}: exit {run.returncode}, stdout {run.stdout!r}, "
                 f"stderr {run.stderr!r}")


def hyperfine_medians(cmds, names, runs, warmup):
    with tempfile.NamedTemporaryFile(suffix=".json") as export:
        argv = ["hyperfine", "-N", "-i", "--style", "none", "--warmup", str(warmup)]
        argv += ["--runs", str(runs), "--export-json", export.name]
        for name in names:
            argv += ["--command-name", name, " ".join(cmds[name])]
        run = subprocess.run(argv, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
        if run.returncode != 0:
            fail("hyperfine failed: " + run.stderr.decode(errors="replace"))
        results = json.load(open(export.name))["results"]
    return {result["command"]: result["median"] for result in results}


def instructions(argv, runs=INSTRUCTION_RUNS):
    """Median of the whole-process instruction counts of a few runs under callgrind."""
    counts = []
    for _ in range(runs):
        run = subprocess.run(
            ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null"] + argv,
            stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
        )
        found = re.search(rb"Collected : (\d+)", run.stderr)
        if found is None:
            fail(f"callgrind counted nothing for {' '.join(argv)}: "
                 + run.stderr.decode(errors="replace"))
        counts.append(int(found.group(1)))
    return statistics.median(counts)


def time_ratios(cmds, rounds, runs, warmup):
    names = list(cmds)
    per_round = {label: [] for label, _, _, _ in RATIOS}
    medians = {name: [] for name in names}
    for round_index in range(rounds):
        shift = round_index % len(names)
        order = names[shift:] + names[:shift]
        round_medians = hyperfine_medians(cmds, order, runs, warmup)
        for name in names:
            medians[name].append(round_medians[name])
        for label, num, den, _ in RATIOS:
            per_round[label].append(round_medians[num] / round_medians[den])
    return per_round, medians


def stripped_size(path):
    with tempfile.TemporaryDirectory() as tmp:
        stripped = os.path.join(tmp, "vexilctl")
        subprocess.run(["strip", "-o", stripped, path], check=True)
        return os.path.getsize(stripped)


def peak_rss_kib(argv, times=11):
    """Least peak resident memory of a few runs. What a run adds on top of the tool's own pages
    only ever adds: pages of the shared libraries the kernel maps around each fault, and those of
    /usr/bin/time before it starts the tool; in one run they moved the peak by up to 400 KiB."""
    peaks = []
    for _ in range(times):
        run = subprocess.run(
            ["/usr/bin/time", "-f", "%M"] + argv, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE
        )
        peaks.append(int(run.stderr.decode().strip().splitlines()[-1]))
    return min(peaks)


def emulator_growth(build, emulator_path, count):
    emulator = Emulator(emulator_path)
    try:
        before = emulator.rss_kib()
        vexilctl = os.path.join(build, "vexilctl")
        for i in range(count):
            argv = [vexilctl] + STREAM_COMMANDS[i % len(STREAM_COMMANDS)]
            subprocess.run(argv, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)
        after = emulator.rss_kib()
    finally:
        emulator.stop()
    return before, after


def verdict(ok):
    return "ok" if ok else "MISSED"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--build", required=True, help="release build directory")
    parser.add_argument("--emulator", help="tarnmodem to run (default: the one in --build)")
    parser.add_argument("--rounds", type=int, default=40, help="at least 2")
    parser.add_argument("--runs", type=int, default=30, help="runs per command and round")
    parser.add_argument("--warmup", type=int, default=5)
    parser.add_argument("--commands", type=int, default=10000, help="commands for the emulator")
    parser.add_argument(
        "--footprint-only", action="store_true", help="instructions, size and peak memory of vexilctl only (no timing)"
    )
    args = parser.parse_args()

    cmds = commands(args.build)
    rows = []
    all_ok = True

    def row(label, value, budget, ok, timing=""):
        nonlocal all_ok
        all_ok = all_ok and ok
        rows.append((label, value, timing, budget, verdict(ok)))

    emulator_path = args.emulator or os.path.join(args.build, "host", "emulator", "tarnmodem")
    emulator = Emulator(emulator_path)
    try:
        check_outputs(cmds)
        counts = {name: instructions(argv) for name, argv in cmds.items()}
        if not args.footprint_only:
            per_round, medians = time_ratios(cmds, args.rounds, args.runs, args.warmup)
        peak = peak_rss_kib(cmds["state_modem"])
    finally:
        emulator.stop()

    for label, num, den, budget in RATIOS:
        ratio = counts[num] / counts[den]
        value = f"{ratio:.2f} ({counts[num] / 1000:.1f}k / {counts[den] / 1000:.1f}k)"
        timing = ""
        if not args.footprint_only:
            ratios = per_round[label]
            quartiles = statistics.quantiles(ratios, n=4)
            timing = f"{statistics.median(ratios):.2f} ({quartiles[0]:.2f}-{quartiles[2]:.2f})"
        if budget is None:
            rows.append((label, value, timing, "", ""))
        else:
            row(label, value, f"<= {budget} (instructions)", ratio <= budget, timing)

    size = stripped_size(cmds["getallvexilstate"][0])
    row("stripped vexilctl", f"{size / KIB:.1f} KiB", f"<= {SIZE_BUDGET_KIB} KiB",
        size <= SIZE_BUDGET_KIB * KIB)
    row("peak RSS, vexilctl state modem (least of 11 runs)", f"{peak / KIB:.2f} MiB",
        f"<= {PEAK_RSS_BUDGET_KIB / KIB:.1f} MiB", peak <= PEAK_RSS_BUDGET_KIB)
    if not args.footprint_only:
        before, after = emulator_growth(args.build, emulator_path, args.commands)
        row(f"tarnmodem RSS before / after {args.commands} commands",
            f"{before} / {after} KiB (+{after - before})",
            f"< {EMULATOR_GROWTH_BUDGET_KIB} KiB growth",
            after - before < EMULATOR_GROWTH_BUDGET_KIB)

    print("| measure | instructions, or value | wall time | budget | |")
    print("|---|---|---|---|---|")
    for label, value, timing, budget, mark in rows:
        print(f"| {label} | {value} | {timing} | {budget} | {mark} |")
    print()
    print(f"Instructions (callgrind, whole process, median of {INSTRUCTION_RUNS} runs): "
          + ", ".join(f"{name} {count}" for name, count in counts.items()))
    if not args.footprint_only:
        print(f"Wall-time ratios: median of {args.rounds} rounds (quartiles in brackets), each the "
              f"ratio of medians of {args.runs} runs.")
        print("Medians over all rounds (ms): " + ", ".join(
            f"{name} {statistics.median(times) * 1000:.3f}" for name, times in medians.items()))
    sys.exit(0 if all_ok else 1)


if __name__ == "__main__":
    main()
