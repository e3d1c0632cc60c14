#!/usr/bin/env python3
"""The fault matrix: every service-backed command against every kind of service fault, and every
socket command against every kind of bad vexilserver answer, generated from the tables below and
run as end-to-end cases (tests/e2e format) by the case runner.

Every cell must end with exit status 0, within its time limit, with no sanitizer text on either
stream, without taking the emulator down (unless the fault kills it), and without a write to the
service after a failed read. Where a table states an exact output, that is checked too.
Options: those of tests/e2e/run_cases.py.
"""

import errno
import json
import re
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "e2e"))
import run_cases  # noqa: E402
from caseformat import Goldens, parse_file  # noqa: E402

AIDL = HERE.parent.parent / "service/aidl/vendor/kest/hardware/vexil_svc/ISysLogControl.aidl"

# Service-backed commands: a valid command line, the service operations it makes in order when
# nothing fails, and its deliberate exceptions:
# - "write_after": a read whose failure (of the named faults; "status" stands for both status
#   faults) the command goes past, still writing; then the write is the last call instead of there
#   being none (a presence record that comes back with a failed result is still used; a setting
#   that could not be read is written anyway);
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
    ("status_unknown_transaction", {"status": -errno.EBADMSG}),  # a daemon without the call
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
    ("error_12", "ERROR 12\n", False, "Invalid response: ERROR 12\n"),
    ("error_huge", "ERROR 99999999999999999999\n", False, None),
]

# Neither stream may carry a sanitizer's report.
CLEAN = 're"(?!.*(?:Sanitizer|runtime error)).*"'
# A query that is never answered gives up after 3 s; everything else ends at once.
TIME_LIMIT = 20


def case(argv: str, name: str, state: dict, checks: list) -> str:
    """One case in the compact form; its name is the command line's words joined by '_'."""
    stem = "_".join(re.sub(r"\W", "", word) for word in argv.split())
    return " | ".join([f"case {stem}.{name}", f"state {json.dumps(state)}", f"argv {argv}",
                       f"timeout {TIME_LIMIT}"] + checks)


def streams(stdout, stderr) -> list:
    """Exact streams where given, else streams free of sanitizer reports."""
    return [f"stdout {CLEAN if stdout is None else json.dumps(stdout)}",
            f"stderr {CLEAN if stderr is None else json.dumps(stderr)}"]


def call_fault_checks(op: str, fault: str, ops: list, write_after: dict) -> list:
    """What a cell with this call fault checks beyond the clean streams."""
    if fault == "dies":
        return ['log "onBinderDied: Enter onBinderDied\\n"', f"no-call-after {op}"]
    if not op.startswith("get"):
        return [f"no-call-after {op}"]
    if fault.startswith(tuple(write_after.get(op, ()))):
        return [f"no-call-after {ops[-1]}"]
    return ["journal-lacks set.*"]  # nothing is written after a failed read


def service_cases() -> list:
    # Operations that return nothing or a string take no result fault.
    without_int = set(re.findall(r"^\s*(?:void|String)\s+(\w+)\(", AIDL.read_text(), re.M))
    cases = []
    for argv, ops, exceptions in SERVICE_COMMANDS:
        for fault, state in SERVICE_WIDE_FAULTS:
            cases.append(case(argv, fault, state, streams(
                exceptions.get("no_service_stdout", ""), NO_SERVICE_STDERR) + ["journal []"]))
        for op in ops:
            for fault, fault_object in CALL_FAULTS:
                if "result" not in fault_object or op not in without_int:
                    cases.append(case(argv, f"{op}.{fault}", {"faults": {op: fault_object}},
                                      streams(None, None) + call_fault_checks(
                                          op, fault, ops, exceptions.get("write_after", {}))))
    return cases


def socket_cases() -> list:
    cases = []
    for argv, line, is_query in SOCKET_COMMANDS:
        for fault, reply, queries_only, stderr in SOCKET_FAULTS:
            if queries_only and not is_query:
                continue
            state = {"vexilserver": {"up": False} if reply == "down" else {
                "replies": {line: reply}}}
            cases.append(case(argv, fault, state, streams(None if stderr is None else "", stderr)))
    return cases


def main() -> int:
    p = run_cases.parser()
    p.add_argument("--shard", default="1/1", help="K/N: every N-th case, starting at the K-th")
    args = p.parse_args()
    k, n = (int(x) for x in args.shard.split("/"))
    cases = parse_file(Path("fault_matrix"), Goldens(HERE, args.formatter),
                       "\n".join(service_cases() + socket_cases()))
    return run_cases.run(cases[k - 1::n], args)


if __name__ == "__main__":
    sys.exit(main())
