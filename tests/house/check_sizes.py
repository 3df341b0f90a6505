"""The table of the public records' sizes has every record of the headers, and what the compilers for
both architectures make of it."""
import re

from compilers import COMPILERS, assertion, compile_errors
from tree import ROOT, finish, tracked

PAGE = "docs/migration.md"
ROW = re.compile(r"^\| `(\w+)` \| (\d+) \| (\d+) \|$", re.MULTILINE)
RECORD = re.compile(r"^typedef struct \w+ \{.*?^\} (\w+);", re.MULTILINE | re.DOTALL)

table = {name: sizes for name, *sizes in ROW.findall((ROOT / PAGE).read_text(encoding="utf-8"))}
declared = {name for path in tracked(".h") if path.parts[0] == "include"
            for name in RECORD.findall((ROOT / path).read_text(encoding="utf-8"))}

findings = [f"{name}: a record without its sizes, or sizes without a record"
            for name in sorted(declared ^ set(table))]
for position, architecture in enumerate(COMPILERS):
    lines = [assertion(f"sizeof({name}) == {sizes[position]}",
                       f"{name} has not {sizes[position]} bytes, {architecture}")
             for name, sizes in table.items()]
    findings += compile_errors(lines, architecture)
finish([f"{PAGE}: {finding}" for finding in findings] or ([] if table else ["no records found"]))
