"""Parser of the end-to-end case files (format described in README.md)."""

import codecs
import json
import random
import re
import shlex
from dataclasses import dataclass, field
from pathlib import Path
from typing import List, Optional

import sandbox


class CaseError(Exception):
    """A case file that cannot be read; the message names file and line."""


# A '%' that starts a conversion: flags, width, precision, length, conversion character.
_CONVERSION = re.compile(rb"%[-+ #0-9.*'hlLqjzt]*[diouxXeEfFgGaAcCsSpnm%]")


@dataclass(frozen=True)
class Goldens:
    """The golden files and the C library whose formatter the tool writes them through: each
    holds a usage text as written, which the tool uses as the format itself."""
    directory: Path
    formatter: str = "glibc"  # or "bionic"

    def text(self, name: str) -> bytes:
        """The golden text as the formatter writes it. A '%' that starts no conversion (the one of
        "percentage(%).") is written as it is by glibc and as its character alone by bionic;
        "%%" is "%"; a conversion (which would read an argument that is not there) is refused."""
        written, text, pos = b"", (self.directory / (name + ".txt")).read_bytes(), 0
        while (percent := text.find(b"%", pos)) >= 0:
            sequence = text[percent:percent + 2]
            if len(sequence) < 2 or _CONVERSION.match(text, percent) and sequence != b"%%":
                raise ValueError(f"golden text {name} has a conversion at byte {percent}")
            if sequence == b"%%":
                sequence = b"%"
            elif self.formatter == "bionic":
                sequence = sequence[1:]
            written += text[pos:percent] + sequence
            pos = percent + 2
        return written + text[pos:]


@dataclass
class Matcher:
    """Expected bytes, exactly or as a regular expression over the text."""
    exact: Optional[bytes] = None
    regex: Optional[str] = None

    def matches(self, actual: bytes) -> bool:
        if self.regex is None:
            return actual == self.exact
        return re.fullmatch(self.regex, actual.decode("utf-8", "replace"), re.DOTALL) is not None

    def describe(self) -> str:
        return f're"{self.regex}"' if self.regex is not None else c_quote(self.exact)


@dataclass
class RawClient:
    target: str  # "vexilserver", "service" or "log"
    payload: Optional[bytes]  # None: connect and leave at once
    expect: Optional[Matcher] = None  # reply expected from the emulator
    line: int = 0
    hold: bool = False  # stays connected until the case ends


@dataclass
class Case:
    name: str
    path: str
    line: int
    state: Optional[str] = None
    emulator_args: List[str] = field(default_factory=list)
    raw: List[RawClient] = field(default_factory=list)
    argv: Optional[List[str]] = None
    stdout: Matcher = field(default_factory=lambda: Matcher(exact=b""))
    stderr: Matcher = field(default_factory=lambda: Matcher(exact=b""))
    exit: int = 0
    timeout: float = 10.0
    journal: Optional[list] = None
    journal_has: Optional[list] = None
    journal_lacks: List[str] = field(default_factory=list)
    no_call_after: List[str] = field(default_factory=list)
    log: List[Matcher] = field(default_factory=list)
    log_exact: bool = False
    reload: Optional[str] = None  # state file text put in place before SIGHUP
    reload_line: bytes = b"reloaded\n"  # what tarnmodem must print for the reload
    emulator_exit: Optional[int] = None
    emulator_stderr: Optional[Matcher] = None
    sandbox: Optional[object] = None  # sandbox.Sandbox when the case uses its directives


RAW_TARGETS = ("vexilserver", "service", "log")


def c_quote(data: bytes) -> str:
    """The C-style literal of some bytes, as the case files write them."""
    special = {10: "\\n", 9: "\\t", 92: "\\\\", 34: '\\"'}
    return '"' + "".join(special.get(b) or (chr(b) if 32 <= b < 127 else f"\\x{b:02x}")
                         for b in data) + '"'


# One term of a byte expression: "C string", @golden or random(N), perhaps followed by '* N'.
_TERM = re.compile(r'\s*(?:"((?:[^"\\]|\\.)*)"|@([\w.-]+)|random\((\d+)\))(?:\s*\*\s*(\d+))?\s*')


def parse_bytes(text: str, goldens: Goldens, seed: str) -> bytes:
    """Terms joined by '+'; strings take the C escapes (\\n \\t \\r \\0 \\\\ \\" \\xHH \\NNN)."""
    text, pos, value = text.strip(), 0, b""
    while True:
        m = _TERM.match(text, pos)
        if not m or m.end() < len(text) and text[m.end()] != "+":
            raise ValueError(f"terms joined by '+' expected in: {text}")
        string, golden, count, times = m.groups()
        if string is not None:
            term = codecs.escape_decode(string.encode("utf-8"))[0]
        elif golden is not None:
            term = goldens.text(golden)
        else:
            term = random.Random(seed).randbytes(int(count))
        value += term * int(times or 1)
        if m.end() == len(text):
            return value
        pos = m.end() + 1


def parse_matcher(text: str, goldens: Goldens, seed: str) -> Matcher:
    m = re.fullmatch(r're"((?:[^"\\]|\\.)*)"', text.strip())
    if not m:
        return Matcher(exact=parse_bytes(text, goldens, seed))
    return Matcher(regex=re.compile(m.group(1).replace('\\"', '"')).pattern)


def _journal(entries: list) -> list:
    """Journal entries in full; a call may be written short, as "op" or ["op", arg, ...]."""
    def full(entry):
        if isinstance(entry, str):
            return {"op": entry, "args": []}
        return {"op": entry[0], "args": entry[1:]} if isinstance(entry, list) else entry
    return [full(e) for e in json.loads(entries)]


def _directive(case: Case, key: str, value: str, goldens: Goldens, seed: str, line: int):
    def matcher():
        return parse_matcher(value, goldens, seed)
    if key == "state":
        json.loads(value)
        case.state = value
    elif key in ("reload", "reload-refused"):
        case.reload = value
        case.reload_line = b"reloaded\n" if key == "reload" else b"reload failed\n"
    elif key in ("emulator-args", "argv"):
        setattr(case, key.replace("-", "_"), shlex.split(value))
    elif key == "raw":
        target, _, rest = value.partition(" ")
        hold = rest.startswith("hold ")
        payload, arrow, expect = rest[5 if hold else 0:].partition("=>")
        if target not in RAW_TARGETS:
            raise ValueError(f"raw target must be one of {', '.join(RAW_TARGETS)}")
        case.raw.append(RawClient(target, None if payload.strip() == "connect-leave" else
                                  parse_bytes(payload, goldens, seed), parse_matcher(
                                      expect, goldens, seed) if arrow else None, line, hold))
    elif key in ("stdout", "stderr", "emulator-stderr"):
        setattr(case, key.replace("-", "_"), matcher())
    elif key in ("exit", "timeout", "emulator-exit"):
        setattr(case, key.replace("-", "_"), int(value))
    elif key in ("journal", "journal-has"):
        setattr(case, key.replace("-", "_"), _journal(value))
    elif key == "journal-lacks":
        case.journal_lacks.append(re.compile(value).pattern)
    elif key == "no-call-after":
        case.no_call_after.append(value)
    elif key == "log":
        case.log.append(matcher())
    elif key == "log-exact":
        case.log_exact = True
    elif key in sandbox.DIRECTIVES:
        sandbox.parse_directive(case, key, value, goldens, seed)
    else:
        raise ValueError(f"unknown directive '{key} {value}'")


def parse_file(path: Path, goldens: Goldens, text: Optional[str] = None) -> List[Case]:
    """The cases of a file (or of text, named path): `case NAME | directive | ...`, continued on
    lines that begin with `| `."""
    cases: List[Case] = []
    text = path.read_text(encoding="utf-8") if text is None else text
    for number, line in enumerate(text.split("\n"), 1):
        line = line.strip()
        if not line or line.startswith("#"):
            continue
        try:
            if not line.startswith("case ") and not (line.startswith("| ") and cases):
                raise ValueError("'case NAME | ...' or a '| ...' line after it expected")
            for cell in line.removeprefix("| ").split(" | "):
                key, _, value = cell.strip().partition(" ")
                if key != "case":
                    seed = f"{path.name}:{cases[-1].name}:{number}"
                    _directive(cases[-1], key, value.strip(), goldens, seed, number)
                elif re.fullmatch(r"[\w.-]+", value) and value not in (c.name for c in cases):
                    cases.append(Case(name=value, path=str(path), line=number))
                else:
                    raise ValueError("case name must be new, of letters, digits, '_-.'")
        except (ValueError, re.error, OSError) as e:
            raise CaseError(f"{path}:{number}: {e}") from None
    for c in cases:
        if c.argv is None and c.emulator_exit is None and not c.raw:
            raise CaseError(f"{c.path}:{c.line}: case {c.name} runs nothing")
    return cases
