"""The package depends on what is in it alone: made again, in another folder, of files with other
times and other permissions, it is the same byte by byte.
Usage: check_package_again.py ZIP WORK_FOLDER"""
import os
import pathlib
import shutil
import subprocess
import sys

from tree import ROOT, finish

package, work = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
shutil.rmtree(work, ignore_errors=True)
folder = work / package.stem
os.umask(0o077)
for preset in ("x86_64", "i686"):  # the other order
    subprocess.run(["cmake", "--install", ROOT / "build" / preset, "--prefix", folder],
                   stdout=subprocess.DEVNULL, check=True)
subprocess.run(["/usr/bin/python3", ROOT / "tools/lib/site", folder / "doc/html"], check=True)
for number, path in enumerate(sorted(folder.rglob("*"), reverse=True)):
    os.utime(path, (1_000_000_000 + 86_400 * number,) * 2)
again = work / "again.zip"
subprocess.run([sys.executable, ROOT / "tools/lib/write_zip.py", folder, again], check=True)
same = again.read_bytes() == package.read_bytes()
shutil.rmtree(work)
finish([] if same else ["the package made again is another one"])
