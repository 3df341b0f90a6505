"""The pages hold together: links and pictures exist, and an example shown is the one that compiles."""
import re

from tree import LINK, ROOT, finish, tracked

# An example follows the line that names its file.
EXAMPLE = re.compile(r"`(examples/[\w/.]+)`[^\n]*\n\n```\w+\n(.*?)```", re.DOTALL)


def broken_links(path, content):
    for target in LINK.findall(content):
        if not target.startswith(("http:", "https:")) and not (ROOT / path).parent.joinpath(
                target).exists():
            yield f"{path}: no such file: {target}"


def stale_examples(path, content):
    for name, shown in EXAMPLE.findall(content):
        if (ROOT / name).read_text(encoding="utf-8") != shown:
            yield f"{path}: the example is not what {name} holds"


findings = []
for page in tracked(".md"):
    text = (ROOT / page).read_text(encoding="utf-8")
    findings += [*broken_links(page, text), *stale_examples(page, text)]
finish(findings)
