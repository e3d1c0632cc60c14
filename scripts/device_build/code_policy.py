#!/usr/bin/env python3
"""Ties the names the tool's code uses to what the vendor policy labels and allows, each read
from its one definition in the code:

- the service instance the tool asks the service manager for (service/Request.cpp:
  kServiceInstance, the interface's descriptor as the generated library defines it followed by
  the instance) must be a name service_contexts labels, with a type that vexilctl may find;
- the socket the tool opens (server/VexilserverRequest.cpp: socket_local_client) must be of the
  type the daemon listens with (a connect of another type is refused by the kernel), and the
  SELinux class the kernel gives that type must be one the policy lets vexilctl connect to the
  daemon with.

    code_policy.py POLICY SERVICE_CONTEXTS TESTS_DIR DAEMON DAEMON_SOCKET DAEMON_SOCKET_TYPE

POLICY is the compiled policy, SERVICE_CONTEXTS the vendor service_contexts as built, TESTS_DIR
holds the tree's policy.py and libsepolwrap.so; DAEMON is the daemon's domain and
DAEMON_SOCKET, DAEMON_SOCKET_TYPE its socket's name and type (the daemon's policy stand-in)."""

import os
import re
import sys
from pathlib import Path

ROOT = Path(os.environ.get("ROOT") or Path(__file__).resolve().parents[2])
TOOL_DIRS = ("debug", "front", "requests", "server", "service")
GENERATED = ROOT / "service/ndk"
DOMAIN = "vexilctl"
# The SELinux class of a local socket of each type, and what connecting with it asks (the
# kernel's socket_type_to_security_class: SOCK_SEQPACKET shares the stream class).
CLASSES = {"SOCK_STREAM": ("unix_stream_socket", "connectto"),
           "SOCK_SEQPACKET": ("unix_stream_socket", "connectto"),
           "SOCK_DGRAM": ("unix_dgram_socket", "sendto")}

errors = []


def fail(message: str) -> None:
    errors.append(message)


def tool_sources() -> dict:
    return {p.relative_to(ROOT).as_posix(): p.read_text(errors="replace")
            for d in TOOL_DIRS for p in sorted((ROOT / d).rglob("*")) if p.suffix in (".cpp", ".h")}


def one(sources: dict, pattern: str, what: str, form: str):
    """The single match of pattern in the tool's sources, as (file, groups...); None after failing."""
    found = [(f, *m.groups()) for f, text in sources.items() for m in re.finditer(pattern, text)]
    if len(found) != 1:
        where = ", ".join(f[0] for f in found) or "nowhere"
        fail(f"{what} must be defined once in the tool's sources, as {form} (found {len(found)}: {where})")
        return None
    return found[0]


def service_instance(sources: dict):
    found = one(sources, r'\bkServiceInstance\s*=\s*std::string\((\w+)::descriptor\)\s*\+\s*"([^"]*)"',
                "the service instance", 'kServiceInstance = std::string(<interface>::descriptor) + "/<instance>"')
    if not found:
        return None
    file, interface, suffix = found
    if not re.search(r"AServiceManager_\w+\(\s*kServiceInstance\b", sources[file]):
        fail(f"{file}: kServiceInstance is not what the tool asks the service manager for")
    descriptors = {d for p in GENERATED.rglob(f"{interface}.cpp")
                   for d in re.findall(rf'const char\* {interface}::descriptor = "([^"]+)";', p.read_text())}
    if len(descriptors) != 1:
        fail(f"{interface}::descriptor is not defined once in service/ndk/ (found {sorted(descriptors)})")
        return None
    return file, descriptors.pop() + suffix


def socket_use(sources: dict):
    found = one(sources, r"\bsocket_local_client\(\s*(\w+)\s*,\s*(\w+)\s*,\s*(\w+)\s*\)",
                "the vexilserver connection", "socket_local_client(<name constant>, <namespace>, <type>)")
    if not found:
        return None
    file, name_constant, namespace, kind = found
    name = re.search(rf'\b{name_constant}\[\]\s*=\s*"([^"]*)"', sources[file])
    if not name:
        fail(f'{file}: the socket name {name_constant} is not defined there as {name_constant}[] = "<name>"')
        return None
    return file, name.group(1), namespace, kind


def main(policy_file, service_contexts, tests_dir, daemon, daemon_socket, daemon_type) -> int:
    sys.path.insert(0, tests_dir)
    import policy  # the tree's system/sepolicy/tests/policy.py
    pol = policy.Policy(policy_file, None, os.path.join(tests_dir, "libsepolwrap.so"))

    def allowed(source, target, tclass, perm) -> bool:
        return any(perm in rule.perms for rule in pol.QueryTERule(
            scontext={source}, tcontext={target}, tclass={tclass}, perms={perm}))

    sources = tool_sources()
    labels = {}
    for line in Path(service_contexts).read_text().splitlines():
        fields = line.split("#", 1)[0].split()
        if len(fields) == 2:
            labels[fields[0]] = fields[1].split(":")[2]

    instance = service_instance(sources)
    if instance:
        file, name = instance
        if name not in labels:
            fail(f"{file} asks the service manager for {name}, which sepolicy/service_contexts does not "
                 f"label (it labels {', '.join(sorted(labels)) or 'nothing'}): a device refuses the lookup; "
                 "the instance the tool asks for, the one the daemon adds and service_contexts must be one name")
        elif not allowed(DOMAIN, labels[name], "service_manager", "find"):
            fail(f"{name} is labelled {labels[name]} (sepolicy/service_contexts), which {DOMAIN} may not "
                 f"find: allow it in sepolicy/ (hal_client_domain({DOMAIN}, ...))")
        else:
            print(f"code_policy: {file} asks for {name}, labelled {labels[name]}, which {DOMAIN} may find")

    use = socket_use(sources)
    if use:
        file, name, namespace, kind = use
        if (name, kind) != (daemon_socket, daemon_type) or namespace != "ANDROID_SOCKET_NAMESPACE_ABSTRACT":
            fail(f"{file} connects to {name} ({namespace}) as {kind}, but the daemon listens on the "
                 f"abstract {daemon_type} socket {daemon_socket}: the kernel refuses a connect of another "
                 f"name or type (EPROTOTYPE for the type); open it as {daemon_type}")
        tclass, perm = CLASSES.get(kind, (None, None))
        if not tclass or not allowed(DOMAIN, daemon, tclass, perm) or not allowed(DOMAIN, DOMAIN, tclass, "create"):
            fail(f"{file} opens a {kind} socket (class {tclass}), but the policy does not let {DOMAIN} create "
                 f"one and {perm} {daemon} with it: allow it in sepolicy/{DOMAIN}.te")
        elif not errors:
            print(f"code_policy: {file} connects to {daemon_socket} as {kind} (class {tclass}), which "
                  f"{DOMAIN} may {perm} {daemon} with")

    for error in errors:
        print(f"code_policy: {error}", file=sys.stderr)
    return 1 if errors else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
