"""Where the fields of a structure are."""
import dataclasses
import re

FIELD = re.compile(r"    (\w+) (\w+)(?:\[(\d+)\])?;$")
# Sizes that are the same on both architectures.
SIZES = {"char": 1, "WORD": 2, "DWORD": 4, "double": 8}
POINTERS = {"LONG_PTR", "HOLBITEM", "LPCSTR", "LPSTR"}


@dataclasses.dataclass
class Field:
    type: str
    name: str
    count: int  # of an array's elements; 0 for what is no array
    comment: str | None


def fields_of(rows):
    """The fields in rows of (line, code, comment). Raises ValueError for one of another form."""
    fields = []
    for line, code, comment in rows:
        match = FIELD.match(code)
        if match is None:
            raise ValueError(f"The field in line {line} is in a form that is not known.")
        fields.append(Field(match[1], match[2], int(match[3] or 0), comment))
    return fields


def measure(record, records):
    """Offsets of the fields, size and alignment of a record; None when it holds pointers."""
    offsets, end, alignment = [], 0, 1
    for field in record.fields:
        if field.type in POINTERS:
            return None
        if field.type in SIZES:
            size = step = SIZES[field.type]
        elif field.type in records:
            _, size, step = measure(records[field.type], records)
        else:
            raise ValueError(f"{record.name}: the size of {field.type} is not known.")
        step = min(step, record.pack)
        end = -(-end // step) * step
        offsets.append(end)
        end += size * max(field.count, 1)
        alignment = max(alignment, step)
    return offsets, -(-end // alignment) * alignment, alignment
