"""The library's pictures as their XPM files have them, read without netpbm."""
import re

from tree import ROOT

FOLDER = ROOT / "resources/pictures"
TRANSPARENT = "FF00FF"
# Every file lists all of them, so that a colour has one letter everywhere.
LETTERS = {
    ".": TRANSPARENT, "X": "000000", "d": "808080", "s": "C0C0C0", "W": "FFFFFF", "r": "800000",
    "R": "FF0000", "g": "008000", "G": "00FF00", "o": "808000", "Y": "FFFF00", "n": "000080",
    "B": "0000FF", "p": "800080", "t": "008080", "C": "00FFFF"}
SIZES = {"button20": (20, 20), "button16": (16, 15), "hostapp": (20, 20), "pad": (29, 29),
         "fontmark": (16, 12), "outline": (16, 16), "treebox": (11, 11), "yeararrow": (10, 13)}
# The cells of each set in the order of their numbers.
CELLS = {
    "button20": [
        "00-new", "01-open", "02-save", "03-print", "04-cut", "05-copy", "06-paste", "07-undo",
        "08-redo", "09-find", "10-properties", "11-help", "12-information", "13-warning",
        "14-stop", "15-empty", "16-empty"],
    "button16": [
        "00-new", "01-open", "02-save", "03-print", "04-print-preview", "05-cut", "06-copy",
        "07-paste", "08-delete", "09-undo", "10-redo", "11-find", "12-replace", "13-properties",
        "14-help", "15-information", "16-warning", "17-stop", "18-first", "19-previous",
        "20-next", "21-last", "22-up", "23-down", "24-play", "25-pause", "26-stop-media",
        "27-record", "28-sort-ascending", "29-filter", "30-calendar", "31-clock"],
    "hostapp": ["00-application"],
    "pad": ["305-rest", "306-up", "307-right", "308-down", "309-left"],
    "fontmark": ["355-truetype", "356-plain"],
    "outline": [
        "00-empty", "01-item", "02-document", "03-computer", "04-program", "05-system-file",
        "06-folder", "07-open-folder", "08-text", "09-help", "10-removable-drive",
        "11-fixed-drive", "12-network-drive", "13-cd-drive"],
    "treebox": ["214-closed", "215-open"],
    "yeararrow": ["1023-previous", "1025-next"]}


def path_of(set_name, cell):
    return FOLDER / set_name / f"{cell}.xpm"


def strings(set_name, cell):
    """All quoted lines of a file: the header, the palette, the rows."""
    return re.findall(r'"([^"]*)"', path_of(set_name, cell).read_text(encoding="ascii"))


def rows(set_name, cell):
    """The rows of a cell, from the top, each a list of colours."""
    return [[LETTERS[letter] for letter in row]
            for row in strings(set_name, cell)[1 + len(LETTERS):]]


def strip(set_name, cells):
    """Cells side by side."""
    columns = [rows(set_name, cell) for cell in cells]
    return [sum(parts, []) for parts in zip(*columns)]
