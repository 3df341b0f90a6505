"""Opens pages in headless Chromium and tells what a reader would find wrong with them."""
import json
import pathlib
import shutil
import tempfile
import urllib.parse

from selenium import webdriver
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service

OPTIONS = ["--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
           "--disable-background-networking", "--disable-component-update", "--disable-sync",
           "--hide-scrollbars"]
DRIVER = "/usr/bin/chromedriver"
CHROMIUM = "/usr/bin/chromium"
HARMLESS = {"DEBUG", "INFO"}
WIDTHS = {"a phone": 400, "a desk": 1200}

# What a page has, as the browser sees it once everything is loaded.
LOOK = """
const all = selector => [...document.querySelectorAll(selector)];
return {
    language: document.documentElement.lang,
    title: document.title,
    doctype: document.doctype !== null && document.compatMode === "CSS1Compat",
    ids: all("[id]").map(element => element.id),
    links: all("a").map(link => link.hasAttribute("href") ? link.href : ""),
    nameless: all("a").filter(link => !link.textContent.trim() && !link.ariaLabel &&
                                      !link.querySelector("img[alt]")).map(link => link.href),
    pictures: all("img").map(image => ({address: image.src, alt: image.alt,
                                        said: ["width", "height"].map(name => image.getAttribute(name)),
                                        natural: [image.naturalWidth, image.naturalHeight].map(String),
                                        loaded: image.complete && image.naturalWidth > 0})),
    headings: all("h1, h2, h3, h4, h5, h6").map(heading => ({
        level: Number(heading.localName[1]), text: heading.textContent})),
    styled: getComputedStyle(document.querySelector(".bar")).position === "sticky",
};
"""
WIDTH = """
return {page: document.documentElement.scrollWidth, seen: document.documentElement.clientWidth};
"""


class Browser:
    """Chromium with a profile of its own, which is gone afterwards."""

    def __enter__(self):
        self.profile = tempfile.mkdtemp(prefix="vorn32-chromium-")
        options = Options()
        options.binary_location = CHROMIUM
        for option in [*OPTIONS, f"--user-data-dir={self.profile}"]:
            options.add_argument(option)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
        self.driver = webdriver.Chrome(service=Service(DRIVER), options=options)
        self.driver.set_page_load_timeout(60)
        return self

    def __exit__(self, *_):
        self.driver.quit()
        shutil.rmtree(self.profile, ignore_errors=True)

    def requests(self):
        """The addresses that pages asked for since the last call. The tab that the browser opens
        with by itself is none of them."""
        for entry in self.driver.get_log("performance"):
            message = json.loads(entry["message"])["message"]
            asked = message["params"]
            if (message["method"] == "Network.requestWillBeSent"
                    and not asked["documentURL"].startswith("chrome:")):
                yield asked["request"]["url"]

    def resize(self, width):
        self.driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {
            "width": width, "height": 900, "deviceScaleFactor": 1, "mobile": False})

    def look(self, file):
        """What there is on a page, and what is wrong with how it loads and looks."""
        self.driver.get(file.as_uri())
        page = self.driver.execute_script(LOOK)
        page["findings"] = [
            f"asks for {address}" for address in self.requests()
            if not address.startswith(("file:", "data:"))]
        for name, width in WIDTHS.items():
            self.resize(width)
            measured = self.driver.execute_script(WIDTH)
            if measured["seen"] != width:
                page["findings"].append(f"is {measured['seen']} pixels wide instead of {width}")
            if measured["page"] > measured["seen"]:
                page["findings"].append(f"is wider than the screen of {name}: "
                                        f"{measured['page']} of {measured['seen']} pixels")
        page["findings"] += [f"the browser says: {entry['message']}"
                             for entry in self.driver.get_log("browser")
                             if entry["level"] not in HARMLESS]
        return page


def missing_parts(page):
    """What every page needs to have."""
    if page["language"] != "en":
        yield "does not tell its language"
    if not page["title"].strip():
        yield "has no title"
    if not page["doctype"]:
        yield "does not say that it is HTML"
    if not page["styled"]:
        yield "has no style sheet"
    for name in sorted({name for name in page["ids"] if page["ids"].count(name) > 1}):
        yield f"has the anchor {name} more than once"
    for address in page["nameless"]:
        yield f"has a link without a name, to {address}"
    for picture in page["pictures"]:
        if not picture["loaded"]:
            yield f"the picture {picture['address']} does not load"
        elif picture["said"] != picture["natural"]:
            yield (f"the picture {picture['address']} is said to be {picture['said']} pixels large "
                   f"and is {picture['natural']}")
        if not picture["alt"].strip():
            yield f"the picture {picture['address']} has no alternative text"
    level = 0
    for heading in page["headings"]:
        if heading["level"] > level + 1:
            yield f"the heading \"{heading['text']}\" skips a level"
        level = heading["level"]
    if [heading["level"] for heading in page["headings"]].count(1) != 1:
        yield "does not have one main heading"


def broken_links(page, pages):
    """Links that lead to no page or to no anchor of one. `pages` has what was seen of each file."""
    for address in page["links"]:
        parts = urllib.parse.urlsplit(address)
        if parts.scheme in ("http", "https"):
            continue
        file = pathlib.Path(urllib.parse.unquote(parts.path))
        if parts.scheme != "file" or not file.is_file():
            yield f"the link to {address or 'nothing'} leads nowhere"
        elif parts.fragment and urllib.parse.unquote(parts.fragment) not in pages[file]["ids"]:
            yield f"the link to {address} leads to no anchor"
