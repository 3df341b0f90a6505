"""Files of the project that pages link to: sources as highlighted pages, others as they are."""
import subprocess

from pygments import highlight
from pygments.formatters import HtmlFormatter
from pygments.lexers import CLexer, TextLexer, get_lexer_for_filename
from pygments.util import ClassNotFound

STYLES = {"light": "default", "dark": "github-dark"}


def lexer_of(file):
    if file.suffix == ".h":
        return CLexer()
    try:
        return get_lexer_for_filename(file.name)
    except ClassNotFound:
        return TextLexer()


def is_text(file):
    try:
        file.read_text(encoding="utf-8")
    except UnicodeDecodeError:
        return False
    return True


def highlighted(file):
    return highlight(file.read_text(encoding="utf-8"), lexer_of(file),
                     HtmlFormatter(cssclass="code"))


def tracked_below(root, folder):
    """The files in a folder that are the project's, not what tools have left there."""
    listing = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard",
                              folder], cwd=root, capture_output=True, text=True, check=True)
    return sorted(line for line in listing.stdout.splitlines() if (root / line).is_file())


def code_styles():
    """The style sheet of highlighted code, for light and dark."""
    light = HtmlFormatter(style=STYLES["light"]).get_style_defs([".code", ".proto"])
    dark = HtmlFormatter(style=STYLES["dark"]).get_style_defs([".code", ".proto"])
    return f"{light}\n@media (prefers-color-scheme: dark) {{\n{dark}\n}}\n"
