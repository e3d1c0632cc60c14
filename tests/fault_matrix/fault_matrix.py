#!/usr/bin/env python3
"""The fault matrix: every service-backed command against every kind of service fault, and every
socket command against every kind of bad vexilserver answer, generated from the tables below and
run as end-to-end cases (tests/e2e format).

Every cell must end with exit status 0, within its time limit, with no sanitizer text on either
stream, without taking the emulator down (unless the fault kills it), and without a write to the
service after a failed read. Where a table states an exact output, that is checked too.

Usage:
    fault_matrix.py --vexilctl BIN --tarnmodem BIN [--jobs N] [--only NAME] [--wrap CMD]
    fault_matrix.py --print            (writes the generated cases to stdout)
"""

import argparse
import json
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

HERE = Path(__file__).resolve().parent
RUN_CASES = HERE.parent / "e2e" / "run_cases.py"
AIDL = HERE.parent.parent / "service/aidl/vendor/kest/hardware/vexil_svc/ISysLogControl.aidl"

# Service-backed commands: a valid command line, the service operations it makes in order when
# nothing fails, and its deliberate exceptions:
# - "write_after": a read whose failure (of the named faults) the command goes past, still writing;
#   then the write is the last call instead of there being none (a presence record that comes back
#   with a failed result is still used; a setting that could not be read is written anyway);
# - "no_service_stdout": what it prints on stdout when there is no service.
SERVICE_COMMANDS = [
    ("state modem", ["getSubsystemPresence", "getCellularLogSettings"], {}),
    ("setlog modem off",
     ["getSubsystemPresence", "getCellularLogSettings", "setCellularLogSettings"],
     {"write_after": {"getSubsystemPresence": ("result_minus_1", "result_minus_3")}}),
    ("clear", ["clearLogs"], {}),
    ("clear skipboot", ["clearLogsSkipBoot"], {}),
    ("collect all", ["collectLogs"], {}),
    ("flush", ["flushLogs"], {}),
    ("crash modem", ["crashSubsystem"], {}),
    ("setcomp modem lz4", ["getCellularLogSettings", "setCellularLogSettings"], {}),
    ("getcomp wcn", ["getConnectivityLogSettings"], {}),
    ("getcpcapacity modem internal", ["getSubsystemStorageParam"], {}),
    ("setcpcapacity modem external 100",
     ["getSubsystemStorageParam", "setSubsystemStorageParam"], {}),
    ("getfilesize modem", ["getSubsystemStorageParam"], {}),
    ("setfilesize wcn 10", ["getSubsystemStorageParam", "setSubsystemStorageParam"], {}),
    ("getstor", ["getPreferredStorageMedia"], {}),
    ("setstor data", ["setPreferredStorageMedia"], {}),
    ("getlogpath", ["getCurrentParentLogPath"], {}),
    ("setlogpath /data/x", ["getCurrentParentLogPath", "setCurrentParentLogPath"],
     {"write_after": {"getCurrentParentLogPath": ("status",)}}),
    ("getoverwrite modem", ["getSubsystemStorageParam"], {}),
    ("setoverwrite modem disable", ["getSubsystemStorageParam", "setSubsystemStorageParam"], {}),
    ("getfilenodel modem", ["getCellularLogSettings"], {}),
    ("setfilenodel modem enable", ["getCellularLogSettings", "setCellularLogSettings"], {}),
    ("getcpreset modem", ["getSubsystemAutoReboot"], {}),
    ("setcpreset wcn rstdmp", ["getSubsystemAutoReboot", "setSubsystemAutoReboot"],
     {"write_after": {"getSubsystemAutoReboot": ("status", "result_minus_1")}}),
    ("getcprunstate modem", ["getSubsystemRunState"], {}),
    ("getminidump", ["getCellularLogSettings"], {}),
    ("setminidump off", ["getCellularLogSettings", "setCellularLogSettings"], {}),
    ("getiolimit modem", ["getSubsystemPresence", "getCellularModemIoSettings"], {}),
    ("setiolimit modem avgratio 50",
     ["getSubsystemPresence", "getCellularModemIoSettings", "setCellularModemIoSettings"],
     {"write_after": {"getSubsystemPresence": ("result_minus_3",)}}),
    ("setmipilog enable 1 2", ["setMipiLogConfig"], {}),
    ("getmipilog enable", ["getMipiLogConfig"], {}),
    ("setlogpscfg debug", ["setPsLogModuleConfig"],
     {"no_service_stdout": "get logctlservice Error\n"}),
]

# Faults of the whole service: the state file, and what the tool prints.
SERVICE_WIDE_FAULTS = [
    ("absent", {"service": "absent"}),
    ("wrong_interface", {"service": "wrong-interface"}),
]
NO_SERVICE_STDERR = "ERROR,getService error"

# Faults of one call: the fault object the emulator applies to that operation. The result faults
# apply to operations that return an int (or an enum), not to those returning nothing or a string.
CALL_FAULTS = [
    ("status", {"status": "EX_TRANSACTION_FAILED"}),
    ("result_minus_1", {"result": -1}),
    ("result_minus_3", {"result": -3}),
    ("dies", {"die": True}),
]

# Socket commands: a command line, the request line it sends, and whether it is a query.
SOCKET_COMMANDS = [
    ("setvexil modem on", "ENABLE_LOG 5MODE\n", False),
    ("setvexiltopc disable", "DISABLE_LOG_TO_PC\n", False),
    ("getallvexilstate", "GET_LOG_STATE\n", True),
    ("getvexiltopcstate", "GET_LOG_TO_PC_STATE\n", True),
]

# Bad answers of vexilserver: name, the reply to the request line (None: never answers; "down":
# nothing listens), whether only queries take it, and what the tool writes to stderr (with
# nothing on stdout) where that is the same for every socket command, else None.
SOCKET_FAULTS = [
    ("nothing_listening", "down", False, "Connect to vexilserver server refused, errno = 111.\n"),
    ("never_answers", None, True, None),
    ("closes", "close", False, None),
    ("garbage", "\u0001\u007f#garbage%s%n\n", False, None),
    ("longer_than_32", "OK" + "x" * 40 + "\n", False, None),
    ("longer_than_32_error", "ERROR 1" + " " * 40 + "\n", False, "Error: 1(unknown request)\n"),
    ("error_1", "ERROR 1\n", False, "Error: 1(unknown request)\n"),
    ("error_9", "ERROR 9\n", False, "Error: 9(unknown CP or subsystem)\n"),
    ("error_12", "ERROR 12\n", False, "Invalid response: ERROR 12\n"),
    ("error_huge", "ERROR 99999999999999999999\n", False, None),
]

# Neither stream may carry a sanitizer's report.
CLEAN = 're"(?!.*(?:Sanitizer|runtime error)).*"'

# A query that is never answered gives up after 3 s; everything else ends at once.
TIME_LIMIT = 20


def json_text(value) -> str:
    return json.dumps(value, separators=(", ", ": "))


def c_string(text: str) -> str:
    return '"' + text.encode("unicode_escape").decode().replace('"', '\\"') + '"'


def case(name: str, argv: str, state: dict, lines: list) -> str:
    head = [f"case {name}", f"state {json_text(state)}", f"argv {argv}", f"timeout {TIME_LIMIT}"]
    return "\n".join(head + lines) + "\n"


def case_stem(argv: str) -> str:
    """The command line as a case name: words joined by '_', other characters dropped."""
    return "_".join("".join(c for c in word if c.isalnum()) for word in argv.split())


def operations_without_int() -> set:
    """Service operations that return nothing or a string, read from the AIDL interface."""
    text = AIDL.read_text(encoding="utf-8")
    return set(re.findall(r"^\s*(?:void|String)\s+(\w+)\(", text, re.MULTILINE))


def call_fault_lines(op: str, fault: str, ops: list, write_after: dict) -> list:
    """What a cell with this call fault checks beyond the clean streams."""
    if fault == "dies":
        return ['log "onBinderDied: Enter onBinderDied\\n"', f"no-call-after {op}"]
    if not op.startswith("get"):
        return [f"no-call-after {op}"]
    if fault in write_after.get(op, ()):
        return [f"no-call-after {ops[-1]}"]
    # Nothing is written after a failed read.
    return ["journal-lacks set.*"]


def service_cases() -> list:
    cases = []
    without_int = operations_without_int()
    for argv, ops, exceptions in SERVICE_COMMANDS:
        stem = case_stem(argv)
        stdout = exceptions.get("no_service_stdout", "")
        for fault, state in SERVICE_WIDE_FAULTS:
            cases.append(case(f"{stem}.{fault}", argv, state,
                              [f"stdout {c_string(stdout)}", f"stderr {c_string(NO_SERVICE_STDERR)}",
                               "journal []"]))
        for op in ops:
            for fault, fault_object in CALL_FAULTS:
                if "result" in fault_object and op in without_int:
                    continue
                lines = [f"stdout {CLEAN}", f"stderr {CLEAN}"]
                lines += call_fault_lines(op, fault, ops, exceptions.get("write_after", {}))
                cases.append(case(f"{stem}.{op}.{fault}", argv, {"faults": {op: fault_object}},
                                  lines))
    return cases


def socket_cases() -> list:
    cases = []
    for argv, line, is_query in SOCKET_COMMANDS:
        for fault, reply, queries_only, stderr in SOCKET_FAULTS:
            if queries_only and not is_query:
                continue
            if reply == "down":
                state = {"vexilserver": {"up": False}}
            else:
                state = {"vexilserver": {"replies": {line: reply}}}
            if stderr is None:
                lines = [f"stdout {CLEAN}", f"stderr {CLEAN}"]
            else:
                lines = ['stdout ""', f"stderr {c_string(stderr)}"]
            cases.append(case(f"{case_stem(argv)}.{fault}", argv, state, lines))
    return cases


def generate() -> str:
    header = "# Generated by tests/fault_matrix/fault_matrix.py; do not edit.\n\n"
    return header + "\n".join(service_cases() + socket_cases())


def main() -> int:
    parser = argparse.ArgumentParser()
    parser.add_argument("--vexilctl")
    parser.add_argument("--tarnmodem")
    parser.add_argument("--jobs", default="2")
    parser.add_argument("--only")
    parser.add_argument("--wrap", help="a command line to run vexilctl under")
    parser.add_argument("--print", action="store_true", help="only write the cases to stdout")
    args = parser.parse_args()
    text = generate()
    if args.print:
        sys.stdout.write(text)
        return 0
    if not args.vexilctl or not args.tarnmodem:
        parser.error("--vexilctl and --tarnmodem are needed to run the matrix")
    with tempfile.TemporaryDirectory(prefix="vexil-fault-matrix-") as tmp:
        path = os.path.join(tmp, "fault_matrix.case")
        with open(path, "w", encoding="utf-8") as f:
            f.write(text)
        command = [sys.executable, str(RUN_CASES), "--vexilctl", args.vexilctl,
                   "--tarnmodem", args.tarnmodem, "--jobs", args.jobs]
        if args.only:
            command += ["--only", args.only]
        if args.wrap:
            command += ["--wrap", args.wrap]
        return subprocess.run(command + [path]).returncode


if __name__ == "__main__":
    sys.exit(main())
