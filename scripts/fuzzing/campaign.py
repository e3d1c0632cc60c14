#!/usr/bin/env python3
"""A long fuzzing run of each named target (built by scripts/check_fuzz.sh in build/fuzz): from its
corpus in <dir>/corpus/<target>/ with its dictionary <dir>/<target>.dict when there is one (<dir>:
tests/fuzz for the tool's targets, host/emulator/fuzz for the emulator's), for the
given seconds. What it finds is merged back into the corpus, minimised (-merge=1). Prints per
target the executions, executions per second, the CPU seconds the target used, coverage
(cov / ft), the time of the last new feature and whether the coverage flattened (nothing new in
the last quarter of the run), and appends the same to scripts/fuzzing/campaign.tsv, the record of every
campaign run (on a shared machine wall time and CPU time differ: the CPU seconds add up).

    python3 scripts/fuzzing/campaign.py SECONDS TARGET..."""

import os
import re
import resource
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
HERE = Path(__file__).resolve().parent
STATUS = re.compile(r"^#(\d+)\s+(NEW|REDUCE|pulse|DONE|INITED)\s+cov: (\d+) ft: (\d+)")


def target_dir(target: str) -> Path:
    """The directory of the target's source, dictionary and corpus."""
    for dir in (ROOT / "tests/fuzz", ROOT / "host/emulator/fuzz"):
        if (dir / f"{target}.cpp").exists():
            return dir
    sys.exit(f"campaign: no target {target} in tests/fuzz or host/emulator/fuzz")


def run(target: str, seconds: int) -> dict:
    binary = ROOT / "build/fuzz/fuzzers" / target
    corpus = target_dir(target) / "corpus" / target
    corpus.mkdir(parents=True, exist_ok=True)
    findings = ROOT / "build/fuzz/findings"
    findings.mkdir(parents=True, exist_ok=True)
    scratch = Path(tempfile.mkdtemp(prefix=f"{target}."))
    found = scratch / "found"
    found.mkdir()
    args = [str(binary), f"-max_total_time={seconds}", "-close_fd_mask=3", "-print_final_stats=1",
            "-print_pcs=0", f"-artifact_prefix={findings}/{target}-", str(found), str(corpus)]
    dictionary = target_dir(target) / f"{target}.dict"
    if dictionary.exists():
        args.insert(1, f"-dict={dictionary}")
    start = time.monotonic()
    cpu_before = resource.getrusage(resource.RUSAGE_CHILDREN)
    last_new, cov, ft, execs = 0.0, 0, 0, 0
    crashed = False
    with subprocess.Popen(args, stderr=subprocess.PIPE, stdout=subprocess.DEVNULL, text=True,
                          errors="replace") as proc:
        for line in proc.stderr:
            status = STATUS.match(line)
            if status:
                execs, cov, ft = int(status[1]), int(status[3]), int(status[4])
                if status[2] == "NEW":  # REDUCE only finds a smaller input for known features
                    last_new = time.monotonic() - start
            elif line.startswith("stat::number_of_executed_units:"):
                execs = int(line.rsplit(":", 1)[1])
            elif "ERROR: libFuzzer" in line or "ERROR: AddressSanitizer" in line or \
                    "runtime error:" in line:
                crashed = True
            if crashed:
                sys.stderr.write(line)
    elapsed = time.monotonic() - start
    cpu_after = resource.getrusage(resource.RUSAGE_CHILDREN)
    cpu = (cpu_after.ru_utime + cpu_after.ru_stime) - (cpu_before.ru_utime + cpu_before.ru_stime)
    crashed = crashed or proc.returncode != 0
    # The corpus becomes the smallest set that keeps all the coverage of the old and the new.
    merged = scratch / "merged"
    merged.mkdir()
    subprocess.run([str(binary), "-merge=1", "-close_fd_mask=3", str(merged), str(corpus),
                    str(found)], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)
    if any(merged.iterdir()):
        # Kept as they are whatever the merge keeps: a fixed fault's input (finding-*), and a seed
        # written for lines whose coverage the fuzz build cannot tell apart (seed-*: a switch the
        # compiler turns into a table lookup has no edge per case).
        for kept in [*corpus.glob("finding-*"), *corpus.glob("seed-*")]:
            shutil.copy(kept, merged)
        shutil.rmtree(corpus)
        shutil.copytree(merged, corpus)
    shutil.rmtree(scratch)
    return {"target": target, "seconds": round(elapsed), "cpu_seconds": round(cpu), "execs": execs,
            "per_second": round(execs / elapsed) if elapsed else 0, "cov": cov, "ft": ft,
            "last_new": round(last_new), "flat": "yes" if last_new < 0.75 * elapsed else "no",
            "corpus": len(os.listdir(corpus)), "crashed": "yes" if crashed else "no"}


def main() -> int:
    if len(sys.argv) < 3 or not sys.argv[1].isdigit():
        sys.exit(__doc__)
    seconds, targets = int(sys.argv[1]), sys.argv[2:]
    log = HERE / "campaign.tsv"
    columns = ["date", "target", "seconds", "cpu_seconds", "execs", "per_second", "cov", "ft", "last_new", "flat",
               "corpus", "crashed"]
    if not log.exists():
        log.write_text("\t".join(columns) + "\n")
    status = 0
    for target in targets:
        result = run(target, seconds)
        result["date"] = time.strftime("%Y-%m-%d")
        with log.open("a") as out:
            out.write("\t".join(str(result[c]) for c in columns) + "\n")
        print(f"campaign: {target}: {result['execs']} runs in {result['seconds']} s "
              f"({result['per_second']}/s, {result['cpu_seconds']} CPU s), cov {result['cov']} ft {result['ft']}, last new "
              f"feature at {result['last_new']} s, flattened: {result['flat']}, corpus "
              f"{result['corpus']} inputs" + (", CRASHED" if result["crashed"] == "yes" else ""))
        status |= result["crashed"] == "yes"
    return status


if __name__ == "__main__":
    sys.exit(main())
