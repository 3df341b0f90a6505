"""Reads the public headers: what they declare, and how their comments describe it.

The headers have one form. A comment stands before a declaration, before a group of declarations
that follow each other without an empty line, or at the end of a declaration's line. A header that
has anything else is refused, so that nothing is left out in silence."""
import dataclasses
import pathlib
import re

from layout import Field, fields_of

GUARD = re.compile(r"#(?:ifndef|define) VORN32_\w+_H$")
INCLUDE = re.compile(r"#include <[\w/.]+>$")
PACK = re.compile(r"#include <(?:pshpack(\d)|poppack)\.h>$")
LINTER = re.compile(r"/\* NOLINT.*\*/$")
SECTION = re.compile(r"/\* ---- (.+) ---- \*/$")
TITLE = re.compile(r"VORN32: \S.*")
DEFINE = re.compile(r"#define (\w+)(\(\w+\))?(?: (.+))?$")
FUNCTION = re.compile(r"VORNAPI (\w[\w ]*\*? ?)(WINAPI|CALLBACK) (\w+)\((.+)\);$")
PARAMETER = re.compile(r"(?:const )?\w+(?: const)?\*? (\w+)$")
HANDLE = re.compile(r"typedef struct \w+\* (\w+);$")
RECORD = re.compile(r"typedef struct (\w+) \{$")
TRAILING = re.compile(r"(.*\S)\s+/\*(.*)$")
C_PLUS_PLUS = (["#ifdef __cplusplus", 'extern "C" {', "#endif"], ["#ifdef __cplusplus", "}", "#endif"])


class HeaderError(Exception):
    """A header that is not in the form: file, line and what is wrong."""

    def __init__(self, path, line, sentence):
        super().__init__(f"{path}:{line}: {sentence}")


@dataclasses.dataclass
class Item:
    """A declaration. `comment` is what its own line says, None where it says nothing; "" where it
    says that there is nothing to say."""
    kind: str  # "define", "function", "handle" or "record"
    name: str
    line: int
    text: str  # a function's prototype, what a #define stands for
    comment: str | None = None
    parameters: str = ""  # of a macro that takes some
    fields: list[Field] = dataclasses.field(default_factory=list)
    pack: int = 8


@dataclasses.dataclass
class Group:
    """Declarations of one kind and the comment in front of them, as paragraphs."""
    paragraphs: list[str]
    section: str
    items: list[Item] = dataclasses.field(default_factory=list)


@dataclasses.dataclass
class Header:
    name: str  # such as "button"
    path: str
    about: list[str]
    groups: list[Group]

    def items(self):
        return [item for group in self.groups for item in group.items]


def paragraphs_of(comment):
    """The paragraphs of a comment's inner text."""
    lines = [re.sub(r"^\s*\*? ?", "", line).rstrip() for line in comment.strip().splitlines()]
    return [" ".join(part.split()) for part in "\n".join(lines).split("\n\n") if part.strip()]


class Reader:
    """Goes through a header's lines; each step takes what it understands or fails."""

    def __init__(self, path, lines):
        self.path = path
        self.lines = lines
        self.at = 0
        self.section = ""
        self.pack = 8
        self.groups = []
        self.pending = None  # the paragraphs of a comment that describes what follows
        self.group = None  # the group that the next declaration belongs to

    def fail(self, sentence, line=None):
        raise HeaderError(self.path, self.at + 1 if line is None else line, sentence)

    def line(self):
        return self.lines[self.at] if self.at < len(self.lines) else None

    def comment(self, opening):
        """The inner text of the comment that `opening` begins, past its end."""
        text = opening
        while "*/" not in text:
            self.at += 1
            if self.line() is None:
                self.fail("A comment does not end.")
            text += "\n" + self.line()
        inner, rest = text.split("*/", 1)
        if rest.strip():
            self.fail("Something follows a comment on its line.")
        self.at += 1
        return inner

    def without_comment(self):
        """The line's code and the comment at its end; past the line."""
        match = TRAILING.match(self.line())
        if match is None:
            code = self.line()
            self.at += 1
            return code, None
        return match[1], " ".join(paragraphs_of(self.comment(match[2])))

    def add(self, item):
        if self.group is None:
            self.group = Group(self.pending or [], self.section)
            self.pending = None
            self.groups.append(self.group)
        if self.group.items and self.kind_of(self.group.items[0]) != self.kind_of(item):
            self.fail(f"{item.name} is of another kind than the group it stands in.", item.line)
        if not self.group.paragraphs and not item.comment:
            self.fail(f"{item.name} has no description.", item.line)
        item.pack = self.pack
        self.group.items.append(item)

    @staticmethod
    def kind_of(item):
        return "type" if item.kind in ("handle", "record") else item.kind

    def define(self):
        line = self.at + 1
        code, comment = self.without_comment()
        match = DEFINE.match(code)
        if match is None:
            self.fail("This #define is in a form that is not known.", line)
        self.add(Item("define", match[1], line, match[3] or "", comment, match[2] or ""))

    def conditional(self):
        """A name that is defined one way while the library is built and another for hosts."""
        line = self.at + 1
        block = self.lines[self.at:self.at + 5]
        form = (r"#ifdef VORN32_BUILD\n#define (\w+)\n#else\n#define (\w+) (\w+)\n#endif$")
        match = re.match(form, "\n".join(block))
        if match is None or match[1] != match[2]:
            self.fail("This #ifdef is in a form that is not known.", line)
        self.at += 5
        self.add(Item("define", match[1], line, match[3]))

    def function(self):
        line = self.at + 1
        code, comment = self.without_comment()
        while not code.endswith(";"):
            if comment is not None or not self.line():
                self.fail("A declaration does not end with a semicolon.", line)
            more, comment = self.without_comment()
            code += " " + more.strip()
        match = FUNCTION.match(code)
        if match is None:
            self.fail("This declaration is in a form that is not known.", line)
        for parameter in match[4].split(", "):
            if parameter != "void" and PARAMETER.match(parameter) is None:
                self.fail(f"{match[3]}: the parameter '{parameter}' has no name, or a form that "
                          "is not known.", line)
        self.add(Item("function", match[3], line, code.removeprefix("VORNAPI "), comment))

    def handle(self):
        line = self.at + 1
        code, comment = self.without_comment()
        match = HANDLE.match(code)
        if match is None:
            self.fail("This typedef is in a form that is not known.", line)
        self.add(Item("handle", match[1], line, code, comment))

    def record(self):
        line = self.at + 1
        code, comment = self.without_comment()
        match = RECORD.match(code)
        if match is None:
            self.fail("This structure is in a form that is not known.", line)
        rows = []
        while self.line() not in (None, "", f"}} {match[1]};"):
            number = self.at + 1
            rows.append((number, *self.without_comment()))
        if not self.line():
            self.fail(f"The structure {match[1]} does not end with its name.", line)
        self.at += 1
        try:
            fields = fields_of(rows)
        except ValueError as error:
            self.fail(str(error), line)
        self.add(Item("record", match[1], line, "", comment, fields=fields))

    def description(self):
        """A comment that stands for itself."""
        line = self.at + 1
        if self.group is not None or self.pending is not None:
            self.fail("A comment stands among declarations without an empty line before it.", line)
        self.pending = paragraphs_of(self.comment(self.line()[2:]))
        if not self.pending:
            self.fail("A comment is empty.", line)

    def blank(self):
        if self.pending is not None:
            self.fail("A comment describes nothing: an empty line follows it.")
        self.group = None
        self.at += 1

    def skip(self):
        """Takes what declares nothing; answers whether there was any."""
        line = self.line()
        packed = PACK.match(line)
        if packed is not None:
            self.pack = int(packed[1] or 8)
        for block in C_PLUS_PLUS:
            if self.lines[self.at:self.at + 3] == block:
                self.at += 3
                return True
        if SECTION.match(line):
            self.section = SECTION.match(line)[1]
        elif not (packed or LINTER.match(line) or GUARD.match(line) or INCLUDE.match(line)):
            return False
        self.at += 1
        return True

    def step(self):
        line = self.line()
        if not line:
            self.blank()
        elif self.skip():
            pass
        elif line.startswith("/*"):
            self.description()
        elif line.startswith("#define "):
            self.define()
        elif line.startswith("#ifdef "):
            self.conditional()
        elif line.startswith("VORNAPI "):
            self.function()
        elif line.startswith("typedef ") and line.split("/*")[0].rstrip().endswith("{"):
            self.record()
        elif line.startswith("typedef "):
            self.handle()
        else:
            self.fail("This line is in a form that is not known.")


def parse(path, text):
    """The header `text`, named `path` in failures. Raises HeaderError."""
    reader = Reader(path, text.splitlines())
    if not (reader.line() or "").startswith("/*"):
        reader.fail("A header begins with a comment about it.")
    about = paragraphs_of(reader.comment(reader.line()[2:]))
    if not about or not TITLE.match(about[0]):
        reader.fail('The comment about a header begins with "VORN32: ".', 1)
    if reader.lines[-2:] != ["", "#endif"]:
        reader.fail("A header ends with the #endif of its guard.", len(reader.lines))
    reader.lines = reader.lines[:-1]
    while reader.line() is not None:
        reader.step()
    return Header(pathlib.PurePosixPath(path).stem, path, about, reader.groups)


def read_headers(root):
    """All public headers of the project, each name declared once. Raises HeaderError."""
    headers = []
    seen = {}
    for file in sorted((root / "include/vorn32").glob("*.h")):
        path = file.relative_to(root).as_posix()
        header = parse(path, file.read_text(encoding="utf-8"))
        for item in header.items():
            if item.name in seen:
                raise HeaderError(path, item.line, f"{item.name} is declared in {seen[item.name]} "
                                                   "too.")
            seen[item.name] = path
        headers.append(header)
    return headers
