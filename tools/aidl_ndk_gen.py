#!/usr/bin/env python3
"""Generates NDK-backend C++ for a stable AIDL package (the subset this project's service uses).

Usage:
    aidl_ndk_gen.py -I IMPORT_ROOT -o OUT_DIR [--list-outputs] FILE.aidl...

Every FILE must lie under IMPORT_ROOT at the path of its package and hold one type named like
the file. Headers go to OUT_DIR/include/aidl/<package path>/, sources to OUT_DIR/<package path>/.
With --list-outputs the output paths are printed (one per line) and nothing is written.
The interface's version and hash are those of the newest frozen API dump under
IMPORT_ROOT/aidl_api/<package>/<N>/ (its .hash file); without one, version 1 and "notfrozen".

Understood: package, imports, comments, @VintfStability, @Backing(type="int"), @utf8InCpp;
enums with integer values; parcelables with int, long, boolean, String, enum and parcelable
fields; one interface per file whose methods take in/out/inout parameters and return void or a
value of those types. Anything else is refused with "file:line: error: ..." and exit status 1.
"""

import argparse
import os
import re
import sys

PRIMITIVES = {
    # aidl name: (C++ type, parcel suffix of AParcel_read*/write*, default initialiser)
    "int": ("int32_t", "Int32", "0"),
    "long": ("int64_t", "Int64", "0L"),
    "boolean": ("bool", "Bool", "false"),
}

ANNOTATIONS = {"VintfStability", "Backing", "utf8InCpp"}

# Meta-transactions every stable interface answers; codes as the NDK backend assigns them.
META_VERSION_CODE = 16777214
META_HASH_CODE = 16777213
UNFROZEN_HASH = "notfrozen"
API_DUMP_DIR = "aidl_api"


class AidlError(Exception):
    def __init__(self, path, line, message):
        super().__init__(f"{path}:{line}: error: {message}")


# ---------------------------------------------------------------------------------------------
# Lexer

TOKEN_RE = re.compile(
    r"""
    (?P<ws>[ \t\r\n]+)
  | (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<ident>[A-Za-z_][A-Za-z0-9_]*)
  | (?P<number>0[xX][0-9A-Fa-f]+|[0-9]+)
  | (?P<string>"[^"\n]*")
  | (?P<punct>[{}();,=@.<>\[\]\-])
    """,
    re.VERBOSE | re.DOTALL,
)


class Token:
    def __init__(self, kind, text, line):
        self.kind = kind
        self.text = text
        self.line = line

    def __repr__(self):
        return f"{self.kind}:{self.text!r}@{self.line}"


def tokenize(path, text):
    tokens = []
    pos = 0
    line = 1
    while pos < len(text):
        m = TOKEN_RE.match(text, pos)
        if not m:
            if text.startswith("/*", pos):
                raise AidlError(path, line, "unterminated comment")
            raise AidlError(path, line, f"unexpected character {text[pos]!r}")
        kind = m.lastgroup
        if kind not in ("ws", "comment"):
            tokens.append(Token(kind, m.group(), line))
        line += m.group().count("\n")
        pos = m.end()
    tokens.append(Token("eof", "", line))
    return tokens


# ---------------------------------------------------------------------------------------------
# Syntax tree


class TypeRef:
    def __init__(self, name, line):
        self.name = name  # as written: "int", "String", "Foo" or "a.b.Foo"
        self.line = line
        self.decl = None  # resolved declaration for user types


class Field:
    def __init__(self, type_, name, line):
        self.type = type_
        self.name = name
        self.line = line


class Param:
    def __init__(self, direction, type_, name, line):
        self.direction = direction  # "in", "out" or "inout"
        self.type = type_
        self.name = name
        self.line = line


class Method:
    def __init__(self, ret, name, params, line, code):
        self.ret = ret
        self.name = name
        self.params = params
        self.line = line
        self.code = code  # offset from FIRST_CALL_TRANSACTION


class Decl:
    def __init__(self, kind, name, package, path, line, annotations):
        self.kind = kind  # "enum", "parcelable" or "interface"
        self.name = name
        self.package = package
        self.path = path
        self.line = line
        self.annotations = annotations
        self.fields = []
        self.enumerators = []  # (name, value)
        self.methods = []
        self.imports = {}  # simple name -> (qualified name, line)
        self.version = 1  # interface version and hash, see frozen_version()
        self.hash = UNFROZEN_HASH

    @property
    def qualified(self):
        return f"{self.package}.{self.name}"

    @property
    def cpp_qualified(self):
        return "::aidl::" + "::".join(self.package.split(".")) + "::" + self.name

    @property
    def vintf(self):
        return "VintfStability" in self.annotations


# ---------------------------------------------------------------------------------------------
# Parser


class Parser:
    def __init__(self, path, tokens):
        self.path = path
        self.tokens = tokens
        self.pos = 0

    def peek(self, offset=0):
        return self.tokens[min(self.pos + offset, len(self.tokens) - 1)]

    def next(self):
        tok = self.tokens[self.pos]
        if tok.kind != "eof":
            self.pos += 1
        return tok

    def error(self, tok, message):
        return AidlError(self.path, tok.line, message)

    def describe(self, tok):
        return "end of file" if tok.kind == "eof" else repr(tok.text)

    def expect(self, text):
        tok = self.next()
        if tok.text != text or tok.kind in ("string", "eof"):
            raise self.error(tok, f"expected {text!r}, found {self.describe(tok)}")
        return tok

    def expect_ident(self, what):
        tok = self.next()
        if tok.kind != "ident":
            raise self.error(tok, f"expected {what}, found {self.describe(tok)}")
        return tok

    def accept(self, text):
        if self.peek().text == text and self.peek().kind not in ("string", "eof"):
            return self.next()
        return None

    def qualified_name(self, what):
        first = self.expect_ident(what)
        parts = [first.text]
        while self.accept("."):
            parts.append(self.expect_ident(what).text)
        return ".".join(parts), first.line

    def annotations(self):
        found = {}
        while self.peek().text == "@":
            at = self.next()
            name = self.expect_ident("an annotation name")
            if name.text not in ANNOTATIONS:
                raise self.error(name, f"annotation @{name.text} is not supported")
            args = {}
            if self.accept("("):
                while True:
                    key = self.expect_ident("an annotation parameter")
                    self.expect("=")
                    value = self.next()
                    if value.kind != "string":
                        raise self.error(value, "annotation parameters must be string literals")
                    args[key.text] = value.text[1:-1]
                    if not self.accept(","):
                        break
                self.expect(")")
            if name.text in found:
                raise self.error(at, f"annotation @{name.text} given twice")
            found[name.text] = (args, at.line)
        return found

    def check_annotations(self, annotations, allowed, where):
        for name, (_, line) in annotations.items():
            if name not in allowed:
                raise AidlError(self.path, line, f"annotation @{name} is not allowed on {where}")

    def parse_file(self):
        self.check_annotations(self.annotations(), (), "a package declaration")
        self.expect("package")
        package, _ = self.qualified_name("a package name")
        self.expect(";")
        imports = {}
        while self.peek().text == "import":
            self.next()
            qualified, line = self.qualified_name("an imported type")
            self.expect(";")
            simple = qualified.rsplit(".", 1)[-1]
            if simple in imports and imports[simple][0] != qualified:
                raise AidlError(self.path, line, f"import of {simple} clashes with an earlier one")
            imports[simple] = (qualified, line)
        annotations = self.annotations()
        kind_tok = self.next()
        if kind_tok.text == "oneway":
            raise self.error(kind_tok, "oneway interfaces are not supported")
        if kind_tok.text not in ("parcelable", "enum", "interface"):
            raise self.error(
                kind_tok,
                f"expected parcelable, enum or interface, found {self.describe(kind_tok)}",
            )
        name = self.expect_ident(f"the {kind_tok.text} name")
        decl = Decl(kind_tok.text, name.text, package, self.path, name.line, annotations)
        decl.imports = imports
        if self.peek().text == ";":
            raise self.error(self.peek(), f"unstructured {kind_tok.text} declarations are not supported")
        if self.peek().text == "<":
            raise self.error(self.peek(), "generic types are not supported")
        self.expect("{")
        if decl.kind == "enum":
            self.check_annotations(annotations, ("VintfStability", "Backing"), "an enum")
            self.parse_enum_body(decl)
        elif decl.kind == "parcelable":
            self.check_annotations(annotations, ("VintfStability",), "a parcelable")
            self.parse_parcelable_body(decl)
        else:
            self.check_annotations(annotations, ("VintfStability",), "an interface")
            self.parse_interface_body(decl)
        self.expect("}")
        trailing = self.peek()
        if trailing.kind != "eof":
            raise self.error(trailing, "only one type may be declared per file")
        return decl

    def parse_enum_body(self, decl):
        backing = decl.annotations.get("Backing")
        if backing is None:
            raise AidlError(self.path, decl.line, f'enum {decl.name} needs @Backing(type="int")')
        args, line = backing
        if args != {"type": "int"}:
            raise AidlError(self.path, line, 'only @Backing(type="int") is supported')
        next_value = 0
        seen = set()
        while self.peek().text != "}":
            name = self.expect_ident("an enumerator name")
            if name.text in seen:
                raise self.error(name, f"enumerator {name.text} declared twice")
            seen.add(name.text)
            value = next_value
            if self.accept("="):
                negative = bool(self.accept("-"))
                number = self.next()
                if number.kind != "number":
                    raise self.error(number, "enumerator values must be integer literals")
                value = int(number.text, 0)
                if negative:
                    value = -value
            if not -(2**31) <= value < 2**31:
                raise self.error(name, f"value of {name.text} does not fit in int")
            decl.enumerators.append((name.text, value))
            next_value = value + 1
            if not self.accept(","):
                break
        if not decl.enumerators:
            raise AidlError(self.path, decl.line, f"enum {decl.name} has no enumerators")

    def parse_type(self, allow_void):
        self.check_annotations(self.annotations(), ("utf8InCpp",), "a type")
        name, line = self.qualified_name("a type name")
        if self.peek().text in ("<", "["):
            raise self.error(self.peek(), "arrays and generic types are not supported")
        if name == "void" and not allow_void:
            raise AidlError(self.path, line, "void is only allowed as a return type")
        return TypeRef(name, line)

    def parse_parcelable_body(self, decl):
        seen = set()
        while self.peek().text != "}":
            if self.peek().text == "const":
                raise self.error(self.peek(), "constants are not supported")
            type_ = self.parse_type(allow_void=False)
            name = self.expect_ident("a field name")
            if self.peek().text == "=":
                raise self.error(self.peek(), "field default values are not supported")
            self.expect(";")
            if name.text in seen:
                raise self.error(name, f"field {name.text} declared twice")
            seen.add(name.text)
            decl.fields.append(Field(type_, name.text, name.line))

    def parse_interface_body(self, decl):
        seen = {"getInterfaceVersion", "getInterfaceHash"}
        while self.peek().text != "}":
            tok = self.peek()
            if tok.text in ("const", "oneway"):
                raise self.error(tok, f"{tok.text} declarations are not supported")
            ret = self.parse_type(allow_void=True)
            name = self.expect_ident("a method name")
            if name.text in seen:
                raise self.error(name, f"method {name.text} declared twice or reserved")
            seen.add(name.text)
            self.expect("(")
            params = []
            if self.peek().text != ")":
                while True:
                    params.append(self.parse_param())
                    if not self.accept(","):
                        break
            self.expect(")")
            if self.peek().text == "=":
                raise self.error(self.peek(), "explicit transaction codes are not supported")
            self.expect(";")
            names = [p.name for p in params]
            for p in params:
                if names.count(p.name) > 1:
                    raise AidlError(self.path, p.line, f"parameter {p.name} declared twice")
            decl.methods.append(Method(ret, name.text, params, name.line, len(decl.methods)))

    def parse_param(self):
        direction = None
        if self.peek().text in ("in", "out", "inout"):
            direction = self.next().text
        type_ = self.parse_type(allow_void=False)
        name = self.expect_ident("a parameter name")
        return Param(direction, type_, name.text, name.line)


# ---------------------------------------------------------------------------------------------
# Type resolution and checks


def resolve(decls):
    by_name = {d.qualified: d for d in decls}
    for decl in decls:
        for simple, (qualified, line) in decl.imports.items():
            if qualified not in by_name:
                raise AidlError(decl.path, line, f"imported type {qualified} is not defined")

        def lookup(ref):
            if ref.name in PRIMITIVES or ref.name in ("String", "void"):
                return
            if "." in ref.name:
                target = by_name.get(ref.name)
            elif ref.name in decl.imports:
                target = by_name[decl.imports[ref.name][0]]
            else:
                target = by_name.get(f"{decl.package}.{ref.name}")
            if target is None:
                raise AidlError(decl.path, ref.line, f"unknown type {ref.name}")
            if target.kind == "interface":
                raise AidlError(decl.path, ref.line, "interface-typed values are not supported")
            ref.decl = target

        for field in decl.fields:
            lookup(field.type)
            if field.type.decl is decl:
                raise AidlError(decl.path, field.line, "a parcelable cannot contain itself")
        for method in decl.methods:
            lookup(method.ret)
            for param in method.params:
                lookup(param.type)
                check_direction(decl.path, param)


def type_kind(ref):
    if ref.decl is not None:
        return ref.decl.kind
    return ref.name  # "int", "long", "boolean", "String" or "void"


def check_direction(path, param):
    kind = type_kind(param.type)
    if kind == "parcelable":
        if param.direction is None:
            raise AidlError(path, param.line, f"parameter {param.name} needs a direction (in, out or inout)")
    elif param.direction not in (None, "in"):
        raise AidlError(
            path, param.line, f"{param.type.name} parameter {param.name} can only be an in parameter"
        )
    if param.direction is None:
        param.direction = "in"


def check_vintf(decls):
    for decl in decls:
        if not decl.vintf:
            continue
        refs = [f.type for f in decl.fields] + [m.ret for m in decl.methods]
        refs += [p.type for m in decl.methods for p in m.params]
        for ref in refs:
            if ref.decl is not None and not ref.decl.vintf:
                raise AidlError(
                    decl.path, ref.line, f"{ref.name} must be @VintfStability to be used here"
                )


# ---------------------------------------------------------------------------------------------
# C++ shapes of AIDL types


def cpp_type(ref):
    kind = type_kind(ref)
    if kind in PRIMITIVES:
        return PRIMITIVES[kind][0]
    if kind == "String":
        return "std::string"
    if kind == "void":
        return "void"
    return ref.decl.cpp_qualified


def cpp_in_arg(ref):
    kind = type_kind(ref)
    if kind in ("String", "parcelable"):
        return f"const {cpp_type(ref)}&"
    return cpp_type(ref)


def field_initialiser(ref):
    kind = type_kind(ref)
    if kind in PRIMITIVES:
        return f" = {PRIMITIVES[kind][2]}"
    if kind == "enum":
        return f" = {cpp_type(ref)}(0)"
    return ""


def read_stmt(ref, parcel, target):
    """Statement(s) that read a value into *target and set _aidl_ret_status."""
    kind = type_kind(ref)
    if kind in PRIMITIVES:
        return [f"_aidl_ret_status = AParcel_read{PRIMITIVES[kind][1]}({parcel}, {target});"]
    if kind == "String":
        return [f"_aidl_ret_status = ::ndk::AParcel_readString({parcel}, {target});"]
    if kind == "parcelable":
        return [f"_aidl_ret_status = ::ndk::AParcel_readParcelable({parcel}, {target});"]
    assigned = target[1:] if target.startswith("&") else f"*{target}"
    return [
        "{",
        "  int32_t _aidl_value = 0;",
        f"  _aidl_ret_status = AParcel_readInt32({parcel}, &_aidl_value);",
        f"  if (_aidl_ret_status == STATUS_OK) {assigned} = static_cast<{cpp_type(ref)}>(_aidl_value);",
        "}",
    ]


def write_stmt(ref, parcel, value):
    kind = type_kind(ref)
    if kind in PRIMITIVES:
        return f"_aidl_ret_status = AParcel_write{PRIMITIVES[kind][1]}({parcel}, {value});"
    if kind == "String":
        return f"_aidl_ret_status = ::ndk::AParcel_writeString({parcel}, {value});"
    if kind == "parcelable":
        return f"_aidl_ret_status = ::ndk::AParcel_writeParcelable({parcel}, {value});"
    return f"_aidl_ret_status = AParcel_writeInt32({parcel}, static_cast<int32_t>({value}));"


def arg_name(param):
    return ("out_" if param.direction == "out" else "in_") + param.name


def method_args(method):
    args = []
    for p in method.params:
        if p.direction == "in":
            args.append(f"{cpp_in_arg(p.type)} {arg_name(p)}")
        else:
            args.append(f"{cpp_type(p.type)}* {arg_name(p)}")
    if type_kind(method.ret) != "void":
        args.append(f"{cpp_type(method.ret)}* _aidl_return")
    return args


def method_call_args(method):
    names = [arg_name(p) for p in method.params]
    if type_kind(method.ret) != "void":
        names.append("_aidl_return")
    return ", ".join(names)


def signature(method, prefix=""):
    return f"::ndk::ScopedAStatus {prefix}{method.name}({', '.join(method_args(method))})"


def meta_methods():
    """getInterfaceVersion and getInterfaceHash as methods of the generated code."""
    int_ref = TypeRef("int", 0)
    string_ref = TypeRef("String", 0)
    return [
        Method(int_ref, "getInterfaceVersion", [], 0, META_VERSION_CODE),
        Method(string_ref, "getInterfaceHash", [], 0, META_HASH_CODE),
    ]


def all_methods(decl):
    return decl.methods + meta_methods()


# ---------------------------------------------------------------------------------------------
# Emitters


def namespace_open(package):
    return " ".join(f"namespace {p} {{" for p in ["aidl"] + package.split("."))


def namespace_close(package):
    parts = ["aidl"] + package.split(".")
    return "".join("}  " for _ in parts) + "// namespace " + "::".join(parts)


def header_path(package, name):
    return "aidl/" + "/".join(package.split(".")) + f"/{name}.h"


def used_types(decl):
    refs = [f.type for f in decl.fields] + [m.ret for m in decl.methods]
    refs += [p.type for m in decl.methods for p in m.params]
    seen = {}
    for ref in refs:
        if ref.decl is not None and ref.decl is not decl:
            seen[ref.decl.qualified] = ref.decl
    return [seen[k] for k in sorted(seen)]


STABILITY_INCLUDE = [
    "#ifdef BINDER_STABILITY_SUPPORT",
    "#include <android/binder_stability.h>",
    "#endif  // BINDER_STABILITY_SUPPORT",
]

BANNER = [
    "/*",
    " * This file is generated by tools/aidl_ndk_gen.py from {source}. Do not edit.",
    " */",
]


def banner(decl, root):
    source = os.path.relpath(decl.path, root)
    return [line.format(source=source) for line in BANNER]


def type_includes(decl):
    return [f"#include <{header_path(t.package, t.name)}>" for t in used_types(decl)]


def emit_enum_header(decl, root):
    q = decl.cpp_qualified[2:]  # without the leading "::", as the NDK backend writes it
    out = banner(decl, root) + ["#pragma once", ""]
    out += [f"#include <{h}>" for h in ("array", "cstdint", "memory", "optional", "string", "vector")]
    out += ["#include <android/binder_enums.h>"] + STABILITY_INCLUDE + [""]
    out += [namespace_open(decl.package), f"enum class {decl.name} : int32_t {{"]
    out += [f"  {name} = {value}," for name, value in decl.enumerators]
    out += ["};", "", ""]
    out += [f"[[nodiscard]] static inline std::string toString({decl.name} val) {{", "  switch(val) {"]
    for name, _ in decl.enumerators:
        out += [f"  case {decl.name}::{name}:", f'    return "{name}";']
    out += ["  default:", "    return std::to_string(static_cast<int32_t>(val));", "  }", "}"]
    out += [namespace_close(decl.package), "namespace ndk {", "namespace internal {", "template <>"]
    out += [
        f"constexpr inline std::array<{q}, {len(decl.enumerators)}> enum_values<{q}> = {{",
    ]
    out += [f"  {q}::{name}," for name, _ in decl.enumerators]
    out += ["};", "}  // namespace internal", "}  // namespace ndk", ""]
    return "\n".join(out)


def emit_parcelable_header(decl, root):
    out = banner(decl, root) + ["#pragma once", ""]
    out += [f"#include <{h}>" for h in ("cstdint", "memory", "optional", "string", "tuple", "vector")]
    out += [
        "#include <android/binder_interface_utils.h>",
        "#include <android/binder_parcelable_utils.h>",
        "#include <android/binder_to_string.h>",
    ]
    out += type_includes(decl) + STABILITY_INCLUDE + [""]
    out += [namespace_open(decl.package), f"class {decl.name} {{", "public:"]
    out += ["  typedef std::false_type fixed_size;", "  static const char* descriptor;", ""]
    for f in decl.fields:
        out.append(f"  {cpp_type(f.type)} {f.name}{field_initialiser(f.type)};")
    out += [
        "",
        "  binder_status_t readFromParcel(const AParcel* parcel);",
        "  binder_status_t writeToParcel(AParcel* parcel) const;",
        "",
    ]
    mine = ", ".join(f.name for f in decl.fields)
    theirs = ", ".join(f"rhs.{f.name}" for f in decl.fields)
    for op in ("!=", "<", "<=", "==", ">", ">="):
        out += [
            f"  inline bool operator{op}(const {decl.name}& rhs) const {{",
            f"    return std::tie({mine}) {op} std::tie({theirs});",
            "  }",
        ]
    stability = "STABILITY_VINTF" if decl.vintf else "STABILITY_LOCAL"
    out += [
        "",
        f"  static const ::ndk::parcelable_stability_t _aidl_stability = ::ndk::{stability};",
        "  inline std::string toString() const {",
        "    std::ostringstream os;",
        f'    os << "{decl.name}{{";',
    ]
    for i, f in enumerate(decl.fields):
        sep = ", " if i else ""
        out.append(f'    os << "{sep}{f.name}: " << ::android::internal::ToString({f.name});')
    out += ['    os << "}";', "    return os.str();", "  }", "};", namespace_close(decl.package), ""]
    return "\n".join(out)


def emit_parcelable_source(decl, root):
    out = banner(decl, root)
    out += [
        f'#include "{header_path(decl.package, decl.name)}"',
        "",
        "#include <android/binder_parcel_utils.h>",
        "",
        namespace_open(decl.package),
        f'const char* {decl.name}::descriptor = "{decl.qualified}";',
        f"const ::ndk::parcelable_stability_t {decl.name}::_aidl_stability;",
        "",
        f"binder_status_t {decl.name}::readFromParcel(const AParcel* _aidl_parcel) {{",
        "  binder_status_t _aidl_ret_status = STATUS_OK;",
        "  int32_t _aidl_start_pos = AParcel_getDataPosition(_aidl_parcel);",
        "  int32_t _aidl_parcelable_size = 0;",
        "  _aidl_ret_status = AParcel_readInt32(_aidl_parcel, &_aidl_parcelable_size);",
        "  if (_aidl_ret_status != STATUS_OK) return _aidl_ret_status;",
        "",
        "  if (_aidl_parcelable_size < 4) return STATUS_BAD_VALUE;",
        "  if (_aidl_start_pos > INT32_MAX - _aidl_parcelable_size) return STATUS_BAD_VALUE;",
    ]
    for f in decl.fields:
        out += [
            "  if (AParcel_getDataPosition(_aidl_parcel) - _aidl_start_pos >= _aidl_parcelable_size) {",
            "    AParcel_setDataPosition(_aidl_parcel, _aidl_start_pos + _aidl_parcelable_size);",
            "    return _aidl_ret_status;",
            "  }",
        ]
        out += ["  " + s for s in read_stmt(f.type, "_aidl_parcel", f"&{f.name}")]
        out.append("  if (_aidl_ret_status != STATUS_OK) return _aidl_ret_status;")
        out.append("")
    out += [
        "  AParcel_setDataPosition(_aidl_parcel, _aidl_start_pos + _aidl_parcelable_size);",
        "  return _aidl_ret_status;",
        "}",
        "",
        f"binder_status_t {decl.name}::writeToParcel(AParcel* _aidl_parcel) const {{",
        "  binder_status_t _aidl_ret_status;",
        "  int32_t _aidl_start_pos = AParcel_getDataPosition(_aidl_parcel);",
        "  _aidl_ret_status = AParcel_writeInt32(_aidl_parcel, 0);",
        "  if (_aidl_ret_status != STATUS_OK) return _aidl_ret_status;",
        "",
    ]
    for f in decl.fields:
        out += ["  " + write_stmt(f.type, "_aidl_parcel", f.name)]
        out += ["  if (_aidl_ret_status != STATUS_OK) return _aidl_ret_status;", ""]
    out += [
        "  int32_t _aidl_end_pos = AParcel_getDataPosition(_aidl_parcel);",
        "  AParcel_setDataPosition(_aidl_parcel, _aidl_start_pos);",
        "  AParcel_writeInt32(_aidl_parcel, _aidl_end_pos - _aidl_start_pos);",
        "  AParcel_setDataPosition(_aidl_parcel, _aidl_end_pos);",
        "  return _aidl_ret_status;",
        "}",
        "",
        namespace_close(decl.package),
        "",
    ]
    return "\n".join(out)


def bp_name(decl):
    return "Bp" + decl.name[1:]


def bn_name(decl):
    return "Bn" + decl.name[1:]


def emit_interface_header(decl, root):
    name = decl.name
    out = banner(decl, root) + ["#pragma once", ""]
    out += [f"#include <{h}>" for h in ("cstdint", "memory", "optional", "string", "vector")]
    out += ["#include <android/binder_interface_utils.h>"]
    out += type_includes(decl) + STABILITY_INCLUDE + [""]
    out += [
        namespace_open(decl.package),
        f"class {name} : public ::ndk::ICInterface {{",
        "public:",
        "  static const char* descriptor;",
        f"  {name}();",
        f"  virtual ~{name}();",
        "",
        f"  static const int32_t version = {decl.version};",
        f'  static inline const std::string hash = "{decl.hash}";',
    ]
    # The version and hash queries have codes but, as in the aidl compiler, no named constants.
    for m in decl.methods:
        out.append(
            f"  static constexpr uint32_t TRANSACTION_{m.name} = FIRST_CALL_TRANSACTION + {m.code};"
        )
    out += [
        "",
        f"  static std::shared_ptr<{name}> fromBinder(const ::ndk::SpAIBinder& binder);",
        f"  static binder_status_t writeToParcel(AParcel* parcel, const std::shared_ptr<{name}>& instance);",
        f"  static binder_status_t readFromParcel(const AParcel* parcel, std::shared_ptr<{name}>* instance);",
        f"  static bool setDefaultImpl(const std::shared_ptr<{name}>& impl);",
        f"  static const std::shared_ptr<{name}>& getDefaultImpl();",
    ]
    out += [f"  virtual {signature(m)} = 0;" for m in all_methods(decl)]
    out += ["private:", f"  static std::shared_ptr<{name}> default_impl;", "};"]
    out += [f"class {name}Default : public {name} {{", "public:"]
    out += [f"  {signature(m)} override;" for m in all_methods(decl)]
    out += ["  ::ndk::SpAIBinder asBinder() override;", "  bool isRemote() override;", "};"]
    out += [namespace_close(decl.package), ""]
    return "\n".join(out)


def class_header_start(decl, root, std_include, class_line):
    """The opening lines shared by the proxy and stub headers, up to "public:"."""
    out = banner(decl, root) + ["#pragma once", ""]
    out += [
        f'#include "{header_path(decl.package, decl.name)}"',
        "",
        "#include <android/binder_ibinder.h>",
        "",
        f"#include <{std_include}>",
        "",
        namespace_open(decl.package),
        class_line,
        "public:",
    ]
    return out


def emit_bp_header(decl, root):
    bp = bp_name(decl)
    out = class_header_start(decl, root, "mutex",
                             f"class {bp} : public ::ndk::BpCInterface<{decl.name}> {{")
    out += [
        f"  explicit {bp}(const ::ndk::SpAIBinder& binder);",
        f"  virtual ~{bp}();",
        "",
    ]
    out += [f"  {signature(m)} override;" for m in all_methods(decl)]
    out += [
        "  int32_t _aidl_cached_version = -1;",
        '  std::string _aidl_cached_hash = "-1";',
        "  std::mutex _aidl_cached_hash_mutex;",
        "};",
        namespace_close(decl.package),
        "",
    ]
    return "\n".join(out)


def emit_bn_header(decl, root):
    bn = bn_name(decl)
    out = class_header_start(decl, root, "cassert",
                             f"class {bn} : public ::ndk::BnCInterface<{decl.name}> {{")
    out += [
        f"  {bn}();",
        f"  virtual ~{bn}();",
        "  ::ndk::ScopedAStatus getInterfaceVersion(int32_t* _aidl_return) final;",
        "  ::ndk::ScopedAStatus getInterfaceHash(std::string* _aidl_return) final;",
        "protected:",
        "  ::ndk::SpAIBinder createBinder() override;",
        "private:",
        "};",
        f"class {decl.name}Delegator : public {bn} {{",
        "public:",
        f"  explicit {decl.name}Delegator(const std::shared_ptr<{decl.name}> &impl) : _impl(impl) {{",
        "  }",
        "",
    ]
    for m in decl.methods:
        out += [
            f"  {signature(m)} override {{",
            f"    return _impl->{m.name}({method_call_args(m)});",
            "  }",
        ]
    out += [
        "protected:",
        "private:",
        f"  std::shared_ptr<{decl.name}> _impl;",
        "};",
        "",
        namespace_close(decl.package),
        "",
    ]
    return "\n".join(out)


def emit_stub_case(m):
    out = [f"    case (FIRST_CALL_TRANSACTION + {m.code} /*{m.name}*/): {{"]
    for p in m.params:
        init = field_initialiser(p.type) if type_kind(p.type) != "parcelable" else ""
        out.append(f"      {cpp_type(p.type)} {arg_name(p)}{init};")
    has_return = type_kind(m.ret) != "void"
    if has_return:
        out.append(f"      {cpp_type(m.ret)} _aidl_return{field_initialiser(m.ret)};")
    out.append("")
    for p in m.params:
        if p.direction in ("in", "inout"):
            out += ["      " + s for s in read_stmt(p.type, "_aidl_in", f"&{arg_name(p)}")]
            out += ["      if (_aidl_ret_status != STATUS_OK) break;", ""]
    call = []
    for p in m.params:
        call.append(arg_name(p) if p.direction == "in" else f"&{arg_name(p)}")
    if has_return:
        call.append("&_aidl_return")
    out += [
        f"      ::ndk::ScopedAStatus _aidl_status = _aidl_impl->{m.name}({', '.join(call)});",
        "      _aidl_ret_status = AParcel_writeStatusHeader(_aidl_out, _aidl_status.get());",
        "      if (_aidl_ret_status != STATUS_OK) break;",
        "",
        "      if (!AStatus_isOk(_aidl_status.get())) break;",
        "",
    ]
    if has_return:
        out += ["      " + write_stmt(m.ret, "_aidl_out", "_aidl_return")]
        out += ["      if (_aidl_ret_status != STATUS_OK) break;", ""]
    for p in m.params:
        if p.direction in ("out", "inout"):
            out += ["      " + write_stmt(p.type, "_aidl_out", arg_name(p))]
            out += ["      if (_aidl_ret_status != STATUS_OK) break;", ""]
    out += ["      break;", "    }"]
    return out


def emit_proxy_method(decl, m, bp):
    out = [
        f"{signature(m, bp + '::')} {{",
        "  binder_status_t _aidl_ret_status = STATUS_OK;",
        "  ::ndk::ScopedAStatus _aidl_status;",
    ]
    if m.code == META_VERSION_CODE:
        out += [
            "  if (_aidl_cached_version != -1) {",
            "    *_aidl_return = _aidl_cached_version;",
            "    _aidl_status.set(AStatus_newOk());",
            "    return _aidl_status;",
            "  }",
        ]
    if m.code == META_HASH_CODE:
        out += [
            "  const std::lock_guard<std::mutex> lock(_aidl_cached_hash_mutex);",
            '  if (_aidl_cached_hash != "-1") {',
            "    *_aidl_return = _aidl_cached_hash;",
            "    _aidl_status.set(AStatus_newOk());",
            "    return _aidl_status;",
            "  }",
        ]
    out += [
        "  ::ndk::ScopedAParcel _aidl_in;",
        "  ::ndk::ScopedAParcel _aidl_out;",
        "",
        "  _aidl_ret_status = AIBinder_prepareTransaction(asBinder().get(), _aidl_in.getR());",
        "  if (_aidl_ret_status != STATUS_OK) goto _aidl_error;",
        "",
    ]
    for p in m.params:
        if p.direction in ("in", "inout"):
            value = arg_name(p) if p.direction == "in" else f"*{arg_name(p)}"
            out += ["  " + write_stmt(p.type, "_aidl_in.get()", value)]
            out += ["  if (_aidl_ret_status != STATUS_OK) goto _aidl_error;", ""]
    out += [
        "  _aidl_ret_status = AIBinder_transact(",
        "    asBinder().get(),",
        f"    (FIRST_CALL_TRANSACTION + {m.code} /*{m.name}*/),",
        "    _aidl_in.getR(),",
        "    _aidl_out.getR(),",
        "    0);",
        f"  if (_aidl_ret_status == STATUS_UNKNOWN_TRANSACTION && {decl.name}::getDefaultImpl()) {{",
        f"    _aidl_status = {decl.name}::getDefaultImpl()->{m.name}({method_call_args(m)});",
        "    goto _aidl_status_return;",
        "  }",
        "  if (_aidl_ret_status != STATUS_OK) goto _aidl_error;",
        "",
        "  _aidl_ret_status = AParcel_readStatusHeader(_aidl_out.get(), _aidl_status.getR());",
        "  if (_aidl_ret_status != STATUS_OK) goto _aidl_error;",
        "",
        "  if (!AStatus_isOk(_aidl_status.get())) goto _aidl_status_return;",
    ]
    if type_kind(m.ret) != "void":
        out += ["  " + s for s in read_stmt(m.ret, "_aidl_out.get()", "_aidl_return")]
        out += ["  if (_aidl_ret_status != STATUS_OK) goto _aidl_error;", ""]
    for p in m.params:
        if p.direction in ("out", "inout"):
            out += ["  " + s for s in read_stmt(p.type, "_aidl_out.get()", arg_name(p))]
            out += ["  if (_aidl_ret_status != STATUS_OK) goto _aidl_error;", ""]
    if m.code == META_VERSION_CODE:
        out += ["  _aidl_cached_version = *_aidl_return;"]
    if m.code == META_HASH_CODE:
        out += ["  _aidl_cached_hash = *_aidl_return;"]
    out += [
        "  _aidl_error:",
        "  _aidl_status.set(AStatus_fromStatus(_aidl_ret_status));",
        "  _aidl_status_return:",
        "  return _aidl_status;",
        "}",
    ]
    return out


def emit_interface_source(decl, root):
    name, bp, bn = decl.name, bp_name(decl), bn_name(decl)
    mangled = "_".join(decl.qualified.split("."))
    on_transact = f"_aidl_{mangled}_onTransact"
    clazz = f"_g_aidl_{mangled}_clazz"
    out = banner(decl, root)
    out += [
        f'#include "{header_path(decl.package, name)}"',
        "",
        "#include <android/binder_parcel_utils.h>",
        f"#include <{header_path(decl.package, bn)}>",
        f"#include <{header_path(decl.package, bp)}>",
        "",
        namespace_open(decl.package),
        f"static binder_status_t {on_transact}(AIBinder* _aidl_binder, transaction_code_t _aidl_code, "
        "const AParcel* _aidl_in, AParcel* _aidl_out) {",
        "  (void)_aidl_in;",
        "  (void)_aidl_out;",
        "  binder_status_t _aidl_ret_status = STATUS_UNKNOWN_TRANSACTION;",
        f"  std::shared_ptr<{bn}> _aidl_impl = std::static_pointer_cast<{bn}>(::ndk::ICInterface::asInterface(_aidl_binder));",
        "  if (_aidl_impl == nullptr) return STATUS_UNEXPECTED_NULL;",
        "  switch (_aidl_code) {",
    ]
    for m in all_methods(decl):
        out += emit_stub_case(m)
    out += [
        "  }",
        "  return _aidl_ret_status;",
        "}",
        "",
        f"static AIBinder_Class* {clazz} = ::ndk::ICInterface::defineClass({name}::descriptor, {on_transact});",
        "",
        f"{bp}::{bp}(const ::ndk::SpAIBinder& binder) : BpCInterface(binder) {{}}",
        f"{bp}::~{bp}() {{}}",
        "",
    ]
    for m in all_methods(decl):
        out += emit_proxy_method(decl, m, bp) + [""]
    out += [
        f"// Source for {bn}",
        f"{bn}::{bn}() {{}}",
        f"{bn}::~{bn}() {{}}",
        f"::ndk::SpAIBinder {bn}::createBinder() {{",
        f"  AIBinder* binder = AIBinder_new({clazz}, static_cast<void*>(this));",
        "  #ifdef BINDER_STABILITY_SUPPORT",
        "  AIBinder_markVintfStability(binder);" if decl.vintf else "  AIBinder_markCompilationUnitStability(binder);",
        "  #endif  // BINDER_STABILITY_SUPPORT",
        "  return ::ndk::SpAIBinder(binder);",
        "}",
        f"::ndk::ScopedAStatus {bn}::getInterfaceVersion(int32_t* _aidl_return) {{",
        f"  *_aidl_return = {name}::version;",
        "  return ::ndk::ScopedAStatus(AStatus_newOk());",
        "}",
        f"::ndk::ScopedAStatus {bn}::getInterfaceHash(std::string* _aidl_return) {{",
        f"  *_aidl_return = {name}::hash;",
        "  return ::ndk::ScopedAStatus(AStatus_newOk());",
        "}",
        f"// Source for {name}",
        f'const char* {name}::descriptor = "{decl.qualified}";',
        f"const int32_t {name}::version;",
        f"{name}::{name}() {{}}",
        f"{name}::~{name}() {{}}",
        "",
        "",
        f"std::shared_ptr<{name}> {name}::fromBinder(const ::ndk::SpAIBinder& binder) {{",
        f"  if (!AIBinder_associateClass(binder.get(), {clazz})) {{ return nullptr; }}",
        "  std::shared_ptr<::ndk::ICInterface> interface = ::ndk::ICInterface::asInterface(binder.get());",
        "  if (interface) {",
        f"    return std::static_pointer_cast<{name}>(interface);",
        "  }",
        f"  return ::ndk::SharedRefBase::make<{bp}>(binder);",
        "}",
        "",
        f"binder_status_t {name}::writeToParcel(AParcel* parcel, const std::shared_ptr<{name}>& instance) {{",
        "  return AParcel_writeStrongBinder(parcel, instance ? instance->asBinder().get() : nullptr);",
        "}",
        f"binder_status_t {name}::readFromParcel(const AParcel* parcel, std::shared_ptr<{name}>* instance) {{",
        "  ::ndk::SpAIBinder binder;",
        "  binder_status_t status = AParcel_readStrongBinder(parcel, binder.getR());",
        "  if (status != STATUS_OK) return status;",
        f"  *instance = {name}::fromBinder(binder);",
        "  return STATUS_OK;",
        "}",
        f"bool {name}::setDefaultImpl(const std::shared_ptr<{name}>& impl) {{",
        "  // Only one user of this interface can use this function",
        "  // at a time. This is a heuristic to detect if two different",
        "  // users in the same process use this function.",
        f"  assert(!{name}::default_impl);",
        "  if (impl) {",
        f"    {name}::default_impl = impl;",
        "    return true;",
        "  }",
        "  return false;",
        "}",
        f"const std::shared_ptr<{name}>& {name}::getDefaultImpl() {{",
        f"  return {name}::default_impl;",
        "}",
        f"std::shared_ptr<{name}> {name}::default_impl = nullptr;",
    ]
    for m in decl.methods:
        # Parameters stay unnamed: the default implementation ignores them.
        args = ", ".join(a.rsplit(" ", 1)[0] for a in method_args(m))
        out += [
            f"::ndk::ScopedAStatus {name}Default::{m.name}({args}) {{",
            "  ::ndk::ScopedAStatus _aidl_status;",
            "  _aidl_status.set(AStatus_fromStatus(STATUS_UNKNOWN_TRANSACTION));",
            "  return _aidl_status;",
            "}",
        ]
    out += [
        f"::ndk::ScopedAStatus {name}Default::getInterfaceVersion(int32_t* _aidl_return) {{",
        "  *_aidl_return = 0;",
        "  return ::ndk::ScopedAStatus(AStatus_newOk());",
        "}",
        f"::ndk::ScopedAStatus {name}Default::getInterfaceHash(std::string* _aidl_return) {{",
        '  *_aidl_return = "";',
        "  return ::ndk::ScopedAStatus(AStatus_newOk());",
        "}",
        f"::ndk::SpAIBinder {name}Default::asBinder() {{",
        "  return ::ndk::SpAIBinder();",
        "}",
        f"bool {name}Default::isRemote() {{",
        "  return false;",
        "}",
        namespace_close(decl.package),
        "",
    ]
    return "\n".join(out)


def outputs_of(decl):
    """(relative path, emitter) of every file generated for one declaration."""
    pkg_dir = "/".join(decl.package.split("."))
    inc = "include/"
    if decl.kind == "enum":
        return [(inc + header_path(decl.package, decl.name), emit_enum_header)]
    if decl.kind == "parcelable":
        return [
            (inc + header_path(decl.package, decl.name), emit_parcelable_header),
            (f"{pkg_dir}/{decl.name}.cpp", emit_parcelable_source),
        ]
    return [
        (inc + header_path(decl.package, decl.name), emit_interface_header),
        (inc + header_path(decl.package, bp_name(decl)), emit_bp_header),
        (inc + header_path(decl.package, bn_name(decl)), emit_bn_header),
        (f"{pkg_dir}/{decl.name}.cpp", emit_interface_source),
    ]


# ---------------------------------------------------------------------------------------------
# Driver


def load(root, path):
    try:
        with open(path, encoding="utf-8") as f:
            text = f.read()
    except (OSError, UnicodeDecodeError) as e:
        raise AidlError(path, 1, f"cannot read: {e}")
    decl = Parser(path, tokenize(path, text)).parse_file()
    rel = os.path.relpath(os.path.abspath(path), os.path.abspath(root))
    expected = os.path.join(*decl.package.split("."), decl.name + ".aidl")
    if rel != expected:
        raise AidlError(
            path, decl.line, f"{decl.kind} {decl.qualified} must be declared in {expected}"
        )
    if decl.kind == "interface" and not re.match(r"^I[A-Z]", decl.name):
        raise AidlError(path, decl.line, "interface names must start with I and a capital letter")
    return decl


def frozen_version(root, package):
    """(version, hash) of the newest frozen API dump of a package, or (1, "notfrozen").

    The dumps live in <root>/aidl_api/<package>/<N>/ with the hash as the last line of .hash;
    the sources are taken to declare that version unchanged.
    """
    api_dir = os.path.join(root, API_DUMP_DIR, package)
    try:
        versions = [int(d) for d in os.listdir(api_dir) if d.isdigit()]
    except OSError:
        versions = []
    if not versions:
        return 1, UNFROZEN_HASH
    newest = max(versions)
    hash_path = os.path.join(api_dir, str(newest), ".hash")
    try:
        with open(hash_path, encoding="utf-8") as f:
            lines = [line.strip() for line in f if line.strip()]
    except OSError as e:
        raise AidlError(hash_path, 1, f"cannot read the frozen version's hash: {e}")
    if not lines or not re.fullmatch(r"[0-9a-f]{40}", lines[-1]):
        raise AidlError(hash_path, max(len(lines), 1), "expected a 40-digit hex hash")
    return newest, lines[-1]


def parse_all(root, paths):
    decls = [load(root, p) for p in paths]
    for d in decls:
        if d.kind == "interface":
            d.version, d.hash = frozen_version(root, d.package)
    seen = {}
    for d in decls:
        if d.qualified in seen:
            raise AidlError(d.path, d.line, f"{d.qualified} is declared twice")
        seen[d.qualified] = d
    resolve(decls)
    check_vintf(decls)
    return decls


def main(argv):
    ap = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    ap.add_argument("-I", dest="root", required=True, help="import root of the .aidl files")
    ap.add_argument("-o", dest="out", required=True, help="output directory")
    ap.add_argument("--list-outputs", action="store_true", help="print output paths only")
    ap.add_argument("files", nargs="+", help=".aidl files")
    args = ap.parse_args(argv)
    try:
        decls = parse_all(args.root, args.files)
    except AidlError as e:
        print(e, file=sys.stderr)
        return 1
    for decl in decls:
        for rel, emit in outputs_of(decl):
            path = os.path.join(args.out, rel)
            if args.list_outputs:
                print(path)
                continue
            os.makedirs(os.path.dirname(path), exist_ok=True)
            with open(path, "w", encoding="utf-8") as f:
                f.write(emit(decl, args.root))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
