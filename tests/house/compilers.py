"""What the compilers for both architectures say of lines of C that include the public headers."""
import re
import subprocess

from tree import ROOT

COMPILERS = {"32-bit": "i686-w64-mingw32-gcc-posix", "64-bit": "x86_64-w64-mingw32-gcc-posix"}


def assertion(condition, what):
    return f'_Static_assert({condition}, "{what}");'


def compile_errors(lines, architecture):
    source = "\n".join(["#include <stddef.h>", "#include <vorn32.h>", *lines, ""])
    result = subprocess.run(
        [COMPILERS[architecture], "-std=gnu11", "-fsyntax-only", f"-I{ROOT / 'include'}",
         "-x", "c", "-"], input=source, capture_output=True, text=True, check=False)
    return re.findall(r"(?:error|fatal error): .*", result.stderr)
