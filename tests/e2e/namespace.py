"""Network namespaces for the tests: each run gets abstract socket names of its own."""

import os
import subprocess
import sys


def namespace_prefix() -> list:
    """The command that gives a child its own network namespace, or [] when none can be had."""
    for prefix in (["unshare", "-n"], ["unshare", "-rn"]):
        if subprocess.run(prefix + ["true"], capture_output=True).returncode == 0:
            return prefix
    return []


def reexec_in_own_namespace(mark: str):
    """Starts the calling script again in a network namespace of its own, unless it already runs
    in one (the environment variable mark says so)."""
    if os.environ.get(mark) == "1":
        return
    prefix = namespace_prefix()
    if not prefix:
        sys.exit(f"{sys.argv[0]}: no network namespace can be made (unshare -n, unshare -rn)")
    os.environ[mark] = "1"
    os.execvp(prefix[0], prefix + [sys.executable, os.path.abspath(sys.argv[0])] + sys.argv[1:])
