"""The project's files, as the checks see them."""
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
LIBRARY_FOLDERS = ("core", "controls", "date", "numeric", "timeedit", "fontselect", "hierlist")

# What a page links to or shows.
LINK = re.compile(r"!?\[[^\]]*\]\(([^)#\s]+)[^)]*\)")


def tracked(*suffixes):
    """Paths of the files that git tracks or would track, relative to the root."""
    listing = subprocess.run(
        ["git", "ls-files", "--cached", "--others", "--exclude-standard"],
        cwd=ROOT, capture_output=True, text=True, check=True).stdout.splitlines()
    files = (pathlib.PurePosixPath(line) for line in listing if (ROOT / line).is_file())
    return [path for path in files if not suffixes or path.suffix in suffixes]


def library_sources():
    return [path for path in tracked(".h", ".cpp") if path.parts[0] in LIBRARY_FOLDERS]


def finish(findings):
    """Prints the findings and ends: with 1 when there are any."""
    for finding in findings:
        print(finding)
    sys.exit(1 if findings else 0)
