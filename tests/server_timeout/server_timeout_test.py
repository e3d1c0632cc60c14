#!/usr/bin/env python3
"""How long the vexilserver commands wait for an answer.

Runs the real vexilctl against a server that reads each request line and never answers a query,
and answers nothing to a set request either but closes it after a short hold. Every command runs
under strace, which records the time-out the tool hands to poll:

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

NETNS_MARK = "VEXIL_SERVER_TIMEOUT_NETNS"
SERVER_NAME = b"\0vexilserver"
SET_HOLD_S = 0.5
QUERY_TIMEOUT_MS = 3000
SET_TIMEOUT_MS = 420000
REQUEST_ERROR = re.compile(r"Request error: [0-9]+\n")

POLL_CALL = re.compile(r"^poll\(\[.*?\], \d+, (-?\d+)\)")
PPOLL_CALL = re.compile(r"^ppoll\(\[.*?\], \d+, \{tv_sec=(\d+), tv_nsec=(\d+)\}")

# (argv, expected poll time-out in ms, shortest and longest plausible run time in s)
COMMANDS = [
    (["getallvexilstate"], QUERY_TIMEOUT_MS, 2.9, 5.0),
    (["getvexiltopcstate"], QUERY_TIMEOUT_MS, 2.9, 5.0),
    (["setvexil", "modem", "on"], SET_TIMEOUT_MS, SET_HOLD_S, 2.5),
    (["setvexiltopc", "enable"], SET_TIMEOUT_MS, SET_HOLD_S, 2.5),
]


def enter_own_netns():
    if os.environ.get(NETNS_MARK) == "1":
        return
    os.environ[NETNS_MARK] = "1"
    flags = "-n" if os.geteuid() == 0 else "-rn"
    os.execvp("unshare", ["unshare", flags, sys.executable, os.path.abspath(__file__)] +
              sys.argv[1:])


def serve_one(conn):
    """Reads the request line; never answers. A set request is closed after the hold, a query
    is kept open until the client leaves."""
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
    listener.bind(SERVER_NAME)
    listener.listen(8)

    def accept_loop():
        while True:
            conn, _ = listener.accept()
            threading.Thread(target=serve_one, args=(conn,), daemon=True).start()

    threading.Thread(target=accept_loop, daemon=True).start()


def poll_timeouts(trace_text):
    timeouts = []
    for line in trace_text.splitlines():
        m = POLL_CALL.match(line)
        if m:
            timeouts.append(int(m.group(1)))
            continue
        m = PPOLL_CALL.match(line)
        if m:
            timeouts.append(int(m.group(1)) * 1000 + int(m.group(2)) // 1000000)
    return timeouts


def run_command(vexilctl, argv, trace_path, results, index):
    # A sanitizer build's leak checker cannot run under ptrace; it would fail the exit status.
    env = dict(os.environ, ASAN_OPTIONS="detect_leaks=0")
    start = time.monotonic()
    proc = subprocess.run(
        ["strace", "-qq", "-e", "trace=poll,ppoll", "-o", trace_path, vexilctl] + argv,
        stdout=subprocess.PIPE, stderr=subprocess.PIPE, env=env, timeout=60)
    results[index] = (proc, time.monotonic() - start)


def check(argv, expected_timeout, min_s, max_s, proc, elapsed, trace_text):
    name = " ".join(argv)
    problems = []
    if proc.returncode != 0:
        problems.append(f"exit status {proc.returncode}, expected 0")
    if proc.stdout:
        problems.append(f"stdout {proc.stdout!r}, expected nothing")
    if not REQUEST_ERROR.fullmatch(proc.stderr.decode(errors="replace")):
        problems.append(f"stderr {proc.stderr!r}, expected 'Request error: <errno>\\n'")
    timeouts = poll_timeouts(trace_text)
    if timeouts != [expected_timeout]:
        problems.append(f"poll time-outs {timeouts}, expected [{expected_timeout}]")
    if not min_s <= elapsed <= max_s:
        problems.append(f"took {elapsed:.2f} s, expected {min_s}..{max_s} s")
    status = "FAIL" if problems else "ok"
    print(f"{status}: vexilctl {name}: poll {timeouts} ms, {elapsed:.2f} s")
    for p in problems:
        print(f"    {p}")
    return not problems


def main():
    if len(sys.argv) != 2:
        print("usage: server_timeout_test.py VEXILCTL", file=sys.stderr)
        return 2
    enter_own_netns()
    vexilctl = sys.argv[1]
    start_silent_server()
    with tempfile.TemporaryDirectory() as tmp:
        traces = [os.path.join(tmp, f"trace{i}") for i in range(len(COMMANDS))]
        results = [None] * len(COMMANDS)
        threads = [threading.Thread(target=run_command, args=(vexilctl, c[0], traces[i], results, i))
                   for i, c in enumerate(COMMANDS)]
        for t in threads:
            t.start()
        for t in threads:
            t.join()
        ok = True
        for i, (argv, timeout, min_s, max_s) in enumerate(COMMANDS):
            if results[i] is None:
                print(f"FAIL: vexilctl {' '.join(argv)}: did not finish")
                ok = False
                continue
            proc, elapsed = results[i]
            with open(traces[i], encoding="utf-8", errors="replace") as f:
                trace_text = f.read()
            ok = check(argv, timeout, min_s, max_s, proc, elapsed, trace_text) and ok
    return 0 if ok else 1


if __name__ == "__main__":
    sys.exit(main())
