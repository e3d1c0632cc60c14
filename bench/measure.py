"""Measures vexilctl against its budget and prints one table (started by bench/run.sh, inside a
network namespace of its own, with the release build directory).

Timing: whole-process wall time with hyperfine, median of many runs. The machine may be shared
and noisy, so the commands run in rounds, each round timing every command once more in a new
order, and a ratio is the median of the rounds' ratios. Footprint: stripped size of vexilctl,
its peak resident memory (/usr/bin/time) for `state modem`, and the emulator's resident memory
before and after a stream of commands.

Exits 1 when a line misses its budget, 2 when the set-up fails.
"""

import argparse
import json
import os
import select
import statistics
import subprocess
import sys
import tempfile

KIB = 1024

# (label, numerator, denominator, budget); a line without a budget explains another.
RATIOS = [
    ("(1) getallvexilstate / minimal C client", "getallvexilstate", "client", 1.15),
    ("(1') getallvexilstate / C client that also sends the log line", "getallvexilstate",
     "client_log_line", None),
    ("(2) argument error / /bin/true", "argument_error", "true", 1.2),
    ("(3) state modem / getallvexilstate", "state_modem", "getallvexilstate", 1.3),
]

SIZE_BUDGET_KIB = 256
PEAK_RSS_BUDGET_KIB = 4 * KIB
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
        "argument_error": [vexilctl, "setmipilog", "1"],
        "client": [os.path.join(build, "bench", "vexil_bench_client")],
        "client_log_line": [os.path.join(build, "bench", "vexil_bench_client"), "--log-line"],
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
        "argument_error": lambda run: run.returncode == 1 and run.stderr == b"Missing argument.\n",
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


def peak_rss_kib(argv, times=5):
    peaks = []
    for _ in range(times):
        run = subprocess.run(
            ["/usr/bin/time", "-f", "%M"] + argv, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE
        )
        peaks.append(int(run.stderr.decode().strip().splitlines()[-1]))
    return max(peaks)


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
        "--footprint-only", action="store_true", help="size and peak memory of vexilctl only"
    )
    args = parser.parse_args()

    cmds = commands(args.build)
    rows = []
    all_ok = True

    def row(label, value, budget, ok):
        nonlocal all_ok
        all_ok = all_ok and ok
        rows.append((label, value, budget, verdict(ok)))

    emulator_path = args.emulator or os.path.join(args.build, "emulator", "tarnmodem")
    emulator = Emulator(emulator_path)
    try:
        check_outputs(cmds)
        if not args.footprint_only:
            per_round, medians = time_ratios(cmds, args.rounds, args.runs, args.warmup)
            for label, _, _, budget in RATIOS:
                ratios = per_round[label]
                ratio = statistics.median(ratios)
                quartiles = statistics.quantiles(ratios, n=4)
                spread = f"{ratio:.2f} ({quartiles[0]:.2f}-{quartiles[2]:.2f})"
                if budget is None:
                    rows.append((label, spread, "", ""))
                else:
                    row(label, spread, f"<= {budget}", ratio <= budget)
        peak = peak_rss_kib(cmds["state_modem"])
    finally:
        emulator.stop()

    size = stripped_size(cmds["getallvexilstate"][0])
    row("stripped vexilctl", f"{size / KIB:.1f} KiB", f"<= {SIZE_BUDGET_KIB} KiB",
        size <= SIZE_BUDGET_KIB * KIB)
    row("peak RSS, vexilctl state modem", f"{peak / KIB:.2f} MiB",
        f"<= {PEAK_RSS_BUDGET_KIB // KIB} MiB", peak <= PEAK_RSS_BUDGET_KIB)
    if not args.footprint_only:
        before, after = emulator_growth(args.build, emulator_path, args.commands)
        row(f"tarnmodem RSS before / after {args.commands} commands",
            f"{before} / {after} KiB (+{after - before})",
            f"< {EMULATOR_GROWTH_BUDGET_KIB} KiB growth",
            after - before < EMULATOR_GROWTH_BUDGET_KIB)

    print("| measure | value | budget | |")
    print("|---|---|---|---|")
    for label, value, budget, mark in rows:
        print(f"| {label} | {value} | {budget} | {mark} |")
    if not args.footprint_only:
        print()
        print(f"Ratios: median of {args.rounds} rounds (quartiles in brackets), each the ratio "
              f"of medians of {args.runs} runs.")
        print("Medians over all rounds (ms): " + ", ".join(
            f"{name} {statistics.median(times) * 1000:.3f}" for name, times in medians.items()))
    sys.exit(0 if all_ok else 1)


if __name__ == "__main__":
    main()
