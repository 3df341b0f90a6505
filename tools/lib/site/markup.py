"""The pages' Markdown as HTML: links go to where things are on the site, public names are links,
tables can scroll, code is highlighted."""
import html
import struct
from xml.etree import ElementTree

import markdown
from markdown.extensions import Extension
from markdown.extensions.codehilite import CodeHiliteExtension
from markdown.extensions.toc import TocExtension
from markdown.treeprocessors import Treeprocessor

NOT_LINKED_IN = {"a", "pre", "h1", "h2", "h3", "h4", "h5", "h6"}


def picture_size(file):
    """Width and height: a PNG has them at the same place always, an SVG as it says itself."""
    if file.suffix == ".svg":
        drawing = ElementTree.parse(file).getroot()
        return int(drawing.get("width")), int(drawing.get("height"))
    return struct.unpack(">II", file.read_bytes()[16:24])


class Linker(Treeprocessor):
    """Works on the tree of one page; `site` knows where everything is."""

    def __init__(self, md, site, page):
        super().__init__(md)
        self.site = site
        self.page = page

    def name_link(self, parent, index, code):
        """A public name leads to its description, an example's to the example."""
        text = html.unescape("".join(code.itertext()))
        address = (self.site.name_address(text.split("(")[0], self.page)
                   or self.site.example_address(text, self.page))
        if address is None:
            return
        link = ElementTree.Element("a", {"href": address, "class": "name"})
        link.tail, code.tail = code.tail, None
        parent[index] = link
        link.append(code)

    def scrolling(self, parent, index, table):
        box = ElementTree.Element("div", {"class": "table", "tabindex": "0"})
        box.tail, table.tail = table.tail, None
        parent[index] = box
        box.append(table)

    def picture(self, image):
        file = self.site.picture(image.get("src"), self.page)
        width, height = picture_size(file)
        image.set("width", str(width))
        image.set("height", str(height))

    def visit(self, parent, linked):
        for index, child in enumerate(list(parent)):
            if child.tag == "a":
                child.set("href", self.site.address(child.get("href"), self.page))
            elif child.tag == "img":
                self.picture(child)
            elif child.tag == "code" and linked:
                self.name_link(parent, index, child)
            elif child.tag == "table":
                self.scrolling(parent, index, child)
            self.visit(child, linked and child.tag not in NOT_LINKED_IN)

    def run(self, root):
        self.visit(root, True)


class SiteExtension(Extension):
    def __init__(self, site, page):
        super().__init__()
        self.site = site
        self.page = page

    def extendMarkdown(self, md):
        # Behind the inline patterns, which make the links and pictures, and before the headings
        # get their anchors.
        md.treeprocessors.register(Linker(md, self.site, self.page), "site", 15)


def render(text, site, page):
    """The HTML of a page's Markdown, and its headings as nested dictionaries."""
    md = markdown.Markdown(output_format="html", extensions=[
        "tables", "fenced_code", "sane_lists", TocExtension(),
        CodeHiliteExtension(css_class="code", guess_lang=False), SiteExtension(site, page)])
    return md.convert(text), md.toc_tokens
