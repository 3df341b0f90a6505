"""The comments of headers as HTML: names are code, and public names are links."""
import html
import re

WORD = re.compile(r"`([^`]+)`|<vorn32[\w/.]*>|\b[A-Z]+_\.\.\.|\b[A-Za-z_]\w*")
# What the platform or C calls by a name: LB_DIR, RedrawWindow, MAKELONG, wParam.
PLATFORM = re.compile(r"[A-Z][A-Z0-9]*_(?:\w*|\.\.\.)$|[A-Z][a-z]+(?:[A-Z][a-z]+)+$|[lw]Param$|"
                      r"(?:MAKELONG|LOWORD|HIWORD|DWORD|WORD|BOOL|LONG|TRUE|FALSE|RECT|LOGFONT|"
                      r"LISTBOX|COMBOBOX)$")


class Prose:
    """Writes texts for one page. `address` answers where a public name is described, or None."""

    def __init__(self, address, fields=()):
        self.address = address
        self.fields = set(fields)

    def code(self, word):
        text = f"<code>{html.escape(word, quote=False)}</code>"
        address = self.address(word)
        return text if address is None else f'<a class="name" href="{address}">{text}</a>'

    def word(self, match):
        if match[1]:
            return self.code(match[1])
        word = match[0]
        if self.address(word) is not None or word.startswith("<"):
            return self.code(word)
        is_code = PLATFORM.match(word) or word in self.fields
        return self.code(word) if is_code else html.escape(word, quote=False)

    def text(self, text):
        parts, at = [], 0
        for match in WORD.finditer(text):
            parts += [html.escape(text[at:match.start()], quote=False), self.word(match)]
            at = match.end()
        return "".join([*parts, html.escape(text[at:], quote=False)])
