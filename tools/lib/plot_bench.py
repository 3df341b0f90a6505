#!/usr/bin/env python3
"""Draws the pictures of docs/performance.md from the tables in it. Their colours can be read on light
and on dark ground."""
import html
import math
import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parents[2]
PAGE = ROOT / "docs/performance.md"
FOLDER = ROOT / "docs/pictures"

INK = "#767676"
LESS, MORE = "#3b7dd8", "#c9661a"
KINDS = {"add": "#3b7dd8", "a": "#c9661a", "open": "#2f8f5b", "close": "#2f8f5b",
         "move": "#b04fc4", "delete": "#b04fc4"}  # by an operation's first word


def table(page, first_cell, columns):
    """The rows below the head that begins so, as lists of their cells."""
    head = re.search(rf"^\| What \| {re.escape(first_cell)} \|.*\n\|[-|]+\n((?:\|.*\n)+)", page,
                     re.MULTILINE)
    rows = [[cell.strip() for cell in line.strip("|").split(" | ")]
            for line in head.group(1).splitlines()]
    if any(len(row) != columns for row in rows):
        raise ValueError(f"the table with {first_cell} has other columns than expected")
    return rows


class Scale:
    """A logarithmic axis over all values, from one of 1, 2, 5 times a power of ten to another."""

    def __init__(self, values, start, end):
        numbers = [float(f"{digit}e{power}") for power in range(-6, 9) for digit in (1, 2, 5)]
        low = max(number for number in numbers if number <= min(values))
        high = min(number for number in numbers if number >= max(values))
        self.ticks = [number for number in numbers if low <= number <= high]
        self.start, self.end = start, end

    def __call__(self, value):
        low, high = math.log10(self.ticks[0]), math.log10(self.ticks[-1])
        return self.start + (self.end - self.start) * (math.log10(value) - low) / (high - low)


def text(x, y, content, anchor="start", extra=""):
    return (f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}"{extra}>'
            f"{html.escape(content)}</text>")


def line(x1, y1, x2, y2, extra=""):
    return f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}"{extra}/>'


def picture(width, height, title, parts):
    return "\n".join([
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
        f'viewBox="0 0 {width} {height}" role="img" font-size="12" fill="{INK}" '
        'font-family="system-ui, -apple-system, \'Segoe UI\', \'Helvetica Neue\', sans-serif">',
        f"<title>{html.escape(title)}</title>", *parts, "</svg>", ""])


def comparisons(page):
    """(control, what, beside, ratio) of the first table; "the same" is what the row before is beside."""
    other = ""
    for what, beside, ratio in table(page, "Beside", 3):
        if not beside.startswith("the same"):
            other = re.match(r"`(\w[\w.]*)`", beside).group(1)
        control, _, deed = what.partition(": ")
        yield control, deed, other, ratio


def tick_labels(scale):
    """(place, label) of the powers of ten, and of the ticks between them that leave those room."""
    labels = []
    for tick in sorted(scale.ticks, key=lambda tick: (math.log10(tick) % 1 != 0, tick)):
        place, label = scale(tick), f"{tick:g}"
        if all(abs(place - other) > 4 * len(label + near) + 4 for other, near in labels):
            labels.append((place, label))
    return labels


def ratio_picture(page):
    rows = list(comparisons(page))
    scale = Scale([float(ratio) for *_, ratio in rows], 485, 850)
    y, control, bars = 46, None, []
    for name, deed, other, ratio in rows:
        if name != control:
            y, control = y + 30, name
            bars.append(text(10, y, name, extra=' font-weight="bold"'))
        y += 19
        value, one, end = float(ratio), scale(1), scale(float(ratio))
        bars += [text(24, y, deed), text(445, y, other, "end", ' font-style="italic"'),
                 f'<rect x="{min(one, end):.1f}" y="{y - 10:.1f}" width="{abs(end - one):.1f}" '
                 f'height="12" fill="{LESS if value < 1 else MORE}"/>',
                 text(end + (5 if value >= 1 else -5), y, ratio, "start" if value >= 1 else "end")]
    axis = [text(scale(1) - 10, 18, "takes less", "end", f' fill="{LESS}" font-weight="bold"'),
            text(scale(1) + 10, 18, "takes more", extra=f' fill="{MORE}" font-weight="bold"'),
            text(445, 18, "beside", "end", ' font-style="italic"')]
    for tick in scale.ticks:
        stroke = f' stroke="{INK}" stroke-opacity="{1 if tick == 1 else 0.3}"'
        axis.append(line(scale(tick), 48, scale(tick), y + 10, stroke))
    axis += [text(x, 40, label, "middle") for x, label in tick_labels(scale)]
    return picture(900, y + 20, "What the library's controls take, divided by what others take", [
        *axis, *bars])


def growth_rows(page):
    """(operation, nanoseconds at each size) of the table of the tree; and the sizes."""
    sizes = re.search(r"^\| What \| (1,000 \|.*) \|$", page, re.MULTILINE).group(1)
    rows = []
    for what, base, *factors in table(page, "1,000", 5):
        start = float(base.removesuffix(" ns"))
        rows.append((re.sub(r"[*`]", "", what),
                     [start, *(start * float(factor) for factor in factors)]))
    return rows, [int(size.replace(",", "")) for size in sizes.split(" | ")]


def spread(wanted, gap):
    """Places in order, none nearer to the one before than the gap, each as near as may be."""
    places = list(wanted)
    for _ in range(200):
        for i in range(1, len(places)):
            lack = gap - (places[i] - places[i - 1])
            if lack > 0:
                places[i - 1], places[i] = places[i - 1] - lack / 2, places[i] + lack / 2
    return places


def growth_picture(page):
    rows, sizes = growth_rows(page)
    up = Scale([value for _, values in rows for value in values], 520, 40)
    across = Scale(sizes, 70, 470)
    parts = [text(70, 18, "time an operation takes, by the number of items", extra=' font-weight="bold"')]
    for tick in up.ticks:
        label = f"{tick:g} ns" if tick < 1000 else f"{tick / 1000:g} µs"
        parts += [text(62, up(tick) + 4, label, "end"),
                  line(70, up(tick), 470, up(tick), f' stroke="{INK}" stroke-opacity="0.3"')]
    parts += [text(across(size), 540, f"{size:,}", "middle") for size in sizes]
    rows.sort(key=lambda row: -row[1][-1])
    labels = spread([up(values[-1]) for _, values in rows], 17)
    for (what, values), place in zip(rows, labels):
        color = KINDS.get(what.split()[0], INK)
        dashes = "" if what.split()[0] in KINDS else ' stroke-dasharray="5 4"'
        points = " ".join(f"{across(size):.1f},{up(value):.1f}" for size, value in zip(sizes, values))
        parts += [f'<polyline points="{points}" fill="none" stroke="{color}" stroke-width="2"{dashes}/>',
                  line(472, up(values[-1]), 496, place, f' stroke="{color}" stroke-opacity="0.6"'),
                  text(500, place + 4, what, extra=f' fill="{color}"')]
    return picture(900, 556, "What operations on the outline list's tree take", parts)


def pictures():
    page = PAGE.read_text(encoding="utf-8")
    return {"performance.svg": ratio_picture(page), "growth.svg": growth_picture(page)}


if __name__ == "__main__":
    for file_name, drawn in pictures().items():
        (FOLDER / file_name).write_text(drawn, encoding="utf-8")
