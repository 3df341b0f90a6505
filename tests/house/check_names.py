"""What the public headers declare is what the DLL exports."""
import re

from tree import ROOT, finish, tracked

DECLARED = re.compile(r"VORNAPI\s+[\w\s\*]*?\b(\w+)\(")


def text(path):
    return (ROOT / path).read_text(encoding="utf-8")


def declared():
    headers = [path for path in tracked(".h") if path.parts[0] == "include"]
    return {name for path in headers for name in DECLARED.findall(text(path))}


def exported():
    lines = text("core/exports.txt").splitlines()
    return {line.split()[0] for line in lines if line and not line.startswith("#")}


def missing(what, names, others):
    return [f"{name}: {what}" for name in sorted(others - names)]


finish(missing("not declared in include/", declared(), exported())
       + missing("not exported in core/exports.txt", exported(), declared()))
