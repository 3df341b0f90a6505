"""Writes a folder into a zip that depends on the files' names and contents alone: sorted, all of one
time and one mode. The folder itself is the first part of each name.
Usage: write_zip.py FOLDER ZIP"""
import pathlib
import sys
import zipfile

EPOCH = (1980, 1, 1, 0, 0, 0)  # the first time that a zip can tell
UNIX = 3
FILE_MODE = 0o100644

folder, target = map(pathlib.Path, sys.argv[1:3])
files = {path.relative_to(folder.parent).as_posix(): path
         for path in folder.rglob("*") if path.is_file()}
with zipfile.ZipFile(target, "w") as archive:
    for name, path in sorted(files.items()):
        entry = zipfile.ZipInfo(name, EPOCH)
        entry.create_system = UNIX
        entry.external_attr = FILE_MODE << 16
        archive.writestr(entry, path.read_bytes(), zipfile.ZIP_DEFLATED, compresslevel=9)
