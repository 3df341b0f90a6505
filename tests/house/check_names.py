"""What the public headers declare, what the DLL exports and what the pages document is the same."""
import re

from tree import ROOT, finish, tracked

DECLARED = re.compile(r"VORNAPI\s+[\w\s\*]*?\b(\w+)\(")
DOCUMENTED = re.compile(r"^\| `(?:[\w\s\*]*?\b)?(\w+)\(", re.MULTILINE)


def text(path):
    return (ROOT / path).read_text(encoding="utf-8")


def declared():
    headers = [path for path in tracked(".h") if path.parts[0] == "include"]
    return {name for path in headers for name in DECLARED.findall(text(path))}


def exported():
    lines = text("core/exports.txt").splitlines()
    return {line.split()[0] for line in lines if line and not line.startswith("#")}


def documented():
    pages = [path for path in tracked(".md") if path.parts[0] == "docs"]
    names = [name for path in pages for name in DOCUMENTED.findall(text(path))]
    twice = sorted({name for name in names if names.count(name) > 1})
    return set(names), twice


def missing(what, names, others):
    return [f"{name}: {what}" for name in sorted(others - names)]


pages, twice = documented()
finish(missing("not declared in include/", declared(), exported() | pages)
       + missing("not exported in core/exports.txt", exported(), declared() | pages)
       + missing("not in a function table of docs/", pages, declared() | exported())
       + [f"{name}: documented twice" for name in twice])
