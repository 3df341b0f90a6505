"""What is in the package: exactly the files that belong there, as they are built and tracked,
nothing that depends on this machine; import libraries for every function; links that lead
somewhere.
Usage: check_package.py ZIP"""
import pathlib
import posixpath
import struct
import subprocess
import sys
import tempfile
import zipfile

from tree import LINK, ROOT, finish, tracked

FOLDERS = {"include": "include", "docs": "doc", "examples": "examples"}
# Preset, suffix of its folders, number of its machine, a symbol's beginning and whether the bytes
# of the arguments are in it.
BUILDS = [("i686", "", 0x14C, "_", True), ("x86_64", "64", 0x8664, "", False)]
GENERATED = {"README.md", "cmake/VORN32ConfigVersion.cmake"}

archive = zipfile.ZipFile(sys.argv[1])
entries = archive.infolist()
top = posixpath.basename(sys.argv[1]).removesuffix(".zip") + "/"
names = [entry.filename.removeprefix(top) for entry in entries]


def source_files(site):
    """Name in the package to the file that it is a copy of; `site` has the site made anew."""
    for path in site.rglob("*"):
        if path.is_file():
            yield f"doc/html/{path.relative_to(site).as_posix()}", path
    for path in tracked():
        if path.parts[0] in FOLDERS:
            yield "/".join([FOLDERS[path.parts[0]], *path.parts[1:]]), ROOT / path
    for name in ("LICENSE", "CHANGELOG.md"):
        yield name, ROOT / name
    yield "cmake/VORN32Config.cmake", ROOT / "cmake/package/VORN32Config.cmake"
    for preset, suffix, *_ in BUILDS:
        yield f"bin{suffix}/VORN32.dll", ROOT / "build" / preset / "VORN32.dll"
        for library in ("libVORN32.a", "VORN32.lib"):
            yield f"lib{suffix}/{library}", ROOT / "build" / preset / library


def content(name):
    return archive.read(top + name)


def wrong_files(site):
    expected = dict(source_files(site))
    belong = set(expected) | GENERATED
    yield from (f"{name}: missing" for name in sorted(belong - set(names)))
    yield from (f"{name}: does not belong there" for name in sorted(set(names) - belong))
    for name in sorted(set(expected) & set(names)):
        if content(name) != expected[name].read_bytes():
            yield f"{name}: is not {expected[name]}"


def wrong_form():
    if names != sorted(names):
        yield "the files are not in the order of their names"
    for entry in entries:
        if not entry.filename.startswith(top):
            yield f"{entry.filename}: is not in the one folder {top}"
        if entry.date_time != (1980, 1, 1, 0, 0, 0) or entry.external_attr != 0o100644 << 16:
            yield f"{entry.filename}: has a time or a mode of its own"
        if str(ROOT).encode() in archive.read(entry):
            yield f"{entry.filename}: tells where it was built"


def wrong_machines():
    for _, suffix, machine, *_ in BUILDS:
        dll = content(f"bin{suffix}/VORN32.dll")
        header = struct.unpack_from("<I", dll, 0x3C)[0]
        if struct.unpack_from("<H", dll, header + 4)[0] != machine:
            yield f"bin{suffix}/VORN32.dll: is for another machine"


def expected_imports(start, with_bytes):
    for line in (ROOT / "core/exports.txt").read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            name, arguments = line.split()[:2]
            yield f"__imp_{start}{name}" + (f"@{arguments}" if with_bytes else "")


def imports(library):
    with tempfile.NamedTemporaryFile(suffix=library.split("/")[-1]) as file:
        file.write(content(library))
        file.flush()
        listing = subprocess.run(["llvm-nm", file.name], capture_output=True, text=True, check=True)
    symbols = (line.split()[-1] for line in listing.stdout.splitlines() if line)
    return {symbol for symbol in symbols if symbol.startswith("__imp_")}


def wrong_imports():
    for _, suffix, _, start, with_bytes in BUILDS:
        expected = set(expected_imports(start, with_bytes))
        for library in (f"lib{suffix}/libVORN32.a", f"lib{suffix}/VORN32.lib"):
            for symbol in sorted(expected ^ imports(library)):
                yield f"{library}: {symbol} is only in one of the library and the list of exports"


def broken_links():
    for name in names:
        if not name.endswith(".md"):
            continue
        for target in LINK.findall(content(name).decode()):
            path = posixpath.normpath(posixpath.join(posixpath.dirname(name), target))
            if not target.startswith(("http:", "https:")) and path not in names:
                yield f"{name}: no such file: {target}"


with tempfile.TemporaryDirectory(prefix="vorn32-site-") as temporary:
    subprocess.run(["/usr/bin/python3", ROOT / "tools/lib/site", temporary], check=True)
    wrong = list(wrong_files(pathlib.Path(temporary)))
finish([*wrong, *wrong_form(), *wrong_machines(), *wrong_imports(), *broken_links()])
