"""The sources of the library's pictures: names, sizes, palettes, transparent corners, and that the
spin pad's pictures show one pad."""
from pictures import CELLS, FOLDER, LETTERS, OPAQUE, SIZES, TRANSPARENT, path_of, rows, strings
from tree import ROOT, finish

PALETTE = [f"{letter} c #{color}" for letter, color in LETTERS.items()]


def names():
    expected = {path_of(set_name, cell) for set_name, cells in CELLS.items() for cell in cells}
    found = set(FOLDER.glob("*/*"))
    for path in sorted(expected - found):
        yield f"{path.relative_to(ROOT)}: missing"
    for path in sorted(found - expected):
        yield f"{path.relative_to(ROOT)}: not the name of a cell"


def form(set_name, cell):
    """What is wrong with the file, before its colours can be looked at."""
    width, height = SIZES[set_name]
    lines = strings(set_name, cell)
    pixels = lines[1 + len(PALETTE):]
    if lines[0] != f"{width} {height} {len(PALETTE)} 1":
        yield f"the header is not of a picture of {width} by {height} with {len(PALETTE)} colours"
    if lines[1:1 + len(PALETTE)] != PALETTE:
        yield "the palette is not the one that all files have"
    if len(pixels) != height:
        yield f"{len(pixels)} rows instead of {height}"
    for y, row in enumerate(pixels):
        if len(row) != width:
            yield f"row {y} has {len(row)} pixels instead of {width}"
        for letter in sorted(set(row) - set(LETTERS)):
            yield f"row {y} has the letter {letter}, which is no colour"


def colors(set_name, cell):
    pixels = rows(set_name, cell)
    used = {color for row in pixels for color in row}
    if set_name in OPAQUE:
        if used - OPAQUE[set_name]:
            yield "has a colour that is not its set's"
        return
    if pixels[-1][0] != TRANSPARENT:
        yield "the bottom-left pixel is not transparent"
    if (used == {TRANSPARENT}) != cell.endswith("-empty"):
        yield "an empty cell has a picture, or a picture's cell is empty"


def direction(x, y):
    """The button under a pixel: the border and the diagonals belong to none."""
    if x in (0, 28) or y in (0, 28) or x in (y, 28 - y):
        return None
    if x < y:
        return "left" if x < 28 - y else "down"
    return "up" if x < 28 - y else "right"


def pads():
    """A press changes its own button and nothing else."""
    rest = rows("pad", "305-rest")
    for cell in CELLS["pad"][1:]:
        pressed = rows("pad", cell)
        changed = {direction(x, y) for y in range(29) for x in range(29)
                   if pressed[y][x] != rest[y][x]}
        if changed != {cell.split("-")[1]}:
            yield f"{cell}: differs from the pad at rest in {sorted(map(str, changed))}"


findings = list(names())
if not findings:
    cells = [(set_name, cell) for set_name, cells in CELLS.items() for cell in cells]
    for check in (form, colors):
        if not findings:
            findings = [f"{set_name}/{cell}: {what}" for set_name, cell in cells
                        for what in check(set_name, cell)]
finish(findings or [*pads()])
