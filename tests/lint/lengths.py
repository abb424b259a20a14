"""A file has one subject and at most 600 lines, a function fits on a screen: at most 80 lines, tables aside. Nine functions of ten in src have
fewer than 30."""

import re

from lintlib import Example, Finding, is_cpp, is_under, run, without_comments

FILE_LIMIT = 600
FUNCTION_LIMIT = 80
USUAL_LIMIT = 30
FOLDERS = ["src", "tests", "bench", "fuzz", "tools", "cmake"]

# Functions start in the first column, as namespaces aren't indented, or one step in, within a class.
OPENING = re.compile(r"^(  )?[A-Za-z~\[].*\{$")
CONTINUED_OPENING = re.compile(r"^ {4,}.*\)( const| override| noexcept| mutable)*( ->.*)? \{$|^ {4,}: .*\) \{$")
NO_FUNCTION = re.compile(r"^\s*(namespace|struct|class|enum|union|extern|public|private|using|switch|if|for|while|else|do)\b|=\s*\{*$|\{\{$")
LUA_OPENING = re.compile(r"^\S.*\bfunction\b\s*[\w.:]*\(.*\)$")


def cpp_functions(text: str):
    """First and last line of each function; a table that stands outside functions is none."""
    start, indent = 0, ""
    lines = without_comments(text).split("\n")
    for number, line in enumerate(lines, 1):
        if start == 0 and line.rstrip().endswith("{"):
            head = number
            if CONTINUED_OPENING.match(line):
                # The head of a function may take several lines; its first one stands further left.
                while head > 1 and lines[head - 1].startswith("    "):
                    head -= 1
            elif not OPENING.match(line):
                continue
            first = lines[head - 1]
            if NO_FUNCTION.search(first) or NO_FUNCTION.search(line) or "(" not in first:
                continue
            start, indent = head, first[: len(first) - len(first.lstrip())]
        elif start and re.match(rf"^{indent}\}}", line):
            yield start, number
            start = 0


def lua_functions(text: str):
    start = 0
    for number, line in enumerate(text.split("\n"), 1):
        if start == 0 and LUA_OPENING.match(line):
            start = number
        elif start and line.startswith("end"):
            yield start, number
            start = 0


def functions(path: str, text: str) -> list[tuple[int, int]]:
    if is_cpp(path):
        return list(cpp_functions(text))
    return list(lua_functions(text)) if path.endswith(".lua") else []


def usual_lengths(files: dict[str, str]) -> list[Finding]:
    lengths = sorted(last - first + 1 for path, text in files.items() if is_under(path, "src") for first, last in functions(path, text))
    if not lengths:
        return []
    tenth = lengths[len(lengths) * 9 // 10]
    if tenth < USUAL_LIMIT:
        return []
    return [Finding("src", 1, f"one function of ten has {tenth} lines or more; nine of ten have fewer than {USUAL_LIMIT}")]


def check(files: dict[str, str]) -> list[Finding]:
    found = []
    sources = {path: text for path, text in files.items() if is_under(path, *FOLDERS) or "/" not in path}
    for path, text in sources.items():
        count = text.count("\n")
        if count > FILE_LIMIT and not path.endswith((".txt", ".md")):
            found.append(Finding(path, FILE_LIMIT + 1, f"{count} lines; at most {FILE_LIMIT}"))
        found += [
            Finding(path, first, f"a function of {last - first + 1} lines; at most {FUNCTION_LIMIT}")
            for first, last in functions(path, text)
            if last - first + 1 > FUNCTION_LIMIT
        ]
    return found + usual_lengths(sources)


LONG = "  a();\n" * FUNCTION_LIMIT
USUAL = "void a() {\n" + "  a();\n" * USUAL_LIMIT + "}\n"

EXAMPLES = [
    Example("short", {"src/a.cpp": "void a() {\n  b();\n}\n"}, []),
    Example("long function", {"tests/a.cpp": f"\nvoid a() {{\n{LONG}}}\n"}, ["tests/a.cpp:2"]),
    Example("long function with a long head", {"tests/a.cpp": f"\nvoid a(int b,\n       int c) {{\n{LONG}}}\n"}, ["tests/a.cpp:2"]),
    Example("long function of a class", {"tests/a.h": f"class A {{\n  int a() const {{\n{LONG}  }}\n}};\n"}, ["tests/a.h:2"]),
    Example("long table", {"tests/a.cpp": "constexpr A table[] = {\n" + "    {1, 2},\n" * 100 + "};\n"}, []),
    Example("long namespace", {"tests/a.cpp": "namespace a {\n" + "int b();\n" * 100 + "}\n"}, []),
    Example("long scenario", {"tests/a.lua": f'case("a", function()\n{LONG}end)\n'}, ["tests/a.lua:1"]),
    Example("long file", {"tests/a.cpp": "int a();\n" * (FILE_LIMIT + 1)}, [f"tests/a.cpp:{FILE_LIMIT + 1}"]),
    Example("long data", {"data/a.txt": "a\n" * (FILE_LIMIT + 1)}, []),
    Example("too many of some length", {"src/a.cpp": USUAL * 2 + "void b() {\n}\n"}, ["src:1"]),
]

if __name__ == "__main__":
    run(check, EXAMPLES)
