"""Android 13's runtime in soong_ninja.py's replay: the actions of runtime.json (written by the
soong step: the linker, bionic, liblog, libvndksupport, the binder NDK and the VNDK libraries a
vendor binary loads, and everything they build from), with the rules they add to the
device modules' (genrules run in Soong's sbox, archives with libraries linked whole, the
linker's symbols prefixed, bionic's headers for vendor code)."""

import json
from pathlib import Path

# sbox copies what a failed command left to its outputs, which ninja would then take as built.
RULES = """
rule sbox
  command = $command || { rm -f $out; exit 1; }
  description = $module: generate $out
rule arWithLibs
  command = rm -f $out && $arCmd $arObjFlags $out @$out.rsp && $arCmd $arLibFlags $out $arLibs
  rspfile = $out.rsp
  rspfile_content = $arObjs
  description = $module: archive $out
rule versionBionicHeaders
  command = rm -rf $outDir && mkdir -p $outDir && cp -r $srcDir/. $outDir && touch $out
  description = $module: headers of $srcDir as vendor code sees them
rule prefixSymbols
  command = $objcopyCmd --prefix-symbols=$prefix $in $out
  description = $module: prefix the symbols of $out
"""
RULE_NAMES = ("sbox", "arWithLibs", "prefixSymbols", "versionBionicHeaders")
PROJECT_OUT = "out/soong/.intermediates/vendor/"


def load(scratch: Path):
    """runtime.json, or None when the soong step wrote none."""
    path = scratch / "runtime.json"
    return json.loads(path.read_text()) if path.exists() else None


def write_if_changed(path: Path, text: str) -> None:
    if not path.exists() or path.read_text() != text:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)


def prepare(action: dict, tree: Path) -> dict:
    """The action's arguments as its rule takes them; an sbox manifest is written into the tree
    (it is part of what Soong's action reads)."""
    args = dict(action["Args"])
    if action["Rule"] == "sbox":
        write_if_changed(tree / args.pop("manifest"), args.pop("content"))
    for key in ("objcopyCmd", "arCmd"):  # the prebuilt clang's tools: Debian's clang 14's
        if key in args:
            args[key] = Path(args[key]).name + "-14"
    return args


def headers(runtime: dict) -> list:
    """The headers generated for vendor code (bionic's, through the versioner): the tree's
    versioner is not in the subset, so its output is the headers as they are, whose
    __INTRODUCED_IN macros then become availability attributes instead of #if guards (the same
    declarations at API 33). Built before the device modules, whose actions do not name them."""
    return [a["Outputs"][0] for a in runtime["Actions"] if a["Rule"] == "versionBionicHeaders"]


def targets(runtime: dict) -> list:
    """What the runtime step builds: each file the image installs (the platform's as linked, the
    project's stripped; see image.py)."""
    return [m["Stripped"] if m["Stripped"].startswith(PROJECT_OUT) else m["Linked"]
            for m in runtime["Modules"]]
