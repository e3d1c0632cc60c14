"""Runs vexilctl for a sandbox case and notes what the judge needs.

Arguments: those of vexilctl. Environment: VEXIL_SANDBOX_TOOL (the real binary),
VEXIL_SANDBOX_REPEAT (how many runs in a row; more than one start just after a second begins, so
they all fall within it) and VEXIL_SANDBOX_RUNS (where to write, as JSON, what pidof printed just
before the runs and the time stamps of every second they spanned). Standard streams pass through;
the exit status is that of the last run.
"""

import base64
import json
import math
import os
import subprocess
import sys
import time


def stamp(seconds: int) -> str:
    return time.strftime("%Y%m%d-%H%M%S", time.localtime(seconds))


def main() -> int:
    tool = os.environ["VEXIL_SANDBOX_TOOL"]
    repeat = int(os.environ["VEXIL_SANDBOX_REPEAT"])
    if repeat > 1:
        now = time.time()
        time.sleep(math.floor(now) + 1.01 - now)
    pidof = subprocess.run(["pidof", "tarnmodem"], capture_output=True).stdout
    start = time.time()
    status = 0
    for _ in range(repeat):
        status = subprocess.run([tool] + sys.argv[1:], stdin=subprocess.DEVNULL).returncode
    end = time.time()
    with open(os.environ["VEXIL_SANDBOX_RUNS"], "w", encoding="utf-8") as f:
        json.dump({"pidof": base64.b64encode(pidof).decode("ascii"),
                   "stamps": [stamp(s) for s in range(math.floor(start), math.floor(end) + 1)]}, f)
    return status if status >= 0 else 128 - status


if __name__ == "__main__":
    sys.exit(main())
