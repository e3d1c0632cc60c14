"""Parser of the end-to-end case files (format described in README.md)."""

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


@dataclass
class Matcher:
    """Expected bytes, exactly or as a regular expression over the text."""
    exact: Optional[bytes] = None
    regex: Optional[str] = None

    def matches(self, actual: bytes) -> bool:
        if self.regex is None:
            return actual == self.exact
        text = actual.decode("utf-8", "replace")
        return re.fullmatch(self.regex, text, re.DOTALL) is not None

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
    skip: Optional[str] = None
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
    emulator_gone: bool = False
    reload: Optional[str] = None  # state file text put in place before SIGHUP
    reload_line: bytes = b"reloaded\n"  # what tarnmodem must print for the reload
    emulator_exit: Optional[int] = None
    emulator_stderr: Optional[Matcher] = None
    sandbox: Optional[object] = None  # sandbox.Sandbox when the case uses its directives


SERVICE_NAME = "vendor.kest.hardware.vexil_svc.ISysLogControl/default"
RAW_TARGETS = ("vexilserver", "service", "log")

_ESCAPES = {"n": 10, "t": 9, "r": 13, "0": 0, "\\": 92, '"': 34, "'": 39, "a": 7, "b": 8,
            "f": 12, "v": 11, "e": 27}


def c_quote(data: bytes) -> str:
    """The C-style literal of some bytes, as the case files write them."""
    out = []
    for b in data:
        ch = chr(b)
        if ch == "\n":
            out.append("\\n")
        elif ch == "\t":
            out.append("\\t")
        elif ch in "\\\"":
            out.append("\\" + ch)
        elif 32 <= b < 127:
            out.append(ch)
        else:
            out.append(f"\\x{b:02x}")
    return '"' + "".join(out) + '"'


class _Expr:
    """Tokenizer and evaluator of byte expressions: terms joined by '+'.

    Terms: "C string", @golden, random(N), each optionally followed by '* N'.
    """

    def __init__(self, text: str, golden_dir: Path, seed: str, where: str):
        self.text, self.pos, self.golden_dir, self.seed, self.where = text, 0, golden_dir, seed, where

    def fail(self, msg: str):
        raise CaseError(f"{self.where}: {msg} in: {self.text}")

    def skip_blanks(self):
        while self.pos < len(self.text) and self.text[self.pos] in " \t":
            self.pos += 1

    def at_end(self) -> bool:
        self.skip_blanks()
        return self.pos >= len(self.text)

    def peek(self, s: str) -> bool:
        self.skip_blanks()
        return self.text.startswith(s, self.pos)

    def string(self) -> bytes:
        assert self.text[self.pos] == '"'
        self.pos += 1
        out = bytearray()
        while True:
            if self.pos >= len(self.text):
                self.fail("unterminated string")
            ch = self.text[self.pos]
            self.pos += 1
            if ch == '"':
                return bytes(out)
            if ch != "\\":
                out += ch.encode("utf-8")
                continue
            if self.pos >= len(self.text):
                self.fail("unterminated escape")
            esc = self.text[self.pos]
            self.pos += 1
            if esc == "x":
                digits = self.text[self.pos:self.pos + 2]
                if not re.fullmatch(r"[0-9a-fA-F]{2}", digits):
                    self.fail("\\x needs two hex digits")
                out.append(int(digits, 16))
                self.pos += 2
            elif esc in "01234567" and re.match(r"[0-7]{3}", self.text[self.pos - 1:]):
                out.append(int(self.text[self.pos - 1:self.pos + 2], 8) & 0xFF)
                self.pos += 2
            elif esc in _ESCAPES:
                out.append(_ESCAPES[esc])
            else:
                self.fail(f"unknown escape \\{esc}")

    def raw_string(self) -> str:
        """A regex literal: backslashes stay for the regex engine; only \" means a quote."""
        assert self.text[self.pos] == '"'
        self.pos += 1
        out = []
        while self.pos < len(self.text):
            ch = self.text[self.pos]
            if ch == '"':
                self.pos += 1
                return "".join(out)
            if ch == "\\" and self.text.startswith('\\"', self.pos):
                out.append('"')
                self.pos += 2
                continue
            if ch == "\\" and self.pos + 1 < len(self.text):
                out.append(self.text[self.pos:self.pos + 2])
                self.pos += 2
                continue
            out.append(ch)
            self.pos += 1
        self.fail("unterminated regex")

    def number(self) -> int:
        self.skip_blanks()
        m = re.compile(r"\d+").match(self.text, self.pos)
        if not m:
            self.fail("number expected")
        self.pos = m.end()
        return int(m.group())

    def term(self) -> bytes:
        self.skip_blanks()
        if self.peek('"'):
            value = self.string()
        elif self.peek("@"):
            m = re.compile(r"@([\w.-]+)").match(self.text, self.pos)
            if not m:
                self.fail("golden file name expected after @")
            self.pos = m.end()
            path = self.golden_dir / (m.group(1) + ".txt")
            if not path.is_file():
                self.fail(f"no golden file {path}")
            value = path.read_bytes()
        elif self.peek("random("):
            self.pos += len("random(")
            count = self.number()
            if not self.peek(")"):
                self.fail("')' expected")
            self.pos += 1
            value = random.Random(self.seed).randbytes(count)
        else:
            self.fail("string, @golden or random(N) expected")
        if self.peek("*"):
            self.pos += 1
            value *= self.number()
        return value

    def bytes(self) -> bytes:
        value = self.term()
        while not self.at_end():
            if not self.peek("+"):
                self.fail("'+' expected")
            self.pos += 1
            value += self.term()
        return value


def parse_bytes(text: str, golden_dir: Path, seed: str, where: str) -> bytes:
    return _Expr(text.strip(), golden_dir, seed, where).bytes()


def parse_matcher(text: str, golden_dir: Path, seed: str, where: str) -> Matcher:
    text = text.strip()
    if text.startswith('re"'):
        expr = _Expr(text[2:], golden_dir, seed, where)
        pattern = expr.raw_string()
        if not expr.at_end():
            expr.fail("nothing may follow a regex")
        try:
            re.compile(pattern)
        except re.error as e:
            raise CaseError(f"{where}: bad regex: {e}") from None
        return Matcher(regex=pattern)
    return Matcher(exact=parse_bytes(text, golden_dir, seed, where))


def _parse_json(text: str, where: str, kind: type):
    try:
        value = json.loads(text)
    except json.JSONDecodeError as e:
        raise CaseError(f"{where}: bad JSON: {e}") from None
    if not isinstance(value, kind):
        raise CaseError(f"{where}: expected a JSON {kind.__name__}")
    return value


def _parse_raw(value: str, golden_dir: Path, seed: str, where: str, line: int) -> RawClient:
    target, _, rest = value.strip().partition(" ")
    if target not in RAW_TARGETS:
        raise CaseError(f"{where}: raw target must be one of {', '.join(RAW_TARGETS)}")
    rest = rest.strip()
    hold = rest.startswith("hold ")
    if hold:
        rest = rest[len("hold "):]
        if target == "log":
            raise CaseError(f"{where}: a datagram cannot be held")
    payload_text, arrow, expect_text = rest.partition("=>")
    payload_text = payload_text.strip()
    payload = None if payload_text == "connect-leave" else parse_bytes(
        payload_text, golden_dir, seed, where)
    expect = parse_matcher(expect_text, golden_dir, seed, where) if arrow else None
    if expect is not None and (target == "log" or hold):
        raise CaseError(f"{where}: no reply is read from a datagram or a held connection")
    return RawClient(target, payload, expect, line, hold)


def parse_file(path: Path, golden_dir: Path) -> List[Case]:
    cases: List[Case] = []
    names = set()
    lines = path.read_text(encoding="utf-8").split("\n")
    i = 0
    case: Optional[Case] = None
    while i < len(lines):
        lineno = i + 1
        raw_line = lines[i]
        i += 1
        stripped = raw_line.strip()
        if not stripped or stripped.startswith("#"):
            continue
        where = f"{path}:{lineno}"
        key, _, value = stripped.partition(" ")
        value = value.strip()
        if value.startswith("<<"):
            # Here-document: the lines up to the terminator word form the value.
            terminator = value[2:].strip()
            if not terminator:
                raise CaseError(f"{where}: '<<' needs a terminator word")
            body = []
            while i < len(lines) and lines[i].strip() != terminator:
                body.append(lines[i])
                i += 1
            if i >= len(lines):
                raise CaseError(f"{where}: no line '{terminator}' ends the value")
            i += 1
            value = "\n".join(body)
        if key == "case":
            if not re.fullmatch(r"[\w.-]+", value):
                raise CaseError(f"{where}: case name must be letters, digits, '_', '-', '.'")
            if value in names:
                raise CaseError(f"{where}: second case named {value}")
            names.add(value)
            case = Case(name=value, path=str(path), line=lineno)
            cases.append(case)
            continue
        if case is None:
            raise CaseError(f"{where}: '{key}' before the first 'case'")
        seed = f"{path.name}:{case.name}:{lineno}"
        if key == "skip":
            case.skip = value or "skipped"
        elif key == "state":
            _parse_json(value, where, dict)
            case.state = value
        elif key == "state-raw":
            case.state = value
        elif key in ("reload", "reload-refused"):
            case.reload = value
            case.reload_line = b"reloaded\n" if key == "reload" else b"reload failed\n"
        elif key == "emulator-args":
            case.emulator_args = shlex.split(value)
        elif key == "raw":
            case.raw.append(_parse_raw(value, golden_dir, seed, where, lineno))
        elif key == "argv":
            try:
                case.argv = shlex.split(value)
            except ValueError as e:
                raise CaseError(f"{where}: {e}") from None
        elif key == "stdout":
            case.stdout = parse_matcher(value, golden_dir, seed, where)
        elif key == "stderr":
            case.stderr = parse_matcher(value, golden_dir, seed, where)
        elif key == "exit":
            case.exit = _int(value, where)
        elif key == "timeout":
            case.timeout = float(_int(value, where))
        elif key == "journal":
            case.journal = _parse_json(value, where, list)
        elif key == "journal-has":
            case.journal_has = _parse_json(value, where, list)
        elif key == "journal-lacks":
            case.journal_lacks.append(_regex(value, where))
        elif key == "no-call-after":
            case.no_call_after.append(value)
        elif key == "log":
            case.log.append(parse_matcher(value, golden_dir, seed, where))
        elif key == "log-exact":
            case.log_exact = True
        elif key == "emulator":
            if value not in ("gone", "alive"):
                raise CaseError(f"{where}: 'emulator' takes gone or alive")
            case.emulator_gone = value == "gone"
        elif key == "emulator-exit":
            case.emulator_exit = _int(value, where)
        elif key == "emulator-stderr":
            case.emulator_stderr = parse_matcher(value, golden_dir, seed, where)
        elif key in sandbox.DIRECTIVES:
            sandbox.parse_directive(case, key, value, golden_dir, seed, where)
        else:
            raise CaseError(f"{where}: unknown directive '{key}'")
    for c in cases:
        if c.argv is None and c.emulator_exit is None and not c.raw and c.skip is None:
            raise CaseError(f"{c.path}:{c.line}: case {c.name} runs nothing (no argv, raw or "
                            "emulator-exit)")
    return cases


def _int(value: str, where: str) -> int:
    try:
        return int(value)
    except ValueError:
        raise CaseError(f"{where}: integer expected, got '{value}'") from None


def _regex(value: str, where: str) -> str:
    try:
        re.compile(value)
    except re.error as e:
        raise CaseError(f"{where}: bad regex: {e}") from None
    return value
