"""Runs one case inside its own network namespace and reports what happened.

Started by run_cases.py as `unshare -n python3 execute.py` with the case as JSON on standard
input; writes the observations as JSON on standard output. Compares nothing itself.
"""

import base64
import contextlib
import json
import os
import select
import signal
import socket
import subprocess
import sys
import tempfile
import time

READY_SECONDS = 10
STOP_SECONDS = 5
RAW_REPLY_SECONDS = 2
SERVICE_NAME = "vendor.kest.hardware.vexil_svc.ISysLogControl/default"


def b64(data: bytes) -> str:
    return base64.b64encode(data).decode("ascii")


def read_line(proc) -> bytes:
    """The next line tarnmodem prints; what came of it when it ended or took too long."""
    deadline = time.monotonic() + READY_SECONDS
    seen = b""
    fd = proc.stdout.fileno()
    while time.monotonic() < deadline and not seen.endswith(b"\n"):
        readable, _, _ = select.select([fd], [], [], max(0.0, deadline - time.monotonic()))
        if not readable:
            break
        chunk = os.read(fd, 1)
        if not chunk:
            break
        seen += chunk
    return seen


def reload(proc, state: str, text: str) -> bytes:
    """Puts text in place of the state file, sends SIGHUP and returns tarnmodem's answer."""
    with open(state, "w", encoding="utf-8") as f:
        f.write(text)
    proc.send_signal(signal.SIGHUP)
    return read_line(proc)


def run_raw(raw: dict, held: list) -> dict:
    """Connects to one endpoint, sends the payload and collects whatever comes back.

    A held connection is appended to held, still open, and nothing is read from it.
    """
    target = raw["target"]
    name = {"vexilserver": "vexilserver", "service": SERVICE_NAME, "log": "vexil.hostlog"}[target]
    address = "\0" + name
    payload = None if raw["payload"] is None else base64.b64decode(raw["payload"])
    result = {"reply": "", "error": None}
    kind = socket.SOCK_DGRAM if target == "log" else socket.SOCK_STREAM
    sock = socket.socket(socket.AF_UNIX, kind)
    if raw["hold"]:
        held.append(sock)
    with contextlib.nullcontext() if raw["hold"] else sock:
        try:
            if target == "log":
                sock.sendto(payload or b"", address)
                return result
            sock.connect(address)
            if raw["hold"]:
                if payload:
                    sock.sendall(payload)
                return result
            if payload is None:
                return result
            try:
                sock.sendall(payload)
                sock.shutdown(socket.SHUT_WR)
            except OSError:
                pass  # the emulator may refuse the rest, which is its right
            sock.settimeout(RAW_REPLY_SECONDS if raw["expect"] else 0.3)
            reply = b""
            try:
                while True:
                    chunk = sock.recv(65536)
                    if not chunk:
                        break
                    reply += chunk
            except (socket.timeout, OSError):
                pass
            result["reply"] = b64(reply)
        except OSError as e:
            result["error"] = str(e)
    return result


def read_json_lines(path: str) -> list:
    entries = []
    if not os.path.exists(path):
        return entries
    with open(path, "rb") as f:
        for line in f:
            try:
                entries.append(json.loads(line))
            except ValueError:
                entries.append({"unparsable": line.decode("utf-8", "replace")})
    return entries


def stop(proc) -> int:
    if proc.poll() is None:
        proc.send_signal(signal.SIGTERM)
        try:
            proc.wait(STOP_SECONDS)
        except subprocess.TimeoutExpired:
            proc.kill()
            proc.wait()
            return -1000  # did not stop on SIGTERM
    return proc.returncode


def execute(job: dict) -> dict:
    out = {"ready": False, "raw": [], "ran": False, "alive_after_raw": True}
    held = []  # connections that stay open while the command runs
    with tempfile.TemporaryDirectory(prefix="vexil-e2e-") as tmp:
        journal = os.path.join(tmp, "journal.jsonl")
        log = os.path.join(tmp, "log.jsonl")
        args = [job["tarnmodem"], "--journal", journal, "--log", log]
        state = os.path.join(tmp, "state.json")
        if job["state"] is not None or job.get("reload") is not None:
            with open(state, "w", encoding="utf-8") as f:
                f.write(job["state"] or "{}")
            args += ["--state", state]
        args += job["emulator_args"]
        emu_err = open(os.path.join(tmp, "tarnmodem.err"), "w+b")
        proc = subprocess.Popen(args, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=emu_err)
        try:
            out["ready"] = read_line(proc) == b"ready\n"
            if out["ready"]:
                for raw in job["raw"]:
                    out["raw"].append(run_raw(raw, held))
                if job.get("reload") is not None:
                    out["reload_line"] = b64(reload(proc, state, job["reload"]))
                out["alive_after_raw"] = proc.poll() is None
                if job["argv"] is not None:
                    out["ran"] = True
                    start = time.monotonic()
                    try:
                        wrap = job.get("wrap", [])
                        done = subprocess.run(wrap + [job["vexilctl"]] + job["argv"],
                                              stdin=subprocess.DEVNULL, capture_output=True,
                                              timeout=job["timeout"],
                                              executable=wrap[0] if wrap else job["vexilctl"])
                        out.update(stdout=b64(done.stdout), stderr=b64(done.stderr),
                                   exit=done.returncode, timed_out=False)
                    except subprocess.TimeoutExpired as e:
                        out.update(stdout=b64(e.stdout or b""), stderr=b64(e.stderr or b""),
                                   exit=None, timed_out=True)
                    out["seconds"] = time.monotonic() - start
                if job.get("emulator_gone"):
                    # Its sockets close before the process is gone: give it a moment to end.
                    try:
                        proc.wait(STOP_SECONDS)
                    except subprocess.TimeoutExpired:
                        pass
                out["alive_after_command"] = proc.poll() is None
        finally:
            for sock in held:
                sock.close()
            out["emulator_exit"] = stop(proc)
            emu_err.seek(0)
            out["emulator_stderr"] = b64(emu_err.read())
            emu_err.close()
        out["journal"] = read_json_lines(journal)
        out["log"] = read_json_lines(log)
    return out


def main() -> int:
    job = json.load(sys.stdin)
    json.dump(execute(job), sys.stdout)
    return 0


if __name__ == "__main__":
    sys.exit(main())
