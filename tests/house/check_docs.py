"""The pages hold together: links and pictures exist, and all code shown is of a file that compiles."""
import re

from tree import LINK, ROOT, finish, tracked

# An example follows the line that names its file: all of it, or some lines "From `the file`".
EXAMPLE = re.compile(r"(From\s)?`(examples/[\w/.]+)`[^\n]*\n\n```\w+\n(.*?)```", re.DOTALL)
ANCHOR = re.compile(r"\]\(([^)#\s]*)#([^)\s]+)\)")
HEADING = re.compile(r"^#+ (.+)$", re.MULTILINE)
CODE = re.compile(r"^```(?:c|cpp|go|ada)$", re.MULTILINE)


def broken_links(path, content):
    for target in LINK.findall(content):
        if not target.startswith(("http:", "https:")) and not (ROOT / path).parent.joinpath(
                target).exists():
            yield f"{path}: no such file: {target}"


def anchors(path):
    """What links call the headings of a page."""
    headings = HEADING.findall(path.read_text(encoding="utf-8"))
    return {re.sub(r"[^\w -]", "", heading).lower().replace(" ", "-") for heading in headings}


def broken_anchors(path, content):
    for target, anchor in ANCHOR.findall(content):
        there = (ROOT / path).parent / target if target else ROOT / path
        if there.suffix == ".md" and there.is_file() and anchor not in anchors(there):
            yield f"{path}: {target} has no heading {anchor}"


def stale_examples(path, content):
    examples = EXAMPLE.findall(content)
    for is_part, name, shown in examples:
        whole = (ROOT / name).read_text(encoding="utf-8")
        if whole != shown and not (is_part and shown and f"\n{shown}" in f"\n{whole}"):
            yield f"{path}: the example is not what {name} holds:\n{shown}"
    if len(CODE.findall(content)) > len(examples):
        yield f"{path}: there is code that does not follow the name of its file"


findings = []
for page in tracked(".md"):
    text = (ROOT / page).read_text(encoding="utf-8")
    findings += [*broken_links(page, text), *broken_anchors(page, text), *stale_examples(page, text)]
finish(findings)
