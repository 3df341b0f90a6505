"""Every public name: what it is, on which page and under which heading it is described."""
import dataclasses
import re

# The page that a header is described on, where it is not the one of the same name.
PAGES = {"base": "library"}
KINDS = {
    "styles": "Window styles", "functions": "Functions", "messages": "Messages",
    "notifications": "Notifications", "types": "Types", "constants": "Constants",
}
# Each of them alone.
SINGULARS = {
    "styles": "window style", "functions": "function", "messages": "message",
    "notifications": "notification", "types": "type", "constants": "constant",
}
PREFIXES = [
    ("messages", re.compile(r"VORN_WM_|(?!VORN_)(?:V[A-Z]+|OLB)M_")),
    ("styles", re.compile(r"(?:V[A-Z]+|OLB)S_")),
    ("notifications", re.compile(r"(?!VORN_)V[A-Z]+N_")),
]
TWINS = "functions' twins"


@dataclasses.dataclass
class Name:
    name: str
    page: str
    kind: str  # a key of KINDS


def page_of(header):
    return PAGES.get(header.name, header.name)


def kind_of(group):
    """Where a group stands: its first declaration decides."""
    first = group.items[0]
    if first.kind == "function":
        return "functions"
    if first.kind in ("handle", "record"):
        return "types"
    for kind, prefix in PREFIXES:
        if prefix.match(first.name):
            return kind
    return "constants"


def all_names(headers):
    return {item.name: Name(item.name, page_of(header), kind_of(group))
            for header in headers for group in header.groups for item in group.items}


def twins_of(header):
    """The function of each message of a header that has one of the same name: dtGetDate is
    VDTM_GETDATE's."""
    functions = {re.sub(r"^[a-z]+", "", item.name).lower(): item.name
                 for item in header.items() if item.kind == "function"}
    return {item.name: functions[suffix]
            for group in header.groups
            if kind_of(group) == "messages" and TWINS in " ".join(group.paragraphs)
            for item in group.items
            if (suffix := item.name.split("_", 1)[1].lower()) in functions}
