"""Builds hosts from an unpacked package, with the compilers of other languages or as MSVC would
link, and puts the DLL beside them.
Usage: build_host.py go|ada|msvc ARCHITECTURE PACKAGE FOLDER"""
import os
import pathlib
import shutil
import subprocess
import sys

from tree import ROOT, finish

SUFFIXES = {"i686": "", "x86_64": "64"}
GO_NAMES = {"i686": "386", "x86_64": "amd64"}

language, architecture = sys.argv[1:3]
package, folder = (pathlib.Path(argument).resolve() for argument in sys.argv[3:5])
suffix = SUFFIXES[architecture]
libraries = package / f"lib{suffix}"
hosts = package / "examples/hosts"


def run(*command, where=folder, **environment):
    result = subprocess.run([*map(str, command)], cwd=where, capture_output=True, text=True,
                            env={**os.environ, **environment}, check=False)
    if result.returncode or result.stderr:
        finish([f"failed: {' '.join(map(str, command))}", result.stdout, result.stderr])


def build_go():
    run("go", "build", "-o", folder / "host.exe", ".", where=hosts / "go", GOOS="windows",
        GOARCH=GO_NAMES[architecture], CGO_ENABLED="0", GOPROXY="off",
        GOCACHE=str(ROOT / "build/go-cache"))


def build_ada():
    run(f"{architecture}-w64-mingw32-gnatmake-posix", "-q", "-gnatwae", "-gnat2012",
        hosts / "ada/host.adb", "-largs", "-static", f"-L{libraries}", "-lVORN32")


# What a C runtime does before and after WinMain, as far as the examples need it.
START = """#include <windows.h>
int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR command, int show);
void WinMainCRTStartup(void);
void WinMainCRTStartup(void) {
    ExitProcess((UINT)WinMain(GetModuleHandle(NULL), NULL, GetCommandLine(), SW_SHOW));
}
"""


def compile_with_clang(source):
    """The platform's own headers for packed records, which clang warns of, are what headers use."""
    target = folder / f"{source.stem}.obj"
    run("clang", f"--target={architecture}-w64-windows-gnu", "-isystem",
        f"/usr/{architecture}-w64-mingw32/include", f"-I{package / 'include'}", "-O1", "-std=c99",
        "-Wall", "-Wextra", "-Wpedantic", "-Werror", "-Wno-pragma-pack", "-c", source, "-o", target)
    return target


def build_msvc():
    """The system's import libraries are MinGW's, which know nothing of SafeSEH."""
    start = folder / "start.c"
    start.write_text(START, encoding="ascii")
    start = compile_with_clang(start)
    system = pathlib.Path(f"/usr/{architecture}-w64-mingw32/lib")
    system_libraries = [system / f"lib{name}.a"
                        for name in ("user32", "gdi32", "kernel32", "msvcrt")]
    # /safeseh is an option for 32-bit programs only.
    options = ["/safeseh:no"] if architecture == "i686" else []
    for source in sorted((package / "examples").glob("*.c")):
        run("lld-link", "/nologo", "/subsystem:windows", "/entry:WinMainCRTStartup", *options,
            f"/out:{folder / source.stem}.exe", compile_with_clang(source), start,
            libraries / "VORN32.lib", *system_libraries)


shutil.rmtree(folder, ignore_errors=True)
folder.mkdir(parents=True)
{"go": build_go, "ada": build_ada, "msvc": build_msvc}[language]()
shutil.copy(package / f"bin{suffix}/VORN32.dll", folder)
