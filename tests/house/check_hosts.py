"""The hosts in Go and Ada declare what the headers do: constants, records, handles and functions
with the types of their arguments and results. The compilers for both architectures judge, by a file
of assertions that is made from the declarations. Every host names every window class."""
import itertools
import re

from compilers import COMPILERS, assertion, compile_errors
from tree import ROOT, finish

HOSTS = ROOT / "examples/hosts"
# Names that a language has for what C calls otherwise; all others are C's own names.
C_TYPES = {"go": {"int32": "int", "byte": "char", "float64": "double"},
           "ada": {"String": "char", "DWORD_Array": "DWORD"}}
# An array's length and the type of what is in it.
ARRAYS = {"go": r"\[(?P<length>\d+)\](?P<of>\w+)", "ada": r"(?P<of>\w+) \(1 \.\. (?P<length>\d+)\)"}
# How the languages write what is as wide as a pointer and all ones.
ALL_ONES = {"go": r"\^(\w+)\(0\)", "ada": r"(\w+)'Last"}


def read(language, name):
    return re.sub(r"//.*|--.*", "", (HOSTS / language / name).read_text(encoding="utf-8"))


def go_constants(source):
    block = "\n".join(re.findall(r"^const \((.*?)^\)", source, re.MULTILINE | re.DOTALL))
    return re.findall(r"^\t(\w+)\s*=\s*(.+?)\s*$", block, re.MULTILINE)


def go_handles(source):
    return re.findall(r"^type (\w+) uintptr$", source, re.MULTILINE)


def go_records(source):
    """Name, fields (name, type), the alignment that it is packed to, which Go's never are."""
    for name, body in re.findall(r"^type (\w+) struct \{\n(.*?)^\}", source,
                                 re.MULTILINE | re.DOTALL):
        yield name, [line.split() for line in body.splitlines()], ""


def go_functions(source):
    """Name, the name that is looked up, parameters (name, type), result, what is passed on."""
    pattern = re.compile(r"^func (\w+)\((.*?)\) ?(\w*) \{\n.*?NewProc\(\"(\w+)\"\)\.Call\((.*)\)$",
                         re.MULTILINE)
    for name, listed, result, looked_up, passed in pattern.findall(source):
        parameters = [part.split() for part in listed.split(", ") if part]
        yield (name, looked_up, parameters, result,
               re.findall(r"uintptr\((?:unsafe\.Pointer\()?(\w+)", passed))


def ada_constants(source):
    pattern = r"(\w+)\s*: constant(?: String| HOLBITEM)? := (.+);"
    return [(name, re.sub(r"16#(\w+)#", r"0x\1", value))
            for name, value in re.findall(pattern, source)]


def ada_handles(source):
    return re.findall(r"type (\w+) is mod 2 \*\* Standard'Address_Size;", source)


def ada_records(source):
    pattern = r"type (\w+) is record(.*?)end record with Convention => C(?:, Alignment => (\d+))?;"
    for name, body, alignment in re.findall(pattern, source, re.DOTALL):
        yield name, re.findall(r"(\w+)\s*: (.+?)(?: := .+)?;", body), alignment


def ada_functions(source):
    pattern = re.compile(r"(?:function|procedure) (\w+)\s*(?:\(([^)]*)\))?\s*(?:return (\w+))?\s*"
                         r"with Import, Convention => Stdcall, External_Name => \"(\w+)\";")
    for name, listed, result, looked_up in pattern.findall(source):
        parameters = [part.strip().split(" : ") for part in listed.split(";") if part.strip()]
        yield name, looked_up, parameters, result, [parameter[0] for parameter in parameters]


def c_types(language, name):
    """What a type may be in C: Go has no pointers to what is constant, Ada says which are."""
    array = re.fullmatch(ARRAYS[language], name)
    if array:
        return [f"{c_types(language, array['of'])[0]}[{array['length']}]"]
    for pointer, before in (("*", ["", "const "]), ("access constant ", ["const "]),
                            ("access ", [""])):
        if name.startswith(pointer):
            target = c_types(language, name[len(pointer):])[0]
            return [f"{constant}{target}*" for constant in before]
    return [C_TYPES[language].get(name, name) or "void"]


def assert_constants(language, constants):
    for name, value in constants:
        value = re.sub(ALL_ONES[language], r"(\1)~(UINT_PTR)0", value)
        same = f"__builtin_strcmp({name}, {value}) == 0" if '"' in value else f"{name} == {value}"
        yield assertion(same, f"{name} has another value")


def assert_handles(handles):
    for name in handles:
        yield assertion(f"sizeof({name}) == sizeof(UINT_PTR)", f"{name} is no handle")


def assert_records(language, records):
    """Go cannot pack: what follows the last field of a record may be there in excess."""
    for name, fields, alignment in records:
        types = [f"__typeof__({c_types(language, kind)[0]})" for _, kind in fields]
        body = "".join(f"{kind} {field[0]}; " for kind, field in zip(types, fields))
        copy = f"struct copy_{name}"
        yield from (f"#pragma pack({alignment})", f"{copy} {{ {body}}};", "#pragma pack()")
        size = f"sizeof({copy})"
        if language == "go":
            last = fields[-1][0]
            end = f"(offsetof({copy}, {last}) + sizeof((({copy}*)0)->{last}))"
            size = f"(sizeof({name}) < {size} ? {end} : {size})"
        yield assertion(f"sizeof({name}) == {size}", f"{name} has another size")
        for kind, (field, _) in zip(types, fields):
            same_place = f"offsetof({name}, {field}) == offsetof({copy}, {field})"
            same_type = f"__builtin_types_compatible_p(__typeof__((({name}*)0)->{field}), {kind})"
            yield assertion(f"{same_place} && {same_type}", f"{name}.{field} is another field")


def assert_functions(language, functions):
    for name, _, parameters, result, _ in functions:
        choices = itertools.product(*(c_types(language, kind) for _, kind in parameters))
        signatures = [f"{c_types(language, result)[0]} WINAPI ({', '.join(listed) or 'void'})"
                      for listed in choices]
        yield assertion(" || ".join(f"__builtin_types_compatible_p(__typeof__({name}), {signature})"
                                    for signature in signatures),
                        f"{name} has other arguments or another result")


def inconsistent(functions):
    for name, looked_up, parameters, _, passed in functions:
        if looked_up != name:
            yield f"{name}: it is {looked_up} that is called"
        if passed != [parameter[0] for parameter in parameters]:
            yield f"{name}: what is passed on are not its parameters in their order"


def check(language, file, platform_file, constants, handles, records, functions, markers):
    source = read(language, file)
    declared, found = [*constants(source)], [*functions(source)]
    kept, opaque = [*records(source)], [*handles(source)]
    understood = [len(declared), len(kept) + len(opaque), len(found)]
    expected = [len(re.findall(marker, source)) for marker in markers]
    if understood != expected or 0 in expected:
        yield f"{understood} of {expected} constants, types and functions were understood"
    yield from inconsistent(found)
    lines = [*assert_constants(language, declared),
             *assert_constants(language, constants(read(language, platform_file))),
             *assert_handles(opaque), *assert_records(language, kept),
             *assert_functions(language, found)]
    for architecture in COMPILERS:
        yield from compile_errors(lines, architecture)


def unused_classes(declaring):
    header = (ROOT / "include/vorn32/library.h").read_text(encoding="utf-8")
    classes = re.findall(r"^#define (VORN_\w+_CLASS)", header, re.MULTILINE)
    hosts = [folder for folder in sorted(HOSTS.iterdir()) if folder.is_dir()]
    if not classes or not hosts:
        yield f"examples/hosts: {len(hosts)} hosts for {len(classes)} classes"
    for folder in hosts:
        source = "".join(file.read_text(encoding="utf-8") for file in folder.iterdir()
                         if file.name not in declaring)
        yield from (f"examples/hosts/{folder.name}: nothing is of the class {name}"
                    for name in classes if not re.search(rf"\b{name}\b", source))


checks = [("go", "vorn32.go", "win32.go", go_constants, go_handles, go_records, go_functions,
           (r"(?m)^\t\w+\s*= ", r"(?m)^type\b", r"\bNewProc\b")),
          ("ada", "vorn32.ads", "win32.ads", ada_constants, ada_handles, ada_records, ada_functions,
           (r": constant\b", r"\btype \w+ is\b", r"\bExternal_Name\b"))]
findings = [f"examples/hosts/{arguments[0]}/{arguments[1]}: {finding}"
            for arguments in checks for finding in check(*arguments)]
finish(findings + [*unused_classes([arguments[1] for arguments in checks])])
