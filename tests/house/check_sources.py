"""The house's rules that no compiler knows: file sizes, the two halves, who may include whom."""
import re

from tree import LIBRARY_FOLDERS, ROOT, finish, library_sources, tracked

MOST_LINES = 600
INCLUDE = re.compile(r'^\s*#\s*include\s+["<]([^">]+)[">]', re.MULTILINE)
PLATFORM_HEADERS = {"windows.h", "windowsx.h", "winver.h", "vorn32.h", "core/platform_win.h"}


def control_of(path):
    """The folder that is one control's own, None for what all share."""
    parts = path.split("/")
    if parts[0] == "controls":
        return "/".join(parts[:2])
    return parts[0] if parts[0] in LIBRARY_FOLDERS and parts[0] != "core" else None


def long_files():
    for path in tracked(".h", ".cpp", ".c", ".py", ".sh", ".cmake"):
        lines = len((ROOT / path).read_text(encoding="utf-8").splitlines())
        if lines > MOST_LINES:
            yield f"{path}: {lines} lines; split it (the limit is {MOST_LINES})"


def includes():
    for path in library_sources():
        for included in INCLUDE.findall((ROOT / path).read_text(encoding="utf-8")):
            yield str(path), included


def wrong_includes():
    for path, included in includes():
        is_window_half = re.search(r"_win\.(h|cpp)$", path) is not None
        is_platform = (included in PLATFORM_HEADERS or included.startswith("vorn32/")
                       or included.endswith("_win.h"))
        if is_platform and not is_window_half:
            yield f"{path}: a logic half includes {included}"
        if included.startswith("tests/"):
            yield f"{path}: the library includes {included} of the tests"
        theirs = control_of(included)
        if theirs is None:
            continue
        if control_of(path) is None:
            yield f"{path}: the core includes {included} of a control"
        elif control_of(path) != theirs:
            yield f"{path}: a control includes {included} of another"


finish([*long_files(), *wrong_includes()])
