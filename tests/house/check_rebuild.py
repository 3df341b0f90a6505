"""The same sources give the same DLL and import libraries, byte by byte, also in another folder.
Usage: check_rebuild.py DLL PRESET WORK_FOLDER"""
import pathlib
import shutil
import subprocess
import sys

from tree import ROOT, finish, tracked

dll, preset, work = pathlib.Path(sys.argv[1]), sys.argv[2], pathlib.Path(sys.argv[3])
shutil.rmtree(work, ignore_errors=True)
source = work / "source of another name"
for path in tracked():
    copy = source / path
    copy.parent.mkdir(parents=True, exist_ok=True)
    shutil.copy2(ROOT / path, copy)


def run(*command):
    result = subprocess.run(command, cwd=source, capture_output=True, text=True, check=False)
    if result.returncode:
        finish([f"the second build failed: {' '.join(command)}", result.stdout, result.stderr])


run("cmake", "--preset", preset, "-DBUILD_TESTING=OFF")
run("cmake", "--build", "--preset", preset, "--target", "vorn_package_files")
others = [name for name in ("VORN32.dll", "libVORN32.a", "VORN32.lib")
          if (source / "build" / preset / name).read_bytes() != (dll.parent / name).read_bytes()]
shutil.rmtree(work, ignore_errors=True)
finish([f"a second build of the same sources gave another {name}" for name in others])
