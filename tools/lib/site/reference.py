"""The section "Reference" of a page: all that the headers described on it declare."""
import re

from pygments import highlight
from pygments.formatters import HtmlFormatter
from pygments.lexers import CLexer

from headers import HeaderError
from layout import measure
from names import KINDS, TWINS, kind_of, twins_of

TITLE_SENTENCE = re.compile(r"VORN32: .*?\.(?: |$)")
USER_MESSAGE = re.compile(r"\(WM_USER \+ (\d+)\)$")
WM_USER = 1024


def prototype(item):
    """The declaration, highlighted, whose name stands out."""
    made = highlight(item.text, CLexer(stripnl=True), HtmlFormatter(nowrap=True)).rstrip("\n")
    return re.sub(rf'<span class="nf?">{item.name}</span>', f"<strong>{item.name}</strong>", made,
                  count=1)


def as_sentence(text):
    """What stands at the end of a line, as a text of its own."""
    return text[0].upper() + text[1:] + ("" if text.endswith(".") else ".")


def value_of(item):
    """What a #define stands for: as it is written, and as a number where that says more."""
    match = USER_MESSAGE.match(item.text)
    if match:
        return item.text[1:-1], str(WM_USER + int(match[1]))
    return re.sub(r"^\((-?\d+)\)$", r"\1", item.text), ""


def about_of(header, opening):
    """What the header says of itself, without the sentence that only names it, and without those
    that its page opens with already."""
    opening = " ".join(opening.replace("`", "").split())
    paragraphs = [TITLE_SENTENCE.sub("", header.about[0], count=1), *header.about[1:]]
    for paragraph in paragraphs:
        sentences = re.split(r"(?<=\.) ", paragraph)
        while sentences and sentences[0] in opening:
            sentences = sentences[1:]
        if sentences:
            yield " ".join(sentences)


class Reference:
    """Makes what the template shows of the headers of one page."""

    def __init__(self, headers, opening, records, prose):
        self.headers = headers
        self.opening = opening
        self.records = records
        self.prose = prose

    def constants(self, header, group, twins):
        has_twins = TWINS in " ".join(group.paragraphs)
        rows = []
        for item in group.items:
            written, number = value_of(item)
            if item.comment == "" and item.name not in twins:
                raise HeaderError(header.path, item.line, f"{item.name} has an empty description, "
                                                          "and no function of its name has one.")
            rows.append({"name": item.name, "parameters": item.parameters, "written": written,
                         "number": number, "twin": self.link(twins.get(item.name)),
                         "text": self.prose.text(item.comment or "")})
        return {"rows": rows, "twins": has_twins, "texts": any(row["text"] for row in rows)}

    def link(self, name):
        return "" if name is None else self.prose.code(name)

    def functions(self, group):
        """Functions that share a comment stand together above it, others by themselves."""
        if not group.paragraphs:
            return [self.entry([item], [as_sentence(item.comment)]) for item in group.items]
        own = [f"{item.name}: {item.comment}" for item in group.items if item.comment]
        return [self.entry(group.items, [*group.paragraphs, *own])]

    def entry(self, items, texts):
        return {"functions": [{"name": item.name, "html": prototype(item)} for item in items],
                "texts": [self.prose.text(text) for text in texts]}

    def types(self, group):
        entries = []
        for item in group.items:
            measured = measure(item, self.records) if item.kind == "record" else None
            offsets, size = measured[:2] if measured else (None, 0)
            own = self.prose.text(item.comment) if item.comment else ""
            fields = [{"name": field.name, "count": field.count, "type": self.type(field.type),
                       "offset": "" if offsets is None else offsets[i],
                       "text": self.prose.text(field.comment or "")}
                      for i, field in enumerate(item.fields)]
            entries.append({"name": item.name, "size": size, "text": own, "fields": fields,
                            "html": prototype(item) if item.text else "",
                            "offsets": offsets is not None,
                            "texts": any(field["text"] for field in fields)})
        return entries

    def type(self, name):
        return self.prose.code(name)

    def group(self, header, group, kind, twins):
        # "Window styles." alone would say the heading again.
        heading = re.compile(re.escape(KINDS[kind]) + r"[.:](?: |$)")
        texts = [heading.sub("", text, count=1) for text in group.paragraphs]
        made = {"section": group.section,
                "paragraphs": [self.prose.text(as_sentence(text)) for text in texts if text]}
        if kind == "functions":
            made["functions"] = self.functions(group)
        elif kind == "types":
            made["types"] = self.types(group)
        else:
            made["constants"] = self.constants(header, group, twins)
        return made

    def sections(self):
        """Headings and what stands under them, in the order of KINDS."""
        groups = {kind: [] for kind in KINDS}
        for header in self.headers:
            twins = twins_of(header)
            for group in header.groups:
                kind = kind_of(group)
                groups[kind].append(self.group(header, group, kind, twins))
        return [{"id": f"reference-{kind}", "title": title, "kind": kind, "groups": groups[kind]}
                for kind, title in KINDS.items() if groups[kind]]

    def about(self):
        return [self.prose.text(text) for header in self.headers
                for text in about_of(header, self.opening)]
