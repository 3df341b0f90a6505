"""The hosts in Go and Ada declare what the headers do: constants, records and functions with the
types of their arguments and results. The compilers for both architectures judge, by a file of
assertions that is made from the declarations."""
import re

from compilers import COMPILERS, assertion, compile_errors
from tree import ROOT, finish

HOSTS = ROOT / "examples/hosts"
# Names that a language has for what C calls otherwise; all others are C's own names.
C_TYPES = {"go": {"int32": "int"}, "ada": {}}


def read(language, name):
    return re.sub(r"//.*|--.*", "", (HOSTS / language / name).read_text(encoding="utf-8"))


def go_constants(source):
    block = "\n".join(re.findall(r"^const \((.*?)^\)", source, re.MULTILINE | re.DOTALL))
    return re.findall(r"^\t(\w+)\s*=\s*(.+?)\s*$", block, re.MULTILINE)


def go_records(source):
    for name, body in re.findall(r"^type (\w+) struct \{\n(.*?)^\}", source,
                                 re.MULTILINE | re.DOTALL):
        yield name, [line.split() for line in body.splitlines()]


def go_functions(source):
    """Name, the name that is looked up, parameters (name, type), result, what is passed on."""
    pattern = re.compile(r"^func (\w+)\((.*?)\) ?(\w*) \{\n.*?NewProc\(\"(\w+)\"\)\.Call\((.*)\)$",
                         re.MULTILINE)
    for name, listed, result, looked_up, passed in pattern.findall(source):
        parameters = [part.split() for part in listed.split(", ") if part]
        yield (name, looked_up, parameters, result,
               re.findall(r"uintptr\((?:unsafe\.Pointer\()?(\w+)", passed))


def ada_constants(source):
    pattern = r"(\w+)\s*: constant(?: String)? := (.+);"
    return [(name, re.sub(r"16#(\w+)#", r"0x\1", value))
            for name, value in re.findall(pattern, source)]


def ada_records(source):
    for name, body in re.findall(r"type (\w+) is record(.*?)end record with Convention => C;",
                                 source, re.DOTALL):
        yield name, re.findall(r"(\w+)\s*: (\w+);", body)


def ada_functions(source):
    pattern = re.compile(r"(?:function|procedure) (\w+)\s*(?:\(([^)]*)\))?\s*(?:return (\w+))?\s*"
                         r"with Import, Convention => Stdcall, External_Name => \"(\w+)\";")
    for name, listed, result, looked_up in pattern.findall(source):
        parameters = [part.strip().split(" : ") for part in listed.split(";") if part.strip()]
        yield name, looked_up, parameters, result, [parameter[0] for parameter in parameters]


def c_type(language, name):
    for pointer in ("*", "access "):
        if name.startswith(pointer):
            return c_type(language, name[len(pointer):]) + "*"
    return C_TYPES[language].get(name, name) or "void"


def assert_constants(constants):
    for name, value in constants:
        same = f"__builtin_strcmp({name}, {value}) == 0" if '"' in value else f"{name} == {value}"
        yield assertion(same, f"{name} has another value")


def assert_records(language, records):
    for name, fields in records:
        types = [c_type(language, field[1]) for field in fields]
        body = "".join(f"{kind} {field[0]}; " for kind, field in zip(types, fields))
        yield f"struct copy_{name} {{ {body}}};"
        yield assertion(f"sizeof({name}) == sizeof(struct copy_{name})", f"{name} has another size")
        for kind, (field, _) in zip(types, fields):
            same_place = f"offsetof({name}, {field}) == offsetof(struct copy_{name}, {field})"
            same_type = f"__builtin_types_compatible_p(__typeof__((({name}*)0)->{field}), {kind})"
            yield assertion(f"{same_place} && {same_type}", f"{name}.{field} is another field")


def assert_functions(language, functions):
    for name, _, parameters, result, _ in functions:
        listed = ", ".join(c_type(language, kind) for _, kind in parameters) or "void"
        signature = f"{c_type(language, result)} WINAPI ({listed})"
        yield assertion(f"__builtin_types_compatible_p(__typeof__({name}), {signature})",
                        f"{name} has other arguments or another result")


def inconsistent(functions):
    for name, looked_up, parameters, _, passed in functions:
        if looked_up != name:
            yield f"{name}: it is {looked_up} that is called"
        if passed != [parameter[0] for parameter in parameters]:
            yield f"{name}: what is passed on are not its parameters in their order"


def check(language, file, platform_file, constants, records, functions, markers):
    source = read(language, file)
    declared, kept, found = [*constants(source)], [*records(source)], [*functions(source)]
    understood = [len(declared), len(kept), len(found)]
    expected = [len(re.findall(marker, source)) for marker in markers]
    if understood != expected or 0 in expected:
        yield f"{understood} of {expected} constants, records and functions were understood"
    yield from inconsistent(found)
    lines = [*assert_constants(declared),
             *assert_constants(constants(read(language, platform_file))),
             *assert_records(language, kept), *assert_functions(language, found)]
    for architecture in COMPILERS:
        yield from compile_errors(lines, architecture)


checks = [("go", "vorn32.go", "win32.go", go_constants, go_records, go_functions,
           (r"(?m)^\t\w+\s*= ", r"\bstruct\b", r"\bNewProc\b")),
          ("ada", "vorn32.ads", "win32.ads", ada_constants, ada_records, ada_functions,
           (r"\bconstant\b", r"\bis record\b", r"\bExternal_Name\b"))]
finish([f"examples/hosts/{arguments[0]}/{arguments[1]}: {finding}"
        for arguments in checks for finding in check(*arguments)])
