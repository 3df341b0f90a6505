"""Builds the site: pages of the documentation, the reference, the index, the sources linked to."""
import dataclasses
import html
import os
import pathlib
import posixpath
import re
import shutil

import jinja2

from headers import read_headers
from markup import picture_size, render
from names import SINGULARS, all_names, page_of
from prose import Prose
from reference import Reference
from source import code_styles, highlighted, is_text, tracked_below

HERE = pathlib.Path(__file__).resolve().parent
INTRODUCTION = re.compile(r"# VORN32\n\n(.*?)\n\n", re.DOTALL)
EXAMPLE = re.compile(r"examples/[\w./]*$")
OPENING = re.compile(r"# ([^\n]+)\n\n(.+?)\n\n", re.DOTALL)
CONTROLS = ["button", "calendar", "combobox", "dateedit", "dial", "fontselect", "numedit",
            "hierlist", "percentbar", "udlr", "timeedit"]
# The navigation's groups. Pages that are in none stand in the last one.
GROUPS = [("First steps", ["getting-started", "hosting", "migration", "packages"]),
          ("Controls", CONTROLS),
          ("The library", ["library", "performance", "architecture"])]


class SiteError(Exception):
    """What keeps the site from being made, as a sentence."""


@dataclasses.dataclass
class Page:
    stem: str
    title: str
    opening: str  # its first paragraph, in Markdown
    text: str


def read_pages(root):
    pages = {}
    for file in sorted((root / "docs").glob("*.md")):
        text = file.read_text(encoding="utf-8")
        match = OPENING.match(text)
        if match is None:
            raise SiteError(f"docs/{file.name}:1: A page begins with a heading and a paragraph.")
        pages[file.stem] = Page(file.stem, match[1], match[2], text)
    return pages


class Site:
    """Where everything is on the site. Pages are named by their address in it: "button.html"."""

    def __init__(self, root, out):
        self.root = root
        self.out = out
        self.headers = read_headers(root)
        self.names = all_names(self.headers)
        self.pages = read_pages(root)
        self.sources = {}  # address to the file or folder that it shows
        self.copies = {}
        for header in self.headers:
            if page_of(header) not in self.pages:
                raise SiteError(f"{header.path}:1: There is no page docs/{page_of(header)}.md to "
                                "describe this header on.")

    def name_address(self, name, page):
        """Where a public name is described, seen from a page; None for any other word."""
        if name not in self.names:
            return None
        there = f"{self.names[name].page}.html"
        return f"#{name}" if there == page else f"{self.prefix(page)}{there}#{name}"

    def example_address(self, name, page):
        """Where an example is shown, or the folder of some; None for any other text."""
        if not EXAMPLE.match(name) or not tracked_below(self.root, name):
            return None
        return self.prefix(page) + self.source(name.rstrip("/"))

    @staticmethod
    def prefix(page):
        return "../" * page.count("/")

    def resolve(self, link, page):
        """What a link of a page of docs/ names, relative to the project's root."""
        path = posixpath.normpath(posixpath.join("docs", link))
        if path.startswith("..") or not (self.root / path).exists():
            source = f"docs/{page.removesuffix('.html')}.md"
            raise SiteError(f"{source}: The link to {link} leads nowhere.")
        return path

    def address(self, link, page):
        """The address on the site that a link of the documentation's Markdown means."""
        target, mark, anchor = link.partition("#")
        if re.match(r"\w+:", link) or not target:
            return link
        path = self.resolve(target, page)
        file = pathlib.PurePosixPath(path)
        if file.parent.as_posix() == "docs" and file.suffix == ".md":
            return f"{self.prefix(page)}{file.stem}.html{mark}{anchor}"
        if file.parent.as_posix() == "include/vorn32":
            home = next(page_of(header) for header in self.headers if header.path == path)
            return f"{self.prefix(page)}{home}.html#reference"
        return self.prefix(page) + self.source(path)

    def source(self, path):
        """The address of a file or folder of the project."""
        file = self.root / path
        if file.is_file() and not is_text(file):
            self.copies[path] = file
            return path
        address = f"source/{path}.html"
        self.sources[address] = path
        return address

    def picture(self, link, page):
        """The file of a picture, which keeps its address; it is brought along."""
        path = self.resolve(link, page)
        if not path.startswith("docs/") or page.count("/"):
            raise SiteError(f"{page}: The picture {link} is not in docs/.")
        self.copies[path.removeprefix("docs/")] = self.root / path
        return self.root / path


class Builder:
    """Writes the site."""

    def __init__(self, site):
        self.site = site
        self.records = {item.name: item for header in site.headers for item in header.items()
                        if item.kind == "record"}
        environment = jinja2.Environment(loader=jinja2.FileSystemLoader(HERE / "templates"),
                                         trim_blocks=True, lstrip_blocks=True, autoescape=False,
                                         undefined=jinja2.StrictUndefined)
        environment.filters["e"] = html.escape
        self.environment = environment
        version = re.search(r"^project\(VORN32 VERSION (\d+\.\d+\.\d+)",
                            (site.root / "CMakeLists.txt").read_text(encoding="utf-8"), re.MULTILINE)
        self.version = version[1]
        self.navigation = self.make_navigation()

    def make_navigation(self):
        known = [stem for _, stems in GROUPS for stem in stems]
        others = [stem for stem in self.site.pages if stem not in known]
        groups = [(title, [stem for stem in stems if stem in self.site.pages])
                  for title, stems in [*GROUPS, ("More", others)]]
        return [{"title": title, "pages": [{"address": f"{stem}.html",
                                            "title": self.site.pages[stem].title}
                                           for stem in stems]}
                for title, stems in groups if stems]

    def write(self, address, template, **values):
        page = self.environment.get_template(template).render(
            address=address, prefix=self.site.prefix(address), navigation=self.navigation,
            version=self.version, **values)
        file = self.site.out / address
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(page, encoding="utf-8")

    def reference_of(self, stem):
        """What the headers say that are described on a page; None without any."""
        address = f"{stem}.html"
        headers = [header for header in self.site.headers if page_of(header) == stem]
        if not headers:
            return None
        # What is the library's own comes before what only its headers share.
        headers.sort(key=lambda header: header.name != stem)
        prose = Prose(lambda word: self.site.name_address(word, address))
        made = Reference(headers, self.site.pages[stem].opening, self.records, prose)
        return {"sections": made.sections(), "about": made.about(),
                "headers": [{"name": header.path.removeprefix("include/"),
                             "address": self.site.source(header.path)} for header in headers]}

    def documentation(self):
        for stem, page in self.site.pages.items():
            address = f"{stem}.html"
            content, headings = render(page.text, self.site, address)
            reference = self.reference_of(stem)
            on_page = [{"id": token["id"], "title": token["name"]}
                       for token in headings[0]["children"]]
            self.write(address, "documentation.html", title=page.title, content=content,
                       on_page=on_page, reference=reference)

    def index(self):
        readme = INTRODUCTION.match((self.site.root / "README.md").read_text(encoding="utf-8"))
        if readme is None:
            raise SiteError("README.md:1: It does not begin with a heading and a paragraph.")
        introduction, _ = render(readme[1], self.site, "index.html")
        cards = []
        for stem in CONTROLS:
            page = self.site.pages[stem]
            width, height = picture_size(self.site.picture(f"pictures/{stem}.png", "index.html"))
            first = re.sub(r"^Window class .*?\. ", "", " ".join(page.opening.split()), count=1)
            sentence, _ = render(re.match(r".*?\.(?= |$)", first)[0], self.site, "index.html")
            cards.append({"address": f"{stem}.html", "title": page.title, "text": sentence,
                          "picture": f"pictures/{stem}.png", "width": width, "height": height})
        example = self.site.root / "examples/hello.c"
        self.write("index.html", "index.html", title="VORN32", introduction=introduction,
                   cards=cards, example=highlighted(example),
                   example_address=self.site.source("examples/hello.c"))

    def all_names(self):
        letters = {}
        for name in sorted(self.site.names.values(), key=lambda name: name.name.lower()):
            letters.setdefault(name.name[0].upper(), []).append({
                "name": name.name, "address": f"{name.page}.html#{name.name}",
                "page": self.site.pages[name.page].title, "kind": SINGULARS[name.kind]})
        self.write("reference.html", "names.html", title="All names", letters=letters,
                   count=len(self.site.names))

    def source_pages(self):
        written = set()
        while todo := sorted(set(self.site.sources) - written):
            for address in todo:
                self.source_page(address, self.site.sources[address])
            written.update(todo)
        for address, file in self.site.copies.items():
            (self.site.out / address).parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(file, self.site.out / address)

    def source_page(self, address, path):
        file = self.site.root / path
        files = []
        if file.is_dir():
            files = [{"name": name.removeprefix(f"{path}/"),
                      "address": self.site.prefix(address) + self.site.source(name)}
                     for name in tracked_below(self.site.root, path)]
        content = "" if file.is_dir() else highlighted(file)
        self.write(address, "source.html", title=path, content=content, files=files)

    def styles(self):
        own = (HERE / "style.css").read_text(encoding="utf-8")
        (self.site.out / "style.css").write_text(own + code_styles(), encoding="utf-8")


def build(root, out):
    """Makes the site of the project at `root` in the folder `out`, whatever was there before.
    Raises SiteError and HeaderError."""
    if out.exists():
        if any(out.iterdir()) and not (out / "style.css").exists():
            raise SiteError(f"{out}: This folder holds something else than a site.")
        shutil.rmtree(out)
    os.makedirs(out)
    builder = Builder(Site(root, out))
    builder.documentation()
    builder.index()
    builder.all_names()
    builder.source_pages()
    builder.styles()
