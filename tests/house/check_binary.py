"""What the DLL is, seen from outside: imports, exports, protections, size.
Usage: check_binary.py DLL TRIPLE"""
import os
import re
import subprocess
import sys

from tree import ROOT, finish

SYSTEM_DLLS = {"KERNEL32.dll", "USER32.dll", "GDI32.dll", "VERSION.dll", "MPR.dll", "MPR.DLL", "msvcrt.dll"}
MOST_BYTES = 256 * 1024
NEEDED = {"DYNAMIC_BASE", "NX_COMPAT"}
NEEDED_64 = NEEDED | {"HIGH_ENTROPY_VA"}

dll, triple = sys.argv[1:3]


def objdump(option):
    return subprocess.run([f"{triple}-objdump", option, dll], capture_output=True, text=True,
                          check=True).stdout


headers = objdump("-p")


def imports():
    foreign = set(re.findall(r"DLL Name: (\S+)", headers)) - SYSTEM_DLLS
    return [f"imports {name}, which is not a system DLL" for name in sorted(foreign)]


def expected_exports():
    for line in (ROOT / "core/exports.txt").read_text(encoding="utf-8").splitlines():
        fields = line.split()
        if not fields or fields[0] == "#":
            continue
        yield fields[0]
        if "decorated" in fields:
            yield f"_{fields[0]}@{fields[1]}"


def exports():
    table = headers.split("[Ordinal/Name Pointer] Table")[-1].split("\n\n")[0]
    found = set(re.findall(r"^\s*\[\s*\d+\] (\S+)", table, re.MULTILINE))
    expected = set(expected_exports())
    return ([f"does not export {name}" for name in sorted(expected - found)]
            + [f"exports {name}, which is not in the list" for name in sorted(found - expected)])


def protections():
    needed = NEEDED_64 if triple.startswith("x86_64") else NEEDED
    return [f"lacks {flag}" for flag in sorted(needed) if flag not in headers]


def relocations():
    # Without them the loader cannot move the DLL, whatever the flag says.
    return [] if ".reloc" in objdump("-h") else ["lacks relocations"]


def sections():
    for line in objdump("-h").splitlines():
        if "CODE" in line and "READONLY" not in line:
            yield f"has a section that is both writable and executable: {line.strip()}"


def size():
    actual = os.path.getsize(dll)
    # The 32-bit DLL is the product whose size is promised.
    return [f"has {actual} bytes"] if triple.startswith("i686") and actual > MOST_BYTES else []


finish([*imports(), *exports(), *protections(), *relocations(), *sections(), *size()])
