"""Every C and C++ file is as clang-format leaves it."""
import subprocess

from tree import ROOT, finish, tracked

files = [str(path) for path in tracked(".h", ".cpp", ".c")]
result = subprocess.run(["clang-format", "--dry-run", "--Werror", *files], cwd=ROOT,
                        capture_output=True, text=True, check=False)
finish(result.stderr.splitlines() if result.returncode else [])
