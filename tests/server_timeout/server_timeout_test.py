#!/usr/bin/env python3
"""How long the vexilserver commands wait for an answer.

Runs the real vexilctl, under strace, against a server that reads each request line and never
answers: a query is kept open until the client leaves, a set request is closed after a short
hold. strace records the time-out the tool hands to poll:

- the queries wait 3000 ms, then print "Request error: <errno>\n" and exit 0 after about 3 s;
- the set commands hand 420000 ms to poll (shown without waiting seven minutes) and are still
  waiting when the server hangs up after the hold.

Usage: server_timeout_test.py VEXILCTL. Runs itself in a fresh network namespace so the abstract
socket name cannot collide with anything else on the machine.
"""
import os
import re
import socket
import subprocess
import sys
import tempfile
import threading
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "e2e"))
from namespace import reexec_in_own_namespace  # noqa: E402

SET_HOLD_S = 0.5
# (argv, expected poll time-out in ms, shortest and longest plausible run time in s)
COMMANDS = [
    (["getallvexilstate"], 3000, 2.9, 5.0),
    (["getvexiltopcstate"], 3000, 2.9, 5.0),
    (["setvexil", "modem", "on"], 420000, SET_HOLD_S, 2.5),
    (["setvexiltopc", "enable"], 420000, SET_HOLD_S, 2.5),
]
POLL = re.compile(r"^poll\(\[.*?\], \d+, (-?\d+)\)|^ppoll\(\[.*?\], \d+, \{tv_sec=(\d+), tv_nsec=(\d+)\}")


def serve_one(conn):
    with conn:
        line = b""
        while not line.endswith(b"\n") and len(line) < 64:
            chunk = conn.recv(64)
            if not chunk:
                return
            line += chunk
        if line.startswith(b"GET_"):
            while conn.recv(64):
                pass
        else:
            time.sleep(SET_HOLD_S)


def start_silent_server():
    listener = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
    listener.bind(b"\0vexilserver")
    listener.listen(8)

    def accept_loop():
        while True:
            conn, _ = listener.accept()
            threading.Thread(target=serve_one, args=(conn,), daemon=True).start()

    threading.Thread(target=accept_loop, daemon=True).start()


def poll_timeouts(trace_text):
    timeouts = []
    for m in filter(None, map(POLL.match, trace_text.splitlines())):
        ms = m.group(1)
        timeouts.append(int(ms) if ms is not None else
                        int(m.group(2)) * 1000 + int(m.group(3)) // 1000000)
    return timeouts


def run_and_check(vexilctl, argv, expected_timeout, min_s, max_s, trace_path, verdicts):
    # A sanitizer build's leak checker cannot run under ptrace; it would fail the exit status.
    env = dict(os.environ, ASAN_OPTIONS="detect_leaks=0")
    start = time.monotonic()
    proc = subprocess.run(["strace", "-qq", "-e", "trace=poll,ppoll", "-o", trace_path, vexilctl]
                          + argv, capture_output=True, env=env, timeout=60)
    elapsed = time.monotonic() - start
    with open(trace_path, encoding="utf-8", errors="replace") as f:
        timeouts = poll_timeouts(f.read())
    problems = []
    if (proc.returncode, proc.stdout) != (0, b""):
        problems.append(f"exit status {proc.returncode}, stdout {proc.stdout!r}; expected 0, b''")
    if not re.fullmatch(r"Request error: [0-9]+\n", proc.stderr.decode(errors="replace")):
        problems.append(f"stderr {proc.stderr!r}, expected 'Request error: <errno>\\n'")
    if timeouts != [expected_timeout]:
        problems.append(f"poll time-outs {timeouts}, expected [{expected_timeout}]")
    if not min_s <= elapsed <= max_s:
        problems.append(f"took {elapsed:.2f} s, expected {min_s}..{max_s} s")
    print(f"{'FAIL' if problems else 'ok'}: vexilctl {' '.join(argv)}: poll {timeouts} ms, "
          f"{elapsed:.2f} s" + "".join(f"\n    {p}" for p in problems))
    verdicts.append(not problems)


def main():
    if len(sys.argv) != 2:
        print("usage: server_timeout_test.py VEXILCTL", file=sys.stderr)
        return 2
    reexec_in_own_namespace("VEXIL_SERVER_TIMEOUT_NETNS")
    start_silent_server()
    verdicts = []
    with tempfile.TemporaryDirectory() as tmp:
        threads = [threading.Thread(target=run_and_check,
                                    args=(sys.argv[1], *c, os.path.join(tmp, f"trace{i}"), verdicts))
                   for i, c in enumerate(COMMANDS)]
        for t in threads:
            t.start()
        for t in threads:
            t.join()
    return 0 if len(verdicts) == len(COMMANDS) and all(verdicts) else 1


if __name__ == "__main__":
    sys.exit(main())
