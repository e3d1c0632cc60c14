"""Runs one case inside its own network namespace and reports what happened.

Started by run_cases.py as `unshare -n python3 execute.py` with the job pickled on standard input;
writes the observations, pickled, on standard output. Compares nothing itself.
"""

import json
import os
import pickle
import signal
import socket
import subprocess
import sys
import tempfile

STOP_SECONDS = 5
ADDRESSES = {"vexilserver": "\0vexilserver", "log": "\0vexil.hostlog",
             "service": "\0vendor.kest.hardware.vexil_svc.ISysLogControl/default"}


def run_raw(raw, held: list):
    """Connects to one endpoint, sends the payload and gives back the reply (an OSError's text
    when that failed). A held connection is appended to held, still open, and nothing is read."""
    sock = socket.socket(socket.AF_UNIX,
                         socket.SOCK_DGRAM if raw.target == "log" else socket.SOCK_STREAM)
    held.append(sock)  # closed when the case ends
    try:
        if raw.target == "log":
            sock.sendto(raw.payload or b"", ADDRESSES["log"])
            return b""
        sock.connect(ADDRESSES[raw.target])
        if raw.payload is None or raw.hold:
            sock.sendall(raw.payload or b"")
            return b""
        try:
            sock.sendall(raw.payload)
            sock.shutdown(socket.SHUT_WR)
        except OSError:
            pass  # the emulator may refuse the rest, which is its right
        sock.settimeout(2 if raw.expect else 0.3)
        reply = b""
        try:
            while chunk := sock.recv(65536):
                reply += chunk
        except OSError:
            pass
        return reply
    except OSError as e:
        return e
    finally:
        if not raw.hold:
            sock.close()


def read_json_lines(path: str) -> list:
    if not os.path.exists(path):
        return []
    with open(path, "rb") as f:
        return [json.loads(line) for line in f]


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
    case = job["case"]
    out = {"ready": False, "raw": [], "ran": False}
    held = []  # connections that stay open while the command runs
    with tempfile.TemporaryDirectory(prefix="vexil-e2e-") as tmp:
        journal, log = os.path.join(tmp, "journal.jsonl"), os.path.join(tmp, "log.jsonl")
        args = [job["tarnmodem"], "--journal", journal, "--log", log]
        env = dict(os.environ)
        if job["logd"]:  # where the tool's liblog writes, as a device's logd reads
            env["VEXIL_LOGDW"] = os.path.join(tmp, "logdw")
            args += ["--logd", env["VEXIL_LOGDW"]]
        state = os.path.join(tmp, "state.json")
        if case.state is not None or case.reload is not None:
            with open(state, "w", encoding="utf-8") as f:
                f.write(case.state or "{}")
            args += ["--state", state]
        args += case.emulator_args
        emu_err = tempfile.TemporaryFile()
        proc = subprocess.Popen(args, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=emu_err)
        try:
            out["ready"] = proc.stdout.readline() == b"ready\n"
            if out["ready"]:
                out["raw"] = [run_raw(raw, held) for raw in case.raw]
                if case.reload is not None:
                    with open(state, "w", encoding="utf-8") as f:
                        f.write(case.reload)
                    proc.send_signal(signal.SIGHUP)
                    out["reload_line"] = proc.stdout.readline()
                out["alive_after_raw"] = proc.poll() is None
                if case.argv is not None:
                    out["ran"] = True
                    wrap = job["wrap"]
                    try:
                        done = subprocess.run(wrap + [job["vexilctl"]] + case.argv,
                                              stdin=subprocess.DEVNULL, capture_output=True,
                                              timeout=job["timeout"], env=env,
                                              executable=(wrap or [job["vexilctl"]])[0])
                        out.update(stdout=done.stdout, stderr=done.stderr, exit=done.returncode)
                    except subprocess.TimeoutExpired as e:
                        out.update(stdout=e.stdout or b"", stderr=e.stderr or b"", exit=None)
                out["alive_after_command"] = proc.poll() is None
        finally:
            for sock in held:
                sock.close()
            out["emulator_exit"] = stop(proc)
            emu_err.seek(0)
            out["emulator_stderr"] = emu_err.read()
        out["journal"], out["log"] = read_json_lines(journal), read_json_lines(log)
    return out


if __name__ == "__main__":
    pickle.dump(execute(pickle.load(sys.stdin.buffer)), sys.stdout.buffer)
