"""The site of the documentation: the headers' every name is described in it exactly once, and a
browser finds nothing wrong with any page: links, pictures, form, width, messages, requests."""
import html.parser
import pathlib
import re
import subprocess
import sys
import tempfile

from site_browser import Browser, broken_links, missing_parts
from tree import ROOT, finish, tracked

GENERATOR = ROOT / "tools/lib/site"
# What the headers declare, as a reader of them would look for it.
GUARD = re.compile(r"VORN32_\w+_H$")
DECLARED = [re.compile(r"^\s*#\s*define\s+(\w+)", re.MULTILINE),
            re.compile(r"^\}\s*(\w+);", re.MULTILINE),
            re.compile(r"^typedef\s[^;{]*?(\w+);", re.MULTILINE)]
VOID = {"area", "base", "br", "col", "embed", "hr", "img", "input", "link", "meta", "source",
        "track", "wbr"}


class Balance(html.parser.HTMLParser):
    """Tags that do not close in the order they opened in, and names that are declared."""

    def __init__(self):
        super().__init__()
        self.open = []
        self.findings = []
        self.declared = []

    def handle_starttag(self, tag, attrs):
        values = dict(attrs)
        if len(values) != len(attrs):
            self.findings.append(f"line {self.getpos()[0]}: <{tag}> has an attribute twice")
        if "declared" in (values.get("class") or "").split():
            self.declared.append(values.get("id"))
        if tag not in VOID:
            self.open.append(tag)

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            self.findings.append(f"line {self.getpos()[0]}: </{tag}> closes what is not open")

    def close(self):
        super().close()
        self.findings += [f"<{tag}> is not closed" for tag in self.open]


def header_names():
    """Every macro, structure and handle of the public headers but for the guards."""
    names = set()
    for path in tracked(".h"):
        if path.parts[:2] == ("include", "vorn32"):
            text = re.sub(r"/\*.*?\*/", "", (ROOT / path).read_text(encoding="utf-8"),
                          flags=re.DOTALL)
            names |= {name for form in DECLARED for name in form.findall(text)}
    return {name for name in names if not GUARD.match(name)}


def exported_names():
    lines = (ROOT / "core/exports.txt").read_text(encoding="utf-8").splitlines()
    return {line.split()[0] for line in lines if line and not line.startswith("#")}


def described_names(files):
    """Findings about the form of pages, and every name that an entry of one is for."""
    findings, names = [], []
    for file in files:
        balance = Balance()
        balance.feed(file.read_text(encoding="utf-8"))
        balance.close()
        findings += [f"{file.name}: {finding}" for finding in balance.findings]
        names += balance.declared
    return findings, names


def coverage(names):
    expected = header_names() | exported_names()
    for name in sorted(expected):
        if names.count(name) != 1:
            yield f"{name}: has {names.count(name)} entries in the reference instead of one"
    for name in sorted(set(names) - expected):
        yield f"{name}: has an entry in the reference, but no header declares it"


def seen_pages(folder, files):
    with Browser() as browser:
        pages = {file: browser.look(file) for file in files}
    for file, page in pages.items():
        for finding in [*page["findings"], *missing_parts(page), *broken_links(page, pages)]:
            yield f"{file.relative_to(folder)}: {finding}"


with tempfile.TemporaryDirectory(prefix="vorn32-site-") as temporary:
    site = pathlib.Path(temporary).resolve() / "site"
    made = subprocess.run(["/usr/bin/python3", GENERATOR, site], capture_output=True, text=True,
                          check=False)
    if made.returncode != 0:
        sys.exit(made.stdout + made.stderr)
    all_files = sorted(site.rglob("*.html"))
    wrong_form, described = described_names(all_files)
    finish([*wrong_form, *coverage(described), *seen_pages(site, all_files)])
