"""The reader of the public headers refuses what it cannot describe, and tells where that is; and it
reckons where fields are as the compilers do."""
import sys

from compilers import COMPILERS, assertion, compile_errors
from tree import ROOT, finish

sys.path.insert(0, str(ROOT / "tools/lib/site"))
from headers import HeaderError, parse, read_headers  # noqa: E402
from layout import measure  # noqa: E402

ABOUT = "/*\n * VORN32: a header.\n */\n#ifndef VORN32_X_H\n#define VORN32_X_H\n\n"
FIRST = 7  # the line behind that
END = "\n\n#endif\n"
GOOD = ["/* Ones. */\n#define ONE 1\n#define TWO (WM_USER + 2) /* more */",
        "#define ONE 1 /* one */",
        "/* Both. */\nVORNAPI int WINAPI a(HWND window);\nVORNAPI char* CALLBACK b(void);",
        "VORNAPI int WINAPI a(HWND window,\n                     const int* b); /* what it does */",
        "/* A pair. */\ntypedef struct Pair {\n    WORD a;\n    char b[9]; /* b */\n} Pair;",
        "/* A handle. */\ntypedef struct Thing_* HTHING;"]
# What is wrong, in how many lines behind the first one, and a word of the sentence about it.
BAD = [("#define ONE 1", 0, "ONE"),
       ("#define ONE 1 /* */", 0, "ONE"),
       ("/* Ones. */\n#define ONE 1\n\n#define TWO 2", 3, "TWO"),
       ("VORNAPI int WINAPI a(HWND window);", 0, "a has no description"),
       ("/* A pair. */\n\ntypedef struct Pair {\n    WORD a;\n} Pair;", 1, "describes nothing"),
       ("typedef struct Pair {\n    WORD a;\n} Pair;", 0, "Pair"),
       ("/* a */\ntypedef struct Pair {\n    WORD a, b;\n} Pair;", 1, "field"),
       ("/* a */\ntypedef struct Pair {\n    WORD a;\n} Other;", 1, "Pair"),
       ("/* a */\ntypedef int Number;", 1, "typedef"),
       ("/* a */\nVORNAPI int WINAPI a(HWND);", 1, "no name"),
       ("/* a */\nVORNAPI int WINAPI a();", 1, "form"),
       ("/* a */\nVORNAPI int a(HWND window);", 1, "form"),
       ("/* a */\nVORNAPI int WINAPI a(HWND window)\n\n#define B", 1, "semicolon"),
       ("/* a */\nint a(void);", 1, "form"),
       ("/* a */\n#define A 1\n/* b */\n#define B 2", 2, "empty line"),
       ("/* a */\n#define A 1\nVORNAPI int WINAPI b(void);", 2, "another kind"),
       ("/* a */\nenum { A };", 1, "form"),
       ("#ifdef A\n#define B 1 /* b */\n#endif", 0, "#ifdef"),
       ("// a\n#define A 1", 0, "form"),
       ("/* a", 2, "does not end")]


def refusals():
    for text in GOOD:
        try:
            if not parse("x.h", ABOUT + text + END).items():
                yield f"{text!r}: nothing was read"
        except HeaderError as error:
            yield f"{text!r}: {error}"
    for text, line, word in BAD:
        try:
            parse("x.h", ABOUT + text + END)
            yield f"{text!r}: was taken"
        except HeaderError as error:
            if not str(error).startswith(f"x.h:{FIRST + line}: ") or word not in str(error):
                yield f"{text!r}: instead of line {FIRST + line} and {word!r}: {error}"


def assertions(records):
    for record in records.values():
        measured = measure(record, records)
        if measured is None:
            continue
        claims = [f"sizeof({record.name}) == {measured[1]}"]
        claims += [f"offsetof({record.name}, {field.name}) == {offset}"
                   for field, offset in zip(record.fields, measured[0])]
        yield from (assertion(claim, claim) for claim in claims)


def layouts():
    claims = list(assertions({item.name: item for header in read_headers(ROOT)
                              for item in header.items() if item.kind == "record"}))
    if len(claims) < 30:
        yield f"only {len(claims)} sizes and offsets were found"
    for architecture in COMPILERS:
        yield from (f"{architecture}: {error}" for error in compile_errors(claims, architecture))


finish([*refusals(), *layouts()])
