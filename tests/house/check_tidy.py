"""clang-tidy over the library's sources: the logic halves as they are built natively, the window
halves as they are built for 64-bit Windows. Files that passed once are not read again until they,
a header or the rules change."""
import concurrent.futures
import hashlib
import os
import pathlib
import re
import subprocess
import sys

from tree import ROOT, finish, library_sources, tracked

TRIPLE = "x86_64-w64-mingw32"
build = pathlib.Path(sys.argv[1])
cache = build / "tidy-passed"
cache.mkdir(exist_ok=True)


def window_arguments():
    """What clang needs to know of the cross compiler's own headers."""
    compiler = f"{TRIPLE}-g++-posix"
    output = subprocess.run([compiler, "-E", "-x", "c++", "-v", os.devnull], capture_output=True,
                            text=True, check=True).stderr
    folders = output.split("search starts here:")[-1].split("End of search list")[0].split()
    # GCC's own intrinsics are not clang's.
    own_headers = [folder for folder in folders if folder.startswith("/usr")
                   and not re.search(r"/[\d.]+-posix/include(-fixed)?$", folder)]
    return [f"--target={TRIPLE}", "-nostdinc++", *[f"-isystem{folder}" for folder in own_headers],
            "-std=c++20", "-D_WIN32_WINNT=0x0601", "-DWINVER=0x0601", "-DVORN32_BUILD",
            f"-I{ROOT}", f"-I{ROOT / 'include'}"]


def digest(*paths):
    state = hashlib.sha256()
    for path in paths:
        state.update((ROOT / path).read_bytes())
    return state.hexdigest()


def check(path, arguments, shared):
    passed = cache / f"{digest(path)}-{shared}"
    if passed.exists():
        return ""
    result = subprocess.run(["clang-tidy", "--quiet", str(path), "--", *arguments], cwd=ROOT,
                            capture_output=True, text=True, check=False)
    if result.returncode == 0:
        passed.touch()
        return ""
    return result.stdout + result.stderr


headers = sorted(path for path in tracked(".h"))
shared = digest(".clang-tidy", *headers)[:32]
native = ["-std=c++20", f"-I{ROOT}", "-Wall", "-Wextra"]
window = window_arguments()
with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
    jobs = [pool.submit(check, path, window if path.stem.endswith("_win") else native, shared)
            for path in library_sources() if path.suffix == ".cpp"]
    finish([job.result() for job in jobs if job.result()])
