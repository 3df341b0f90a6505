"""The pages hold together: links and pictures exist, and all code shown is of a file that compiles."""
import re

from tree import LINK, ROOT, finish, tracked

# An example follows the line that names its file: all of it, or some lines "From `the file`".
EXAMPLE = re.compile(r"(From\s)?`(examples/[\w/.]+)`[^\n]*\n\n```\w+\n(.*?)```", re.DOTALL)
CODE = re.compile(r"^```(?:c|cpp|go|ada)$", re.MULTILINE)


def broken_links(path, content):
    for target in LINK.findall(content):
        if not target.startswith(("http:", "https:")) and not (ROOT / path).parent.joinpath(
                target).exists():
            yield f"{path}: no such file: {target}"


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
    findings += [*broken_links(page, text), *stale_examples(page, text)]
finish(findings)
