"""The bitmaps in the DLL have 16 colours and show the cells of the XPM files, pixel by pixel.
Usage: check_bitmaps.py DLL"""
import pathlib
import struct
import sys

from pictures import CELLS, TRANSPARENT, strip
from tree import finish

RT_BITMAP = 2
SUBFOLDER = 0x80000000
# Sets that become one bitmap; of the others each file does, and its name begins with the number.
STRIPS = {217: "outline", 222: "button20", 223: "button16", 228: "hostapp"}
BITMAPS = {**{number: (name, CELLS[name]) for number, name in STRIPS.items()},
           **{int(cell.partition("-")[0]): (name, [cell]) for name, cells in CELLS.items()
              if name not in STRIPS.values() for cell in cells}}

image = pathlib.Path(sys.argv[1]).read_bytes()


def unpack(layout, offset):
    return struct.unpack_from("<" + layout, image, offset)


def resource_section():
    """File offset and virtual address of the resources."""
    headers = unpack("I", 0x3C)[0]
    count, optional_size = unpack("H", headers + 6)[0], unpack("H", headers + 20)[0]
    for i in range(count):
        section = headers + 24 + optional_size + 40 * i
        if image[section:section + 8].rstrip(b"\0") == b".rsrc":
            address, _, offset = unpack("III", section + 12)
            return offset, address
    finish(["has no resources"])


BASE, ADDRESS = resource_section()


def entries(folder):
    """Number to offset of what a resource folder has."""
    named, numbered = unpack("HH", BASE + folder + 12)
    first = BASE + folder + 16 + 8 * named
    return dict(unpack("II", first + 8 * i) for i in range(numbered))


def bitmaps():
    """Number to file offset of each bitmap, in its first language."""
    for number, languages in entries(entries(0)[RT_BITMAP] & ~SUBFOLDER).items():
        data = next(iter(entries(languages & ~SUBFOLDER).values()))
        yield number, BASE + unpack("I", BASE + data)[0] - ADDRESS


def decode(offset):
    """The rows of an uncompressed bitmap of 4 bits a pixel, from the top."""
    header_size, width, height, _, bits, compression = unpack("IiiHHI", offset)
    if (bits, compression) != (4, 0):
        return None
    used = unpack("I", offset + 32)[0] or 16
    palette = [image[at:at + 3][::-1].hex().upper()
               for at in range(offset + header_size, offset + header_size + 4 * used, 4)]
    row_bytes = (width + 7) // 8 * 4
    pixels = offset + header_size + 4 * used
    rows = []
    for y in reversed(range(height)):
        row = image[pixels + y * row_bytes:pixels + (y + 1) * row_bytes]
        indexes = [index for byte in row for index in (byte >> 4, byte & 15)][:width]
        rows.append([palette[index] for index in indexes])
    return rows


def differences(number, actual):
    set_name, cells = BITMAPS[number]
    expected = strip(set_name, cells)
    if actual is None:
        yield f"bitmap {number} is not of 4 bits a pixel"
    elif (len(actual), len(actual[0])) != (len(expected), len(expected[0])):
        yield (f"bitmap {number} has {len(actual[0])} by {len(actual)} pixels instead of "
               f"{len(expected[0])} by {len(expected)}")
    elif actual != expected:
        yield f"bitmap {number} does not show its cells"
    elif set_name != "pad" and actual[-1][0] != TRANSPARENT:
        yield f"bitmap {number} has no transparent colour"


found = dict(bitmaps())
finish([f"has no bitmap {number}" for number in BITMAPS if number not in found]
       + [finding for number in BITMAPS if number in found
          for finding in differences(number, decode(found[number]))])
