#!/usr/bin/env python3
"""The emulator under load: N concurrent `vexilctl state modem`, every answer and every log line kept
(run by scripts/bench/run.sh after the measurements).

Starts tarnmodem in a network namespace of its own, in which the local datagram queue is raised
to 600 lines as Android's init raises it for the log socket (a new namespace starts at 10), runs
N commands at once, stops the emulator and checks that each command printed the modem state,
that the journal holds each command's two calls and that the log holds each command's two lines.
Prints the counts and the time taken. Also checks `tarnmodem --help`.

Usage: emulator_load.py VEXILCTL TARNMODEM [N]   (N defaults to 1000)
"""
import collections
import json
import os
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ISOLATED = Path(__file__).resolve().parents[1] / "isolated.sh"

NETNS_MARK = "VEXIL_LOAD_NETNS"
DGRAM_QLEN = "/proc/sys/net/unix/max_dgram_qlen"
ANDROID_DGRAM_QLEN = 600
ANSWER = b"OK,modem: mode:ON,dest:stor\n"
LOG_LINES = ("proc_query_state: proc_query_state\n", "do_request: do_request modem succ state=1.\n")
CALLS = ("getSubsystemPresence", "getCellularLogSettings")


def check_help(tarnmodem) -> list:
    done = subprocess.run([tarnmodem, "--help"], capture_output=True, timeout=10)
    if done.returncode != 0 or done.stderr or not done.stdout.startswith(b"usage: tarnmodem "):
        return [f"tarnmodem --help: exit {done.returncode}, stdout {done.stdout!r}, "
                f"stderr {done.stderr!r}"]
    return []


def read_lines(path) -> list:
    with open(path, encoding="utf-8") as f:
        return [json.loads(line) for line in f]


def run_load(vexilctl, tarnmodem, count, tmp) -> list:
    journal, log = os.path.join(tmp, "journal"), os.path.join(tmp, "log")
    emulator = subprocess.Popen([tarnmodem, "--journal", journal, "--log", log],
                                stdout=subprocess.PIPE)
    if emulator.stdout.readline() != b"ready\n":
        emulator.kill()
        return ["tarnmodem did not get ready"]
    # Every command waits for a line on a FIFO until all are started; then all go at once.
    gate = os.path.join(tmp, "gate")
    os.mkfifo(gate)
    gate_fd = os.open(gate, os.O_RDWR)
    commands = []
    try:
        for i in range(count):
            with open(os.path.join(tmp, f"out{i}"), "wb") as out:
                commands.append(subprocess.Popen(
                    ["sh", "-c", 'read _ < "$0"; exec "$1" state modem', gate, vexilctl],
                    stdout=out, stderr=subprocess.STDOUT))
        start = time.monotonic()
        os.write(gate_fd, b"\n" * count)
        statuses = [c.wait(timeout=120) for c in commands]
    finally:
        for c in commands:
            if c.poll() is None:
                c.kill()
        os.close(gate_fd)
    elapsed = time.monotonic() - start
    emulator.send_signal(signal.SIGTERM)
    emulator.wait(timeout=10)

    answered = 0
    for i, status in enumerate(statuses):
        with open(os.path.join(tmp, f"out{i}"), "rb") as f:
            answered += status == 0 and f.read() == ANSWER
    calls = collections.Counter(e["op"] for e in read_lines(journal))
    lines = collections.Counter(e["msg"] for e in read_lines(log))
    kept = sum(lines[text] for text in LOG_LINES)
    print(f"{count} concurrent commands in {elapsed:.2f} s: {answered} answered, "
          f"{sum(calls.values())} calls journaled, {kept} of {count * len(LOG_LINES)} log lines kept")
    problems = []
    if answered != count:
        problems.append(f"{count - answered} commands without the modem state")
    if any(calls[op] != count for op in CALLS) or len(calls) != len(CALLS):
        problems.append(f"journal: {dict(calls)}, expected {count} of each of {CALLS}")
    if any(lines[text] != count for text in LOG_LINES) or len(lines) != len(LOG_LINES):
        problems.append(f"log: {dict(lines)}, expected {count} of each of {LOG_LINES}")
    return problems


def main() -> int:
    if len(sys.argv) not in (3, 4):
        print(__doc__.strip().splitlines()[-1], file=sys.stderr)
        return 2
    # It sets the datagram queue of its own network namespace, never the machine's.
    if os.environ.get(NETNS_MARK) != "1":
        if subprocess.run(["bash", str(ISOLATED), "--check"]).returncode != 0:
            sys.exit(f"{sys.argv[0]}: no network namespace can be made (scripts/isolated.sh)")
        os.environ[NETNS_MARK] = "1"
        os.execvp("bash", ["bash", str(ISOLATED), sys.executable, os.path.abspath(sys.argv[0])]
                  + sys.argv[1:])
    vexilctl, tarnmodem = sys.argv[1], sys.argv[2]
    count = int(sys.argv[3]) if len(sys.argv) == 4 else 1000
    with open(DGRAM_QLEN, "w", encoding="ascii") as f:
        f.write(str(ANDROID_DGRAM_QLEN))
    problems = check_help(tarnmodem)
    with tempfile.TemporaryDirectory() as tmp:
        problems += run_load(vexilctl, tarnmodem, count, tmp)
    for p in problems:
        print("FAIL: " + p)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
